// tarn-eval NAME LANES...: one call of an export, lane by lane.
#include <cmath>
#include <cstdio>

#include "common/cli.hpp"
#include "common/truth.hpp"

namespace {

using namespace tarn;

std::string shown(Lane type, std::uint64_t pattern) {
    char text[64];
    if (type == Lane::f32) std::snprintf(text, sizeof text, "%.9g", value_of(type, pattern));
    else if (type == Lane::f64) std::snprintf(text, sizeof text, "%.17g", value_of(type, pattern));
    else if (type == Lane::u64) std::snprintf(text, sizeof text, "%llu", static_cast<unsigned long long>(pattern));
    else std::snprintf(text, sizeof text, "%lld", static_cast<long long>(
             type == Lane::i64 ? static_cast<std::int64_t>(pattern)
             : type == Lane::i32 ? static_cast<std::int32_t>(pattern) : static_cast<std::int64_t>(pattern)));
    return text;
}

std::string shown_exact(const Real& truth) {
    char text[64];
    mpfr_snprintf(text, sizeof text, "%.20Rg", truth.value);
    return text;
}

void print_lane(int lane, const std::string& arguments, Lane type, std::uint64_t pattern, Truth::Of of, const Real* x) {
    std::printf("%4d  %-28s %-24s 0x%0*llx", lane, arguments.c_str(), shown(type, pattern).c_str(), bytes(type) * 2,
                static_cast<unsigned long long>(pattern));
    if (of) {
        Real truth;
        of(truth.value, x);
        std::printf("  %-28s %.4g", shown_exact(truth).c_str(), ulp_error(type, pattern, truth));
    }
    std::puts("");
}

}  // namespace

int main(int argc, char** argv) {
    CLI::App app{"Calls one export of the module and prints each lane: value, bits, exact value, error in ulp.", "tarn-eval"};
    std::string name, module_path = Module::built_path();
    std::vector<std::string> lanes;
    app.add_option("NAME", name, "an export, such as expf4 or sinf8_native")->required();
    app.add_option("LANES", lanes, "the lanes of the first argument, then of the next: numbers, nan, inf or bit patterns");
    app.add_option("--module", module_path, "another module file");

    return cli::run(app, argc, argv, [&] {
        const Module module(module_path);
        const Function f = cli::find_function(module, name);
        const Shape& shape = f.family().shape;
        const std::size_t width = static_cast<std::size_t>(f.width()), wanted = width * shape.args.size();
        if (lanes.size() != wanted)
            throw cli::Refused(name + " takes " + std::to_string(wanted) + " lanes, not " + std::to_string(lanes.size()));

        std::vector<Lanes> args;
        for (std::size_t a = 0; a < shape.args.size(); a++) {
            args.emplace_back(shape.args[a], width);
            for (std::size_t i = 0; i < width; i++)
                args[a].set(i, cli::parse_lane(shape.args[a], lanes[a * width + i]));
        }
        Lanes result, second;
        f(args, result, &second);

        const Truth* truth = truth_of(f.family());
        std::printf("%s: %s\n%4s  %-28s %-24s %-*s  %-28s %s\n", f.name().c_str(), f.family().formula.c_str(), "lane",
                    "argument", "result", bytes(shape.result) * 2 + 2, "bits", truth ? "exact" : "", truth ? "ulp" : "");
        for (std::size_t i = 0; i < width; i++) {
            std::string arguments;
            std::vector<Real> x;
            for (std::size_t a = 0; a < args.size(); a++) {
                arguments += (a ? ", " : "") + shown(shape.args[a], args[a].pattern(i));
                x.push_back(exact(shape.args[a], args[a].pattern(i)));
            }
            print_lane(static_cast<int>(i), arguments, shape.result, result.pattern(i), truth ? truth->first : nullptr, x.data());
            if (shape.second != Lane::none)
                print_lane(static_cast<int>(i), "  second", shape.second, second.pattern(i),
                           truth ? truth->second : nullptr, x.data());
        }
        return 0;
    });
}
