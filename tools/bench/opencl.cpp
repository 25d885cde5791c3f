// tarn-bench-opencl BUILTIN...: nanoseconds an element of OpenCL's built-in functions in a kernel over a million of
// them, the module's beside the runtime's own, on one thread.
#include "common/opencl.hpp"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <map>
#include <random>
#include <unistd.h>

#include "common/cli.hpp"
#include "exports/opencl.hpp"
#include "exports/text.hpp"

namespace {

using namespace tarn;

constexpr std::size_t elements = 1 << 20, group = 64;
constexpr int timed_widths[] = {4, 8, 16};

struct Row {
    const Family* family;
    Variant variant;
    std::string name() const {
        if (family->group == "Conversions") return builtin(*family, 1, variant) + ", from " + stem(family->shape.args[0]);
        return builtin(*family, 1, variant) + (precision(*family) == Lane::f64 ? ", double" : "");
    }
    // What a kernel of it is called: a form of a family is one row.
    std::string kernel(const char* side, int width) const {
        return std::string(side) + '_' + family->base + suffix(variant) + '_' + std::to_string(width);
    }
};

std::string vector(Lane t, int width) { return stem(t) + std::to_string(width); }

std::string kernel(const Row& row, const char* side, const std::string& function, int width) {
    const Shape& s = row.family->shape;
    std::string parameters, arguments;
    for (std::size_t a = 0; a < s.args.size(); a++) {
        const std::string x = "x" + std::to_string(a);
        parameters += "global const " + vector(s.args[a], width) + "* " + x + ", ";
        arguments += (a ? ", " : "") + x + "[i]";
    }
    const bool second = s.second != Lane::none;
    if (second) parameters += "global " + vector(s.second, width) + "* s, ", arguments += ", s + i";
    return "kernel void " + row.kernel(side, width) + '(' + parameters + "global " + vector(s.result, width) +
           "* r) { const size_t i = get_global_id(0); r[i] = " + function + '(' + arguments + "); }\n";
}

class Times {
public:
    Times(const cl::Device& device, const std::string& header)
        : context_(device), queue_(context_, device), header_(header) {}

    // Least times of the module's function and the runtime's, in nanoseconds an element: rounds of both take turns.
    std::map<std::pair<std::string, int>, std::array<double, 2>> operator()(const std::vector<Row>& rows, int rounds) {
        std::string source = header_;
        for (const Row& row : rows)
            for (const int width : timed_widths) {
                source += kernel(row, "module", header_name(*row.family, width, row.variant), width);
                source += kernel(row, "runtime", builtin(*row.family, width, row.variant), width);
            }
        const cl::Program program = build(context_, source, "-D TARN_PREFIXED_ONLY");
        std::map<std::pair<std::string, int>, std::array<double, 2>> least;
        std::size_t done = 0;
        for (const Row& row : rows) {
            const auto buffers = inputs(*row.family);
            for (const int width : timed_widths) {
                cl::Kernel sides[] = {{program, row.kernel("module", width).c_str()},
                                      {program, row.kernel("runtime", width).c_str()}};
                auto& best = least[{row.name(), width}];
                best.fill(std::numeric_limits<double>::infinity());
                for (cl::Kernel& side : sides)
                    for (std::size_t b = 0; b < buffers.size(); b++) side.setArg(static_cast<cl_uint>(b), buffers[b]);
                // The first round is for building the kernels.
                for (int round = 0; round <= rounds; round++)
                    for (std::size_t side = 0; side < 2; side++) {
                        const double ns = once(sides[side], width);
                        if (round) best[side] = std::min(best[side], ns);
                    }
            }
            if (isatty(STDERR_FILENO)) std::fprintf(stderr, "\r%3zu of %zu", ++done, rows.size());
        }
        if (isatty(STDERR_FILENO)) std::fprintf(stderr, "\r%20s\r", "");
        return least;
    }

private:
    double once(const cl::Kernel& kernel, int width) {
        const auto start = std::chrono::steady_clock::now();
        queue_.enqueueNDRangeKernel(kernel, cl::NullRange, cl::NDRange(elements / static_cast<std::size_t>(width)),
                                    cl::NDRange(group));
        queue_.finish();
        return std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - start).count() / elements;
    }

    // Arguments from where everyone is on the fast path, then places for the results.
    std::vector<cl::Buffer> inputs(const Family& f) {
        std::vector<cl::Buffer> buffers;
        std::mt19937_64 random(1);
        for (std::size_t a = 0; a < f.shape.args.size(); a++) {
            const Lane type = f.shape.args[a];
            Lanes lanes(type, elements);
            const Interval usual = a < f.usual.size() ? f.usual[a]
                                   : is_float(type)   ? Interval{0.1, 10}
                                                      : Interval{1, 10};
            for (std::size_t i = 0; i < elements; i++) {
                const double u = static_cast<double>(random() >> 11) * 0x1p-53,
                             v = usual.low * (1 - u) + usual.high * u;
                lanes.set(i, pattern_of(type, is_float(type) ? v : std::floor(v)));
            }
            buffers.emplace_back(context_, CL_MEM_READ_ONLY | CL_MEM_COPY_HOST_PTR, size(type), lanes.data());
        }
        for (const Lane t : {f.shape.second, f.shape.result})
            if (t != Lane::none) buffers.emplace_back(context_, CL_MEM_WRITE_ONLY, size(t));
        return buffers;
    }
    static std::size_t size(Lane t) { return elements * static_cast<std::size_t>(bytes(t)); }

    cl::Context context_;
    cl::CommandQueue queue_;
    const std::string& header_;
};

std::vector<Row> rows_of(const std::vector<std::string>& names) {
    std::vector<Row> rows;
    for (const Family& f : families())
        for (const Variant v : all_variants) {
            if (!f.has(v) || builtin(f, 1, v).empty() || f.shape.pair) continue;
            if (names.empty() || std::find(names.begin(), names.end(), builtin(f, 1, v)) != names.end())
                rows.push_back({&f, v});
        }
    for (const auto& name : names)
        if (std::none_of(rows.begin(), rows.end(),
                         [&](const Row& row) { return builtin(*row.family, 1, row.variant) == name; }))
            throw cli::Refused("no built-in function that the module serves is called '" + name + "'");
    return rows;
}

}  // namespace

int main(int argc, char** argv) {
    CLI::App app{"Times OpenCL's built-in functions in kernels, the module's beside the runtime's own.",
                 "tarn-bench-opencl"};
    std::vector<std::string> names;
    int rounds = 9;
    bool markdown = false;
    std::string header = TARN_OPENCL_HEADER, module_path = Module::built_path();
    app.add_option("BUILTIN", names, "such as sin, native_exp or convert_int_sat_rtz (all, if none is named)");
    app.add_option("--rounds", rounds, "rounds of each, of which the least counts")->check(CLI::Range(1, 10000));
    app.add_flag("--markdown", markdown, "the times as a page shows them");
    app.add_option("--header", header, "another ocl_tarn_k1.cl.h");
    app.add_option("--module", module_path, "another module file (in the environment: TARN_MODULE)");

    return cli::run(app, argc, argv, [&] {
        const std::vector<Row> rows = rows_of(names);
        const KernelCache cache;
        // One thread, whose times are those of other pages.
        setenv("POCL_MAX_PTHREAD_COUNT", "1", 1);
        const auto device = processor();
        if (!device) throw cli::Refused("no OpenCL runtime with a processor is installed");
        show_module(module_path);
        const std::string text = file_text(header);
        const auto least = Times(*device, text)(rows, rounds);

        if (markdown) {
            std::printf("`tarn-bench-opencl --rounds %d` on %s, %s.\n\n", rounds,
                        device->getInfo<CL_DEVICE_NAME>().c_str(), device->getInfo<CL_DEVICE_VERSION>().c_str());
            std::puts(
                "| built-in | module, width 4 | runtime | module, width 8 | runtime | module, width 16 | runtime | ahead |\n"
                "|---|---|---|---|---|---|---|---|");
        } else {
            std::printf("%-36s%10s%10s%10s%10s%10s%10s%8s\n", "ns an element", "4: module", "runtime", "8: module",
                        "runtime", "16: module", "runtime", "ahead");
        }
        double logs = 0;
        for (const Row& row : rows) {
            // The best width of each.
            double best[2] = {INFINITY, INFINITY};
            std::printf(markdown ? "| `%s` |" : "%-36s", row.name().c_str());
            for (const int width : timed_widths)
                for (std::size_t side = 0; side < 2; side++) {
                    const double ns = least.at({row.name(), width})[side];
                    best[side] = std::min(best[side], ns);
                    std::printf(markdown ? " %.3f |" : "%10.3f", ns);
                }
            std::printf(markdown ? " %.2f |\n" : "%8.2f\n", best[1] / best[0]);
            logs += std::log(best[1] / best[0]);
        }
        std::printf("\nAhead: the runtime's least time over the module's; the geometric mean is %.2f.\n",
                    std::exp(logs / static_cast<double>(rows.size())));
        return 0;
    });
}
