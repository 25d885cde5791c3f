// The reciprocal square root of doubles with its rounding errors taken off: the square root leaves the residual
// x - s^2, the quotient 1 - s y. Halves make the products exact.
#pragma once

#include "frame/double_word.hpp"

namespace tarn::doubles {

// x^(-1/2) = y (1 + e - d y^2/2) for s, the rounded root, y, its rounded reciprocal, e = 1 - s y and d = x - s^2.
template <class V> TARN_INLINE V corrected_rsqrt(V x) {
    constexpr double one = 1.0, half = 0.5;
    const V s = sqrt(x), y = one / s;
    const HeadTail<V> sh = short_split(s), yh = short_split(y);
    const V d = ((x - sh.head * sh.head) - (sh.head + sh.head) * sh.tail) - sh.tail * sh.tail;
    const V e = ((one - sh.head * yh.head) - sh.head * yh.tail) - sh.tail * y;
    return y + y * (e - half * (d * y) * y);
}

}  // namespace tarn::doubles
