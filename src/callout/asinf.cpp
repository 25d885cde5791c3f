// The ends of the inverse functions. Arcsine and arccosine come here at |x| = 1 and beyond, where there
// is no value; the arctangent in half turns where |x| is so small or so great that the result is x/pi
// or a quarter of a turn, rounded once.
#include "callout/scalar.hpp"

namespace tarn::callout {
namespace {

constexpr double pi = f64(0x400921FB54442D18);       // 3.141592653589793
constexpr double half_pi = f64(0x3FF921FB54442D18);  // 1.5707963267948966
constexpr double inv_pi = f64(0x3FD45F306DC9C883);   // 0.3183098861837907

// The values at +1 and -1; invalid anywhere else.
int at_one(float x, float* result, double positive, double negative) {
    if (x == 1) return give(result, positive);
    if (x == -1) return give(result, negative);
    const float zero = opaque(0.0f);
    *result = zero / zero;
    return domain_error;
}

}  // namespace

int asinf(const float* x, float* result) { return at_one(*x, result, half_pi, -half_pi); }
int acosf(const float* x, float* result) { return at_one(*x, result, 0.0, pi); }
int asinpif(const float* x, float* result) { return at_one(*x, result, 0.5, -0.5); }
int acospif(const float* x, float* result) { return at_one(*x, result, 0.0, 1.0); }

int atanpif(const float* x, float* result) {
    if (is_nan(*x)) return give(result, *x + *x);
    if (__builtin_fabsf(*x) < 1) return give(result, *x * inv_pi);
    return give(result, *x < 0 ? -0.5 : 0.5);
}

}  // namespace tarn::callout
