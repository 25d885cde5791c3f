// What arcsine and arccosine share. Magnitudes from 1/2 on are folded: with y = (1 - |x|)/2, the angle
// of x is that of sqrt(y) doubled, away from the end of the range; so one odd polynomial on [0, 1/2]
// serves, in u = |x| or 2 sqrt(y) and z = x^2 or y.
#pragma once

#include "frame/simd.hpp"

namespace tarn::arcsine {

constexpr f32x4 half = splat(0.5f);
constexpr f32x4 one = splat(1.0f);
constexpr f32x4 half_pi = splat_f32(0x3FC90FDB);  // 1.5707963705062866
constexpr f32x4 pi = splat_f32(0x40490FDB);       // 3.1415927410125732
constexpr f32x4 inv_pi = splat_f32(0x3EA2F983);   // 0.31830987334251404

// 2 sqrt(y), rounded or estimated; the estimate of 0 must not become 0 * inf.
TARN_INLINE f32x4 twice_root(f32x4 y) {
    const f32x4 root = sqrt(y);
    return root + root;
}
TARN_INLINE f32x4 twice_root_estimate(f32x4 y) {
    const f32x4 positive = max(splat(0x1p-100f), y);
    return (positive + positive) * rsqrt_estimate(positive);
}

// ((((a5 z + a4) z^2 + (a3 z + a2)) z + a1) z: two halves side by side.
TARN_INLINE f32x4 polynomial(f32x4 z, f32x4 a5, f32x4 a4, f32x4 a3, f32x4 a2, f32x4 a1) {
    return (((a5 * z + a4) * (z * z) + (a3 * z + a2)) * z + a1) * z;
}

// The arcsine of u on the unfolded part, in radians.
struct Radians {
    static constexpr f32x4 a5 = splat_f32(0x3D2EDC07);  // 0.042690303176641464
    static constexpr f32x4 a4 = splat_f32(0x3CC32A6B);  // 0.0238239374011755
    static constexpr f32x4 a3 = splat_f32(0x3D3A9AB4);  // 0.045557692646980286
    static constexpr f32x4 a2 = splat_f32(0x3D997C12);  // 0.0749436765909195
    static constexpr f32x4 a1 = splat_f32(0x3E2AAAFF);  // 0.16666792333126068

    static TARN_INLINE f32x4 root(f32x4 y) { return twice_root(y); }
    static TARN_INLINE f32x4 value(f32x4 u, f32x4 z) { return polynomial(z, a5, a4, a3, a2, a1) * u + u; }
};
struct RadiansNative {
    static constexpr f32x4 a2 = splat_f32(0x3DC11FAB);  // 0.09429868310689926
    static constexpr f32x4 a1 = splat_f32(0x3E2904E7);  // 0.16505776345729828

    static TARN_INLINE f32x4 root(f32x4 y) { return twice_root_estimate(y); }
    static TARN_INLINE f32x4 value(f32x4 u, f32x4 z) { return horner(z, a2, a1, one) * u; }
};

// The same in half turns; `polynomial` leaves out the leading u / pi.
struct HalfTurns {
    static constexpr f32x4 a5 = splat_f32(0x3C5EA355);  // 0.013588746078312397
    static constexpr f32x4 a4 = splat_f32(0x3BF87E20);  // 0.007583394646644592
    static constexpr f32x4 a3 = splat_f32(0x3C6D978C);  // 0.014501463621854782
    static constexpr f32x4 a2 = splat_f32(0x3CC36C37);  // 0.023855311796069145
    static constexpr f32x4 a1 = splat_f32(0x3D594D1B);  // 0.05305204913020134

    static TARN_INLINE f32x4 root(f32x4 y) { return twice_root(y); }
    static TARN_INLINE f32x4 rest(f32x4 z) { return polynomial(z, a5, a4, a3, a2, a1); }
};
struct HalfTurnsNative {
    static constexpr f32x4 a2 = splat_f32(0x3CF5E48A);  // 0.030016202479600906
    static constexpr f32x4 a1 = splat_f32(0x3D5733AD);  // 0.05253951624035835

    static TARN_INLINE f32x4 root(f32x4 y) { return twice_root_estimate(y); }
    static TARN_INLINE f32x4 value(f32x4 u, f32x4 z) { return horner(z, a2, a1, inv_pi) * u; }
};

struct Folded {
    f32x4 u, z;
    i32x4 upper;  // folded lanes
};

// For the arcsine: of |x|, with u negative where folded, to be added to a quarter turn.
template <class Form> TARN_INLINE Folded fold(f32x4 a) {
    const f32x4 y = half - half * a;
    const i32x4 upper = ~(a < half);
    return {select(upper, or_bits(Form::root(y), sign_mask_f32), a), min(a * a, y), upper};
}

// For the arccosine: with the signs that it needs, -x where unfolded and the sign of x where folded.
template <class Form> TARN_INLINE Folded fold_signed(f32x4 x) {
    const f32x4 n = or_bits(x, sign_mask_f32);
    const f32x4 y = half * n + half;
    const f32x4 z = min(n * n, y);
    const i32x4 upper = ~(z < y);
    return {xor_bits(select(upper, Form::root(y), n), sign_bit(x)), z, upper};
}

// The arccosine starts from a quarter turn, or where folded from 0 or, for a negative x, half a turn.
TARN_INLINE f32x4 start(f32x4 x, const Folded& f, f32x4 quarter, f32x4 half_turn) {
    return select(f.upper, where(x < f.z, half_turn), quarter);
}

}  // namespace tarn::arcsine
