// The native powers in single precision: ln x by the split at 2/3 and a polynomial of degree 7, the
// product with the exponent, e^p with ln 2 in one piece and a cubic.
#pragma once

#include "float/log/two_thirds.hpp"
#include "frame/kernel.hpp"

namespace tarn {

// The cubics 1 + r (c1 + r (c2 + r c3)): one fitted for real exponents, one for integers.
struct NativeExp {
    static constexpr f32x4 c3 = splat_f32(0x3E2963AC);  // 0.16541928052902222
    static constexpr f32x4 c2 = splat_f32(0x3F00F2D6);  // 0.5037053823471069
    static constexpr f32x4 c1 = splat_f32(0x3F8003DE);  // 1.0001180171966553
};
struct NativeIntegerExp {
    static constexpr f32x4 c3 = splat_f32(0x3E2C359F);  // 0.16817329823970795
    static constexpr f32x4 c2 = splat_f32(0x3F014935);  // 0.5050233006477356
    static constexpr f32x4 c1 = splat_f32(0x3F7FFB0D);  // 0.9999244809150696
};

TARN_INLINE f32x4 native_power_log(f32x4 x) {
    const f32x4 ln2_head = factor_of_exponent(0x3F317200);  // 0.693145751953125
    const f32x4 ln2_tail = factor_of_exponent(0x35BFBE8E);  // 1.428606765330187e-06
    const f32x4 q5 = splat_f32(0x3E2B350C);                 // 0.16719454526901245
    const f32x4 q4 = splat_f32(0xBE424B46);                 // -0.18974027037620544
    const f32x4 q3 = splat_f32(0x3E4B62C0);                 // 0.19861888885498047
    const f32x4 q2 = splat_f32(0xBE7F0F0F);                 // -0.24908088147640228
    const f32x4 q1 = splat_f32(0x3EAAAD03);                 // 0.3333512246608734
    const f32x4 q0 = splat(-0.5f);
    const auto [exponent, r] = split_at_two_thirds(x);
    const f32x4 k = to_f32(exponent);
    return k * ln2_head + (k * ln2_tail + log1p_polynomial(r, q5, q4, q3, q2, q1, q0));
}

// x^y; an infinite or NaN y makes the product one.
template <class Exp> TARN_INLINE Flagged<f32x4, i32x4> native_power(f32x4 x, f32x4 y) {
    const f32x4 log2_e = splat_f32(0x3FB8AA3B);   // 1.4426950216293335
    const f32x4 shifter = splat_f32(0x4B400000);  // 12582912.0 = 1.5 * 2^23
    const f32x4 ln2 = splat_f32(0x3F317218);      // 0.6931471824645996
    const f32x4 product = native_power_log(x) * y;
    const f32x4 shifted = product * log2_e + shifter;
    const f32x4 r = product - (shifted - shifter) * ln2;
    const f32x4 p = horner(r, Exp::c3, Exp::c2, Exp::c1, splat(1.0f));
    const i32x4 special = not_positive_normal(x) | magnitude_above(product, 0x42AE9A00);  // 87.30078125
    return {from_bits(bits(p) + (bits(shifted) << 23)), special};
}

}  // namespace tarn
