// What the single-precision logarithms share: x = 2^k m with m in [2/3, 4/3), so that r = m - 1 stays
// small on both sides of 1, and the shape of their polynomials.
#pragma once

#include "frame/simd.hpp"

namespace tarn {

struct SplitAtTwoThirds {
    i32x4 exponent;  // k where a float has its exponent: k 2^23
    f32x4 r;         // m - 1, in [-1/3, 1/3]
};
TARN_INLINE SplitAtTwoThirds split_at_two_thirds(f32x4 x) {
    const i32x4 two_thirds = splat_i32(0x3F2AAAAB);  // 0.6666666865348816
    const i32x4 exponent = (bits(x) - two_thirds) & splat_i32(0xFF800000);
    const f32x4 m = from_bits(bits(x) - exponent);
    return {exponent, m - splat(1.0f)};
}

// A factor of k made one of k 2^23: the product keeps its bits, and the exponent needs no shift.
constexpr f32x4 factor_of_exponent(std::uint32_t pattern) { return splat(f32(pattern) * 0x1p-23f); }

// r + r^2 q(r), the coefficients of q from the highest.
template <class... C> TARN_INLINE f32x4 log1p_polynomial(f32x4 r, C... q) { return horner(r, q...) * r * r + r; }

// The degree-9 polynomials without constant term, in powers of r^2 to shorten the chain:
// c holds the coefficients of r to r^9.
TARN_INLINE f32x4 degree_9(f32x4 r, const f32x4 (&c)[9]) {
    const f32x4 r2 = r * r;
    f32x4 sum = c[8] * r + c[7];
    sum = sum * r2 + (c[6] * r + c[5]);
    sum = sum * r2 + (c[4] * r + c[3]);
    sum = sum * r2 + (c[2] * r + c[1]);
    return (sum * r + c[0]) * r;
}

}  // namespace tarn
