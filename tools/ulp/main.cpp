// tarn-ulp NAME: the worst error of an export over all its inputs, an interval, or random samples.
//
// The inputs are cut into blocks. Every block's worst error is appended to the log as it is found, so
// that a sweep that was stopped goes on where it was, and the plot is drawn from the log.
#include <atomic>
#include <bit>
#include <chrono>
#include <cmath>
#include <fstream>
#include <map>
#include <mutex>
#include <random>
#include <sstream>
#include <thread>

#include "common/cli.hpp"
#include "common/truth.hpp"

namespace {

using namespace tarn;

constexpr std::uint64_t per_block = 1 << 20;

// Patterns in the order of the numbers they stand for: -NaN, -inf, ..., -0, +0, ..., +inf, NaN.
std::uint64_t ordered(Lane type, std::uint64_t i) {
    const std::uint64_t sign = type == Lane::f32 ? 0x80000000 : 0x8000000000000000;
    return i & sign ? i ^ sign : (type == Lane::f32 ? 0xffffffff : ~0ull) ^ i;
}
std::uint64_t order_of(Lane type, std::uint64_t pattern) {
    const std::uint64_t sign = type == Lane::f32 ? 0x80000000 : 0x8000000000000000;
    return pattern & sign ? (type == Lane::f32 ? 0xffffffff : ~0ull) ^ pattern : pattern ^ sign;
}

struct Block {
    double worst = 0;
    std::vector<std::uint64_t> at;
};

struct Sweep {
    Function function;
    bool second, exhaustive;
    std::vector<std::uint64_t> low, high;  // order numbers, one pair an argument
    std::uint64_t inputs;

    std::uint64_t blocks() const { return (inputs + per_block - 1) / per_block; }

    std::vector<Lanes> inputs_of(std::uint64_t block) const {
        const Shape& shape = function.family().shape;
        const std::uint64_t first = block * per_block, count = std::min(per_block, inputs - first);
        std::vector<Lanes> args;
        std::mt19937_64 random(block * 0x9E3779B97F4A7C15 + 1);
        for (std::size_t a = 0; a < shape.args.size(); a++) {
            const Lane type = shape.args[a];
            args.emplace_back(type, count);
            const std::uint64_t span = high[a] - low[a] + 1;
            for (std::uint64_t i = 0; i < count; i++) {
                if (exhaustive) {
                    args[a].set(i, ordered(type, low[a] + first + i));
                } else if (!is_float(type)) {
                    args[a].set(i, low[a] + random() % span);
                } else if (i % 2) {
                    // Half the samples are even in value, half in pattern.
                    const double from = value_of(type, ordered(type, low[a])), to = value_of(type, ordered(type, high[a]));
                    const double u = static_cast<double>(random() >> 11) * 0x1p-53;
                    args[a].set(i, pattern_of(type, from * (1 - u) + to * u));
                } else {
                    args[a].set(i, ordered(type, span ? low[a] + random() % span : random()));
                }
            }
        }
        return args;
    }

    Block run(std::uint64_t block) const {
        const Shape& shape = function.family().shape;
        const Truth& truth = *truth_of(function.family());
        const auto args = inputs_of(block);
        Lanes first_result, second_result;
        function(args, first_result, &second_result);
        const Lanes& result = second ? second_result : first_result;
        const Lane type = second ? shape.second : shape.result;
        const auto exactly = second ? truth.second : truth.first;
        const bool quick = !second && type == Lane::f32 && (truth.quick || truth.quick2);

        Block b;
        std::vector<Real> x(args.size());
        Real t;
        for (std::size_t i = 0; i < result.size(); i++) {
            if (quick) {
                // The C library's double results are exact enough to pass over what cannot be the worst.
                const double x0 = value_of(Lane::f32, args[0].pattern(i));
                const double near = truth.quick ? truth.quick(x0) : truth.quick2(x0, value_of(shape.args[1], args[1].pattern(i)));
                const float got = std::bit_cast<float>(static_cast<std::uint32_t>(result.pattern(i)));
                if (std::isnan(got) && std::isnan(near)) continue;
                if (got == near || (std::isinf(got) && std::fabs(near) >= 0x1p128 && got * near > 0)) continue;
                if (quick_error(got, near) <= b.worst + 1e-6) continue;
            }
            for (std::size_t a = 0; a < args.size(); a++) x[a] = exact(shape.args[a], args[a].pattern(i));
            exactly(t.value, x.data());
            const double error = ulp_error(type, result.pattern(i), t);
            if (error > b.worst) {
                b.worst = error;
                b.at.clear();
                for (const Lanes& arg : args) b.at.push_back(arg.pattern(i));
            }
        }
        return b;
    }
};

std::string text_of(const Block& b) {
    char text[96];
    std::snprintf(text, sizeof text, "%.6g", b.worst);
    std::string line = text;
    for (const auto p : b.at) std::snprintf(text, sizeof text, " 0x%llx", static_cast<unsigned long long>(p)), line += text;
    return line;
}

// The log: a first line that says what was swept, then "block worst inputs...".
class Log {
public:
    Log(const std::string& path, const std::string& title) : path_(path) {
        if (path_.empty()) return;
        std::ifstream in(path_);
        std::string line;
        if (std::getline(in, line)) {
            if (line != title) throw cli::Refused(path_ + " is the log of another sweep: " + line);
            while (std::getline(in, line)) {
                std::istringstream fields(line);
                std::uint64_t block;
                Block b;
                // A line cut short by a crash has no end mark and is computed again.
                if (!(fields >> block >> b.worst) || !line.ends_with(" .")) continue;
                for (std::string p; fields >> p && p != ".";) b.at.push_back(std::stoull(p, nullptr, 16));
                done[block] = b;
            }
            out_.open(path_, std::ios::app);
            out_ << '\n';
        } else {
            out_.open(path_);
            out_ << title << '\n';
        }
        if (!out_) throw cli::Refused("cannot write " + path_);
    }
    void add(std::uint64_t block, const Block& b) {
        done[block] = b;
        if (out_.is_open()) out_ << block << ' ' << text_of(b) << " .\n" << std::flush;
    }
    std::map<std::uint64_t, Block> done;

private:
    std::string path_;
    std::ofstream out_;
};

void plot(const std::string& path, const Sweep& sweep, const Log& log) {
    const Lane type = sweep.function.family().shape.args[0];
    FILE* gnuplot = popen("gnuplot", "w");
    if (!gnuplot) throw cli::Refused("gnuplot cannot be started");
    const bool svg = path.ends_with(".svg");
    std::fprintf(gnuplot,
                 "set terminal %s size 1200,500 %s\nset output '%s'\nset title '%s' noenhanced\n"
                 "set xlabel 'x'\nset ylabel 'worst error in ulp'\nset grid\nset key off\nset xtics rotate by -30\n",
                 svg ? "svg" : "pngcairo", svg ? "background 'white'" : "", path.c_str(),
                 sweep.function.name().c_str());
    // All inputs are drawn in the order of their patterns, marked by value.
    if (sweep.exhaustive) {
        std::fputs("set xtics (", gnuplot);
        for (int k = 0; k <= 12; k++) {
            const std::uint64_t order = sweep.low[0] + (sweep.high[0] - sweep.low[0]) / 12 * static_cast<unsigned>(k);
            std::fprintf(gnuplot, "%s'%.3g' %llu", k ? ", " : "", value_of(type, ordered(type, order)),
                         static_cast<unsigned long long>(order));
        }
        std::fputs(")\n", gnuplot);
    }
    std::fputs("plot '-' with points pointtype 7 pointsize 0.4\n", gnuplot);
    for (const auto& [block, b] : log.done) {
        if (b.at.empty() || !std::isfinite(b.worst)) continue;
        if (sweep.exhaustive)
            std::fprintf(gnuplot, "%llu %g\n", static_cast<unsigned long long>(order_of(type, b.at[0])), b.worst);
        else
            std::fprintf(gnuplot, "%g %g\n", value_of(type, b.at[0]), b.worst);
    }
    std::fputs("e\n", gnuplot);
    if (pclose(gnuplot) != 0) throw cli::Refused("gnuplot could not draw " + path);
}

void progress(std::uint64_t done, std::uint64_t all, double worst) {
    std::string bar(40, '.');
    for (std::size_t i = 0; i < done * bar.size() / all; i++) bar[i] = '#';
    std::fprintf(stderr, "\r[%s] %3llu%%  worst %.4g ulp ", bar.c_str(), static_cast<unsigned long long>(done * 100 / all), worst);
}

}  // namespace

int main(int argc, char** argv) {
    CLI::App app{"Measures the worst error of an export.", "tarn-ulp"};
    std::string name, log_path, plot_path, module_path = Module::built_path();
    std::vector<std::string> from, to;
    bool all = false, second = false, quiet = false;
    std::uint64_t samples = 1 << 22;
    unsigned threads = std::max(1u, std::thread::hardware_concurrency());
    app.add_option("NAME", name, "an export, such as expf16 or sinf8_native")->required();
    app.add_flag("--all", all, "every input between the ends, one argument in single precision");
    app.add_option("--from", from, "lower end, one for each argument (else -inf)");
    app.add_option("--to", to, "upper end, one for each argument (else inf)");
    app.add_option("--samples", samples, "random inputs, when not all")->check(CLI::PositiveNumber);
    app.add_option("--threads", threads, "at most this many at work")->check(CLI::Range(1, 256));
    app.add_option("--log", log_path, "keep the results of blocks here, and go on from them");
    app.add_option("--plot", plot_path, "draw the error over the input as .svg or .png");
    app.add_flag("--second", second, "the second result");
    app.add_flag("--quiet", quiet, "no progress bar");
    app.add_option("--module", module_path, "another module file");

    return cli::run(app, argc, argv, [&] {
        const Module module(module_path);
        Sweep sweep{cli::find_function(module, name), second, all, {}, {}, samples};
        const Shape& shape = sweep.function.family().shape;
        const Truth* truth = truth_of(sweep.function.family());
        if (!truth || (second && !truth->second)) throw cli::Refused(name + " has no error to measure: it is exact");
        if (all && (shape.args.size() != 1 || shape.args[0] != Lane::f32))
            throw cli::Refused("all inputs can be swept for one argument in single precision only");
        if (!plot_path.empty() && !plot_path.ends_with(".svg") && !plot_path.ends_with(".png"))
            throw cli::Refused("a plot is a .svg or .png file");
        for (std::size_t a = 0; a < shape.args.size(); a++) {
            const Lane type = shape.args[a];
            const auto end = [&](const std::vector<std::string>& given, const char* otherwise) {
                const std::string& text = given.size() > a ? given[a] : otherwise;
                const std::uint64_t p = cli::parse_lane(type, text);
                return is_float(type) ? order_of(type, p) : p;
            };
            sweep.low.push_back(is_float(type) ? end(from, all ? "0xffffffff" : "-inf") : end(from, "0"));
            sweep.high.push_back(is_float(type) ? end(to, all ? "0x7fffffff" : "inf") : end(to, "1000"));
            if (sweep.low[a] > sweep.high[a]) throw cli::Refused("the interval is empty");
        }
        if (all) sweep.inputs = sweep.high[0] - sweep.low[0] + 1;

        std::ostringstream title;
        title << sweep.function.name() << (second ? " second" : "") << (all ? " all" : " samples") << ' ' << sweep.inputs;
        for (std::size_t a = 0; a < sweep.low.size(); a++) title << ' ' << sweep.low[a] << ".." << sweep.high[a];
        Log log(log_path, title.str());

        std::mutex mutex;
        std::atomic<std::uint64_t> next = 0;
        double worst = 0;
        for (const auto& [block, b] : log.done) worst = std::max(worst, b.worst);
        std::vector<std::jthread> workers;
        for (unsigned t = 0; t < threads; t++)
            workers.emplace_back([&] {
                for (std::uint64_t block; (block = next++) < sweep.blocks();) {
                    {
                        const std::lock_guard lock(mutex);
                        if (log.done.count(block)) continue;
                    }
                    const Block b = sweep.run(block);
                    const std::lock_guard lock(mutex);
                    log.add(block, b);
                    worst = std::max(worst, b.worst);
                    if (!quiet) progress(log.done.size(), sweep.blocks(), worst);
                }
            });
        workers.clear();
        if (!quiet) std::fputs("\n", stderr);

        Block top;
        for (const auto& [block, b] : log.done)
            if (b.worst > top.worst) top = b;
        std::printf("%s  %llu inputs  worst %.4f ulp", sweep.function.name().c_str(),
                    static_cast<unsigned long long>(sweep.inputs), top.worst);
        for (std::size_t a = 0; a < top.at.size(); a++)
            std::printf("%s 0x%0*llx (%.9g)", a ? "," : " at", bytes(shape.args[a]) * 2,
                        static_cast<unsigned long long>(top.at[a]), value_of(shape.args[a], top.at[a]));
        std::puts("");
        if (!plot_path.empty()) plot(plot_path, sweep, log);
        return 0;
    });
}
