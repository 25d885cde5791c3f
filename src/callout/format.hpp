// The two formats to the callouts that serve both: fields, and finite numbers as integers times powers
// of two.
#pragma once

#include "callout/scalar.hpp"

namespace tarn::callout {

template <class Real> struct Format;
template <> struct Format<float> {
    using Pattern = std::uint32_t;
    static constexpr int precision = 24;
    static constexpr int field_max = 255;  // the exponent field of infinity
};
template <> struct Format<double> {
    using Pattern = std::uint64_t;
    static constexpr int precision = 53;
    static constexpr int field_max = 2047;
};

template <class Real> using Pattern = typename Format<Real>::Pattern;
template <class Real> constexpr int fraction_bits = Format<Real>::precision - 1;
template <class Real> constexpr int bias = Format<Real>::field_max / 2;
template <class Real> constexpr int lowest_exponent = 1 - bias<Real> - fraction_bits<Real>;  // of the last bit
template <class Real> constexpr Pattern<Real> implicit_bit = Pattern<Real>(1) << fraction_bits<Real>;
template <class Real> constexpr Pattern<Real> sign_mask = Pattern<Real>(1) << (8 * sizeof(Real) - 1);
template <class Real> constexpr Pattern<Real> infinity = Pattern<Real>(Format<Real>::field_max) << fraction_bits<Real>;

template <class Real> TARN_INLINE Real number(Pattern<Real> p) { return __builtin_bit_cast(Real, p); }
template <class Real> TARN_INLINE Pattern<Real> magnitude(Real x) { return pattern(x) & ~sign_mask<Real>; }
template <class Real> TARN_INLINE Pattern<Real> sign(Real x) { return pattern(x) & sign_mask<Real>; }
template <class Real> TARN_INLINE int exponent_field(Real x) { return static_cast<int>(magnitude(x) >> fraction_bits<Real>); }

// |x| = integer * 2^exponent for a finite x: as the format holds it, or normalised, its leading bit the
// implicit one, for an x that is not zero.
template <class Real> struct Scaled {
    Pattern<Real> integer;
    int exponent;
};
template <class Real> TARN_INLINE Scaled<Real> as_held(Real x) {
    const int field = exponent_field(x);
    const auto fraction = pattern(x) & (implicit_bit<Real> - 1);
    if (field == 0) return {fraction, lowest_exponent<Real>};
    return {fraction | implicit_bit<Real>, field - 1 + lowest_exponent<Real>};
}
template <class Real> TARN_INLINE Scaled<Real> normalised(Real x) {
    auto [integer, exponent] = as_held(x);
    const int shift = __builtin_clzll(integer) - (64 - Format<Real>::precision);
    return {integer << shift, exponent - shift};
}

// integer * 2^exponent, which the format holds without rounding.
template <class Real> TARN_INLINE Real exactly(Pattern<Real> integer, int exponent) {
    if (integer == 0) return 0;
    const int shift = __builtin_clzll(integer) - (64 - Format<Real>::precision);
    const int field = exponent - shift - lowest_exponent<Real> + 1;
    if (field <= 0) return number<Real>(integer << (exponent - lowest_exponent<Real>));
    return number<Real>((integer << shift) - implicit_bit<Real> + (Pattern<Real>(field) << fraction_bits<Real>));
}

template <class Real> TARN_INLINE Real with_sign(Real magnitude, Pattern<Real> sign) {
    return number<Real>(pattern(magnitude) | sign);
}

// The NaN of an invalid operation, raising its flag.
template <class Real> TARN_INLINE Real invalid() {
    const Real zero = opaque(Real(0));
    return zero / zero;
}

template <class Real> TARN_INLINE int give(Real* result, Pattern<Real> pattern, Status status = ordinary) {
    *result = number<Real>(pattern);
    return status;
}

}  // namespace tarn::callout
