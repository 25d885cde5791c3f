// What the callouts of the single-precision exponentials share: a power of two from 64 pairs.
#pragma once

#include "callout/scalar.hpp"

namespace tarn::callout {

#include "tables/exp2_pairs.inc"

inline constexpr double round_shifter = 0x1.8p52;  // 1.5 * 2^52: sums are rounded to integers

// n/64 as row and exponent.
struct Sixtyfourths {
    std::uint32_t row;
    int exponent;
};
TARN_INLINE Sixtyfourths sixtyfourths(std::uint32_t n) { return {n & 63, static_cast<std::int32_t>(n) >> 6}; }

// 2^(n/64) * (1 + q), for a q below 1/128.
TARN_INLINE double exp2_from_pair(Sixtyfourths n, double q) {
    const double hi = exp2_pairs[n.row][0], lo = exp2_pairs[n.row][1];
    return ((q + lo) * hi + hi) * power_of_two(n.exponent);
}

// The exponentials of an infinity or a NaN.
TARN_INLINE int exp_not_finite(float x, float* result) {
    *result = pattern(x) == 0xFF800000 ? 0.0f : x * x;
    return ordinary;
}

// e^X of |X| below 700, to about one unit of double precision.
double exp_of(double X);

// e^X for an X between -104 and 88.8, rounded to single precision once.
int exp_in_range(double X, float* result);

// e^X for a finite single X, rounded to single precision once; also what expm1f becomes above 86.
int exp_of_finite(double X, float* result);

}  // namespace tarn::callout
