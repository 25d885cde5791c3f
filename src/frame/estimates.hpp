// The processor's own approximations of 1/x and x^(-1/2): relative error at most 1.5 * 2^-12, and bits that differ
// between processors. In a file of their own because the tests put others in their place.
#pragma once

#include "frame/simd128.hpp"
#ifdef __AVX2__
#include "frame/simd256.hpp"
#endif

namespace tarn {

TARN_INLINE f32x4 reciprocal_estimate(f32x4 x) { return _mm_rcp_ps(x); }
TARN_INLINE f32x4 rsqrt_estimate(f32x4 x) { return _mm_rsqrt_ps(x); }
#ifdef __AVX2__
TARN_INLINE f32x8 reciprocal_estimate(f32x8 x) { return _mm256_rcp_ps(x); }
TARN_INLINE f32x8 rsqrt_estimate(f32x8 x) { return _mm256_rsqrt_ps(x); }
#endif

}  // namespace tarn
