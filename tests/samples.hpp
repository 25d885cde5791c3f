// Inputs for the table-driven tests: everything a family's row says about where it changes its way,
// the edges of the format, and random patterns and values.
#pragma once

#include <bit>
#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "common/arrays.hpp"

namespace tarn::test {

inline constexpr std::size_t widest = 16;

// Infinities, NaNs quiet and signalling, zeros, the ends of the subnormal and the normal range, small
// integers and halves, and for integers the ends of theirs.
inline std::vector<std::uint64_t> edges(Lane type) {
    std::vector<std::uint64_t> v;
    if (is_float(type)) {
        const bool single = type == Lane::f32;
        const std::uint64_t sign = single ? 0x80000000 : 0x8000000000000000;
        const std::uint64_t inf = single ? 0x7F800000 : 0x7FF0000000000000;
        const std::uint64_t least_normal = single ? 0x00800000 : 0x0010000000000000;
        v = {0, 1, 2, least_normal - 1, least_normal, least_normal + 1, least_normal * 2, inf - 1, inf,
             inf + 1, inf + (least_normal >> 1), inf + (least_normal >> 1) + 0x1234, inf + least_normal - 1};
        for (const double x : {0.25, 0.5, 0.75, 1.0, 1.5, 2.0, 2.5, 3.0, 4.0, 7.0, 10.0, 33.0, 1e-10, 1e10, 1e-30, 1e30})
            v.push_back(pattern_of(type, x));
        for (const double x : {1.0, 0.5, 2.0})
            v.push_back(pattern_of(type, x) - 1), v.push_back(pattern_of(type, x) + 1);
        for (std::size_t i = v.size(); i-- > 0;) v.push_back(v[i] | sign);
    } else {
        for (const std::int64_t x : {0, 1, 2, 3, 4, 5, 7, 8, 31, 64, 100, 127, 1000}) {
            v.push_back(pattern_of(type, static_cast<double>(x)));
            v.push_back(static_cast<std::uint64_t>(-x) & (bytes(type) == 8 ? ~0ull : 0xffffffff));
        }
        const std::uint64_t top = bytes(type) == 8 ? 0x8000000000000000 : 0x80000000;
        v.insert(v.end(), {top - 1, top, top + 1, (top << 1) - 1});
    }
    return v;
}

// The edges, and the family's thresholds with their neighbours at both signs.
inline std::vector<std::uint64_t> structured(const Family& f, std::size_t argument) {
    const Lane type = f.shape.args[argument];
    auto v = edges(type);
    if (!is_float(type)) return v;
    const std::uint64_t sign = type == Lane::f32 ? 0x80000000 : 0x8000000000000000;
    for (const std::uint64_t t : f.thresholds)
        for (const std::uint64_t p : {t - 1, t, t + 1}) v.push_back(p), v.push_back(p | sign);
    return v;
}

// A lane at random: in the usual interval, or any pattern.
inline std::uint64_t random_lane(const Family& f, std::size_t argument, bool usual, std::mt19937_64& random) {
    const Lane type = f.shape.args[argument];
    if (!usual || argument >= f.usual.size()) {
        // Integers of every size alike.
        if (!is_float(type)) {
            const std::uint64_t v = random() >> (random() % 64);
            return (random() & 1 ? 0 - v : v) & (bytes(type) == 8 ? ~0ull : 0xffffffff);
        }
        return random() & (bytes(type) == 8 ? ~0ull : 0xffffffff);
    }
    const auto [low, high] = f.usual[argument];
    const double u = static_cast<double>(random() >> 11) * 0x1p-53;
    return pattern_of(type, low * (1 - u) + high * u);
}

// All structured inputs (all pairs of them for two arguments), then `count` random ones.
inline std::vector<Lanes> samples(const Family& f, std::size_t count, std::uint64_t seed = 1) {
    std::mt19937_64 random(seed);
    const std::size_t arity = f.shape.args.size();
    std::vector<std::vector<std::uint64_t>> rows;
    const auto x = structured(f, 0);
    if (arity == 1) {
        for (const auto p : x) rows.push_back({p});
    } else {
        const auto y = structured(f, 1);
        for (const auto p : x)
            for (const auto q : y) {
                rows.push_back({p, q});
                if (arity == 3) rows.back().push_back(x[random() % x.size()]);
            }
    }
    for (std::size_t i = 0; i < count; i++) {
        rows.emplace_back();
        for (std::size_t a = 0; a < arity; a++) rows.back().push_back(random_lane(f, a, i % 2 == 0, random));
    }
    std::vector<Lanes> args;
    for (std::size_t a = 0; a < arity; a++) {
        args.emplace_back(f.shape.args[a], rows.size());
        for (std::size_t i = 0; i < rows.size(); i++) args[a].set(i, rows[i][a]);
    }
    return args;
}

// The inputs for which `keep` holds, up to whole calls of the widest width.
template <class Keep> std::vector<Lanes> where(const std::vector<Lanes>& args, Keep keep) {
    std::vector<std::size_t> kept;
    for (std::size_t i = 0; i < args[0].size(); i++)
        if (keep(i)) kept.push_back(i);
    std::vector<Lanes> out;
    for (const Lanes& arg : args) {
        out.emplace_back(arg.type(), kept.size());
        for (std::size_t i = 0; i < kept.size(); i++) out.back().set(i, arg.pattern(kept[i]));
    }
    return out;
}

// Those for which a native form keeps its error.
inline std::vector<Lanes> in_native_domain(const Family& f, const std::vector<Lanes>& args) {
    return where(args, [&](std::size_t i) {
        for (std::size_t a = 0; a < f.native_domain.size(); a++) {
            const double v = value_of(args[a].type(), args[a].pattern(i));
            if (!(v >= f.native_domain[a].low && v <= f.native_domain[a].high)) return false;
        }
        return true;
    });
}

// Inputs sorted by the path a whole call takes with them: one set for most families, two for those
// that one large lane switches over. A family whose special lanes share a block gives ordinary ones.
inline std::vector<std::vector<Lanes>> by_path(const Family& f, const std::vector<Lanes>& args) {
    const auto value = [&](std::size_t a, std::size_t i) { return std::fabs(value_of(args[a].type(), args[a].pattern(i))); };
    if (f.switches_above != 0)
        return {where(args, [&](std::size_t i) { return !(value(0, i) > f.switches_above); }),
                where(args, [&](std::size_t i) { return value(0, i) > f.switches_above; })};
    if (f.shares_blocks)
        return {where(args, [&](std::size_t i) {
            return std::isfinite(value(0, i)) && std::isfinite(value(1, i)) && value(0, i) != 0 && value(1, i) != 0;
        })};
    return {args};
}

// The module under test.
inline const Module& module() {
    static const Module m;
    return m;
}

// And the functions on arrays.
inline const ArrayLibrary& library() {
    static const ArrayLibrary l;
    return l;
}

// One row for each family and variant that the module has.
struct Member {
    const Family* family;
    Variant variant;
    Function at(int width) const { return module().find({family, width, variant}).value(); }
    std::string name() const { return family->base + suffix(variant); }
};
inline std::vector<Member> members() {
    std::vector<Member> all;
    for (const Family& f : families())
        for (const Variant v : all_variants)
            if (f.has(v)) all.push_back({&f, v});
    return all;
}
inline void PrintTo(const Member& m, std::ostream* out) { *out << m.name(); }
inline std::string member_name(const auto& info) { return info.param.name(); }

// NaNs are one value: payloads are not compared.
inline bool same(Lane type, std::uint64_t a, std::uint64_t b) {
    return a == b || (is_float(type) && std::isnan(value_of(type, a)) && std::isnan(value_of(type, b)));
}

inline std::string hex(std::uint64_t p) {
    char text[32];
    std::snprintf(text, sizeof text, "0x%llx", static_cast<unsigned long long>(p));
    return text;
}
inline std::string lanes_text(const std::vector<Lanes>& args, std::size_t i) {
    std::string text;
    for (const Lanes& arg : args) text += (text.empty() ? "" : ", ") + hex(arg.pattern(i));
    return text;
}

// What a function makes of its arguments.
struct Results {
    Lanes first, second;

    Results() = default;
    Results(const Function& f, const std::vector<Lanes>& args) { f(args, first, &second); }

    // The first difference between lane i and another's lane j, as words; empty where there is none.
    std::string difference(std::size_t i, const Results& other, std::size_t j) const {
        if (!same(first.type(), first.pattern(i), other.first.pattern(j)))
            return hex(first.pattern(i)) + " and " + hex(other.first.pattern(j));
        if (second.size() != 0 && !same(second.type(), second.pattern(i), other.second.pattern(j)))
            return "second " + hex(second.pattern(i)) + " and " + hex(other.second.pattern(j));
        return "";
    }
};

}  // namespace tarn::test
