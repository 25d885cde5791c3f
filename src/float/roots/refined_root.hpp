// The square root without the long-latency instruction: the processor's estimate y of 1/sqrt x gives
// s = x y and h = y/2, one coupled step brings both to about 22 bits, and the residual x - s^2
// corrects the root.
#pragma once

#include "frame/simd.hpp"

namespace tarn {

TARN_INLINE f32x4 refined_root(f32x4 x) {
    const f32x4 half = splat(0.5f);
    const f32x4 y = rsqrt_estimate(x);
    const f32x4 s = x * y, h = y * half;
    const f32x4 e = half - s * h;
    const f32x4 s1 = s + e * s, h1 = h + e * h;
    return s1 + h1 * (x - s1 * s1);
}

}  // namespace tarn
