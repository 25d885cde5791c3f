// gamma, ln |gamma| and its sign in double precision, rounded once.
//
// gamma: the recurrence moves x into [2, 3), where a polynomial of degree 13 stands; up to 45 factors,
// in two chains.
// ln |gamma|: between 1/2 and 64 a row by the top bits of x has a polynomial for ln gamma(x) / ((x - 1)(x - 2)),
// which keeps the zeros at 1 and 2; above, Stirling's formula; below, one step up. For negative x the
// reflection by sin(pi x), but next to a zero a row for each, with the zero as head and tail.
#include "callout/gamma_family.hpp"

namespace tarn::callout {
namespace {

#include "tables/gammaf_2_to_3.inc"
#include "tables/sine_of_half_turns.inc"

constexpr double ln_pi = f64(0x3FF250D048E7A1BD);           // 1.1447298858494002
constexpr double gamma_largest = 36.0;                      // gamma overflows from 35.04 on
constexpr float lgammaf_overflow = f32(0x7C44AF8E);
constexpr double gamma_smallest = -46.0;                    // |gamma| is below every subnormal from -42.3 on

// Polynomials in pairs of coefficients, highest first, in t and t^2: half the chain of Horner's rule.
template <int count> TARN_INLINE double paired(const double* c, double t) {
    static_assert(count % 2 == 0);
    const double t2 = t * t;
    double sum = c[0] * t + c[1];
    for (int i = 2; i < count; i += 2) sum = sum * t2 + (c[i] * t + c[i + 1]);
    return sum;
}

// (x + first)(x + first + step)... of `count` factors, by two chains. x is never moved: it may be small
// beside 1.
double product(double X, double first, double step, int count) {
    double even = 1.0, odd = 1.0;
    int k = 0;
    for (; k + 1 < count; k += 2) {
        even *= X + first;
        odd *= X + (first + step);
        first += 2 * step;
    }
    return k < count ? even * (X + first) * odd : even * odd;
}

// (x - 1)(x - 2)...(x - count).
double falling(double X, int count) { return product(X, -1.0, -1.0, count); }

double gamma_of(double X) {
    const double whole = floor_of(X);
    const int n = static_cast<int>(whole);
    const double g = paired<14>(gammaf_2_to_3, (X - whole) - 0.5);
    // gamma(x) = (x - 1)...(x - (n - 2)) gamma(2 + f), and the other way round below 2.
    return n >= 2 ? g * falling(X, n - 2) : g / product(X, 0.0, 1.0, 2 - n);
}

TARN_INLINE double rounded_log_over_e(double x) {
    const auto [head, high, small] = log_over_e({x, 0});
    return (head + high) + small;
}

// ln gamma(x) / ((x - 1)(x - 2)) for x = t + offset in [1/2, 64), which lies in the row of near_x.
TARN_INLINE double log_gamma_quotient(double near_x, double t, double offset) {
    const double* row = log_gamma_row(near_x);
    return row[1] + polynomial<10>(row + 2, (offset - row[0]) + t);
}
TARN_INLINE double log_gamma_of_next(double x) { return x * (x - 1.0) * log_gamma_quotient(x + 1.0, x, 1.0); }

TARN_INLINE double log_gamma_of_positive(double X) {
    if (X < 0.5) return (log_gamma_of_next(X) - 1.0) - rounded_log_over_e(X);
    if (X < 64) return (X - 1.0) * (X - 2.0) * log_gamma_quotient(X, X, 0.0);
    return (X - 0.5) * rounded_log_over_e(X) + (stirling_constant + stirling_series_from_64(1.0 / X));
}

double log_gamma_of_negative(double x) {
    const double a = -x, n = nearest_of(a), y = n - a;
    if (a > 2 && n <= negative_zeros_end) {
        const double* row = negative_zero_row(n, y);
        const double t = (y - row[0]) - row[1], s = t / row[0];
        if (s <= 0x1p-5 && s >= -0x1p-5)
            return t * (row[2] + polynomial<10>(row + 3, t)) - (s + s * s * polynomial<10>(lgamma_log1p, s));
    }
    const double sine = __builtin_fabs(y) * paired<8>(sine_of_half_turns, y * y);
    if (a < 0.5) return ((ln_pi - 1.0) - rounded_log_over_e(sine)) - log_gamma_of_next(a);
    return ((ln_pi - 1.0) - rounded_log_over_e(sine * a)) - log_gamma_of_positive(a);
}

// What is not positive, or infinite, or too large.
[[gnu::noinline]] int log_gamma_elsewhere(float x, float* result, std::int32_t* sign) {
    if (not_finite(x)) return give(result, x * x);
    const double X = x;
    if (X > 0) return give(result, overflowed(), overflow);
    if (floor_of(X) == X) {
        if (pattern(x) == 0x80000000) *sign = -1;
        return give(result, infinity_from(0.0), pole);
    }
    // The sign alternates from one integer to the next.
    if (is_odd(floor_of(X))) *sign = -1;
    return give(result, log_gamma_of_negative(X));
}

// ln |gamma x| and the sign of gamma(x), +1 at its poles but for -0.
TARN_INLINE int log_gamma(float x, float* result, std::int32_t* sign) {
    *sign = 1;
    // At 1 the polynomial gives -0.
    if (__builtin_expect(is_above(x, 0) && x < lgammaf_overflow, 1)) return give(result, log_gamma_of_positive(x) + 0.0);
    return log_gamma_elsewhere(x, result, sign);
}

}  // namespace

int tgammaf(const float* x, float* result) {
    const double X = *x;
    if (not_finite(*x)) {
        if (pattern(*x) == 0xFF800000) return give(result, invalid(), domain_error);
        return give(result, X * X);
    }
    if (X == 0) return give(result, infinity_from(X), pole);
    if (X < 0 && floor_of(X) == X) return give(result, invalid(), domain_error);
    if (X >= gamma_largest) return give(result, overflowed(), overflow);
    if (X <= gamma_smallest) {
        return give(result, is_odd(floor_of(X)) ? -underflowed() : underflowed(), underflow);
    }
    return give(result, gamma_of(X));
}

int lgammaf(const float* x, float* result) {
    std::int32_t sign;
    return log_gamma(*x, result, &sign);
}

int lgammarf(const float* x, float* result, std::int32_t* sign) { return log_gamma(*x, result, sign); }

}  // namespace tarn::callout
