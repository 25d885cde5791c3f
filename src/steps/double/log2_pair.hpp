// log2 x of a positive normal double as a head and a tail, good to about 68 bits.
//
// x = 2^e M, M rounded to 10 fraction bits names a row i; R, log2_e/(1 + i/1024) in 23 significant bits, makes
// both products of R with the halves of M exact, so that w = M R - log2_e, below 2^-10, is known to the last bit as a
// sum of two. log2 x = (E - log2(R/log2_e)) + w + a polynomial in w, whose linear term makes up for the short
// log2_e. From row 512 on E is one higher, so that it is 0 on both sides of 1.
#pragma once

#include "frame/double_word.hpp"

namespace tarn::doubles {

#include "tables/log2_pairs.inc"
#include "tables/log2_reciprocals.inc"

// x = 2^e M: M rounded to 10 fraction bits as a row 0 to 1024, M, and e as it goes with the row's logarithm.
// Numbers that are not positive and normal give anything, from rows that exist.
template <class V> struct Log2Reduction {
    BitsOf<V> row;
    V m, e;
};
template <class V> TARN_INLINE Log2Reduction<V> log2_reduction(V x) {
    const BitsOf<V> row = shift_right_logical((bits(x) & 0x000FFE0000000000) + 0x0000020000000000, 42);
    const V m = from_bits((bits(x) & 0x000FFFFFFFFFFFFF) | bits(1.0));

    // The exponent as the low bits of a double's upper word, above 1.5 * 2^20.
    constexpr double shifter = f64(0x4138000000000000);  // 1572864.0 = 1.5 * 2^20
    const WordsOf<V> exponent = (words(x) - 0x3FE7FE00) >> 20;
    const BitsOf<V> shifted = (BitsOf<V>)(exponent + 0x41380000) & i64(0xFFFFFFFF00000000);
    return {row, m, from_bits(shifted) - shifter};
}

// 2^-e for x = 2^e M, 1 <= M < 2.
template <class V> TARN_INLINE V inverse_scale(V x) {
    return from_bits(0x7FE0000000000000 - (bits(x) & 0x7FF0000000000000));
}

template <class V> TARN_INLINE HeadTail<V> log2_pair(V x) {
    constexpr double log2_e = f64(0x3FF7154740000000);  // 1.442694902420044
    // |w| < 2^-10; fit not recorded.
    constexpr double k6 = f64(0xBF9B4EA0E9419F52);      // -0.026667131649815552
    constexpr double k5 = f64(0x3FA7A334DDFC9F86);      // 0.04616704187202374
    constexpr double k4 = f64(0xBFB550472A8BB463);      // -0.08325619496072671
    constexpr double k3 = f64(0x3FC47FD462B3B816);      // 0.16015105075297303
    constexpr double k2 = f64(0xBFD62E4346694107);      // -0.3465736568077919
    constexpr double k1 = f64(0x3E79C3A6966457EE);      // 9.597935033233511e-08

    const auto [row, m, e] = log2_reduction(x);
    const V reciprocal = gather(log2_reciprocals, row);
    const auto [log_head, log_tail] = gather_columns(log2_pairs, row);
    const auto [mh, ml] = short_split(m);
    const V u = m * reciprocal;
    const V u_tail = (mh * reciprocal - u) + ml * reciprocal;
    const auto [w, w_tail] = fast_two_sum(u - log2_e, u_tail);  // the difference is exact
    const V p = horner(w, k6, k5, k4, k3, k2, k1) * w;

    const auto [h, h_tail] = fast_two_sum(e + log_head, w);
    return fast_two_sum(h, ((h_tail + w_tail) + log_tail) + p);
}

}  // namespace tarn::doubles
