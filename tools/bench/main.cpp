// tarn-bench FAMILY...: nanoseconds an element of each width beside the libraries found on the machine, in one run: turns
// of a family's are interleaved at random, in several rounds of all families, and the least of each is shown. With
// --arrays: libtarn's loops instead of the widths.
#include <benchmark/benchmark.h>
#include <dlfcn.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <map>
#include <memory>
#include <random>
#include <span>

#include "bench/peers.hpp"
#include "common/arrays.hpp"
#include "common/cli.hpp"
#include "figures/times.hpp"

namespace {

using namespace tarn;

std::size_t elements = 1024;  // inputs, results and tables stay in the first cache
constexpr std::size_t in_cache = 1 << 18;  // beyond it an array is one of megabytes

// Lanes that begin at a place of a page of their own: a load whose address differs in the page alone from that of a store
// just before waits for it, and chance would decide which array's do.
class Array {
public:
    Array(const Lanes& lanes, std::size_t place)
        : type_(lanes.type()), size_(lanes.size()), pages_(bytes() / sizeof(Page) + 2), data_(pages_.data()->bytes + place * 832) {
        std::memcpy(data_, lanes.data(), bytes());
    }
    Array(Array&&) = default;
    std::byte* data() { return data_; }
    const std::byte* data() const { return data_; }
    std::size_t bytes() const { return size_ * static_cast<std::size_t>(tarn::bytes(type_)); }

private:
    struct alignas(4096) Page { std::byte bytes[4096]; };
    Lane type_;
    std::size_t size_;
    std::vector<Page> pages_;
    std::byte* data_;
};

struct Buffers {
    std::vector<Array> args, results;
    std::byte* result() { return results[0].data(); }
    std::byte* second() { return results[1].data(); }
};

// A way to compute a family on all elements.
struct Entrant {
    std::string row, level, column;
    std::function<void(Buffers&)> run;
    std::shared_ptr<Buffers> buffers;
    std::string key() const { return row + '/' + level + '/' + column; }
};

// Inputs where everyone is on the fast path; or, in a row of their own, beyond where one lane sends a
// call of ours down its long path.
std::shared_ptr<Buffers> inputs(const Family& f, bool large) {
    auto b = std::make_shared<Buffers>();
    std::mt19937_64 random(1);
    for (std::size_t a = 0; a < f.shape.args.size(); a++) {
        const Lane type = f.shape.args[a];
        Lanes lanes(type, elements);
        for (std::size_t i = 0; i < elements; i++) {
            const double u = static_cast<double>(random() >> 11) * 0x1p-53;
            const Interval usual = a < f.usual.size() ? f.usual[a] : is_float(type) ? Interval{0.1, 10} : Interval{1, 10};
            double v = usual.low * (1 - u) + usual.high * u;
            if (large) v = f.switches_above * std::exp2(u * (type == Lane::f32 ? 114 : 1000));
            lanes.set(i, pattern_of(type, is_float(type) ? v : std::floor(v)));
        }
        b->args.emplace_back(lanes, a);
    }
    for (const Lane type : {f.shape.result, f.shape.second})
        b->results.emplace_back(Lanes(type, type == Lane::none ? 0 : elements), f.shape.args.size() + b->results.size());
    return b;
}

std::function<void(Buffers&)> ours(const Function& f) {
    const std::size_t stored = f.width() == 3 ? 4 : static_cast<std::size_t>(f.width());
    return [=, batch = f.batch(), address = f.address()](Buffers& b) {
        const std::byte* pointers[3] = {};
        for (std::size_t a = 0; a < b.args.size(); a++) pointers[a] = b.args[a].data();
        batch(address, pointers, b.result(), b.second(), elements / stored);
    };
}

// The first n elements in one call of a loop of ours.
std::function<void(Buffers&)> loop(const ArrayFunction& f, std::size_t n) {
    return [=](Buffers& b) {
        const void* pointers[3] = {};
        for (std::size_t a = 0; a < b.args.size(); a++) pointers[a] = b.args[a].data();
        f(n, pointers, b.result(), b.second());
    };
}

// A peer's function, of the arity of the family or with sine and cosine as its two results. Its vectors are those of the
// argument: shorter results, as ilogb's of double precision, get as much room.
std::function<void(Buffers&)> peer(const bench::Runs& runs, void* address, const Family& f, bool pair) {
    const std::size_t size = elements * static_cast<std::size_t>(bytes(f.shape.args[0]));
    const auto room = std::make_shared<std::vector<std::byte>>(bytes(f.shape.result) < bytes(f.shape.args[0]) ? size : 0);
    return [=, run = pair ? runs.pair : runs.of[f.shape.args.size() - 1]](Buffers& b) {
        const std::byte* in[3] = {};
        for (std::size_t a = 0; a < b.args.size(); a++) in[a] = b.args[a].data();
        run(address, in, room->empty() ? b.result() : room->data(), b.second(), size);
    };
}

// A module, and what stands beside it: functions for the same processors, with vectors of the same size.
struct Level {
    std::string key;
    const bench::Runs &f32, &f64;
    std::string sleef_f32, sleef_f64, sleef, mvec_f32, mvec_f64;
    bool scalars;
};
const Level plain = {"plain", bench::of_16_bytes_f32, bench::of_16_bytes_f64, "f4", "d2", "sse4", "_ZGVbN4", "_ZGVbN2", true};
const Level v3 = {"v3", bench::of_32_bytes_f32, bench::of_32_bytes_f64, "f8", "d4", "avx2", "_ZGVdN8", "_ZGVdN4", false};

// The peers, by their naming rules: SLEEF's functions of a level, the C library's vector functions and its scalar ones.
// All keep within 4 ulp.
void add_peers(const Family& f, const Level& level, const std::string& row, const std::shared_ptr<Buffers>& b, bool scalars,
               std::vector<Entrant>& to) {
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
        // A library answers for those that it needs: libm for the C library's div, which divides integers.
        Dl_info home;
        if (!address || !dladdr(address, &home) || std::string(home.dli_fname).find("/libc.") != std::string::npos) return false;
        to.push_back({row, level.key, column, peer(runs, address, f, pair), b});
        return true;
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
    if (scalars) add("libm", libm, name + type_letter, single ? bench::runs<float> : bench::runs<double>);
}

// Few elements, beside one call of width 16.
constexpr std::size_t few[] = {1, 7, 15, 16};
const std::string one_call = "one call";

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
    to.push_back({row, level.key, "w16", ours(call), b});
    to.push_back({row, level.key, "array", loop(*array, elements), b});
    to.push_back({row, level.key, "copy", [](Buffers& buffers) {
        for (const Array& arg : buffers.args)
            for (Array& result : buffers.results) copy(arg.data(), result.data(), std::min(arg.bytes(), result.bytes()));
    }, b});
    to.push_back({row, level.key, one_call, [=, batch = call.batch(), address = call.address()](Buffers& buffers) {
        const std::byte* pointers[3] = {};
        for (std::size_t a = 0; a < buffers.args.size(); a++) pointers[a] = buffers.args[a].data();
        batch(address, pointers, buffers.result(), buffers.second(), 1);
    }, b});
    for (const std::size_t n : few) to.push_back({row, level.key, "n=" + std::to_string(n), loop(*array, n), b});
}

// Keeps the least time of each entrant.
class Least : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs)
            if (run.run_type == Run::RT_Iteration) {
                const auto [at, first] = ns_.try_emplace(run.run_name.function_name, run.GetAdjustedRealTime());
                if (!first) at->second = std::min(at->second, run.GetAdjustedRealTime());
            }
    }
    double of(const Entrant& e) const { return ns_.at(e.key()); }
    double of(const Entrant& e, const std::string& column) const { return ns_.at(Entrant{e.row, e.level, column, {}, {}}.key()); }

private:
    std::map<std::string, double> ns_;
};

// One row's entrants take short turns at random: what else the machine does falls on all of them alike.
void run_row(std::span<const Entrant> row, Least& least) {
    for (const Entrant& e : row)
        benchmark::RegisterBenchmark(e.key().c_str(), [&e](benchmark::State& state) {
            for (auto _ : state) {
                e.run(*e.buffers);
                benchmark::ClobberMemory();
            }
        })->Repetitions(10)->MinTime(0.0002);
    benchmark::RunSpecifiedBenchmarks(&least);
    benchmark::ClearRegisteredBenchmarks();
}

// An element each. Of few elements the ratio to one call's time is kept, of SLEEF's functions on arrays the nearest.
Times times_of(const std::vector<Entrant>& entrants, const Least& least, bool arrays) {
    Times times;
    const std::string kind = !arrays ? "call" : elements > in_cache ? "memory" : "array";
    for (const Entrant& e : entrants) {
        const double total = least.of(e), ns = total / static_cast<double>(elements);
        const TimedRow* before = times.find(kind, e.row, e.level);
        if (!arrays) {
            // Width 3 spends four stored lanes on three elements.
            times.add(kind, e.row, e.level, e.column, e.column == "w3" ? ns / 0.75 : ns);
        } else if (e.column.starts_with("n=")) {
            const double ratio = total / least.of(e, one_call);
            times.add(kind, e.row, e.level, "few/call", before->times.contains("few/call") ? std::max(ratio, before->at("few/call")) : ratio);
        } else if (e.column.starts_with("SLEEF")) {
            times.add(kind, e.row, e.level, "SLEEF", std::min(ns, before->at("SLEEF")));
        } else if (e.column != one_call) {
            times.add(kind, e.row, e.level, e.column, ns);
        }
    }
    return times;
}

}  // namespace

int main(int argc, char** argv) {
    CLI::App app{"Times exports beside the vector math libraries found on the machine.", "tarn-bench"};
    std::vector<std::string> bases;
    int rounds = 25;
    bool variants = false, tsv = false, arrays = false;
    std::string module_path = Module::built_path(), v3_path;
    app.add_option("FAMILY", bases, "families, such as expf (all that the module has, if none is named)");
    app.add_option("--rounds", rounds, "rounds of ten interleaved turns each, of which the least counts")->check(CLI::Range(1, 10000));
    app.add_flag("--variants", variants, "native and half forms too");
    app.add_flag("--tsv", tsv, "the times in lines of tab-separated fields");
    app.add_flag("--arrays", arrays, "functions on arrays, of the libtarn beside each module");
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
                        else for (const int w : widths) entrants.push_back({row, level->key, timed(w), ours(*m->find({f, w, v})), b});
                        add_peers(*f, *level, row, b, level->scalars && !arrays, entrants);
                    }
                }
            }
        }
        std::string name = "tarn-bench", interleave = "--benchmark_enable_random_interleaving=true";
        char* flags[] = {name.data(), interleave.data()};
        int flag_count = 2;
        benchmark::Initialize(&flag_count, flags);
        Least least;
        for (int round = 0; round < rounds; round++)
            for (auto first = entrants.begin(); first != entrants.end();) {
                const auto last = std::find_if(first, entrants.end(), [&](const Entrant& e) { return e.row != first->row; });
                run_row({first, last}, least);
                first = last;
            }
        const Times times = times_of(entrants, least, arrays);
        std::fputs((tsv ? times.text() : arrays ? arrays_text(times.rows(elements > in_cache ? "memory" : "array")) : calls_text(times.rows("call"))).c_str(), stdout);
        return 0;
    });
}
