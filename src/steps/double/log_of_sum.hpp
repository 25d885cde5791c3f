// ln of a number from 1 on that is known as a sum, to about 62 bits of the logarithm.
//
// x = 2^e M, M rounded to 8 fraction bits names a row; R, its reciprocal in 24 bits, makes w = x R 2^-e - 1, below
// 2^-9, exact in the two halves of x. ln x = e ln 2 - ln R + w + w^2 P(w), with P of degree 4. The first three are
// summed with their errors: heads on the grid of 2^-42, so that e ln 2 - ln R is exact, and both vanish next to 1.
#pragma once

#include "frame/double_word.hpp"

namespace tarn::doubles {

#include "tables/ln_reciprocals.inc"

// A row, e, and R 2^-e.
template <class V> struct LogRow {
    BitsOf<V> row;
    V e, reciprocal;
};
template <class V> TARN_INLINE LogRow<V> log_row(V x) {
    constexpr double shifter = 0x1p52, biased = 0x1p52 + 1023;
    const BitsOf<V> rounded = bits(x) + 0x0000080000000000;
    const BitsOf<V> row = shift_right_logical(rounded, 44) & 255;
    const V e = from_bits(shift_right_logical(rounded, 52) | bits(shifter)) - biased;
    const V inverse_scale = from_bits(0x7FE0000000000000 - (rounded & 0x7FF0000000000000));
    return {row, e, gather_columns(ln_reciprocals, row).first * inverse_scale};
}

// e ln 2 - ln R + ln(1 + w + w_tail).
template <class V> TARN_INLINE V log_from(const LogRow<V>& at, V w, V w_tail) {
    constexpr double ln2_head = f64(0x3FE62E42FEFA0000);  // 0.6931471805582987
    constexpr double ln2_tail = f64(0x3D7CF79ABC9E3B3A);  // 1.6465949582897082e-12
    constexpr double c2 = -0.5;
    // |v| < 2^-9; fit not recorded.
    constexpr double c3 = f64(0x3FD5555555552770);  // 0.3333333333326811
    constexpr double c4 = f64(0xBFCFFFFFFFFFAFAE);  // -0.2499999999994293
    constexpr double c5 = f64(0x3FC9999F53638061);  // 0.20000068256104256
    constexpr double c6 = f64(0xBFC5555A57E60668);  // -0.16666726390762965

    const auto [log_head, log_tail] = gather_columns<1>(ln_reciprocals, at.row);
    const V v = w + w_tail, v2 = v * v;
    const V p = v2 * ((c2 + c3 * v) + v2 * ((c4 + c5 * v) + c6 * v2));
    const auto [h, h_tail] = fast_two_sum(at.e * ln2_head + log_head, w);
    return h + (((h_tail + w_tail) + (at.e * ln2_tail + log_tail)) + p);
}

// ln(x + tail), the tail below an ulp of x, or with more octaves in the row's e than x has.
template <class V> TARN_INLINE V log_of_sum(const LogRow<V>& at, V x, V tail) {
    const auto [xh, xl] = short_split(x);
    const auto [w, w_tail] = fast_two_sum(xh * at.reciprocal - 1.0, xl * at.reciprocal);
    return log_from(at, w, w_tail + tail * at.reciprocal);
}
template <class V> TARN_INLINE V log_of_sum(V x, V tail) { return log_of_sum(log_row(x), x, tail); }

}  // namespace tarn::doubles
