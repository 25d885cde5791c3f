// tarn-bench FAMILY...: nanoseconds an element of each width beside the libraries found on the machine,
// in one run: rounds of all of them are interleaved at random and the least of each is shown, so that
// what else the machine does falls on all alike. With --arrays: libtarn's loops instead of the widths.
#include <benchmark/benchmark.h>
#include <dlfcn.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <map>
#include <memory>
#include <random>

#include "bench/peers.hpp"
#include "common/arrays.hpp"
#include "common/cli.hpp"

namespace {

using namespace tarn;

std::size_t elements = 1024;  // inputs, results and tables stay in the first cache

struct Buffers {
    std::vector<Lanes> args;
    Lanes result, second;
};

// A way to compute a family on all elements.
struct Entrant {
    std::string family, level, column;
    std::function<void(Buffers&)> run;
    std::shared_ptr<Buffers> buffers;
};

// Inputs where everyone is on the fast path; or, in a row of their own, beyond where one lane sends a
// call of ours down its long path.
std::shared_ptr<Buffers> inputs(const Family& f, bool large) {
    auto b = std::make_shared<Buffers>();
    std::mt19937_64 random(1);
    for (std::size_t a = 0; a < f.shape.args.size(); a++) {
        const Lane type = f.shape.args[a];
        b->args.emplace_back(type, elements);
        for (std::size_t i = 0; i < elements; i++) {
            const double u = static_cast<double>(random() >> 11) * 0x1p-53;
            const Interval usual = a < f.usual.size() ? f.usual[a] : is_float(type) ? Interval{0.1, 10} : Interval{1, 10};
            double v = usual.low * (1 - u) + usual.high * u;
            if (large) v = f.switches_above * std::exp2(u * (type == Lane::f32 ? 114 : 1000));
            b->args[a].set(i, pattern_of(type, is_float(type) ? v : std::floor(v)));
        }
    }
    b->result = Lanes(f.shape.result, elements);
    b->second = Lanes(f.shape.second, elements);
    return b;
}

std::function<void(Buffers&)> ours(const Function& f) {
    const std::size_t stored = f.width() == 3 ? 4 : static_cast<std::size_t>(f.width());
    return [=, batch = f.batch(), address = f.address()](Buffers& b) {
        const std::byte* pointers[3] = {};
        for (std::size_t a = 0; a < b.args.size(); a++) pointers[a] = b.args[a].data();
        batch(address, pointers, b.result.data(), b.second.data(), elements / stored);
    };
}

// The first n elements in one call of a loop of ours.
std::function<void(Buffers&)> loop(const ArrayFunction& f, std::size_t n) {
    return [=](Buffers& b) {
        const void* pointers[3] = {};
        for (std::size_t a = 0; a < b.args.size(); a++) pointers[a] = b.args[a].data();
        f(n, pointers, b.result.data(), b.second.data());
    };
}

// A peer's function, of the arity of the family or with sine and cosine as its two results.
std::function<void(Buffers&)> peer(const bench::Runs& runs, void* address, std::size_t arity, bool pair) {
    return [=, run = pair ? runs.pair : runs.of[arity - 1]](Buffers& b) {
        const std::byte* in[3] = {};
        for (std::size_t a = 0; a < b.args.size(); a++) in[a] = b.args[a].data();
        run(address, in, b.result.data(), b.second.data(), elements * static_cast<std::size_t>(bytes(b.result.type())));
    };
}

// A module, and what stands beside it: functions for the same processors, with vectors of the same size.
struct Level {
    std::string name, key;
    const bench::Runs &f32, &f64;
    std::string sleef_f32, sleef_f64, sleef, mvec_f32, mvec_f64;
    bool scalars;
};
const Level plain = {"plain", "plain", bench::of_16_bytes_f32, bench::of_16_bytes_f64, "f4", "d2", "sse4", "_ZGVbN4", "_ZGVbN2", true};
const Level v3 = {"x86-64-v3", "v3", bench::of_32_bytes_f32, bench::of_32_bytes_f64, "f8", "d4", "avx2", "_ZGVdN8", "_ZGVdN4", false};

// The peers, by their naming rules: SLEEF's functions of a level, the C library's vector functions and its scalar ones.
// All keep within 4 ulp.
void add_peers(const Family& f, const Level& level, const std::string& row, const std::shared_ptr<Buffers>& b, std::vector<Entrant>& to) {
    static void* const sleef = dlopen("libsleef.so.3", RTLD_NOW);
    static void* const mvec = dlopen("libmvec.so.1", RTLD_NOW);
    static void* const libm = dlopen("libm.so.6", RTLD_NOW);
    const Lane type = f.shape.args[0];
    if (!is_float(type)) return;
    const bool single = type == Lane::f32;
    const std::size_t arity = f.shape.args.size();
    std::string name = single ? f.base.substr(0, f.base.size() - 1) : f.base;
    const bool pair = name == "sincos" || name == "sincosreg";
    if (pair) name = "sincos";
    else if (f.shape.second != Lane::none) return;
    for (const Lane arg : f.shape.args) if (arg != type) return;

    const auto add = [&](const char* column, void* library, const std::string& symbol, const bench::Runs& runs) {
        void* address = library ? dlsym(library, symbol.c_str()) : nullptr;
        if (address) to.push_back({row, level.key, column, peer(runs, address, arity, pair), b});
        return address != nullptr;
    };
    const bench::Runs& runs = single ? level.f32 : level.f64;
    const auto sleef_function = [&](const char* column, std::initializer_list<const char*> accuracies) {
        for (const char* accuracy : accuracies)
            if (add(column, sleef, "Sleef_" + name + (single ? level.sleef_f32 : level.sleef_f64) + accuracy + level.sleef, runs)) return;
    };
    sleef_function("SLEEF u10", {"_u05", "_u10", "_u15", "_"});
    sleef_function("SLEEF u35", {"_u35"});
    if (pair) return;
    const std::string type_letter = single ? "f" : "";
    add("libmvec", mvec, (single ? level.mvec_f32 : level.mvec_f64) + std::string(arity, 'v') + '_' + name + type_letter, runs);
    if (level.scalars) add("libm", libm, name + type_letter, single ? bench::runs<float> : bench::runs<double>);
}

// Few elements, beside one call of width 16.
constexpr std::size_t few[] = {1, 7, 15, 16};

// A copy by ordinary loads and stores, as loops make them: the C library's goes past the cache where there is much.
void copy(const std::byte* from, std::byte* to, std::size_t size) {
    constexpr std::size_t vector = 32;
    for (std::size_t i = 0; i + vector <= size; i += vector) {
        std::memcpy(to + i, from + i, vector);
        benchmark::ClobberMemory();
    }
}

// A loop over an array beside calls of width 16, the other libraries in a loop, and a copy of as much memory.
void add_arrays(const Family& f, Variant v, const Level& level, const Module& module, const ArrayLibrary& library, const std::string& row,
                const std::shared_ptr<Buffers>& b, std::vector<Entrant>& to) {
    const Function call = *module.find({&f, 16, v});
    const auto array = library.find(f, v);
    if (!array) throw cli::Refused("libtarn has no '" + array_name(f.base, v) + "'");
    to.push_back({row, level.key, "16", ours(call), b});
    to.push_back({row, level.key, "array", loop(*array, elements), b});
    to.push_back({row, level.key, "copy", [](Buffers& buffers) {
        for (const Lanes& arg : buffers.args)
            for (Lanes* result : {&buffers.result, &buffers.second})
                copy(arg.data(), result->data(), std::min(arg.size() * static_cast<std::size_t>(bytes(arg.type())),
                                                           result->size() * static_cast<std::size_t>(bytes(result->type()))));
    }, b});
    to.push_back({row, level.key, "one call", [=, batch = call.batch(), address = call.address()](Buffers& buffers) {
        const std::byte* pointers[3] = {};
        for (std::size_t a = 0; a < buffers.args.size(); a++) pointers[a] = buffers.args[a].data();
        batch(address, pointers, buffers.result.data(), buffers.second.data(), 1);
    }, b});
    for (const std::size_t n : few) to.push_back({row, level.key, "n=" + std::to_string(n), loop(*array, n), b});
}

// Keeps the least time of each entrant and prints the table at the end.
class Table : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs)
            if (run.run_type == Run::RT_Iteration) {
                auto& least = least_[run.benchmark_name()];
                // Width 3 spends four stored lanes on three elements.
                const double lanes = run.benchmark_name().find("/3/") != std::string::npos ? static_cast<double>(elements) * 0.75 : static_cast<double>(elements);
                const double ns = run.GetAdjustedRealTime() / lanes;
                if (least == 0 || ns < least) least = ns;
            }
    }

    void print(const std::vector<Entrant>& entrants) const {
        std::printf("nanoseconds an element; ratio: the best peer's time over ours at our best width\n%-22s", "");
        for (const int w : widths) std::printf("%8s", ("w" + std::to_string(w)).c_str());
        for (const auto& p : peers) std::printf("%11s", p.c_str());
        std::printf("%8s\n", "ratio");
        for (const Row& row : rows(entrants)) {
            std::printf("%-22s", (row.level == plain.key ? row.name : "  " + v3.name).c_str());
            for (const double ns : row.ours) cell(ns, 8, 3);
            for (const double ns : row.theirs) cell(ns, 11, 3);
            cell(row.ratio(), 8, 2);
            std::puts("");
        }
        const auto [gain, families] = mean_gain(rows(entrants));
        if (families != 0) std::printf("%s at width 16: %.2f times as fast, the geometric mean of %d families\n", v3.name.c_str(), gain, families);
    }

    // Loops over arrays: of one level after the other, each as a table and its geometric means.
    void print_arrays(const std::vector<Entrant>& entrants, bool markdown) const {
        for (const Level* level : {&plain, &v3}) {
            std::vector<Row> all;
            for (const Row& row : rows(entrants)) if (row.level == level->key) all.push_back(row);
            if (all.empty()) continue;
            const char* form = markdown ? "| `%s` | %s | %s | %s | %s | %s | %s | %s | %s | %s |\n" : "%-22s%9s%9s%9s%9s%9s%9s%9s%9s%9s\n";
            std::printf(form, level->name.c_str(), "width 16", "array", "copy", "SLEEF", "libmvec", "to w16", "SLEEF/", "libmvec/", "few/call");
            if (markdown) std::puts("|---|---|---|---|---|---|---|---|---|---|");
            Mean calls, sleef, mvec;
            for (const Row& row : all) {
                const std::string key = row.name + '/' + row.level + '/';
                const double array = time_of(key + "array"), call = time_of(key + "16");
                const double nearest = std::min(row.theirs[0], row.theirs[1]);
                double most = 0;
                for (const std::size_t n : few) most = std::max(most, time_of(key + "n=" + std::to_string(n)) / time_of(key + "one call"));
                if (row.name.find(", large x") == std::string::npos) calls.add(call / array), sleef.add(nearest / array), mvec.add(row.theirs[2] / array);
                std::printf(form, row.name.c_str(), number(call, 3).c_str(), number(array, 3).c_str(), number(time_of(key + "copy"), 3).c_str(),
                            number(nearest, 3).c_str(), number(row.theirs[2], 3).c_str(), number(call / array, 2).c_str(),
                            number(nearest / array, 2).c_str(), number(row.theirs[2] / array, 2).c_str(), number(most, 2).c_str());
            }
            std::printf("%sGeometric means: %s times as fast as calls of width 16, %s as SLEEF (%d functions), %s as libmvec (%d).\n%s", markdown ? "\n" : "",
                        number(calls.value(), 2).c_str(), number(sleef.value(), 2).c_str(), sleef.count, number(mvec.value(), 2).c_str(), mvec.count,
                        markdown ? "\n" : "");
        }
    }

    // What matters of each family, as a page shows it; then the whole.
    void print_markdown(const std::vector<Entrant>& entrants) const {
        std::puts("Nanoseconds an element, each module at its best width; a peer is the best of its size, scalar functions among\n"
                  "those of 128 bits. Ahead: the peer's time over ours. Gain: the plain module's time over the other's at width 16.\n\n"
                  "| function | plain | v3 | best 128-bit peer | best 256-bit peer | plain ahead | v3 ahead | gain |\n"
                  "|---|---|---|---|---|---|---|---|");
        const auto all = rows(entrants);
        for (const Row& row : all) {
            if (row.level != plain.key) continue;
            const Row none{row.name, v3.key, std::vector<double>(row.ours.size(), INFINITY), std::vector<double>(peers.size(), INFINITY)};
            const Row* wide = &none;
            for (const Row& other : all) if (other.name == row.name && other.level == v3.key) wide = &other;
            std::printf("| `%s` | %s | %s | %s | %s | %s | %s | %s |\n", row.name.c_str(), number(row.best(), 3).c_str(),
                        number(wide->best(), 3).c_str(), row.best_peer().c_str(), wide->best_peer().c_str(),
                        number(row.ratio(), 2).c_str(), number(wide->ratio(), 2).c_str(), number(row.ours.back() / wide->ours.back(), 2).c_str());
        }
        std::puts("\nEvery width, with the peers of the module's size:\n\n```");
        print(entrants);
        std::puts("```");
    }

    void print_json(const std::vector<Entrant>& entrants) const {
        const char* comma = "[";
        for (const Row& row : rows(entrants)) {
            std::printf("%s{\"row\": \"%s\", \"module\": \"%s\", \"unit\": \"ns an element\", \"widths\": {", comma, row.name.c_str(), row.level.c_str());
            for (std::size_t i = 0; i < row.ours.size(); i++)
                std::printf("%s\"%d\": %.4g", i ? ", " : "", widths[i], row.ours[i]);
            std::printf("}, \"peers\": {");
            const char* between = "";
            for (std::size_t i = 0; i < peers.size(); i++)
                if (std::isfinite(row.theirs[i])) std::printf("%s\"%s\": %.4g", between, peers[i].c_str(), row.theirs[i]), between = ", ";
            std::isfinite(row.ratio()) ? std::printf("}, \"ratio\": %.4g}", row.ratio()) : std::printf("}, \"ratio\": null}");
            comma = ",\n ";
        }
        std::puts("]");
    }

private:
    inline static const std::vector<std::string> peers = {"SLEEF u10", "SLEEF u35", "libmvec", "libm"};

    // Infinite where there is no such entrant.
    struct Row {
        std::string name, level;
        std::vector<double> ours, theirs;
        double best() const { return *std::min_element(ours.begin(), ours.end()); }
        double ratio() const { return *std::min_element(theirs.begin(), theirs.end()) / best(); }
        std::string best_peer() const {
            const auto least = std::min_element(theirs.begin(), theirs.end());
            return std::isfinite(*least) ? number(*least, 3) + ' ' + peers[static_cast<std::size_t>(least - theirs.begin())] : "-";
        }
    };
    std::vector<Row> rows(const std::vector<Entrant>& entrants) const {
        std::vector<Row> all;
        for (const auto& e : entrants) {
            if (!all.empty() && all.back().name == e.family && all.back().level == e.level) continue;
            Row row{e.family, e.level, {}, {}};
            const std::string key = row.name + '/' + row.level + '/';
            for (const int w : widths) row.ours.push_back(time_of(key + std::to_string(w)));
            for (const auto& p : peers) row.theirs.push_back(time_of(key + p));
            all.push_back(row);
        }
        return all;
    }
    // How much faster the wide module is at width 16, over the families whose lanes are ordinary.
    static std::pair<double, int> mean_gain(const std::vector<Row>& all) {
        double sum = 0;
        int count = 0;
        for (std::size_t i = 1; i < all.size(); i++)
            if (all[i].level == v3.key && all[i].name.find(", large x") == std::string::npos)
                sum += std::log(all[i - 1].ours.back() / all[i].ours.back()), count++;
        return {std::exp(sum / std::max(count, 1)), count};
    }
    struct Mean {
        double sum = 0;
        int count = 0;
        void add(double ratio) {
            if (std::isfinite(ratio)) sum += std::log(ratio), count++;
        }
        double value() const { return count ? std::exp(sum / count) : INFINITY; }
    };
    static std::string number(double v, int digits) {
        char text[32];
        std::snprintf(text, sizeof text, "%.*f", digits, v);
        return std::isfinite(v) ? text : "-";
    }
    double time_of(const std::string& key) const {
        for (const auto& [name, ns] : least_)
            if (name.starts_with(key + '/') || name == key) return ns;
        return INFINITY;
    }
    static void cell(double v, int space, int digits) {
        std::printf("%*s", space, number(v, digits).c_str());
    }
    std::map<std::string, double> least_;
};

}  // namespace

int main(int argc, char** argv) {
    CLI::App app{"Times exports beside the vector math libraries found on the machine.", "tarn-bench"};
    std::vector<std::string> bases;
    int rounds = 25;
    bool variants = false, json = false, markdown = false, arrays = false;
    std::string module_path = Module::built_path(), v3_path;
    app.add_option("FAMILY", bases, "families, such as expf (all that the module has, if none is named)");
    app.add_option("--rounds", rounds, "interleaved rounds, of which the least counts")->check(CLI::Range(1, 10000));
    app.add_flag("--variants", variants, "native and half forms too");
    auto* as_json = app.add_flag("--json", json, "the times as JSON");
    app.add_flag("--markdown", markdown, "the times as a page shows them")->excludes(as_json);
    app.add_flag("--arrays", arrays, "functions on arrays, of the libtarn beside each module")->excludes(as_json);
    app.add_option("--elements", elements, "elements of each array, a multiple of 16 (16777216 floats are 64 MB)")
        ->check(CLI::Range(16, 1 << 26) & CLI::Validator([](const std::string& n) { return std::stoul(n) % 16 ? n + " is no multiple of 16" : ""; }, ""));
    app.add_option("--module", module_path, "another module file (in the environment: TARN_MODULE)");
    app.add_option("--v3", v3_path, "the module for x86-64-v3 beside it, with the peers' 256-bit functions");

    return cli::run(app, argc, argv, [&] {
        const Module module(module_path);
        std::vector<std::pair<const Level*, const Module*>> modules = {{&plain, &module}};
        std::optional<Module> wide;
        if (!v3_path.empty()) modules.emplace_back(&v3, &wide.emplace(v3_path));
        std::vector<ArrayLibrary> libraries;
        if (arrays)
            for (const std::string& file : {module_path, v3_path})
                if (!file.empty()) libraries.emplace_back((std::filesystem::absolute(file).parent_path() / "libtarn.so.1").string());
        if (bases.empty())
            for (const Family& f : families())
                if (module.has(f)) bases.push_back(f.base);
        std::vector<Entrant> entrants;
        for (const auto& base : bases) {
            const Family* f = find_family(base);
            if (!f) throw cli::Refused("no family is called '" + base + "'");
            for (const auto& [level, m] : modules)
                if (!m->has(*f)) throw cli::Refused("the module has no '" + base + "'");
            for (const bool large : {false, true}) {
                if (large && f->switches_above == 0) continue;
                const auto b = inputs(*f, large);
                for (const Variant v : all_variants) {
                    if (!f->has(v) || (v != Variant::full && (!variants || large))) continue;
                    const std::string row = base + suffix(v) + (large ? ", large x" : "");
                    for (std::size_t i = 0; i < modules.size(); i++) {
                        const auto& [level, m] = modules[i];
                        if (arrays) add_arrays(*f, v, *level, *m, libraries[i], row, b, entrants);
                        else for (const int w : widths) entrants.push_back({row, level->key, std::to_string(w), ours(*m->find({f, w, v})), b});
                        add_peers(*f, *level, row, b, entrants);
                    }
                }
            }
        }
        for (const auto& e : entrants)
            benchmark::RegisterBenchmark((e.family + '/' + e.level + '/' + e.column).c_str(), [&e](benchmark::State& state) {
                for (auto _ : state) {
                    e.run(*e.buffers);
                    benchmark::ClobberMemory();
                }
            })->Repetitions(rounds)->MinTime(0.002);
        std::string name = "tarn-bench", interleave = "--benchmark_enable_random_interleaving=true";
        char* flags[] = {name.data(), interleave.data()};
        int flag_count = 2;
        benchmark::Initialize(&flag_count, flags);
        Table table;
        benchmark::RunSpecifiedBenchmarks(&table);
        arrays ? table.print_arrays(entrants, markdown) : json ? table.print_json(entrants) : markdown ? table.print_markdown(entrants) : table.print(entrants);
        return 0;
    });
}
