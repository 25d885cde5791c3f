// IEEE's exceptions that code has raised.
#pragma once

#include <xmmintrin.h>

#include <cfenv>

namespace tarn::test {

// SSE's and x87's together, as fetestexcept sees them; the processor's own flag of subnormal operands is none of IEEE
// 754's.
inline unsigned raised() {
    unsigned short x87;
    __asm__ volatile("fnstsw %0" : "=m"(x87));
    return (_mm_getcsr() | x87) & FE_ALL_EXCEPT;
}
inline void clear_raised() {
    __asm__ volatile("fnclex");
    _mm_setcsr(_mm_getcsr() & ~0x3fu);
}

}  // namespace tarn::test
