// gamma, ln |gamma| and its sign, in x87 extended arithmetic, rounded to double once. What is small beside
// the sum it goes into is computed in double.
//
// gamma: Stirling's formula in powers of two. With z = x, or x + 8 below 8, log2 gamma(z) is a short number
// that is exact and a rest below 4 in magnitude, from which 2^n, a row of 64 and a polynomial make the power;
// below 8 the product x (x + 1)...(x + 7) is divided out. For negative x the reflection by sin(pi x).
// ln |gamma|: the same logarithm from 8 on; between 1/2 and 8 a row by the top bits of x has a polynomial
// for ln gamma(x) / ((x - 1)(x - 2)); below 1/2 one step up. For negative x the reflection, where both
// logarithms are added before anything is rounded; next to a zero a row for each, with the zero as head and
// tail: further out than -16 no double is so near to a zero.
//
// Worst error: gamma 0.51 ulp, ln gamma 0.54, ln |gamma| 0.7 for negative x.
#include "callout/exp_family.hpp"
#include "callout/gamma_family.hpp"

namespace tarn::callout {
namespace {

#include "tables/gamma_exp.inc"
#include "tables/gamma_sine.inc"

using extended = long double;

// n times the head is exact.
constexpr double ln2_64th_head = f64(0x3F862E42FEFA0000);    // 0.010830424696223417
constexpr double ln2_64th_tail = f64(0x3D1CF79ABC9E3B3A);    // 2.572804622327669e-14
constexpr double inverse_ln2_64th = f64(0x40571547652B82FE);  // 92.33248261689366
constexpr double gamma_largest = 172.0;   // gamma overflows from 171.7 on
constexpr double lgamma_overflow = f64(0x7F5754D9278B51A8);
constexpr double gamma_smallest = -186.0;  // |gamma| is below every subnormal from -184 on

// f(x) with the x87 unit at 64 bits, rounding to nearest, whatever the caller has set. x and the result go
// through the two instructions, so that nothing is computed outside of them.
template <class F> TARN_INLINE double in_extended(double x, F f) {
    static constexpr std::uint16_t own = 0x037F;
    std::uint16_t callers;
    asm volatile("fnstcw %0" : "=m"(callers));
    asm volatile("fldcw %1" : "+x"(x) : "m"(own));
    double result = f(x);
    asm volatile("fldcw %1" : "+x"(result) : "m"(callers));
    return result;
}

TARN_INLINE Split plus_8(double x) {
    const double near = x + 8.0;
    return {near, x - (near - 8.0)};
}
TARN_INLINE Split split(extended w) {
    const double near = static_cast<double>(w);
    return {near, static_cast<double>(w - near)};
}

// Stirling's series without its first term.
TARN_INLINE double stirling_series(double v) { return v * polynomial<8>(gamma_stirling + 1, v * v); }

// gamma(z) 2^-128 for z from 8 on: of the exponent (z - 1/2) ln(z / e) + ... the large products are exact, and so
// is their difference from a multiple of ln2/64.
TARN_INLINE extended gamma_scaled(Split z) {
    const auto [head, high, small] = log_over_e(z);
    const double v = 1.0 / z.near;
    const double near_y = z.near - 0.5, y = cut(near_y, 29), low_y = (near_y - y) + z.rest;
    const double log = head + high;
    const double about = near_y * log + (stirling_constant + v * twelfth);
    const double n = nearest_of(about * inverse_ln2_64th);
    const double rest = low_y * log + near_y * small + (v * twelfth + (stirling_tail + stirling_series(v)) - n * ln2_64th_tail);
    const double r = (y * head - (n * ln2_64th_head - stirling_head)) + y * high + rest;
    const auto [row, exponent] = sixtyfourths(static_cast<std::uint32_t>(static_cast<std::int32_t>(n)));
    const auto [hi, lo] = exp2_pairs[row];
    const double scaled = f64(pattern(hi) + (static_cast<std::uint64_t>(exponent - 128) << 52));
    return extended(scaled) + extended(scaled) * (lo + (r + r * r * polynomial<6>(gamma_exp, r)));
}

// ln gamma(z) for z from 8 on, as a sum in which `whole` is exact for z up to 2^20.
struct LogGamma {
    extended whole, rest;
};
TARN_INLINE LogGamma log_gamma_from_8(Split z) {
    const auto [head, high, small] = log_over_e(z);
    const extended v = 1.0L / (extended(z.near) + z.rest);
    const double near_y = z.near - 0.5, y = cut(near_y, 29), low_y = (near_y - y) + z.rest;
    const double log = head + high, tails = low_y * log + near_y * small;
    const double series = stirling_tail + stirling_series(static_cast<double>(v));
    return {extended(y) * log + stirling_head, v * twelfth + (extended(tails) + series)};
}

// (x + 1)(x + 2)...(x + 7), by u = x (x + 7), where two factors at the same distance from the middle give u + 6,
// u + 10, u + 12.
TARN_INLINE extended rising7(extended x) {
    const extended x7 = x + 7.0L, u = x * x7;
    return (x7 * (u + 6.0L)) * ((u + 10.0L) * (u + 12.0L));
}

// |sin(pi y)| / pi of |y| <= 1/2.
TARN_INLINE extended sine_over_pi(double y) {
    const double near = y * y;
    const double c4 = near * polynomial<6>(gamma_sine + 6, near);
    const extended y2 = extended(y) * y;
    const extended c3 = extended(gamma_sine[4]) + (gamma_sine[5] + c4);
    const extended c2 = extended(gamma_sine[2]) + (gamma_sine[3] + y2 * c3);
    const extended c1 = extended(gamma_sine[0]) + (gamma_sine[1] + y2 * c2);
    const extended magnitude = y < 0 ? -extended(y) : extended(y);
    return magnitude + magnitude * (y2 * c1);
}

TARN_INLINE double gamma_of_positive(double x) {
    return in_extended(x, [](double X) __attribute__((always_inline)) {
        if (X >= 8) return static_cast<double>(gamma_scaled({X, 0}) * 0x1p128L);
        return static_cast<double>(gamma_scaled(plus_8(X)) * 0x1p128L / (rising7(X) * X));
    });
}

// |gamma(x)| = pi / (|x| |sin(pi x)| gamma |x|).
double gamma_of_negative(double x) {
    return in_extended(-x, [](double a) __attribute__((always_inline)) {
        const extended sine = sine_over_pi(a - nearest_of(a));
        if (a >= 8) return static_cast<double>(0x1p-128L / (sine * a * gamma_scaled({a, 0})));
        return static_cast<double>(rising7(a) * 0x1p-128L / (sine * gamma_scaled(plus_8(a))));
    });
}

// ln gamma(x) / ((x - 1)(x - 2)) at the distance t from the row's middle.
TARN_INLINE extended log_gamma_quotient(const double* row, double t) { return extended(row[1]) + polynomial<10>(row + 2, t); }

// Below 1/2: ln gamma(1 + x) - ln x.
[[gnu::noinline]] double log_gamma_of_small(double x) {
    return in_extended(x, [](double X) __attribute__((always_inline)) {
        const double* row = log_gamma_row(X + 1.0);
        const extended above = extended(X) * (extended(X) - 1.0L) * log_gamma_quotient(row, (1.0 - row[0]) + X);
        const auto [head, high, small] = log_over_e({X * 0x1p128, 0});
        constexpr double ln_2_128_head = 128 * ln2_head, ln_2_128_tail = 128 * ln2_tail;
        return static_cast<double>(above - (extended((head - (ln_2_128_head - 1.0)) + high) + (small - ln_2_128_tail)));
    });
}

TARN_INLINE double log_gamma_of_positive(double x) {
    if (x < 0.5) return log_gamma_of_small(x);
    return in_extended(x, [](double X) __attribute__((always_inline)) {
        if (X < 64) {
            const double* row = log_gamma_row(X);
            return static_cast<double>((X - 1.0L) * (X - 2.0L) * log_gamma_quotient(row, X - row[0]));
        }
        const auto [head, high, small] = log_over_e({X, 0});
        const double v = 1.0 / X;
        const double series = stirling_constant + v * horner(v * v, gamma_stirling[4], gamma_stirling[3], gamma_stirling[2], twelfth);
        return static_cast<double>((X - 0.5L) * (extended(head + high) + small) + series);
    });
}

// Next to a zero of ln |gamma|.
TARN_INLINE double log_gamma_at_zero(const double* row, extended t, extended s) {
    const double near_s = static_cast<double>(s), near_t = static_cast<double>(t);
    const extended g = extended(row[2]) + polynomial<10>(row + 3, near_t);
    return static_cast<double>(t * g - (s + near_s * near_s * polynomial<10>(lgamma_log1p, near_s)));
}

double log_gamma_of_negative(double x) {
    return in_extended(-x, [](double a) __attribute__((always_inline)) {
        const double n = nearest_of(a), y = n - a;
        if (a > 2 && n <= negative_zeros_end) {
            const double* row = negative_zero_row(n, y);
            const extended t = (extended(y) - row[0]) - row[1], s = t / (extended(row[0]) + row[1]);
            if (s <= 0x1p-5L && s >= -0x1p-5L) return log_gamma_at_zero(row, t, s);
        }
        const extended sine = sine_over_pi(y);
        const LogGamma log_gamma = log_gamma_from_8(a >= 8 ? Split{a, 0} : plus_8(a));
        const Log log = log_over_e(split(a >= 8 ? sine * a : sine / rising7(a)));
        const extended whole = log_gamma.whole + ((log.head + 1.0) + log.high);
        return static_cast<double>(-(whole + (log_gamma.rest + log.small)));
    });
}

// What is not positive, or infinite, or too large.
[[gnu::noinline]] int log_gamma_elsewhere(double x, double* result, std::int32_t* sign) {
    if (not_finite(x)) return give(result, x * x);
    if (x > 0) return give(result, overflowed(), overflow);
    if (floor_of(x) == x) {
        if (pattern(x) == 0x8000000000000000) *sign = -1;
        return give(result, infinity_from(0.0), pole);
    }
    // The sign alternates from one integer to the next.
    if (is_odd(floor_of(x))) *sign = -1;
    return give(result, x > -0x1p-100 ? log_gamma_of_small(-x) : log_gamma_of_negative(x));
}

// ln |gamma x| and the sign of gamma(x), +1 at its poles but for -0.
TARN_INLINE int log_gamma(double x, double* result, std::int32_t* sign) {
    *sign = 1;
    if (__builtin_expect(x > 0 && x < lgamma_overflow, 1)) return give(result, log_gamma_of_positive(x) + 0.0);
    return log_gamma_elsewhere(x, result, sign);
}

// The rest of gamma.
[[gnu::noinline]] int gamma_elsewhere(double x, double* result) {
    if (not_finite(x)) {
        if (x < 0) return give(result, invalid(), domain_error);
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
    if (__builtin_expect(*x > 0 && *x < gamma_largest, 1)) {
        const double y = gamma_of_positive(*x);
        return give(result, y, not_finite(y) ? overflow : ordinary);
    }
    return gamma_elsewhere(*x, result);
}

int lgamma(const double* x, double* result) {
    std::int32_t sign;
    return log_gamma(*x, result, &sign);
}

int lgammar(const double* x, double* result, std::int32_t* sign) { return log_gamma(*x, result, sign); }

}  // namespace tarn::callout
