// Every export through an OpenCL runtime: kernels that include ocl_tarn_k1.cl.h call it by OpenCL's name, or by the
// header's where OpenCL has none, and have to give the bits that a direct call of the module gives.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>

#include "common/opencl.hpp"
#include "exports/opencl.hpp"
#include "exports/text.hpp"
#include "samples.hpp"

using namespace tarn;
using namespace tarn::test;

namespace {

constexpr std::size_t group = 16, guard = 64;
constexpr unsigned char untouched = 0xA5;

int failures = 0;
void fail(const std::string& what) {
    if (failures++ < 20) std::printf("FAILED %s\n", what.c_str());
}

// The ways in which a kernel calls a function: a second result through a pointer to each kind of memory, and a scalar
// in the place of the second vector.
enum class Way { plain, to_global, to_local, with_scalar };
struct Call {
    Function function;
    Way way;
};

std::string type(Lane t, int width) { return stem(t) + (width == 1 ? "" : std::to_string(width)); }

std::string load(int width, const std::string& from) {
    return width == 1 ? from + "[i]" : "vload" + std::to_string(width) + "(i, " + from + ")";
}
std::string store(int width, const std::string& value, const std::string& to) {
    return width == 1 ? to + "[i] = " + value + ";"
                      : "vstore" + std::to_string(width) + "(" + value + ", i, " + to + ");";
}

// The same work for every call of one shape and width: they share a kernel, which is built once.
std::string kernel(const std::string& name, const Shape& s, int width, const std::vector<Call>& calls) {
    std::string text = "kernel void " + name + "(uint which";
    for (std::size_t a = 0; a < s.args.size(); a++)
        text += ", global const " + std::string(stem(s.args[a])) + "* a" + std::to_string(a);
    text += ", global " + std::string(stem(s.result)) + "* r";
    if (s.second != Lane::none) text += ", global " + std::string(stem(s.second)) + "* s";
    text += ") {\n  const size_t i = get_global_id(0);\n";
    for (std::size_t a = 0; a < s.args.size(); a++)
        text += "  const " + type(s.args[a], width) + " x" + std::to_string(a) + " = " +
                load(width, "a" + std::to_string(a)) + ";\n";
    if (s.second != Lane::none)
        text += "  local " + type(s.second, width) + " shared[" + std::to_string(group) + "];\n";
    text += "  switch (which) {\n";
    for (std::size_t c = 0; c < calls.size(); c++) {
        const Function& f = calls[c].function;
        const std::string own = builtin(f.family(), width, f.variant());
        std::string arguments;
        for (std::size_t a = 0; a < s.args.size(); a++)
            arguments += (a ? ", x" : "x") + std::to_string(a) + (a && calls[c].way == Way::with_scalar ? ".s0" : "");
        const std::string called = (own.empty() ? header_name(f.family(), width, f.variant()) : own) + '(' + arguments;
        text += "    case " + std::to_string(c) + ": { ";
        if (s.pair) {
            text += "const tarn_sincos_" + std::string(stem(s.result)) + std::to_string(width) + " both = " + called +
                    "); " + store(width, "both.sine", "r") + ' ' + store(width, "both.cosine", "s");
        } else if (s.second == Lane::none) {
            text += store(width, called + ")", "r");
        } else if (calls[c].way == Way::to_global) {
            text += store(width, called + ", (global " + type(s.second, width) + "*)s + i)", "r");
        } else if (calls[c].way == Way::to_local) {
            text += store(width, called + ", shared + get_local_id(0))", "r") + ' ' +
                    store(width, "shared[get_local_id(0)]", "s");
        } else {
            text += type(s.second, width) + " own; " + store(width, called + ", &own)", "r") + ' ' +
                    store(width, "own", "s");
        }
        text += " break; }\n";
    }
    return text + "  }\n}\n";
}

// Memory of the device with bytes around it that nothing may touch.
class Guarded {
public:
    Guarded(const cl::Context& context, std::size_t bytes)
        : size_(bytes + guard), buffer_(context, CL_MEM_READ_WRITE, size_) {}
    const cl::Buffer& buffer() const { return buffer_; }
    void clear(const cl::CommandQueue& queue) { queue.enqueueFillBuffer(buffer_, untouched, 0, size_); }
    std::vector<unsigned char> read(const cl::CommandQueue& queue) const {
        std::vector<unsigned char> bytes(size_);
        queue.enqueueReadBuffer(buffer_, CL_TRUE, 0, size_, bytes.data());
        return bytes;
    }

private:
    std::size_t size_;
    cl::Buffer buffer_;
};

// The lanes that a kernel left, those of width 3 a block of four apart where it wrote through a pointer to vectors.
Lanes lanes_of(Lane t, const std::vector<unsigned char>& bytes, std::size_t n, int width, bool stored_as_four) {
    Lanes lanes(t, n);
    const auto w = static_cast<std::size_t>(width), size = static_cast<std::size_t>(tarn::bytes(t));
    for (std::size_t i = 0; i < n; i++) {
        const std::size_t at = stored_as_four && width == 3 ? i / w * 4 + i % w : i;
        std::uint64_t pattern = 0;
        std::memcpy(&pattern, bytes.data() + at * size, size);
        lanes.set(i, pattern);
    }
    return lanes;
}

void compare(const std::string& name, const char* what, const std::vector<Lanes>& args, const Lanes& direct,
             const Lanes& kernel) {
    for (std::size_t i = 0; i < direct.size(); i++)
        if (direct.pattern(i) != kernel.pattern(i))
            return fail(name + ": the " + what + " of " + lanes_text(args, i) + " is " + hex(kernel.pattern(i)) +
                        ", not " + hex(direct.pattern(i)));
}

class Runner {
public:
    explicit Runner(const cl::Device& device) : context_(device), queue_(context_, device) {}
    const cl::Context& context() const { return context_; }

    void run(const cl::Program& program, const std::string& name, const std::vector<Call>& calls, std::size_t random) {
        cl::Kernel kernel(program, name.c_str());
        for (std::size_t c = 0; c < calls.size(); c++) {
            kernel.setArg(0, static_cast<cl_uint>(c));
            run(kernel, calls[c], random);
        }
    }

private:
    void run(cl::Kernel& kernel, const Call& call, std::size_t random) {
        const Function& f = call.function;
        const Shape& s = f.family().shape;
        const auto width = static_cast<std::size_t>(f.width());
        auto inputs = samples(f.family(), random);
        // Whole groups of whole calls, the last lane repeated.
        const std::size_t lanes = inputs[0].size(), work = (lanes + width * group - 1) / (width * group) * group,
                          n = work * width;
        std::vector<Lanes> args;
        for (std::size_t a = 0; a < inputs.size(); a++) {
            Lanes filled(inputs[a].type(), n);
            for (std::size_t i = 0; i < n; i++) {
                const std::size_t from = call.way == Way::with_scalar && a ? i / width * width : i;
                filled.set(i, inputs[a].pattern(std::min(from, lanes - 1)));
            }
            args.push_back(std::move(filled));
        }
        std::vector<cl::Buffer> sent;
        cl_uint at = 1;
        for (Lanes& arg : args) {
            sent.emplace_back(context_, CL_MEM_READ_ONLY | CL_MEM_COPY_HOST_PTR,
                              n * static_cast<std::size_t>(bytes(arg.type())), arg.data());
            kernel.setArg(at++, sent.back());
        }
        const bool apart = call.way == Way::to_global;
        const std::size_t result_bytes = n * static_cast<std::size_t>(bytes(s.result));
        const std::size_t second_bytes =
            (apart && width == 3 ? work * 4 : n) * static_cast<std::size_t>(bytes(s.second));
        Guarded result(context_, result_bytes), second(context_, second_bytes);
        result.clear(queue_), second.clear(queue_);
        kernel.setArg(at++, result.buffer());
        if (s.second != Lane::none) kernel.setArg(at++, second.buffer());
        queue_.enqueueNDRangeKernel(kernel, cl::NullRange, cl::NDRange(work), cl::NDRange(group));

        Lanes direct, direct_second;
        f(args, direct, s.second == Lane::none ? nullptr : &direct_second);
        const auto got = result.read(queue_);
        compare(f.name(), "result", args, direct, lanes_of(s.result, got, n, f.width(), false));
        unharmed(f.name(), got, result_bytes);
        const auto got_second = second.read(queue_);
        if (s.second != Lane::none)
            compare(f.name(), "second result", args, direct_second,
                    lanes_of(s.second, got_second, n, f.width(), apart));
        unharmed(f.name(), got_second, second_bytes);
    }

    static void unharmed(const std::string& name, const std::vector<unsigned char>& bytes, std::size_t from) {
        if (std::any_of(bytes.begin() + static_cast<std::ptrdiff_t>(from), bytes.end(),
                        [](unsigned char b) { return b != untouched; }))
            fail(name + " writes beyond its lanes");
    }

    cl::Context context_;
    cl::CommandQueue queue_;
};

// Everything of one width and precision in one program.
void every_export(Runner& runner, const std::string& header, int width, Lane t) {
    std::map<std::string, std::vector<Call>> by_shape;
    for (const Member& m : members()) {
        const Family& f = *m.family;
        if (precision(f) != t) continue;
        std::string shape = "shape_" + std::string(stem(f.shape.result)) + (f.shape.pair ? "_pair" : "");
        for (const Lane a : f.shape.args) shape += '_' + std::string(stem(a));
        if (f.shape.second != Lane::none) shape += "_to_" + std::string(stem(f.shape.second));
        const Function function = m.at(width);
        auto& calls = by_shape[shape];
        calls.push_back({function, Way::plain});
        if (f.shape.second != Lane::none && !f.shape.pair)
            calls.push_back({function, Way::to_global}), calls.push_back({function, Way::to_local});
        const std::string name = builtin(f, width, m.variant);
        if (width > 1 && (name == "fmin" || name == "fmax" || name == "ldexp"))
            calls.push_back({function, Way::with_scalar});
    }
    std::string source = header;
    for (const auto& [shape, calls] : by_shape) source += kernel(shape, calls[0].function.family().shape, width, calls);
    const cl::Program program = build(runner.context(), source, "");
    for (const auto& [shape, calls] : by_shape) runner.run(program, shape, calls, 2000);
}

// What the header leaves to the runtime, and what TARN_ONLY and TARN_PREFIXED_ONLY leave out.
void choices(const cl::Device& device, const cl::Context& context, const std::string& header) {
    const auto builds = [&](const std::string& text, const std::string& options) {
        try {
            build(context, header + text, options);
            return std::string();
        } catch (const std::runtime_error& e) {
            return std::string(e.what());
        }
    };
    const auto expect = [&](bool wanted, const std::string& text, const std::string& options) {
        const std::string words = builds(text, options);
        if (words.empty() != wanted)
            fail((wanted ? "does not build: " : "builds: ") + text + " with " + options + ' ' + words);
    };
    const std::string ours = "kernel void k(global float4* x) { *x = tarn_sin(*x); }",
                      theirs = "kernel void k(global float4* x) { *x = tarn_cos(*x); }";
    expect(true, ours, "-D TARN_ONLY -D TARN_USE_sin");
    expect(false, theirs, "-D TARN_ONLY -D TARN_USE_sin");
    expect(true, "kernel void k(global float4* x) { *x = sin(cos(*x)); }", "-D TARN_ONLY -D TARN_USE_sin");
    const auto is = [&](bool wanted, const std::string& spelled, const std::string& name, const std::string& options) {
        // A name is what it expands to: the length of that tells.
        const std::string text =
            "#define S(x) S_(x)\n#define S_(x) #x\nkernel void k(global int* r) { char a[sizeof(S(" + name +
            ")) == sizeof(\"" + spelled + "\") ? 1 : -1]; *r = sizeof a; }";
        expect(wanted, text, options);
    };
    is(true, "tarn_sin", "sin", "");
    is(true, "tarn_sin", "sin", "-D TARN_ONLY -D TARN_USE_sin");
    is(false, "tarn_cos", "cos", "-D TARN_ONLY -D TARN_USE_sin");
    is(false, "tarn_sin", "sin", "-D TARN_PREFIXED_ONLY");
    expect(true, "kernel void k(global float4* x) { *x = tarn_sin(*x) - sin(*x); }", "-D TARN_PREFIXED_ONLY");

    // Sources of a conversion that the module has none for.
    const cl::Program kept =
        build(context,
              header +
                  "kernel void k(global int4* r) { r[0] = convert_int4_sat_rte((short4)(1, -2, 3, -4));"
                  " r[1] = convert_int4_sat_rtz((long4)(5000000000, -6, 7, -5000000000));"
                  " r[2] = convert_int4_rtz(convert_float4_rtp((uchar4)(1, 2, 3, 255))); }",
              "");
    cl::CommandQueue queue(context, device);
    const cl::Buffer results(context, CL_MEM_READ_WRITE, 48);
    cl::Kernel k(kept, "k");
    k.setArg(0, results);
    queue.enqueueNDRangeKernel(k, cl::NullRange, cl::NDRange(1), cl::NDRange(1));
    int got[12];
    queue.enqueueReadBuffer(results, CL_TRUE, 0, sizeof got, got);
    const int expected[] = {1, -2, 3, -4, 2147483647, -6, 7, -2147483647 - 1, 1, 2, 3, 255};
    if (!std::equal(got, got + 12, expected)) fail("a conversion that the runtime keeps has other results");

    // Pointers to any memory, where the language has them.
    expect(true, "kernel void k(global float4* x) { float4 c; float4* p = &c; x[0] = sincos(x[0], p); x[1] = c; }",
           device.getInfo<CL_DEVICE_VERSION>() >= "OpenCL 3" ? "-cl-std=CL3.0" : "-cl-std=CL1.2");
}

}  // namespace

int main() try {
    const KernelCache cache;
    const auto device = processor();
    if (!device) return std::puts("skipped: no OpenCL runtime with a processor is installed"), 77;
    std::printf("%s, %s\n", device->getInfo<CL_DEVICE_NAME>().c_str(), device->getInfo<CL_DEVICE_VERSION>().c_str());
    const bool doubles = device->getInfo<CL_DEVICE_EXTENSIONS>().find("cl_khr_fp64") != std::string::npos;

    show_module(Module::built_path());
    Runner runner(*device);
    const std::string header = file_text(std::string(TARN_SOURCE_DIR) + "/include/ocl_tarn_k1.cl.h");
    choices(*device, runner.context(), header);
    for (const int width : widths)
        for (const Lane t : {Lane::f32, Lane::f64})
            if (t == Lane::f32 || doubles) every_export(runner, header, width, t);
    if (failures) return std::printf("%d failures\n", failures), 1;
    std::puts("every export gives a kernel what it gives a direct call");
    return 0;
} catch (const std::exception& e) {
    return std::fprintf(stderr, "%s\n", e.what()), 1;
}
