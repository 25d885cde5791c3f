// The double-precision exponentials of special lanes: 2^(n/64) from a table of pairs times e^r or 2^r of degree
// 6; subnormal results are split so that they are rounded once, but for those of exp2, whose sum is rounded
// before.
#include "callout/exp_family.hpp"

namespace tarn::callout {
namespace {

constexpr double exp_largest = f64(0x40862E42FEFA39EF);            // 709.782712893384
constexpr double exp_smallest = f64(0xC0874910D52D3051);           // -745.1332191019411
constexpr double exp_smallest_normal = f64(0xC086232BDD7ABCD2);    // -708.3964185322641

// e^x of a finite x.
int exp_of_any(double x, double* result) {
    if (x > exp_largest) return give(result, overflowed(), overflow);
    if (x < exp_smallest) return give(result, underflowed(), underflow);
    const auto [s, hi, exponent] = exp_parts(x);
    if (x < exp_smallest_normal) return give(result, subnormal_sum(s, hi, exponent), underflow);
    return give(result, scaled_up(s + hi, exponent));
}

constexpr double exp10_largest = f64(0x40734413509F79FE);           // 308.2547155599167
constexpr double exp10_smallest = f64(0xC07439B746E36B52);          // -323.6072453387798
constexpr double exp10_largest_subnormal = f64(0xC0733A7146F72A42);  // -307.6526555685888

}  // namespace

int exp(const double* x, double* result) {
    if (not_finite(*x)) return exp_not_finite(*x, result);
    if (*x < 0x1p-52 && *x > -0x1p-52) return give(result, 1.0 + *x);
    return exp_of_any(*x, result);
}

int expm1(const double* x, double* result) {
    if (is_below(*x, 0)) return give(result, -1.0);
    if (not_finite(*x)) return exp_not_finite(*x, result);
    return exp_of_any(*x, result);
}

int exp2(const double* x, double* result) {
    if (not_finite(*x)) return exp_not_finite(*x, result);
    if (*x >= 1024.0) return give(result, overflowed(), overflow);
    if (*x <= -1075.0) return give(result, underflowed(), underflow);
    const auto [s, hi, exponent] = exp2_parts(*x);
    if (*x >= -1022.0) return give(result, scaled_up(s + hi, exponent));
    return give(result, (s + hi) * power_of_two(exponent + 100) * 0x1p-100, underflow);
}

int exp10(const double* x, double* result) {
    if (not_finite(*x)) return exp_not_finite(*x, result);
    if (*x > exp10_largest) return give(result, overflowed(), overflow);
    if (*x < exp10_smallest) return give(result, underflowed(), underflow);
    const auto [s, hi, exponent] = exp10_parts(*x);
    if (*x <= exp10_largest_subnormal) return give(result, subnormal_sum(s, hi, exponent), underflow);
    return give(result, scaled_up(s + hi, exponent));
}

}  // namespace tarn::callout
