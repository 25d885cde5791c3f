// The native powers in single precision: ln x by the split at 2/3 and a polynomial of degree 7, the
// product with the exponent, e^p with ln 2 in one piece and a cubic.
#pragma once

#include "float/log/two_thirds.hpp"
#include "frame/kernel.hpp"

namespace tarn::singles {

// The cubics 1 + r (c1 + r (c2 + r c3)): one fitted for real exponents, one for integers.
// |r| <= 0.35; fit not recorded.
struct NativeExp {
    static constexpr float c3 = f32(0x3E2963AC);  // 0.16541928052902222
    static constexpr float c2 = f32(0x3F00F2D6);  // 0.5037053823471069
    static constexpr float c1 = f32(0x3F8003DE);  // 1.0001180171966553
};
struct NativeIntegerExp {
    static constexpr float c3 = f32(0x3E2C359F);  // 0.16817329823970795
    static constexpr float c2 = f32(0x3F014935);  // 0.5050233006477356
    static constexpr float c1 = f32(0x3F7FFB0D);  // 0.9999244809150696
};

template <class V> TARN_INLINE V native_power_log(V x) {
    constexpr float ln2_head = factor_of_exponent(0x3F317200);  // 0.693145751953125
    constexpr float ln2_tail = factor_of_exponent(0x35BFBE8E);  // 1.428606765330187e-06
    // |r| <= 1/3; fit not recorded.
    constexpr float q5 = f32(0x3E2B350C);                       // 0.16719454526901245
    constexpr float q4 = f32(0xBE424B46);                       // -0.18974027037620544
    constexpr float q3 = f32(0x3E4B62C0);                       // 0.19861888885498047
    constexpr float q2 = f32(0xBE7F0F0F);                       // -0.24908088147640228
    constexpr float q1 = f32(0x3EAAAD03);                       // 0.3333512246608734
    constexpr float q0 = -0.5f;
    const auto [exponent, r] = split_at_two_thirds(x);
    const V k = to_f32(exponent);
    return k * ln2_head + (k * ln2_tail + log1p_polynomial(r, q5, q4, q3, q2, q1, q0));
}

// x^y; an infinite or NaN y makes the product one.
template <class Exp, class V> TARN_INLINE Flagged<V, BitsOf<V>> native_power(V x, V y) {
    constexpr float log2_e = f32(0x3FB8AA3B);   // 1.4426950216293335
    constexpr float shifter = f32(0x4B400000);  // 12582912.0 = 1.5 * 2^23
    constexpr float ln2 = f32(0x3F317218);      // 0.6931471824645996
    const V product = native_power_log(x) * y;
    const V shifted = product * log2_e + shifter;
    const V r = product - (shifted - shifter) * ln2;
    const V p = horner(r, Exp::c3, Exp::c2, Exp::c1, 1.0f);
    const BitsOf<V> special = not_positive_normal(x) | magnitude_above(product, 0x42AE9A00);  // 87.30078125
    return {from_bits(bits(p) + (bits(shifted) << 23)), special};
}

}  // namespace tarn::singles
