// The special values of the powers, in the order in which they take precedence, for both precisions. What
// is left, |x| to a finite power with a sign, is the format's own: finite(|x|, negative).
#pragma once

#include "callout/format.hpp"

namespace tarn::callout {

enum Parity { not_an_integer, odd, even };

// The parity of a finite or infinite y; infinities count as even.
template <class Real> Parity parity(Real y) {
    const int exponent = exponent_field(y) - bias<Real>;
    if (exponent < 0) return y == 0 ? even : not_an_integer;
    if (exponent > fraction_bits<Real>) return even;
    const int below = fraction_bits<Real> - exponent;
    const Pattern<Real> significand = (pattern(y) & (implicit_bit<Real> - 1)) | implicit_bit<Real>;
    if ((significand & ((Pattern<Real>(1) << below) - 1)) != 0) return not_an_integer;
    return (significand >> below & 1) != 0 ? odd : even;
}

template <class Real> bool is_infinite(Real x) { return magnitude(x) == infinity<Real>; }
template <class Real> Real absolute(Real x) { return number<Real>(magnitude(x)); }
template <class Real> Real signed_by(Real x, bool negative) { return negative ? -x : x; }

template <class Real> int plain(Real* result, Real value) {
    *result = value;
    return ordinary;
}
template <class Real> int domain_nan(Real* result) {
    *result = invalid<Real>();
    return domain_error;
}

// A signalling NaN raises invalid even where the result does not depend on it.
template <class Real> int one(Real x, Real y, Real* result) {
    if (is_nan(x) || is_nan(y)) opaque(opaque(x) + y);
    return plain(result, Real(1));
}

// A zero or infinity as the magnitude of a zero x to a positive or negative power.
template <class Real> int power_of_zero(bool positive_exponent, bool negative, Real* result) {
    if (positive_exponent) return plain(result, signed_by(Real(0), negative));
    *result = Real(1) / opaque(negative ? -Real(0) : Real(0));
    return domain_error;
}
template <class Real> int power_of_infinity(bool positive_exponent, bool negative, Real* result) {
    return plain(result, signed_by(positive_exponent ? number<Real>(infinity<Real>) : Real(0), negative));
}

// A magnitude to an infinite power; 1 is decided before.
template <class Real> int to_infinite_power(Real x, Real y, Real* result) {
    return plain(result, (x > 1) == (y > 0) ? number<Real>(infinity<Real>) : Real(0));
}

template <class Real, class Finite> TARN_INLINE int pow_rules(Real x, Real y, Real* result, Finite finite) {
    if (x == 1 || y == 0) return one(x, y, result);
    if (is_nan(x) || is_nan(y)) return plain(result, x + y);
    const Parity kind = parity(y);
    const bool negative = sign(x) != 0 && kind == odd;
    if (x == 0) return power_of_zero(y > 0, negative, result);
    if (x == -1 && kind != not_an_integer) return plain(result, signed_by(Real(1), negative));
    if (is_infinite(x)) return power_of_infinity(y > 0, negative, result);
    if (is_infinite(y)) return to_infinite_power(absolute(x), y, result);
    if (x < 0 && kind == not_an_integer) return domain_nan(result);
    return finite(absolute(x), negative);
}

template <class Real, class Finite> TARN_INLINE int powr_rules(Real x, Real y, Real* result, Finite finite) {
    if (is_nan(x) || is_nan(y)) return plain(result, x + y);
    if (x < 0) return domain_nan(result);
    if (x == 0) return y == 0 ? domain_nan(result) : power_of_zero(y > 0, false, result);
    if (is_infinite(x)) return y == 0 ? domain_nan(result) : power_of_infinity(y > 0, false, result);
    if (is_infinite(y)) return x == 1 ? domain_nan(result) : to_infinite_power(x, y, result);
    return finite(x, false);
}

template <class Real, class Finite> TARN_INLINE int pown_rules(Real x, std::int32_t n, Real* result, Finite finite) {
    if (x == 1 || n == 0) return one(x, x, result);
    if (is_nan(x)) return plain(result, x + x);
    const bool negative = sign(x) != 0 && (n & 1) != 0;
    if (x == 0) return power_of_zero(n > 0, negative, result);
    if (is_infinite(x)) return power_of_infinity(n > 0, negative, result);
    return finite(absolute(x), negative);
}

template <class Real, class Finite> TARN_INLINE int rootn_rules(Real x, std::int32_t n, Real* result, Finite finite) {
    if (n == 0) return domain_nan(result);
    if (is_nan(x)) return plain(result, x + x);
    const bool is_odd = (n & 1) != 0, negative = sign(x) != 0 && is_odd;
    if (x == 0) return power_of_zero(n > 0, negative, result);
    if (x < 0 && !is_odd) return domain_nan(result);
    if (is_infinite(x)) return power_of_infinity(n > 0, negative, result);
    return finite(absolute(x), negative);
}

}  // namespace tarn::callout
