// Sine and cosine of a reduced angle from S = sin theta and C = cos theta at the nearest 512th of a turn:
// S + C r and what the short sine and cosine polynomials of r add. The head of C is -1, 0 or 1, so that
// its product with r is exact.
#pragma once

#include "double/trig/turns.hpp"

namespace tarn::trig_f64 {

#include "tables/sine_512ths.inc"

// A value and what is left of it, far below.
struct Sum {
    f64x2 head, rest;
    TARN_INLINE f64x2 rounded() const { return head + rest; }
};

TARN_INLINE Sum sine_from_table(const Reduced& angle) {
    constexpr f64x2 sine_3 = splat_f64(0xBFC5555555554448);    // -0.1666666666665455
    constexpr f64x2 sine_5 = splat_f64(0x3F81110FABB3551C);    // 0.008333322932609515
    constexpr f64x2 cosine_4 = splat_f64(0x3FA5555555554CCF);  // 0.041666666666651524
    constexpr f64x2 cosine_6 = splat_f64(0xBF56C16AB163B2D7);  // -0.0013888875887985619

    const auto &row0 = sine_512ths[angle.row[0]], &row1 = sine_512ths[angle.row[1]];
    const auto [c_low, c_high] = columns(row0, row1);
    const auto [s_high, s_low] = columns(row0 + 2, row1 + 2);
    const f64x2 r = angle.rest.head, z = r * r;
    const f64x2 u = s_high + c_high * r;
    const f64x2 u_error = (s_high - u) + c_high * r;
    const f64x2 v = u + c_low * r;
    const f64x2 v_error = (u - v) + c_low * r;
    const f64x2 c = c_low + c_high;
    const f64x2 sine_part = (sine_5 * z + sine_3) * (r * z) * c;
    const f64x2 cosine_part = horner(z, cosine_6, cosine_4, splat(-0.5)) * z * s_high;
    return {v, (cosine_part + (angle.rest.tail * (c - r * s_high) + s_low)) + (sine_part + (v_error + u_error))};
}

// The cosine is the sine a quarter turn on.
TARN_INLINE Sum cosine_from_table(const Reduced& angle) {
    return sine_from_table({(angle.row + 128) & Turns::row_mask, angle.rest});
}

}  // namespace tarn::trig_f64
