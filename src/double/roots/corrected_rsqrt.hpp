// The reciprocal square root of doubles with its rounding errors taken off: the square root leaves the residual
// x - s^2, the quotient 1 - s y. Halves make the products exact.
#pragma once

#include "double/halves.hpp"

namespace tarn {

// x^(-1/2) = y (1 + e - d y^2/2) for s, the rounded root, y, its rounded reciprocal, e = 1 - s y and d = x - s^2.
TARN_INLINE f64x2 corrected_rsqrt(f64x2 x) {
    const f64x2 one = splat(1.0), half = splat(0.5);
    const f64x2 s = sqrt(x), y = one / s;
    const Halves sh = halves(s), yh = halves(y);
    const f64x2 d = ((x - sh.head * sh.head) - (sh.head + sh.head) * sh.tail) - sh.tail * sh.tail;
    const f64x2 e = ((one - sh.head * yh.head) - sh.head * yh.tail) - sh.tail * y;
    return y + y * (e - half * (d * y) * y);
}

}  // namespace tarn
