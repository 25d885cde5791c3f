// ln of a number from 1 on that is known as a sum, to about 62 bits of the logarithm.
//
// x = 2^e M, M rounded to 8 fraction bits names a row; R, its reciprocal in 24 bits, makes w = x R 2^-e - 1, below
// 2^-9, exact in the two halves of x. ln x = e ln 2 - ln R + w + w^2 P(w), with P of degree 4. The first three are summed
// with their errors: heads on the grid of 2^-42, so that e ln 2 - ln R is exact, and both vanish next to 1.
#pragma once

#include "double/halves.hpp"

namespace tarn {

#include "tables/ln_reciprocals.inc"

// A row, e, and R 2^-e.
struct LogRow {
    i64x2 row;
    f64x2 e, reciprocal;
};
TARN_INLINE LogRow log_row(f64x2 x) {
    const f64x2 shifter = splat(0x1p52), biased = splat(0x1p52 + 1023);
    const i64x2 rounded = bits(x) + splat_i64(0x0000080000000000);
    const i64x2 row = shift_right_logical(rounded, 44) & splat_i64(255);
    const f64x2 e = from_bits(shift_right_logical(rounded, 52) | bits(shifter)) - biased;
    const f64x2 inverse_scale = from_bits(splat_i64(0x7FE0000000000000) - (rounded & splat_i64(0x7FF0000000000000)));
    return {row, e, gather_columns(ln_reciprocals, row).first * inverse_scale};
}

// e ln 2 - ln R + ln(1 + w + w_tail).
TARN_INLINE f64x2 log_from(const LogRow& at, f64x2 w, f64x2 w_tail) {
    const f64x2 ln2_head = splat_f64(0x3FE62E42FEFA0000);  // 0.6931471805582987
    const f64x2 ln2_tail = splat_f64(0x3D7CF79ABC9E3B3A);  // 1.6465949582897082e-12
    const f64x2 c2 = splat(-0.5);
    const f64x2 c3 = splat_f64(0x3FD5555555552770);  // 0.3333333333326811
    const f64x2 c4 = splat_f64(0xBFCFFFFFFFFFAFAE);  // -0.2499999999994293
    const f64x2 c5 = splat_f64(0x3FC9999F53638061);  // 0.20000068256104256
    const f64x2 c6 = splat_f64(0xBFC5555A57E60668);  // -0.16666726390762965

    const auto [log_head, log_tail] = gather_columns<1>(ln_reciprocals, at.row);
    const f64x2 v = w + w_tail, v2 = v * v;
    const f64x2 p = v2 * ((c2 + c3 * v) + v2 * ((c4 + c5 * v) + c6 * v2));
    const f64x2 h0 = at.e * ln2_head + log_head;
    const f64x2 h = h0 + w;
    const f64x2 low = (w - (h - h0)) + w_tail;
    return h + ((low + (at.e * ln2_tail + log_tail)) + p);
}

// ln(x + tail), the tail below an ulp of x, or with more octaves in the row's e than x has.
TARN_INLINE f64x2 log_of_sum(const LogRow& at, f64x2 x, f64x2 tail) {
    const auto [xh, xl] = halves(x);
    const f64x2 head = xh * at.reciprocal - splat(1.0), rest = xl * at.reciprocal;
    const f64x2 w = head + rest;
    return log_from(at, w, (rest - (w - head)) + tail * at.reciprocal);
}
TARN_INLINE f64x2 log_of_sum(f64x2 x, f64x2 tail) { return log_of_sum(log_row(x), x, tail); }

}  // namespace tarn
