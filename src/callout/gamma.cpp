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

namespace tarn::callout {
namespace {

#include "tables/gamma_exp2.inc"
#include "tables/gamma_log2.inc"
#include "tables/gamma_log2_rows.inc"
#include "tables/gamma_sine.inc"
#include "tables/gamma_stirling.inc"
#include "tables/lgamma_log1p.inc"
#include "tables/lgamma_negative_zeros.inc"
#include "tables/lgamma_rows.inc"

using extended = long double;

constexpr double log2_e = f64(0x3FF71547652B82FE);       // 1.4426950408889634
constexpr extended ln2 = 0xB.17217F7D1CF79ACp-4L;        // 0.6931471805599453094
// log2(2 pi / e) / 2.
constexpr double half_log2_2pi_over_e = f64(0x3FE3573FCF6D5AF9);       // 0.6044005442916777
constexpr double half_log2_2pi_over_e_tail = f64(0x3C80E57879459CE1);  // 2.931052888777415e-17

constexpr double gamma_largest = 172.0;   // gamma overflows from 171.7 on
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

// c0 + c1 t + ... of an even number of coefficients, lowest first, in pairs: two lanes take Horner's rule in t^2.
template <int count> TARN_INLINE double paired(const double* c, double t) {
    static_assert(count % 2 == 0);
    const f64x2 t2 = splat(t * t);
    f64x2 sum = _mm_loadu_pd(c + count - 2);
    for (int i = count - 4; i >= 0; i -= 2) sum = sum * t2 + _mm_loadu_pd(c + i);
    return sum[0] + sum[1] * t;
}

TARN_INLINE double floor_of(double X) {
    const __m128d v = _mm_set_sd(X);
    return _mm_cvtsd_f64(_mm_floor_sd(v, v));
}
TARN_INLINE double nearest_of(double X) {
    const __m128d v = _mm_set_sd(X);
    return _mm_cvtsd_f64(_mm_round_sd(v, v, static_cast<int>(Rounding::nearest)));
}

// log2(w / e): the head is a multiple of 2^-32, the tail below 1/100 in magnitude.
struct Log2 {
    double head;
    extended tail;
};

// Of 2^k (1 + f) / row[0], where row is that of a number's first digits.
TARN_INLINE const double* log2_row(std::uint64_t digits) { return gamma_log2_rows[digits >> 45 & 127]; }
TARN_INLINE Log2 log2_over_e(const double* row, extended f, double k) {
    const double d = static_cast<double>(f);
    return {k + row[1], f * log2_e + (row[2] + d * paired<8>(gamma_log2, d))};
}

constexpr std::uint64_t mantissa_mask = 0x000FFFFFFFFFFFFF;

// Of a positive normal double.
TARN_INLINE Log2 log2_over_e_of(double x) {
    const std::uint64_t p = pattern(x);
    const double m = f64((p & mantissa_mask) | 0x3FF0000000000000);
    const double* row = log2_row(p);
    return log2_over_e(row, extended(m) * row[0] - 1.0L, static_cast<double>(static_cast<int>(p >> 52) - 1023));
}

// Of a positive number of any size between 2^-1000 and 2^1000.
TARN_INLINE Log2 log2_over_e_of(extended w) {
    const std::uint64_t p = pattern(static_cast<double>(w));
    const int k = static_cast<int>(p >> 52) - 1023;
    const double* row = log2_row(p);
    return log2_over_e(row, w * (row[0] * power_of_two(-k)) - 1.0L, k);
}

// Of x + 8 for x below 8, exactly.
TARN_INLINE Log2 log2_over_e_above_8(double x) {
    const double* row = log2_row(pattern(1.0 + 0.125 * x));
    return log2_over_e(row, extended(x) * (0.125 * row[0]) + (row[0] - 1.0), 3.0);
}

// log2 gamma(z) for z from 8 on, near_z its double: up to 2^20 `whole` is exact and a multiple of 2^-64.
struct Exponent {
    extended whole, rest;
};
TARN_INLINE Exponent log2_gamma(extended z, double near_z, Log2 log) {
    const extended y = z - 0.5L;
    const double cut_y = f64(pattern(near_z - 0.5) >> 29 << 29);
    const extended v = 1.0L / z;
    const double near_v = static_cast<double>(v);
    const double series = half_log2_2pi_over_e_tail + near_v * paired<8>(gamma_stirling + 1, near_v * near_v);
    const extended correction = half_log2_2pi_over_e + (v * gamma_stirling[0] + series);
    return {extended(cut_y) * log.head, (y - cut_y) * log.head + (y * log.tail + correction)};
}
TARN_INLINE Exponent log2_gamma(double z) { return log2_gamma(z, z, log2_over_e_of(z)); }
TARN_INLINE Exponent log2_gamma_above_8(double x) {
    return log2_gamma(extended(x) + 8.0L, x + 8.0, log2_over_e_above_8(x));
}

// 2^(whole + rest - 128), for exponents that this leaves in the range of double.
TARN_INLINE extended power(Exponent e) {
    const double n = nearest_of(static_cast<double>(e.whole + e.rest) * 64.0);
    const double r = static_cast<double>((e.whole - n * 0x1p-6) + e.rest);
    const auto [row, exponent] = sixtyfourths(static_cast<std::uint32_t>(static_cast<std::int32_t>(n)));
    const double hi = f64(pattern(exp2_pairs[row][0]) + (static_cast<std::uint64_t>(exponent - 128) << 52));
    return extended(hi) + extended(hi) * (exp2_pairs[row][1] + r * paired<6>(gamma_exp2, r));
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
    const double c4 = near * paired<6>(gamma_sine + 6, near);
    const extended y2 = extended(y) * y;
    const extended c3 = extended(gamma_sine[4]) + (gamma_sine[5] + c4);
    const extended c2 = extended(gamma_sine[2]) + (gamma_sine[3] + y2 * c3);
    const extended c1 = extended(gamma_sine[0]) + (gamma_sine[1] + y2 * c2);
    const extended magnitude = y < 0 ? -extended(y) : extended(y);
    return magnitude + magnitude * (y2 * c1);
}

TARN_INLINE bool is_odd(double whole) {
    const double half = whole * 0.5;
    return floor_of(half) != half;
}

double gamma_of_positive(double x) {
    return in_extended(x, [](double X) __attribute__((always_inline)) {
        if (X >= 8) return static_cast<double>(power(log2_gamma(X)) * 0x1p128L);
        const extended product = rising7(X) * X;
        return static_cast<double>(power(log2_gamma_above_8(X)) * 0x1p128L / product);
    });
}

// |gamma(x)| = pi / (|x| |sin(pi x)| gamma |x|).
double gamma_of_negative(double x) {
    return in_extended(-x, [](double a) __attribute__((always_inline)) {
        const extended sine = sine_over_pi(a - nearest_of(a));
        if (a >= 8) return static_cast<double>(0x1p-128L / (sine * a * power(log2_gamma(a))));
        return static_cast<double>(rising7(a) * 0x1p-128L / (sine * power(log2_gamma_above_8(a))));
    });
}

// ln gamma over (x - 1)(x - 2): x = near_x, or near_x rounded, lies in [1/2, 8); t is x less the row's middle.
TARN_INLINE const double* log_gamma_row(double near_x) { return lgamma_rows[(pattern(near_x) >> 48) - 0x3FE0]; }
TARN_INLINE extended log_gamma_quotient(const double* row, double t) { return extended(row[1]) + paired<10>(row + 2, t); }

double log_gamma_of_positive(double x) {
    return in_extended(x, [](double X) __attribute__((always_inline)) {
        if (X >= 8) {
            const Exponent e = log2_gamma(X);
            return static_cast<double>((e.whole + e.rest) * ln2);
        }
        const extended E = X;
        if (X >= 0.5) {
            const double* row = log_gamma_row(X);
            return static_cast<double>((E - 1.0L) * (E - 2.0L) * log_gamma_quotient(row, X - row[0]));
        }
        // ln gamma(1 + x) - ln x.
        const double* row = log_gamma_row(X + 1.0);
        const extended above = E * (E - 1.0L) * log_gamma_quotient(row, (1.0 - row[0]) + X);
        const Log2 log = log2_over_e_of(E * 0x1p128L);
        return static_cast<double>(above - ((log.head - 128.0 + log.tail) * ln2 + 1.0L));
    });
}

// Next to a zero of ln |gamma|.
TARN_INLINE double log_gamma_at_zero(const double* row, extended t, extended s) {
    const double near_s = static_cast<double>(s), near_t = static_cast<double>(t);
    const extended g = extended(row[2]) + paired<10>(row + 3, near_t);
    return static_cast<double>(t * g - (s + near_s * near_s * paired<10>(lgamma_log1p, near_s)));
}

double log_gamma_of_negative(double x) {
    return in_extended(-x, [](double a) __attribute__((always_inline)) {
        const double n = nearest_of(a), y = n - a;
        if (a > 2 && n <= 16) {
            const double* row = lgamma_negative_zeros[2 * (static_cast<int>(n) - 2) - (y > 0)];
            const extended t = (extended(y) - row[0]) - row[1], s = t / row[0];
            if (s <= 0x1p-5L && s >= -0x1p-5L) return log_gamma_at_zero(row, t, s);
        }
        const extended sine = sine_over_pi(y);
        const auto sum = [](Exponent e, Log2 log) __attribute__((always_inline)) {
            return static_cast<double>(((e.whole + log.head) + (e.rest + (log.tail + log2_e))) * -ln2);
        };
        if (a >= 8) return sum(log2_gamma(a), log2_over_e_of(sine * a));
        return sum(log2_gamma_above_8(a), log2_over_e_of(sine / rising7(a)));
    });
}

// ln |gamma x| and the sign of gamma(x), +1 at its poles but for -0.
TARN_INLINE int log_gamma(double x, double* result, std::int32_t* sign) {
    *sign = 1;
    if (__builtin_expect(x > 0 && !not_finite(x), 1)) {
        const double y = log_gamma_of_positive(x);
        return give(result, y, not_finite(y) ? overflow : ordinary);
    }
    if (not_finite(x)) return give(result, x * x);
    if (floor_of(x) == x) {
        if (pattern(x) == 0x8000000000000000) *sign = -1;
        return give(result, infinity_from(0.0), pole);
    }
    // The sign alternates from one integer to the next.
    if (is_odd(floor_of(x))) *sign = -1;
    return give(result, x > -0x1p-100 ? log_gamma_of_positive(-x) : log_gamma_of_negative(x));
}

}  // namespace

int tgamma(const double* x, double* result) {
    const double X = *x;
    if (__builtin_expect(X > 0 && X < gamma_largest, 1)) {
        const double y = gamma_of_positive(X);
        return give(result, y, not_finite(y) ? overflow : ordinary);
    }
    if (not_finite(X)) {
        if (X < 0) return give(result, invalid(), domain_error);
        return give(result, X * X);
    }
    if (X == 0) return give(result, infinity_from(X), pole);
    if (X > 0) return give(result, overflowed(), overflow);
    const double whole = floor_of(X);
    if (whole == X) return give(result, invalid(), domain_error);
    const bool negative = is_odd(whole);
    if (X <= gamma_smallest) return give(result, negative ? -underflowed() : underflowed(), underflow);
    const double y = gamma_of_negative(X);
    return give(result, negative ? -y : y, not_finite(y) ? overflow : y == 0 ? underflow : ordinary);
}

int lgamma(const double* x, double* result) {
    std::int32_t sign;
    return log_gamma(*x, result, &sign);
}

int lgammar(const double* x, double* result, std::int32_t* sign) { return log_gamma(*x, result, sign); }

}  // namespace tarn::callout
