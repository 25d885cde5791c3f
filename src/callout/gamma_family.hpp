// What the gamma functions of both precisions share: a logarithm in three parts, Stirling's formula, and the
// tables of ln |gamma| at small arguments.
#pragma once

#include "callout/scalar.hpp"

namespace tarn::callout {

#include "tables/gamma_log.inc"
#include "tables/gamma_log_rows.inc"
#include "tables/gamma_stirling.inc"
#include "tables/lgamma_log1p.inc"
#include "tables/lgamma_negative_zeros.inc"
#include "tables/lgamma_rows.inc"

// Heads so short that what they are multiplied with leaves the products exact.
inline constexpr double ln2_head = f64(0x3FE62E4300000000);  // 0.6931471824645996
inline constexpr double ln2_tail = f64(0xBE205C610CA86C39);  // -1.904654299957768e-09
// (ln(2 pi) - 1) / 2: (z - 1/2) ln(z / e) and this are Stirling's formula.
inline constexpr double stirling_head = f64(0x3FDACFE390000000);  // 0.4189385324716568
inline constexpr double stirling_tail = f64(0x3E092FAD29A4A5E5);  // 7.330159424639235e-10
inline constexpr double stirling_constant = stirling_head + stirling_tail;
inline constexpr double twelfth = gamma_stirling[0];

// c0 + c1 t + ... of 6, 8, 10 or 12 coefficients, lowest first: Estrin's scheme in two lanes, one for even powers,
// one for odd.
template <int count> TARN_INLINE double polynomial(const double* c, double t) {
    const auto pair = [=](int i) __attribute__((always_inline)) { return f64x2{c[2 * i], c[2 * i + 1]}; };
    const f64x2 t2 = filled<f64x2>(t * t), t4 = t2 * t2;
    f64x2 high = pair(2);
    if constexpr (count > 6) high = high + pair(3) * t2;
    if constexpr (count == 10) high = high + pair(4) * t4;
    if constexpr (count == 12) high = high + (pair(4) + pair(5) * t2) * t4;
    const f64x2 sum = (pair(0) + pair(1) * t2) + high * t4;
    return sum[0] + sum[1] * t;
}

TARN_INLINE double floor_of(double X) {
    const __m128d v = _mm_set_sd(X);
    return _mm_cvtsd_f64(_mm_floor_sd(v, v));
}
TARN_INLINE double nearest_of(double X) {
    const __m128d v = _mm_set_sd(X);
    return _mm_cvtsd_f64(_mm_round_sd(v, v, static_cast<int>(Rounding::nearest)));
}

TARN_INLINE bool is_odd(double whole) {
    const double half = whole * 0.5;
    return floor_of(half) != half;
}

// w without its last bits.
TARN_INLINE double cut(double w, int last_bits) { return f64(pattern(w) >> last_bits << last_bits); }

// A number as a double and what that leaves of it.
struct Split {
    double near, rest;
};

// ln(w / e) = (head + high) + small: head a multiple of 2^-26, high of 2^-31 and below 1/200, small below 2^-15.
struct Log {
    double head, high, small;
};
// Of a number with a positive normal double: w = 2^k m, and a row by the top bits of m has r, close to 1/m. The
// first bits of m give the head of f = r m - 1 exactly, what they leave gives its tail.
TARN_INLINE Log log_over_e(Split w) {
    const std::uint64_t p = pattern(w.near);
    // The exponent in the low bits of 2^52.
    const double k = f64(p >> 52 | 0x4330000000000000) - (0x1p52 + 1023);
    const double m = f64((p & 0x000FFFFFFFFFFFFF) | 0x3FF0000000000000), first = cut(m, 32);
    const auto [reciprocal, head, tail] = gamma_log_rows[p >> 45 & 127];
    const double low = w.rest == 0 ? m - first : (m - first) + w.rest * power_of_two(1023 - static_cast<int>(p >> 52));
    const double high = reciprocal * first - 1.0, rest = reciprocal * low;
    const double f = high + rest;
    return {k * ln2_head + head, high, rest + ((k * ln2_tail + tail) + f * f * polynomial<6>(gamma_log, f))};
}

// Stirling's series in v = 1/z, from z = 64 on.
TARN_INLINE double stirling_series_from_64(double v) { return v * horner(v * v, gamma_stirling[3], gamma_stirling[2], twelfth); }

// The sixteenth of an octave in which x lies, from 1/2 on. Tables by it have the interval's middle in front.
TARN_INLINE std::uint64_t sixteenth(double x) { return (pattern(x) >> 48) - 0x3FE0; }

// ln gamma over (x - 1)(x - 2) for x in [1/2, 64).
TARN_INLINE const double* log_gamma_row(double x) { return lgamma_rows[sixteenth(x)]; }

// The zeros of ln |gamma| lie on both sides of the integers from -3 on, and below -2. The row of the one that is
// next to -a, 2 < a < 16.5: n is the integer next to a, y = n - a.
inline constexpr double negative_zeros_end = 16.0;
TARN_INLINE const double* negative_zero_row(double n, double y) {
    return lgamma_negative_zeros[2 * (static_cast<int>(n) - 2) - (y > 0)];
}

}  // namespace tarn::callout
