// The tangent as a quotient of polynomials, tan r = P/Q, or inverted Q/P.
#pragma once

#include "frame/simd.hpp"

namespace tarn::doubles::tangent {

constexpr double one = 1.0;

// |r| <= pi/4; fit not recorded.
struct Full {
    template <class V> static TARN_INLINE V numerator(V z) {
        constexpr double p1 = f64(0xBFC06B97BF03648A);  // -0.12828347040957438
        constexpr double p2 = f64(0x3F66FC6FE2982A7B);  // 0.002805918241169989
        constexpr double p3 = f64(0xBEDF637DEA7C0B2C);  // -7.483634966612065e-06
        return horner(z, p3, p2, p1, one);
    }
    template <class V> static TARN_INLINE V denominator(V z) {
        constexpr double q1 = f64(0xBFDD8B2134D70767);  // -0.46161680374290487
        constexpr double q2 = f64(0x3F97E7B68D9A55F3);  // 0.02334485282206873
        constexpr double q3 = f64(0xBF2B525B10D0A168);  // -0.00020844804422038708
        return horner(z, q3, q2, q1, one);
    }
};
// Relative error 2.6e-11; a term less on both sides would have 1.7e-8.
struct Native {
    template <class V> static TARN_INLINE V numerator(V z) {
        constexpr double p1 = f64(0xBFBC81C62C052D6B);  // -0.11135519575798518
        constexpr double p2 = f64(0x3F519BB5816E9DD5);  // 0.0010747215762679692
        return horner(z, p2, p1, one);
    }
    template <class V> static TARN_INLINE V denominator(V z) {
        constexpr double q1 = f64(0xBFDC75C6DF0F5168);  // -0.4446885279005728
        constexpr double q2 = f64(0x3F905AAB9FE76A5B);  // 0.015970880160106265
        return horner(z, q2, q1, one);
    }
};

// Inverted where `inverted` has its sign bit set.
template <class Form, class V> TARN_INLINE V quotient(V r, BitsOf<V> inverted) {
    const V z = r * r;
    const V p = Form::numerator(z) * r, q = Form::denominator(z);
    return select(inverted, q, p) / select(inverted, p, q);
}

}  // namespace tarn::doubles::tangent
