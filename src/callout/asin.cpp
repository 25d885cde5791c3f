// The double-precision inverse functions as complete scalar functions. Arcsine and arccosine are a head and a tail to
// the end: v + v^3/6 and a polynomial up to 1/2; from there on the doubled arcsine of ((1 - |x|)/2)^(1/2), whose rounding
// error is kept, away from the end of the range. The angle of a point takes the kernels' steps, but for zero and
// infinite coordinates, whose half turns are known.
#include "callout/format.hpp"
#include "steps/double/arctangent_nodes.hpp"

namespace tarn::callout {

using namespace doubles;
namespace {

struct Pair {
    double head, tail;
};

constexpr Pair half_pi = {f64(0x3FF921FB54442D18), f64(0x3C91A62633145C07)};  // 1.5707963267948966, 6.123233995736766e-17
constexpr Pair inv_pi = {f64(0x3FD45F306DC9C883), f64(0xBC76B01EC5417056)};   // 0.3183098861837907, -1.9678676675182486e-17
constexpr Pair sixth = {f64(0x3FC5555555555555), f64(0x3C65555555555555)};    // 0.16666666666666666, 9.25185853854297e-18
constexpr double splitter = 134217728.0;                                      // 2^27

TARN_INLINE double upper_half(double x) { return (x + x * splitter) - x * splitter; }

// |x| >= |y|.
TARN_INLINE Pair sum(const Pair& x, const Pair& y) {
    const double head = x.head + y.head;
    return {head, (y.head - (head - x.head)) + (x.tail + y.tail)};
}
TARN_INLINE Pair product(const Pair& x, const Pair& y) {
    const double xh = upper_half(x.head), xl = x.head - xh, yh = upper_half(y.head), yl = y.head - yh;
    const double head = x.head * y.head;
    const double error = (((xh * yh - head) + xh * yl) + xl * yh) + xl * yl;
    return {head, error + (x.head * y.tail + x.tail * y.head)};
}

// arcsin v for 0 <= v <= 1/2: v + v (z/6 + z^2 P(z)), z = v^2.
Pair arcsine(const Pair& v) {
    constexpr double p[] = {
        f64(0x3F9ABE975E18E535),  // 0.026117673032989692
        f64(0xBF8C0605FCE3AAA2),  // -0.013683363704747823
        f64(0x3F9007452E407516),  // 0.01565273375319006
        f64(0x3F72FC86EAB5489D),  // 0.0046353597820873145
        f64(0x3F823B9A5C18636A),  // 0.008902746139072899
        f64(0x3F83DB1F9D3241C7),  // 0.009695288643599377
        f64(0x3F87AB853EDF2E99),  // 0.011557618123240675
        f64(0x3F8C996C07C11050),  // 0.013964504229200397
        f64(0x3F91C4ED28250A22),  // 0.017352777075993704
        f64(0x3F96E8BA29BE8D21),  // 0.0223721588114475
        f64(0x3F9F1C71C72A800C),  // 0.03038194444764035
        f64(0x3FA6DB6DB6DB65A8),  // 0.04464285714284283
        f64(0x3FB3333333333334),  // 0.07500000000000001
    };
    const Pair z = product(v, v);
    double rest = 0;
    for (const double coefficient : p) rest = rest * z.head + coefficient;
    const Pair ratio = sum(product(z, sixth), {rest * z.head * z.head, 0});
    return sum(v, product(v, ratio));
}

// arcsin ((1 - a)/2)^(1/2).
Pair arcsine_of_half(double a) {
    const double w = 0.5 - 0.5 * a, s = __builtin_sqrt(w);
    if (s == 0) return {0, 0};
    const double h = upper_half(s), l = s - h;
    return arcsine({s, ((w - h * h) - 2 * h * l - l * l) / (2 * s)});
}

Pair times(double n, const Pair& x) { return {n * x.head, n * x.tail}; }

Pair arcsine_of(double a) {
    if (a < 0.5) return arcsine({a, 0});
    return sum(half_pi, times(-2, arcsine_of_half(a)));
}
Pair arccosine_of(double x) {
    const double a = __builtin_fabs(x);
    if (a < 0.5) return sum(half_pi, times(x < 0 ? 1 : -1, arcsine({a, 0})));
    const Pair twice = times(2, arcsine_of_half(a));
    return x < 0 ? sum(times(2, half_pi), times(-1, twice)) : twice;
}

// The units.
struct Radians {
    using Nodes = arctangent::Full<arctangent::RadiansByNodes>;
    static double of(const Pair& angle) { return angle.head + angle.tail; }
    static double half_turns(double n) { return 2 * n * half_pi.head + 2 * opaque(n) * half_pi.tail; }
};
struct HalfTurns {
    using Nodes = arctangent::Full<arctangent::HalfTurnsByNodes>;
    static double of(const Pair& angle) {
        if (angle.head >= 0x1p-500) return Radians::of(product(angle, inv_pi));
        return Radians::of(product(times(0x1p500, angle), inv_pi)) * 0x1p-500;  // the halves of a tiny angle would vanish
    }
    static double half_turns(double n) { return n; }
};

// A NaN comes back, and beyond 1 anything is invalid.
template <class Angle> int on_unit_interval(double x, double* result, Angle angle) {
    if (is_nan(x)) return give(result, x / x);
    if (x > 1 || x < -1) return give(result, invalid(), domain_error);
    return give(result, angle());
}
template <class Unit> int arcsine_in(double x, double* result) {
    return on_unit_interval(x, result, [&] { return with_sign(Unit::of(arcsine_of(__builtin_fabs(x))), sign(x)); });
}
template <class Unit> int arccosine_in(double x, double* result) {
    return on_unit_interval(x, result, [&] { return Unit::of(arccosine_of(x)); });
}

template <class Unit> int of_point(double y, double x, double* result) {
    if (is_nan(y) || is_nan(x)) return give(result, y + x);
    const double ay = __builtin_fabs(y), ax = __builtin_fabs(x);
    if (ay != 0 && ax != 0 && !not_finite(y) && !not_finite(x))
        return give(result, arctangent::point_by_nodes<typename Unit::Nodes>(filled<f64x2>(y), filled<f64x2>(x))[0]);
    double first = 0;  // of the point (|y|, |x|), in half turns
    if (ay == 0) first = 0;
    else if (ay == ax) first = 0.25;
    else if (ax < ay) first = 0.5;
    const double upper = sign(x) != 0 ? 1 - first : first;
    return give(result, with_sign(Unit::half_turns(upper), sign(y)));
}

}  // namespace

int asin(const double* x, double* result) { return arcsine_in<Radians>(*x, result); }
int acos(const double* x, double* result) { return arccosine_in<Radians>(*x, result); }
int asinpi(const double* x, double* result) { return arcsine_in<HalfTurns>(*x, result); }
int acospi(const double* x, double* result) { return arccosine_in<HalfTurns>(*x, result); }

int atan2(const double* y, const double* x, double* result) { return of_point<Radians>(*y, *x, result); }
int atan2pi(const double* y, const double* x, double* result) { return of_point<HalfTurns>(*y, *x, result); }

}  // namespace tarn::callout
