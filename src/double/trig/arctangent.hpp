// arctan t for |t| <= 1, added to a base, by an even polynomial: of degree 38 in four interleaved parts, in radians at
// width 2, and of degree 18 for the native forms of one argument. All else has nodes (arctangent_nodes.hpp).
#pragma once

#include "frame/simd.hpp"

namespace tarn::doubles::arctangent {

constexpr double one = 1.0;

// arctan(t)/t less its leading 1 is the sum of the four chains.
template <class V> struct Chains {
    V t8, t2, t6, t4;
};
template <class V> TARN_INLINE Chains<V> chains(V t) {
    // |t| <= 1; fit not recorded.
    constexpr double a1 = f64(0xBFD55555555553C5);   // -0.3333333333333111
    constexpr double a2 = f64(0x3FC999999997EE34);   // 0.19999999999696316
    constexpr double a3 = f64(0xBFC2492491EE55C7);   // -0.14285714269196445
    constexpr double a4 = f64(0x3FBC71C707F7D5B5);   // 0.11111110634359174
    constexpr double a5 = f64(0xBFB745D009BADA94);   // -0.09090900647684413
    constexpr double a6 = f64(0x3FB3B12A49295651);   // 0.076922076093376
    constexpr double a7 = f64(0xBFB11084009435E0);   // -0.06665825857290697
    constexpr double a8 = f64(0x3FAE1749BD612DCF);   // 0.05877142369044074
    constexpr double a9 = f64(0xBFAAD261EAA09954);   // -0.052386340991051356
    constexpr double a10 = f64(0x3FA7EC0FBC50683B);  // 0.04672288106685626
    constexpr double a11 = f64(0xBFA4EFA2E563C1BC);  // -0.040890779973668384
    constexpr double a12 = f64(0x3FA169980CB6AD4F);  // 0.03400874285883992
    constexpr double a13 = f64(0xBF9A5E83B081F69C);  // -0.025751168869183702
    constexpr double a14 = f64(0x3F914F4C661116A5);  // 0.016904062013301985
    constexpr double a15 = f64(0xBF82B2EC618E4BAD);  // -0.009130331732910191
    constexpr double a16 = f64(0x3F6F5A1DAE82AFB3);  // 0.0038271503181785626
    constexpr double a17 = f64(0xBF52E67C93954C23);  // -0.0011535851065971401
    constexpr double a18 = f64(0x3F2CED0A36665209);  // 0.00022068738617221664
    constexpr double a19 = f64(0xBEF4FDB537ABC7A3);  // -2.001862183482302e-05

    const V s2 = t * t, s4 = s2 * s2, z = s4 * s4;
    return {z * horner(z, a16, a12, a8, a4), horner(z, a17, a13, a9, a5, a1) * s2,
            horner(z, a19, a15, a11, a7, a3) * (s4 * s2), horner(z, a18, a14, a10, a6, a2) * s4};
}

// The short polynomial, the same without its leading 1.
template <class V> TARN_INLINE V short_rest(V t) {
    // |t| <= 1; fit not recorded.
    constexpr double n1 = f64(0xBFD55553E5B12000);  // -0.33333299094056201
    constexpr double n2 = f64(0x3FC9991FD5682609);  // 0.19998548431640042
    constexpr double n3 = f64(0xBFC2421B703FF523);  // -0.14264243107747018
    constexpr double n4 = f64(0x3FBC09A0F973E424);  // 0.10952192392495924
    constexpr double n5 = f64(0xBFB5834BE23DDE02);  // -0.084034674391539027
    constexpr double n6 = f64(0x3FADACA6E7BD740B);  // 0.057957855022984082
    constexpr double n7 = f64(0xBF9FED2597A1CE8F);  // -0.031178080921064718
    constexpr double n8 = f64(0x3F865A75072DF602);  // 0.010914720803834935
    constexpr double n9 = f64(0xBF5D63180AC67107);  // -0.001793645361522657
    const V z = t * t, z2 = z * z;
    return horner(z2, n9, n7, n5, n3, n1) * z + horner(z2, n8, n6, n4, n2) * z2;
}

namespace radians {
struct Full {
    static constexpr double quarter = f64(0x3FF921FB54442D18);    // 1.5707963267948966 = pi/2
    static constexpr double half_turn = f64(0x400921FB54442D18);  // 3.141592653589793 = pi

    template <class V> static TARN_INLINE V from(V base, V t) {
        const auto [t8, t2, t6, t4] = chains(t);
        return base + t * (((one + t8) + t2) + (t6 + t4));
    }
};
struct Native : Full {
    template <class V> static TARN_INLINE V from(V base, V t) { return base + (t + t * short_rest(t)); }
};
}  // namespace radians

namespace half_turns {
struct Native {
    static constexpr double quarter = 0.5;
    static constexpr double inv_pi = f64(0x3FD45F306DC9C883);  // 0.3183098861837907
    template <class V> static TARN_INLINE V from(V base, V t) { return base + (t + t * short_rest(t)) * inv_pi; }
};
}  // namespace half_turns

// arctan x: of |x| or, from the quarter turn, of its reciprocal turned round. The order of the maximum makes a
// NaN come through.
template <class Form, class V> TARN_INLINE V of(V x) {
    const V a = abs(x);
    const BitsOf<V> inverted = not_within(x, one);
    const V t = select(inverted, -1.0, a) / max(one, a);
    return or_bits(Form::from(where(inverted, Form::quarter), t), sign_bit(x));
}

// The angle of the point (y, x), mirrored into its quadrant; no value where a coordinate is special.
template <class Form, class V> TARN_INLINE V of_point(V y, V x) {
    const V ay = abs(y), ax = abs(x);
    const BitsOf<V> steep = ~(ay < ax);
    const V q = select(steep, ax, ay) / select(steep, ay, ax);
    const V first = Form::from(where(steep, Form::quarter), xor_bits(q, steep & sign_mask<V>));
    return xor_bits(select(bits(x), Form::half_turn - first, first), sign_bit(y));
}

// Zeros, infinities and NaNs.
template <class V> TARN_INLINE BitsOf<V> no_coordinate(V v) {
    return (abs(v) <= 0.0) | ~(abs(v) < f64(0x7FF0000000000000));
}

}  // namespace tarn::doubles::arctangent
