// erfc in double precision where nothing of it is left: from 27.25 on it is far below half the smallest
// subnormal.
#include "callout/scalar.hpp"

namespace tarn::callout {

int erfc(const double* x, double* result) {
    if (is_nan(*x)) return give(result, *x * *x);
    if (not_finite(*x)) return give(result, 0.0);
    return give(result, underflowed(), underflow);
}

}  // namespace tarn::callout
