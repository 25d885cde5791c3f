// erfc in double precision: the kernel's own steps up to 27.25, from where on it is far below half the smallest
// subnormal.
#include "callout/scalar.hpp"
#include "steps/double/erfc.hpp"

namespace tarn::callout {

using namespace doubles;

int erfc(const double* x, double* result) {
    if (is_nan(*x)) return give(result, *x * *x);
    if (not_finite(*x)) return give(result, *x < 0 ? 2.0 : 0.0);
    if (*x >= 27.25) return give(result, underflowed(), underflow);
    const double y = erfc_steps<ErfcSeries>(filled<f64x2>(*x))[0];
    return give(result, y, y < 0x1p-1022 ? underflow : ordinary);
}

}  // namespace tarn::callout
