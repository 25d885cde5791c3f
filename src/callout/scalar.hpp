// The callouts' scalar toolkit: bit fields, scaling, and results that must raise their flags.
#pragma once

#include "callout/callouts.hpp"
#include "frame/simd.hpp"

namespace tarn::callout {

TARN_INLINE std::uint32_t pattern(float x) { return static_cast<std::uint32_t>(bits(x)); }
TARN_INLINE std::uint64_t pattern(double x) { return static_cast<std::uint64_t>(bits(x)); }

TARN_INLINE bool is_nan(float x) { return x != x; }
TARN_INLINE bool is_nan(double x) { return x != x; }

// Comparisons for what may be a NaN: the language's own but == and != raise invalid for a quiet one, with some compilers.
// They are for branches: of a choice between two values the compiler may make a comparison of vectors, which raises it
// again.
template <class Real> TARN_INLINE bool is_below(Real x, std::type_identity_t<Real> y) { return __builtin_isless(x, y); }
template <class Real> TARN_INLINE bool is_above(Real x, std::type_identity_t<Real> y) { return __builtin_isgreater(x, y); }

// A NaN made quiet, raising invalid if it was not; and no operation on what is none.
template <class Real> TARN_INLINE Real quiet(Real nan) { return opaque(nan) + nan; }

// Set for -0 too.
TARN_INLINE bool has_sign(float x) { return bits(x) < 0; }
TARN_INLINE bool has_sign(double x) { return bits(x) < 0; }

// Infinity or NaN.
TARN_INLINE bool not_finite(float x) { return (pattern(x) & 0x7F800000) == 0x7F800000; }
TARN_INLINE bool not_finite(double x) { return pattern(x) >> 52 << 53 == 0xFFE0000000000000; }

TARN_INLINE bool is_subnormal(float x) { return (pattern(x) & 0x7F800000) == 0 && x != 0; }

// 2^e for an exponent that a normal double has.
TARN_INLINE double power_of_two(int e) { return f64(static_cast<std::uint64_t>(e + 1023) << 52); }

// Results beyond the range, made by operations that raise the flags: the largest double squared, and
// a square that vanishes.
TARN_INLINE double overflowed() {
    const double largest = opaque(f64(0x7FEFFFFFFFFFFFFF));
    return largest * largest;
}
TARN_INLINE double underflowed() {
    const double smallest = opaque(f64(0x0010000000000001));
    return smallest * smallest;
}

// A NaN that raises invalid, and an infinity of the zero's sign that raises division by zero.
TARN_INLINE double invalid() {
    const double zero = opaque(0.0);
    return zero / zero;
}
TARN_INLINE double infinity_from(double zero) { return 1.0 / opaque(zero); }

// x times a scale that has absorbed 1.5 * 2^k, so that its sum's low bits hold the rounded product:
// the reduction of every exponential.
struct Rounded {
    std::uint32_t low_bits;
    double value;
};
TARN_INLINE Rounded round_by_shifter(double x, double shifter) {
    const double sum = x + shifter;
    return {static_cast<std::uint32_t>(pattern(sum)), sum - shifter};
}

// Stores a callout's result, rounded once, and hands the status on.
template <class Real> TARN_INLINE int give(Real* result, double value, Status status = ordinary) {
    *result = static_cast<Real>(value);
    return status;
}

}  // namespace tarn::callout
