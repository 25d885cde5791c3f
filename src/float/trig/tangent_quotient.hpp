// The tangent on [-pi/4, pi/4] as a quotient of polynomials, tan r = Q/P, or inverted P/Q.
#pragma once

#include "frame/simd.hpp"

namespace tarn::singles {

template <class V> struct Quotient {
    V numerator, denominator;
};

// Lanes whose `inverted` has its sign bit set are inverted.
template <class V> TARN_INLINE Quotient<V> tangent_quotient(V r, BitsOf<V> inverted) {
    // |r| <= pi/4; fit not recorded.
    constexpr float numerator_1 = f32(0xBDC433B8);    // -0.09580177068710327
    constexpr float denominator_1 = f32(0xBEDBB7AF);  // -0.4291357696056366
    constexpr float denominator_2 = f32(0x3C1F3375);  // 0.00971685815602541
    constexpr float one = 1.0f;

    const V z = r * r;
    const V q = (numerator_1 * z + one) * r;
    const V p = horner(z, denominator_2, denominator_1, one);
    return {select(inverted, p, q), select(inverted, q, p)};
}

}  // namespace tarn::singles
