// erfc where it leaves the range of single precision: e^(-x^2) / (x sqrt(pi)) times the asymptotic series
// in 1/(2 x^2). Below 10.0541949 half the smallest subnormal is still exceeded.
#include "callout/exp_family.hpp"

namespace tarn::callout {
namespace {

constexpr double vanishes = f64(0x40241BBF700DC3FB);          // 10.054194928818097
constexpr double inv_sqrt_pi = f64(0x3FE20DD750429B6D);    // 0.5641895835477563

}  // namespace

int erfcf(const float* x, float* result) {
    if (is_nan(*x)) return give(result, *x * *x);
    const double X = *x;
    if (X > vanishes) return give(result, underflowed(), underflow);
    const double w = 0.5 / (X * X);
    const double series = horner(w, -945.0, 105.0, -15.0, 3.0, -1.0, 1.0);
    return give(result, exp_of(-(X * X)) * inv_sqrt_pi / X * series, underflow);
}

}  // namespace tarn::callout
