// Powers in double precision from the pair of log2 x: log2 x^y or log2 x^(1/n) as a pair again, and 2^z of
// a pair. n = round(128 z) gives T = 2^(n/128), its fraction from a table and the rest in the exponent field; the
// remainder r, below 1/256, makes up with a polynomial of degree 5.
#pragma once

#include "double/exp/parts.hpp"
#include "double/pow/log2_pair.hpp"
#include "frame/kernel.hpp"

namespace tarn {

// log2 of x^y; the head is exact.
TARN_INLINE Log2Pair log2_of_power(const Log2Pair& log, f64x2 y) {
    const f64x2 yh = short_head(y), lh = short_head(log.head);
    return {yh * lh, (yh * (log.head - lh) + (y - yh) * log.head) + y * log.tail};
}

// log2 of x^(1/n) for an integer n: a quotient, and its remainder over n. The products of both halves of the
// quotient with n are exact where the remainder counts.
TARN_INLINE Log2Pair log2_of_root(const Log2Pair& log, f64x2 n) {
    const f64x2 z = log.head / n;
    const f64x2 zh = short_head(z);
    return {z, (((log.head - zh * n) - (z - zh) * n) + log.tail) / n};
}

// 2^z before its power of two: with T the row's value, scaled or not, it is T + (r T) q.
struct Exp2Parts {
    f64x2 row, r, q;
    f64x2 shifted;  // 128ths in the low bits
};
TARN_INLINE Exp2Parts exp2_parts(const Log2Pair& z) {
    const f64x2 shifter = splat_f64(0x42C8000000000000);  // 52776558133248.0 = 1.5 * 2^45
    const f64x2 c5 = splat_f64(0x3F55D87FE78A6731);       // 0.0013333558146428443
    const f64x2 c4 = splat_f64(0x3F83B2AB6FBA4E77);       // 0.009618129107628477
    const f64x2 c3 = splat_f64(0x3FAC6B08D704A0BF);       // 0.055504108664821576
    const f64x2 c2 = splat_f64(0x3FCEBFBDFF82C58E);       // 0.2402265069591007
    const f64x2 c1 = splat_f64(0x3FE62E42FEFA39EF);       // 0.6931471805599453
    const f64x2 shifted = z.head + shifter;
    const f64x2 r = (z.head - (shifted - shifter)) + z.tail;
    return {exp2_128th(shifted), r, horner(r, c5, c4, c3, c2, c1), shifted};
}
TARN_INLINE f64x2 exp2_sum(f64x2 T, f64x2 r, f64x2 q) { return T + (r * T) * q; }

// The power of a pair; lanes that are not positive and normal, and exponents above the bound, are special. Infinite
// and NaN operands make an exponent above every bound.
TARN_INLINE Flagged<f64x2, i32x4> pair_power(f64x2 x, const Log2Pair& z, std::uint32_t bound) {
    const auto [row, r, q, shifted] = exp2_parts(z);
    return {exp2_sum(raised<7>(row, shifted), r, q), not_positive_normal(x) | upper_magnitude_above(z.head, bound)};
}

// Upper words just below 1000 and 990.
inline constexpr std::uint32_t largest_exponent = 0x408F3FFE;
inline constexpr std::uint32_t largest_integer_exponent = 0x408EEFFE;

}  // namespace tarn
