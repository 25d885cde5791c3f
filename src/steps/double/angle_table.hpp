// Sine and cosine of a reduced angle from S = sin theta and C = cos theta at the nearest 512th of a turn:
// S + C r and what the short sine and cosine polynomials of r add. The head of C is -1, 0 or 1, so that
// its product with r is exact.
#pragma once

#include "steps/double/turns.hpp"

namespace tarn::doubles {

#include "tables/sine_512ths.inc"

// A value and what is left of it, far below.
template <class V> struct Sum {
    V head, rest;
    TARN_INLINE V rounded() const { return head + rest; }
};

template <class V> TARN_INLINE Sum<V> sine_from_table(const Reduced<V>& angle) {
    // |r| <= pi/512; fit not recorded.
    constexpr double sine_3 = f64(0xBFC5555555554448);    // -0.1666666666665455
    constexpr double sine_5 = f64(0x3F81110FABB3551C);    // 0.008333322932609515
    constexpr double cosine_4 = f64(0x3FA5555555554CCF);  // 0.041666666666651524
    constexpr double cosine_6 = f64(0xBF56C16AB163B2D7);  // -0.0013888875887985619

    const auto [c_low, c_high] = gather_columns<0>(sine_512ths, angle.row);
    const auto [s_high, s_low] = gather_columns<2>(sine_512ths, angle.row);
    const V r = angle.rest.head, z = r * r;
    const V u = s_high + c_high * r;
    const V u_error = (s_high - u) + c_high * r;
    const V v = u + c_low * r;
    const V v_error = (u - v) + c_low * r;
    const V c = c_low + c_high;
    const V sine_part = (sine_5 * z + sine_3) * (r * z) * c;
    const V cosine_part = horner(z, cosine_6, cosine_4, -0.5) * z * s_high;
    return {v, (cosine_part + (angle.rest.tail * (c - r * s_high) + s_low)) + (sine_part + (v_error + u_error))};
}

// The cosine is the sine a quarter turn on.
template <class V> TARN_INLINE Sum<V> cosine_from_table(const Reduced<V>& angle) {
    return sine_from_table(Reduced<V>{(angle.row + 128) & Turns::row_mask, angle.rest});
}

}  // namespace tarn::doubles
