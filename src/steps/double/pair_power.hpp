// Powers in double precision from the pair of log2 x: log2 x^y or log2 x^(1/n) as a pair again, and 2^z of
// a pair. n = round(128 z) gives T = 2^(n/128), its fraction from a table and the rest in the exponent field; the
// remainder r, below 1/256, makes up with a polynomial of degree 5.
#pragma once

#include "frame/kernel.hpp"
#include "steps/double/exp_parts.hpp"
#include "steps/double/log2_pair.hpp"

namespace tarn::doubles {

// log2 of x^y; the head is exact.
template <class V> TARN_INLINE HeadTail<V> log2_of_power(const HeadTail<V>& log, V y) {
    const auto [yh, yl] = short_split(y);
    const auto [lh, ll] = short_split(log.head);
    return {yh * lh, (yh * ll + yl * log.head) + y * log.tail};
}

// log2 of x^(1/n) for an integer n: a quotient, and its remainder over n. The products of both halves of the
// quotient with n are exact where the remainder counts.
template <class V> TARN_INLINE HeadTail<V> log2_of_root(const HeadTail<V>& log, V n) {
    const V z = log.head / n;
    const auto [zh, zl] = short_split(z);
    return {z, (((log.head - zh * n) - zl * n) + log.tail) / n};
}

// 2^z before its power of two: with T the row's value, scaled or not, it is T + (r T) q.
template <class V> struct Exp2Parts {
    V row, r, q;
    V shifted;  // 128ths in the low bits
};
template <class V> TARN_INLINE Exp2Parts<V> exp2_parts(const HeadTail<V>& z) {
    constexpr double shifter = f64(0x42C8000000000000);  // 52776558133248.0 = 1.5 * 2^45
    // |r| <= 1/256; fit not recorded.
    constexpr double c5 = f64(0x3F55D87FE78A6731);       // 0.0013333558146428443
    constexpr double c4 = f64(0x3F83B2AB6FBA4E77);       // 0.009618129107628477
    constexpr double c3 = f64(0x3FAC6B08D704A0BF);       // 0.055504108664821576
    constexpr double c2 = f64(0x3FCEBFBDFF82C58E);       // 0.2402265069591007
    constexpr double c1 = f64(0x3FE62E42FEFA39EF);       // 0.6931471805599453
    const V shifted = z.head + shifter;
    const V r = (z.head - (shifted - shifter)) + z.tail;
    return {exp2_128th(shifted), r, horner(r, c5, c4, c3, c2, c1), shifted};
}
template <class V> TARN_INLINE V exp2_sum(V T, V r, V q) { return T + (r * T) * q; }

// The power of a pair; lanes that are not positive and normal, and exponents above the bound, are special. Infinite
// and NaN operands make an exponent above every bound.
template <class V> TARN_INLINE Flagged<V, WordsOf<V>> pair_power(V x, const HeadTail<V>& z, std::uint32_t bound) {
    const auto [row, r, q, shifted] = exp2_parts(z);
    return {exp2_sum(raised<7>(row, shifted), r, q), not_positive_normal(x) | upper_magnitude_above(z.head, bound)};
}

// Upper words just below 1000 and 990.
inline constexpr std::uint32_t largest_exponent = 0x408F3FFE;
inline constexpr std::uint32_t largest_integer_exponent = 0x408EEFFE;

}  // namespace tarn::doubles
