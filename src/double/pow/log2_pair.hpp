// log2 x of a positive normal double as a head and a tail, good to about 68 bits.
//
// x = 2^e M, M rounded to 10 fraction bits names a row i; R, log2_e/(1 + i/1024) in 23 significant bits, makes
// both products of R with the halves of M exact, so that w = M R - log2_e, below 2^-10, is known to the last bit as a
// sum of two. log2 x = (E - log2(R/log2_e)) + w + a polynomial in w, whose linear term makes up for the short
// log2_e. From row 512 on E is one higher, so that it is 0 on both sides of 1.
#pragma once

#include "double/halves.hpp"

namespace tarn {

#include "tables/log2_pairs.inc"
#include "tables/log2_reciprocals.inc"

struct Log2Pair {
    f64x2 head, tail;
};

// x = 2^e M: M rounded to 10 fraction bits as a row 0 to 1024, M, and e as it goes with the row's logarithm.
// Numbers that are not positive and normal give anything, from rows that exist.
struct Log2Reduction {
    i64x2 row;
    f64x2 m, e;
};
TARN_INLINE Log2Reduction log2_reduction(f64x2 x) {
    const i64x2 row = shift_right_logical((bits(x) & splat_i64(0x000FFE0000000000)) + splat_i64(0x0000020000000000), 42);
    const f64x2 m = from_bits((bits(x) & splat_i64(0x000FFFFFFFFFFFFF)) | bits(splat(1.0)));

    // The exponent as the low bits of a double's upper word, above 1.5 * 2^20.
    const f64x2 shifter = splat_f64(0x4138000000000000);  // 1572864.0 = 1.5 * 2^20
    const i32x4 exponent = ((i32x4)bits(x) - splat_i32(0x3FE7FE00)) >> 20;
    const i64x2 shifted = (i64x2)(exponent + splat_i32(0x41380000)) & splat_i64(0xFFFFFFFF00000000);
    return {row, m, from_bits(shifted) - shifter};
}

// 2^-e for x = 2^e M, 1 <= M < 2.
TARN_INLINE f64x2 inverse_scale(f64x2 x) {
    return from_bits(splat_i64(0x7FE0000000000000) - (bits(x) & splat_i64(0x7FF0000000000000)));
}

TARN_INLINE Log2Pair log2_pair(f64x2 x) {
    const f64x2 log2_e = splat_f64(0x3FF7154740000000);  // 1.442694902420044
    const f64x2 k6 = splat_f64(0xBF9B4EA0E9419F52);      // -0.026667131649815552
    const f64x2 k5 = splat_f64(0x3FA7A334DDFC9F86);      // 0.04616704187202374
    const f64x2 k4 = splat_f64(0xBFB550472A8BB463);      // -0.08325619496072671
    const f64x2 k3 = splat_f64(0x3FC47FD462B3B816);      // 0.16015105075297303
    const f64x2 k2 = splat_f64(0xBFD62E4346694107);      // -0.3465736568077919
    const f64x2 k1 = splat_f64(0x3E79C3A6966457EE);      // 9.597935033233511e-08

    const auto [row, m, e] = log2_reduction(x);
    const f64x2 reciprocal = gather(log2_reciprocals, row);
    const auto [log_head, log_tail] = gather_columns(log2_pairs, row);
    const f64x2 mh = short_head(m), ml = m - mh;
    const f64x2 u = m * reciprocal;
    const f64x2 u_tail = (mh * reciprocal - u) + ml * reciprocal;
    const f64x2 v = u - log2_e;  // exact
    const f64x2 w = v + u_tail, w_tail = u_tail - (w - v);
    const f64x2 p = horner(w, k6, k5, k4, k3, k2, k1) * w;

    const f64x2 h0 = e + log_head;
    const f64x2 h = h0 + w;
    const f64x2 low = (((w - (h - h0)) + w_tail) + log_tail) + p;
    const f64x2 head = h + low;
    return {head, low - (head - h)};
}

}  // namespace tarn
