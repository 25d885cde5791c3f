// The special-lane callouts: scalar functions that compute one lane exactly, with every special value.
// Each takes a pointer to every operand, inputs first, and returns a status.
#pragma once

#include <cstdint>

namespace tarn::callout {

enum Status : int {
    ordinary = 0,
    domain_error = 1,  // a NaN from an argument outside the domain
    pole = 2,          // an infinity from a finite argument
    overflow = 3,
    underflow = 4,
};

#pragma GCC visibility push(hidden)

using UnaryFloat = int(const float* x, float* result);
using BinaryFloat = int(const float* x, const float* y, float* result);
using FloatAndInt = int(const float* x, const std::int32_t* n, float* result);
using UnaryFloatPair = int(const float* x, float* result, float* second);

UnaryFloat expf, exp2f, exp10f, expm1f;
UnaryFloat sinhf, coshf, tanhf, asinhf, acoshf, atanhf;
UnaryFloat erfcf, tgammaf, lgammaf;
int lgammarf(const float* x, float* result, std::int32_t* sign);
UnaryFloat logf, log2f, log10f, log1pf;
UnaryFloat invf, sqrtf, rsqrtf, cbrtf, rcbrtf;
BinaryFloat divf, hypotf;
BinaryFloat powf, powrf;
FloatAndInt pownf, rootnf;
UnaryFloat sinf, cosf, tanf;
UnaryFloatPair sincosf;
UnaryFloat sinpif, cospif, tanpif;
UnaryFloat asinf, acosf, asinpif, acospif, atanpif;
BinaryFloat atan2f, atan2pif;

using UnaryDouble = int(const double* x, double* result);
using UnaryDoublePair = int(const double* x, double* result, double* second);
using BinaryDouble = int(const double* x, const double* y, double* result);
using DoubleAndInt = int(const double* x, const std::int32_t* n, double* result);

UnaryDouble exp, exp2, exp10, expm1;
UnaryDouble log, log2, log10, log1p;
UnaryDouble sin, cos, tan;
UnaryDoublePair sincos;
UnaryDouble sinpi, cospi, tanpi;
UnaryDouble sinh, cosh, tanh, asinh, acosh, atanh;
UnaryDouble asin, acos, asinpi, acospi;
BinaryDouble atan2, atan2pi;
UnaryDouble erfc, tgamma, lgamma;
int lgammar(const double* x, double* result, std::int32_t* sign);
UnaryDouble inv, rsqrt, cbrt, rcbrt;
BinaryDouble div, hypot;
BinaryDouble pow, powr;
DoubleAndInt pown, rootn;

// The lane-wise families and the remainders, in both precisions.
template <class Real> int fmin(const Real* x, const Real* y, Real* result);
template <class Real> int fmax(const Real* x, const Real* y, Real* result);
template <class Real> int maxmag(const Real* x, const Real* y, Real* result);
template <class Real> int minmag(const Real* x, const Real* y, Real* result);
template <class Real> int fdim(const Real* x, const Real* y, Real* result);
template <class Real> int frexp(const Real* x, Real* significand, int* exponent);
template <class Real> int ilogb(const Real* x, int* result);
template <class Real> int logb(const Real* x, Real* result);
template <class Real> int ldexp(const Real* x, const int* n, Real* result);
template <class Real> int fract(const Real* x, Real* fraction, Real* floor);
template <class Real> int modf(const Real* x, Real* fraction, Real* integral);
template <class Real> int fmod(const Real* x, const Real* y, Real* result);
template <class Real> int remainder(const Real* x, const Real* y, Real* result);
template <class Real> int remquo(const Real* x, const Real* y, Real* result, int* quotient);
template <class Real> int fma(const Real* x, const Real* y, const Real* z, Real* result);

#pragma GCC visibility pop

}  // namespace tarn::callout
