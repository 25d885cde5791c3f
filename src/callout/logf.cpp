// Logarithms in double precision, rounded once. Near 1 a polynomial of degree 8 in x - 1; elsewhere x = 2^k m, a
// row of 65 by the top bits of m gives the reciprocal R of 1 + i/64 and -ln R as head and tail, and the same
// polynomial takes R m - 1. The other bases are multiples: powers of two come out exact.
#include "callout/log_family.hpp"

namespace tarn::callout {
namespace {

#include "tables/log_reciprocals.inc"

constexpr double near_one = f64(0x3F84000000000000);  // 0.009765625
constexpr double ln2_head = f64(0x3FE62E42FEFA3800);  // 0.6931471805598903
constexpr double ln2_tail = f64(0x3D2EF35793C76730);  // 5.497923018708371e-14
constexpr double log2_e = f64(0x3FF71547652B82FE);    // 1.4426950408889634
constexpr double log10_e = f64(0x3FDBCB7B1526E50E);   // 0.4342944819032518
constexpr double c6 = f64(0xBFC000B405A2836D);        // -0.1250214602960357
constexpr double c5 = f64(0x3FC249C02481059D);        // 0.1428756883852146
constexpr double c4 = f64(0xBFC555555228B38F);        // -0.1666666651884978
constexpr double c3 = f64(0x3FC9999997B36C81);        // 0.19999999911565072
constexpr double c2 = f64(0xBFD0000000000262);        // -0.25000000000003386
constexpr double c1 = f64(0x3FD5555555555613);        // 0.33333333333334386

// (ln(1 + z) - z) / z^2.
double q(double z) { return horner(z, c6, c5, c4, c3, c2, c1, -0.5); }

}  // namespace

double log_of(double X, int moved, double tail) {
    const double v = X - 1.0;
    if (v <= near_one && v >= -near_one) return v + (v * v * q(v) + tail);
    const double k = static_cast<double>(static_cast<int>(pattern(X) >> 52) - 1023 + moved);
    const double m = f64((pattern(X) & 0x000FFFFFFFFFFFFF) | 0x3FF0000000000000);
    const double row_shifter = 0x1p46 + 1;  // row: 64 (m - 1) rounded, in the low bits of the sum
    const auto [reciprocal, log_head, log_tail] = log_reciprocals[pattern(m + row_shifter) & 127];
    const double cut_m = (m + 0x1p21) - 0x1p21;  // so short that its product is exact
    const double u = cut_m * reciprocal - 1.0;
    const double w = reciprocal * (m - cut_m);
    const double z = u + w;
    return u + (k * ln2_head + log_head) + (w + (k * ln2_tail + (log_tail + tail)) + z * z * q(z));
}

double log1p_of(double X) {
    if (X <= near_one && X >= -near_one) return X + X * X * q(X);
    if (X > 0x1p54) return log_of(X);
    // What 1 + X loses changes ln(1 + X) by its quotient with the sum.
    const double s = 1.0 + X;
    const double lost = X > 1.0 ? (X - s) + 1.0 : (1.0 - s) + X;
    return log_of(s, 0, lost / s);
}

namespace {

// The logarithm to the base e^(1/multiple); `x` or `1 + x` is X.
int give_log(double X, double multiple, float* result) {
    if (not_finite(X) && (is_nan(X) || !has_sign(X))) return give(result, X * X);
    if (X == 0) return give(result, -infinity_from(0.0), pole);
    if (X < 0) return give(result, invalid(), domain_error);
    return give(result, multiple * log_of(X));
}

}  // namespace

int logf(const float* x, float* result) { return give_log(*x, 1.0, result); }
int log2f(const float* x, float* result) { return give_log(*x, log2_e, result); }
int log10f(const float* x, float* result) { return give_log(*x, log10_e, result); }

int log1pf(const float* x, float* result) {
    if (is_above(*x, -1.0f) && !not_finite(*x)) return give(result, log1p_of(*x));
    return give_log(1.0 + static_cast<double>(*x), 1.0, result);
}

}  // namespace tarn::callout
