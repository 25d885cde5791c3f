// The tangent on [-pi/4, pi/4] as a quotient of polynomials, tan r = Q/P, or inverted P/Q.
#pragma once

#include "frame/simd.hpp"

namespace tarn {

struct Quotient {
    f32x4 numerator, denominator;
};

// Lanes whose `inverted` has its sign bit set are inverted.
TARN_INLINE Quotient tangent_quotient(f32x4 r, i32x4 inverted) {
    constexpr f32x4 numerator_1 = splat_f32(0xBDC433B8);    // -0.09580177068710327
    constexpr f32x4 denominator_1 = splat_f32(0xBEDBB7AF);  // -0.4291357696056366
    constexpr f32x4 denominator_2 = splat_f32(0x3C1F3375);  // 0.00971685815602541
    constexpr f32x4 one = splat(1.0f);

    const f32x4 z = r * r;
    const f32x4 q = (numerator_1 * z + one) * r;
    const f32x4 p = horner(z, denominator_2, denominator_1, one);
    return {select(inverted, p, q), select(inverted, q, p)};
}

}  // namespace tarn
