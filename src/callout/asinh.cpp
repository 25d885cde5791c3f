// The inverse hyperbolic functions of one lane in double precision: the kernels' own steps between the ends of the
// range, x itself below 2^-28, and ln x + ln 2 where the square would overflow.
#include "callout/scalar.hpp"
#include "steps/double/inverse_hyperbolic.hpp"

namespace tarn::callout {

using namespace doubles;
namespace {

using namespace inverse_hyperbolic;

// ln 2x for an x that is huge.
double log_of_twice(double x) {
    const f64x2 scaled = filled<f64x2>(x * 0x1p-600);
    LogRow at = log_row(scaled);
    at.e += 601.0;
    return log_of_sum(at, scaled, f64x2{})[0];
}

}  // namespace

int asinh(const double* x, double* result) {
    const double a = __builtin_fabs(*x);
    if (not_finite(*x)) return give(result, *x + *x);
    if (a < 0x1p-28) return give(result, *x);
    const double y = a < 0x1p511 ? inverse_hyperbolic::asinh(filled<f64x2>(a))[0] : log_of_twice(a);
    return give(result, *x < 0 ? -y : y);
}

int acosh(const double* x, double* result) {
    if (is_nan(*x)) return give(result, *x + *x);
    if (*x < 1) return give(result, invalid(), domain_error);
    if (*x == 1) return give(result, 0.0);
    if (not_finite(*x)) return give(result, *x);
    return give(result, *x < 0x1p511 ? inverse_hyperbolic::acosh(filled<f64x2>(*x))[0] : log_of_twice(*x));
}

int atanh(const double* x, double* result) {
    const double a = __builtin_fabs(*x);
    if (is_nan(*x)) return give(result, *x + *x);
    if (a > 1) return give(result, invalid(), domain_error);
    if (a == 1) return give(result, *x * infinity_from(0.0), pole);
    if (a < 0x1p-28) return give(result, *x);
    const double y = twice_atanh(filled<f64x2>(a))[0] * 0.5;
    return give(result, *x < 0 ? -y : y);
}

}  // namespace tarn::callout
