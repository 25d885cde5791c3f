/* Vector math on arrays: the OpenCL C built-in functions in single and double precision, for x86-64 with SSE4.1.
 *
 *     void tarn_<base>[_native|_half](size_t n, const T* x, ..., T* r)
 *
 * computes n elements. A base that ends in f is single precision (but erf and modf are double). Without a suffix a
 * function keeps the OpenCL error bound; _native is fast and only as accurate as its comment says; _half lies between.
 *
 * An element's bits depend on that element alone: not on n, not on its place, not on its neighbours. They are those of
 * the same function of __ocl_tarn_k1.so at width 16, of a vector that holds this element in every lane.
 *
 * Any n and any alignment will do. A result may be exactly an argument whose elements have its size, to compute in
 * place; any other overlap is undefined, and so are two results in one place. Pointers are not looked at when n is 0.
 * Nothing is allocated and no state is held: functions may be called from any thread and signal handler. What
 * docs/contract.md says of rounding modes, subnormals and flags holds for every element.
 *
 * In C++20 each function is also an overload on spans, tarn::exp(std::span<const float>, std::span<float>), of one
 * name for both precisions. Lengths that differ throw std::invalid_argument, or where exceptions are off end the
 * program with a line on the standard error output; nothing is computed.
 *
 * Errors are in units in the last place (ulp) of the exact result.
 *
 * Generated from the table of families by tarn-exports; edit the table. */
#ifndef TARN_H
#define TARN_H

#define TARN_VERSION_MAJOR 1
#define TARN_VERSION_MINOR 0
#define TARN_VERSION_PATCH 0

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif
#ifdef __GNUC__
#pragma GCC visibility push(default)
#endif

/* Exponentials ------------------------------------------------------------------------------------ */

/* expf: e^x. Domain: every x. Special values: +inf gives +inf, -inf +0; overflow gives +inf, underflow a
   subnormal or +0. Worst error 2.932 ulp (OpenCL allows 3); native and half 2169; measured over all inputs. */
void tarn_expf(size_t n, const float* x, float* r);
void tarn_expf_native(size_t n, const float* x, float* r);
void tarn_expf_half(size_t n, const float* x, float* r);

/* exp: e^x. Domain: every x. Special values: +inf gives +inf, -inf +0; overflow gives +inf, underflow a
   subnormal or +0. Largest error found 2.658 ulp, proved at most 2.6596 on the fast path (OpenCL allows 3);
   native 5.944e+07; by directed search, 1193 million evaluations (native 362 million; width 2 4127
   million). exp(+-0) is one unit below 1, but at width 2. */
void tarn_exp(size_t n, const double* x, double* r);
void tarn_exp_native(size_t n, const double* x, double* r);

/* exp2f: 2^x. Domain: every x. Special values: +inf gives +inf, -inf +0; overflow gives +inf, underflow a
   subnormal or +0. Worst error 1.102 ulp (OpenCL allows 3); native and half 1230; measured over all inputs. */
void tarn_exp2f(size_t n, const float* x, float* r);
void tarn_exp2f_native(size_t n, const float* x, float* r);
void tarn_exp2f_half(size_t n, const float* x, float* r);

/* exp2: 2^x. Domain: every x. Special values: +inf gives +inf, -inf +0; overflow gives +inf, underflow a
   subnormal or +0. Largest error found 1.643 ulp, proved at most 1.6928 on the fast path (OpenCL allows 3);
   native 2.978e+07; by directed search, 1028 million evaluations (native 377 million). */
void tarn_exp2(size_t n, const double* x, double* r);
void tarn_exp2_native(size_t n, const double* x, double* r);

/* exp10f: 10^x. Domain: every x. Special values: +inf gives +inf, -inf +0; overflow gives +inf, underflow a
   subnormal or +0. Worst error 2.922 ulp (OpenCL allows 3); native and half 1304; measured over all inputs.
   exp10f(+-0) is one unit above 1. */
void tarn_exp10f(size_t n, const float* x, float* r);
void tarn_exp10f_native(size_t n, const float* x, float* r);
void tarn_exp10f_half(size_t n, const float* x, float* r);

/* exp10: 10^x. Domain: every x. Special values: +inf gives +inf, -inf +0; overflow gives +inf, underflow a
   subnormal or +0. Largest error found 1.004 ulp (OpenCL allows 3); native 2.978e+07; by directed search,
   334 million evaluations (native 290 million). */
void tarn_exp10(size_t n, const double* x, double* r);
void tarn_exp10_native(size_t n, const double* x, double* r);

/* expm1f: e^x - 1. Domain: every x. Special values: +inf gives +inf, -inf -1; zeros keep their sign. Worst
   error 1.802 ulp (OpenCL allows 3); native 283.7; measured over all inputs. */
void tarn_expm1f(size_t n, const float* x, float* r);
void tarn_expm1f_native(size_t n, const float* x, float* r);

/* expm1: e^x - 1. Domain: every x. Special values: +inf gives +inf, -inf -1; zeros keep their sign. Largest
   error found 1.978 ulp (OpenCL allows 3); native 5.189e+06; by directed search, 567 million evaluations
   (native 447 million). */
void tarn_expm1(size_t n, const double* x, double* r);
void tarn_expm1_native(size_t n, const double* x, double* r);

/* Logarithms -------------------------------------------------------------------------------------- */

/* logf: ln x. Domain: x >= 0. Special values: zeros give -inf, +inf +inf, negative x NaN. Worst error
   0.9736 ulp (OpenCL allows 3); native 8314, half 3.965; measured over all inputs. */
void tarn_logf(size_t n, const float* x, float* r);
void tarn_logf_native(size_t n, const float* x, float* r);
void tarn_logf_half(size_t n, const float* x, float* r);

/* log: ln x. Domain: x >= 0. Special values: zeros give -inf, +inf +inf, negative x NaN. Largest error
   found 1.589 ulp, proved at most 8.4538 on the fast path with any processor's estimates (OpenCL allows 3);
   native 2.095e+06; by directed search, 1549 million evaluations (native 429 million). Last bits may differ
   between processor makers (full and native). */
void tarn_log(size_t n, const double* x, double* r);
void tarn_log_native(size_t n, const double* x, double* r);

/* log2f: log2 x. Domain: x >= 0. Special values: zeros give -inf, +inf +inf, negative x NaN; exact at
   powers of two. Worst error 2.612 ulp (OpenCL allows 3); native and half 893.5; measured over all inputs. */
void tarn_log2f(size_t n, const float* x, float* r);
void tarn_log2f_native(size_t n, const float* x, float* r);
void tarn_log2f_half(size_t n, const float* x, float* r);

/* log2: log2 x. Domain: x >= 0. Special values: zeros give -inf, +inf +inf, negative x NaN; exact at powers
   of two. Largest error found 2.089 ulp (OpenCL allows 3); native 2.426e+06; by directed search, 1052
   million evaluations (native by samples). Last bits may differ between processor makers (full and native). */
void tarn_log2(size_t n, const double* x, double* r);
void tarn_log2_native(size_t n, const double* x, double* r);

/* log10f: log10 x. Domain: x >= 0. Special values: zeros give -inf, +inf +inf, negative x NaN. Worst error
   2.627 ulp (OpenCL allows 3); native and half 995.7; measured over all inputs. */
void tarn_log10f(size_t n, const float* x, float* r);
void tarn_log10f_native(size_t n, const float* x, float* r);
void tarn_log10f_half(size_t n, const float* x, float* r);

/* log10: log10 x. Domain: x >= 0. Special values: zeros give -inf, +inf +inf, negative x NaN. Largest error
   found 2.093 ulp (OpenCL allows 3); native 2.921e+06; by directed search, 270 million evaluations (native
   by samples). Last bits may differ between processor makers (full and native). */
void tarn_log10(size_t n, const double* x, double* r);
void tarn_log10_native(size_t n, const double* x, double* r);

/* log1pf: ln(1 + x). Domain: x >= -1. Special values: -1 gives -inf, +inf +inf, x < -1 NaN; zeros keep
   their sign. Worst error 0.622 ulp (OpenCL allows 2); native 1568; measured over all inputs. Last bits may
   differ between processor makers (full). */
void tarn_log1pf(size_t n, const float* x, float* r);
void tarn_log1pf_native(size_t n, const float* x, float* r);

/* log1p: ln(1 + x). Domain: x >= -1. Special values: -1 gives -inf, +inf +inf, x < -1 NaN; zeros keep their
   sign. Largest error found 0.7449 ulp, proved at most 2.2556 on the fast path with any processor's
   estimates (OpenCL allows 2); native 2.095e+06; by directed search, 196 million evaluations (native 339
   million). Last bits may differ between processor makers (full and native). */
void tarn_log1p(size_t n, const double* x, double* r);
void tarn_log1p_native(size_t n, const double* x, double* r);

/* Powers ------------------------------------------------------------------------------------------ */

/* powf: x^y. Domain: x >= 0, or y an integer. Special values: C99 Annex F. Largest error found 1.099 ulp,
   proved at most 2.8618 on the fast path with any processor's estimates (OpenCL allows 16); native 4467; by
   190 million samples, most of them near 1. Last bits may differ between processor makers (full). */
void tarn_powf(size_t n, const float* x, const float* y, float* r);
void tarn_powf_native(size_t n, const float* x, const float* y, float* r);

/* pow: x^y. Domain: x >= 0, or y an integer. Special values: C99 Annex F. Largest error found 1.675 ulp
   (OpenCL allows 16); native 5.254e+07; by directed search, 412 million evaluations (native 111 million). */
void tarn_pow(size_t n, const double* x, const double* y, double* r);
void tarn_pow_native(size_t n, const double* x, const double* y, double* r);

/* powrf: x^y for x >= 0. Domain: x >= 0. Special values: x < 0 gives NaN; 0^0, inf^0 and 1^inf give NaN.
   Largest error found 3.088 ulp (OpenCL allows 16); native and half 4488; by directed search, 453 million
   evaluations (native 131 million). */
void tarn_powrf(size_t n, const float* x, const float* y, float* r);
void tarn_powrf_native(size_t n, const float* x, const float* y, float* r);
void tarn_powrf_half(size_t n, const float* x, const float* y, float* r);

/* powr: x^y for x >= 0. Domain: x >= 0. Special values: x < 0 gives NaN; 0^0, inf^0 and 1^inf give NaN.
   Largest error found 1.684 ulp (OpenCL allows 16); native 5.281e+07; by directed search, 304 million
   evaluations (native 77 million). */
void tarn_powr(size_t n, const double* x, const double* y, double* r);
void tarn_powr_native(size_t n, const double* x, const double* y, double* r);

/* pownf: x^n, n an integer. Domain: every x. Special values: x^0 is 1, also for a NaN. Largest error found
   4.078 ulp (OpenCL allows 16); native 5518; by directed search, 342 million evaluations (native 155
   million). */
void tarn_pownf(size_t n, const float* x, const int32_t* k, float* r);
void tarn_pownf_native(size_t n, const float* x, const int32_t* k, float* r);

/* pown: x^n, n an integer. Domain: every x. Special values: x^0 is 1, also for a NaN. Largest error found
   1.663 ulp (OpenCL allows 16); native 5.231e+07; by directed search, 376 million evaluations (native 81
   million). */
void tarn_pown(size_t n, const double* x, const int32_t* k, double* r);
void tarn_pown_native(size_t n, const double* x, const int32_t* k, double* r);

/* rootnf: x^(1/n), n an integer. Domain: x >= 0, or n odd. Special values: n = 0 gives NaN, x < 0 with even
   n NaN. Largest error found 4.079 ulp (OpenCL allows 16); native 2706; by directed search, 866 million
   evaluations (native 100 million). */
void tarn_rootnf(size_t n, const float* x, const int32_t* k, float* r);
void tarn_rootnf_native(size_t n, const float* x, const int32_t* k, float* r);

/* rootn: x^(1/n), n an integer. Domain: x >= 0, or n odd. Special values: n = 0 gives NaN, x < 0 with even
   n NaN. Largest error found 1.001 ulp (OpenCL allows 16); native 7.455e+06; by directed search, 475
   million evaluations (native 94 million). */
void tarn_rootn(size_t n, const double* x, const int32_t* k, double* r);
void tarn_rootn_native(size_t n, const double* x, const int32_t* k, double* r);

/* Division and roots ------------------------------------------------------------------------------ */

/* divf: x / y. Domain: every x and y. Special values: IEEE division; the native and half forms may give a
   zero for y = +-2^126. Largest error found 0.5 ulp (OpenCL allows 2.5); native and half 5238; by directed
   search, 582 million evaluations (native by samples). Last bits may differ between processor makers
   (native and half). Native keeps its error for x from -3 to 3 and y from -8.5e+37 to 8.5e+37. */
void tarn_divf(size_t n, const float* x, const float* y, float* r);
void tarn_divf_native(size_t n, const float* x, const float* y, float* r);
void tarn_divf_half(size_t n, const float* x, const float* y, float* r);

/* div: x / y. Domain: every x and y. Special values: IEEE division. Largest error found 0.5 ulp; native
   0.5; by directed search, 308 million evaluations (native 454 million). */
void tarn_div(size_t n, const double* x, const double* y, double* r);
void tarn_div_native(size_t n, const double* x, const double* y, double* r);

/* invf: 1 / x. Domain: every x. Special values: IEEE division. Worst error 0.5 ulp (OpenCL allows 2.5);
   native and half 4996; measured over all inputs (native: on an Intel processor). Last bits may differ
   between processor makers (native and half). */
void tarn_invf(size_t n, const float* x, float* r);
void tarn_invf_native(size_t n, const float* x, float* r);
void tarn_invf_half(size_t n, const float* x, float* r);

/* inv: 1 / x. Domain: every x. Special values: IEEE division. Largest error found 0.5 ulp; native 0.5; by
   directed search, 393 million evaluations (native 521 million). */
void tarn_inv(size_t n, const double* x, double* r);
void tarn_inv_native(size_t n, const double* x, double* r);

/* sqrtf: x^(1/2). Domain: x >= 0. Special values: -0 gives -0, x < 0 NaN; in the native and half forms
   zeros and +inf give NaN, subnormals +inf. Worst error 0.8104 ulp (OpenCL allows 3); native and half 4156;
   measured over all inputs, the full form on an Intel processor. Last bits may differ between processor
   makers (full, native and half). Native keeps its error for x from 1.2e-38 to 3.4e+38. */
void tarn_sqrtf(size_t n, const float* x, float* r);
void tarn_sqrtf_native(size_t n, const float* x, float* r);
void tarn_sqrtf_half(size_t n, const float* x, float* r);

/* sqrt: x^(1/2). Domain: x >= 0. Special values: -0 gives -0, x < 0 NaN. Largest error found 0.5 ulp;
   native 0.5; by directed search, 284 million evaluations (native 536 million). */
void tarn_sqrt(size_t n, const double* x, double* r);
void tarn_sqrt_native(size_t n, const double* x, double* r);

/* rsqrtf: x^(-1/2). Domain: x > 0. Special values: zeros give an infinity of their sign, +inf +0, x < 0
   NaN. Worst error 0.9845 ulp (OpenCL allows 2); native and half 4980; measured over all inputs, on an
   Intel processor. Last bits may differ between processor makers (full, native and half). */
void tarn_rsqrtf(size_t n, const float* x, float* r);
void tarn_rsqrtf_native(size_t n, const float* x, float* r);
void tarn_rsqrtf_half(size_t n, const float* x, float* r);

/* rsqrt: x^(-1/2). Domain: x > 0. Special values: zeros give an infinity of their sign, +inf +0, x < 0 NaN.
   Largest error found 0.5 ulp (OpenCL allows 2); native 1.5; by directed search, 205 million evaluations
   (native 259 million). */
void tarn_rsqrt(size_t n, const double* x, double* r);
void tarn_rsqrt_native(size_t n, const double* x, double* r);

/* cbrtf: x^(1/3). Domain: every x. Special values: zeros and infinities come back. Worst error 0.5118 ulp
   (OpenCL allows 2); native 355.4; measured over all inputs. */
void tarn_cbrtf(size_t n, const float* x, float* r);
void tarn_cbrtf_native(size_t n, const float* x, float* r);

/* cbrt: x^(1/3). Domain: every x. Special values: zeros and infinities come back. Largest error found
   0.5204 ulp (OpenCL allows 2); native 4.159e+06; by directed search, 832 million evaluations (native 251
   million). */
void tarn_cbrt(size_t n, const double* x, double* r);
void tarn_cbrt_native(size_t n, const double* x, double* r);

/* rcbrtf: x^(-1/3). Domain: every x. Special values: zeros give an infinity and infinities a zero of their
   sign. Worst error 0.5143 ulp (OpenCL allows 2); native 888.7; measured over all inputs. */
void tarn_rcbrtf(size_t n, const float* x, float* r);
void tarn_rcbrtf_native(size_t n, const float* x, float* r);

/* rcbrt: x^(-1/3). Domain: every x. Special values: zeros give an infinity and infinities a zero of their
   sign. Largest error found 0.5207 ulp (OpenCL allows 2); native 1.818e+07; by directed search, 615 million
   evaluations (native 249 million). */
void tarn_rcbrt(size_t n, const double* x, double* r);
void tarn_rcbrt_native(size_t n, const double* x, double* r);

/* hypotf: (x^2 + y^2)^(1/2). Domain: every x and y. Special values: an infinity gives +inf, also beside a
   NaN; in the native form infinities, and sums of squares beyond the range, give NaN. Largest error found
   1.466 ulp (OpenCL allows 4); native 4156; by directed search, 1850 million evaluations (native by 60
   million samples). Last bits may differ between processor makers (full and native). Native keeps its error
   for x from 1e-15 to 1e+18 and y from 1e-15 to 1e+18. */
void tarn_hypotf(size_t n, const float* x, const float* y, float* r);
void tarn_hypotf_native(size_t n, const float* x, const float* y, float* r);

/* hypot: (x^2 + y^2)^(1/2). Domain: every x and y. Special values: an infinity gives +inf, also beside a
   NaN; in the native form sums of squares beyond the range are lost, and a NaN gives NaN. Largest error
   found 1.221 ulp (OpenCL allows 4); native 1.217; by directed search, 1702 million evaluations (native 269
   million). Native keeps its error for x from 1e-130 to 1e+150 and y from 1e-130 to 1e+150. */
void tarn_hypot(size_t n, const double* x, const double* y, double* r);
void tarn_hypot_native(size_t n, const double* x, const double* y, double* r);

/* Trigonometry ------------------------------------------------------------------------------------ */

/* sinf: sin x. Domain: radians, every finite x. Special values: infinities give NaN; zeros keep their sign.
   Worst error 2.474 ulp (OpenCL allows 4); native and half 2321; measured over all inputs. */
void tarn_sinf(size_t n, const float* x, float* r);
void tarn_sinf_native(size_t n, const float* x, float* r);
void tarn_sinf_half(size_t n, const float* x, float* r);

/* sin: sin x. Domain: radians, every finite x. Special values: infinities give NaN; zeros keep their sign.
   Largest error found 3.821 ulp, proved at most 4.0194 on the fast path (OpenCL allows 4); native
   5.453e+07; by directed search, 1969 million evaluations (native 192 million). */
void tarn_sin(size_t n, const double* x, double* r);
void tarn_sin_native(size_t n, const double* x, double* r);

/* cosf: cos x. Domain: radians, every finite x. Special values: infinities give NaN. Worst error 2.387 ulp
   (OpenCL allows 4); native and half 2349; measured over all inputs. */
void tarn_cosf(size_t n, const float* x, float* r);
void tarn_cosf_native(size_t n, const float* x, float* r);
void tarn_cosf_half(size_t n, const float* x, float* r);

/* cos: cos x. Domain: radians, every finite x. Special values: infinities give NaN. Largest error found
   3.802 ulp, proved at most 3.8474 on the fast path (OpenCL allows 4); native 5.453e+07; by directed
   search, 3074 million evaluations (native 503 million). */
void tarn_cos(size_t n, const double* x, double* r);
void tarn_cos_native(size_t n, const double* x, double* r);

/* sincosf: sin x, and cos x through the pointer. Domain: radians, every finite x. Special values: as sin
   and cos. Worst error 2.474 ulp (OpenCL allows 4); native 2321; measured over all inputs. */
void tarn_sincosf(size_t n, const float* x, float* sine, float* cosine);
void tarn_sincosf_native(size_t n, const float* x, float* sine, float* cosine);

/* sincos: sin x, and cos x through the pointer. Domain: radians, every finite x. Special values: as sin and
   cos. Largest error found 3.803 ulp (OpenCL allows 4); native 5.453e+07; by directed search, 331 million
   evaluations (native 355 million). */
void tarn_sincos(size_t n, const double* x, double* sine, double* cosine);
void tarn_sincos_native(size_t n, const double* x, double* sine, double* cosine);

/* sincosregf: sin x and cos x. Domain: radians, every finite x. Special values: as sin and cos. Worst error
   2.474 ulp (OpenCL allows 4); native 2321; measured over all inputs. */
void tarn_sincosregf(size_t n, const float* x, float* sine, float* cosine);
void tarn_sincosregf_native(size_t n, const float* x, float* sine, float* cosine);

/* sincosreg: sin x and cos x. Domain: radians, every finite x. Special values: as sin and cos. Largest
   error found 3.803 ulp (OpenCL allows 4); native 5.453e+07; by directed search, 182 million evaluations
   (native 125 million). */
void tarn_sincosreg(size_t n, const double* x, double* sine, double* cosine);
void tarn_sincosreg_native(size_t n, const double* x, double* sine, double* cosine);

/* tanf: tan x. Domain: radians, every finite x. Special values: infinities give NaN; zeros keep their sign.
   Worst error 4.556 ulp (OpenCL allows 5); native and half 5203; measured over all inputs, above 8256 of
   one sign. Last bits may differ between processor makers (full, native and half). */
void tarn_tanf(size_t n, const float* x, float* r);
void tarn_tanf_native(size_t n, const float* x, float* r);
void tarn_tanf_half(size_t n, const float* x, float* r);

/* tan: tan x. Domain: radians, every finite x. Special values: infinities give NaN; zeros keep their sign.
   Largest error found 5.012 ulp, proved at most 5.3542 on the fast path (OpenCL allows 5, exceeded); native
   2.261e+05; by directed search, 1644 million evaluations (native 363 million). */
void tarn_tan(size_t n, const double* x, double* r);
void tarn_tan_native(size_t n, const double* x, double* r);

/* sinpif: sin(pi x). Domain: half turns, every finite x. Special values: infinities give NaN; integers a
   zero with the sign of x. Worst error 2.131 ulp (OpenCL allows 4); native 2280; measured over all inputs. */
void tarn_sinpif(size_t n, const float* x, float* r);
void tarn_sinpif_native(size_t n, const float* x, float* r);

/* sinpi: sin(pi x). Domain: half turns, every finite x. Special values: infinities give NaN; integers a
   zero with the sign of x. Largest error found 3.663 ulp (OpenCL allows 4); native 5.453e+07; by directed
   search, 477 million evaluations (native 180 million). */
void tarn_sinpi(size_t n, const double* x, double* r);
void tarn_sinpi_native(size_t n, const double* x, double* r);

/* cospif: cos(pi x). Domain: half turns, every finite x. Special values: infinities give NaN; half-integers
   +0. Worst error 2.109 ulp (OpenCL allows 4); native 2280; measured over all inputs. */
void tarn_cospif(size_t n, const float* x, float* r);
void tarn_cospif_native(size_t n, const float* x, float* r);

/* cospi: cos(pi x). Domain: half turns, every finite x. Special values: infinities give NaN; half-integers
   +0. Largest error found 3.683 ulp (OpenCL allows 4); native 5.453e+07; by directed search, 468 million
   evaluations (native 182 million). */
void tarn_cospi(size_t n, const double* x, double* r);
void tarn_cospi_native(size_t n, const double* x, double* r);

/* tanpif: tan(pi x). Domain: half turns, every finite x. Special values: infinities give NaN; tanpi(n) is
   copysign(0, n) for even n, copysign(0, -n) for odd n. Worst error 1.908 ulp (OpenCL allows 6); native
   5197; measured over all inputs up to 2^24; integers beyond. Last bits may differ between processor makers
   (full and native). */
void tarn_tanpif(size_t n, const float* x, float* r);
void tarn_tanpif_native(size_t n, const float* x, float* r);

/* tanpi: tan(pi x). Domain: half turns, every finite x. Special values: infinities give NaN; tanpi(n) is
   copysign(0, n) for even n, copysign(0, -n) for odd n. Largest error found 5.184 ulp (OpenCL allows 6);
   native 2.261e+05; by directed search, 2088 million evaluations (native 104 million). */
void tarn_tanpi(size_t n, const double* x, double* r);
void tarn_tanpi_native(size_t n, const double* x, double* r);

/* Inverse trigonometry ---------------------------------------------------------------------------- */

/* asinf: arcsin x. Domain: |x| <= 1; radians. Special values: beyond 1 NaN; zeros keep their sign. Worst
   error 2.274 ulp (OpenCL allows 4); native 4952; measured over all inputs (native: on an Intel processor).
   Last bits may differ between processor makers (native). */
void tarn_asinf(size_t n, const float* x, float* r);
void tarn_asinf_native(size_t n, const float* x, float* r);

/* asin: arcsin x. Domain: |x| <= 1; radians. Special values: beyond 1 NaN; zeros keep their sign. Largest
   error found 2.196 ulp (OpenCL allows 4); native 4.571e+07; by directed search, 757 million evaluations
   (native 102 million). */
void tarn_asin(size_t n, const double* x, double* r);
void tarn_asin_native(size_t n, const double* x, double* r);

/* acosf: arccos x. Domain: |x| <= 1; radians. Special values: beyond 1 NaN; acos(1) is +0. Worst error
   1.238 ulp (OpenCL allows 4); native 4691; measured over all inputs (native: on an Intel processor). Last
   bits may differ between processor makers (native). */
void tarn_acosf(size_t n, const float* x, float* r);
void tarn_acosf_native(size_t n, const float* x, float* r);

/* acos: arccos x. Domain: |x| <= 1; radians. Special values: beyond 1 NaN; acos(1) is +0. Largest error
   found 1.329 ulp (OpenCL allows 4); native 4.363e+07; by directed search, 815 million evaluations (native
   127 million). */
void tarn_acos(size_t n, const double* x, double* r);
void tarn_acos_native(size_t n, const double* x, double* r);

/* atanf: arctan x. Domain: every x; radians. Special values: infinities give +-pi/2; zeros keep their sign.
   Worst error 3.752 ulp (OpenCL allows 5); native 2912; measured over all inputs (native: of one sign, from
   0.1 to 10000). Last bits may differ between processor makers (native). */
void tarn_atanf(size_t n, const float* x, float* r);
void tarn_atanf_native(size_t n, const float* x, float* r);

/* atan: arctan x. Domain: every x; radians. Special values: infinities give +-pi/2; zeros keep their sign.
   Largest error found 2.201 ulp (OpenCL allows 5); native 2.3e+07; by directed search, 2232 million
   evaluations (native 477 million; width 2 3773 million). */
void tarn_atan(size_t n, const double* x, double* r);
void tarn_atan_native(size_t n, const double* x, double* r);

/* atan2f: the angle of the point (y, x); first argument y. Domain: every y and x; radians. Special values:
   C99 Annex F. Largest error found 4.014 ulp (OpenCL allows 6); native 5585; by directed search, 461
   million evaluations (native by samples). Last bits may differ between processor makers (native). */
void tarn_atan2f(size_t n, const float* x, const float* y, float* r);
void tarn_atan2f_native(size_t n, const float* x, const float* y, float* r);

/* atan2: the angle of the point (y, x); first argument y. Domain: every y and x; radians. Special values:
   C99 Annex F. Largest error found 3.193 ulp (OpenCL allows 6); native 2.013e+07; by directed search, 566
   million evaluations (native 358 million; width 2 771 million). */
void tarn_atan2(size_t n, const double* x, const double* y, double* r);
void tarn_atan2_native(size_t n, const double* x, const double* y, double* r);

/* asinpif: arcsin(x) / pi. Domain: |x| <= 1; half turns. Special values: beyond 1 NaN; zeros keep their
   sign. Worst error 3.208 ulp (OpenCL allows 5); native 845; measured over all inputs. */
void tarn_asinpif(size_t n, const float* x, float* r);
void tarn_asinpif_native(size_t n, const float* x, float* r);

/* asinpi: arcsin(x) / pi. Domain: |x| <= 1; half turns. Special values: beyond 1 NaN; zeros keep their
   sign. Largest error found 3.033 ulp (OpenCL allows 5); native 5.82e+07; by directed search, 627 million
   evaluations (native 354 million). */
void tarn_asinpi(size_t n, const double* x, double* r);
void tarn_asinpi_native(size_t n, const double* x, double* r);

/* acospif: arccos(x) / pi. Domain: |x| <= 1; half turns. Special values: beyond 1 NaN; acospi(1) is +0.
   Worst error 2.457 ulp (OpenCL allows 5); native 5492; measured over all inputs (native: on an Intel
   processor). Last bits may differ between processor makers (native). */
void tarn_acospif(size_t n, const float* x, float* r);
void tarn_acospif_native(size_t n, const float* x, float* r);

/* acospi: arccos(x) / pi. Domain: |x| <= 1; half turns. Special values: beyond 1 NaN; acospi(1) is +0.
   Largest error found 1.928 ulp (OpenCL allows 5); native 4.125e+07; by directed search, 582 million
   evaluations (native 289 million). */
void tarn_acospi(size_t n, const double* x, double* r);
void tarn_acospi_native(size_t n, const double* x, double* r);

/* atanpif: arctan(x) / pi. Domain: every x; half turns. Special values: infinities give +-0.5; zeros keep
   their sign. Worst error 3.607 ulp (OpenCL allows 5); native 1854; measured over all inputs (native: every
   third from 0.1 to 10000). Last bits may differ between processor makers (full and native). */
void tarn_atanpif(size_t n, const float* x, float* r);
void tarn_atanpif_native(size_t n, const float* x, float* r);

/* atanpi: arctan(x) / pi. Domain: every x; half turns. Special values: infinities give +-0.5; zeros keep
   their sign. Largest error found 1.961 ulp (OpenCL allows 5); native 2.318e+07; by directed search, 502
   million evaluations (native 251 million). */
void tarn_atanpi(size_t n, const double* x, double* r);
void tarn_atanpi_native(size_t n, const double* x, double* r);

/* atan2pif: the angle of the point (y, x) over pi; first argument y. Domain: every y and x; half turns.
   Special values: as atan2, divided by pi. Largest error found 3.288 ulp (OpenCL allows 6); native 5578; by
   directed search, 464 million evaluations (native by samples). Last bits may differ between processor
   makers (native). */
void tarn_atan2pif(size_t n, const float* x, const float* y, float* r);
void tarn_atan2pif_native(size_t n, const float* x, const float* y, float* r);

/* atan2pi: the angle of the point (y, x) over pi; first argument y. Domain: every y and x; half turns.
   Special values: as atan2, divided by pi. Largest error found 2.6 ulp (OpenCL allows 6); native 2.542e+07;
   by directed search, 649 million evaluations (native 133 million). */
void tarn_atan2pi(size_t n, const double* x, const double* y, double* r);
void tarn_atan2pi_native(size_t n, const double* x, const double* y, double* r);

/* Hyperbolic functions ---------------------------------------------------------------------------- */

/* sinhf: (e^x - e^-x) / 2. Domain: every x. Special values: infinities and zeros come back. Worst error
   2.024 ulp (OpenCL allows 4); native 1079; measured over all inputs. */
void tarn_sinhf(size_t n, const float* x, float* r);
void tarn_sinhf_native(size_t n, const float* x, float* r);

/* sinh: (e^x - e^-x) / 2. Domain: every x. Special values: infinities and zeros come back. Largest error
   found 2.143 ulp (OpenCL allows 4); native 2.517e+04; by directed search, 172 million evaluations (native
   60 million). */
void tarn_sinh(size_t n, const double* x, double* r);
void tarn_sinh_native(size_t n, const double* x, double* r);

/* coshf: (e^x + e^-x) / 2. Domain: every x. Special values: infinities give +inf. Worst error 1.841 ulp
   (OpenCL allows 4); native 427.3; measured over all inputs. */
void tarn_coshf(size_t n, const float* x, float* r);
void tarn_coshf_native(size_t n, const float* x, float* r);

/* cosh: (e^x + e^-x) / 2. Domain: every x. Special values: infinities give +inf. Largest error found 1.147
   ulp (OpenCL allows 4); native 1584; by directed search, 147 million evaluations (native 62 million). */
void tarn_cosh(size_t n, const double* x, double* r);
void tarn_cosh_native(size_t n, const double* x, double* r);

/* tanhf: sinh x / cosh x. Domain: every x. Special values: infinities give +-1; zeros keep their sign.
   Worst error 1.026 ulp (OpenCL allows 5); native 1.026; measured over all inputs. */
void tarn_tanhf(size_t n, const float* x, float* r);
void tarn_tanhf_native(size_t n, const float* x, float* r);

/* tanh: sinh x / cosh x. Domain: every x. Special values: infinities give +-1; zeros keep their sign.
   Largest error found 0.588 ulp (OpenCL allows 5); native 1.167e+07; by directed search, 139 million
   evaluations (native 73 million). */
void tarn_tanh(size_t n, const double* x, double* r);
void tarn_tanh_native(size_t n, const double* x, double* r);

/* asinhf: ln(x + (x^2 + 1)^(1/2)). Domain: every x. Special values: infinities and zeros come back. Worst
   error 1.886 ulp (OpenCL allows 4); native 1482; measured over all inputs (native: on an Intel processor).
   Last bits may differ between processor makers (native). */
void tarn_asinhf(size_t n, const float* x, float* r);
void tarn_asinhf_native(size_t n, const float* x, float* r);

/* asinh: ln(x + (x^2 + 1)^(1/2)). Domain: every x. Special values: infinities and zeros come back. Largest
   error found 0.5056 ulp (OpenCL allows 4); native 6.711e+07; by directed search, 93 million evaluations
   (native 80 million). */
void tarn_asinh(size_t n, const double* x, double* r);
void tarn_asinh_native(size_t n, const double* x, double* r);

/* acoshf: ln(x + (x^2 - 1)^(1/2)). Domain: x >= 1. Special values: below 1 NaN; +inf gives +inf. Worst
   error 2.085 ulp (OpenCL allows 4); native 4122; measured over all inputs (native: on an Intel processor).
   Last bits may differ between processor makers (native). */
void tarn_acoshf(size_t n, const float* x, float* r);
void tarn_acoshf_native(size_t n, const float* x, float* r);

/* acosh: ln(x + (x^2 - 1)^(1/2)). Domain: x >= 1. Special values: below 1 NaN; +inf gives +inf. Largest
   error found 0.5078 ulp (OpenCL allows 4); native 6.559e+04; by directed search, 87 million evaluations
   (native 66 million). */
void tarn_acosh(size_t n, const double* x, double* r);
void tarn_acosh_native(size_t n, const double* x, double* r);

/* atanhf: ln((1 + x) / (1 - x)) / 2. Domain: |x| <= 1. Special values: +-1 gives +-inf, beyond NaN; zeros
   keep their sign. Worst error 2.093 ulp (OpenCL allows 5); native 1471; measured over all inputs. Last
   bits may differ between processor makers (full and native). */
void tarn_atanhf(size_t n, const float* x, float* r);
void tarn_atanhf_native(size_t n, const float* x, float* r);

/* atanh: ln((1 + x) / (1 - x)) / 2. Domain: |x| <= 1. Special values: +-1 gives +-inf, beyond NaN; zeros
   keep their sign. Largest error found 0.5065 ulp (OpenCL allows 5); native 6.559e+04; by directed search,
   173 million evaluations (native 69 million). */
void tarn_atanh(size_t n, const double* x, double* r);
void tarn_atanh_native(size_t n, const double* x, double* r);

/* Error and gamma functions ----------------------------------------------------------------------- */

/* erff: 2/sqrt(pi) times the integral of e^(-t^2) from 0 to x. Domain: every x. Special values: infinities
   give +-1; zeros keep their sign. Worst error 1.929 ulp (OpenCL allows 16); native 68.87; measured over
   all inputs. */
void tarn_erff(size_t n, const float* x, float* r);
void tarn_erff_native(size_t n, const float* x, float* r);

/* erf: 2/sqrt(pi) times the integral of e^(-t^2) from 0 to x. Domain: every x. Special values: infinities
   give +-1; zeros keep their sign. Largest error found 2.545 ulp (OpenCL allows 16); native 1.152e+06; by
   directed search, 1407 million evaluations (native 93 million). */
void tarn_erf(size_t n, const double* x, double* r);
void tarn_erf_native(size_t n, const double* x, double* r);

/* erfcf: 1 - erf x. Domain: every x. Special values: -inf gives 2, +inf +0. Worst error 1.763 ulp (OpenCL
   allows 16); native 1250; measured over all inputs. */
void tarn_erfcf(size_t n, const float* x, float* r);
void tarn_erfcf_native(size_t n, const float* x, float* r);

/* erfc: 1 - erf x. Domain: every x. Special values: -inf gives 2, +inf +0. Largest error found 1.333 ulp
   (OpenCL allows 16); native 3.981e+06; by directed search, 96 million evaluations (native 34 million). */
void tarn_erfc(size_t n, const double* x, double* r);
void tarn_erfc_native(size_t n, const double* x, double* r);

/* tgammaf: gamma(x). Domain: x not a negative integer. Special values: zeros give an infinity of their
   sign; negative integers and -inf NaN. Worst error 0.5 ulp (OpenCL allows 16); measured over all inputs. */
void tarn_tgammaf(size_t n, const float* x, float* r);

/* tgamma: gamma(x). Domain: x not a negative integer. Special values: zeros give an infinity of their sign;
   negative integers and -inf NaN. Largest error found 0.5347 ulp (OpenCL allows 16); by directed search, 79
   million evaluations. */
void tarn_tgamma(size_t n, const double* x, double* r);

/* lgammaf: ln |gamma(x)|. Domain: every x. Special values: poles and infinities give +inf; 1 and 2 give +0.
   Worst error 0.5 ulp; measured over all inputs. */
void tarn_lgammaf(size_t n, const float* x, float* r);

/* lgamma: ln |gamma(x)|. Domain: every x. Special values: poles and infinities give +inf; 1 and 2 give +0.
   Largest error found 0.7123 ulp; by directed search, 474 million evaluations. */
void tarn_lgamma(size_t n, const double* x, double* r);

/* lgammarf: ln |gamma(x)|, and the sign of gamma(x) through the pointer. Domain: every x. Special values:
   as lgamma; the sign is +1 at poles, -1 at -0. Worst error 0.5 ulp; measured over all inputs. */
void tarn_lgammarf(size_t n, const float* x, float* r, int32_t* second);

/* lgammar: ln |gamma(x)|, and the sign of gamma(x) through the pointer. Domain: every x. Special values: as
   lgamma; the sign is +1 at poles, -1 at -0. Largest error found 0.7123 ulp; by directed search, 336
   million evaluations. */
void tarn_lgammar(size_t n, const double* x, double* r, int32_t* second);

/* Rounding, sign and bit-level functions ---------------------------------------------------------- */

/* ceilf: x rounded up to an integer. Domain: every x. Special values: infinities and zeros come back.
   Exact, or rounded once. */
void tarn_ceilf(size_t n, const float* x, float* r);

/* ceil: x rounded up to an integer. Domain: every x. Special values: infinities and zeros come back. Exact,
   or rounded once. */
void tarn_ceil(size_t n, const double* x, double* r);

/* floorf: x rounded down to an integer. Domain: every x. Special values: infinities and zeros come back.
   Exact, or rounded once. */
void tarn_floorf(size_t n, const float* x, float* r);

/* floor: x rounded down to an integer. Domain: every x. Special values: infinities and zeros come back.
   Exact, or rounded once. */
void tarn_floor(size_t n, const double* x, double* r);

/* truncf: x rounded toward zero to an integer. Domain: every x. Special values: infinities and zeros come
   back. Exact, or rounded once. */
void tarn_truncf(size_t n, const float* x, float* r);

/* trunc: x rounded toward zero to an integer. Domain: every x. Special values: infinities and zeros come
   back. Exact, or rounded once. */
void tarn_trunc(size_t n, const double* x, double* r);

/* rintf: x rounded to an integer in the current mode. Domain: every x. Special values: raises inexact.
   Exact, or rounded once. */
void tarn_rintf(size_t n, const float* x, float* r);

/* rint: x rounded to an integer in the current mode. Domain: every x. Special values: raises inexact.
   Exact, or rounded once. */
void tarn_rint(size_t n, const double* x, double* r);

/* nearbyintf: x rounded to an integer in the current mode. Domain: every x. Special values: does not raise
   inexact. Exact, or rounded once. */
void tarn_nearbyintf(size_t n, const float* x, float* r);

/* nearbyint: x rounded to an integer in the current mode. Domain: every x. Special values: does not raise
   inexact. Exact, or rounded once. */
void tarn_nearbyint(size_t n, const double* x, double* r);

/* roundf: x rounded to an integer, half away from zero. Domain: every x. Special values: infinities and
   zeros come back. Exact, or rounded once. */
void tarn_roundf(size_t n, const float* x, float* r);

/* round: x rounded to an integer, half away from zero. Domain: every x. Special values: infinities and
   zeros come back. Exact, or rounded once. */
void tarn_round(size_t n, const double* x, double* r);

/* fabsf: |x|. Domain: every x. Special values: clears the sign of a NaN too. Exact, or rounded once. */
void tarn_fabsf(size_t n, const float* x, float* r);

/* fabs: |x|. Domain: every x. Special values: clears the sign of a NaN too. Exact, or rounded once. */
void tarn_fabs(size_t n, const double* x, double* r);

/* copysignf: |x| with the sign of y. Domain: every x and y. Special values: carries the sign of a NaN too.
   Exact, or rounded once. */
void tarn_copysignf(size_t n, const float* x, const float* y, float* r);

/* copysign: |x| with the sign of y. Domain: every x and y. Special values: carries the sign of a NaN too.
   Exact, or rounded once. */
void tarn_copysign(size_t n, const double* x, const double* y, double* r);

/* nanf: a quiet NaN with the payload x. Domain: every code. Exact, or rounded once. */
void tarn_nanf(size_t n, const uint32_t* x, float* r);

/* nan: a quiet NaN with the payload x. Domain: every code. Exact, or rounded once. */
void tarn_nan(size_t n, const uint64_t* x, double* r);

/* fminf: the smaller of x and y. Domain: every x and y. Special values: one NaN is ignored; of two zeros y
   comes back. Exact, or rounded once. */
void tarn_fminf(size_t n, const float* x, const float* y, float* r);

/* fmin: the smaller of x and y. Domain: every x and y. Special values: one NaN is ignored; of two zeros y
   comes back. Exact, or rounded once. */
void tarn_fmin(size_t n, const double* x, const double* y, double* r);

/* fmaxf: the larger of x and y. Domain: every x and y. Special values: one NaN is ignored; of two zeros y
   comes back. Exact, or rounded once. */
void tarn_fmaxf(size_t n, const float* x, const float* y, float* r);

/* fmax: the larger of x and y. Domain: every x and y. Special values: one NaN is ignored; of two zeros y
   comes back. Exact, or rounded once. */
void tarn_fmax(size_t n, const double* x, const double* y, double* r);

/* maxmagf: the one larger in magnitude. Domain: every x and y. Special values: equal magnitudes as fmax(y,
   x); one NaN is ignored. Exact, or rounded once. */
void tarn_maxmagf(size_t n, const float* x, const float* y, float* r);

/* maxmag: the one larger in magnitude. Domain: every x and y. Special values: equal magnitudes as fmax(y,
   x); one NaN is ignored. Exact, or rounded once. */
void tarn_maxmag(size_t n, const double* x, const double* y, double* r);

/* minmagf: the one smaller in magnitude. Domain: every x and y. Special values: equal magnitudes as fmin(y,
   x); one NaN is ignored. Exact, or rounded once. */
void tarn_minmagf(size_t n, const float* x, const float* y, float* r);

/* minmag: the one smaller in magnitude. Domain: every x and y. Special values: equal magnitudes as fmin(y,
   x); one NaN is ignored. Exact, or rounded once. */
void tarn_minmag(size_t n, const double* x, const double* y, double* r);

/* fdimf: x - y where x > y, else +0. Domain: every x and y. Special values: a NaN gives NaN; (+inf, -inf)
   +inf. Exact, or rounded once. */
void tarn_fdimf(size_t n, const float* x, const float* y, float* r);

/* fdim: x - y where x > y, else +0. Domain: every x and y. Special values: a NaN gives NaN. Exact, or
   rounded once. */
void tarn_fdim(size_t n, const double* x, const double* y, double* r);

/* frexpf: m in [0.5, 1) with x = m 2^e, and e through the pointer. Domain: every x. Special values: zeros,
   infinities and NaN come back with e = 0. Exact, or rounded once. */
void tarn_frexpf(size_t n, const float* x, float* r, int32_t* second);

/* frexp: m in [0.5, 1) with x = m 2^e, and e through the pointer. Domain: every x. Special values: zeros,
   infinities and NaN come back with e = 0. Exact, or rounded once. */
void tarn_frexp(size_t n, const double* x, double* r, int32_t* second);

/* ilogbf: the exponent of x. Domain: every x. Special values: 0 gives INT_MIN, infinities and NaN INT_MAX.
   Exact, or rounded once. */
void tarn_ilogbf(size_t n, const float* x, int32_t* r);

/* ilogb: the exponent of x. Domain: every x. Special values: 0 gives INT_MIN, infinities and NaN INT_MAX.
   Exact, or rounded once. */
void tarn_ilogb(size_t n, const double* x, int32_t* r);

/* logbf: the exponent of x. Domain: every x. Special values: zeros give -inf, infinities +inf. Exact, or
   rounded once. */
void tarn_logbf(size_t n, const float* x, float* r);

/* logb: the exponent of x. Domain: every x. Special values: zeros give -inf, infinities +inf. Exact, or
   rounded once. */
void tarn_logb(size_t n, const double* x, double* r);

/* fractf: x - floor x, below 1, and floor x through the pointer. Domain: every x. Special values: zeros
   keep their sign; +inf gives +0, -inf -0. Exact, or rounded once. */
void tarn_fractf(size_t n, const float* x, float* r, float* second);

/* fract: x - floor x, below 1, and floor x through the pointer. Domain: every x. Special values: zeros keep
   their sign; +inf gives +0, -inf -0. Exact, or rounded once. */
void tarn_fract(size_t n, const double* x, double* r, double* second);

/* modff: the fraction of x, and its integral part through the pointer. Domain: every x. Special values:
   both with the sign of x; infinities give +-0. Exact, or rounded once. */
void tarn_modff(size_t n, const float* x, float* r, float* second);

/* modf: the fraction of x, and its integral part through the pointer. Domain: every x. Special values: both
   with the sign of x; infinities give +-0. Exact, or rounded once. */
void tarn_modf(size_t n, const double* x, double* r, double* second);

/* ldexpf: x 2^n. Domain: every x and n. Special values: one rounding; zeros, infinities and NaN come back.
   Exact, or rounded once. */
void tarn_ldexpf(size_t n, const float* x, const int32_t* k, float* r);

/* ldexp: x 2^n. Domain: every x and n. Special values: one rounding; zeros, infinities and NaN come back.
   Exact, or rounded once. */
void tarn_ldexp(size_t n, const double* x, const int32_t* k, double* r);

/* nextafterf: the neighbour of x toward y. Domain: every x and y. Special values: x = y gives y; a NaN
   gives NaN. Exact, or rounded once. */
void tarn_nextafterf(size_t n, const float* x, const float* y, float* r);

/* nextafter: the neighbour of x toward y. Domain: every x and y. Special values: x = y gives y; a NaN gives
   NaN. Exact, or rounded once. */
void tarn_nextafter(size_t n, const double* x, const double* y, double* r);

/* Remainders and multiply-add --------------------------------------------------------------------- */

/* fmodf: x - n y, n = x/y toward zero. Domain: x finite, y not zero. Special values: exact; the sign of x;
   infinite y gives x. Exact, or rounded once. */
void tarn_fmodf(size_t n, const float* x, const float* y, float* r);

/* fmod: x - n y, n = x/y toward zero. Domain: x finite, y not zero. Special values: exact; the sign of x;
   infinite y gives x. Exact, or rounded once. */
void tarn_fmod(size_t n, const double* x, const double* y, double* r);

/* remainderf: x - n y, n = x/y to nearest even. Domain: x finite, y not zero. Special values: exact; a zero
   has the sign of x; infinite y gives x. Exact, or rounded once. */
void tarn_remainderf(size_t n, const float* x, const float* y, float* r);

/* remainder: x - n y, n = x/y to nearest even. Domain: x finite, y not zero. Special values: exact; a zero
   has the sign of x; infinite y gives x. Exact, or rounded once. */
void tarn_remainder(size_t n, const double* x, const double* y, double* r);

/* remquof: as remainder, and n through the pointer. Domain: x finite, y not zero. Special values: n: sign
   and at least the low 7 bits; 0 with a NaN result. Exact, or rounded once. */
void tarn_remquof(size_t n, const float* x, const float* y, float* r, int32_t* second);

/* remquo: as remainder, and n through the pointer. Domain: x finite, y not zero. Special values: n: sign
   and at least the low 7 bits; 0 with a NaN result. Exact, or rounded once. */
void tarn_remquo(size_t n, const double* x, const double* y, double* r, int32_t* second);

/* madf: (x y) + z, rounded twice. Domain: every x, y and z. Special values: IEEE product and sum. */
void tarn_madf(size_t n, const float* x, const float* y, const float* z, float* r);

/* mad: (x y) + z, rounded twice. Domain: every x, y and z. Special values: IEEE product and sum. */
void tarn_mad(size_t n, const double* x, const double* y, const double* z, double* r);

/* fmaf: x y + z, rounded once, in the direction of the x87 control word. Domain: every x, y and z. Special
   values: IEEE fused multiply-add. Exact, or rounded once. */
void tarn_fmaf(size_t n, const float* x, const float* y, const float* z, float* r);

/* fma: x y + z, rounded once, in the direction of the x87 control word. Domain: every x, y and z. Special
   values: IEEE fused multiply-add. Exact, or rounded once. */
void tarn_fma(size_t n, const double* x, const double* y, const double* z, double* r);

/* Conversions ------------------------------------------------------------------------------------- */

/* cvtfptoi32rtesatf: x rounded to nearest, ties to even. Special values: Clamped to the integer's range; a
   NaN gives 0. Exact, or rounded once. */
void tarn_cvtfptoi32rtesatf(size_t n, const float* x, int32_t* r);

/* cvtfptoi32rtenosatf: x rounded to nearest, ties to even. Special values: Out of range and NaN 0x80000000.
   Exact, or rounded once. */
void tarn_cvtfptoi32rtenosatf(size_t n, const float* x, int32_t* r);

/* cvtfptoi32rtnsatf: x rounded down. Special values: Clamped to the integer's range; a NaN gives 0. Exact,
   or rounded once. */
void tarn_cvtfptoi32rtnsatf(size_t n, const float* x, int32_t* r);

/* cvtfptoi32rtnnosatf: x rounded down. Special values: Out of range and NaN 0x80000000. Exact, or rounded
   once. */
void tarn_cvtfptoi32rtnnosatf(size_t n, const float* x, int32_t* r);

/* cvtfptoi32rtpsatf: x rounded up. Special values: Clamped to the integer's range; a NaN gives 0. Exact, or
   rounded once. */
void tarn_cvtfptoi32rtpsatf(size_t n, const float* x, int32_t* r);

/* cvtfptoi32rtpnosatf: x rounded up. Special values: Out of range and NaN 0x80000000. Exact, or rounded
   once. */
void tarn_cvtfptoi32rtpnosatf(size_t n, const float* x, int32_t* r);

/* cvtfptoi32rtzsatf: x rounded toward zero. Special values: Clamped to the integer's range; a NaN gives 0.
   Exact, or rounded once. */
void tarn_cvtfptoi32rtzsatf(size_t n, const float* x, int32_t* r);

/* cvtfptoi32rtznosatf: x rounded toward zero. Special values: Out of range and NaN 0x80000000. Exact, or
   rounded once. */
void tarn_cvtfptoi32rtznosatf(size_t n, const float* x, int32_t* r);

/* cvtfptou32rtesatf: x rounded to nearest, ties to even. Special values: Clamped to the integer's range; a
   NaN gives all ones, or 0 with its sign set. Exact, or rounded once. */
void tarn_cvtfptou32rtesatf(size_t n, const float* x, uint32_t* r);

/* cvtfptou32rtenosatf: x rounded to nearest, ties to even. Special values: The sign is dropped; from 2^32
   on and NaN 0x80000000. Exact, or rounded once. */
void tarn_cvtfptou32rtenosatf(size_t n, const float* x, uint32_t* r);

/* cvtfptou32rtnsatf: x rounded down. Special values: Clamped to the integer's range; a NaN gives all ones,
   or 0 with its sign set. Exact, or rounded once. */
void tarn_cvtfptou32rtnsatf(size_t n, const float* x, uint32_t* r);

/* cvtfptou32rtnnosatf: x rounded down. Special values: The sign is dropped; from 2^32 on and NaN
   0x80000000. Exact, or rounded once. */
void tarn_cvtfptou32rtnnosatf(size_t n, const float* x, uint32_t* r);

/* cvtfptou32rtpsatf: x rounded up. Special values: Clamped to the integer's range; a NaN gives all ones, or
   0 with its sign set. Exact, or rounded once. */
void tarn_cvtfptou32rtpsatf(size_t n, const float* x, uint32_t* r);

/* cvtfptou32rtpnosatf: x rounded up. Special values: The sign is dropped; from 2^32 on and NaN 0x80000000.
   Exact, or rounded once. */
void tarn_cvtfptou32rtpnosatf(size_t n, const float* x, uint32_t* r);

/* cvtfptou32rtzsatf: x rounded toward zero. Special values: Clamped to the integer's range; a NaN gives all
   ones, or 0 with its sign set. Exact, or rounded once. */
void tarn_cvtfptou32rtzsatf(size_t n, const float* x, uint32_t* r);

/* cvtfptou32rtznosatf: x rounded toward zero. Special values: The sign is dropped; from 2^32 on and NaN
   0x80000000. Exact, or rounded once. */
void tarn_cvtfptou32rtznosatf(size_t n, const float* x, uint32_t* r);

/* cvtfptoi64rtesatf: x rounded to nearest, ties to even. Special values: Clamped to the integer's range; a
   NaN gives 0. Exact, or rounded once. */
void tarn_cvtfptoi64rtesatf(size_t n, const float* x, int64_t* r);

/* cvtfptoi64rtenosatf: x rounded to nearest, ties to even. Special values: Out of range and NaN
   0x8000000000000000. Exact, or rounded once. */
void tarn_cvtfptoi64rtenosatf(size_t n, const float* x, int64_t* r);

/* cvtfptoi64rtnsatf: x rounded down. Special values: Clamped to the integer's range; a NaN gives 0. Exact,
   or rounded once. */
void tarn_cvtfptoi64rtnsatf(size_t n, const float* x, int64_t* r);

/* cvtfptoi64rtnnosatf: x rounded down. Special values: Out of range and NaN 0x8000000000000000. Exact, or
   rounded once. */
void tarn_cvtfptoi64rtnnosatf(size_t n, const float* x, int64_t* r);

/* cvtfptoi64rtpsatf: x rounded up. Special values: Clamped to the integer's range; a NaN gives 0. Exact, or
   rounded once. */
void tarn_cvtfptoi64rtpsatf(size_t n, const float* x, int64_t* r);

/* cvtfptoi64rtpnosatf: x rounded up. Special values: Out of range and NaN 0x8000000000000000. Exact, or
   rounded once. */
void tarn_cvtfptoi64rtpnosatf(size_t n, const float* x, int64_t* r);

/* cvtfptoi64rtzsatf: x rounded toward zero. Special values: Clamped to the integer's range; a NaN gives 0.
   Exact, or rounded once. */
void tarn_cvtfptoi64rtzsatf(size_t n, const float* x, int64_t* r);

/* cvtfptoi64rtznosatf: x rounded toward zero. Special values: Out of range and NaN 0x8000000000000000.
   Exact, or rounded once. */
void tarn_cvtfptoi64rtznosatf(size_t n, const float* x, int64_t* r);

/* cvtfptou64rtesatf: x rounded to nearest, ties to even. Special values: Clamped to the integer's range; a
   NaN gives 0. Exact, or rounded once. */
void tarn_cvtfptou64rtesatf(size_t n, const float* x, uint64_t* r);

/* cvtfptou64rtenosatf: x rounded to nearest, ties to even. Special values: Out of range and NaN
   0x8000000000000000. Exact, or rounded once. */
void tarn_cvtfptou64rtenosatf(size_t n, const float* x, uint64_t* r);

/* cvtfptou64rtnsatf: x rounded down. Special values: Clamped to the integer's range; a NaN gives 0. Exact,
   or rounded once. */
void tarn_cvtfptou64rtnsatf(size_t n, const float* x, uint64_t* r);

/* cvtfptou64rtnnosatf: x rounded down. Special values: Out of range and NaN 0x8000000000000000. Exact, or
   rounded once. */
void tarn_cvtfptou64rtnnosatf(size_t n, const float* x, uint64_t* r);

/* cvtfptou64rtpsatf: x rounded up. Special values: Clamped to the integer's range; a NaN gives 0. Exact, or
   rounded once. */
void tarn_cvtfptou64rtpsatf(size_t n, const float* x, uint64_t* r);

/* cvtfptou64rtpnosatf: x rounded up. Special values: Out of range and NaN 0x8000000000000000. Exact, or
   rounded once. */
void tarn_cvtfptou64rtpnosatf(size_t n, const float* x, uint64_t* r);

/* cvtfptou64rtzsatf: x rounded toward zero. Special values: Clamped to the integer's range; a NaN gives 0.
   Exact, or rounded once. */
void tarn_cvtfptou64rtzsatf(size_t n, const float* x, uint64_t* r);

/* cvtfptou64rtznosatf: x rounded toward zero. Special values: Out of range and NaN 0x8000000000000000.
   Exact, or rounded once. */
void tarn_cvtfptou64rtznosatf(size_t n, const float* x, uint64_t* r);

/* cvtfptoi32rtesat: x rounded to nearest, ties to even. Special values: Clamped to the integer's range; a
   NaN gives 0. Exact, or rounded once. */
void tarn_cvtfptoi32rtesat(size_t n, const double* x, int32_t* r);

/* cvtfptoi32rtenosat: x rounded to nearest, ties to even. Special values: Out of range and NaN 0x80000000.
   Exact, or rounded once. */
void tarn_cvtfptoi32rtenosat(size_t n, const double* x, int32_t* r);

/* cvtfptoi32rtnsat: x rounded down. Special values: Clamped to the integer's range; a NaN gives 0. Exact,
   or rounded once. */
void tarn_cvtfptoi32rtnsat(size_t n, const double* x, int32_t* r);

/* cvtfptoi32rtnnosat: x rounded down. Special values: Out of range and NaN 0x80000000. Exact, or rounded
   once. */
void tarn_cvtfptoi32rtnnosat(size_t n, const double* x, int32_t* r);

/* cvtfptoi32rtpsat: x rounded up. Special values: Clamped to the integer's range; a NaN gives 0. Exact, or
   rounded once. */
void tarn_cvtfptoi32rtpsat(size_t n, const double* x, int32_t* r);

/* cvtfptoi32rtpnosat: x rounded up. Special values: Out of range and NaN 0x80000000. Exact, or rounded
   once. */
void tarn_cvtfptoi32rtpnosat(size_t n, const double* x, int32_t* r);

/* cvtfptoi32rtzsat: x rounded toward zero. Special values: Clamped to the integer's range; a NaN gives 0.
   Exact, or rounded once. */
void tarn_cvtfptoi32rtzsat(size_t n, const double* x, int32_t* r);

/* cvtfptoi32rtznosat: x rounded toward zero. Special values: Out of range and NaN 0x80000000. Exact, or
   rounded once. */
void tarn_cvtfptoi32rtznosat(size_t n, const double* x, int32_t* r);

/* cvtfptou32rtesat: x rounded to nearest, ties to even. Special values: Clamped to the integer's range; a
   NaN gives all ones, or 0 with its sign set. Exact, or rounded once. */
void tarn_cvtfptou32rtesat(size_t n, const double* x, uint32_t* r);

/* cvtfptou32rtenosat: x rounded to nearest, ties to even. Special values: The sign is dropped; from 2^32 on
   and NaN 0x80000000. Exact, or rounded once. */
void tarn_cvtfptou32rtenosat(size_t n, const double* x, uint32_t* r);

/* cvtfptou32rtnsat: x rounded down. Special values: Clamped to the integer's range; a NaN gives all ones,
   or 0 with its sign set. Exact, or rounded once. */
void tarn_cvtfptou32rtnsat(size_t n, const double* x, uint32_t* r);

/* cvtfptou32rtnnosat: x rounded down. Special values: The sign is dropped; from 2^32 on and NaN 0x80000000.
   Exact, or rounded once. */
void tarn_cvtfptou32rtnnosat(size_t n, const double* x, uint32_t* r);

/* cvtfptou32rtpsat: x rounded up. Special values: Clamped to the integer's range; a NaN gives all ones, or
   0 with its sign set. Exact, or rounded once. */
void tarn_cvtfptou32rtpsat(size_t n, const double* x, uint32_t* r);

/* cvtfptou32rtpnosat: x rounded up. Special values: The sign is dropped; from 2^32 on and NaN 0x80000000.
   Exact, or rounded once. */
void tarn_cvtfptou32rtpnosat(size_t n, const double* x, uint32_t* r);

/* cvtfptou32rtzsat: x rounded toward zero. Special values: Clamped to the integer's range; a NaN gives all
   ones, or 0 with its sign set. Exact, or rounded once. */
void tarn_cvtfptou32rtzsat(size_t n, const double* x, uint32_t* r);

/* cvtfptou32rtznosat: x rounded toward zero. Special values: The sign is dropped; from 2^32 on and NaN
   0x80000000. Exact, or rounded once. */
void tarn_cvtfptou32rtznosat(size_t n, const double* x, uint32_t* r);

/* cvtfptoi64rtesat: x rounded to nearest, ties to even. Special values: Clamped to the integer's range; a
   NaN gives 0. Exact, or rounded once. */
void tarn_cvtfptoi64rtesat(size_t n, const double* x, int64_t* r);

/* cvtfptoi64rtenosat: x rounded to nearest, ties to even. Special values: Out of range and NaN
   0x8000000000000000. Exact, or rounded once. */
void tarn_cvtfptoi64rtenosat(size_t n, const double* x, int64_t* r);

/* cvtfptoi64rtnsat: x rounded down. Special values: Clamped to the integer's range; a NaN gives 0. Exact,
   or rounded once. */
void tarn_cvtfptoi64rtnsat(size_t n, const double* x, int64_t* r);

/* cvtfptoi64rtnnosat: x rounded down. Special values: Out of range and NaN 0x8000000000000000. Exact, or
   rounded once. */
void tarn_cvtfptoi64rtnnosat(size_t n, const double* x, int64_t* r);

/* cvtfptoi64rtpsat: x rounded up. Special values: Clamped to the integer's range; a NaN gives 0. Exact, or
   rounded once. */
void tarn_cvtfptoi64rtpsat(size_t n, const double* x, int64_t* r);

/* cvtfptoi64rtpnosat: x rounded up. Special values: Out of range and NaN 0x8000000000000000. Exact, or
   rounded once. */
void tarn_cvtfptoi64rtpnosat(size_t n, const double* x, int64_t* r);

/* cvtfptoi64rtzsat: x rounded toward zero. Special values: Clamped to the integer's range; a NaN gives 0.
   Exact, or rounded once. */
void tarn_cvtfptoi64rtzsat(size_t n, const double* x, int64_t* r);

/* cvtfptoi64rtznosat: x rounded toward zero. Special values: Out of range and NaN 0x8000000000000000.
   Exact, or rounded once. */
void tarn_cvtfptoi64rtznosat(size_t n, const double* x, int64_t* r);

/* cvtfptou64rtesat: x rounded to nearest, ties to even. Special values: Clamped to the integer's range; a
   NaN gives 0. Exact, or rounded once. */
void tarn_cvtfptou64rtesat(size_t n, const double* x, uint64_t* r);

/* cvtfptou64rtenosat: x rounded to nearest, ties to even. Special values: Out of range and NaN
   0x8000000000000000. Exact, or rounded once. */
void tarn_cvtfptou64rtenosat(size_t n, const double* x, uint64_t* r);

/* cvtfptou64rtnsat: x rounded down. Special values: Clamped to the integer's range; a NaN gives 0. Exact,
   or rounded once. */
void tarn_cvtfptou64rtnsat(size_t n, const double* x, uint64_t* r);

/* cvtfptou64rtnnosat: x rounded down. Special values: Out of range and NaN 0x8000000000000000. Exact, or
   rounded once. */
void tarn_cvtfptou64rtnnosat(size_t n, const double* x, uint64_t* r);

/* cvtfptou64rtpsat: x rounded up. Special values: Clamped to the integer's range; a NaN gives 0. Exact, or
   rounded once. */
void tarn_cvtfptou64rtpsat(size_t n, const double* x, uint64_t* r);

/* cvtfptou64rtpnosat: x rounded up. Special values: Out of range and NaN 0x8000000000000000. Exact, or
   rounded once. */
void tarn_cvtfptou64rtpnosat(size_t n, const double* x, uint64_t* r);

/* cvtfptou64rtzsat: x rounded toward zero. Special values: Clamped to the integer's range; a NaN gives 0.
   Exact, or rounded once. */
void tarn_cvtfptou64rtzsat(size_t n, const double* x, uint64_t* r);

/* cvtfptou64rtznosat: x rounded toward zero. Special values: Out of range and NaN 0x8000000000000000.
   Exact, or rounded once. */
void tarn_cvtfptou64rtznosat(size_t n, const double* x, uint64_t* r);

/* cvti32tofprtef: x rounded to nearest, ties to even. Special values: 0 gives +0. Exact, or rounded once. */
void tarn_cvti32tofprtef(size_t n, const int32_t* x, float* r);

/* cvti32tofprtnf: x rounded down. Special values: 0 gives +0. Exact, or rounded once. */
void tarn_cvti32tofprtnf(size_t n, const int32_t* x, float* r);

/* cvti32tofprtpf: x rounded up. Special values: 0 gives +0. Exact, or rounded once. */
void tarn_cvti32tofprtpf(size_t n, const int32_t* x, float* r);

/* cvti32tofprtzf: x rounded toward zero. Special values: 0 gives +0. Exact, or rounded once. */
void tarn_cvti32tofprtzf(size_t n, const int32_t* x, float* r);

/* cvtu32tofprtef: x rounded to nearest, ties to even. Special values: 0 gives +0. Exact, or rounded once. */
void tarn_cvtu32tofprtef(size_t n, const uint32_t* x, float* r);

/* cvtu32tofprtnf: x rounded down. Special values: 0 gives +0. Exact, or rounded once. */
void tarn_cvtu32tofprtnf(size_t n, const uint32_t* x, float* r);

/* cvtu32tofprtpf: x rounded up. Special values: 0 gives +0. Exact, or rounded once. */
void tarn_cvtu32tofprtpf(size_t n, const uint32_t* x, float* r);

/* cvtu32tofprtzf: x rounded toward zero. Special values: 0 gives +0. Exact, or rounded once. */
void tarn_cvtu32tofprtzf(size_t n, const uint32_t* x, float* r);

/* cvti64tofprtef: x rounded to nearest, ties to even. Special values: 0 gives +0. Exact, or rounded once. */
void tarn_cvti64tofprtef(size_t n, const int64_t* x, float* r);

/* cvti64tofprtnf: x rounded down. Special values: 0 gives +0. Exact, or rounded once. */
void tarn_cvti64tofprtnf(size_t n, const int64_t* x, float* r);

/* cvti64tofprtpf: x rounded up. Special values: 0 gives +0. Exact, or rounded once. */
void tarn_cvti64tofprtpf(size_t n, const int64_t* x, float* r);

/* cvti64tofprtzf: x rounded toward zero. Special values: 0 gives +0. Exact, or rounded once. */
void tarn_cvti64tofprtzf(size_t n, const int64_t* x, float* r);

/* cvtu64tofprtef: x rounded to nearest, ties to even. Special values: 0 gives +0. Exact, or rounded once. */
void tarn_cvtu64tofprtef(size_t n, const uint64_t* x, float* r);

/* cvtu64tofprtnf: x rounded down. Special values: 0 gives +0. Exact, or rounded once. */
void tarn_cvtu64tofprtnf(size_t n, const uint64_t* x, float* r);

/* cvtu64tofprtpf: x rounded up. Special values: 0 gives +0. Exact, or rounded once. */
void tarn_cvtu64tofprtpf(size_t n, const uint64_t* x, float* r);

/* cvtu64tofprtzf: x rounded toward zero. Special values: 0 gives +0. Exact, or rounded once. */
void tarn_cvtu64tofprtzf(size_t n, const uint64_t* x, float* r);

/* cvti32tofprte: x rounded to nearest, ties to even. Special values: 0 gives +0. Exact, or rounded once. */
void tarn_cvti32tofprte(size_t n, const int32_t* x, double* r);

/* cvti32tofprtn: x rounded down. Special values: 0 gives +0. Exact, or rounded once. */
void tarn_cvti32tofprtn(size_t n, const int32_t* x, double* r);

/* cvti32tofprtp: x rounded up. Special values: 0 gives +0. Exact, or rounded once. */
void tarn_cvti32tofprtp(size_t n, const int32_t* x, double* r);

/* cvti32tofprtz: x rounded toward zero. Special values: 0 gives +0. Exact, or rounded once. */
void tarn_cvti32tofprtz(size_t n, const int32_t* x, double* r);

/* cvtu32tofprte: x rounded to nearest, ties to even. Special values: 0 gives +0. Exact, or rounded once. */
void tarn_cvtu32tofprte(size_t n, const uint32_t* x, double* r);

/* cvtu32tofprtn: x rounded down. Special values: 0 gives +0. Exact, or rounded once. */
void tarn_cvtu32tofprtn(size_t n, const uint32_t* x, double* r);

/* cvtu32tofprtp: x rounded up. Special values: 0 gives +0. Exact, or rounded once. */
void tarn_cvtu32tofprtp(size_t n, const uint32_t* x, double* r);

/* cvtu32tofprtz: x rounded toward zero. Special values: 0 gives +0. Exact, or rounded once. */
void tarn_cvtu32tofprtz(size_t n, const uint32_t* x, double* r);

/* cvti64tofprte: x rounded to nearest, ties to even. Special values: 0 gives +0. Exact, or rounded once. */
void tarn_cvti64tofprte(size_t n, const int64_t* x, double* r);

/* cvti64tofprtn: x rounded down. Special values: 0 gives +0. Exact, or rounded once. */
void tarn_cvti64tofprtn(size_t n, const int64_t* x, double* r);

/* cvti64tofprtp: x rounded up. Special values: 0 gives +0. Exact, or rounded once. */
void tarn_cvti64tofprtp(size_t n, const int64_t* x, double* r);

/* cvti64tofprtz: x rounded toward zero. Special values: 0 gives +0. Exact, or rounded once. */
void tarn_cvti64tofprtz(size_t n, const int64_t* x, double* r);

/* cvtu64tofprte: x rounded to nearest, ties to even. Special values: 0 gives +0. Exact, or rounded once. */
void tarn_cvtu64tofprte(size_t n, const uint64_t* x, double* r);

/* cvtu64tofprtn: x rounded down. Special values: 0 gives +0. Exact, or rounded once. */
void tarn_cvtu64tofprtn(size_t n, const uint64_t* x, double* r);

/* cvtu64tofprtp: x rounded up. Special values: 0 gives +0. Exact, or rounded once. */
void tarn_cvtu64tofprtp(size_t n, const uint64_t* x, double* r);

/* cvtu64tofprtz: x rounded toward zero. Special values: 0 gives +0. Exact, or rounded once. */
void tarn_cvtu64tofprtz(size_t n, const uint64_t* x, double* r);

/* cvtfp64tofp32rte: x rounded to nearest, ties to even. Special values: -0 is kept; NaN gives a quiet NaN.
   Exact, or rounded once. */
void tarn_cvtfp64tofp32rte(size_t n, const double* x, float* r);

/* cvtfp64tofp32rtn: x rounded down. Special values: -0 is kept; NaN gives a quiet NaN. Exact, or rounded
   once. */
void tarn_cvtfp64tofp32rtn(size_t n, const double* x, float* r);

/* cvtfp64tofp32rtp: x rounded up. Special values: -0 is kept; NaN gives a quiet NaN. Exact, or rounded
   once. */
void tarn_cvtfp64tofp32rtp(size_t n, const double* x, float* r);

/* cvtfp64tofp32rtz: x rounded toward zero. Special values: -0 is kept; NaN gives a quiet NaN. Exact, or
   rounded once. */
void tarn_cvtfp64tofp32rtz(size_t n, const double* x, float* r);

#ifdef __GNUC__
#pragma GCC visibility pop
#endif
#ifdef __cplusplus
}
#endif

#if defined(__cplusplus) && __cplusplus >= 202002L && !defined(TARN_NO_SPANS)
#include <cstdio>
#include <cstdlib>
#include <span>
#include <stdexcept>
#include <string>

namespace tarn {
namespace detail {

[[noreturn]] inline void lengths_differ(const char* function) {
    const std::string line = std::string("tarn::") + function + ": the lengths of its spans differ";
#ifdef __cpp_exceptions
    throw std::invalid_argument(line);
#else
    std::fprintf(stderr, "%s\n", line.c_str());
    std::abort();
#endif
}
template <class... Sizes> void same_length(const char* function, std::size_t n, Sizes... sizes) {
    if (((sizes != n) || ...)) [[unlikely]] lengths_differ(function);
}

}  // namespace detail

inline void exp(std::span<const float> x, std::span<float> r) {
    detail::same_length("exp", x.size(), r.size());
    tarn_expf(x.size(), x.data(), r.data());
}
inline void exp_native(std::span<const float> x, std::span<float> r) {
    detail::same_length("exp_native", x.size(), r.size());
    tarn_expf_native(x.size(), x.data(), r.data());
}
inline void exp_half(std::span<const float> x, std::span<float> r) {
    detail::same_length("exp_half", x.size(), r.size());
    tarn_expf_half(x.size(), x.data(), r.data());
}
inline void exp(std::span<const double> x, std::span<double> r) {
    detail::same_length("exp", x.size(), r.size());
    tarn_exp(x.size(), x.data(), r.data());
}
inline void exp_native(std::span<const double> x, std::span<double> r) {
    detail::same_length("exp_native", x.size(), r.size());
    tarn_exp_native(x.size(), x.data(), r.data());
}
inline void exp2(std::span<const float> x, std::span<float> r) {
    detail::same_length("exp2", x.size(), r.size());
    tarn_exp2f(x.size(), x.data(), r.data());
}
inline void exp2_native(std::span<const float> x, std::span<float> r) {
    detail::same_length("exp2_native", x.size(), r.size());
    tarn_exp2f_native(x.size(), x.data(), r.data());
}
inline void exp2_half(std::span<const float> x, std::span<float> r) {
    detail::same_length("exp2_half", x.size(), r.size());
    tarn_exp2f_half(x.size(), x.data(), r.data());
}
inline void exp2(std::span<const double> x, std::span<double> r) {
    detail::same_length("exp2", x.size(), r.size());
    tarn_exp2(x.size(), x.data(), r.data());
}
inline void exp2_native(std::span<const double> x, std::span<double> r) {
    detail::same_length("exp2_native", x.size(), r.size());
    tarn_exp2_native(x.size(), x.data(), r.data());
}
inline void exp10(std::span<const float> x, std::span<float> r) {
    detail::same_length("exp10", x.size(), r.size());
    tarn_exp10f(x.size(), x.data(), r.data());
}
inline void exp10_native(std::span<const float> x, std::span<float> r) {
    detail::same_length("exp10_native", x.size(), r.size());
    tarn_exp10f_native(x.size(), x.data(), r.data());
}
inline void exp10_half(std::span<const float> x, std::span<float> r) {
    detail::same_length("exp10_half", x.size(), r.size());
    tarn_exp10f_half(x.size(), x.data(), r.data());
}
inline void exp10(std::span<const double> x, std::span<double> r) {
    detail::same_length("exp10", x.size(), r.size());
    tarn_exp10(x.size(), x.data(), r.data());
}
inline void exp10_native(std::span<const double> x, std::span<double> r) {
    detail::same_length("exp10_native", x.size(), r.size());
    tarn_exp10_native(x.size(), x.data(), r.data());
}
inline void expm1(std::span<const float> x, std::span<float> r) {
    detail::same_length("expm1", x.size(), r.size());
    tarn_expm1f(x.size(), x.data(), r.data());
}
inline void expm1_native(std::span<const float> x, std::span<float> r) {
    detail::same_length("expm1_native", x.size(), r.size());
    tarn_expm1f_native(x.size(), x.data(), r.data());
}
inline void expm1(std::span<const double> x, std::span<double> r) {
    detail::same_length("expm1", x.size(), r.size());
    tarn_expm1(x.size(), x.data(), r.data());
}
inline void expm1_native(std::span<const double> x, std::span<double> r) {
    detail::same_length("expm1_native", x.size(), r.size());
    tarn_expm1_native(x.size(), x.data(), r.data());
}
inline void log(std::span<const float> x, std::span<float> r) {
    detail::same_length("log", x.size(), r.size());
    tarn_logf(x.size(), x.data(), r.data());
}
inline void log_native(std::span<const float> x, std::span<float> r) {
    detail::same_length("log_native", x.size(), r.size());
    tarn_logf_native(x.size(), x.data(), r.data());
}
inline void log_half(std::span<const float> x, std::span<float> r) {
    detail::same_length("log_half", x.size(), r.size());
    tarn_logf_half(x.size(), x.data(), r.data());
}
inline void log(std::span<const double> x, std::span<double> r) {
    detail::same_length("log", x.size(), r.size());
    tarn_log(x.size(), x.data(), r.data());
}
inline void log_native(std::span<const double> x, std::span<double> r) {
    detail::same_length("log_native", x.size(), r.size());
    tarn_log_native(x.size(), x.data(), r.data());
}
inline void log2(std::span<const float> x, std::span<float> r) {
    detail::same_length("log2", x.size(), r.size());
    tarn_log2f(x.size(), x.data(), r.data());
}
inline void log2_native(std::span<const float> x, std::span<float> r) {
    detail::same_length("log2_native", x.size(), r.size());
    tarn_log2f_native(x.size(), x.data(), r.data());
}
inline void log2_half(std::span<const float> x, std::span<float> r) {
    detail::same_length("log2_half", x.size(), r.size());
    tarn_log2f_half(x.size(), x.data(), r.data());
}
inline void log2(std::span<const double> x, std::span<double> r) {
    detail::same_length("log2", x.size(), r.size());
    tarn_log2(x.size(), x.data(), r.data());
}
inline void log2_native(std::span<const double> x, std::span<double> r) {
    detail::same_length("log2_native", x.size(), r.size());
    tarn_log2_native(x.size(), x.data(), r.data());
}
inline void log10(std::span<const float> x, std::span<float> r) {
    detail::same_length("log10", x.size(), r.size());
    tarn_log10f(x.size(), x.data(), r.data());
}
inline void log10_native(std::span<const float> x, std::span<float> r) {
    detail::same_length("log10_native", x.size(), r.size());
    tarn_log10f_native(x.size(), x.data(), r.data());
}
inline void log10_half(std::span<const float> x, std::span<float> r) {
    detail::same_length("log10_half", x.size(), r.size());
    tarn_log10f_half(x.size(), x.data(), r.data());
}
inline void log10(std::span<const double> x, std::span<double> r) {
    detail::same_length("log10", x.size(), r.size());
    tarn_log10(x.size(), x.data(), r.data());
}
inline void log10_native(std::span<const double> x, std::span<double> r) {
    detail::same_length("log10_native", x.size(), r.size());
    tarn_log10_native(x.size(), x.data(), r.data());
}
inline void log1p(std::span<const float> x, std::span<float> r) {
    detail::same_length("log1p", x.size(), r.size());
    tarn_log1pf(x.size(), x.data(), r.data());
}
inline void log1p_native(std::span<const float> x, std::span<float> r) {
    detail::same_length("log1p_native", x.size(), r.size());
    tarn_log1pf_native(x.size(), x.data(), r.data());
}
inline void log1p(std::span<const double> x, std::span<double> r) {
    detail::same_length("log1p", x.size(), r.size());
    tarn_log1p(x.size(), x.data(), r.data());
}
inline void log1p_native(std::span<const double> x, std::span<double> r) {
    detail::same_length("log1p_native", x.size(), r.size());
    tarn_log1p_native(x.size(), x.data(), r.data());
}
inline void pow(std::span<const float> x, std::span<const float> y, std::span<float> r) {
    detail::same_length("pow", x.size(), y.size(), r.size());
    tarn_powf(x.size(), x.data(), y.data(), r.data());
}
inline void pow_native(std::span<const float> x, std::span<const float> y, std::span<float> r) {
    detail::same_length("pow_native", x.size(), y.size(), r.size());
    tarn_powf_native(x.size(), x.data(), y.data(), r.data());
}
inline void pow(std::span<const double> x, std::span<const double> y, std::span<double> r) {
    detail::same_length("pow", x.size(), y.size(), r.size());
    tarn_pow(x.size(), x.data(), y.data(), r.data());
}
inline void pow_native(std::span<const double> x, std::span<const double> y, std::span<double> r) {
    detail::same_length("pow_native", x.size(), y.size(), r.size());
    tarn_pow_native(x.size(), x.data(), y.data(), r.data());
}
inline void powr(std::span<const float> x, std::span<const float> y, std::span<float> r) {
    detail::same_length("powr", x.size(), y.size(), r.size());
    tarn_powrf(x.size(), x.data(), y.data(), r.data());
}
inline void powr_native(std::span<const float> x, std::span<const float> y, std::span<float> r) {
    detail::same_length("powr_native", x.size(), y.size(), r.size());
    tarn_powrf_native(x.size(), x.data(), y.data(), r.data());
}
inline void powr_half(std::span<const float> x, std::span<const float> y, std::span<float> r) {
    detail::same_length("powr_half", x.size(), y.size(), r.size());
    tarn_powrf_half(x.size(), x.data(), y.data(), r.data());
}
inline void powr(std::span<const double> x, std::span<const double> y, std::span<double> r) {
    detail::same_length("powr", x.size(), y.size(), r.size());
    tarn_powr(x.size(), x.data(), y.data(), r.data());
}
inline void powr_native(std::span<const double> x, std::span<const double> y, std::span<double> r) {
    detail::same_length("powr_native", x.size(), y.size(), r.size());
    tarn_powr_native(x.size(), x.data(), y.data(), r.data());
}
inline void pown(std::span<const float> x, std::span<const int32_t> k, std::span<float> r) {
    detail::same_length("pown", x.size(), k.size(), r.size());
    tarn_pownf(x.size(), x.data(), k.data(), r.data());
}
inline void pown_native(std::span<const float> x, std::span<const int32_t> k, std::span<float> r) {
    detail::same_length("pown_native", x.size(), k.size(), r.size());
    tarn_pownf_native(x.size(), x.data(), k.data(), r.data());
}
inline void pown(std::span<const double> x, std::span<const int32_t> k, std::span<double> r) {
    detail::same_length("pown", x.size(), k.size(), r.size());
    tarn_pown(x.size(), x.data(), k.data(), r.data());
}
inline void pown_native(std::span<const double> x, std::span<const int32_t> k, std::span<double> r) {
    detail::same_length("pown_native", x.size(), k.size(), r.size());
    tarn_pown_native(x.size(), x.data(), k.data(), r.data());
}
inline void rootn(std::span<const float> x, std::span<const int32_t> k, std::span<float> r) {
    detail::same_length("rootn", x.size(), k.size(), r.size());
    tarn_rootnf(x.size(), x.data(), k.data(), r.data());
}
inline void rootn_native(std::span<const float> x, std::span<const int32_t> k, std::span<float> r) {
    detail::same_length("rootn_native", x.size(), k.size(), r.size());
    tarn_rootnf_native(x.size(), x.data(), k.data(), r.data());
}
inline void rootn(std::span<const double> x, std::span<const int32_t> k, std::span<double> r) {
    detail::same_length("rootn", x.size(), k.size(), r.size());
    tarn_rootn(x.size(), x.data(), k.data(), r.data());
}
inline void rootn_native(std::span<const double> x, std::span<const int32_t> k, std::span<double> r) {
    detail::same_length("rootn_native", x.size(), k.size(), r.size());
    tarn_rootn_native(x.size(), x.data(), k.data(), r.data());
}
inline void div(std::span<const float> x, std::span<const float> y, std::span<float> r) {
    detail::same_length("div", x.size(), y.size(), r.size());
    tarn_divf(x.size(), x.data(), y.data(), r.data());
}
inline void div_native(std::span<const float> x, std::span<const float> y, std::span<float> r) {
    detail::same_length("div_native", x.size(), y.size(), r.size());
    tarn_divf_native(x.size(), x.data(), y.data(), r.data());
}
inline void div_half(std::span<const float> x, std::span<const float> y, std::span<float> r) {
    detail::same_length("div_half", x.size(), y.size(), r.size());
    tarn_divf_half(x.size(), x.data(), y.data(), r.data());
}
inline void div(std::span<const double> x, std::span<const double> y, std::span<double> r) {
    detail::same_length("div", x.size(), y.size(), r.size());
    tarn_div(x.size(), x.data(), y.data(), r.data());
}
inline void div_native(std::span<const double> x, std::span<const double> y, std::span<double> r) {
    detail::same_length("div_native", x.size(), y.size(), r.size());
    tarn_div_native(x.size(), x.data(), y.data(), r.data());
}
inline void inv(std::span<const float> x, std::span<float> r) {
    detail::same_length("inv", x.size(), r.size());
    tarn_invf(x.size(), x.data(), r.data());
}
inline void inv_native(std::span<const float> x, std::span<float> r) {
    detail::same_length("inv_native", x.size(), r.size());
    tarn_invf_native(x.size(), x.data(), r.data());
}
inline void inv_half(std::span<const float> x, std::span<float> r) {
    detail::same_length("inv_half", x.size(), r.size());
    tarn_invf_half(x.size(), x.data(), r.data());
}
inline void inv(std::span<const double> x, std::span<double> r) {
    detail::same_length("inv", x.size(), r.size());
    tarn_inv(x.size(), x.data(), r.data());
}
inline void inv_native(std::span<const double> x, std::span<double> r) {
    detail::same_length("inv_native", x.size(), r.size());
    tarn_inv_native(x.size(), x.data(), r.data());
}
inline void sqrt(std::span<const float> x, std::span<float> r) {
    detail::same_length("sqrt", x.size(), r.size());
    tarn_sqrtf(x.size(), x.data(), r.data());
}
inline void sqrt_native(std::span<const float> x, std::span<float> r) {
    detail::same_length("sqrt_native", x.size(), r.size());
    tarn_sqrtf_native(x.size(), x.data(), r.data());
}
inline void sqrt_half(std::span<const float> x, std::span<float> r) {
    detail::same_length("sqrt_half", x.size(), r.size());
    tarn_sqrtf_half(x.size(), x.data(), r.data());
}
inline void sqrt(std::span<const double> x, std::span<double> r) {
    detail::same_length("sqrt", x.size(), r.size());
    tarn_sqrt(x.size(), x.data(), r.data());
}
inline void sqrt_native(std::span<const double> x, std::span<double> r) {
    detail::same_length("sqrt_native", x.size(), r.size());
    tarn_sqrt_native(x.size(), x.data(), r.data());
}
inline void rsqrt(std::span<const float> x, std::span<float> r) {
    detail::same_length("rsqrt", x.size(), r.size());
    tarn_rsqrtf(x.size(), x.data(), r.data());
}
inline void rsqrt_native(std::span<const float> x, std::span<float> r) {
    detail::same_length("rsqrt_native", x.size(), r.size());
    tarn_rsqrtf_native(x.size(), x.data(), r.data());
}
inline void rsqrt_half(std::span<const float> x, std::span<float> r) {
    detail::same_length("rsqrt_half", x.size(), r.size());
    tarn_rsqrtf_half(x.size(), x.data(), r.data());
}
inline void rsqrt(std::span<const double> x, std::span<double> r) {
    detail::same_length("rsqrt", x.size(), r.size());
    tarn_rsqrt(x.size(), x.data(), r.data());
}
inline void rsqrt_native(std::span<const double> x, std::span<double> r) {
    detail::same_length("rsqrt_native", x.size(), r.size());
    tarn_rsqrt_native(x.size(), x.data(), r.data());
}
inline void cbrt(std::span<const float> x, std::span<float> r) {
    detail::same_length("cbrt", x.size(), r.size());
    tarn_cbrtf(x.size(), x.data(), r.data());
}
inline void cbrt_native(std::span<const float> x, std::span<float> r) {
    detail::same_length("cbrt_native", x.size(), r.size());
    tarn_cbrtf_native(x.size(), x.data(), r.data());
}
inline void cbrt(std::span<const double> x, std::span<double> r) {
    detail::same_length("cbrt", x.size(), r.size());
    tarn_cbrt(x.size(), x.data(), r.data());
}
inline void cbrt_native(std::span<const double> x, std::span<double> r) {
    detail::same_length("cbrt_native", x.size(), r.size());
    tarn_cbrt_native(x.size(), x.data(), r.data());
}
inline void rcbrt(std::span<const float> x, std::span<float> r) {
    detail::same_length("rcbrt", x.size(), r.size());
    tarn_rcbrtf(x.size(), x.data(), r.data());
}
inline void rcbrt_native(std::span<const float> x, std::span<float> r) {
    detail::same_length("rcbrt_native", x.size(), r.size());
    tarn_rcbrtf_native(x.size(), x.data(), r.data());
}
inline void rcbrt(std::span<const double> x, std::span<double> r) {
    detail::same_length("rcbrt", x.size(), r.size());
    tarn_rcbrt(x.size(), x.data(), r.data());
}
inline void rcbrt_native(std::span<const double> x, std::span<double> r) {
    detail::same_length("rcbrt_native", x.size(), r.size());
    tarn_rcbrt_native(x.size(), x.data(), r.data());
}
inline void hypot(std::span<const float> x, std::span<const float> y, std::span<float> r) {
    detail::same_length("hypot", x.size(), y.size(), r.size());
    tarn_hypotf(x.size(), x.data(), y.data(), r.data());
}
inline void hypot_native(std::span<const float> x, std::span<const float> y, std::span<float> r) {
    detail::same_length("hypot_native", x.size(), y.size(), r.size());
    tarn_hypotf_native(x.size(), x.data(), y.data(), r.data());
}
inline void hypot(std::span<const double> x, std::span<const double> y, std::span<double> r) {
    detail::same_length("hypot", x.size(), y.size(), r.size());
    tarn_hypot(x.size(), x.data(), y.data(), r.data());
}
inline void hypot_native(std::span<const double> x, std::span<const double> y, std::span<double> r) {
    detail::same_length("hypot_native", x.size(), y.size(), r.size());
    tarn_hypot_native(x.size(), x.data(), y.data(), r.data());
}
inline void sin(std::span<const float> x, std::span<float> r) {
    detail::same_length("sin", x.size(), r.size());
    tarn_sinf(x.size(), x.data(), r.data());
}
inline void sin_native(std::span<const float> x, std::span<float> r) {
    detail::same_length("sin_native", x.size(), r.size());
    tarn_sinf_native(x.size(), x.data(), r.data());
}
inline void sin_half(std::span<const float> x, std::span<float> r) {
    detail::same_length("sin_half", x.size(), r.size());
    tarn_sinf_half(x.size(), x.data(), r.data());
}
inline void sin(std::span<const double> x, std::span<double> r) {
    detail::same_length("sin", x.size(), r.size());
    tarn_sin(x.size(), x.data(), r.data());
}
inline void sin_native(std::span<const double> x, std::span<double> r) {
    detail::same_length("sin_native", x.size(), r.size());
    tarn_sin_native(x.size(), x.data(), r.data());
}
inline void cos(std::span<const float> x, std::span<float> r) {
    detail::same_length("cos", x.size(), r.size());
    tarn_cosf(x.size(), x.data(), r.data());
}
inline void cos_native(std::span<const float> x, std::span<float> r) {
    detail::same_length("cos_native", x.size(), r.size());
    tarn_cosf_native(x.size(), x.data(), r.data());
}
inline void cos_half(std::span<const float> x, std::span<float> r) {
    detail::same_length("cos_half", x.size(), r.size());
    tarn_cosf_half(x.size(), x.data(), r.data());
}
inline void cos(std::span<const double> x, std::span<double> r) {
    detail::same_length("cos", x.size(), r.size());
    tarn_cos(x.size(), x.data(), r.data());
}
inline void cos_native(std::span<const double> x, std::span<double> r) {
    detail::same_length("cos_native", x.size(), r.size());
    tarn_cos_native(x.size(), x.data(), r.data());
}
inline void sincos(std::span<const float> x, std::span<float> sine, std::span<float> cosine) {
    detail::same_length("sincos", x.size(), sine.size(), cosine.size());
    tarn_sincosf(x.size(), x.data(), sine.data(), cosine.data());
}
inline void sincos_native(std::span<const float> x, std::span<float> sine, std::span<float> cosine) {
    detail::same_length("sincos_native", x.size(), sine.size(), cosine.size());
    tarn_sincosf_native(x.size(), x.data(), sine.data(), cosine.data());
}
inline void sincos(std::span<const double> x, std::span<double> sine, std::span<double> cosine) {
    detail::same_length("sincos", x.size(), sine.size(), cosine.size());
    tarn_sincos(x.size(), x.data(), sine.data(), cosine.data());
}
inline void sincos_native(std::span<const double> x, std::span<double> sine, std::span<double> cosine) {
    detail::same_length("sincos_native", x.size(), sine.size(), cosine.size());
    tarn_sincos_native(x.size(), x.data(), sine.data(), cosine.data());
}
inline void sincosreg(std::span<const float> x, std::span<float> sine, std::span<float> cosine) {
    detail::same_length("sincosreg", x.size(), sine.size(), cosine.size());
    tarn_sincosregf(x.size(), x.data(), sine.data(), cosine.data());
}
inline void sincosreg_native(std::span<const float> x, std::span<float> sine, std::span<float> cosine) {
    detail::same_length("sincosreg_native", x.size(), sine.size(), cosine.size());
    tarn_sincosregf_native(x.size(), x.data(), sine.data(), cosine.data());
}
inline void sincosreg(std::span<const double> x, std::span<double> sine, std::span<double> cosine) {
    detail::same_length("sincosreg", x.size(), sine.size(), cosine.size());
    tarn_sincosreg(x.size(), x.data(), sine.data(), cosine.data());
}
inline void sincosreg_native(std::span<const double> x, std::span<double> sine, std::span<double> cosine) {
    detail::same_length("sincosreg_native", x.size(), sine.size(), cosine.size());
    tarn_sincosreg_native(x.size(), x.data(), sine.data(), cosine.data());
}
inline void tan(std::span<const float> x, std::span<float> r) {
    detail::same_length("tan", x.size(), r.size());
    tarn_tanf(x.size(), x.data(), r.data());
}
inline void tan_native(std::span<const float> x, std::span<float> r) {
    detail::same_length("tan_native", x.size(), r.size());
    tarn_tanf_native(x.size(), x.data(), r.data());
}
inline void tan_half(std::span<const float> x, std::span<float> r) {
    detail::same_length("tan_half", x.size(), r.size());
    tarn_tanf_half(x.size(), x.data(), r.data());
}
inline void tan(std::span<const double> x, std::span<double> r) {
    detail::same_length("tan", x.size(), r.size());
    tarn_tan(x.size(), x.data(), r.data());
}
inline void tan_native(std::span<const double> x, std::span<double> r) {
    detail::same_length("tan_native", x.size(), r.size());
    tarn_tan_native(x.size(), x.data(), r.data());
}
inline void sinpi(std::span<const float> x, std::span<float> r) {
    detail::same_length("sinpi", x.size(), r.size());
    tarn_sinpif(x.size(), x.data(), r.data());
}
inline void sinpi_native(std::span<const float> x, std::span<float> r) {
    detail::same_length("sinpi_native", x.size(), r.size());
    tarn_sinpif_native(x.size(), x.data(), r.data());
}
inline void sinpi(std::span<const double> x, std::span<double> r) {
    detail::same_length("sinpi", x.size(), r.size());
    tarn_sinpi(x.size(), x.data(), r.data());
}
inline void sinpi_native(std::span<const double> x, std::span<double> r) {
    detail::same_length("sinpi_native", x.size(), r.size());
    tarn_sinpi_native(x.size(), x.data(), r.data());
}
inline void cospi(std::span<const float> x, std::span<float> r) {
    detail::same_length("cospi", x.size(), r.size());
    tarn_cospif(x.size(), x.data(), r.data());
}
inline void cospi_native(std::span<const float> x, std::span<float> r) {
    detail::same_length("cospi_native", x.size(), r.size());
    tarn_cospif_native(x.size(), x.data(), r.data());
}
inline void cospi(std::span<const double> x, std::span<double> r) {
    detail::same_length("cospi", x.size(), r.size());
    tarn_cospi(x.size(), x.data(), r.data());
}
inline void cospi_native(std::span<const double> x, std::span<double> r) {
    detail::same_length("cospi_native", x.size(), r.size());
    tarn_cospi_native(x.size(), x.data(), r.data());
}
inline void tanpi(std::span<const float> x, std::span<float> r) {
    detail::same_length("tanpi", x.size(), r.size());
    tarn_tanpif(x.size(), x.data(), r.data());
}
inline void tanpi_native(std::span<const float> x, std::span<float> r) {
    detail::same_length("tanpi_native", x.size(), r.size());
    tarn_tanpif_native(x.size(), x.data(), r.data());
}
inline void tanpi(std::span<const double> x, std::span<double> r) {
    detail::same_length("tanpi", x.size(), r.size());
    tarn_tanpi(x.size(), x.data(), r.data());
}
inline void tanpi_native(std::span<const double> x, std::span<double> r) {
    detail::same_length("tanpi_native", x.size(), r.size());
    tarn_tanpi_native(x.size(), x.data(), r.data());
}
inline void asin(std::span<const float> x, std::span<float> r) {
    detail::same_length("asin", x.size(), r.size());
    tarn_asinf(x.size(), x.data(), r.data());
}
inline void asin_native(std::span<const float> x, std::span<float> r) {
    detail::same_length("asin_native", x.size(), r.size());
    tarn_asinf_native(x.size(), x.data(), r.data());
}
inline void asin(std::span<const double> x, std::span<double> r) {
    detail::same_length("asin", x.size(), r.size());
    tarn_asin(x.size(), x.data(), r.data());
}
inline void asin_native(std::span<const double> x, std::span<double> r) {
    detail::same_length("asin_native", x.size(), r.size());
    tarn_asin_native(x.size(), x.data(), r.data());
}
inline void acos(std::span<const float> x, std::span<float> r) {
    detail::same_length("acos", x.size(), r.size());
    tarn_acosf(x.size(), x.data(), r.data());
}
inline void acos_native(std::span<const float> x, std::span<float> r) {
    detail::same_length("acos_native", x.size(), r.size());
    tarn_acosf_native(x.size(), x.data(), r.data());
}
inline void acos(std::span<const double> x, std::span<double> r) {
    detail::same_length("acos", x.size(), r.size());
    tarn_acos(x.size(), x.data(), r.data());
}
inline void acos_native(std::span<const double> x, std::span<double> r) {
    detail::same_length("acos_native", x.size(), r.size());
    tarn_acos_native(x.size(), x.data(), r.data());
}
inline void atan(std::span<const float> x, std::span<float> r) {
    detail::same_length("atan", x.size(), r.size());
    tarn_atanf(x.size(), x.data(), r.data());
}
inline void atan_native(std::span<const float> x, std::span<float> r) {
    detail::same_length("atan_native", x.size(), r.size());
    tarn_atanf_native(x.size(), x.data(), r.data());
}
inline void atan(std::span<const double> x, std::span<double> r) {
    detail::same_length("atan", x.size(), r.size());
    tarn_atan(x.size(), x.data(), r.data());
}
inline void atan_native(std::span<const double> x, std::span<double> r) {
    detail::same_length("atan_native", x.size(), r.size());
    tarn_atan_native(x.size(), x.data(), r.data());
}
inline void atan2(std::span<const float> x, std::span<const float> y, std::span<float> r) {
    detail::same_length("atan2", x.size(), y.size(), r.size());
    tarn_atan2f(x.size(), x.data(), y.data(), r.data());
}
inline void atan2_native(std::span<const float> x, std::span<const float> y, std::span<float> r) {
    detail::same_length("atan2_native", x.size(), y.size(), r.size());
    tarn_atan2f_native(x.size(), x.data(), y.data(), r.data());
}
inline void atan2(std::span<const double> x, std::span<const double> y, std::span<double> r) {
    detail::same_length("atan2", x.size(), y.size(), r.size());
    tarn_atan2(x.size(), x.data(), y.data(), r.data());
}
inline void atan2_native(std::span<const double> x, std::span<const double> y, std::span<double> r) {
    detail::same_length("atan2_native", x.size(), y.size(), r.size());
    tarn_atan2_native(x.size(), x.data(), y.data(), r.data());
}
inline void asinpi(std::span<const float> x, std::span<float> r) {
    detail::same_length("asinpi", x.size(), r.size());
    tarn_asinpif(x.size(), x.data(), r.data());
}
inline void asinpi_native(std::span<const float> x, std::span<float> r) {
    detail::same_length("asinpi_native", x.size(), r.size());
    tarn_asinpif_native(x.size(), x.data(), r.data());
}
inline void asinpi(std::span<const double> x, std::span<double> r) {
    detail::same_length("asinpi", x.size(), r.size());
    tarn_asinpi(x.size(), x.data(), r.data());
}
inline void asinpi_native(std::span<const double> x, std::span<double> r) {
    detail::same_length("asinpi_native", x.size(), r.size());
    tarn_asinpi_native(x.size(), x.data(), r.data());
}
inline void acospi(std::span<const float> x, std::span<float> r) {
    detail::same_length("acospi", x.size(), r.size());
    tarn_acospif(x.size(), x.data(), r.data());
}
inline void acospi_native(std::span<const float> x, std::span<float> r) {
    detail::same_length("acospi_native", x.size(), r.size());
    tarn_acospif_native(x.size(), x.data(), r.data());
}
inline void acospi(std::span<const double> x, std::span<double> r) {
    detail::same_length("acospi", x.size(), r.size());
    tarn_acospi(x.size(), x.data(), r.data());
}
inline void acospi_native(std::span<const double> x, std::span<double> r) {
    detail::same_length("acospi_native", x.size(), r.size());
    tarn_acospi_native(x.size(), x.data(), r.data());
}
inline void atanpi(std::span<const float> x, std::span<float> r) {
    detail::same_length("atanpi", x.size(), r.size());
    tarn_atanpif(x.size(), x.data(), r.data());
}
inline void atanpi_native(std::span<const float> x, std::span<float> r) {
    detail::same_length("atanpi_native", x.size(), r.size());
    tarn_atanpif_native(x.size(), x.data(), r.data());
}
inline void atanpi(std::span<const double> x, std::span<double> r) {
    detail::same_length("atanpi", x.size(), r.size());
    tarn_atanpi(x.size(), x.data(), r.data());
}
inline void atanpi_native(std::span<const double> x, std::span<double> r) {
    detail::same_length("atanpi_native", x.size(), r.size());
    tarn_atanpi_native(x.size(), x.data(), r.data());
}
inline void atan2pi(std::span<const float> x, std::span<const float> y, std::span<float> r) {
    detail::same_length("atan2pi", x.size(), y.size(), r.size());
    tarn_atan2pif(x.size(), x.data(), y.data(), r.data());
}
inline void atan2pi_native(std::span<const float> x, std::span<const float> y, std::span<float> r) {
    detail::same_length("atan2pi_native", x.size(), y.size(), r.size());
    tarn_atan2pif_native(x.size(), x.data(), y.data(), r.data());
}
inline void atan2pi(std::span<const double> x, std::span<const double> y, std::span<double> r) {
    detail::same_length("atan2pi", x.size(), y.size(), r.size());
    tarn_atan2pi(x.size(), x.data(), y.data(), r.data());
}
inline void atan2pi_native(std::span<const double> x, std::span<const double> y, std::span<double> r) {
    detail::same_length("atan2pi_native", x.size(), y.size(), r.size());
    tarn_atan2pi_native(x.size(), x.data(), y.data(), r.data());
}
inline void sinh(std::span<const float> x, std::span<float> r) {
    detail::same_length("sinh", x.size(), r.size());
    tarn_sinhf(x.size(), x.data(), r.data());
}
inline void sinh_native(std::span<const float> x, std::span<float> r) {
    detail::same_length("sinh_native", x.size(), r.size());
    tarn_sinhf_native(x.size(), x.data(), r.data());
}
inline void sinh(std::span<const double> x, std::span<double> r) {
    detail::same_length("sinh", x.size(), r.size());
    tarn_sinh(x.size(), x.data(), r.data());
}
inline void sinh_native(std::span<const double> x, std::span<double> r) {
    detail::same_length("sinh_native", x.size(), r.size());
    tarn_sinh_native(x.size(), x.data(), r.data());
}
inline void cosh(std::span<const float> x, std::span<float> r) {
    detail::same_length("cosh", x.size(), r.size());
    tarn_coshf(x.size(), x.data(), r.data());
}
inline void cosh_native(std::span<const float> x, std::span<float> r) {
    detail::same_length("cosh_native", x.size(), r.size());
    tarn_coshf_native(x.size(), x.data(), r.data());
}
inline void cosh(std::span<const double> x, std::span<double> r) {
    detail::same_length("cosh", x.size(), r.size());
    tarn_cosh(x.size(), x.data(), r.data());
}
inline void cosh_native(std::span<const double> x, std::span<double> r) {
    detail::same_length("cosh_native", x.size(), r.size());
    tarn_cosh_native(x.size(), x.data(), r.data());
}
inline void tanh(std::span<const float> x, std::span<float> r) {
    detail::same_length("tanh", x.size(), r.size());
    tarn_tanhf(x.size(), x.data(), r.data());
}
inline void tanh_native(std::span<const float> x, std::span<float> r) {
    detail::same_length("tanh_native", x.size(), r.size());
    tarn_tanhf_native(x.size(), x.data(), r.data());
}
inline void tanh(std::span<const double> x, std::span<double> r) {
    detail::same_length("tanh", x.size(), r.size());
    tarn_tanh(x.size(), x.data(), r.data());
}
inline void tanh_native(std::span<const double> x, std::span<double> r) {
    detail::same_length("tanh_native", x.size(), r.size());
    tarn_tanh_native(x.size(), x.data(), r.data());
}
inline void asinh(std::span<const float> x, std::span<float> r) {
    detail::same_length("asinh", x.size(), r.size());
    tarn_asinhf(x.size(), x.data(), r.data());
}
inline void asinh_native(std::span<const float> x, std::span<float> r) {
    detail::same_length("asinh_native", x.size(), r.size());
    tarn_asinhf_native(x.size(), x.data(), r.data());
}
inline void asinh(std::span<const double> x, std::span<double> r) {
    detail::same_length("asinh", x.size(), r.size());
    tarn_asinh(x.size(), x.data(), r.data());
}
inline void asinh_native(std::span<const double> x, std::span<double> r) {
    detail::same_length("asinh_native", x.size(), r.size());
    tarn_asinh_native(x.size(), x.data(), r.data());
}
inline void acosh(std::span<const float> x, std::span<float> r) {
    detail::same_length("acosh", x.size(), r.size());
    tarn_acoshf(x.size(), x.data(), r.data());
}
inline void acosh_native(std::span<const float> x, std::span<float> r) {
    detail::same_length("acosh_native", x.size(), r.size());
    tarn_acoshf_native(x.size(), x.data(), r.data());
}
inline void acosh(std::span<const double> x, std::span<double> r) {
    detail::same_length("acosh", x.size(), r.size());
    tarn_acosh(x.size(), x.data(), r.data());
}
inline void acosh_native(std::span<const double> x, std::span<double> r) {
    detail::same_length("acosh_native", x.size(), r.size());
    tarn_acosh_native(x.size(), x.data(), r.data());
}
inline void atanh(std::span<const float> x, std::span<float> r) {
    detail::same_length("atanh", x.size(), r.size());
    tarn_atanhf(x.size(), x.data(), r.data());
}
inline void atanh_native(std::span<const float> x, std::span<float> r) {
    detail::same_length("atanh_native", x.size(), r.size());
    tarn_atanhf_native(x.size(), x.data(), r.data());
}
inline void atanh(std::span<const double> x, std::span<double> r) {
    detail::same_length("atanh", x.size(), r.size());
    tarn_atanh(x.size(), x.data(), r.data());
}
inline void atanh_native(std::span<const double> x, std::span<double> r) {
    detail::same_length("atanh_native", x.size(), r.size());
    tarn_atanh_native(x.size(), x.data(), r.data());
}
inline void erf(std::span<const float> x, std::span<float> r) {
    detail::same_length("erf", x.size(), r.size());
    tarn_erff(x.size(), x.data(), r.data());
}
inline void erf_native(std::span<const float> x, std::span<float> r) {
    detail::same_length("erf_native", x.size(), r.size());
    tarn_erff_native(x.size(), x.data(), r.data());
}
inline void erf(std::span<const double> x, std::span<double> r) {
    detail::same_length("erf", x.size(), r.size());
    tarn_erf(x.size(), x.data(), r.data());
}
inline void erf_native(std::span<const double> x, std::span<double> r) {
    detail::same_length("erf_native", x.size(), r.size());
    tarn_erf_native(x.size(), x.data(), r.data());
}
inline void erfc(std::span<const float> x, std::span<float> r) {
    detail::same_length("erfc", x.size(), r.size());
    tarn_erfcf(x.size(), x.data(), r.data());
}
inline void erfc_native(std::span<const float> x, std::span<float> r) {
    detail::same_length("erfc_native", x.size(), r.size());
    tarn_erfcf_native(x.size(), x.data(), r.data());
}
inline void erfc(std::span<const double> x, std::span<double> r) {
    detail::same_length("erfc", x.size(), r.size());
    tarn_erfc(x.size(), x.data(), r.data());
}
inline void erfc_native(std::span<const double> x, std::span<double> r) {
    detail::same_length("erfc_native", x.size(), r.size());
    tarn_erfc_native(x.size(), x.data(), r.data());
}
inline void tgamma(std::span<const float> x, std::span<float> r) {
    detail::same_length("tgamma", x.size(), r.size());
    tarn_tgammaf(x.size(), x.data(), r.data());
}
inline void tgamma(std::span<const double> x, std::span<double> r) {
    detail::same_length("tgamma", x.size(), r.size());
    tarn_tgamma(x.size(), x.data(), r.data());
}
inline void lgamma(std::span<const float> x, std::span<float> r) {
    detail::same_length("lgamma", x.size(), r.size());
    tarn_lgammaf(x.size(), x.data(), r.data());
}
inline void lgamma(std::span<const double> x, std::span<double> r) {
    detail::same_length("lgamma", x.size(), r.size());
    tarn_lgamma(x.size(), x.data(), r.data());
}
inline void lgammar(std::span<const float> x, std::span<float> r, std::span<int32_t> second) {
    detail::same_length("lgammar", x.size(), r.size(), second.size());
    tarn_lgammarf(x.size(), x.data(), r.data(), second.data());
}
inline void lgammar(std::span<const double> x, std::span<double> r, std::span<int32_t> second) {
    detail::same_length("lgammar", x.size(), r.size(), second.size());
    tarn_lgammar(x.size(), x.data(), r.data(), second.data());
}
inline void ceil(std::span<const float> x, std::span<float> r) {
    detail::same_length("ceil", x.size(), r.size());
    tarn_ceilf(x.size(), x.data(), r.data());
}
inline void ceil(std::span<const double> x, std::span<double> r) {
    detail::same_length("ceil", x.size(), r.size());
    tarn_ceil(x.size(), x.data(), r.data());
}
inline void floor(std::span<const float> x, std::span<float> r) {
    detail::same_length("floor", x.size(), r.size());
    tarn_floorf(x.size(), x.data(), r.data());
}
inline void floor(std::span<const double> x, std::span<double> r) {
    detail::same_length("floor", x.size(), r.size());
    tarn_floor(x.size(), x.data(), r.data());
}
inline void trunc(std::span<const float> x, std::span<float> r) {
    detail::same_length("trunc", x.size(), r.size());
    tarn_truncf(x.size(), x.data(), r.data());
}
inline void trunc(std::span<const double> x, std::span<double> r) {
    detail::same_length("trunc", x.size(), r.size());
    tarn_trunc(x.size(), x.data(), r.data());
}
inline void rint(std::span<const float> x, std::span<float> r) {
    detail::same_length("rint", x.size(), r.size());
    tarn_rintf(x.size(), x.data(), r.data());
}
inline void rint(std::span<const double> x, std::span<double> r) {
    detail::same_length("rint", x.size(), r.size());
    tarn_rint(x.size(), x.data(), r.data());
}
inline void nearbyint(std::span<const float> x, std::span<float> r) {
    detail::same_length("nearbyint", x.size(), r.size());
    tarn_nearbyintf(x.size(), x.data(), r.data());
}
inline void nearbyint(std::span<const double> x, std::span<double> r) {
    detail::same_length("nearbyint", x.size(), r.size());
    tarn_nearbyint(x.size(), x.data(), r.data());
}
inline void round(std::span<const float> x, std::span<float> r) {
    detail::same_length("round", x.size(), r.size());
    tarn_roundf(x.size(), x.data(), r.data());
}
inline void round(std::span<const double> x, std::span<double> r) {
    detail::same_length("round", x.size(), r.size());
    tarn_round(x.size(), x.data(), r.data());
}
inline void fabs(std::span<const float> x, std::span<float> r) {
    detail::same_length("fabs", x.size(), r.size());
    tarn_fabsf(x.size(), x.data(), r.data());
}
inline void fabs(std::span<const double> x, std::span<double> r) {
    detail::same_length("fabs", x.size(), r.size());
    tarn_fabs(x.size(), x.data(), r.data());
}
inline void copysign(std::span<const float> x, std::span<const float> y, std::span<float> r) {
    detail::same_length("copysign", x.size(), y.size(), r.size());
    tarn_copysignf(x.size(), x.data(), y.data(), r.data());
}
inline void copysign(std::span<const double> x, std::span<const double> y, std::span<double> r) {
    detail::same_length("copysign", x.size(), y.size(), r.size());
    tarn_copysign(x.size(), x.data(), y.data(), r.data());
}
inline void nan(std::span<const uint32_t> x, std::span<float> r) {
    detail::same_length("nan", x.size(), r.size());
    tarn_nanf(x.size(), x.data(), r.data());
}
inline void nan(std::span<const uint64_t> x, std::span<double> r) {
    detail::same_length("nan", x.size(), r.size());
    tarn_nan(x.size(), x.data(), r.data());
}
inline void fmin(std::span<const float> x, std::span<const float> y, std::span<float> r) {
    detail::same_length("fmin", x.size(), y.size(), r.size());
    tarn_fminf(x.size(), x.data(), y.data(), r.data());
}
inline void fmin(std::span<const double> x, std::span<const double> y, std::span<double> r) {
    detail::same_length("fmin", x.size(), y.size(), r.size());
    tarn_fmin(x.size(), x.data(), y.data(), r.data());
}
inline void fmax(std::span<const float> x, std::span<const float> y, std::span<float> r) {
    detail::same_length("fmax", x.size(), y.size(), r.size());
    tarn_fmaxf(x.size(), x.data(), y.data(), r.data());
}
inline void fmax(std::span<const double> x, std::span<const double> y, std::span<double> r) {
    detail::same_length("fmax", x.size(), y.size(), r.size());
    tarn_fmax(x.size(), x.data(), y.data(), r.data());
}
inline void maxmag(std::span<const float> x, std::span<const float> y, std::span<float> r) {
    detail::same_length("maxmag", x.size(), y.size(), r.size());
    tarn_maxmagf(x.size(), x.data(), y.data(), r.data());
}
inline void maxmag(std::span<const double> x, std::span<const double> y, std::span<double> r) {
    detail::same_length("maxmag", x.size(), y.size(), r.size());
    tarn_maxmag(x.size(), x.data(), y.data(), r.data());
}
inline void minmag(std::span<const float> x, std::span<const float> y, std::span<float> r) {
    detail::same_length("minmag", x.size(), y.size(), r.size());
    tarn_minmagf(x.size(), x.data(), y.data(), r.data());
}
inline void minmag(std::span<const double> x, std::span<const double> y, std::span<double> r) {
    detail::same_length("minmag", x.size(), y.size(), r.size());
    tarn_minmag(x.size(), x.data(), y.data(), r.data());
}
inline void fdim(std::span<const float> x, std::span<const float> y, std::span<float> r) {
    detail::same_length("fdim", x.size(), y.size(), r.size());
    tarn_fdimf(x.size(), x.data(), y.data(), r.data());
}
inline void fdim(std::span<const double> x, std::span<const double> y, std::span<double> r) {
    detail::same_length("fdim", x.size(), y.size(), r.size());
    tarn_fdim(x.size(), x.data(), y.data(), r.data());
}
inline void frexp(std::span<const float> x, std::span<float> r, std::span<int32_t> second) {
    detail::same_length("frexp", x.size(), r.size(), second.size());
    tarn_frexpf(x.size(), x.data(), r.data(), second.data());
}
inline void frexp(std::span<const double> x, std::span<double> r, std::span<int32_t> second) {
    detail::same_length("frexp", x.size(), r.size(), second.size());
    tarn_frexp(x.size(), x.data(), r.data(), second.data());
}
inline void ilogb(std::span<const float> x, std::span<int32_t> r) {
    detail::same_length("ilogb", x.size(), r.size());
    tarn_ilogbf(x.size(), x.data(), r.data());
}
inline void ilogb(std::span<const double> x, std::span<int32_t> r) {
    detail::same_length("ilogb", x.size(), r.size());
    tarn_ilogb(x.size(), x.data(), r.data());
}
inline void logb(std::span<const float> x, std::span<float> r) {
    detail::same_length("logb", x.size(), r.size());
    tarn_logbf(x.size(), x.data(), r.data());
}
inline void logb(std::span<const double> x, std::span<double> r) {
    detail::same_length("logb", x.size(), r.size());
    tarn_logb(x.size(), x.data(), r.data());
}
inline void fract(std::span<const float> x, std::span<float> r, std::span<float> second) {
    detail::same_length("fract", x.size(), r.size(), second.size());
    tarn_fractf(x.size(), x.data(), r.data(), second.data());
}
inline void fract(std::span<const double> x, std::span<double> r, std::span<double> second) {
    detail::same_length("fract", x.size(), r.size(), second.size());
    tarn_fract(x.size(), x.data(), r.data(), second.data());
}
inline void modf(std::span<const float> x, std::span<float> r, std::span<float> second) {
    detail::same_length("modf", x.size(), r.size(), second.size());
    tarn_modff(x.size(), x.data(), r.data(), second.data());
}
inline void modf(std::span<const double> x, std::span<double> r, std::span<double> second) {
    detail::same_length("modf", x.size(), r.size(), second.size());
    tarn_modf(x.size(), x.data(), r.data(), second.data());
}
inline void ldexp(std::span<const float> x, std::span<const int32_t> k, std::span<float> r) {
    detail::same_length("ldexp", x.size(), k.size(), r.size());
    tarn_ldexpf(x.size(), x.data(), k.data(), r.data());
}
inline void ldexp(std::span<const double> x, std::span<const int32_t> k, std::span<double> r) {
    detail::same_length("ldexp", x.size(), k.size(), r.size());
    tarn_ldexp(x.size(), x.data(), k.data(), r.data());
}
inline void nextafter(std::span<const float> x, std::span<const float> y, std::span<float> r) {
    detail::same_length("nextafter", x.size(), y.size(), r.size());
    tarn_nextafterf(x.size(), x.data(), y.data(), r.data());
}
inline void nextafter(std::span<const double> x, std::span<const double> y, std::span<double> r) {
    detail::same_length("nextafter", x.size(), y.size(), r.size());
    tarn_nextafter(x.size(), x.data(), y.data(), r.data());
}
inline void fmod(std::span<const float> x, std::span<const float> y, std::span<float> r) {
    detail::same_length("fmod", x.size(), y.size(), r.size());
    tarn_fmodf(x.size(), x.data(), y.data(), r.data());
}
inline void fmod(std::span<const double> x, std::span<const double> y, std::span<double> r) {
    detail::same_length("fmod", x.size(), y.size(), r.size());
    tarn_fmod(x.size(), x.data(), y.data(), r.data());
}
inline void remainder(std::span<const float> x, std::span<const float> y, std::span<float> r) {
    detail::same_length("remainder", x.size(), y.size(), r.size());
    tarn_remainderf(x.size(), x.data(), y.data(), r.data());
}
inline void remainder(std::span<const double> x, std::span<const double> y, std::span<double> r) {
    detail::same_length("remainder", x.size(), y.size(), r.size());
    tarn_remainder(x.size(), x.data(), y.data(), r.data());
}
inline void remquo(std::span<const float> x, std::span<const float> y, std::span<float> r, std::span<int32_t> second) {
    detail::same_length("remquo", x.size(), y.size(), r.size(), second.size());
    tarn_remquof(x.size(), x.data(), y.data(), r.data(), second.data());
}
inline void remquo(std::span<const double> x, std::span<const double> y, std::span<double> r, std::span<int32_t> second) {
    detail::same_length("remquo", x.size(), y.size(), r.size(), second.size());
    tarn_remquo(x.size(), x.data(), y.data(), r.data(), second.data());
}
inline void mad(std::span<const float> x, std::span<const float> y, std::span<const float> z, std::span<float> r) {
    detail::same_length("mad", x.size(), y.size(), z.size(), r.size());
    tarn_madf(x.size(), x.data(), y.data(), z.data(), r.data());
}
inline void mad(std::span<const double> x, std::span<const double> y, std::span<const double> z, std::span<double> r) {
    detail::same_length("mad", x.size(), y.size(), z.size(), r.size());
    tarn_mad(x.size(), x.data(), y.data(), z.data(), r.data());
}
inline void fma(std::span<const float> x, std::span<const float> y, std::span<const float> z, std::span<float> r) {
    detail::same_length("fma", x.size(), y.size(), z.size(), r.size());
    tarn_fmaf(x.size(), x.data(), y.data(), z.data(), r.data());
}
inline void fma(std::span<const double> x, std::span<const double> y, std::span<const double> z, std::span<double> r) {
    detail::same_length("fma", x.size(), y.size(), z.size(), r.size());
    tarn_fma(x.size(), x.data(), y.data(), z.data(), r.data());
}
inline void cvtfptoi32rtesat(std::span<const float> x, std::span<int32_t> r) {
    detail::same_length("cvtfptoi32rtesat", x.size(), r.size());
    tarn_cvtfptoi32rtesatf(x.size(), x.data(), r.data());
}
inline void cvtfptoi32rtenosat(std::span<const float> x, std::span<int32_t> r) {
    detail::same_length("cvtfptoi32rtenosat", x.size(), r.size());
    tarn_cvtfptoi32rtenosatf(x.size(), x.data(), r.data());
}
inline void cvtfptoi32rtnsat(std::span<const float> x, std::span<int32_t> r) {
    detail::same_length("cvtfptoi32rtnsat", x.size(), r.size());
    tarn_cvtfptoi32rtnsatf(x.size(), x.data(), r.data());
}
inline void cvtfptoi32rtnnosat(std::span<const float> x, std::span<int32_t> r) {
    detail::same_length("cvtfptoi32rtnnosat", x.size(), r.size());
    tarn_cvtfptoi32rtnnosatf(x.size(), x.data(), r.data());
}
inline void cvtfptoi32rtpsat(std::span<const float> x, std::span<int32_t> r) {
    detail::same_length("cvtfptoi32rtpsat", x.size(), r.size());
    tarn_cvtfptoi32rtpsatf(x.size(), x.data(), r.data());
}
inline void cvtfptoi32rtpnosat(std::span<const float> x, std::span<int32_t> r) {
    detail::same_length("cvtfptoi32rtpnosat", x.size(), r.size());
    tarn_cvtfptoi32rtpnosatf(x.size(), x.data(), r.data());
}
inline void cvtfptoi32rtzsat(std::span<const float> x, std::span<int32_t> r) {
    detail::same_length("cvtfptoi32rtzsat", x.size(), r.size());
    tarn_cvtfptoi32rtzsatf(x.size(), x.data(), r.data());
}
inline void cvtfptoi32rtznosat(std::span<const float> x, std::span<int32_t> r) {
    detail::same_length("cvtfptoi32rtznosat", x.size(), r.size());
    tarn_cvtfptoi32rtznosatf(x.size(), x.data(), r.data());
}
inline void cvtfptou32rtesat(std::span<const float> x, std::span<uint32_t> r) {
    detail::same_length("cvtfptou32rtesat", x.size(), r.size());
    tarn_cvtfptou32rtesatf(x.size(), x.data(), r.data());
}
inline void cvtfptou32rtenosat(std::span<const float> x, std::span<uint32_t> r) {
    detail::same_length("cvtfptou32rtenosat", x.size(), r.size());
    tarn_cvtfptou32rtenosatf(x.size(), x.data(), r.data());
}
inline void cvtfptou32rtnsat(std::span<const float> x, std::span<uint32_t> r) {
    detail::same_length("cvtfptou32rtnsat", x.size(), r.size());
    tarn_cvtfptou32rtnsatf(x.size(), x.data(), r.data());
}
inline void cvtfptou32rtnnosat(std::span<const float> x, std::span<uint32_t> r) {
    detail::same_length("cvtfptou32rtnnosat", x.size(), r.size());
    tarn_cvtfptou32rtnnosatf(x.size(), x.data(), r.data());
}
inline void cvtfptou32rtpsat(std::span<const float> x, std::span<uint32_t> r) {
    detail::same_length("cvtfptou32rtpsat", x.size(), r.size());
    tarn_cvtfptou32rtpsatf(x.size(), x.data(), r.data());
}
inline void cvtfptou32rtpnosat(std::span<const float> x, std::span<uint32_t> r) {
    detail::same_length("cvtfptou32rtpnosat", x.size(), r.size());
    tarn_cvtfptou32rtpnosatf(x.size(), x.data(), r.data());
}
inline void cvtfptou32rtzsat(std::span<const float> x, std::span<uint32_t> r) {
    detail::same_length("cvtfptou32rtzsat", x.size(), r.size());
    tarn_cvtfptou32rtzsatf(x.size(), x.data(), r.data());
}
inline void cvtfptou32rtznosat(std::span<const float> x, std::span<uint32_t> r) {
    detail::same_length("cvtfptou32rtznosat", x.size(), r.size());
    tarn_cvtfptou32rtznosatf(x.size(), x.data(), r.data());
}
inline void cvtfptoi64rtesat(std::span<const float> x, std::span<int64_t> r) {
    detail::same_length("cvtfptoi64rtesat", x.size(), r.size());
    tarn_cvtfptoi64rtesatf(x.size(), x.data(), r.data());
}
inline void cvtfptoi64rtenosat(std::span<const float> x, std::span<int64_t> r) {
    detail::same_length("cvtfptoi64rtenosat", x.size(), r.size());
    tarn_cvtfptoi64rtenosatf(x.size(), x.data(), r.data());
}
inline void cvtfptoi64rtnsat(std::span<const float> x, std::span<int64_t> r) {
    detail::same_length("cvtfptoi64rtnsat", x.size(), r.size());
    tarn_cvtfptoi64rtnsatf(x.size(), x.data(), r.data());
}
inline void cvtfptoi64rtnnosat(std::span<const float> x, std::span<int64_t> r) {
    detail::same_length("cvtfptoi64rtnnosat", x.size(), r.size());
    tarn_cvtfptoi64rtnnosatf(x.size(), x.data(), r.data());
}
inline void cvtfptoi64rtpsat(std::span<const float> x, std::span<int64_t> r) {
    detail::same_length("cvtfptoi64rtpsat", x.size(), r.size());
    tarn_cvtfptoi64rtpsatf(x.size(), x.data(), r.data());
}
inline void cvtfptoi64rtpnosat(std::span<const float> x, std::span<int64_t> r) {
    detail::same_length("cvtfptoi64rtpnosat", x.size(), r.size());
    tarn_cvtfptoi64rtpnosatf(x.size(), x.data(), r.data());
}
inline void cvtfptoi64rtzsat(std::span<const float> x, std::span<int64_t> r) {
    detail::same_length("cvtfptoi64rtzsat", x.size(), r.size());
    tarn_cvtfptoi64rtzsatf(x.size(), x.data(), r.data());
}
inline void cvtfptoi64rtznosat(std::span<const float> x, std::span<int64_t> r) {
    detail::same_length("cvtfptoi64rtznosat", x.size(), r.size());
    tarn_cvtfptoi64rtznosatf(x.size(), x.data(), r.data());
}
inline void cvtfptou64rtesat(std::span<const float> x, std::span<uint64_t> r) {
    detail::same_length("cvtfptou64rtesat", x.size(), r.size());
    tarn_cvtfptou64rtesatf(x.size(), x.data(), r.data());
}
inline void cvtfptou64rtenosat(std::span<const float> x, std::span<uint64_t> r) {
    detail::same_length("cvtfptou64rtenosat", x.size(), r.size());
    tarn_cvtfptou64rtenosatf(x.size(), x.data(), r.data());
}
inline void cvtfptou64rtnsat(std::span<const float> x, std::span<uint64_t> r) {
    detail::same_length("cvtfptou64rtnsat", x.size(), r.size());
    tarn_cvtfptou64rtnsatf(x.size(), x.data(), r.data());
}
inline void cvtfptou64rtnnosat(std::span<const float> x, std::span<uint64_t> r) {
    detail::same_length("cvtfptou64rtnnosat", x.size(), r.size());
    tarn_cvtfptou64rtnnosatf(x.size(), x.data(), r.data());
}
inline void cvtfptou64rtpsat(std::span<const float> x, std::span<uint64_t> r) {
    detail::same_length("cvtfptou64rtpsat", x.size(), r.size());
    tarn_cvtfptou64rtpsatf(x.size(), x.data(), r.data());
}
inline void cvtfptou64rtpnosat(std::span<const float> x, std::span<uint64_t> r) {
    detail::same_length("cvtfptou64rtpnosat", x.size(), r.size());
    tarn_cvtfptou64rtpnosatf(x.size(), x.data(), r.data());
}
inline void cvtfptou64rtzsat(std::span<const float> x, std::span<uint64_t> r) {
    detail::same_length("cvtfptou64rtzsat", x.size(), r.size());
    tarn_cvtfptou64rtzsatf(x.size(), x.data(), r.data());
}
inline void cvtfptou64rtznosat(std::span<const float> x, std::span<uint64_t> r) {
    detail::same_length("cvtfptou64rtznosat", x.size(), r.size());
    tarn_cvtfptou64rtznosatf(x.size(), x.data(), r.data());
}
inline void cvtfptoi32rtesat(std::span<const double> x, std::span<int32_t> r) {
    detail::same_length("cvtfptoi32rtesat", x.size(), r.size());
    tarn_cvtfptoi32rtesat(x.size(), x.data(), r.data());
}
inline void cvtfptoi32rtenosat(std::span<const double> x, std::span<int32_t> r) {
    detail::same_length("cvtfptoi32rtenosat", x.size(), r.size());
    tarn_cvtfptoi32rtenosat(x.size(), x.data(), r.data());
}
inline void cvtfptoi32rtnsat(std::span<const double> x, std::span<int32_t> r) {
    detail::same_length("cvtfptoi32rtnsat", x.size(), r.size());
    tarn_cvtfptoi32rtnsat(x.size(), x.data(), r.data());
}
inline void cvtfptoi32rtnnosat(std::span<const double> x, std::span<int32_t> r) {
    detail::same_length("cvtfptoi32rtnnosat", x.size(), r.size());
    tarn_cvtfptoi32rtnnosat(x.size(), x.data(), r.data());
}
inline void cvtfptoi32rtpsat(std::span<const double> x, std::span<int32_t> r) {
    detail::same_length("cvtfptoi32rtpsat", x.size(), r.size());
    tarn_cvtfptoi32rtpsat(x.size(), x.data(), r.data());
}
inline void cvtfptoi32rtpnosat(std::span<const double> x, std::span<int32_t> r) {
    detail::same_length("cvtfptoi32rtpnosat", x.size(), r.size());
    tarn_cvtfptoi32rtpnosat(x.size(), x.data(), r.data());
}
inline void cvtfptoi32rtzsat(std::span<const double> x, std::span<int32_t> r) {
    detail::same_length("cvtfptoi32rtzsat", x.size(), r.size());
    tarn_cvtfptoi32rtzsat(x.size(), x.data(), r.data());
}
inline void cvtfptoi32rtznosat(std::span<const double> x, std::span<int32_t> r) {
    detail::same_length("cvtfptoi32rtznosat", x.size(), r.size());
    tarn_cvtfptoi32rtznosat(x.size(), x.data(), r.data());
}
inline void cvtfptou32rtesat(std::span<const double> x, std::span<uint32_t> r) {
    detail::same_length("cvtfptou32rtesat", x.size(), r.size());
    tarn_cvtfptou32rtesat(x.size(), x.data(), r.data());
}
inline void cvtfptou32rtenosat(std::span<const double> x, std::span<uint32_t> r) {
    detail::same_length("cvtfptou32rtenosat", x.size(), r.size());
    tarn_cvtfptou32rtenosat(x.size(), x.data(), r.data());
}
inline void cvtfptou32rtnsat(std::span<const double> x, std::span<uint32_t> r) {
    detail::same_length("cvtfptou32rtnsat", x.size(), r.size());
    tarn_cvtfptou32rtnsat(x.size(), x.data(), r.data());
}
inline void cvtfptou32rtnnosat(std::span<const double> x, std::span<uint32_t> r) {
    detail::same_length("cvtfptou32rtnnosat", x.size(), r.size());
    tarn_cvtfptou32rtnnosat(x.size(), x.data(), r.data());
}
inline void cvtfptou32rtpsat(std::span<const double> x, std::span<uint32_t> r) {
    detail::same_length("cvtfptou32rtpsat", x.size(), r.size());
    tarn_cvtfptou32rtpsat(x.size(), x.data(), r.data());
}
inline void cvtfptou32rtpnosat(std::span<const double> x, std::span<uint32_t> r) {
    detail::same_length("cvtfptou32rtpnosat", x.size(), r.size());
    tarn_cvtfptou32rtpnosat(x.size(), x.data(), r.data());
}
inline void cvtfptou32rtzsat(std::span<const double> x, std::span<uint32_t> r) {
    detail::same_length("cvtfptou32rtzsat", x.size(), r.size());
    tarn_cvtfptou32rtzsat(x.size(), x.data(), r.data());
}
inline void cvtfptou32rtznosat(std::span<const double> x, std::span<uint32_t> r) {
    detail::same_length("cvtfptou32rtznosat", x.size(), r.size());
    tarn_cvtfptou32rtznosat(x.size(), x.data(), r.data());
}
inline void cvtfptoi64rtesat(std::span<const double> x, std::span<int64_t> r) {
    detail::same_length("cvtfptoi64rtesat", x.size(), r.size());
    tarn_cvtfptoi64rtesat(x.size(), x.data(), r.data());
}
inline void cvtfptoi64rtenosat(std::span<const double> x, std::span<int64_t> r) {
    detail::same_length("cvtfptoi64rtenosat", x.size(), r.size());
    tarn_cvtfptoi64rtenosat(x.size(), x.data(), r.data());
}
inline void cvtfptoi64rtnsat(std::span<const double> x, std::span<int64_t> r) {
    detail::same_length("cvtfptoi64rtnsat", x.size(), r.size());
    tarn_cvtfptoi64rtnsat(x.size(), x.data(), r.data());
}
inline void cvtfptoi64rtnnosat(std::span<const double> x, std::span<int64_t> r) {
    detail::same_length("cvtfptoi64rtnnosat", x.size(), r.size());
    tarn_cvtfptoi64rtnnosat(x.size(), x.data(), r.data());
}
inline void cvtfptoi64rtpsat(std::span<const double> x, std::span<int64_t> r) {
    detail::same_length("cvtfptoi64rtpsat", x.size(), r.size());
    tarn_cvtfptoi64rtpsat(x.size(), x.data(), r.data());
}
inline void cvtfptoi64rtpnosat(std::span<const double> x, std::span<int64_t> r) {
    detail::same_length("cvtfptoi64rtpnosat", x.size(), r.size());
    tarn_cvtfptoi64rtpnosat(x.size(), x.data(), r.data());
}
inline void cvtfptoi64rtzsat(std::span<const double> x, std::span<int64_t> r) {
    detail::same_length("cvtfptoi64rtzsat", x.size(), r.size());
    tarn_cvtfptoi64rtzsat(x.size(), x.data(), r.data());
}
inline void cvtfptoi64rtznosat(std::span<const double> x, std::span<int64_t> r) {
    detail::same_length("cvtfptoi64rtznosat", x.size(), r.size());
    tarn_cvtfptoi64rtznosat(x.size(), x.data(), r.data());
}
inline void cvtfptou64rtesat(std::span<const double> x, std::span<uint64_t> r) {
    detail::same_length("cvtfptou64rtesat", x.size(), r.size());
    tarn_cvtfptou64rtesat(x.size(), x.data(), r.data());
}
inline void cvtfptou64rtenosat(std::span<const double> x, std::span<uint64_t> r) {
    detail::same_length("cvtfptou64rtenosat", x.size(), r.size());
    tarn_cvtfptou64rtenosat(x.size(), x.data(), r.data());
}
inline void cvtfptou64rtnsat(std::span<const double> x, std::span<uint64_t> r) {
    detail::same_length("cvtfptou64rtnsat", x.size(), r.size());
    tarn_cvtfptou64rtnsat(x.size(), x.data(), r.data());
}
inline void cvtfptou64rtnnosat(std::span<const double> x, std::span<uint64_t> r) {
    detail::same_length("cvtfptou64rtnnosat", x.size(), r.size());
    tarn_cvtfptou64rtnnosat(x.size(), x.data(), r.data());
}
inline void cvtfptou64rtpsat(std::span<const double> x, std::span<uint64_t> r) {
    detail::same_length("cvtfptou64rtpsat", x.size(), r.size());
    tarn_cvtfptou64rtpsat(x.size(), x.data(), r.data());
}
inline void cvtfptou64rtpnosat(std::span<const double> x, std::span<uint64_t> r) {
    detail::same_length("cvtfptou64rtpnosat", x.size(), r.size());
    tarn_cvtfptou64rtpnosat(x.size(), x.data(), r.data());
}
inline void cvtfptou64rtzsat(std::span<const double> x, std::span<uint64_t> r) {
    detail::same_length("cvtfptou64rtzsat", x.size(), r.size());
    tarn_cvtfptou64rtzsat(x.size(), x.data(), r.data());
}
inline void cvtfptou64rtznosat(std::span<const double> x, std::span<uint64_t> r) {
    detail::same_length("cvtfptou64rtznosat", x.size(), r.size());
    tarn_cvtfptou64rtznosat(x.size(), x.data(), r.data());
}
inline void cvti32tofprte(std::span<const int32_t> x, std::span<float> r) {
    detail::same_length("cvti32tofprte", x.size(), r.size());
    tarn_cvti32tofprtef(x.size(), x.data(), r.data());
}
inline void cvti32tofprtn(std::span<const int32_t> x, std::span<float> r) {
    detail::same_length("cvti32tofprtn", x.size(), r.size());
    tarn_cvti32tofprtnf(x.size(), x.data(), r.data());
}
inline void cvti32tofprtp(std::span<const int32_t> x, std::span<float> r) {
    detail::same_length("cvti32tofprtp", x.size(), r.size());
    tarn_cvti32tofprtpf(x.size(), x.data(), r.data());
}
inline void cvti32tofprtz(std::span<const int32_t> x, std::span<float> r) {
    detail::same_length("cvti32tofprtz", x.size(), r.size());
    tarn_cvti32tofprtzf(x.size(), x.data(), r.data());
}
inline void cvtu32tofprte(std::span<const uint32_t> x, std::span<float> r) {
    detail::same_length("cvtu32tofprte", x.size(), r.size());
    tarn_cvtu32tofprtef(x.size(), x.data(), r.data());
}
inline void cvtu32tofprtn(std::span<const uint32_t> x, std::span<float> r) {
    detail::same_length("cvtu32tofprtn", x.size(), r.size());
    tarn_cvtu32tofprtnf(x.size(), x.data(), r.data());
}
inline void cvtu32tofprtp(std::span<const uint32_t> x, std::span<float> r) {
    detail::same_length("cvtu32tofprtp", x.size(), r.size());
    tarn_cvtu32tofprtpf(x.size(), x.data(), r.data());
}
inline void cvtu32tofprtz(std::span<const uint32_t> x, std::span<float> r) {
    detail::same_length("cvtu32tofprtz", x.size(), r.size());
    tarn_cvtu32tofprtzf(x.size(), x.data(), r.data());
}
inline void cvti64tofprte(std::span<const int64_t> x, std::span<float> r) {
    detail::same_length("cvti64tofprte", x.size(), r.size());
    tarn_cvti64tofprtef(x.size(), x.data(), r.data());
}
inline void cvti64tofprtn(std::span<const int64_t> x, std::span<float> r) {
    detail::same_length("cvti64tofprtn", x.size(), r.size());
    tarn_cvti64tofprtnf(x.size(), x.data(), r.data());
}
inline void cvti64tofprtp(std::span<const int64_t> x, std::span<float> r) {
    detail::same_length("cvti64tofprtp", x.size(), r.size());
    tarn_cvti64tofprtpf(x.size(), x.data(), r.data());
}
inline void cvti64tofprtz(std::span<const int64_t> x, std::span<float> r) {
    detail::same_length("cvti64tofprtz", x.size(), r.size());
    tarn_cvti64tofprtzf(x.size(), x.data(), r.data());
}
inline void cvtu64tofprte(std::span<const uint64_t> x, std::span<float> r) {
    detail::same_length("cvtu64tofprte", x.size(), r.size());
    tarn_cvtu64tofprtef(x.size(), x.data(), r.data());
}
inline void cvtu64tofprtn(std::span<const uint64_t> x, std::span<float> r) {
    detail::same_length("cvtu64tofprtn", x.size(), r.size());
    tarn_cvtu64tofprtnf(x.size(), x.data(), r.data());
}
inline void cvtu64tofprtp(std::span<const uint64_t> x, std::span<float> r) {
    detail::same_length("cvtu64tofprtp", x.size(), r.size());
    tarn_cvtu64tofprtpf(x.size(), x.data(), r.data());
}
inline void cvtu64tofprtz(std::span<const uint64_t> x, std::span<float> r) {
    detail::same_length("cvtu64tofprtz", x.size(), r.size());
    tarn_cvtu64tofprtzf(x.size(), x.data(), r.data());
}
inline void cvti32tofprte(std::span<const int32_t> x, std::span<double> r) {
    detail::same_length("cvti32tofprte", x.size(), r.size());
    tarn_cvti32tofprte(x.size(), x.data(), r.data());
}
inline void cvti32tofprtn(std::span<const int32_t> x, std::span<double> r) {
    detail::same_length("cvti32tofprtn", x.size(), r.size());
    tarn_cvti32tofprtn(x.size(), x.data(), r.data());
}
inline void cvti32tofprtp(std::span<const int32_t> x, std::span<double> r) {
    detail::same_length("cvti32tofprtp", x.size(), r.size());
    tarn_cvti32tofprtp(x.size(), x.data(), r.data());
}
inline void cvti32tofprtz(std::span<const int32_t> x, std::span<double> r) {
    detail::same_length("cvti32tofprtz", x.size(), r.size());
    tarn_cvti32tofprtz(x.size(), x.data(), r.data());
}
inline void cvtu32tofprte(std::span<const uint32_t> x, std::span<double> r) {
    detail::same_length("cvtu32tofprte", x.size(), r.size());
    tarn_cvtu32tofprte(x.size(), x.data(), r.data());
}
inline void cvtu32tofprtn(std::span<const uint32_t> x, std::span<double> r) {
    detail::same_length("cvtu32tofprtn", x.size(), r.size());
    tarn_cvtu32tofprtn(x.size(), x.data(), r.data());
}
inline void cvtu32tofprtp(std::span<const uint32_t> x, std::span<double> r) {
    detail::same_length("cvtu32tofprtp", x.size(), r.size());
    tarn_cvtu32tofprtp(x.size(), x.data(), r.data());
}
inline void cvtu32tofprtz(std::span<const uint32_t> x, std::span<double> r) {
    detail::same_length("cvtu32tofprtz", x.size(), r.size());
    tarn_cvtu32tofprtz(x.size(), x.data(), r.data());
}
inline void cvti64tofprte(std::span<const int64_t> x, std::span<double> r) {
    detail::same_length("cvti64tofprte", x.size(), r.size());
    tarn_cvti64tofprte(x.size(), x.data(), r.data());
}
inline void cvti64tofprtn(std::span<const int64_t> x, std::span<double> r) {
    detail::same_length("cvti64tofprtn", x.size(), r.size());
    tarn_cvti64tofprtn(x.size(), x.data(), r.data());
}
inline void cvti64tofprtp(std::span<const int64_t> x, std::span<double> r) {
    detail::same_length("cvti64tofprtp", x.size(), r.size());
    tarn_cvti64tofprtp(x.size(), x.data(), r.data());
}
inline void cvti64tofprtz(std::span<const int64_t> x, std::span<double> r) {
    detail::same_length("cvti64tofprtz", x.size(), r.size());
    tarn_cvti64tofprtz(x.size(), x.data(), r.data());
}
inline void cvtu64tofprte(std::span<const uint64_t> x, std::span<double> r) {
    detail::same_length("cvtu64tofprte", x.size(), r.size());
    tarn_cvtu64tofprte(x.size(), x.data(), r.data());
}
inline void cvtu64tofprtn(std::span<const uint64_t> x, std::span<double> r) {
    detail::same_length("cvtu64tofprtn", x.size(), r.size());
    tarn_cvtu64tofprtn(x.size(), x.data(), r.data());
}
inline void cvtu64tofprtp(std::span<const uint64_t> x, std::span<double> r) {
    detail::same_length("cvtu64tofprtp", x.size(), r.size());
    tarn_cvtu64tofprtp(x.size(), x.data(), r.data());
}
inline void cvtu64tofprtz(std::span<const uint64_t> x, std::span<double> r) {
    detail::same_length("cvtu64tofprtz", x.size(), r.size());
    tarn_cvtu64tofprtz(x.size(), x.data(), r.data());
}
inline void cvtfp64tofp32rte(std::span<const double> x, std::span<float> r) {
    detail::same_length("cvtfp64tofp32rte", x.size(), r.size());
    tarn_cvtfp64tofp32rte(x.size(), x.data(), r.data());
}
inline void cvtfp64tofp32rtn(std::span<const double> x, std::span<float> r) {
    detail::same_length("cvtfp64tofp32rtn", x.size(), r.size());
    tarn_cvtfp64tofp32rtn(x.size(), x.data(), r.data());
}
inline void cvtfp64tofp32rtp(std::span<const double> x, std::span<float> r) {
    detail::same_length("cvtfp64tofp32rtp", x.size(), r.size());
    tarn_cvtfp64tofp32rtp(x.size(), x.data(), r.data());
}
inline void cvtfp64tofp32rtz(std::span<const double> x, std::span<float> r) {
    detail::same_length("cvtfp64tofp32rtz", x.size(), r.size());
    tarn_cvtfp64tofp32rtz(x.size(), x.data(), r.data());
}

}  // namespace tarn
#endif
#endif
