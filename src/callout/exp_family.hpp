// What the callouts of the single-precision exponentials share: a power of two from 64 pairs.
#pragma once

#include <limits>

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

// s + hi, scaled by 2^exponent, where the result is subnormal: the sum is cut to a head short enough that
// adding its tail is the only rounding. Where the sum itself is not normal at 2^60 times its size, it has
// no more bits than the result.
TARN_INLINE double subnormal_sum(double s, double hi, int exponent) {
    const double scale = power_of_two(exponent + 60);
    const double a = s * scale, b = scale * hi;
    const double y = a + b;
    if (exponent + 1083 <= 50) return y * 0x1p-60;
    const double e = a + (b - y);
    const double v = y * 0x1.8p32;
    const double h = (y + v) - v;
    const double l = (y - h) + e;
    return h * 0x1p-60 + l * 0x1p-60;
}

// 2^exponent times v, an exponent of 1024 in two steps.
TARN_INLINE double scaled_up(double v, int exponent) {
    return exponent > 1023 ? v * power_of_two(exponent - 1) * 2.0 : v * power_of_two(exponent);
}

// The exponentials of an infinity or a NaN.
template <class Real> TARN_INLINE int exp_not_finite(Real x, Real* result) {
    constexpr Real infinity = std::numeric_limits<Real>::infinity();
    *result = bits(x) == bits(-infinity) ? Real(0) : x * x;
    return ordinary;
}

// A power as 2^exponent (s + hi), for any X for which a double holds it.
struct ExpParts {
    double s, hi;
    int exponent;
};
ExpParts exp_parts(double X);
ExpParts exp2_parts(double X);
ExpParts exp10_parts(double X);

// e^X of |X| below 700, to about one unit of double precision.
double exp_of(double X);

// e^X for an X between -104 and 88.8, rounded to single precision once.
int exp_in_range(double X, float* result);

// e^X for a finite single X, rounded to single precision once; also what expm1f becomes above 86.
int exp_of_finite(double X, float* result);

}  // namespace tarn::callout
