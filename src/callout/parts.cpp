// fract and modf of infinities and NaN, and fract of zeros: a zero with the sign of x, and x; a NaN twice.
#include "callout/format.hpp"

namespace tarn::callout {
namespace {

template <class Real> int zero_and_itself(Real x, Real* fraction, Real* whole) {
    *whole = is_nan(x) ? quiet(x) : x;
    *fraction = is_nan(x) ? *whole : number<Real>(sign(x));
    return ordinary;
}

}  // namespace

template <class Real> int fract(const Real* x, Real* fraction, Real* floor) { return zero_and_itself(*x, fraction, floor); }
template <class Real> int modf(const Real* x, Real* fraction, Real* integral) { return zero_and_itself(*x, fraction, integral); }

template int fract(const float*, float*, float*);
template int fract(const double*, double*, double*);
template int modf(const float*, float*, float*);
template int modf(const double*, double*, double*);

}  // namespace tarn::callout
