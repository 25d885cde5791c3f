// Sine or cosine of a reduced angle from the value S and the factor C of its first-order change at the
// nearest 256th of a turn: S + C r and what the short sine and cosine polynomials of r add. The head
// of C is a power of two, so that its product with r is exact.
#pragma once

#include "float/trig/turns.hpp"

namespace tarn::singles {

#include "tables/cosine_256ths.inc"
#include "tables/sine_256ths.inc"

template <class V> TARN_INLINE V from_angle_table(const float (*table)[4], const Reduced<V>& angle) {
    // |r| <= pi/256; fit not recorded.
    constexpr float sine_3 = f32(0xBE2AAAAB);    // -0.1666666716337204
    constexpr float sine_5 = f32(0x3C08885C);    // 0.008333291858434677
    constexpr float cosine_2 = f32(0xBF000000);  // -0.5
    constexpr float cosine_4 = f32(0x3D2AAA7C);  // 0.04166649281978607

    const auto [c_low, s_high, s_low, c_high] = gather_quads(table, angle.row);
    const V r = angle.rest.head, z = r * r;
    const V u = s_high + c_high * r;
    const V u_error = (s_high - u) + c_high * r;
    const V v = u + c_low * r;
    const V v_error = (u - v) + c_low * r;
    const V slope = (c_low + c_high) - r * s_high;
    const V sine_part = (sine_5 * z + sine_3) * z * r * slope;
    const V cosine_part = (cosine_4 * z + cosine_2) * z * s_high;
    return v + ((cosine_part + (angle.rest.tail * slope + s_low)) + (sine_part + (v_error + u_error)));
}

}  // namespace tarn::singles
