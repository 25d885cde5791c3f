// 2^x and 10^x in double precision, rounded once: 2^(n/64) from a table of pairs, times a polynomial of degree 5
// in the remainder.
#include "callout/exp_family.hpp"

namespace tarn::callout {
namespace {

namespace exp2_of {
constexpr double shifter = f64(0x42D8000000000000);  // 1.5 * 2^46: rounds to a multiple of 1/64
constexpr double c5 = f64(0x3F55D870C4D8440A);       // 0.0013333417185814622
constexpr double c4 = f64(0x3F83B2AD33F8B48B);       // 0.009618142269653759
constexpr double c3 = f64(0x3FAC6B08D7076268);       // 0.05550410866607508
constexpr double c2 = f64(0x3FCEBFBDFF82A23A);       // 0.24022650695884967
constexpr double c1 = f64(0x3FE62E42FEFA39EF);       // 0.6931471805599453
}  // namespace exp2_of

namespace exp10_of {
constexpr double largest = f64(0x4043441360000000);          // 38.53184127807617
constexpr double smallest = f64(0xC04693C6A0000000);         // -45.15449905395508
constexpr double smallest_normal = f64(0xC042F70320000000);  // -37.92978286743164
constexpr double scale = f64(0x406A934F0979A371);            // 212.60339807279118 = 64/log10 2
constexpr double log10_2_64th_head = f64(0x3F734413509F0000);  // 0.004703593682222618
constexpr double log10_2_64th_tail = f64(0x3D1E7FBCC47C4ACD);  // 2.7088530630863833e-14
constexpr double c5 = f64(0x3FE1427C87C70A85);  // 0.5393660213379269
constexpr double c4 = f64(0x3FF2BD77B840F0BF);  // 1.1712567517670747
constexpr double c3 = f64(0x4000470591E2BC10);  // 2.0346785924261965
constexpr double c2 = f64(0x40053524C73CD20A);  // 2.6509490552364285
constexpr double c1 = f64(0x40026BB1BBB55515);  // 2.3025850929940455
}  // namespace exp10_of

}  // namespace

ExpParts exp2_parts(double X) {
    using namespace exp2_of;
    const auto [low_bits, n] = round_by_shifter(X, shifter);
    const auto [row, exponent] = sixtyfourths(low_bits);
    const double r = X - n;
    const double p = horner(r, c5, c4, c3, c2, c1) * r;
    const double hi = exp2_pairs[row][0], lo = exp2_pairs[row][1];
    return {(p + lo) * hi, hi, exponent};
}

ExpParts exp10_parts(double X) {
    using namespace exp10_of;
    const auto [low_bits, n] = round_by_shifter(X * scale, round_shifter);
    const auto [row, exponent] = sixtyfourths(low_bits);
    const double r = (X - n * log10_2_64th_head) - n * log10_2_64th_tail;
    const double p = horner(r, c5, c4, c3, c2, c1) * r;
    const double hi = exp2_pairs[row][0], lo = exp2_pairs[row][1];
    return {(p + lo) * hi, hi, exponent};
}

int exp2f(const float* x, float* result) {
    if (not_finite(*x)) return exp_not_finite(*x, result);
    const double X = *x;
    if (!(X < 128.0)) return give(result, overflowed(), overflow);
    if (!(X > -150.0)) return give(result, underflowed(), underflow);
    const auto [s, hi, exponent] = exp2_parts(X);
    return give(result, (s + hi) * power_of_two(exponent), X < -126.0 ? underflow : ordinary);
}

int exp10f(const float* x, float* result) {
    using namespace exp10_of;
    if (not_finite(*x)) return exp_not_finite(*x, result);
    const double X = *x;
    if (X > largest) return give(result, overflowed(), overflow);
    if (X < smallest) return give(result, underflowed(), underflow);
    const auto [s, hi, exponent] = exp10_parts(X);
    return give(result, (s + hi) * power_of_two(exponent), X <= smallest_normal ? underflow : ordinary);
}

}  // namespace tarn::callout
