// The callouts: scalar functions that compute one lane. Most are complete, though all kernels but those of gamma ask
// for special lanes only; the others know nothing but these. Each takes a pointer to every operand, inputs first, and
// returns a status.
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

// Complete: every argument has its value.
UnaryFloat expf, exp2f, exp10f;
UnaryFloat logf, log2f, log10f, log1pf;
BinaryFloat powf, powrf;
FloatAndInt pownf, rootnf;
UnaryFloat invf, sqrtf, rsqrtf, cbrtf, rcbrtf;
BinaryFloat divf, hypotf;
UnaryFloat sinf, cosf, tanf;
UnaryFloatPair sincosf;
BinaryFloat atan2f, atan2pif;
UnaryFloat tgammaf, lgammaf;
int lgammarf(const float* x, float* result, std::int32_t* sign);

// For the special lanes of their kernels alone: NaNs and what stands here.
UnaryFloat expm1f;                          // |x| above 86.6
UnaryFloat sinhf, coshf;                    // |x| above 87.3
UnaryFloat tanhf;                           // |x| from 10 on, where the value is +-1
UnaryFloat asinhf;                          // |x| below 2^-12, infinities
UnaryFloat acoshf;                          // up to 1, +inf
UnaryFloat atanhf;                          // |x| below 2^-103, from 1 on
UnaryFloat asinf, acosf, asinpif, acospif;  // |x| from 1 on
UnaryFloat atanpif;                         // |x| below 2^-125, from 2^123 on
UnaryFloat sinpif, cospif, tanpif;          // infinities
UnaryFloat erfcf;                           // from 10.05 on

using UnaryDouble = int(const double* x, double* result);
using UnaryDoublePair = int(const double* x, double* result, double* second);
using BinaryDouble = int(const double* x, const double* y, double* result);
using DoubleAndInt = int(const double* x, const std::int32_t* n, double* result);

// Complete.
UnaryDouble exp, exp2, exp10;
UnaryDouble log, log2, log10, log1p;
BinaryDouble pow, powr;
DoubleAndInt pown, rootn;
UnaryDouble inv, rsqrt, cbrt, rcbrt;
BinaryDouble div, hypot;
UnaryDouble sin, cos, tan;
UnaryDoublePair sincos;
UnaryDouble sinpi, cospi, tanpi;
UnaryDouble asin, acos, asinpi, acospi;
BinaryDouble atan2, atan2pi;
UnaryDouble sinh, cosh, tanh, asinh, acosh, atanh;
UnaryDouble erfc, tgamma, lgamma;
int lgammar(const double* x, double* result, std::int32_t* sign);

// For special lanes alone.
UnaryDouble expm1;  // |x| above 707.7, NaNs

// The lane-wise families and the remainders, in both precisions. Complete.
template <class Real> int fmin(const Real* x, const Real* y, Real* result);
template <class Real> int fmax(const Real* x, const Real* y, Real* result);
template <class Real> int maxmag(const Real* x, const Real* y, Real* result);
template <class Real> int minmag(const Real* x, const Real* y, Real* result);
template <class Real> int fdim(const Real* x, const Real* y, Real* result);
template <class Real> int frexp(const Real* x, Real* significand, int* exponent);
template <class Real> int ilogb(const Real* x, int* result);
template <class Real> int logb(const Real* x, Real* result);
template <class Real> int ldexp(const Real* x, const int* n, Real* result);
template <class Real> int fmod(const Real* x, const Real* y, Real* result);
template <class Real> int remainder(const Real* x, const Real* y, Real* result);
template <class Real> int remquo(const Real* x, const Real* y, Real* result, int* quotient);
template <class Real> int fma(const Real* x, const Real* y, const Real* z, Real* result);

// For special lanes alone: zeros, infinities and NaNs.
template <class Real> int fract(const Real* x, Real* fraction, Real* floor);
template <class Real> int modf(const Real* x, Real* fraction, Real* integral);

#pragma GCC visibility pop

}  // namespace tarn::callout
