// The double-precision exponentials of special lanes: 2^(n/64) from a table of pairs times e^r or 2^r of
// degree 6; subnormal results are split so that they are rounded once. Worst error 0.51 ulp.
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

namespace base2 {
constexpr double shifter = f64(0x42D8000000000000);  // 1.5 * 2^46: rounds to a multiple of 1/64
constexpr double c5 = f64(0x3F55D870C4D8440A);       // 0.0013333417185814622
constexpr double c4 = f64(0x3F83B2AD33F8B48B);       // 0.009618142269653759
constexpr double c3 = f64(0x3FAC6B08D7076268);       // 0.05550410866607508
constexpr double c2 = f64(0x3FCEBFBDFF82A23A);       // 0.24022650695884967
constexpr double c1 = f64(0x3FE62E42FEFA39EF);       // 0.6931471805599453
}  // namespace base2

namespace base10 {
constexpr double largest = f64(0x40734413509F79FE);          // 308.2547155599167
constexpr double smallest = f64(0xC07439B746E36B52);         // -323.6072453387798
constexpr double smallest_normal = f64(0xC0733A7146F72A42);  // -307.6526555685888
constexpr double scale = f64(0x406A934F0979A371);            // 212.60339807279118 = 64/log10 2
constexpr double log10_2_64th_head = f64(0x3F734413509F0000);  // 0.004703593682222618
constexpr double log10_2_64th_tail = f64(0x3D1E7FBCC47C4ACD);  // 2.7088530630863833e-14
constexpr double c5 = f64(0x3FE1427C87C70A85);  // 0.5393660213379269
constexpr double c4 = f64(0x3FF2BD77B840F0BF);  // 1.1712567517670747
constexpr double c3 = f64(0x4000470591E2BC10);  // 2.0346785924261965
constexpr double c2 = f64(0x40053524C73CD20A);  // 2.6509490552364285
constexpr double c1 = f64(0x40026BB1BBB55515);  // 2.3025850929940455
}  // namespace base10

}  // namespace

int exp(const double* x, double* result) {
    if (not_finite(*x)) return exp_not_finite(*x, result);
    if (*x < 0x1p-52 && *x > -0x1p-52) return give(result, 1.0 + *x);
    return exp_of_any(*x, result);
}

int expm1(const double* x, double* result) {
    if (*x < 0) return give(result, -1.0);
    if (not_finite(*x)) return exp_not_finite(*x, result);
    return exp_of_any(*x, result);
}

int exp2(const double* x, double* result) {
    using namespace base2;
    if (not_finite(*x)) return exp_not_finite(*x, result);
    if (*x >= 1024.0) return give(result, overflowed(), overflow);
    if (*x <= -1075.0) return give(result, underflowed(), underflow);
    const auto [low_bits, n] = round_by_shifter(*x, shifter);
    const auto [row, exponent] = sixtyfourths(low_bits);
    const double r = *x - n;
    const double hi = exp2_pairs[row][0], lo = exp2_pairs[row][1];
    const double v = (horner(r, c5, c4, c3, c2, c1) * r + lo) * hi + hi;
    if (*x >= -1022.0) return give(result, scaled_up(v, exponent));
    return give(result, v * power_of_two(exponent + 100) * 0x1p-100, underflow);
}

int exp10(const double* x, double* result) {
    using namespace base10;
    if (not_finite(*x)) return exp_not_finite(*x, result);
    if (*x > largest) return give(result, overflowed(), overflow);
    if (*x < smallest) return give(result, underflowed(), underflow);
    const auto [low_bits, n] = round_by_shifter(*x * scale, round_shifter);
    const auto [row, exponent] = sixtyfourths(low_bits);
    const double r = (*x - n * log10_2_64th_head) - n * log10_2_64th_tail;
    const double hi = exp2_pairs[row][0], lo = exp2_pairs[row][1];
    const double s = (horner(r, c5, c4, c3, c2, c1) * r + lo) * hi;
    if (*x < smallest_normal) return give(result, subnormal_sum(s, hi, exponent), underflow);
    return give(result, scaled_up(s + hi, exponent));
}

}  // namespace tarn::callout
