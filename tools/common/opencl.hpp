// A processor as an OpenCL runtime shows it, with the module where kernels find it.
#pragma once

#define CL_HPP_ENABLE_EXCEPTIONS
#define CL_HPP_TARGET_OPENCL_VERSION 120
#define CL_HPP_MINIMUM_OPENCL_VERSION 120
#include <CL/opencl.hpp>

#include <dlfcn.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string>

namespace tarn {

// The first processor; nothing where no runtime has one.
inline std::optional<cl::Device> processor() {
    std::vector<cl::Platform> platforms;
    try {
        cl::Platform::get(&platforms);
    } catch (const cl::Error&) {
        return std::nullopt;  // the loader's word for no runtime at all
    }
    for (const auto& platform : platforms) {
        std::vector<cl::Device> devices;
        try {
            platform.getDevices(CL_DEVICE_TYPE_CPU, &devices);
        } catch (const cl::Error&) {
            continue;
        }
        if (!devices.empty()) return devices[0];
    }
    return std::nullopt;
}

// A directory of our own for what a runtime keeps of programs: what another run left there would not be of this module's
// header. It goes when this does.
class KernelCache {
public:
    KernelCache() {
        if (!mkdtemp(path_)) throw std::runtime_error("no directory can be made in /tmp");
        setenv("POCL_CACHE_DIR", path_, 1);
    }
    KernelCache(const KernelCache&) = delete;
    ~KernelCache() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

private:
    char path_[24] = "/tmp/tarn-opencl-XXXXXX";
};

// Kernels' calls are bound to what the process shows everybody.
inline void show_module(const std::string& path) {
    if (!dlopen(path.c_str(), RTLD_NOW | RTLD_GLOBAL)) throw std::runtime_error(dlerror());
}

inline std::string file_text(const std::string& path) {
    std::ifstream in(path);
    if (!in) throw std::runtime_error("cannot read " + path);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

// Built, or the compiler's own words thrown.
inline cl::Program build(const cl::Context& context, const std::string& source, const std::string& options) {
    cl::Program program(context, source);
    try {
        program.build(options.c_str());
    } catch (const cl::BuildError& e) {
        std::string words;
        for (const auto& [device, log] : e.getBuildLog()) words += log;
        throw std::runtime_error("a program does not build:\n" + words);
    }
    return program;
}

}  // namespace tarn
