// gamma in x87 extended arithmetic, rounded to double once. What is small beside the sum that it goes into is
// computed in double.
//
// Below 8 a row by the top bits of x has a polynomial, its first three terms in extended arithmetic; below 1/2
// one step up. From 8 on Stirling's formula: the large products of its exponent are exact, and so is what they
// leave over a multiple of ln2/64; a row of 64 and a polynomial make the power. For negative x the reflection
// by sin(pi x).
#include "callout/exp_family.hpp"
#include "callout/gamma_extended.hpp"

namespace tarn::callout {
namespace {

#include "tables/gamma_exp.inc"
#include "tables/gamma_rows.inc"

// Its multiples up to 2^17 are exact.
constexpr double ln2_64th_head = f64(0x3F862E42FEFA0000);     // 0.010830424696223417
constexpr double ln2_64th_tail = f64(0x3D1CF79ABC9E3B3A);     // 2.572804622327669e-14
constexpr double inverse_ln2_64th = f64(0x40571547652B82FE);  // 92.33248261689366

constexpr double gamma_largest = 172.0;    // gamma overflows from 171.7 on
constexpr double gamma_smallest = -186.0;  // |gamma| is below every subnormal from -184 on

// gamma(z) 2^-128 for z from 8 on: of the exponent (z - 1/2) ln(z / e) + ... the large products are exact, and so
// is their difference from a multiple of ln2/64.
TARN_INLINE extended gamma_from_8(double z) {
    const auto [head, high, small] = log_over_e({z, 0});
    const double v = 1.0 / z;
    const double near_y = z - 0.5, y = cut(near_y, 29);
    const double log = head + high;
    const double about = near_y * log + (stirling_constant + v * twelfth);
    const double n = nearest_of(about * inverse_ln2_64th);
    const double tails = (near_y - y) * log + near_y * small;
    const double rest = tails + (v * twelfth + (stirling_tail + stirling_series(v)) - n * ln2_64th_tail);
    const double r = (y * head - (n * ln2_64th_head - stirling_head)) + y * high + rest;
    const auto [row, exponent] = sixtyfourths(static_cast<std::uint32_t>(static_cast<std::int32_t>(n)));
    const auto [hi, lo] = exp2_pairs[row];
    const double scaled = f64(pattern(hi) + (static_cast<std::uint64_t>(exponent - 128) << 52));
    return extended(scaled) + extended(scaled) * (lo + (r + r * r * polynomial<6>(gamma_exp, r)));
}

// gamma(x) at the distance t from the middle of a row: the first three terms in extended arithmetic.
TARN_INLINE extended gamma_in_row(const double* row, extended t, double near_t) {
    return row[1] + (t * (row[2] + t * row[3]) + polynomial<12>(row + 4, near_t));
}
TARN_INLINE extended gamma_below_8(double x) {
    const double* row = gamma_rows[sixteenth(x)];
    return gamma_in_row(row, x - row[0], x - row[0]);
}
// gamma(1 + x) for x below 1/2.
TARN_INLINE extended gamma_of_next(double x) {
    const double* row = gamma_rows[sixteenth(1.0 + x)];
    return gamma_in_row(row, extended(x) + (1.0 - row[0]), x + (1.0 - row[0]));
}

TARN_INLINE double gamma_of_positive(double x) {
    return in_extended(x, [](double X) __attribute__((always_inline)) {
        if (X >= 8) return static_cast<double>(gamma_from_8(X) * 0x1p128L);
        if (X >= 0.5) return static_cast<double>(gamma_below_8(X));
        return static_cast<double>(gamma_of_next(X) / X);
    });
}

// |gamma(x)| = pi / (|x| |sin(pi x)| gamma |x|).
double gamma_of_negative(double x) {
    return in_extended(-x, [](double a) __attribute__((always_inline)) {
        const extended sine = sine_over_pi(a - nearest_of(a));
        if (a >= 8) return static_cast<double>(0x1p-128L / (sine * a * gamma_from_8(a)));
        if (a >= 0.5) return static_cast<double>(1.0L / (sine * a * gamma_below_8(a)));
        return static_cast<double>(1.0L / (sine * gamma_of_next(a)));
    });
}

// What is not positive, or infinite, or too large.
[[gnu::noinline]] int gamma_elsewhere(double x, double* result) {
    if (not_finite(x)) {
        if (is_below(x, 0)) return give(result, invalid(), domain_error);
        return give(result, x * x);
    }
    if (x == 0) return give(result, infinity_from(x), pole);
    if (x > 0) return give(result, overflowed(), overflow);
    const double whole = floor_of(x);
    if (whole == x) return give(result, invalid(), domain_error);
    const bool negative = is_odd(whole);
    if (x <= gamma_smallest) return give(result, negative ? -underflowed() : underflowed(), underflow);
    const double y = gamma_of_negative(x);
    return give(result, negative ? -y : y, not_finite(y) ? overflow : y == 0 ? underflow : ordinary);
}

}  // namespace

int tgamma(const double* x, double* result) {
    if (__builtin_expect(is_above(*x, 0) && *x < gamma_largest, 1)) {
        const double y = gamma_of_positive(*x);
        return give(result, y, not_finite(y) ? overflow : ordinary);
    }
    return gamma_elsewhere(*x, result);
}

}  // namespace tarn::callout
