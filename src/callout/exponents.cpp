// frexp, ilogb, logb and ldexp of zeros, subnormals, infinities and NaN, and ldexp where the result is
// not normal.
#include "callout/format.hpp"

namespace tarn::callout {
namespace {

template <class Real> bool zero_or_not_finite(Real x) { return magnitude(x) == 0 || not_finite(x); }

// floor(log2 |x|) of a finite x that is not zero.
template <class Real> int exponent_of(Real x) { return normalised(x).exponent + fraction_bits<Real>; }

constexpr int int_max = 0x7FFFFFFF, int_min = -int_max - 1;

}  // namespace

template <class Real> int frexp(const Real* x, Real* significand, int* exponent) {
    if (zero_or_not_finite(*x)) {
        *exponent = 0;
        *significand = is_nan(*x) ? quiet(*x) : *x;
        return ordinary;
    }
    *exponent = exponent_of(*x) + 1;
    return give(significand, pattern(exactly<Real>(normalised(*x).integer, -Format<Real>::precision)) | sign(*x));
}

template <class Real> int ilogb(const Real* x, int* result) {
    if (zero_or_not_finite(*x)) {
        *result = magnitude(*x) == 0 ? int_min : int_max;
        return domain_error;
    }
    *result = exponent_of(*x);
    return ordinary;
}

template <class Real> int logb(const Real* x, Real* result) {
    if (magnitude(*x) == 0) {
        *result = Real(-1) / opaque(Real(0));
        return pole;
    }
    *result = not_finite(*x) ? *x * *x : static_cast<Real>(exponent_of(*x));
    return ordinary;
}

// A subnormal x is scaled up by 2^normaliser before its exponent field is read; a subnormal result is
// scaled down by as much, which is its one rounding.
template <class Real> int ldexp(const Real* x, const int* n, Real* result) {
    constexpr int normaliser = sizeof(Real) == 4 ? 25 : 54;
    constexpr int huge = sizeof(Real) == 4 ? 100 : 1000;  // the square of 2^huge overflows, of 2^-huge vanishes
    const auto power = [](int e) { return number<Real>(Pattern<Real>(e + bias<Real>) << fraction_bits<Real>); };
    const auto with_field = [](Real v, int field) {
        return number<Real>((pattern(v) & ~infinity<Real>) | Pattern<Real>(field) << fraction_bits<Real>);
    };
    if (zero_or_not_finite(*x)) {
        *result = is_nan(*x) ? quiet(*x) : *x;
        return ordinary;
    }
    Real scaled = *x;
    int field = exponent_field(scaled);
    if (field == 0) {
        scaled *= power(normaliser);
        field = exponent_field(scaled) - normaliser;
    }
    const int t = field + (*n < -65536 ? -65536 : *n > 65536 ? 65536 : *n);
    if (t >= Format<Real>::field_max) {
        *result = opaque(with_sign(power(huge), sign(*x))) * power(huge);
        return overflow;
    }
    if (t > 0) {
        *result = with_field(scaled, t);
        return ordinary;
    }
    if (t >= -fraction_bits<Real>) {
        *result = opaque(with_field(scaled, t + normaliser)) * power(-normaliser);
        if (*result != 0) return ordinary;
    }
    *result = opaque(with_sign(power(-huge), sign(*x))) * power(-huge);
    return underflow;
}

template int frexp(const float*, float*, int*);
template int frexp(const double*, double*, int*);
template int ilogb(const float*, int*);
template int ilogb(const double*, int*);
template int logb(const float*, float*);
template int logb(const double*, double*);
template int ldexp(const float*, const int*, float*);
template int ldexp(const double*, const int*, double*);

}  // namespace tarn::callout
