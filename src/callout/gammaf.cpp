// gamma, ln |gamma| and its sign in double precision, rounded once.
//
// gamma: the recurrence moves x into [2, 3), where a polynomial of degree 13 stands; up to 45 factors,
// in two chains.
// ln |gamma|: from 8 on Stirling's series; between 3/4 and 3 a polynomial with the zero at 1 or 2 taken
// out; between 3 and 8 the logarithm of the recurrence's factors besides; below 3/4 one step up. For
// negative x the reflection by sin(pi x), but next to the first four zeros a polynomial around each,
// with the zero as head and tail: elsewhere no float is so near to a zero that the sum's error shows.
// Worst error 0.50 ulp.
#include "callout/log_family.hpp"

namespace tarn::callout {
namespace {

#include "tables/gammaf_2_to_3.inc"
#include "tables/lgammaf_at_1.inc"
#include "tables/lgammaf_at_2.inc"
#include "tables/lgammaf_negative_zeros.inc"
#include "tables/sine_of_half_turns.inc"

constexpr double ln_pi = f64(0x3FF250D048E7A1BD);           // 1.1447298858494002
constexpr double half_ln_2pi = f64(0x3FED67F1C864BEB5);     // 0.9189385332046728
constexpr double gamma_largest = 36.0;                      // gamma overflows from 35.04 on
constexpr double gamma_smallest = -46.0;                    // |gamma| is below every subnormal from -42.3 on

// Polynomials in pairs of coefficients, highest first, in t and t^2: half the chain of Horner's rule.
template <int count> TARN_INLINE double paired(const double* c, double t) {
    static_assert(count % 2 == 0);
    const double t2 = t * t;
    double sum = c[0] * t + c[1];
    for (int i = 2; i < count; i += 2) sum = sum * t2 + (c[i] * t + c[i + 1]);
    return sum;
}

// The integer part of a double below 2^52 in magnitude.
TARN_INLINE double floor_of(double X) {
    const __m128d v = _mm_set_sd(X);
    return _mm_cvtsd_f64(_mm_floor_sd(v, v));
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

double log_gamma_stirling(double X) {
    const double v = 1.0 / X, v2 = v * v;
    const double series = v * horner(v2, 1.0 / 1188, -1.0 / 1680, 1.0 / 1260, -1.0 / 360, 1.0 / 12);
    return (X - 0.5) * log_of(X) - (X - half_ln_2pi - series);
}

// From 3/4 up to 3.
double log_gamma_between(double X) {
    return X < 1.5 ? paired<16>(lgammaf_at_1, X - 1.0) * (X - 1.0) : paired<16>(lgammaf_at_2, X - 2.0) * (X - 2.0);
}

double log_gamma_of_positive(double X) {
    if (X >= 8) return log_gamma_stirling(X);
    if (X < 0.75) return log_gamma_between(X + 1.0) - log_of(X);
    if (X < 3) return log_gamma_between(X);
    const int n = static_cast<int>(X);
    return log_of(falling(X, n - 2)) + log_gamma_between(X - (n - 2));
}

double log_gamma_of_negative(double X) {
    for (const auto& row : lgammaf_negative_zeros) {
        const double t = (X - row[1]) - row[2];
        if (t <= row[0] && t >= -row[0]) return t * paired<14>(row + 3, t);
    }
    const double r = X - floor_of(X + 0.5);
    const double r2 = r * r;
    const double sine = (r < 0 ? -r : r) * paired<8>(sine_of_half_turns, r2);
    return (ln_pi - log_of(sine * -X)) - log_gamma_of_positive(-X);
}

// ln |gamma x| and the sign of gamma(x), +1 at its poles but for -0.
int log_gamma(float x, float* result, std::int32_t* sign) {
    *sign = 1;
    if (not_finite(x)) return give(result, x * x);
    const double X = x;
    if (X <= 0 && floor_of(X) == X) {
        if (pattern(x) == 0x80000000) *sign = -1;
        return give(result, infinity_from(0.0), pole);
    }
    if (X < 0) {
        // The sign alternates from one integer to the next.
        const double half = floor_of(X) * 0.5;
        if (floor_of(half) != half) *sign = -1;
        return give(result, X > -0x1p-60 ? -log_of(-X) : log_gamma_of_negative(X));
    }
    // At 1 the polynomial gives -0.
    return give(result, log_gamma_of_positive(X) + 0.0, X > 0x1.89p121 ? overflow : ordinary);
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
        const double half = floor_of(X) * 0.5;
        return give(result, floor_of(half) == half ? underflowed() : -underflowed(), underflow);
    }
    return give(result, gamma_of(X));
}

int lgammaf(const float* x, float* result) {
    std::int32_t sign;
    return log_gamma(*x, result, &sign);
}

int lgammarf(const float* x, float* result, std::int32_t* sign) { return log_gamma(*x, result, sign); }

}  // namespace tarn::callout
