#include "families/families.hpp"

namespace tarn {
namespace {

std::vector<Family> with_conversions(std::vector<Family> rows) {
    const auto add = [&](std::string base, Lane from, Lane to, std::string formula, std::string special, std::string computed) {
        rows.push_back({.base = std::move(base), .shape = converts(from, to), .group = "Conversions",
                        .formula = std::move(formula), .special = std::move(special), .computed = std::move(computed)});
    };
    const struct { const char* name; const char* words; } modes[] = {
        {"rte", "to nearest, ties to even"}, {"rtn", "down"}, {"rtp", "up"}, {"rtz", "toward zero"}};
    const struct { const char* name; Lane lane; } integers[] = {
        {"i32", Lane::i32}, {"u32", Lane::u32}, {"i64", Lane::i64}, {"u64", Lane::u64}};
    const struct { const char* suffix; Lane lane; } floats[] = {{"f", Lane::f32}, {"", Lane::f64}};

    for (const auto& [f, real] : floats)
        for (const auto& [name, integer] : integers)
            for (const auto& [mode, words] : modes)
                for (const bool sat : {true, false}) {
                    const char* outside =
                        sat ? (integer == Lane::u32 ? "Clamped to the integer's range; a NaN gives all ones, or 0 with its sign set."
                               : "Clamped to the integer's range; a NaN gives 0.")
                        : integer == Lane::u32 ? "The sign is dropped; from 2^32 on and NaN 0x80000000."
                        : integer == Lane::i32 ? "Out of range and NaN 0x80000000."
                                               : "Out of range and NaN 0x8000000000000000.";
                    add(std::string("cvtfpto") + name + mode + (sat ? "sat" : "nosat") + f, real, integer,
                        std::string("x rounded ") + words, outside,
                        "The round instruction first, so that the conversion after it is exact; 64-bit integers are made from doubles.");
                }
    for (const auto& [f, real] : floats)
        for (const auto& [name, integer] : integers)
            for (const auto& [mode, words] : modes)
                add(std::string("cvt") + name + "tofp" + mode + f, integer, real, std::string("x rounded ") + words,
                    "0 gives +0.",
                    "The sum of pieces that the format holds, and its exact error for the directed roundings.");
    for (const auto& [mode, words] : modes)
        add(std::string("cvtfp64tofp32") + mode, Lane::f64, Lane::f32, std::string("x rounded ") + words,
            "-0 is kept; NaN gives a quiet NaN.",
            "The processor's conversion, and the neighbour where its result lies on the wrong side of x.");
    return rows;
}

}  // namespace

const std::vector<Family>& families() {
    using enum Lane;
    static const std::vector<Family> all = with_conversions({
#include "families/exp.def"
#include "families/log.def"
#include "families/pow.def"
#include "families/roots.def"
#include "families/trig.def"
#include "families/inverse_trig.def"
#include "families/hyperbolic.def"
#include "families/special.def"
#include "families/rounding.def"
#include "families/remainder.def"
    });
    return all;
}

const Family* find_family(const std::string& base) {
    for (const auto& f : families())
        if (f.base == base) return &f;
    return nullptr;
}

bool parse_export(const std::string& name, Export& out) {
    const std::string prefix = "__ocl_tarn_k1_";
    const std::string plain = name.starts_with(prefix) ? name.substr(prefix.size()) : name;
    for (const Variant v : all_variants)
        for (const int width : widths) {
            const std::string tail = std::to_string(width) + suffix(v);
            if (plain.size() <= tail.size() || !plain.ends_with(tail)) continue;
            const Family* f = find_family(plain.substr(0, plain.size() - tail.size()));
            if (f && f->has(v)) {
                out = {f, width, v};
                return true;
            }
        }
    return false;
}

}  // namespace tarn
