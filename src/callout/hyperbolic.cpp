// The double-precision hyperbolic functions of special lanes. sinh and cosh are complete scalar functions:
// e^|x| and e^-|x| as sums of two parts, of which the second vanishes above 21.49, and next to 0 the series.
// The tangent takes the kernel's own steps, which leave nothing to do but NaNs.
#include "callout/exp_family.hpp"
#include "steps/double/tanh.hpp"

namespace tarn::callout {

using namespace doubles;
namespace {

constexpr double largest = f64(0x408633CE8FB9F87E);    // 710.475860073944: from here on infinite
constexpr double one_sided = f64(0x40357CD0E7026820);  // 21.487562597358306
constexpr double by_series = f64(0x3F9BDB8CDADBE120);  // 0.02720470510300388
constexpr double k3 = f64(0x3FC5555555555555);         // 0.16666666666666666
constexpr double k5 = f64(0x3F81111111111111);         // 0.008333333333333333
constexpr double k7 = f64(0x3F2A01A01A01A01A);         // 0.0001984126984126984
constexpr double k9 = f64(0x3EC71DE3A556C734);         // 2.7557319223985893e-06

// e^a / 2.
double half_exponential(double a) {
    const auto [s, hi, exponent] = exp_parts(a);
    return scaled_up(s + hi, exponent - 1);
}

// (e^a + sign e^-a) / 2 for a below 21.49, the heads' sum with its rounding error.
double half_sum(double a, double sign) {
    const ExpParts plus = exp_parts(a), minus = exp_parts(-a);
    const double up = power_of_two(plus.exponent - 1), down = sign * power_of_two(minus.exponent - 1);
    const double larger = plus.hi * up, smaller = minus.hi * down;
    const double heads = larger + smaller;
    const double lost = smaller - (heads - larger);
    return heads + ((plus.s * up + minus.s * down) + lost);
}

}  // namespace

int sinh(const double* x, double* result) {
    const double a = __builtin_fabs(*x);
    if (not_finite(*x)) return give(result, *x + *x);
    if (a < 0x1p-1022) return give(result, opaque(*x) * 0x1p-1022 + *x);
    if (a < 0x1p-53) return give(result, (1.0 + opaque(0x1p-1022)) * *x);
    if (a >= largest) return give(result, opaque(f64(0x7FEFFFFFFFFFFFFF)) * *x, overflow);
    if (a >= by_series) {
        const double y = a >= one_sided ? half_exponential(a) : half_sum(a, -1.0);
        return give(result, *x < 0 ? -y : y);
    }
    const double z = *x * *x;
    return give(result, *x + *x * z * (k3 + z * (k5 + z * (k7 + z * k9))));
}

int cosh(const double* x, double* result) {
    const double a = __builtin_fabs(*x);
    if (not_finite(*x)) return give(result, *x * *x);
    if (a >= largest) return give(result, overflowed(), overflow);
    return give(result, a >= one_sided ? half_exponential(a) : half_sum(a, 1.0));
}

int tanh(const double* x, double* result) {
    if (is_nan(*x)) return give(result, *x + *x);
    return give(result, tanh_sum(filled<f64x2>(*x), tanh_place(filled<f64x2>(*x)))[0]);
}

}  // namespace tarn::callout
