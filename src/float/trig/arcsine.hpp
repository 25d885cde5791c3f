// What arcsine and arccosine share. Magnitudes from 1/2 on are folded: with y = (1 - |x|)/2, the angle
// of x is that of sqrt(y) doubled, away from the end of the range; so one odd polynomial on [0, 1/2]
// serves, in u = |x| or 2 sqrt(y) and z = x^2 or y.
#pragma once

#include "frame/simd.hpp"

namespace tarn::singles::arcsine {

constexpr float half = 0.5f;
constexpr float one = 1.0f;
constexpr float half_pi = f32(0x3FC90FDB);  // 1.5707963705062866
constexpr float pi = f32(0x40490FDB);       // 3.1415927410125732
constexpr float inv_pi = f32(0x3EA2F983);   // 0.31830987334251404

// 2 sqrt(y), rounded or estimated; the estimate of 0 must not become 0 * inf.
template <class V> TARN_INLINE V twice_root(V y) {
    const V root = sqrt(y);
    return root + root;
}
template <class V> TARN_INLINE V twice_root_estimate(V y) {
    const V positive = max(0x1p-100f, y);
    return (positive + positive) * rsqrt_estimate(positive);
}

// (((a5 z + a4) z^2 + (a3 z + a2)) z + a1) z: two halves side by side.
template <class V> TARN_INLINE V polynomial(V z, float a5, float a4, float a3, float a2, float a1) {
    return (((a5 * z + a4) * (z * z) + (a3 * z + a2)) * z + a1) * z;
}

// The arcsine of u on the unfolded part. 0 <= z <= 1/4; fit not recorded.
namespace radians {
struct Full {
    static constexpr float a5 = f32(0x3D2EDC07);  // 0.042690303176641464
    static constexpr float a4 = f32(0x3CC32A6B);  // 0.0238239374011755
    static constexpr float a3 = f32(0x3D3A9AB4);  // 0.045557692646980286
    static constexpr float a2 = f32(0x3D997C12);  // 0.0749436765909195
    static constexpr float a1 = f32(0x3E2AAAFF);  // 0.16666792333126068

    template <class V> static TARN_INLINE V root(V y) { return twice_root(y); }
    template <class V> static TARN_INLINE V value(V u, V z) { return polynomial(z, a5, a4, a3, a2, a1) * u + u; }
};
struct Native {
    static constexpr float a2 = f32(0x3DC11FAB);  // 0.09429868310689926
    static constexpr float a1 = f32(0x3E2904E7);  // 0.16505776345729828

    template <class V> static TARN_INLINE V root(V y) { return twice_root_estimate(y); }
    template <class V> static TARN_INLINE V value(V u, V z) { return horner(z, a2, a1, one) * u; }
};
}  // namespace radians

// `rest` leaves out the leading u / pi.
namespace half_turns {
struct Full {
    static constexpr float a5 = f32(0x3C5EA355);  // 0.013588746078312397
    static constexpr float a4 = f32(0x3BF87E20);  // 0.007583394646644592
    static constexpr float a3 = f32(0x3C6D978C);  // 0.014501463621854782
    static constexpr float a2 = f32(0x3CC36C37);  // 0.023855311796069145
    static constexpr float a1 = f32(0x3D594D1B);  // 0.05305204913020134

    template <class V> static TARN_INLINE V root(V y) { return twice_root(y); }
    template <class V> static TARN_INLINE V rest(V z) { return polynomial(z, a5, a4, a3, a2, a1); }
};
struct Native {
    static constexpr float a2 = f32(0x3CF5E48A);  // 0.030016202479600906
    static constexpr float a1 = f32(0x3D5733AD);  // 0.05253951624035835

    template <class V> static TARN_INLINE V root(V y) { return twice_root_estimate(y); }
    template <class V> static TARN_INLINE V value(V u, V z) { return horner(z, a2, a1, inv_pi) * u; }
};
}  // namespace half_turns

template <class V> struct Folded {
    V u, z;
    BitsOf<V> upper;  // folded lanes
};

// For the arcsine: of |x|, with u negative where folded, to be added to a quarter turn.
template <class Form, class V> TARN_INLINE Folded<V> fold(V a) {
    const V y = half - half * a;
    const BitsOf<V> upper = ~(a < half);
    return {select(upper, or_bits(Form::root(y), sign_mask<V>), a), min(a * a, y), upper};
}

// For the arccosine: with the signs that it needs, -x where unfolded and the sign of x where folded.
template <class Form, class V> TARN_INLINE Folded<V> fold_signed(V x) {
    const V n = or_bits(x, sign_mask<V>);
    const V y = half * n + half;
    const V z = min(n * n, y);
    const BitsOf<V> upper = ~(z < y);
    return {xor_bits(select(upper, Form::root(y), n), sign_bit(x)), z, upper};
}

// The arccosine starts from a quarter turn, or where folded from 0 or, for a negative x, half a turn.
template <class V> TARN_INLINE V start(V x, const Folded<V>& f, float quarter, float half_turn) {
    return select(f.upper, where(x < f.z, half_turn), quarter);
}

}  // namespace tarn::singles::arcsine
