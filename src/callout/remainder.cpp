// fmod, remainder and remquo for any two numbers, exactly: the significands are divided as integers, the
// dividend followed by as many zero bits as the exponents are apart. The processor's division of 128 bits
// by 64 takes 64 of them a step, 32 steps at the most.
#include "callout/format.hpp"

namespace tarn::callout {
namespace {

struct Divided {
    std::uint64_t quotient;  // its low bits
    std::uint64_t remainder;
};

// (high * 2^64 + low) / divisor, for high < divisor.
TARN_INLINE Divided divide(std::uint64_t high, std::uint64_t low, std::uint64_t divisor) {
    Divided d;
    asm("divq %4" : "=a"(d.quotient), "=d"(d.remainder) : "a"(low), "d"(high), "r"(divisor) : "cc");
    return d;
}

// dividend * 2^zeros / divisor.
Divided divide_shifted(std::uint64_t dividend, int zeros, std::uint64_t divisor) {
    Divided d = {dividend / divisor, dividend % divisor};
    for (; zeros >= 64 && d.remainder != 0; zeros -= 64) d = divide(d.remainder, 0, divisor);
    if (d.remainder == 0) return {zeros < 64 ? d.quotient << zeros : 0, 0};
    if (zeros == 0) return d;
    const Divided last = divide(d.remainder >> (64 - zeros), d.remainder << zeros, divisor);
    return {(d.quotient << zeros) + last.quotient, last.remainder};
}

// A NaN, a zero divisor, an infinite dividend; and the dividends that are their own remainders.
enum class Kind { ordinary, settled, no_value };
template <class Real> Kind settle(Real x, Real y, Real* result) {
    if (is_nan(x) || is_nan(y)) {
        *result = x + y;
        return Kind::settled;
    }
    if (magnitude(y) == 0 || not_finite(x)) {
        *result = invalid<Real>();
        return Kind::no_value;
    }
    *result = x;
    return magnitude(x) == 0 || not_finite(y) ? Kind::settled : Kind::ordinary;
}

}  // namespace

template <class Real> int fmod(const Real* px, const Real* py, Real* result) {
    const Real x = *px, y = *py;
    const Kind kind = settle(x, y, result);
    if (kind != Kind::ordinary) return kind == Kind::no_value ? domain_error : ordinary;
    if (magnitude(x) < magnitude(y)) return ordinary;
    const auto [mx, ex] = as_held(x);
    const auto [my, ey] = as_held(y);
    const auto rest = static_cast<Pattern<Real>>(divide_shifted(mx, ex - ey, my).remainder);
    *result = with_sign(exactly<Real>(rest, ey), sign(x));
    return ordinary;
}

// The quotient keeps its sign and its low 31 bits.
template <class Real> int remquo(const Real* px, const Real* py, Real* result, int* quotient) {
    const Real x = *px, y = *py;
    *quotient = 0;
    const Kind kind = settle(x, y, result);
    if (kind != Kind::ordinary) return kind == Kind::no_value ? domain_error : ordinary;
    const auto [mx, ex] = as_held(x);
    auto [my, ey] = as_held(y);
    if (ex < ey - 1) return ordinary;  // |x| < |y|/2
    if (ex < ey) my <<= 1, ey = ex;
    auto [q, rest] = divide_shifted(mx, ex - ey, my);
    const bool up = rest + rest > my || (rest + rest == my && (q & 1) != 0);
    q += up;
    const auto r = static_cast<Pattern<Real>>(up ? my - rest : rest);
    *result = with_sign(exactly<Real>(r, ey), up ? sign(x) ^ sign_mask<Real> : sign(x));
    const int low = static_cast<int>(q & 0x7FFFFFFF);
    *quotient = sign(x) == sign(y) ? low : -low;
    return ordinary;
}

template <class Real> int remainder(const Real* x, const Real* y, Real* result) {
    int quotient;
    return remquo(x, y, result, &quotient);
}

template int fmod(const float*, const float*, float*);
template int fmod(const double*, const double*, double*);
template int remainder(const float*, const float*, float*);
template int remainder(const double*, const double*, double*);
template int remquo(const float*, const float*, float*, int*);
template int remquo(const double*, const double*, double*, int*);

}  // namespace tarn::callout
