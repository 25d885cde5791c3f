// What the fast paths of sine and cosine share: pi in pieces and the odd polynomials of the sine on
// [-pi/2, pi/2]. `Full` and `Native` say the same with more and with less.
#pragma once

#include "frame/simd.hpp"

namespace tarn::singles::sine {

constexpr float limit = f32(0x461C4000);    // 10000.0; above, the exact reduction takes over
constexpr float inv_pi = f32(0x3EA2F983);   // 0.31830987334251404
constexpr float shifter = f32(0x4B400000);  // 12582912.0 = 1.5 * 2^23
constexpr float half = 0.5f;
constexpr float pi_1 = f32(0x40490000);  // 3.140625
constexpr float pi_2 = f32(0x3A7DA000);  // 0.0009675025939941406

// The parity of the integer in a shifted sum, as a sign.
template <class V> TARN_INLINE auto parity_sign(V shifted) { return bits(shifted) << 31; }

// x - n pi, |n| <= 3183, for whole and for half n, in two steps: `near` the first two pieces,
// `rest` the others. Then the sine of r from r and r^2. |r| <= pi/2; fit not recorded.
struct Full {
    static constexpr float pi_3 = f32(0x34222000);  // 1.5099067240953445e-07
    static constexpr float pi_4 = f32(0x2CB4611A);  // 5.126688136514179e-12
    static constexpr float s1 = f32(0xBE2AAAA6);    // -0.16666659712791443
    static constexpr float s2 = f32(0x3C08876A);    // 0.00833306647837162
    static constexpr float s3 = f32(0xB94FB7FF);    // -0.00019809602235909551
    static constexpr float s4 = f32(0x362EDEF8);    // 2.605780537123792e-06

    template <class V> static TARN_INLINE V rest(V near, V n) { return (near - n * pi_3) - n * pi_4; }
    template <class V> static TARN_INLINE V polynomial(V r, V z) { return horner(z, s4, s3, s2, s1) * z * r + r; }
};
struct Native {
    static constexpr float pi_3 = f32(0x34222169);  // 1.5099580252808664e-07
    static constexpr float n1 = f32(0xBE2A1DC5);    // -0.1661291867494583
    static constexpr float n2 = f32(0x3BFAE3C1);    // 0.007656544912606478

    template <class V> static TARN_INLINE V rest(V near, V n) { return near - n * pi_3; }
    template <class V> static TARN_INLINE V polynomial(V r, V z) { return horner(z, n2, n1) * z * r + r; }
};

template <class V> TARN_INLINE V near(V x, V n) { return (x - n * pi_1) - n * pi_2; }

}  // namespace tarn::singles::sine
