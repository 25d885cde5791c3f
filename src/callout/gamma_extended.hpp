// What the double-precision gamma functions share: x87 extended arithmetic, and the sine of their reflection.
#pragma once

#include "callout/gamma_family.hpp"

namespace tarn::callout {

#include "tables/gamma_sine.inc"

using extended = long double;

// f(x) with the x87 unit at 64 bits, rounding to nearest, whatever the caller has set. x and the result go
// through the two instructions, so that nothing is computed outside of them.
template <class F> TARN_INLINE double in_extended(double x, F f) {
    static constexpr std::uint16_t own = 0x037F;
    std::uint16_t callers;
    asm volatile("fnstcw %0" : "=m"(callers));
    asm volatile("fldcw %1" : "+x"(x) : "m"(own));
    double result = f(x);
    asm volatile("fldcw %1" : "+x"(result) : "m"(callers));
    return result;
}

// Stirling's series without its first term.
TARN_INLINE double stirling_series(double v) { return v * polynomial<8>(gamma_stirling + 1, v * v); }

// |sin(pi y)| / pi of |y| <= 1/2.
TARN_INLINE extended sine_over_pi(double y) {
    const double near = y * y;
    const double c4 = near * polynomial<6>(gamma_sine + 6, near);
    const extended y2 = extended(y) * y;
    const extended c3 = extended(gamma_sine[4]) + (gamma_sine[5] + c4);
    const extended c2 = extended(gamma_sine[2]) + (gamma_sine[3] + y2 * c3);
    const extended c1 = extended(gamma_sine[0]) + (gamma_sine[1] + y2 * c2);
    const extended magnitude = y < 0 ? -extended(y) : extended(y);
    return magnitude + magnitude * (y2 * c1);
}

}  // namespace tarn::callout
