// tarn-ulp NAME: the worst error of an export over all its inputs, an interval, random samples, or as far as a
// directed search finds it; of a family's kernels in bins of the first argument.
#include <signal.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <filesystem>
#include <thread>

#include "ulp/plot.hpp"
#include "ulp/profile.hpp"
#include "ulp/search.hpp"
#include "ulp/sweep.hpp"

namespace {

using namespace tarn;
using namespace tarn::ulp;

std::atomic<bool> interrupted = false;

// The first Ctrl-C ends the measurement, a second one the program.
void stop_at_interrupt() {
    struct sigaction action = {};
    action.sa_handler = [](int) { interrupted = true; };
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    sigaction(SIGINT, &action, nullptr);
}

// A bar on a terminal, elsewhere a line for every tenth.
class Progress {
public:
    explicit Progress(bool quiet) : quiet_(quiet), terminal_(isatty(STDERR_FILENO)) {}
    ~Progress() {
        if (drawn_ && terminal_) std::fputs("\n", stderr);
    }
    void show(double share, double worst = -1) {
        const int percent = static_cast<int>(std::min(share, 1.0) * 100);
        if (quiet_ || percent < shown_ + (terminal_ ? 1 : 10)) return;
        shown_ = terminal_ ? percent : percent / 10 * 10, drawn_ = true;
        if (!terminal_) {
            if (worst < 0) std::fprintf(stderr, "%d %%\n", shown_);
            else std::fprintf(stderr, "%d %%, worst %.4g ulp\n", shown_, worst);
            return;
        }
        std::string bar(40, '.');
        std::fill_n(bar.begin(), static_cast<std::size_t>(percent) * bar.size() / 100, '#');
        std::fprintf(stderr, "\r[%s] %3d%% ", bar.c_str(), percent);
        if (worst >= 0) std::fprintf(stderr, " worst %.4g ulp ", worst);
    }

private:
    bool quiet_, terminal_, drawn_ = false;
    int shown_ = 0;
};

// What a measurement found in one result.
struct Finding {
    const Target& target;
    std::string how;
    std::uint64_t inputs;
    Found worst, wrong;
};

std::string number(double v, const char* format = "%.6g") {
    char text[40];
    std::snprintf(text, sizeof text, format, v);
    return text;
}
std::string pattern_text(Lane type, std::uint64_t pattern) {
    char text[40];
    std::snprintf(text, sizeof text, "0x%0*llx", bytes(type) * 2, static_cast<unsigned long long>(pattern));
    return text;
}
std::string value_text(Lane type, std::uint64_t pattern) { return number(value_of(type, pattern), type == Lane::f64 ? "%.17g" : "%.9g"); }

// A point's lanes, each by `text`, with `between` them.
template <class Text> std::string joined(const Finding& f, const Found& found, const char* between, Text text) {
    std::string line;
    for (std::size_t a = 0; a < found.at.size(); a++) line += (a ? between : "") + text(f.target.shape().args[a], found.at[a]);
    return line;
}

void print_text(const Finding& f) {
    const auto both = [](Lane type, std::uint64_t p) { return pattern_text(type, p) + " (" + value_text(type, p) + ')'; };
    const bool search = f.how == "search";
    std::printf("%s%s  %llu %s  %s %.4f ulp", f.target.function.name().c_str(), f.target.second ? ", second result" : "",
                static_cast<unsigned long long>(f.inputs), search ? "evaluations" : "inputs", search ? "largest found" : "worst", f.worst.ulp);
    if (!f.worst.at.empty()) std::printf(" at %s", joined(f, f.worst, ", ", both).c_str());
    std::puts("");
    if (!f.wrong.at.empty())
        std::printf("  and no error in ulp at %s: a NaN, an infinity or a zero on one side only\n", joined(f, f.wrong, ", ", both).c_str());
}

void print_csv(const std::vector<Finding>& findings) {
    std::puts("export,result,how,inputs,ulp,at,value,wrong");
    for (const Finding& f : findings)
        std::printf("%s,%d,%s,%llu,%s,%s,%s,%s\n", f.target.function.name().c_str(), f.target.second ? 2 : 1, f.how.c_str(),
                    static_cast<unsigned long long>(f.inputs), number(f.worst.ulp, "%.9g").c_str(), joined(f, f.worst, " ", pattern_text).c_str(),
                    joined(f, f.worst, " ", value_text).c_str(), joined(f, f.wrong, " ", pattern_text).c_str());
}

void print_json(const std::vector<Finding>& findings) {
    const auto list = [](const std::string& items) { return items.empty() ? "[]" : "[\"" + items + "\"]"; };
    std::string text;
    for (const Finding& f : findings) {
        // JSON has no infinity.
        const std::string ulp = std::isfinite(f.worst.ulp) ? number(f.worst.ulp, "%.9g") : "null";
        text += text.empty() ? "[" : ",\n ";
        text += "{\"export\": \"" + f.target.function.name() + "\", \"result\": " + (f.target.second ? "2" : "1") + ", \"how\": \"" + f.how +
                "\", \"inputs\": " + std::to_string(f.inputs) + ", \"ulp\": " + ulp +
                ", \"at\": " + list(joined(f, f.worst, "\", \"", pattern_text)) + ", \"value\": " + list(joined(f, f.worst, "\", \"", value_text)) +
                ", \"wrong\": " + list(joined(f, f.wrong, "\", \"", pattern_text)) + "}";
    }
    std::puts((text + "]").c_str());
}

// A family's kernels that have an error: an export for each form and for each width with a kernel of its own.
std::vector<Export> kernels_of(const Family& f) {
    std::vector<Export> all;
    for (const auto& own : f.width_full) all.push_back({&f, own.first, Variant::full});
    for (const Variant v : all_variants)
        if (f.has(v) && (v != Variant::half || f.half_worst.ulp != 0)) all.push_back({&f, 16, v});
    return all;
}

void print_list(const Module& module, bool csv) {
    if (csv) std::puts("export,family,form,width,arguments,allowed,stated,at");
    for (const Family& f : families()) {
        if (!truth_of(f) || !module.has(f)) continue;
        std::string arguments;
        for (const Lane type : f.shape.args)
            arguments += (arguments.empty() ? "" : " ") + std::string(type == Lane::f32 ? "float" : type == Lane::f64 ? "double" : "int");
        for (const auto& [family, width, v] : kernels_of(f)) {
            const std::string name = f.base + std::to_string(width) + suffix(v);
            const std::string stated = number(f.worst(v, width).ulp), allowed = v == Variant::full ? number(f.allowed) : "-1";
            const char* form = v == Variant::full ? "full" : suffix(v) + 1;
            std::string at;
            for (std::size_t a = 0; a < f.worst(v, width).at.size(); a++)
                at += a ? " " : "", at += pattern_text(f.shape.args[a], f.worst(v, width).at[a]);
            if (csv)
                std::printf("%s,%s,%s,%d,%s,%s,%s,%s\n", name.c_str(), f.base.c_str(), form, width, arguments.c_str(), allowed.c_str(),
                            stated.c_str(), at.c_str());
            else std::printf("%-20s %-14s stated %s ulp\n", name.c_str(), arguments.c_str(), stated.c_str());
        }
    }
}

// The ends of what is measured: as given, else all numbers; all patterns for --all; what a native form is for.
std::vector<Range> ranges_of(const Function& function, const std::vector<std::string>& from, const std::vector<std::string>& to, bool all) {
    const Family& family = function.family();
    std::vector<Range> ranges;
    for (std::size_t a = 0; a < family.shape.args.size(); a++) {
        const Lane type = family.shape.args[a];
        const auto order = [&](const std::string& text) { return order_of(type, cli::parse_lane(type, text)); };
        Range range = {0, all_ones(type)};
        if (is_float(type) && !all) range = {order("-inf"), order("inf")};
        if (function.variant() != Variant::full && !all && a < family.native_domain.size())
            range = {order_of(type, pattern_of(type, family.native_domain[a].low)), order_of(type, pattern_of(type, family.native_domain[a].high))};
        if (!from.empty()) range.low = order(from[a]);
        if (!to.empty()) range.high = order(to[a]);
        if (range.low > range.high) throw cli::Refused("the interval is empty");
        ranges.push_back(range);
    }
    return ranges;
}

// A count as people write it: 4194304, or 1e6.
std::uint64_t count_of(const std::string& text) {
    char* end = nullptr;
    const double v = std::strtod(text.c_str(), &end);
    if (text.empty() || *end != '\0' || !(v >= 1 && v <= 1e15) || v != std::floor(v)) throw cli::Refused("'" + text + "' is not a number of samples");
    return static_cast<std::uint64_t>(v);
}

// A family's profile; false where it was interrupted.
bool profile(const Module& module, const std::string& base, const std::string& path, const std::vector<std::string>& from,
             const std::vector<std::string>& to, double seconds, unsigned threads, bool quiet) {
    const Family* family = find_family(base);
    if (!family) throw cli::Refused("a profile is one of a family, and none is called '" + base + "'");
    const Truth* truth = truth_of(*family);
    if (!truth || family->allowed == 0) throw cli::Refused(base + " has no error to measure: it is exact or correctly rounded");
    for (const auto& given : {from, to})
        if (given.size() > 1) throw cli::Refused("a profile is one over the first argument: one bound, please");
    const auto wanted = [&](const Export& e) {
        const auto function = module.find(e);
        if (!function) throw cli::Refused("the module has no '" + export_name(e.family->base, e.width, e.variant) + "'");
        return *function;
    };
    std::vector<Target> targets;
    for (const Export& kernel : kernels_of(*family)) {
        const Function function = wanted(kernel);
        targets.push_back({function, false, ranges_of(function, {}, {}, false)});
        if (truth->second) targets.push_back(targets.back()), targets.back().second = true;
    }
    const Lane type = family->shape.args[0];
    const auto order = [&](const std::vector<std::string>& text, const char* otherwise) {
        return order_of(type, cli::parse_lane(type, text.empty() ? otherwise : text[0]));
    };
    const Range range = {order(from, "-inf"), order(to, "inf")};
    if (range.low > range.high) throw cli::Refused("the interval is empty");
    const bool whole = swept_whole(*family);
    if (whole && seconds > 0) throw cli::Refused(base + " is swept whole, not searched");
    if (!whole && seconds == 0) seconds = 0.25;
    if (!std::ofstream(path + ".part")) throw cli::Refused("cannot write " + path);

    stop_at_interrupt();
    Progress progress(quiet);
    const auto report = [&](double share) { return progress.show(share), !interrupted; };
    const Profile found = whole ? sweep_bins(targets, wanted({find_family(base.substr(0, base.size() - 1)), 16, Variant::full}), range, threads, report)
                                : search_bins(targets, range, seconds, threads, report);
    if (!found.complete) return std::filesystem::remove(path + ".part"), false;
    const std::string count = std::to_string(found.measured);
    write_profile(path, targets, found,
                  whole ? "All inputs: candidates by the double form, " + count + " of them measured with MPFR, the largest of each bin too."
                        : "Directed search, " + number(seconds) + " s a bin, " + count + " evaluations: no bound.");
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    CLI::App app{"Measures the worst error of an export: over all inputs, random ones, or by a directed search.", "tarn-ulp"};
    std::string name, samples_text, log_path, plot_path, profile_path, module_path = Module::built_path();
    std::vector<std::string> from, to;
    bool all = false, second = false, quiet = false, csv = false, json = false, list = false;
    double seconds = 0;
    std::uint64_t seed = 1;
    unsigned threads = std::max(1u, std::thread::hardware_concurrency());
    app.add_option("NAME", name, "an export, such as expf16 or sinf8_native");
    const auto all_flag = app.add_flag("--all", all, "every input between the ends, one argument in single precision");
    const auto samples_option = app.add_option("--samples", samples_text, "so many random inputs (4194304, where nothing else is asked for)");
    const auto search_option = app.add_option("--search", seconds, "look for the largest error for at most so many seconds (of a profile: a bin)")->check(CLI::PositiveNumber);
    app.add_option("--from", from, "lower end, one for each argument (else -inf)");
    app.add_option("--to", to, "upper end, one for each argument (else inf)");
    app.add_option("--threads", threads, "at most this many at work")->check(CLI::Range(1, 256));
    app.add_option("--seed", seed, "another search of the same kind")->needs(search_option);
    const auto log_option = app.add_option("--log", log_path, "keep the results of a sweep's blocks here, and go on from them");
    const auto plot_option = app.add_option("--plot", plot_path, "draw a sweep's error over the first argument as .svg or .png");
    const auto profile_option = app.add_option("--profile", profile_path, "write the largest errors of the family NAME in bins of its first argument here");
    const auto second_flag = app.add_flag("--second", second, "the second result (a search takes both)");
    app.add_flag("--quiet", quiet, "no progress");
    const auto csv_flag = app.add_flag("--csv", csv, "the result as comma-separated values");
    const auto json_flag = app.add_flag("--json", json, "the result as JSON")->excludes(csv_flag);
    const auto list_flag = app.add_flag("--list", list, "list what can be measured: a line for every kernel");
    app.add_option("--module", module_path, "another module file");
    all_flag->excludes(samples_option);
    search_option->excludes(all_flag)->excludes(samples_option)->excludes(log_option)->excludes(plot_option);
    for (auto* other : {all_flag, samples_option, log_option, plot_option, second_flag, csv_flag, json_flag, list_flag}) profile_option->excludes(other);

    return cli::run(app, argc, argv, [&] {
        const Module module(module_path);
        if (list) return print_list(module, csv), 0;
        if (name.empty()) throw cli::Refused("which export? --list names those that have an error");
        if (!profile_path.empty()) return profile(module, name, profile_path, from, to, seconds, threads, quiet) ? 0 : 130;
        const std::uint64_t samples = samples_text.empty() ? 1 << 22 : count_of(samples_text);
        Target target{cli::find_function(module, name), second, {}};
        const Shape& shape = target.shape();
        if (!target.exactly()) throw cli::Refused(name + " has no error to measure: it is exact");
        if (all && (shape.args.size() != 1 || shape.args[0] != Lane::f32))
            throw cli::Refused("all inputs can be swept for one argument in single precision only");
        for (const auto& given : {from, to})
            if (!given.empty() && given.size() != shape.args.size())
                throw cli::Refused(name + " has " + std::to_string(shape.args.size()) + " arguments: a bound for each, please");
        target.ranges = ranges_of(target.function, from, to, all);
        if (!plot_path.empty()) expect_plot(plot_path);
        stop_at_interrupt();

        std::vector<Finding> findings;
        std::vector<Target> targets = {target};
        if (seconds > 0) {
            if (!second && truth_of(target.function.family())->second) targets.push_back(target), targets.back().second = true;
            for (const Target& t : targets) {
                Progress progress(quiet);
                const SearchResult found = search(t, seconds / static_cast<double>(targets.size()), threads, seed, [&](double share, const SearchResult& so_far) {
                    progress.show(share, so_far.largest.ulp);
                    return !interrupted;
                });
                findings.push_back({t, "search", found.evaluations, found.largest, found.wrong});
            }
        } else {
            const Sweep sweep{target, all, all ? target.ranges[0].high - target.ranges[0].low + 1 : samples};
            Log log(log_path, sweep.title());
            bool complete;
            {
                Progress progress(quiet);
                complete = run(sweep, log, threads, [&](double share, double worst) {
                    progress.show(share, worst);
                    return !interrupted;
                });
            }
            if (!complete) {
                const std::string done = std::to_string(log.done.size()) + " of " + std::to_string(sweep.blocks()) + " blocks are done";
                std::fprintf(stderr, "tarn-ulp: stopped; %s, worst %.4g ulp; %s\n", done.c_str(), log.worst().ulp,
                             log_path.empty() ? "with --log FILE a sweep can be resumed" : "the same command resumes from the log");
                return 130;
            }
            findings.push_back({targets[0], all ? "all" : "samples", sweep.inputs, log.worst(), {}});
            if (!plot_path.empty()) plot(plot_path, sweep, log);
        }
        if (json) print_json(findings);
        else if (csv) print_csv(findings);
        else for (const Finding& f : findings) print_text(f);
        return interrupted ? 130 : 0;
    });
}
