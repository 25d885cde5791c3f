// tarn-bench FAMILY...: nanoseconds an element of each width beside the libraries found on the machine,
// in one run: rounds of all of them are interleaved at random and the least of each is shown, so that
// what else the machine does falls on all alike.
#include <benchmark/benchmark.h>
#include <dlfcn.h>
#include <emmintrin.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <memory>
#include <random>

#include "common/cli.hpp"

namespace {

using namespace tarn;

constexpr std::size_t elements = 1024;  // inputs, results and tables stay in the first cache

struct Buffers {
    std::vector<Lanes> args;
    Lanes result, second;
};

// A way to compute a family on 1024 elements.
struct Entrant {
    std::string family, column;
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

// Vectors of type V, which may be a scalar, in a buffer.
template <class V> std::size_t vectors(const Buffers& b) {
    return elements * static_cast<std::size_t>(bytes(b.result.type())) / sizeof(V);
}

// A peer's function of one to three vectors. The loop holds the call and nothing that could be outside.
template <class V> std::function<void(Buffers&)> peer(void* address, std::size_t arity) {
    const auto over = [=](auto call) {
        return [=](Buffers& b) {
            V* out = reinterpret_cast<V*>(b.result.data());
            const V* in[3] = {};
            for (std::size_t a = 0; a < b.args.size(); a++) in[a] = reinterpret_cast<const V*>(b.args[a].data());
            for (std::size_t i = 0, count = vectors<V>(b); i < count; i++) out[i] = call(in, i);
        };
    };
    if (arity == 1) return over([f = reinterpret_cast<V (*)(V)>(address)](const V* const* in, std::size_t i) { return f(in[0][i]); });
    if (arity == 2) return over([f = reinterpret_cast<V (*)(V, V)>(address)](const V* const* in, std::size_t i) { return f(in[0][i], in[1][i]); });
    return over([f = reinterpret_cast<V (*)(V, V, V)>(address)](const V* const* in, std::size_t i) { return f(in[0][i], in[1][i], in[2][i]); });
}

// A peer's sine and cosine, returned as two vectors.
template <class V> std::function<void(Buffers&)> peer_pair(void* address) {
    struct Two { V first, second; };
    return [f = reinterpret_cast<Two (*)(V)>(address)](Buffers& b) {
        const V* in = reinterpret_cast<const V*>(b.args[0].data());
        for (std::size_t i = 0, count = vectors<V>(b); i < count; i++) {
            const Two both = f(in[i]);
            reinterpret_cast<V*>(b.result.data())[i] = both.first;
            reinterpret_cast<V*>(b.second.data())[i] = both.second;
        }
    };
}

// The peers, by their naming rules: SLEEF's 128-bit SSE4 functions, the C library's vector functions for
// SSE4 and its scalar ones. All keep within 4 ulp.
void add_peers(const Family& f, const std::string& row, const std::shared_ptr<Buffers>& b, std::vector<Entrant>& to) {
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

    const auto add = [&](const char* column, void* library, const std::string& symbol, auto vector) {
        using V = decltype(vector);
        void* address = library ? dlsym(library, symbol.c_str()) : nullptr;
        if (!address) return false;
        to.push_back({row, column, pair ? peer_pair<V>(address) : peer<V>(address, arity), b});
        return true;
    };
    const auto sleef_function = [&](const char* column, std::initializer_list<const char*> accuracies) {
        for (const char* accuracy : accuracies) {
            const std::string symbol = "Sleef_" + name + (single ? "f4" : "d2") + accuracy + "sse4";
            if (single ? add(column, sleef, symbol, __m128{}) : add(column, sleef, symbol, __m128d{})) return;
        }
    };
    sleef_function("SLEEF u10", {"_u05", "_u10", "_u15", "_"});
    sleef_function("SLEEF u35", {"_u35"});
    if (pair) return;
    const std::string v(arity, 'v');
    if (single) {
        add("libmvec", mvec, "_ZGVbN4" + v + '_' + name + 'f', __m128{});
        add("libm", libm, name + 'f', float{});
    } else {
        add("libmvec", mvec, "_ZGVbN2" + v + '_' + name, __m128d{});
        add("libm", libm, name, double{});
    }
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
                const double lanes = run.benchmark_name().find("/3/") != std::string::npos ? elements * 0.75 : elements;
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
            std::printf("%-22s", row.name.c_str());
            for (const double ns : row.ours) cell(ns, 8, 3);
            for (const double ns : row.theirs) cell(ns, 11, 3);
            cell(row.ratio(), 8, 2);
            std::puts("");
        }
    }

    void print_json(const std::vector<Entrant>& entrants) const {
        const char* comma = "[";
        for (const Row& row : rows(entrants)) {
            std::printf("%s{\"row\": \"%s\", \"unit\": \"ns an element\", \"widths\": {", comma, row.name.c_str());
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
        std::string name;
        std::vector<double> ours, theirs;
        double ratio() const {
            return *std::min_element(theirs.begin(), theirs.end()) / *std::min_element(ours.begin(), ours.end());
        }
    };
    std::vector<Row> rows(const std::vector<Entrant>& entrants) const {
        std::vector<Row> all;
        for (const auto& e : entrants) {
            if (!all.empty() && all.back().name == e.family) continue;
            Row row{e.family, {}, {}};
            for (const int w : widths) row.ours.push_back(time_of(row.name + '/' + std::to_string(w)));
            for (const auto& p : peers) row.theirs.push_back(time_of(row.name + '/' + p));
            all.push_back(row);
        }
        return all;
    }
    double time_of(const std::string& key) const {
        for (const auto& [name, ns] : least_)
            if (name.starts_with(key + '/') || name == key) return ns;
        return INFINITY;
    }
    static void cell(double v, int space, int digits) {
        std::isfinite(v) ? std::printf("%*.*f", space, digits, v) : std::printf("%*s", space, "-");
    }
    std::map<std::string, double> least_;
};

}  // namespace

int main(int argc, char** argv) {
    CLI::App app{"Times exports beside the vector math libraries found on the machine.", "tarn-bench"};
    std::vector<std::string> bases;
    int rounds = 25;
    bool variants = false, json = false;
    std::string module_path = Module::built_path();
    app.add_option("FAMILY", bases, "families, such as expf (all that the module has, if none is named)");
    app.add_option("--rounds", rounds, "interleaved rounds, of which the least counts")->check(CLI::Range(1, 10000));
    app.add_flag("--variants", variants, "native and half forms too");
    app.add_flag("--json", json, "the times as JSON");
    app.add_option("--module", module_path, "another module file");

    return cli::run(app, argc, argv, [&] {
        const Module module(module_path);
        if (bases.empty())
            for (const Family& f : families())
                if (module.has(f)) bases.push_back(f.base);
        std::vector<Entrant> entrants;
        for (const auto& base : bases) {
            const Family* f = find_family(base);
            if (!f) throw cli::Refused("no family is called '" + base + "'");
            if (!module.has(*f)) throw cli::Refused("the module has no '" + base + "'");
            for (const bool large : {false, true}) {
                if (large && f->switches_above == 0) continue;
                const auto b = inputs(*f, large);
                for (const Variant v : all_variants) {
                    if (!f->has(v) || (v != Variant::full && (!variants || large))) continue;
                    const std::string row = base + suffix(v) + (large ? ", large x" : "");
                    for (const int w : widths) entrants.push_back({row, std::to_string(w), ours(*module.find({f, w, v})), b});
                    add_peers(*f, row, b, entrants);
                }
            }
        }
        for (const auto& e : entrants)
            benchmark::RegisterBenchmark((e.family + '/' + e.column).c_str(), [&e](benchmark::State& state) {
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
        json ? table.print_json(entrants) : table.print(entrants);
        return 0;
    });
}
