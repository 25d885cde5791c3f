// The table of exports: one row a family, read by the header, the version script, the tests, the
// benches and the documents. Nothing else lists the functions.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

namespace tarn {

enum class Lane : std::uint8_t { none, f32, f64, i32, u32, i64, u64 };

struct Shape {
    Lane result = Lane::none;
    std::vector<Lane> args;
    Lane second = Lane::none;  // a second result
    bool pair = false;         // both results returned, not the second through a pointer
    bool operator==(const Shape&) const = default;
};

inline Shape unary(Lane t) { return {t, {t}}; }
inline Shape binary(Lane t) { return {t, {t, t}}; }
inline Shape ternary(Lane t) { return {t, {t, t, t}}; }
inline Shape with_integer(Lane t) { return {t, {t, Lane::i32}}; }
inline Shape converts(Lane from, Lane to) { return {to, {from}}; }
inline Shape second(Lane t, Lane s) { return {t, {t}, s}; }
inline Shape binary_second(Lane t, Lane s) { return {t, {t, t}, s}; }
inline Shape returned_pair(Lane t) { return {t, {t}, t, true}; }

enum Variants : unsigned { full_only = 0, native = 1, half = 2 };
enum class Variant { full, native, half };

inline constexpr double left_open = -1;  // OpenCL sets no bound

// The worst error measured, and the input patterns where it occurs.
struct Worst {
    double ulp = 0;
    std::vector<std::uint64_t> at;
};

struct Interval {
    double low, high;
};

// How a profile of errors lays its bins over the first argument. By binades they are between two magnitudes (0: the
// least normal number, the largest one), linear from low to high; one bin to each side has what is left.
enum class Scale { binades, linear };
struct Axis {
    Scale scale = Scale::binades;
    double low = 0, high = 0;
};

struct Family {
    std::string base;
    Shape shape;
    unsigned variants = full_only;

    // For people.
    std::string group;    // heading in the header
    std::string formula;  // with x, y, z the arguments
    std::string domain;   // units and the arguments that have a value
    std::string special;  // zeros, infinities, NaN and what else is not plain
    std::string computed{};  // how, in a sentence or two

    // Errors in units in the last place: what OpenCL allows (0: the result is exact or correctly
    // rounded) and what was measured. A width with a kernel of its own has its own error; half is
    // native where it has no entry.
    double allowed = 0;
    Worst full{}, native_worst{}, half_worst{};
    std::vector<std::pair<int, Worst>> width_full{};
    std::vector<int> exceeds_bound{};  // widths whose kernel exceeds what OpenCL allows; their bits stay
    std::string measured{};  // over what
    // Bounds that proofs/ proves for the fast path of the full form, for widths without a kernel of their own and for
    // those with one; 0: none. Rounded up.
    double proved = 0;
    std::vector<std::pair<int, double>> width_proved{};

    // Where every library at hand is on its fast path, for each argument: benches and dense samples.
    std::vector<Interval> usual{};
    // Where a native form keeps its error; empty means everywhere.
    std::vector<Interval> native_domain{};
    // Patterns at which the kernels or callouts change their way, whatever the sign.
    std::vector<std::uint64_t> thresholds{};
    // Magnitudes above which one lane sends the whole call down another path; 0: there are none.
    double switches_above = 0;
    // A lane with a zero, an infinity or a NaN changes the way of the others in its 16-byte block.
    bool shares_blocks = false;
    // Forms that start from the processor's estimate of a reciprocal or of its root.
    std::vector<Variant> estimates{};
    // What else a caller would not expect of equal widths and exact values, in a sentence.
    std::string also{};
    Axis axis{};
    // The largest error of the full form found in the rounding modes that are not to nearest (directed_test).
    double directed = 0;

    // The ends of an axis by binades, as powers of two.
    Interval binades() const {
        const bool single = shape.args[0] == Lane::f32;
        return {axis.low != 0 ? std::log2(axis.low) : single ? -126 : -1022,
                axis.high != 0 ? std::log2(axis.high) : single ? 128 : 1024};
    }

    bool has(Variant v) const {
        return v == Variant::full || (variants & (v == Variant::native ? native : half)) != 0;
    }
    bool exceeds(int width) const {
        return std::find(exceeds_bound.begin(), exceeds_bound.end(), width) != exceeds_bound.end();
    }
    const Worst& worst(Variant v, int width) const {
        if (v == Variant::half && half_worst.ulp != 0) return half_worst;
        if (v != Variant::full) return native_worst;
        for (const auto& [w, own] : width_full)
            if (w == width) return own;
        return full;
    }
    // Of the full form's fast path at a width; 0: nothing is proved.
    double proved_at(int width) const {
        for (const auto& [w, own] : width_proved)
            if (w == width) return own;
        for (const auto& [w, own] : width_full)
            if (w == width) return 0;
        return proved;
    }
};

inline constexpr int widths[] = {1, 2, 3, 4, 8, 16};
inline constexpr Variant all_variants[] = {Variant::full, Variant::native, Variant::half};

inline const char* suffix(Variant v) {
    return v == Variant::full ? "" : v == Variant::native ? "_native" : "_half";
}
inline std::string export_name(const std::string& base, int width, Variant v) {
    return "__ocl_tarn_k1_" + base + std::to_string(width) + suffix(v);
}
// The same function on arrays.
inline std::string array_name(const std::string& base, Variant v) { return "tarn_" + base + suffix(v); }

// All families, in the order of the header.
const std::vector<Family>& families();

// Null where there is none.
const Family* find_family(const std::string& base);

struct Export {
    const Family* family;
    int width;
    Variant variant;
};
// Takes a name apart, with or without the library's prefix. A base may itself end in a digit or an f
// (exp22 is exp2 at width 2, exp2 is exp at width 2), so every way to cut it is held against the table.
bool parse_export(const std::string& name, Export& out);

inline int bytes(Lane t) { return t == Lane::none ? 0 : t == Lane::f64 || t == Lane::i64 || t == Lane::u64 ? 8 : 4; }
inline bool is_float(Lane t) { return t == Lane::f32 || t == Lane::f64; }

}  // namespace tarn
