/* Scalar functions that gcc's loops call in vectors, from libtarn: with this header in the place of <math.h>,
 *
 *     for (int i = 0; i < n; i++) y[i] = tgammaf(x[i]);      gcc -O3 -fno-math-errno loop.c -ltarn -lm
 *
 * calls _ZGVbN4v_tgammaf, with -mavx2 _ZGVdN8v_tgammaf, and the scalar function for what is left over. -ltarn stands
 * before -lm, which brings the C library's own vector functions. For AVX-512 there are no functions here:
 * -mprefer-vector-width=256 keeps gcc at those of AVX2. clang takes the names it knows with -fveclib=libmvec.
 *
 * Those that C lacks (sinpi, rsqrt, powr, ...) libtarn has as scalar functions too. Vector functions set no errno and no
 * signgam. Results are those of the same function of __ocl_tarn_k1.so at the width of the register; the scalar
 * function of the C library, which computes a loop's last elements, has results of its own.
 *
 * Generated from the table of families by tarn-exports; edit the table. */
#ifndef TARN_SIMD_H
#define TARN_SIMD_H

#include <math.h>

#if defined(__GNUC__) && !defined(__clang__) && defined(__x86_64__)
#define TARN_SIMD __attribute__((simd("notinbranch")))
#else
#define TARN_SIMD
#endif
#define TARN_PURE __attribute__((const))
/* lgamma stores a sign besides; where errno does not matter, that does not either. */
#ifdef __NO_MATH_ERRNO__
#define TARN_PURE_WITHOUT_ERRNO __attribute__((const))
#else
#define TARN_PURE_WITHOUT_ERRNO
#endif
#ifdef __cplusplus
#define TARN_NOEXCEPT noexcept
extern "C" {
#else
#define TARN_NOEXCEPT
#endif

TARN_SIMD float expf(float x) TARN_NOEXCEPT;
TARN_SIMD double exp(double x) TARN_NOEXCEPT;
TARN_SIMD float exp2f(float x) TARN_NOEXCEPT;
TARN_SIMD double exp2(double x) TARN_NOEXCEPT;
TARN_SIMD float exp10f(float x) TARN_NOEXCEPT;
TARN_SIMD double exp10(double x) TARN_NOEXCEPT;
TARN_SIMD float expm1f(float x) TARN_NOEXCEPT;
TARN_SIMD double expm1(double x) TARN_NOEXCEPT;
TARN_SIMD float logf(float x) TARN_NOEXCEPT;
TARN_SIMD double log(double x) TARN_NOEXCEPT;
TARN_SIMD float log2f(float x) TARN_NOEXCEPT;
TARN_SIMD double log2(double x) TARN_NOEXCEPT;
TARN_SIMD float log10f(float x) TARN_NOEXCEPT;
TARN_SIMD double log10(double x) TARN_NOEXCEPT;
TARN_SIMD float log1pf(float x) TARN_NOEXCEPT;
TARN_SIMD double log1p(double x) TARN_NOEXCEPT;
TARN_SIMD float powf(float x, float y) TARN_NOEXCEPT;
TARN_SIMD double pow(double x, double y) TARN_NOEXCEPT;
TARN_SIMD float powrf(float x, float y) TARN_NOEXCEPT TARN_PURE;
TARN_SIMD double powr(double x, double y) TARN_NOEXCEPT TARN_PURE;
TARN_SIMD float sqrtf(float x) TARN_NOEXCEPT;
TARN_SIMD double sqrt(double x) TARN_NOEXCEPT;
TARN_SIMD float rsqrtf(float x) TARN_NOEXCEPT TARN_PURE;
TARN_SIMD double rsqrt(double x) TARN_NOEXCEPT TARN_PURE;
TARN_SIMD float cbrtf(float x) TARN_NOEXCEPT;
TARN_SIMD double cbrt(double x) TARN_NOEXCEPT;
TARN_SIMD float rcbrtf(float x) TARN_NOEXCEPT TARN_PURE;
TARN_SIMD double rcbrt(double x) TARN_NOEXCEPT TARN_PURE;
TARN_SIMD float hypotf(float x, float y) TARN_NOEXCEPT;
TARN_SIMD double hypot(double x, double y) TARN_NOEXCEPT;
TARN_SIMD float sinf(float x) TARN_NOEXCEPT;
TARN_SIMD double sin(double x) TARN_NOEXCEPT;
TARN_SIMD float cosf(float x) TARN_NOEXCEPT;
TARN_SIMD double cos(double x) TARN_NOEXCEPT;
TARN_SIMD void sincosf(float x, float* sine, float* cosine) TARN_NOEXCEPT;
TARN_SIMD void sincos(double x, double* sine, double* cosine) TARN_NOEXCEPT;
TARN_SIMD float tanf(float x) TARN_NOEXCEPT;
TARN_SIMD double tan(double x) TARN_NOEXCEPT;
TARN_SIMD float sinpif(float x) TARN_NOEXCEPT TARN_PURE;
TARN_SIMD double sinpi(double x) TARN_NOEXCEPT TARN_PURE;
TARN_SIMD float cospif(float x) TARN_NOEXCEPT TARN_PURE;
TARN_SIMD double cospi(double x) TARN_NOEXCEPT TARN_PURE;
TARN_SIMD float tanpif(float x) TARN_NOEXCEPT TARN_PURE;
TARN_SIMD double tanpi(double x) TARN_NOEXCEPT TARN_PURE;
TARN_SIMD float asinf(float x) TARN_NOEXCEPT;
TARN_SIMD double asin(double x) TARN_NOEXCEPT;
TARN_SIMD float acosf(float x) TARN_NOEXCEPT;
TARN_SIMD double acos(double x) TARN_NOEXCEPT;
TARN_SIMD float atanf(float x) TARN_NOEXCEPT;
TARN_SIMD double atan(double x) TARN_NOEXCEPT;
TARN_SIMD float atan2f(float x, float y) TARN_NOEXCEPT;
TARN_SIMD double atan2(double x, double y) TARN_NOEXCEPT;
TARN_SIMD float asinpif(float x) TARN_NOEXCEPT TARN_PURE;
TARN_SIMD double asinpi(double x) TARN_NOEXCEPT TARN_PURE;
TARN_SIMD float acospif(float x) TARN_NOEXCEPT TARN_PURE;
TARN_SIMD double acospi(double x) TARN_NOEXCEPT TARN_PURE;
TARN_SIMD float atanpif(float x) TARN_NOEXCEPT TARN_PURE;
TARN_SIMD double atanpi(double x) TARN_NOEXCEPT TARN_PURE;
TARN_SIMD float atan2pif(float x, float y) TARN_NOEXCEPT TARN_PURE;
TARN_SIMD double atan2pi(double x, double y) TARN_NOEXCEPT TARN_PURE;
TARN_SIMD float sinhf(float x) TARN_NOEXCEPT;
TARN_SIMD double sinh(double x) TARN_NOEXCEPT;
TARN_SIMD float coshf(float x) TARN_NOEXCEPT;
TARN_SIMD double cosh(double x) TARN_NOEXCEPT;
TARN_SIMD float tanhf(float x) TARN_NOEXCEPT;
TARN_SIMD double tanh(double x) TARN_NOEXCEPT;
TARN_SIMD float asinhf(float x) TARN_NOEXCEPT;
TARN_SIMD double asinh(double x) TARN_NOEXCEPT;
TARN_SIMD float acoshf(float x) TARN_NOEXCEPT;
TARN_SIMD double acosh(double x) TARN_NOEXCEPT;
TARN_SIMD float atanhf(float x) TARN_NOEXCEPT;
TARN_SIMD double atanh(double x) TARN_NOEXCEPT;
TARN_SIMD float erff(float x) TARN_NOEXCEPT;
TARN_SIMD double erf(double x) TARN_NOEXCEPT;
TARN_SIMD float erfcf(float x) TARN_NOEXCEPT;
TARN_SIMD double erfc(double x) TARN_NOEXCEPT;
TARN_SIMD float tgammaf(float x) TARN_NOEXCEPT;
TARN_SIMD double tgamma(double x) TARN_NOEXCEPT;
TARN_SIMD float lgammaf(float x) TARN_NOEXCEPT TARN_PURE_WITHOUT_ERRNO;
TARN_SIMD double lgamma(double x) TARN_NOEXCEPT TARN_PURE_WITHOUT_ERRNO;
TARN_SIMD float ceilf(float x) TARN_NOEXCEPT;
TARN_SIMD double ceil(double x) TARN_NOEXCEPT;
TARN_SIMD float floorf(float x) TARN_NOEXCEPT;
TARN_SIMD double floor(double x) TARN_NOEXCEPT;
TARN_SIMD float truncf(float x) TARN_NOEXCEPT;
TARN_SIMD double trunc(double x) TARN_NOEXCEPT;
TARN_SIMD float rintf(float x) TARN_NOEXCEPT;
TARN_SIMD double rint(double x) TARN_NOEXCEPT;
TARN_SIMD float nearbyintf(float x) TARN_NOEXCEPT;
TARN_SIMD double nearbyint(double x) TARN_NOEXCEPT;
TARN_SIMD float roundf(float x) TARN_NOEXCEPT;
TARN_SIMD double round(double x) TARN_NOEXCEPT;
TARN_SIMD float fabsf(float x) TARN_NOEXCEPT;
TARN_SIMD double fabs(double x) TARN_NOEXCEPT;
TARN_SIMD float copysignf(float x, float y) TARN_NOEXCEPT;
TARN_SIMD double copysign(double x, double y) TARN_NOEXCEPT;
TARN_SIMD float fminf(float x, float y) TARN_NOEXCEPT;
TARN_SIMD double fmin(double x, double y) TARN_NOEXCEPT;
TARN_SIMD float fmaxf(float x, float y) TARN_NOEXCEPT;
TARN_SIMD double fmax(double x, double y) TARN_NOEXCEPT;
TARN_SIMD float maxmagf(float x, float y) TARN_NOEXCEPT TARN_PURE;
TARN_SIMD double maxmag(double x, double y) TARN_NOEXCEPT TARN_PURE;
TARN_SIMD float minmagf(float x, float y) TARN_NOEXCEPT TARN_PURE;
TARN_SIMD double minmag(double x, double y) TARN_NOEXCEPT TARN_PURE;
TARN_SIMD float fdimf(float x, float y) TARN_NOEXCEPT;
TARN_SIMD double fdim(double x, double y) TARN_NOEXCEPT;
TARN_SIMD float logbf(float x) TARN_NOEXCEPT;
TARN_SIMD double logb(double x) TARN_NOEXCEPT;
TARN_SIMD float nextafterf(float x, float y) TARN_NOEXCEPT;
TARN_SIMD double nextafter(double x, double y) TARN_NOEXCEPT;
TARN_SIMD float fmodf(float x, float y) TARN_NOEXCEPT;
TARN_SIMD double fmod(double x, double y) TARN_NOEXCEPT;
TARN_SIMD float remainderf(float x, float y) TARN_NOEXCEPT;
TARN_SIMD double remainder(double x, double y) TARN_NOEXCEPT;

#ifdef __cplusplus
}
#endif
#endif
