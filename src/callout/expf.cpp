// e^x in double precision, rounded once: 2^(n/64) from a table of pairs times e^r, |r| <= ln 2 / 128, by a
// polynomial of degree 6. Subnormal results are split, so that they too are rounded once.
#include "callout/exp_family.hpp"

namespace tarn::callout {
namespace {

constexpr double largest = f64(0x40562E42E0000000);            // 88.72283172607422
constexpr double smallest = f64(0xC059FE3680000000);           // -103.97207641601562
constexpr double smallest_normal = f64(0xC055D589E0000000);    // -87.33654022216797
constexpr double sixtyfour_log2_e = f64(0x40571547652B82FE);   // 92.33248261689366 = 64/ln 2
constexpr double ln2_64th_head = f64(0x3F862E42FEFA0000);      // 0.010830424696223417
constexpr double ln2_64th_tail = f64(0x3D1CF79ABC9E3B3A);      // 2.572804622327669e-14
constexpr double c5 = f64(0x3F56C16A1C2A3FFD);                 // 0.0013888870459233254
constexpr double c4 = f64(0x3F8111123AAF20D3);                 // 0.008333341995140497
constexpr double c3 = f64(0x3FA5555555558FCC);                 // 0.04166666666677052
constexpr double c2 = f64(0x3FC55555555548F8);                 // 0.1666666666665788

}  // namespace

ExpParts exp_parts(double X) {
    const auto [low_bits, n] = round_by_shifter(X * sixtyfour_log2_e, round_shifter);
    const auto [row, exponent] = sixtyfourths(low_bits);
    const double r = (X - n * ln2_64th_head) - n * ln2_64th_tail;
    const double q = horner(r, c5, c4, c3, c2, 0.5) * r * r + r;
    const double hi = exp2_pairs[row][0], lo = exp2_pairs[row][1];
    return {(q + lo) * hi, hi, exponent};
}

double exp_of(double X) {
    const auto [s, hi, exponent] = exp_parts(X);
    return (s + hi) * power_of_two(exponent);
}

int exp_in_range(double X, float* result) {
    const auto [s, hi, exponent] = exp_parts(X);
    if (X < smallest_normal) return give(result, subnormal_sum(s, hi, exponent), underflow);
    return give(result, (s + hi) * power_of_two(exponent));
}

int exp_of_finite(double X, float* result) {
    if (!(X <= largest)) return give(result, overflowed(), overflow);
    if (!(X >= smallest)) return give(result, underflowed(), underflow);
    return exp_in_range(X, result);
}

int expf(const float* x, float* result) {
    if (not_finite(*x)) return exp_not_finite(*x, result);
    const double X = *x;
    if ((pattern(*x) >> 23 & 0xFF) <= 74) return give(result, 1.0 + X);  // |x| < 2^-52
    return exp_of_finite(X, result);
}

// Subtracting 1 from e^x is below half a unit at every magnitude that reaches the callout.
int expm1f(const float* x, float* result) {
    if (is_below(*x, 0)) return give(result, -1.0);
    if (not_finite(*x)) return exp_not_finite(*x, result);
    return exp_of_finite(*x, result);
}

}  // namespace tarn::callout
