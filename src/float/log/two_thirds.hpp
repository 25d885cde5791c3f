// What the single-precision logarithms share: x = 2^k m with m in [2/3, 4/3), so that r = m - 1 stays
// small on both sides of 1, and the shape of their polynomials.
#pragma once

#include "frame/simd.hpp"

namespace tarn::singles {

template <class V> struct SplitAtTwoThirds {
    BitsOf<V> exponent;  // k where a float has its exponent: k 2^23
    V r;                 // m - 1, in [-1/3, 1/3]
};
template <class V> TARN_INLINE SplitAtTwoThirds<V> split_at_two_thirds(V x) {
    constexpr std::int32_t two_thirds = 0x3F2AAAAB;  // 0.6666666865348816
    const BitsOf<V> exponent = (bits(x) - two_thirds) & i32(0xFF800000);
    const V m = from_bits(bits(x) - exponent);
    return {exponent, m - 1.0f};
}

// A factor of k made one of k 2^23: the product keeps its bits, and the exponent needs no shift.
constexpr float factor_of_exponent(std::uint32_t pattern) { return f32(pattern) * 0x1p-23f; }

// r + r^2 q(r), the coefficients of q from the highest.
template <class... C, class V> TARN_INLINE V log1p_polynomial(V r, C... q) { return horner(r, q...) * r * r + r; }

// The degree-9 polynomials without constant term, in powers of r^2 to shorten the chain:
// c holds the coefficients of r to r^9.
template <class V> TARN_INLINE V degree_9(V r, const float (&c)[9]) {
    const V r2 = r * r;
    V sum = c[8] * r + c[7];
    sum = sum * r2 + (c[6] * r + c[5]);
    sum = sum * r2 + (c[4] * r + c[3]);
    sum = sum * r2 + (c[2] * r + c[1]);
    return (sum * r + c[0]) * r;
}

}  // namespace tarn::singles
