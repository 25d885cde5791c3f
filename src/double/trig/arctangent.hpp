// arctan t for |t| <= 1, added to a base, by an even polynomial: of degree 38 in four interleaved parts, in radians at
// width 2, and of degree 18 for the native forms of one argument. All else has nodes (arctangent_nodes.hpp).
#pragma once

#include "frame/simd.hpp"

namespace tarn::arctangent {

constexpr f64x2 one = splat(1.0);

// arctan(t)/t less its leading 1 is the sum of the four chains.
struct Chains {
    f64x2 t8, t2, t6, t4;
};
TARN_INLINE Chains chains(f64x2 t) {
    constexpr f64x2 a1 = splat_f64(0xBFD55555555553C5);   // -0.3333333333333111
    constexpr f64x2 a2 = splat_f64(0x3FC999999997EE34);   // 0.19999999999696316
    constexpr f64x2 a3 = splat_f64(0xBFC2492491EE55C7);   // -0.14285714269196445
    constexpr f64x2 a4 = splat_f64(0x3FBC71C707F7D5B5);   // 0.11111110634359174
    constexpr f64x2 a5 = splat_f64(0xBFB745D009BADA94);   // -0.09090900647684413
    constexpr f64x2 a6 = splat_f64(0x3FB3B12A49295651);   // 0.076922076093376
    constexpr f64x2 a7 = splat_f64(0xBFB11084009435E0);   // -0.06665825857290697
    constexpr f64x2 a8 = splat_f64(0x3FAE1749BD612DCF);   // 0.05877142369044074
    constexpr f64x2 a9 = splat_f64(0xBFAAD261EAA09954);   // -0.052386340991051356
    constexpr f64x2 a10 = splat_f64(0x3FA7EC0FBC50683B);  // 0.04672288106685626
    constexpr f64x2 a11 = splat_f64(0xBFA4EFA2E563C1BC);  // -0.040890779973668384
    constexpr f64x2 a12 = splat_f64(0x3FA169980CB6AD4F);  // 0.03400874285883992
    constexpr f64x2 a13 = splat_f64(0xBF9A5E83B081F69C);  // -0.025751168869183702
    constexpr f64x2 a14 = splat_f64(0x3F914F4C661116A5);  // 0.016904062013301985
    constexpr f64x2 a15 = splat_f64(0xBF82B2EC618E4BAD);  // -0.009130331732910191
    constexpr f64x2 a16 = splat_f64(0x3F6F5A1DAE82AFB3);  // 0.0038271503181785626
    constexpr f64x2 a17 = splat_f64(0xBF52E67C93954C23);  // -0.0011535851065971401
    constexpr f64x2 a18 = splat_f64(0x3F2CED0A36665209);  // 0.00022068738617221664
    constexpr f64x2 a19 = splat_f64(0xBEF4FDB537ABC7A3);  // -2.001862183482302e-05

    const f64x2 s2 = t * t, s4 = s2 * s2, z = s4 * s4;
    return {z * horner(z, a16, a12, a8, a4), horner(z, a17, a13, a9, a5, a1) * s2,
            horner(z, a19, a15, a11, a7, a3) * (s4 * s2), horner(z, a18, a14, a10, a6, a2) * s4};
}

// The short polynomial, the same without its leading 1.
TARN_INLINE f64x2 short_rest(f64x2 t) {
    constexpr f64x2 n1 = splat_f64(0xBFD55553E5B12000);  // -0.33333299094056201
    constexpr f64x2 n2 = splat_f64(0x3FC9991FD5682609);  // 0.19998548431640042
    constexpr f64x2 n3 = splat_f64(0xBFC2421B703FF523);  // -0.14264243107747018
    constexpr f64x2 n4 = splat_f64(0x3FBC09A0F973E424);  // 0.10952192392495924
    constexpr f64x2 n5 = splat_f64(0xBFB5834BE23DDE02);  // -0.084034674391539027
    constexpr f64x2 n6 = splat_f64(0x3FADACA6E7BD740B);  // 0.057957855022984082
    constexpr f64x2 n7 = splat_f64(0xBF9FED2597A1CE8F);  // -0.031178080921064718
    constexpr f64x2 n8 = splat_f64(0x3F865A75072DF602);  // 0.010914720803834935
    constexpr f64x2 n9 = splat_f64(0xBF5D63180AC67107);  // -0.001793645361522657
    const f64x2 z = t * t, z2 = z * z;
    return horner(z2, n9, n7, n5, n3, n1) * z + horner(z2, n8, n6, n4, n2) * z2;
}

struct Radians {
    static constexpr f64x2 quarter = splat_f64(0x3FF921FB54442D18);    // 1.5707963267948966 = pi/2
    static constexpr f64x2 half_turn = splat_f64(0x400921FB54442D18);  // 3.141592653589793 = pi

    static TARN_INLINE f64x2 from(f64x2 base, f64x2 t) {
        const auto [t8, t2, t6, t4] = chains(t);
        return base + t * (((one + t8) + t2) + (t6 + t4));
    }
};

struct RadiansNative : Radians {
    static TARN_INLINE f64x2 from(f64x2 base, f64x2 t) { return base + (t + t * short_rest(t)); }
};
struct HalfTurnsNative {
    static constexpr f64x2 quarter = splat(0.5);
    static constexpr f64x2 inv_pi = splat_f64(0x3FD45F306DC9C883);  // 0.3183098861837907
    static TARN_INLINE f64x2 from(f64x2 base, f64x2 t) { return base + (t + t * short_rest(t)) * inv_pi; }
};

// arctan x: of |x| or, from the quarter turn, of its reciprocal turned round. The order of the maximum makes a
// NaN come through.
template <class Unit> TARN_INLINE f64x2 of(f64x2 x) {
    const f64x2 a = abs(x);
    const i64x2 inverted = not_within(x, one);
    const f64x2 t = select(inverted, splat(-1.0), a) / max(one, a);
    return or_bits(Unit::from(where(inverted, Unit::quarter), t), sign_bit(x));
}

// The angle of the point (y, x), mirrored into its quadrant; no value where a coordinate is special.
template <class Unit> TARN_INLINE f64x2 of_point(f64x2 y, f64x2 x) {
    const f64x2 ay = abs(y), ax = abs(x);
    const i64x2 steep = ~(ay < ax);
    const f64x2 q = select(steep, ax, ay) / select(steep, ay, ax);
    const f64x2 first = Unit::from(where(steep, Unit::quarter), xor_bits(q, steep & sign_mask_f64));
    return xor_bits(select(bits(x), Unit::half_turn - first, first), sign_bit(y));
}

// Zeros, infinities and NaNs.
TARN_INLINE i64x2 no_coordinate(f64x2 v) {
    return ~(i64x2)_mm_cmpnle_pd(abs(v), splat(0.0)) | ~(abs(v) < splat_f64(0x7FF0000000000000));
}

}  // namespace tarn::arctangent
