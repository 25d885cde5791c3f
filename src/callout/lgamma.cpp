// ln |gamma| and the sign of gamma in x87 extended arithmetic, rounded to double once. What is small beside the
// sum that it goes into is computed in double.
//
// Between 1/2 and 64 a row by the top bits of x has a polynomial for ln gamma(x) / ((x - 1)(x - 2)), which keeps
// the zeros at 1 and 2; above, Stirling's formula; below, one step up. For negative x the reflection by
// sin(pi x); where it cancels, the large parts of both logarithms are exact and added first, and next to a zero
// a row for each takes over, with the zero as head and tail: beyond -16 no double is so near to a zero.
#include "callout/gamma_extended.hpp"

namespace tarn::callout {
namespace {

// Between -1/2 and -20 the two logarithms of the reflection may cancel: next to -17 to less than 1/100 of each.
constexpr double cancels_down_to = 20.0;
constexpr double lgamma_overflow = f64(0x7F5754D9278B51A8);  // 2.5599833278516387e+305

// ln gamma(x) / ((x - 1)(x - 2)) at the distance t from the row's middle.
TARN_INLINE extended log_gamma_quotient(const double* row, double t) { return extended(row[1]) + polynomial<10>(row + 2, t); }

// ln gamma(1 + x) for x below 1/2, and ln gamma(x) for x from there on.
TARN_INLINE extended log_gamma_of_next(double x) {
    const double* row = log_gamma_row(x + 1.0);
    return extended(x) * (x - 1.0L) * log_gamma_quotient(row, (1.0 - row[0]) + x);
}
TARN_INLINE extended log_gamma_from_half(double x) {
    if (x < 64) {
        const double* row = log_gamma_row(x);
        return (x - 1.0L) * (x - 2.0L) * log_gamma_quotient(row, x - row[0]);
    }
    const auto [head, high, small] = log_over_e({x, 0});
    return (x - 0.5L) * (extended(head + high) + small) + (stirling_constant + stirling_series_from_64(1.0 / x));
}

[[gnu::noinline]] double log_gamma_of_small(double x) {
    return in_extended(x, [](double X) __attribute__((always_inline)) {
        const auto [head, high, small] = log_over_e({X * 0x1p128, 0});
        constexpr double ln_2_128_head = 128 * ln2_head, ln_2_128_tail = 128 * ln2_tail;
        const extended log = extended((head - (ln_2_128_head - 1.0)) + high) + (small - ln_2_128_tail);
        return static_cast<double>(log_gamma_of_next(X) - log);
    });
}

TARN_INLINE double log_gamma_of_positive(double x) {
    if (x < 0.5) return log_gamma_of_small(x);
    return in_extended(x, [](double X) __attribute__((always_inline)) { return static_cast<double>(log_gamma_from_half(X)); });
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

TARN_INLINE Split plus_8(double x) {
    const double near = x + 8.0;
    return {near, x - (near - 8.0)};
}
TARN_INLINE Split split(extended w) {
    const double near = static_cast<double>(w);
    return {near, static_cast<double>(w - near)};
}

// (x + 1)(x + 2)...(x + 7), by u = x (x + 7), where two factors at the same distance from the middle give u + 6,
// u + 10, u + 12.
TARN_INLINE extended rising7(extended x) {
    const extended x7 = x + 7.0L, u = x * x7;
    return (x7 * (u + 6.0L)) * ((u + 10.0L) * (u + 12.0L));
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
        if (a < 0.5 || a > cancels_down_to) {
            const Log log = log_over_e(split(a < 0.5 ? sine : sine * a));
            const extended other = a < 0.5 ? log_gamma_of_next(a) : log_gamma_from_half(a);
            return static_cast<double>(-((log.head + 1.0 + log.high) + (other + log.small)));
        }
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
    if (__builtin_expect(is_above(x, 0) && x < lgamma_overflow, 1)) return give(result, log_gamma_of_positive(x) + 0.0);
    return log_gamma_elsewhere(x, result, sign);
}

}  // namespace

int lgamma(const double* x, double* result) {
    std::int32_t sign;
    return log_gamma(*x, result, &sign);
}

int lgammar(const double* x, double* result, std::int32_t* sign) { return log_gamma(*x, result, sign); }

}  // namespace tarn::callout
