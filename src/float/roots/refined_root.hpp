// The square root without the long-latency instruction: the processor's estimate y of 1/sqrt x gives
// s = x y and h = y/2, one coupled step brings both to about 22 bits, and the residual x - s^2
// corrects the root.
#pragma once

#include "frame/simd.hpp"

namespace tarn::singles {

template <class V> TARN_INLINE V refined_root(V x) {
    constexpr float half = 0.5f;
    const V y = rsqrt_estimate(x);
    const V s = x * y, h = y * half;
    const V e = half - s * h;
    const V s1 = s + e * s, h1 = h + e * h;
    return s1 + h1 * (x - s1 * s1);
}

}  // namespace tarn::singles
