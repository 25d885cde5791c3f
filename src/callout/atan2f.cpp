// The arctangent of two arguments in double precision, rounded once after the quotient has been rounded
// to single precision. The special cases stand in the order in which they decide.
#include "callout/scalar.hpp"

namespace tarn::callout {
namespace {

constexpr double pi = f64(0x400921FB54442D18);  // 3.141592653589793

// arctan t on [0, 1], to 2.6e-13 of it.
double arctangent(double t) {
    constexpr double c[] = {
        f64(0x3F2774550661FE91),  // 0.00017894304182063507
        f64(0xBF59043DFD7B205F),  // -0.001526890313401828
        f64(0x3F79193AC3FA5243),  // 0.006127576401600057
        f64(0xBF8FEE01AE32FF63),  // -0.015590680245054228
        f64(0x3F9D8AFDACFCEE17),  // 0.028850520785665603
        f64(0xBFA5DC5AAF676AE2),  // -0.04269679442560005
        f64(0x3FAC0F4CA615148E),  // 0.054804225228999845
        f64(0xBFB0C1B82937DD08),  // -0.06545592314056503
        f64(0x3FB39FF54C069A66),  // 0.07665951830004189
        f64(0xBFB74334F5F46340),  // -0.09086924557449283
        f64(0x3FBC7184DCA83F4D),  // 0.11110716235293445
        f64(0xBFC249229B6A34D1),  // -0.14285690868965742
        f64(0x3FC999998A6CD0D4),  // 0.1999999929336186
        f64(0xBFD555555540B2A7),  // -0.3333333332582619
    };
    const double z = t * t;
    double p = 0;
    for (const double coefficient : c) p = p * z + coefficient;
    return p * z * t + t;
}

// In units of which half a turn has `half_turn`.
double angle(float y, float x, double half_turn) {
    if (is_nan(y) || is_nan(x)) return y + x;
    const bool left = has_sign(x);
    const float ay = __builtin_fabsf(y), ax = __builtin_fabsf(x);
    const float infinity = __builtin_inff();
    double first;  // of the point (|y|, |x|)
    if (ay == 0) first = 0;
    else if (ax == 0) first = half_turn / 2;
    else if (ay == infinity && ax == infinity) first = half_turn / 4;
    else if (ay == infinity) first = half_turn / 2;
    else if (ax == infinity) first = 0;
    else if (ax < ay) first = half_turn / 2 - arctangent(ax / ay) / pi * half_turn;
    else first = arctangent(ay / ax) / pi * half_turn;
    const double upper = left ? half_turn - first : first;
    return has_sign(y) ? -upper : upper;
}

}  // namespace

int atan2f(const float* y, const float* x, float* result) { return give(result, angle(*y, *x, pi)); }
int atan2pif(const float* y, const float* x, float* result) { return give(result, angle(*y, *x, 1.0)); }

}  // namespace tarn::callout
