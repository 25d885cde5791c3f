// The special lanes of the hyperbolic functions. sinh and cosh arrive above 87, where they are half an
// exponential in every bit; that is taken in double precision and rounded once. The others are known without
// arithmetic.
#include "callout/exp_family.hpp"

namespace tarn::callout {
namespace {

// e^|x| / 2, with the sign.
int half_exponential(float x, double sign, float* result) {
    if (not_finite(x)) return give(result, is_nan(x) ? x * x : sign * f64(0x7FF0000000000000));
    const double a = x < 0 ? -x : x;
    if (a > 90.0) return give(result, sign * overflowed(), overflow);
    const double y = 0.5 * exp_of(a);
    return give(result, sign * y, y > 0x1.FFFFFEp127 ? overflow : ordinary);
}

}  // namespace

int sinhf(const float* x, float* result) { return half_exponential(*x, has_sign(*x) ? -1.0 : 1.0, result); }
int coshf(const float* x, float* result) { return half_exponential(*x, 1.0, result); }

int tanhf(const float* x, float* result) {
    if (is_nan(*x)) return give(result, quiet(*x));
    return give(result, has_sign(*x) ? -1.0 : 1.0);
}

// Infinite, or so small that it is its own value.
int asinhf(const float* x, float* result) { return give(result, is_nan(*x) ? quiet(*x) : *x); }

int acoshf(const float* x, float* result) {
    if (is_nan(*x)) return give(result, *x * *x);
    if (*x == 1.0f) return give(result, 0.0);
    if (*x > 1.0f) return give(result, *x);
    return give(result, invalid(), domain_error);
}

int atanhf(const float* x, float* result) {
    if (is_nan(*x)) return give(result, *x * *x);
    if (*x == 1.0f || *x == -1.0f) return give(result, *x * infinity_from(0.0), pole);
    if (*x > 1.0f || *x < -1.0f) return give(result, invalid(), domain_error);
    return give(result, *x);
}

}  // namespace tarn::callout
