// Two modules that ought to be one: every export of both called on the same lanes, the results and second
// results compared bit for bit, and with --flags what each call raises.
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <map>

#include "common/cli.hpp"
#include "raised.hpp"
#include "samples.hpp"

namespace tarn::test {
namespace {

constexpr std::size_t chunk_lanes = 4096;
constexpr int nothing_to_compare = 77;  // CTest's skip

// The exports whose bits a digest pins: of their families' fast paths much is known already.
struct Pinned {
    const char* name;
    std::uint64_t digest;
};
const Pinned pinned[] = {
#include "bits.def"
};

bool is_pinned(const Family& family) {
    return std::any_of(std::begin(pinned), std::end(pinned), [&](const Pinned& p) {
        Export e;
        return parse_export(p.name, e) && e.family == &family;
    });
}

struct Options {
    std::uint64_t lanes = 1 << 16;  // of each export
    std::uint64_t pinned_lanes = 0;  // of those of the pinned families, if not as many
    std::uint64_t seed = 1;
    int width = 0;  // 0: every width
    bool flags = false;
    std::vector<std::string> bases;
};

// Inputs ------------------------------------------------------------------------------------------

// A lane from the places where kernels change their way: structured, next to one, beyond the family's switch.
std::uint64_t special_lane(const Family& f, std::size_t a, const std::vector<std::uint64_t>& known, std::mt19937_64& random) {
    const Lane type = f.shape.args[a];
    const std::uint64_t all = bytes(type) == 8 ? ~0ull : 0xffffffff;
    const std::uint64_t p = known[random() % known.size()];
    switch (random() % 4) {
        case 0: return (p + (random() >> (random() % 64))) & all;
        case 1: return random_lane(f, a, false, random);
        case 2:
            if (f.switches_above != 0) {
                const double large = f.switches_above * std::ldexp(1.0, static_cast<int>(random() % (type == Lane::f32 ? 60 : 900)));
                return pattern_of(type, random() & 1 ? large : -large);
            }
            return p;
        default: return p;
    }
}

// Vectors of 16 lanes, narrow widths take them in pieces: all ordinary, any patterns, special lanes only, one special
// lane in each position, some anywhere. Lane 3 of width 3 is whatever it comes to be.
std::vector<Lanes> random_chunk(const Family& f, std::mt19937_64& random) {
    std::vector<Lanes> args;
    std::vector<std::vector<std::uint64_t>> known;
    for (std::size_t a = 0; a < f.shape.args.size(); a++)
        args.emplace_back(f.shape.args[a], chunk_lanes), known.push_back(structured(f, a));
    for (std::size_t start = 0; start < chunk_lanes; start += widest) {
        const std::uint64_t kind = random() % 8, one = random() % widest;
        for (std::size_t i = 0; i < widest; i++) {
            const bool special = kind == 0 || (kind >= 3 && kind <= 5 && i == one) || (kind == 6 && random() % 4 == 0);
            // At least one argument of a special lane is special.
            const std::uint64_t which = 1 + random() % 7;
            for (std::size_t a = 0; a < args.size(); a++) {
                const bool this_one = special && (args.size() == 1 || which >> a & 1);
                args[a].set(start + i, this_one ? special_lane(f, a, known[a], random) : random_lane(f, a, kind != 1, random));
            }
        }
    }
    return args;
}

// One export --------------------------------------------------------------------------------------

struct Found {
    std::uint64_t lanes = 0, calls = 0;
    std::uint64_t different = 0, payloads = 0, flags_differ = 0;
    unsigned raised_by_first = 0, raised_by_second = 0;  // and not by the other
    std::string first, first_flags;
};

struct Output {
    explicit Output(const Shape& shape) : result(shape.result, chunk_lanes), second(shape.second, chunk_lanes) {}
    Lanes result, second;
    std::vector<unsigned char> flags;
};

void call(const Function& f, const std::vector<Lanes>& args, std::size_t calls, bool flags, Output& out) {
    const std::size_t stored = f.width() == 3 ? 4 : static_cast<std::size_t>(f.width());
    const std::byte* pointers[3] = {};
    for (std::size_t a = 0; a < args.size(); a++) pointers[a] = args[a].data();
    if (!flags) return f.batch()(f.address(), pointers, out.result.data(), out.second.data(), calls);
    const auto stride = [&](Lane type) { return stored * static_cast<std::size_t>(bytes(type)); };
    out.flags.resize(calls);
    for (std::size_t c = 0; c < calls; c++) {
        clear_raised();
        f.batch()(f.address(), pointers, out.result.data() + c * stride(out.result.type()),
                  out.second.data() + c * stride(out.second.type()), 1);
        out.flags[c] = static_cast<unsigned char>(raised());
        for (std::size_t a = 0; a < args.size(); a++) pointers[a] += stride(args[a].type());
    }
}

std::string vector_text(const std::vector<Lanes>& args, std::size_t start, std::size_t width) {
    std::string text;
    for (std::size_t i = 0; i < width; i++) text += (i ? "; " : "") + lanes_text(args, start + i);
    return text;
}

void compare_lanes(const std::vector<Lanes>& args, int width, const Lanes& a, const Lanes& b, const char* which, std::size_t count, Found& found) {
    if (std::memcmp(a.data(), b.data(), count * static_cast<std::size_t>(bytes(a.type()))) == 0) return;
    for (std::size_t i = 0; i < count; i++) {
        const std::uint64_t p = a.pattern(i), q = b.pattern(i);
        if (p == q || (width == 3 && i % 4 == 3)) continue;
        if (same(a.type(), p, q)) {
            found.payloads++;
            continue;
        }
        if (found.different++ != 0) continue;
        const std::size_t stored = width == 3 ? 4 : static_cast<std::size_t>(width), start = i - i % stored;
        found.first = '(' + lanes_text(args, i) + ") gives " + which + hex(p) + " and " + hex(q) + ", lane " +
                      std::to_string(i % stored) + " of " + vector_text(args, start, stored);
    }
}

void compare_chunk(const Function& f, const Function& g, const std::vector<Lanes>& args, bool flags, Found& found) {
    const Shape& shape = f.family().shape;
    const std::size_t stored = f.width() == 3 ? 4 : static_cast<std::size_t>(f.width());
    const std::size_t calls = args[0].size() / stored;
    Output a(shape), b(shape);
    call(f, args, calls, flags, a);
    call(g, args, calls, flags, b);
    found.calls += calls, found.lanes += calls * static_cast<std::size_t>(f.width());
    compare_lanes(args, f.width(), a.result, b.result, "", calls * stored, found);
    if (shape.second != Lane::none) compare_lanes(args, f.width(), a.second, b.second, "second ", calls * stored, found);
    for (std::size_t c = 0; c < a.flags.size(); c++) {
        if (a.flags[c] == b.flags[c]) continue;
        found.raised_by_first |= a.flags[c] & ~b.flags[c], found.raised_by_second |= b.flags[c] & ~a.flags[c];
        if (found.flags_differ++ == 0)
            found.first_flags = '(' + vector_text(args, c * stored, stored) + ") raises " + hex(a.flags[c]) + " and " + hex(b.flags[c]);
    }
}

std::string flag_names(unsigned bits) {
    static const char* const names[] = {"invalid", "denormal", "divide", "overflow", "underflow", "inexact"};
    std::string text;
    for (int i = 0; i < 6; i++)
        if (bits >> i & 1) (text += text.empty() ? "" : " ") += names[i];
    return text;
}

// Where a module has the processor's fused multiply-add, these raise what IEEE 754 asks and no more. A module without
// one raises that too, and more where pieces of the product leave the range.
bool may_raise_more(const Family& f) { return f.base == "fma" || f.base == "fmaf"; }

// Two modules -------------------------------------------------------------------------------------

// All exports of one family: each chunk of inputs serves its every width and variant.
std::map<std::string, Found> compare_family(const Module& a, const Module& b, const Family& family, const Options& o) {
    std::map<std::string, Found> found;
    std::vector<std::pair<Function, Function>> pairs;
    for (const Variant v : all_variants)
        for (const int width : widths) {
            if (!family.has(v) || (o.width != 0 && width != o.width)) continue;
            const auto f = a.find({&family, width, v}), g = b.find({&family, width, v});
            if (f && g) pairs.emplace_back(*f, *g);
            else found[export_name(family.base, width, v)] = {.different = 1, .first = "is missing"};
        }
    std::mt19937_64 random(o.seed);
    const auto compare = [&](const std::vector<Lanes>& args) {
        for (const auto& [f, g] : pairs) compare_chunk(f, g, args, o.flags, found[f.name()]);
    };
    const auto known = samples(family, 0);
    const std::uint64_t wanted = o.pinned_lanes != 0 && is_pinned(family) ? o.pinned_lanes : o.lanes;
    std::uint64_t done = 0;
    for (std::size_t start = 0; start < known[0].size() && done < wanted; start += chunk_lanes, done += chunk_lanes) {
        // Out of order, so that neighbours vary with the seed.
        std::vector<Lanes> args;
        for (const Lanes& arg : known) args.emplace_back(arg.type(), chunk_lanes);
        for (std::size_t i = 0; i < chunk_lanes; i++) {
            const std::size_t from = o.seed == 1 ? (start + i) % known[0].size() : random() % known[0].size();
            for (std::size_t k = 0; k < args.size(); k++) args[k].set(i, known[k].pattern(from));
        }
        compare(args);
    }
    for (; done < wanted; done += chunk_lanes) compare(random_chunk(family, random));
    for (auto& [name, f] : found)
        if (may_raise_more(family) && (f.raised_by_first == 0 || f.raised_by_second == 0)) f.flags_differ = 0;
    return found;
}

// Why the loader refuses a module, if it does.
std::string refusal(const std::string& path) try {
    const Module module(path);
    return "";
} catch (const std::runtime_error& error) {
    return error.what();
}

// Whether they are the same.
bool compare_modules(const std::string& path_a, const std::string& path_b, const Options& o) {
    const Module a(path_a), b(path_b);
    const auto start = std::chrono::steady_clock::now();
    std::uint64_t exports = 0, differ = 0, lanes = 0, payloads = 0, flags_differ = 0;
    for (const Family& family : families()) {
        if (!o.bases.empty() && std::find(o.bases.begin(), o.bases.end(), family.base) == o.bases.end()) continue;
        for (const auto& [name, found] : compare_family(a, b, family, o)) {
            exports++, lanes += found.lanes, payloads += found.payloads;
            differ += found.different != 0, flags_differ += found.flags_differ != 0;
            if (found.different != 0)
                std::printf("%s: %llu of %llu lanes differ, first %s\n", name.c_str(), static_cast<unsigned long long>(found.different),
                            static_cast<unsigned long long>(found.lanes), found.first.c_str());
            if (found.flags_differ != 0)
                std::printf("%s: flags (%s) differ in %llu of %llu calls, first %s\n", name.c_str(), flag_names(found.raised_by_first | found.raised_by_second).c_str(),
                            static_cast<unsigned long long>(found.flags_differ), static_cast<unsigned long long>(found.calls), found.first_flags.c_str());
        }
    }
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    std::printf("%s and %s: %llu exports, %.1f million lanes in %.1f s, %llu exports differ in bits", path_a.c_str(), path_b.c_str(),
                static_cast<unsigned long long>(exports), static_cast<double>(lanes) * 1e-6, seconds, static_cast<unsigned long long>(differ));
    if (o.flags) std::printf(", %llu in flags", static_cast<unsigned long long>(flags_differ));
    if (payloads != 0) std::printf(", %llu NaNs of other sign or payload", static_cast<unsigned long long>(payloads));
    std::printf("\n");
    if (exports == 0) throw cli::Refused("no export compared");
    return differ == 0 && flags_differ == 0;
}

}  // namespace
}  // namespace tarn::test

int main(int argc, char** argv) {
    using namespace tarn;
    CLI::App app("Compares two modules, export by export and bit by bit.\n  compare-modules A.so B.so expf pow --lanes 1000000", "compare-modules");
    std::string a, b, siblings;
    test::Options o;
    app.add_option("a", a, "a module")->required();
    app.add_option("b", b, "another, or nothing with --siblings");
    app.add_option("bases", o.bases, "families, without width; all if none is named");
    app.add_option("--siblings", siblings, "instead of B: the module of every build directory in this directory but A's own");
    app.add_option("--lanes", o.lanes, "lanes of each export")->capture_default_str();
    app.add_option("--pinned-lanes", o.pinned_lanes, "lanes of each export of a family whose bits are pinned, if not as many");
    app.add_option("--width", o.width, "one width only")->check(CLI::IsMember({1, 2, 3, 4, 8, 16}));
    app.add_option("--seed", o.seed, "of the random lanes")->capture_default_str();
    app.add_flag("--flags", o.flags, "compare IEEE's exceptions that each call raises, too");
    return cli::run(app, argc, argv, [&] {
        for (const auto& base : o.bases)
            if (!find_family(base)) throw cli::Refused("no family is called '" + base + "'");
        namespace fs = std::filesystem;
        std::vector<std::string> others;
        if (siblings.empty()) {
            if (b.empty()) throw cli::Refused("two modules are needed");
            others.push_back(b);
        } else {
            for (const auto& entry : fs::directory_iterator(siblings)) {
                const fs::path other = entry.path() / fs::path(a).filename();
                if (fs::exists(other) && !fs::equivalent(other, a)) others.push_back(other.string());
            }
            std::sort(others.begin(), others.end());
        }
        if (others.empty()) {
            std::printf("no other build in %s: nothing was compared\n", siblings.c_str());
            return test::nothing_to_compare;
        }
        bool alike = true, any = false;
        for (const auto& other : others) {
            // A build beside this one may be for another processor.
            if (const std::string why = siblings.empty() ? "" : test::refusal(other); why.find("ISA level") != std::string::npos) {
                std::printf("not compared: %s\n", why.c_str());
                continue;
            }
            alike &= test::compare_modules(a, other, o), any = true;
        }
        return !any ? test::nothing_to_compare : alike ? 0 : 1;
    });
}
