// fmin, fmax, maxmag, minmag and fdim where an argument is an infinity or a NaN. One NaN, quiet or
// signalling, is ignored (fdim: gives NaN); infinities compare as the largest numbers.
#include "callout/format.hpp"

namespace tarn::callout {
namespace {

// The only number, or the NaN of two.
template <class Real> Real ignoring_nan(Real x, Real y) { return !is_nan(x) ? x : !is_nan(y) ? y : x + y; }

template <class Real> Real smaller(Real x, Real y) {
    return is_nan(x) || is_nan(y) ? ignoring_nan(x, y) : x < y ? x : y;
}
template <class Real> Real larger(Real x, Real y) {
    return is_nan(x) || is_nan(y) ? ignoring_nan(x, y) : x > y ? x : y;
}

}  // namespace

template <class Real> int fmin(const Real* x, const Real* y, Real* result) { return give(result, smaller(*x, *y)); }
template <class Real> int fmax(const Real* x, const Real* y, Real* result) { return give(result, larger(*x, *y)); }

// Magnitudes compare as their patterns do; NaNs are left to the other two.
template <class Real> int maxmag(const Real* x, const Real* y, Real* result) {
    if (is_nan(*x) || is_nan(*y)) return give(result, ignoring_nan(*x, *y));
    const auto ax = magnitude(*x), ay = magnitude(*y);
    return give(result, ax > ay ? *x : ay > ax ? *y : larger(*x, *y));
}
template <class Real> int minmag(const Real* x, const Real* y, Real* result) {
    if (is_nan(*x) || is_nan(*y)) return give(result, ignoring_nan(*x, *y));
    const auto ax = magnitude(*x), ay = magnitude(*y);
    return give(result, ax < ay ? *x : ay < ax ? *y : smaller(*x, *y));
}

template <class Real> int fdim(const Real* x, const Real* y, Real* result) {
    return give(result, !is_nan(*x) && !is_nan(*y) && *x <= *y ? Real(0) : *x - *y);
}

#define TARN_BINARY(name)                                       \
    template int name(const float*, const float*, float*);      \
    template int name(const double*, const double*, double*);
TARN_BINARY(fmin)
TARN_BINARY(fmax)
TARN_BINARY(maxmag)
TARN_BINARY(minmag)
TARN_BINARY(fdim)

}  // namespace tarn::callout
