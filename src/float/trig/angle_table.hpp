// Sine or cosine of a reduced angle from the value S and the factor C of its first-order change at the
// nearest 256th of a turn: S + C r and what the short sine and cosine polynomials of r add. The head
// of C is a power of two, so that its product with r is exact.
#pragma once

#include "float/trig/turns.hpp"

namespace tarn {

#include "tables/cosine_256ths.inc"
#include "tables/sine_256ths.inc"

TARN_INLINE f32x4 from_angle_table(const float (*table)[4], const Reduced& angle) {
    constexpr f32x4 sine_3 = splat_f32(0xBE2AAAAB);    // -0.1666666716337204
    constexpr f32x4 sine_5 = splat_f32(0x3C08885C);    // 0.008333291858434677
    constexpr f32x4 cosine_2 = splat_f32(0xBF000000);  // -0.5
    constexpr f32x4 cosine_4 = splat_f32(0x3D2AAA7C);  // 0.04166649281978607

    const auto [c_low, s_high, s_low, c_high] = gather_quads(table, angle.row);
    const f32x4 r = angle.head, z = r * r;
    const f32x4 u = s_high + c_high * r;
    const f32x4 u_error = (s_high - u) + c_high * r;
    const f32x4 v = u + c_low * r;
    const f32x4 v_error = (u - v) + c_low * r;
    const f32x4 slope = (c_low + c_high) - r * s_high;
    const f32x4 sine_part = (sine_5 * z + sine_3) * z * r * slope;
    const f32x4 cosine_part = (cosine_4 * z + cosine_2) * z * s_high;
    return v + ((cosine_part + (angle.tail * slope + s_low)) + (sine_part + (v_error + u_error)));
}

}  // namespace tarn
