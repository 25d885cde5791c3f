// The ends of the double-precision inverse functions: arcsine and arccosine at |x| = 1 and beyond, where there
// is no value, and the angle of a point with a zero, infinite or NaN coordinate. Half turns are exact;
// radians are sums of a head and a tail, which say that they are rounded.
#include "callout/format.hpp"

namespace tarn::callout {
namespace {

constexpr double pi = f64(0x400921FB54442D18);            // 3.141592653589793
constexpr double pi_tail = f64(0x3CA1A62633145C07);       // 1.2246467991473532e-16

// `half_turns` of the unit in which half a turn is pi, or 1.
TARN_INLINE double radians(double half_turns) { return half_turns * pi + opaque(half_turns) * pi_tail; }
TARN_INLINE double itself(double half_turns) { return half_turns; }

// The values at +1 and -1; a NaN comes back, anything else is invalid.
template <class Unit> int at_one(double x, double* result, Unit unit, double positive, double negative) {
    if (x == 1) return give(result, unit(positive));
    if (x == -1) return give(result, unit(negative));
    if (is_nan(x)) return give(result, x / x);
    return give(result, invalid(), domain_error);
}

template <class Unit> int of_point(double y, double x, double* result, Unit unit) {
    if (is_nan(y) || is_nan(x)) return give(result, y + x);
    const double ay = __builtin_fabs(y), ax = __builtin_fabs(x);
    double first = 0;  // of the point (|y|, |x|), in half turns
    if (ay == 0) first = 0;
    else if (ax == 0) first = 0.5;
    else if (ay == ax) first = 0.25;
    else if (ax < ay) first = 0.5;
    const double upper = sign(x) != 0 ? 1 - first : first;
    return give(result, with_sign(unit(upper), sign(y)));
}

}  // namespace

int asin(const double* x, double* result) { return at_one(*x, result, radians, 0.5, -0.5); }
int acos(const double* x, double* result) { return at_one(*x, result, radians, 0.0, 1.0); }
int asinpi(const double* x, double* result) { return at_one(*x, result, itself, 0.5, -0.5); }
int acospi(const double* x, double* result) { return at_one(*x, result, itself, 0.0, 1.0); }

int atan2(const double* y, const double* x, double* result) { return of_point(*y, *x, result, radians); }
int atan2pi(const double* y, const double* x, double* result) { return of_point(*y, *x, result, itself); }

}  // namespace tarn::callout
