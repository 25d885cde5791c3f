/* Vector math: the OpenCL C built-in functions on vectors of 1, 2, 3, 4, 8 and 16 lanes, in single and
 * double precision, for x86-64 with SSE4.1.
 *
 *     __ocl_tarn_k1_<base><width>[_native|_half]
 *
 * A base that ends in f is single precision (but erf and modf are double). Without a suffix a function keeps
 * the OpenCL error bound; _native is fast and only as accurate as its comment says; _half lies between.
 * Functions hold no state, change no control register and may be called from any thread and signal handler.
 *
 * A lane has the same bits at every width and beside any neighbours, but where a function's comment says
 * otherwise. Errors and special values hold while the processor rounds to nearest and subnormals are on. In
 * other rounding modes errors grow, some to percents (docs/contract.md has the figures); with FTZ subnormal
 * results are zeros, with DAZ subnormal arguments are (logf(1e-40) is -inf). Conversions to floating point named rte
 * round as the processor does. Overflow, underflow, invalid and division by zero are raised where they occur;
 * others may be raised besides. Functions are declared const, so that a compiler may merge, move and drop their
 * calls: define TARN_FENV_ACCESS before the header if you change the rounding mode or look at flags.
 *
 * Vectors travel as in the System V ABI: up to 16 bytes in one register, longer ones as a struct of 16-byte
 * blocks, lane 0 first. Width 3 is stored as width 4: what its lane 3 holds is ignored, and undefined in
 * a result. A second result goes through a pointer to its lanes, as many as the width stores (four for
 * width 3), at any alignment.
 *
 * Errors are in units in the last place (ulp) of the exact result.
 *
 * Generated from the table of families by tarn-exports; edit the table. */
#ifndef OCL_TARN_K1_H
#define OCL_TARN_K1_H

#define TARN_VERSION_MAJOR 1
#define TARN_VERSION_MINOR 0
#define TARN_VERSION_PATCH 0

#include <stdint.h>

#ifdef _WIN32
#error "Windows x64 has a header of its own: ocl_tarn_k1_windows.h"
#endif
#if !defined(__x86_64__) || !(defined(__GNUC__) || defined(__clang__))
#error "this library is for x86-64, and its vector types are those of GCC and Clang"
#endif

#ifdef TARN_FENV_ACCESS
#define TARN_CONST /* calls stay where they are between changes of the floating-point environment */
#else
#define TARN_CONST __attribute__((const)) /* the result depends on nothing but the arguments */
#endif

#ifdef __cplusplus
extern "C" {
#endif
#pragma GCC visibility push(default)

/* Vectors --------------------------------------------------------------------------------------- */

typedef float tarn_float2 __attribute__((vector_size(8)));
typedef float tarn_float4 __attribute__((vector_size(16)));
typedef tarn_float4 tarn_float3;
typedef struct tarn_float8 { tarn_float4 block[2]; } tarn_float8;
typedef struct tarn_float16 { tarn_float4 block[4]; } tarn_float16;

typedef double tarn_double2 __attribute__((vector_size(16)));
typedef struct tarn_double4 { tarn_double2 block[2]; } tarn_double4;
typedef tarn_double4 tarn_double3;
typedef struct tarn_double8 { tarn_double2 block[4]; } tarn_double8;
typedef struct tarn_double16 { tarn_double2 block[8]; } tarn_double16;

typedef int32_t tarn_int2 __attribute__((vector_size(8)));
typedef int32_t tarn_int4 __attribute__((vector_size(16)));
typedef tarn_int4 tarn_int3;
typedef struct tarn_int8 { tarn_int4 block[2]; } tarn_int8;
typedef struct tarn_int16 { tarn_int4 block[4]; } tarn_int16;

typedef uint32_t tarn_uint2 __attribute__((vector_size(8)));
typedef uint32_t tarn_uint4 __attribute__((vector_size(16)));
typedef tarn_uint4 tarn_uint3;
typedef struct tarn_uint8 { tarn_uint4 block[2]; } tarn_uint8;
typedef struct tarn_uint16 { tarn_uint4 block[4]; } tarn_uint16;

typedef int64_t tarn_long2 __attribute__((vector_size(16)));
typedef struct tarn_long4 { tarn_long2 block[2]; } tarn_long4;
typedef tarn_long4 tarn_long3;
typedef struct tarn_long8 { tarn_long2 block[4]; } tarn_long8;
typedef struct tarn_long16 { tarn_long2 block[8]; } tarn_long16;

typedef uint64_t tarn_ulong2 __attribute__((vector_size(16)));
typedef struct tarn_ulong4 { tarn_ulong2 block[2]; } tarn_ulong4;
typedef tarn_ulong4 tarn_ulong3;
typedef struct tarn_ulong8 { tarn_ulong2 block[4]; } tarn_ulong8;
typedef struct tarn_ulong16 { tarn_ulong2 block[8]; } tarn_ulong16;

/* Sine and cosine together. */
typedef struct tarn_sincos_float1 { float sine, cosine; } tarn_sincos_float1;
typedef struct tarn_sincos_float2 { tarn_float2 sine, cosine; } tarn_sincos_float2;
typedef struct tarn_sincos_float3 { tarn_float3 sine, cosine; } tarn_sincos_float3;
typedef struct tarn_sincos_float4 { tarn_float4 sine, cosine; } tarn_sincos_float4;
typedef struct tarn_sincos_float8 { tarn_float8 sine, cosine; } tarn_sincos_float8;
typedef struct tarn_sincos_float16 { tarn_float16 sine, cosine; } tarn_sincos_float16;
typedef struct tarn_sincos_double1 { double sine, cosine; } tarn_sincos_double1;
typedef struct tarn_sincos_double2 { tarn_double2 sine, cosine; } tarn_sincos_double2;
typedef struct tarn_sincos_double3 { tarn_double3 sine, cosine; } tarn_sincos_double3;
typedef struct tarn_sincos_double4 { tarn_double4 sine, cosine; } tarn_sincos_double4;
typedef struct tarn_sincos_double8 { tarn_double8 sine, cosine; } tarn_sincos_double8;
typedef struct tarn_sincos_double16 { tarn_double16 sine, cosine; } tarn_sincos_double16;

/* Exponentials ------------------------------------------------------------------------------------ */

/* expf: e^x. Domain: every x. Special values: +inf gives +inf, -inf +0; overflow gives +inf, underflow a
   subnormal or +0. Worst error 2.932 ulp (OpenCL allows 3); native and half 2169; measured over all inputs. */
float __ocl_tarn_k1_expf1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_expf2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_expf3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_expf4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_expf8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_expf16(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_expf1_native(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_expf2_native(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_expf3_native(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_expf4_native(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_expf8_native(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_expf16_native(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_expf1_half(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_expf2_half(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_expf3_half(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_expf4_half(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_expf8_half(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_expf16_half(tarn_float16 x) TARN_CONST;

/* exp: e^x. Domain: every x. Special values: +inf gives +inf, -inf +0; overflow gives +inf, underflow a
   subnormal or +0. Largest error found 2.658 ulp, width 2 3.009, proved at most 2.6596 on the fast path, at
   width 2 3.0243 (OpenCL allows 3, exceeded at width 2); native 5.944e+07; by directed search, 1193 million
   evaluations (native 362 million; width 2 4127 million). Width 2 has a kernel of its own (full). exp(+-0)
   is one unit below 1, but at width 2. */
double __ocl_tarn_k1_exp1(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_exp2(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_exp3(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_exp4(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_exp8(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_exp16(tarn_double16 x) TARN_CONST;
double __ocl_tarn_k1_exp1_native(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_exp2_native(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_exp3_native(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_exp4_native(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_exp8_native(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_exp16_native(tarn_double16 x) TARN_CONST;

/* exp2f: 2^x. Domain: every x. Special values: +inf gives +inf, -inf +0; overflow gives +inf, underflow a
   subnormal or +0. Worst error 1.102 ulp, width 1 0.5069, width 4 2.555 (OpenCL allows 3); native and half
   1230; measured over all inputs. Widths 1 and 4 have kernels of their own (full). */
float __ocl_tarn_k1_exp2f1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_exp2f2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_exp2f3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_exp2f4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_exp2f8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_exp2f16(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_exp2f1_native(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_exp2f2_native(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_exp2f3_native(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_exp2f4_native(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_exp2f8_native(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_exp2f16_native(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_exp2f1_half(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_exp2f2_half(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_exp2f3_half(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_exp2f4_half(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_exp2f8_half(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_exp2f16_half(tarn_float16 x) TARN_CONST;

/* exp2: 2^x. Domain: every x. Special values: +inf gives +inf, -inf +0; overflow gives +inf, underflow a
   subnormal or +0. Largest error found 1.643 ulp, proved at most 1.6928 on the fast path (OpenCL allows 3);
   native 2.978e+07; by directed search, 1028 million evaluations (native 377 million). */
double __ocl_tarn_k1_exp21(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_exp22(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_exp23(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_exp24(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_exp28(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_exp216(tarn_double16 x) TARN_CONST;
double __ocl_tarn_k1_exp21_native(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_exp22_native(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_exp23_native(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_exp24_native(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_exp28_native(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_exp216_native(tarn_double16 x) TARN_CONST;

/* exp10f: 10^x. Domain: every x. Special values: +inf gives +inf, -inf +0; overflow gives +inf, underflow a
   subnormal or +0. Worst error 2.922 ulp (OpenCL allows 3); native and half 1304; measured over all inputs.
   exp10f(+-0) is one unit above 1. */
float __ocl_tarn_k1_exp10f1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_exp10f2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_exp10f3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_exp10f4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_exp10f8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_exp10f16(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_exp10f1_native(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_exp10f2_native(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_exp10f3_native(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_exp10f4_native(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_exp10f8_native(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_exp10f16_native(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_exp10f1_half(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_exp10f2_half(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_exp10f3_half(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_exp10f4_half(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_exp10f8_half(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_exp10f16_half(tarn_float16 x) TARN_CONST;

/* exp10: 10^x. Domain: every x. Special values: +inf gives +inf, -inf +0; overflow gives +inf, underflow a
   subnormal or +0. Largest error found 1.004 ulp (OpenCL allows 3); native 2.978e+07; by directed search,
   334 million evaluations (native 290 million). */
double __ocl_tarn_k1_exp101(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_exp102(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_exp103(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_exp104(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_exp108(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_exp1016(tarn_double16 x) TARN_CONST;
double __ocl_tarn_k1_exp101_native(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_exp102_native(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_exp103_native(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_exp104_native(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_exp108_native(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_exp1016_native(tarn_double16 x) TARN_CONST;

/* expm1f: e^x - 1. Domain: every x. Special values: +inf gives +inf, -inf -1; zeros keep their sign. Worst
   error 1.802 ulp (OpenCL allows 3); native 283.7; measured over all inputs. */
float __ocl_tarn_k1_expm1f1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_expm1f2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_expm1f3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_expm1f4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_expm1f8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_expm1f16(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_expm1f1_native(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_expm1f2_native(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_expm1f3_native(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_expm1f4_native(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_expm1f8_native(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_expm1f16_native(tarn_float16 x) TARN_CONST;

/* expm1: e^x - 1. Domain: every x. Special values: +inf gives +inf, -inf -1; zeros keep their sign. Largest
   error found 1.978 ulp (OpenCL allows 3); native 5.189e+06; by directed search, 567 million evaluations
   (native 447 million). */
double __ocl_tarn_k1_expm11(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_expm12(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_expm13(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_expm14(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_expm18(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_expm116(tarn_double16 x) TARN_CONST;
double __ocl_tarn_k1_expm11_native(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_expm12_native(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_expm13_native(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_expm14_native(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_expm18_native(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_expm116_native(tarn_double16 x) TARN_CONST;

/* Logarithms -------------------------------------------------------------------------------------- */

/* logf: ln x. Domain: x >= 0. Special values: zeros give -inf, +inf +inf, negative x NaN. Worst error
   0.9736 ulp (OpenCL allows 3); native 8314, half 3.965; measured over all inputs. */
float __ocl_tarn_k1_logf1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_logf2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_logf3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_logf4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_logf8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_logf16(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_logf1_native(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_logf2_native(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_logf3_native(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_logf4_native(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_logf8_native(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_logf16_native(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_logf1_half(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_logf2_half(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_logf3_half(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_logf4_half(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_logf8_half(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_logf16_half(tarn_float16 x) TARN_CONST;

/* log: ln x. Domain: x >= 0. Special values: zeros give -inf, +inf +inf, negative x NaN. Largest error
   found 1.589 ulp, proved at most 8.4538 on the fast path with any processor's estimates (OpenCL allows 3);
   native 2.095e+06; by directed search, 1549 million evaluations (native 429 million). Last bits may differ
   between processor makers (full and native). */
double __ocl_tarn_k1_log1(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_log2(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_log3(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_log4(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_log8(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_log16(tarn_double16 x) TARN_CONST;
double __ocl_tarn_k1_log1_native(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_log2_native(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_log3_native(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_log4_native(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_log8_native(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_log16_native(tarn_double16 x) TARN_CONST;

/* log2f: log2 x. Domain: x >= 0. Special values: zeros give -inf, +inf +inf, negative x NaN; exact at
   powers of two. Worst error 2.612 ulp (OpenCL allows 3); native and half 893.5; measured over all inputs. */
float __ocl_tarn_k1_log2f1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_log2f2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_log2f3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_log2f4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_log2f8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_log2f16(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_log2f1_native(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_log2f2_native(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_log2f3_native(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_log2f4_native(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_log2f8_native(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_log2f16_native(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_log2f1_half(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_log2f2_half(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_log2f3_half(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_log2f4_half(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_log2f8_half(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_log2f16_half(tarn_float16 x) TARN_CONST;

/* log2: log2 x. Domain: x >= 0. Special values: zeros give -inf, +inf +inf, negative x NaN; exact at powers
   of two. Largest error found 2.089 ulp (OpenCL allows 3); native 2.426e+06; by directed search, 1052
   million evaluations (native by samples). Last bits may differ between processor makers (full and native). */
double __ocl_tarn_k1_log21(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_log22(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_log23(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_log24(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_log28(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_log216(tarn_double16 x) TARN_CONST;
double __ocl_tarn_k1_log21_native(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_log22_native(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_log23_native(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_log24_native(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_log28_native(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_log216_native(tarn_double16 x) TARN_CONST;

/* log10f: log10 x. Domain: x >= 0. Special values: zeros give -inf, +inf +inf, negative x NaN. Worst error
   2.627 ulp (OpenCL allows 3); native and half 995.7; measured over all inputs. */
float __ocl_tarn_k1_log10f1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_log10f2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_log10f3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_log10f4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_log10f8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_log10f16(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_log10f1_native(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_log10f2_native(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_log10f3_native(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_log10f4_native(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_log10f8_native(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_log10f16_native(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_log10f1_half(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_log10f2_half(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_log10f3_half(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_log10f4_half(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_log10f8_half(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_log10f16_half(tarn_float16 x) TARN_CONST;

/* log10: log10 x. Domain: x >= 0. Special values: zeros give -inf, +inf +inf, negative x NaN. Largest error
   found 2.093 ulp (OpenCL allows 3); native 2.921e+06; by directed search, 270 million evaluations (native
   by samples). Last bits may differ between processor makers (full and native). */
double __ocl_tarn_k1_log101(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_log102(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_log103(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_log104(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_log108(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_log1016(tarn_double16 x) TARN_CONST;
double __ocl_tarn_k1_log101_native(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_log102_native(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_log103_native(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_log104_native(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_log108_native(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_log1016_native(tarn_double16 x) TARN_CONST;

/* log1pf: ln(1 + x). Domain: x >= -1. Special values: -1 gives -inf, +inf +inf, x < -1 NaN; zeros keep
   their sign. Worst error 0.622 ulp (OpenCL allows 2); native 1568; measured over all inputs. Last bits may
   differ between processor makers (full). */
float __ocl_tarn_k1_log1pf1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_log1pf2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_log1pf3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_log1pf4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_log1pf8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_log1pf16(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_log1pf1_native(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_log1pf2_native(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_log1pf3_native(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_log1pf4_native(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_log1pf8_native(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_log1pf16_native(tarn_float16 x) TARN_CONST;

/* log1p: ln(1 + x). Domain: x >= -1. Special values: -1 gives -inf, +inf +inf, x < -1 NaN; zeros keep their
   sign. Largest error found 0.7449 ulp, proved at most 2.2556 on the fast path with any processor's
   estimates (OpenCL allows 2); native 2.095e+06; by directed search, 196 million evaluations (native 339
   million). Last bits may differ between processor makers (full and native). */
double __ocl_tarn_k1_log1p1(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_log1p2(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_log1p3(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_log1p4(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_log1p8(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_log1p16(tarn_double16 x) TARN_CONST;
double __ocl_tarn_k1_log1p1_native(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_log1p2_native(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_log1p3_native(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_log1p4_native(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_log1p8_native(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_log1p16_native(tarn_double16 x) TARN_CONST;

/* Powers ------------------------------------------------------------------------------------------ */

/* powf: x^y. Domain: x >= 0, or y an integer. Special values: C99 Annex F. Largest error found 1.099 ulp,
   proved at most 2.8618 on the fast path with any processor's estimates (OpenCL allows 16); native 4467; by
   190 million samples, most of them near 1. Last bits may differ between processor makers (full). */
float __ocl_tarn_k1_powf1(float x, float y) TARN_CONST;
tarn_float2 __ocl_tarn_k1_powf2(tarn_float2 x, tarn_float2 y) TARN_CONST;
tarn_float3 __ocl_tarn_k1_powf3(tarn_float3 x, tarn_float3 y) TARN_CONST;
tarn_float4 __ocl_tarn_k1_powf4(tarn_float4 x, tarn_float4 y) TARN_CONST;
tarn_float8 __ocl_tarn_k1_powf8(tarn_float8 x, tarn_float8 y) TARN_CONST;
tarn_float16 __ocl_tarn_k1_powf16(tarn_float16 x, tarn_float16 y) TARN_CONST;
float __ocl_tarn_k1_powf1_native(float x, float y) TARN_CONST;
tarn_float2 __ocl_tarn_k1_powf2_native(tarn_float2 x, tarn_float2 y) TARN_CONST;
tarn_float3 __ocl_tarn_k1_powf3_native(tarn_float3 x, tarn_float3 y) TARN_CONST;
tarn_float4 __ocl_tarn_k1_powf4_native(tarn_float4 x, tarn_float4 y) TARN_CONST;
tarn_float8 __ocl_tarn_k1_powf8_native(tarn_float8 x, tarn_float8 y) TARN_CONST;
tarn_float16 __ocl_tarn_k1_powf16_native(tarn_float16 x, tarn_float16 y) TARN_CONST;

/* pow: x^y. Domain: x >= 0, or y an integer. Special values: C99 Annex F. Largest error found 1.675 ulp
   (OpenCL allows 16); native 5.254e+07; by directed search, 412 million evaluations (native 111 million). */
double __ocl_tarn_k1_pow1(double x, double y) TARN_CONST;
tarn_double2 __ocl_tarn_k1_pow2(tarn_double2 x, tarn_double2 y) TARN_CONST;
tarn_double3 __ocl_tarn_k1_pow3(tarn_double3 x, tarn_double3 y) TARN_CONST;
tarn_double4 __ocl_tarn_k1_pow4(tarn_double4 x, tarn_double4 y) TARN_CONST;
tarn_double8 __ocl_tarn_k1_pow8(tarn_double8 x, tarn_double8 y) TARN_CONST;
tarn_double16 __ocl_tarn_k1_pow16(tarn_double16 x, tarn_double16 y) TARN_CONST;
double __ocl_tarn_k1_pow1_native(double x, double y) TARN_CONST;
tarn_double2 __ocl_tarn_k1_pow2_native(tarn_double2 x, tarn_double2 y) TARN_CONST;
tarn_double3 __ocl_tarn_k1_pow3_native(tarn_double3 x, tarn_double3 y) TARN_CONST;
tarn_double4 __ocl_tarn_k1_pow4_native(tarn_double4 x, tarn_double4 y) TARN_CONST;
tarn_double8 __ocl_tarn_k1_pow8_native(tarn_double8 x, tarn_double8 y) TARN_CONST;
tarn_double16 __ocl_tarn_k1_pow16_native(tarn_double16 x, tarn_double16 y) TARN_CONST;

/* powrf: x^y for x >= 0. Domain: x >= 0. Special values: x < 0 gives NaN; 0^0, inf^0 and 1^inf give NaN.
   Largest error found 3.088 ulp (OpenCL allows 16); native and half 4488; by directed search, 453 million
   evaluations (native 131 million). */
float __ocl_tarn_k1_powrf1(float x, float y) TARN_CONST;
tarn_float2 __ocl_tarn_k1_powrf2(tarn_float2 x, tarn_float2 y) TARN_CONST;
tarn_float3 __ocl_tarn_k1_powrf3(tarn_float3 x, tarn_float3 y) TARN_CONST;
tarn_float4 __ocl_tarn_k1_powrf4(tarn_float4 x, tarn_float4 y) TARN_CONST;
tarn_float8 __ocl_tarn_k1_powrf8(tarn_float8 x, tarn_float8 y) TARN_CONST;
tarn_float16 __ocl_tarn_k1_powrf16(tarn_float16 x, tarn_float16 y) TARN_CONST;
float __ocl_tarn_k1_powrf1_native(float x, float y) TARN_CONST;
tarn_float2 __ocl_tarn_k1_powrf2_native(tarn_float2 x, tarn_float2 y) TARN_CONST;
tarn_float3 __ocl_tarn_k1_powrf3_native(tarn_float3 x, tarn_float3 y) TARN_CONST;
tarn_float4 __ocl_tarn_k1_powrf4_native(tarn_float4 x, tarn_float4 y) TARN_CONST;
tarn_float8 __ocl_tarn_k1_powrf8_native(tarn_float8 x, tarn_float8 y) TARN_CONST;
tarn_float16 __ocl_tarn_k1_powrf16_native(tarn_float16 x, tarn_float16 y) TARN_CONST;
float __ocl_tarn_k1_powrf1_half(float x, float y) TARN_CONST;
tarn_float2 __ocl_tarn_k1_powrf2_half(tarn_float2 x, tarn_float2 y) TARN_CONST;
tarn_float3 __ocl_tarn_k1_powrf3_half(tarn_float3 x, tarn_float3 y) TARN_CONST;
tarn_float4 __ocl_tarn_k1_powrf4_half(tarn_float4 x, tarn_float4 y) TARN_CONST;
tarn_float8 __ocl_tarn_k1_powrf8_half(tarn_float8 x, tarn_float8 y) TARN_CONST;
tarn_float16 __ocl_tarn_k1_powrf16_half(tarn_float16 x, tarn_float16 y) TARN_CONST;

/* powr: x^y for x >= 0. Domain: x >= 0. Special values: x < 0 gives NaN; 0^0, inf^0 and 1^inf give NaN.
   Largest error found 1.684 ulp (OpenCL allows 16); native 5.281e+07; by directed search, 304 million
   evaluations (native 77 million). */
double __ocl_tarn_k1_powr1(double x, double y) TARN_CONST;
tarn_double2 __ocl_tarn_k1_powr2(tarn_double2 x, tarn_double2 y) TARN_CONST;
tarn_double3 __ocl_tarn_k1_powr3(tarn_double3 x, tarn_double3 y) TARN_CONST;
tarn_double4 __ocl_tarn_k1_powr4(tarn_double4 x, tarn_double4 y) TARN_CONST;
tarn_double8 __ocl_tarn_k1_powr8(tarn_double8 x, tarn_double8 y) TARN_CONST;
tarn_double16 __ocl_tarn_k1_powr16(tarn_double16 x, tarn_double16 y) TARN_CONST;
double __ocl_tarn_k1_powr1_native(double x, double y) TARN_CONST;
tarn_double2 __ocl_tarn_k1_powr2_native(tarn_double2 x, tarn_double2 y) TARN_CONST;
tarn_double3 __ocl_tarn_k1_powr3_native(tarn_double3 x, tarn_double3 y) TARN_CONST;
tarn_double4 __ocl_tarn_k1_powr4_native(tarn_double4 x, tarn_double4 y) TARN_CONST;
tarn_double8 __ocl_tarn_k1_powr8_native(tarn_double8 x, tarn_double8 y) TARN_CONST;
tarn_double16 __ocl_tarn_k1_powr16_native(tarn_double16 x, tarn_double16 y) TARN_CONST;

/* pownf: x^n, n an integer. Domain: every x. Special values: x^0 is 1, also for a NaN. Largest error found
   4.078 ulp (OpenCL allows 16); native 5518; by directed search, 342 million evaluations (native 155
   million). */
float __ocl_tarn_k1_pownf1(float x, int32_t n) TARN_CONST;
tarn_float2 __ocl_tarn_k1_pownf2(tarn_float2 x, tarn_int2 n) TARN_CONST;
tarn_float3 __ocl_tarn_k1_pownf3(tarn_float3 x, tarn_int3 n) TARN_CONST;
tarn_float4 __ocl_tarn_k1_pownf4(tarn_float4 x, tarn_int4 n) TARN_CONST;
tarn_float8 __ocl_tarn_k1_pownf8(tarn_float8 x, tarn_int8 n) TARN_CONST;
tarn_float16 __ocl_tarn_k1_pownf16(tarn_float16 x, tarn_int16 n) TARN_CONST;
float __ocl_tarn_k1_pownf1_native(float x, int32_t n) TARN_CONST;
tarn_float2 __ocl_tarn_k1_pownf2_native(tarn_float2 x, tarn_int2 n) TARN_CONST;
tarn_float3 __ocl_tarn_k1_pownf3_native(tarn_float3 x, tarn_int3 n) TARN_CONST;
tarn_float4 __ocl_tarn_k1_pownf4_native(tarn_float4 x, tarn_int4 n) TARN_CONST;
tarn_float8 __ocl_tarn_k1_pownf8_native(tarn_float8 x, tarn_int8 n) TARN_CONST;
tarn_float16 __ocl_tarn_k1_pownf16_native(tarn_float16 x, tarn_int16 n) TARN_CONST;

/* pown: x^n, n an integer. Domain: every x. Special values: x^0 is 1, also for a NaN. Largest error found
   1.663 ulp (OpenCL allows 16); native 5.231e+07; by directed search, 376 million evaluations (native 81
   million). */
double __ocl_tarn_k1_pown1(double x, int32_t n) TARN_CONST;
tarn_double2 __ocl_tarn_k1_pown2(tarn_double2 x, tarn_int2 n) TARN_CONST;
tarn_double3 __ocl_tarn_k1_pown3(tarn_double3 x, tarn_int3 n) TARN_CONST;
tarn_double4 __ocl_tarn_k1_pown4(tarn_double4 x, tarn_int4 n) TARN_CONST;
tarn_double8 __ocl_tarn_k1_pown8(tarn_double8 x, tarn_int8 n) TARN_CONST;
tarn_double16 __ocl_tarn_k1_pown16(tarn_double16 x, tarn_int16 n) TARN_CONST;
double __ocl_tarn_k1_pown1_native(double x, int32_t n) TARN_CONST;
tarn_double2 __ocl_tarn_k1_pown2_native(tarn_double2 x, tarn_int2 n) TARN_CONST;
tarn_double3 __ocl_tarn_k1_pown3_native(tarn_double3 x, tarn_int3 n) TARN_CONST;
tarn_double4 __ocl_tarn_k1_pown4_native(tarn_double4 x, tarn_int4 n) TARN_CONST;
tarn_double8 __ocl_tarn_k1_pown8_native(tarn_double8 x, tarn_int8 n) TARN_CONST;
tarn_double16 __ocl_tarn_k1_pown16_native(tarn_double16 x, tarn_int16 n) TARN_CONST;

/* rootnf: x^(1/n), n an integer. Domain: x >= 0, or n odd. Special values: n = 0 gives NaN, x < 0 with even
   n NaN. Largest error found 4.079 ulp (OpenCL allows 16); native 2706; by directed search, 866 million
   evaluations (native 100 million). */
float __ocl_tarn_k1_rootnf1(float x, int32_t n) TARN_CONST;
tarn_float2 __ocl_tarn_k1_rootnf2(tarn_float2 x, tarn_int2 n) TARN_CONST;
tarn_float3 __ocl_tarn_k1_rootnf3(tarn_float3 x, tarn_int3 n) TARN_CONST;
tarn_float4 __ocl_tarn_k1_rootnf4(tarn_float4 x, tarn_int4 n) TARN_CONST;
tarn_float8 __ocl_tarn_k1_rootnf8(tarn_float8 x, tarn_int8 n) TARN_CONST;
tarn_float16 __ocl_tarn_k1_rootnf16(tarn_float16 x, tarn_int16 n) TARN_CONST;
float __ocl_tarn_k1_rootnf1_native(float x, int32_t n) TARN_CONST;
tarn_float2 __ocl_tarn_k1_rootnf2_native(tarn_float2 x, tarn_int2 n) TARN_CONST;
tarn_float3 __ocl_tarn_k1_rootnf3_native(tarn_float3 x, tarn_int3 n) TARN_CONST;
tarn_float4 __ocl_tarn_k1_rootnf4_native(tarn_float4 x, tarn_int4 n) TARN_CONST;
tarn_float8 __ocl_tarn_k1_rootnf8_native(tarn_float8 x, tarn_int8 n) TARN_CONST;
tarn_float16 __ocl_tarn_k1_rootnf16_native(tarn_float16 x, tarn_int16 n) TARN_CONST;

/* rootn: x^(1/n), n an integer. Domain: x >= 0, or n odd. Special values: n = 0 gives NaN, x < 0 with even
   n NaN. Largest error found 1.001 ulp (OpenCL allows 16); native 7.455e+06; by directed search, 475
   million evaluations (native 94 million). */
double __ocl_tarn_k1_rootn1(double x, int32_t n) TARN_CONST;
tarn_double2 __ocl_tarn_k1_rootn2(tarn_double2 x, tarn_int2 n) TARN_CONST;
tarn_double3 __ocl_tarn_k1_rootn3(tarn_double3 x, tarn_int3 n) TARN_CONST;
tarn_double4 __ocl_tarn_k1_rootn4(tarn_double4 x, tarn_int4 n) TARN_CONST;
tarn_double8 __ocl_tarn_k1_rootn8(tarn_double8 x, tarn_int8 n) TARN_CONST;
tarn_double16 __ocl_tarn_k1_rootn16(tarn_double16 x, tarn_int16 n) TARN_CONST;
double __ocl_tarn_k1_rootn1_native(double x, int32_t n) TARN_CONST;
tarn_double2 __ocl_tarn_k1_rootn2_native(tarn_double2 x, tarn_int2 n) TARN_CONST;
tarn_double3 __ocl_tarn_k1_rootn3_native(tarn_double3 x, tarn_int3 n) TARN_CONST;
tarn_double4 __ocl_tarn_k1_rootn4_native(tarn_double4 x, tarn_int4 n) TARN_CONST;
tarn_double8 __ocl_tarn_k1_rootn8_native(tarn_double8 x, tarn_int8 n) TARN_CONST;
tarn_double16 __ocl_tarn_k1_rootn16_native(tarn_double16 x, tarn_int16 n) TARN_CONST;

/* Division and roots ------------------------------------------------------------------------------ */

/* divf: x / y. Domain: every x and y. Special values: IEEE division; the native and half forms may give a
   zero for y = +-2^126. Largest error found 0.5 ulp (OpenCL allows 2.5); native and half 5238; by directed
   search, 582 million evaluations (native by samples). Last bits may differ between processor makers
   (native and half). Native keeps its error for x from -3 to 3 and y from -8.5e+37 to 8.5e+37. */
float __ocl_tarn_k1_divf1(float x, float y) TARN_CONST;
tarn_float2 __ocl_tarn_k1_divf2(tarn_float2 x, tarn_float2 y) TARN_CONST;
tarn_float3 __ocl_tarn_k1_divf3(tarn_float3 x, tarn_float3 y) TARN_CONST;
tarn_float4 __ocl_tarn_k1_divf4(tarn_float4 x, tarn_float4 y) TARN_CONST;
tarn_float8 __ocl_tarn_k1_divf8(tarn_float8 x, tarn_float8 y) TARN_CONST;
tarn_float16 __ocl_tarn_k1_divf16(tarn_float16 x, tarn_float16 y) TARN_CONST;
float __ocl_tarn_k1_divf1_native(float x, float y) TARN_CONST;
tarn_float2 __ocl_tarn_k1_divf2_native(tarn_float2 x, tarn_float2 y) TARN_CONST;
tarn_float3 __ocl_tarn_k1_divf3_native(tarn_float3 x, tarn_float3 y) TARN_CONST;
tarn_float4 __ocl_tarn_k1_divf4_native(tarn_float4 x, tarn_float4 y) TARN_CONST;
tarn_float8 __ocl_tarn_k1_divf8_native(tarn_float8 x, tarn_float8 y) TARN_CONST;
tarn_float16 __ocl_tarn_k1_divf16_native(tarn_float16 x, tarn_float16 y) TARN_CONST;
float __ocl_tarn_k1_divf1_half(float x, float y) TARN_CONST;
tarn_float2 __ocl_tarn_k1_divf2_half(tarn_float2 x, tarn_float2 y) TARN_CONST;
tarn_float3 __ocl_tarn_k1_divf3_half(tarn_float3 x, tarn_float3 y) TARN_CONST;
tarn_float4 __ocl_tarn_k1_divf4_half(tarn_float4 x, tarn_float4 y) TARN_CONST;
tarn_float8 __ocl_tarn_k1_divf8_half(tarn_float8 x, tarn_float8 y) TARN_CONST;
tarn_float16 __ocl_tarn_k1_divf16_half(tarn_float16 x, tarn_float16 y) TARN_CONST;

/* div: x / y. Domain: every x and y. Special values: IEEE division. Largest error found 0.5 ulp; native
   0.5; by directed search, 308 million evaluations (native 454 million). */
double __ocl_tarn_k1_div1(double x, double y) TARN_CONST;
tarn_double2 __ocl_tarn_k1_div2(tarn_double2 x, tarn_double2 y) TARN_CONST;
tarn_double3 __ocl_tarn_k1_div3(tarn_double3 x, tarn_double3 y) TARN_CONST;
tarn_double4 __ocl_tarn_k1_div4(tarn_double4 x, tarn_double4 y) TARN_CONST;
tarn_double8 __ocl_tarn_k1_div8(tarn_double8 x, tarn_double8 y) TARN_CONST;
tarn_double16 __ocl_tarn_k1_div16(tarn_double16 x, tarn_double16 y) TARN_CONST;
double __ocl_tarn_k1_div1_native(double x, double y) TARN_CONST;
tarn_double2 __ocl_tarn_k1_div2_native(tarn_double2 x, tarn_double2 y) TARN_CONST;
tarn_double3 __ocl_tarn_k1_div3_native(tarn_double3 x, tarn_double3 y) TARN_CONST;
tarn_double4 __ocl_tarn_k1_div4_native(tarn_double4 x, tarn_double4 y) TARN_CONST;
tarn_double8 __ocl_tarn_k1_div8_native(tarn_double8 x, tarn_double8 y) TARN_CONST;
tarn_double16 __ocl_tarn_k1_div16_native(tarn_double16 x, tarn_double16 y) TARN_CONST;

/* invf: 1 / x. Domain: every x. Special values: IEEE division. Worst error 0.5 ulp (OpenCL allows 2.5);
   native and half 4996; measured over all inputs (native: on an Intel processor). Last bits may differ
   between processor makers (native and half). */
float __ocl_tarn_k1_invf1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_invf2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_invf3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_invf4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_invf8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_invf16(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_invf1_native(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_invf2_native(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_invf3_native(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_invf4_native(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_invf8_native(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_invf16_native(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_invf1_half(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_invf2_half(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_invf3_half(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_invf4_half(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_invf8_half(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_invf16_half(tarn_float16 x) TARN_CONST;

/* inv: 1 / x. Domain: every x. Special values: IEEE division. Largest error found 0.5 ulp; native 0.5; by
   directed search, 393 million evaluations (native 521 million). */
double __ocl_tarn_k1_inv1(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_inv2(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_inv3(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_inv4(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_inv8(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_inv16(tarn_double16 x) TARN_CONST;
double __ocl_tarn_k1_inv1_native(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_inv2_native(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_inv3_native(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_inv4_native(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_inv8_native(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_inv16_native(tarn_double16 x) TARN_CONST;

/* sqrtf: x^(1/2). Domain: x >= 0. Special values: -0 gives -0, x < 0 NaN; in the native and half forms
   zeros and +inf give NaN, subnormals +inf. Worst error 0.8104 ulp (OpenCL allows 3); native and half 4156;
   measured over all inputs, the full form on an Intel processor. Last bits may differ between processor
   makers (full, native and half). Native keeps its error for x from 1.2e-38 to 3.4e+38. */
float __ocl_tarn_k1_sqrtf1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_sqrtf2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_sqrtf3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_sqrtf4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_sqrtf8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_sqrtf16(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_sqrtf1_native(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_sqrtf2_native(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_sqrtf3_native(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_sqrtf4_native(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_sqrtf8_native(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_sqrtf16_native(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_sqrtf1_half(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_sqrtf2_half(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_sqrtf3_half(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_sqrtf4_half(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_sqrtf8_half(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_sqrtf16_half(tarn_float16 x) TARN_CONST;

/* sqrt: x^(1/2). Domain: x >= 0. Special values: -0 gives -0, x < 0 NaN. Largest error found 0.5 ulp;
   native 0.5; by directed search, 284 million evaluations (native 536 million). */
double __ocl_tarn_k1_sqrt1(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_sqrt2(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_sqrt3(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_sqrt4(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_sqrt8(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_sqrt16(tarn_double16 x) TARN_CONST;
double __ocl_tarn_k1_sqrt1_native(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_sqrt2_native(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_sqrt3_native(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_sqrt4_native(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_sqrt8_native(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_sqrt16_native(tarn_double16 x) TARN_CONST;

/* rsqrtf: x^(-1/2). Domain: x > 0. Special values: zeros give an infinity of their sign, +inf +0, x < 0
   NaN. Worst error 0.9845 ulp (OpenCL allows 2); native and half 4980; measured over all inputs, on an
   Intel processor. Last bits may differ between processor makers (full, native and half). */
float __ocl_tarn_k1_rsqrtf1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_rsqrtf2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_rsqrtf3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_rsqrtf4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_rsqrtf8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_rsqrtf16(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_rsqrtf1_native(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_rsqrtf2_native(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_rsqrtf3_native(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_rsqrtf4_native(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_rsqrtf8_native(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_rsqrtf16_native(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_rsqrtf1_half(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_rsqrtf2_half(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_rsqrtf3_half(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_rsqrtf4_half(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_rsqrtf8_half(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_rsqrtf16_half(tarn_float16 x) TARN_CONST;

/* rsqrt: x^(-1/2). Domain: x > 0. Special values: zeros give an infinity of their sign, +inf +0, x < 0 NaN.
   Largest error found 0.5 ulp (OpenCL allows 2); native 1.5; by directed search, 205 million evaluations
   (native 259 million). */
double __ocl_tarn_k1_rsqrt1(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_rsqrt2(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_rsqrt3(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_rsqrt4(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_rsqrt8(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_rsqrt16(tarn_double16 x) TARN_CONST;
double __ocl_tarn_k1_rsqrt1_native(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_rsqrt2_native(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_rsqrt3_native(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_rsqrt4_native(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_rsqrt8_native(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_rsqrt16_native(tarn_double16 x) TARN_CONST;

/* cbrtf: x^(1/3). Domain: every x. Special values: zeros and infinities come back. Worst error 0.5118 ulp
   (OpenCL allows 2); native 355.4; measured over all inputs. */
float __ocl_tarn_k1_cbrtf1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_cbrtf2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_cbrtf3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_cbrtf4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_cbrtf8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_cbrtf16(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_cbrtf1_native(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_cbrtf2_native(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_cbrtf3_native(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_cbrtf4_native(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_cbrtf8_native(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_cbrtf16_native(tarn_float16 x) TARN_CONST;

/* cbrt: x^(1/3). Domain: every x. Special values: zeros and infinities come back. Largest error found
   0.5204 ulp (OpenCL allows 2); native 4.159e+06; by directed search, 832 million evaluations (native 251
   million). */
double __ocl_tarn_k1_cbrt1(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_cbrt2(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_cbrt3(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_cbrt4(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_cbrt8(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_cbrt16(tarn_double16 x) TARN_CONST;
double __ocl_tarn_k1_cbrt1_native(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_cbrt2_native(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_cbrt3_native(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_cbrt4_native(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_cbrt8_native(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_cbrt16_native(tarn_double16 x) TARN_CONST;

/* rcbrtf: x^(-1/3). Domain: every x. Special values: zeros give an infinity and infinities a zero of their
   sign. Worst error 0.5143 ulp (OpenCL allows 2); native 888.7; measured over all inputs. */
float __ocl_tarn_k1_rcbrtf1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_rcbrtf2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_rcbrtf3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_rcbrtf4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_rcbrtf8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_rcbrtf16(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_rcbrtf1_native(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_rcbrtf2_native(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_rcbrtf3_native(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_rcbrtf4_native(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_rcbrtf8_native(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_rcbrtf16_native(tarn_float16 x) TARN_CONST;

/* rcbrt: x^(-1/3). Domain: every x. Special values: zeros give an infinity and infinities a zero of their
   sign. Largest error found 0.5207 ulp (OpenCL allows 2); native 1.818e+07; by directed search, 615 million
   evaluations (native 249 million). */
double __ocl_tarn_k1_rcbrt1(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_rcbrt2(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_rcbrt3(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_rcbrt4(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_rcbrt8(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_rcbrt16(tarn_double16 x) TARN_CONST;
double __ocl_tarn_k1_rcbrt1_native(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_rcbrt2_native(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_rcbrt3_native(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_rcbrt4_native(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_rcbrt8_native(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_rcbrt16_native(tarn_double16 x) TARN_CONST;

/* hypotf: (x^2 + y^2)^(1/2). Domain: every x and y. Special values: an infinity gives +inf, also beside a
   NaN; in the native form infinities, and sums of squares beyond the range, give NaN. Largest error found
   1.466 ulp (OpenCL allows 4); native 4156; by directed search, 1850 million evaluations (native by 60
   million samples). Last bits may differ between processor makers (full and native). Native keeps its error
   for x from 1e-15 to 1e+18 and y from 1e-15 to 1e+18. */
float __ocl_tarn_k1_hypotf1(float x, float y) TARN_CONST;
tarn_float2 __ocl_tarn_k1_hypotf2(tarn_float2 x, tarn_float2 y) TARN_CONST;
tarn_float3 __ocl_tarn_k1_hypotf3(tarn_float3 x, tarn_float3 y) TARN_CONST;
tarn_float4 __ocl_tarn_k1_hypotf4(tarn_float4 x, tarn_float4 y) TARN_CONST;
tarn_float8 __ocl_tarn_k1_hypotf8(tarn_float8 x, tarn_float8 y) TARN_CONST;
tarn_float16 __ocl_tarn_k1_hypotf16(tarn_float16 x, tarn_float16 y) TARN_CONST;
float __ocl_tarn_k1_hypotf1_native(float x, float y) TARN_CONST;
tarn_float2 __ocl_tarn_k1_hypotf2_native(tarn_float2 x, tarn_float2 y) TARN_CONST;
tarn_float3 __ocl_tarn_k1_hypotf3_native(tarn_float3 x, tarn_float3 y) TARN_CONST;
tarn_float4 __ocl_tarn_k1_hypotf4_native(tarn_float4 x, tarn_float4 y) TARN_CONST;
tarn_float8 __ocl_tarn_k1_hypotf8_native(tarn_float8 x, tarn_float8 y) TARN_CONST;
tarn_float16 __ocl_tarn_k1_hypotf16_native(tarn_float16 x, tarn_float16 y) TARN_CONST;

/* hypot: (x^2 + y^2)^(1/2). Domain: every x and y. Special values: an infinity gives +inf, also beside a
   NaN; in the native form sums of squares beyond the range are lost, and a NaN gives NaN. Largest error
   found 1.221 ulp (OpenCL allows 4); native 1.217; by directed search, 1702 million evaluations (native 269
   million). Native keeps its error for x from 1e-130 to 1e+150 and y from 1e-130 to 1e+150. */
double __ocl_tarn_k1_hypot1(double x, double y) TARN_CONST;
tarn_double2 __ocl_tarn_k1_hypot2(tarn_double2 x, tarn_double2 y) TARN_CONST;
tarn_double3 __ocl_tarn_k1_hypot3(tarn_double3 x, tarn_double3 y) TARN_CONST;
tarn_double4 __ocl_tarn_k1_hypot4(tarn_double4 x, tarn_double4 y) TARN_CONST;
tarn_double8 __ocl_tarn_k1_hypot8(tarn_double8 x, tarn_double8 y) TARN_CONST;
tarn_double16 __ocl_tarn_k1_hypot16(tarn_double16 x, tarn_double16 y) TARN_CONST;
double __ocl_tarn_k1_hypot1_native(double x, double y) TARN_CONST;
tarn_double2 __ocl_tarn_k1_hypot2_native(tarn_double2 x, tarn_double2 y) TARN_CONST;
tarn_double3 __ocl_tarn_k1_hypot3_native(tarn_double3 x, tarn_double3 y) TARN_CONST;
tarn_double4 __ocl_tarn_k1_hypot4_native(tarn_double4 x, tarn_double4 y) TARN_CONST;
tarn_double8 __ocl_tarn_k1_hypot8_native(tarn_double8 x, tarn_double8 y) TARN_CONST;
tarn_double16 __ocl_tarn_k1_hypot16_native(tarn_double16 x, tarn_double16 y) TARN_CONST;

/* Trigonometry ------------------------------------------------------------------------------------ */

/* sinf: sin x. Domain: radians, every finite x. Special values: infinities give NaN; zeros keep their sign.
   Worst error 2.474 ulp (OpenCL allows 4); native and half 2321; measured over all inputs. One lane beyond
   |x| = 10000 sends the whole call down another path. The sine of -0 beside a lane above the limit is +0. */
float __ocl_tarn_k1_sinf1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_sinf2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_sinf3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_sinf4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_sinf8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_sinf16(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_sinf1_native(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_sinf2_native(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_sinf3_native(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_sinf4_native(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_sinf8_native(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_sinf16_native(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_sinf1_half(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_sinf2_half(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_sinf3_half(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_sinf4_half(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_sinf8_half(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_sinf16_half(tarn_float16 x) TARN_CONST;

/* sin: sin x. Domain: radians, every finite x. Special values: infinities give NaN; zeros keep their sign.
   Largest error found 3.821 ulp, proved at most 4.0194 on the fast path (OpenCL allows 4); native
   5.453e+07; by directed search, 1969 million evaluations (native 192 million). One lane beyond |x| =
   16777216 sends the whole call down another path. */
double __ocl_tarn_k1_sin1(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_sin2(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_sin3(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_sin4(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_sin8(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_sin16(tarn_double16 x) TARN_CONST;
double __ocl_tarn_k1_sin1_native(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_sin2_native(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_sin3_native(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_sin4_native(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_sin8_native(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_sin16_native(tarn_double16 x) TARN_CONST;

/* cosf: cos x. Domain: radians, every finite x. Special values: infinities give NaN. Worst error 2.387 ulp
   (OpenCL allows 4); native and half 2349; measured over all inputs. One lane beyond |x| = 10000 sends the
   whole call down another path. */
float __ocl_tarn_k1_cosf1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_cosf2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_cosf3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_cosf4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_cosf8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_cosf16(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_cosf1_native(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_cosf2_native(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_cosf3_native(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_cosf4_native(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_cosf8_native(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_cosf16_native(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_cosf1_half(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_cosf2_half(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_cosf3_half(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_cosf4_half(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_cosf8_half(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_cosf16_half(tarn_float16 x) TARN_CONST;

/* cos: cos x. Domain: radians, every finite x. Special values: infinities give NaN. Largest error found
   3.802 ulp, proved at most 3.8474 on the fast path (OpenCL allows 4); native 5.453e+07; by directed
   search, 3074 million evaluations (native 503 million). One lane beyond |x| = 8388608 sends the whole call
   down another path. */
double __ocl_tarn_k1_cos1(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_cos2(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_cos3(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_cos4(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_cos8(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_cos16(tarn_double16 x) TARN_CONST;
double __ocl_tarn_k1_cos1_native(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_cos2_native(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_cos3_native(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_cos4_native(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_cos8_native(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_cos16_native(tarn_double16 x) TARN_CONST;

/* sincosf: sin x, and cos x through the pointer. Domain: radians, every finite x. Special values: as sin
   and cos. Worst error 2.474 ulp (OpenCL allows 4); native 2321; measured over all inputs. One lane beyond
   |x| = 10000 sends the whole call down another path. The sine of -0 beside a lane above the limit is +0. */
float __ocl_tarn_k1_sincosf1(float x, float* second);
tarn_float2 __ocl_tarn_k1_sincosf2(tarn_float2 x, float* second);
tarn_float3 __ocl_tarn_k1_sincosf3(tarn_float3 x, float* second);
tarn_float4 __ocl_tarn_k1_sincosf4(tarn_float4 x, float* second);
tarn_float8 __ocl_tarn_k1_sincosf8(tarn_float8 x, float* second);
tarn_float16 __ocl_tarn_k1_sincosf16(tarn_float16 x, float* second);
float __ocl_tarn_k1_sincosf1_native(float x, float* second);
tarn_float2 __ocl_tarn_k1_sincosf2_native(tarn_float2 x, float* second);
tarn_float3 __ocl_tarn_k1_sincosf3_native(tarn_float3 x, float* second);
tarn_float4 __ocl_tarn_k1_sincosf4_native(tarn_float4 x, float* second);
tarn_float8 __ocl_tarn_k1_sincosf8_native(tarn_float8 x, float* second);
tarn_float16 __ocl_tarn_k1_sincosf16_native(tarn_float16 x, float* second);

/* sincos: sin x, and cos x through the pointer. Domain: radians, every finite x. Special values: as sin and
   cos. Largest error found 3.803 ulp (OpenCL allows 4); native 5.453e+07; by directed search, 331 million
   evaluations (native 355 million). One lane beyond |x| = 8388608 sends the whole call down another path. */
double __ocl_tarn_k1_sincos1(double x, double* second);
tarn_double2 __ocl_tarn_k1_sincos2(tarn_double2 x, double* second);
tarn_double3 __ocl_tarn_k1_sincos3(tarn_double3 x, double* second);
tarn_double4 __ocl_tarn_k1_sincos4(tarn_double4 x, double* second);
tarn_double8 __ocl_tarn_k1_sincos8(tarn_double8 x, double* second);
tarn_double16 __ocl_tarn_k1_sincos16(tarn_double16 x, double* second);
double __ocl_tarn_k1_sincos1_native(double x, double* second);
tarn_double2 __ocl_tarn_k1_sincos2_native(tarn_double2 x, double* second);
tarn_double3 __ocl_tarn_k1_sincos3_native(tarn_double3 x, double* second);
tarn_double4 __ocl_tarn_k1_sincos4_native(tarn_double4 x, double* second);
tarn_double8 __ocl_tarn_k1_sincos8_native(tarn_double8 x, double* second);
tarn_double16 __ocl_tarn_k1_sincos16_native(tarn_double16 x, double* second);

/* sincosregf: sin x and cos x. Domain: radians, every finite x. Special values: as sin and cos. Worst error
   2.474 ulp (OpenCL allows 4); native 2321; measured over all inputs. One lane beyond |x| = 10000 sends the
   whole call down another path. The sine of -0 beside a lane above the limit is +0. */
tarn_sincos_float1 __ocl_tarn_k1_sincosregf1(float x) TARN_CONST;
tarn_sincos_float2 __ocl_tarn_k1_sincosregf2(tarn_float2 x) TARN_CONST;
tarn_sincos_float3 __ocl_tarn_k1_sincosregf3(tarn_float3 x) TARN_CONST;
tarn_sincos_float4 __ocl_tarn_k1_sincosregf4(tarn_float4 x) TARN_CONST;
tarn_sincos_float8 __ocl_tarn_k1_sincosregf8(tarn_float8 x) TARN_CONST;
tarn_sincos_float16 __ocl_tarn_k1_sincosregf16(tarn_float16 x) TARN_CONST;
tarn_sincos_float1 __ocl_tarn_k1_sincosregf1_native(float x) TARN_CONST;
tarn_sincos_float2 __ocl_tarn_k1_sincosregf2_native(tarn_float2 x) TARN_CONST;
tarn_sincos_float3 __ocl_tarn_k1_sincosregf3_native(tarn_float3 x) TARN_CONST;
tarn_sincos_float4 __ocl_tarn_k1_sincosregf4_native(tarn_float4 x) TARN_CONST;
tarn_sincos_float8 __ocl_tarn_k1_sincosregf8_native(tarn_float8 x) TARN_CONST;
tarn_sincos_float16 __ocl_tarn_k1_sincosregf16_native(tarn_float16 x) TARN_CONST;

/* sincosreg: sin x and cos x. Domain: radians, every finite x. Special values: as sin and cos. Largest
   error found 3.803 ulp (OpenCL allows 4); native 5.453e+07; by directed search, 182 million evaluations
   (native 125 million). One lane beyond |x| = 8388608 sends the whole call down another path. */
tarn_sincos_double1 __ocl_tarn_k1_sincosreg1(double x) TARN_CONST;
tarn_sincos_double2 __ocl_tarn_k1_sincosreg2(tarn_double2 x) TARN_CONST;
tarn_sincos_double3 __ocl_tarn_k1_sincosreg3(tarn_double3 x) TARN_CONST;
tarn_sincos_double4 __ocl_tarn_k1_sincosreg4(tarn_double4 x) TARN_CONST;
tarn_sincos_double8 __ocl_tarn_k1_sincosreg8(tarn_double8 x) TARN_CONST;
tarn_sincos_double16 __ocl_tarn_k1_sincosreg16(tarn_double16 x) TARN_CONST;
tarn_sincos_double1 __ocl_tarn_k1_sincosreg1_native(double x) TARN_CONST;
tarn_sincos_double2 __ocl_tarn_k1_sincosreg2_native(tarn_double2 x) TARN_CONST;
tarn_sincos_double3 __ocl_tarn_k1_sincosreg3_native(tarn_double3 x) TARN_CONST;
tarn_sincos_double4 __ocl_tarn_k1_sincosreg4_native(tarn_double4 x) TARN_CONST;
tarn_sincos_double8 __ocl_tarn_k1_sincosreg8_native(tarn_double8 x) TARN_CONST;
tarn_sincos_double16 __ocl_tarn_k1_sincosreg16_native(tarn_double16 x) TARN_CONST;

/* tanf: tan x. Domain: radians, every finite x. Special values: infinities give NaN; zeros keep their sign.
   Worst error 4.556 ulp (OpenCL allows 5); native and half 5203; measured over all inputs, above 8256 of
   one sign. One lane beyond |x| = 8256 sends the whole call down another path. Last bits may differ between
   processor makers (full, native and half). */
float __ocl_tarn_k1_tanf1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_tanf2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_tanf3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_tanf4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_tanf8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_tanf16(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_tanf1_native(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_tanf2_native(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_tanf3_native(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_tanf4_native(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_tanf8_native(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_tanf16_native(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_tanf1_half(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_tanf2_half(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_tanf3_half(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_tanf4_half(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_tanf8_half(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_tanf16_half(tarn_float16 x) TARN_CONST;

/* tan: tan x. Domain: radians, every finite x. Special values: infinities give NaN; zeros keep their sign.
   Largest error found 5.012 ulp, proved at most 5.3542 on the fast path (OpenCL allows 5, exceeded at every
   width); native 2.261e+05; by directed search, 1644 million evaluations (native 363 million). One lane
   beyond |x| = 128000 sends the whole call down another path. */
double __ocl_tarn_k1_tan1(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_tan2(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_tan3(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_tan4(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_tan8(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_tan16(tarn_double16 x) TARN_CONST;
double __ocl_tarn_k1_tan1_native(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_tan2_native(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_tan3_native(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_tan4_native(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_tan8_native(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_tan16_native(tarn_double16 x) TARN_CONST;

/* sinpif: sin(pi x). Domain: half turns, every finite x. Special values: infinities give NaN; integers a
   zero with the sign of x. Worst error 2.131 ulp (OpenCL allows 4); native 2280; measured over all inputs. */
float __ocl_tarn_k1_sinpif1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_sinpif2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_sinpif3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_sinpif4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_sinpif8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_sinpif16(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_sinpif1_native(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_sinpif2_native(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_sinpif3_native(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_sinpif4_native(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_sinpif8_native(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_sinpif16_native(tarn_float16 x) TARN_CONST;

/* sinpi: sin(pi x). Domain: half turns, every finite x. Special values: infinities give NaN; integers a
   zero with the sign of x. Largest error found 3.663 ulp (OpenCL allows 4); native 5.453e+07; by directed
   search, 477 million evaluations (native 180 million). */
double __ocl_tarn_k1_sinpi1(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_sinpi2(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_sinpi3(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_sinpi4(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_sinpi8(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_sinpi16(tarn_double16 x) TARN_CONST;
double __ocl_tarn_k1_sinpi1_native(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_sinpi2_native(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_sinpi3_native(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_sinpi4_native(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_sinpi8_native(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_sinpi16_native(tarn_double16 x) TARN_CONST;

/* cospif: cos(pi x). Domain: half turns, every finite x. Special values: infinities give NaN; half-integers
   +0. Worst error 2.109 ulp (OpenCL allows 4); native 2280; measured over all inputs. */
float __ocl_tarn_k1_cospif1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_cospif2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_cospif3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_cospif4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_cospif8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_cospif16(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_cospif1_native(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_cospif2_native(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_cospif3_native(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_cospif4_native(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_cospif8_native(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_cospif16_native(tarn_float16 x) TARN_CONST;

/* cospi: cos(pi x). Domain: half turns, every finite x. Special values: infinities give NaN; half-integers
   +0. Largest error found 3.683 ulp (OpenCL allows 4); native 5.453e+07; by directed search, 468 million
   evaluations (native 182 million). */
double __ocl_tarn_k1_cospi1(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_cospi2(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_cospi3(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_cospi4(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_cospi8(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_cospi16(tarn_double16 x) TARN_CONST;
double __ocl_tarn_k1_cospi1_native(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_cospi2_native(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_cospi3_native(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_cospi4_native(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_cospi8_native(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_cospi16_native(tarn_double16 x) TARN_CONST;

/* tanpif: tan(pi x). Domain: half turns, every finite x. Special values: infinities give NaN; tanpi(n) is
   copysign(0, n) for even n, copysign(0, -n) for odd n. Worst error 1.908 ulp (OpenCL allows 6); native
   5197; measured over all inputs up to 2^24; integers beyond. Last bits may differ between processor makers
   (full and native). */
float __ocl_tarn_k1_tanpif1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_tanpif2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_tanpif3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_tanpif4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_tanpif8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_tanpif16(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_tanpif1_native(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_tanpif2_native(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_tanpif3_native(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_tanpif4_native(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_tanpif8_native(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_tanpif16_native(tarn_float16 x) TARN_CONST;

/* tanpi: tan(pi x). Domain: half turns, every finite x. Special values: infinities give NaN; tanpi(n) is
   copysign(0, n) for even n, copysign(0, -n) for odd n. Largest error found 5.184 ulp (OpenCL allows 6);
   native 2.261e+05; by directed search, 2088 million evaluations (native 104 million). */
double __ocl_tarn_k1_tanpi1(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_tanpi2(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_tanpi3(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_tanpi4(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_tanpi8(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_tanpi16(tarn_double16 x) TARN_CONST;
double __ocl_tarn_k1_tanpi1_native(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_tanpi2_native(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_tanpi3_native(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_tanpi4_native(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_tanpi8_native(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_tanpi16_native(tarn_double16 x) TARN_CONST;

/* Inverse trigonometry ---------------------------------------------------------------------------- */

/* asinf: arcsin x. Domain: |x| <= 1; radians. Special values: beyond 1 NaN; zeros keep their sign. Worst
   error 2.274 ulp (OpenCL allows 4); native 4952; measured over all inputs (native: on an Intel processor).
   Last bits may differ between processor makers (native). */
float __ocl_tarn_k1_asinf1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_asinf2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_asinf3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_asinf4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_asinf8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_asinf16(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_asinf1_native(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_asinf2_native(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_asinf3_native(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_asinf4_native(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_asinf8_native(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_asinf16_native(tarn_float16 x) TARN_CONST;

/* asin: arcsin x. Domain: |x| <= 1; radians. Special values: beyond 1 NaN; zeros keep their sign. Largest
   error found 2.196 ulp (OpenCL allows 4); native 4.571e+07; by directed search, 757 million evaluations
   (native 102 million). */
double __ocl_tarn_k1_asin1(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_asin2(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_asin3(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_asin4(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_asin8(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_asin16(tarn_double16 x) TARN_CONST;
double __ocl_tarn_k1_asin1_native(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_asin2_native(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_asin3_native(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_asin4_native(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_asin8_native(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_asin16_native(tarn_double16 x) TARN_CONST;

/* acosf: arccos x. Domain: |x| <= 1; radians. Special values: beyond 1 NaN; acos(1) is +0. Worst error
   1.238 ulp (OpenCL allows 4); native 4691; measured over all inputs (native: on an Intel processor). Last
   bits may differ between processor makers (native). */
float __ocl_tarn_k1_acosf1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_acosf2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_acosf3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_acosf4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_acosf8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_acosf16(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_acosf1_native(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_acosf2_native(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_acosf3_native(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_acosf4_native(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_acosf8_native(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_acosf16_native(tarn_float16 x) TARN_CONST;

/* acos: arccos x. Domain: |x| <= 1; radians. Special values: beyond 1 NaN; acos(1) is +0. Largest error
   found 1.329 ulp (OpenCL allows 4); native 4.363e+07; by directed search, 815 million evaluations (native
   127 million). */
double __ocl_tarn_k1_acos1(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_acos2(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_acos3(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_acos4(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_acos8(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_acos16(tarn_double16 x) TARN_CONST;
double __ocl_tarn_k1_acos1_native(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_acos2_native(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_acos3_native(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_acos4_native(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_acos8_native(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_acos16_native(tarn_double16 x) TARN_CONST;

/* atanf: arctan x. Domain: every x; radians. Special values: infinities give +-pi/2; zeros keep their sign.
   Worst error 3.752 ulp (OpenCL allows 5); native 2912; measured over all inputs (native: of one sign, from
   0.1 to 10000). Last bits may differ between processor makers (native). */
float __ocl_tarn_k1_atanf1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_atanf2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_atanf3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_atanf4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_atanf8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_atanf16(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_atanf1_native(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_atanf2_native(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_atanf3_native(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_atanf4_native(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_atanf8_native(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_atanf16_native(tarn_float16 x) TARN_CONST;

/* atan: arctan x. Domain: every x; radians. Special values: infinities give +-pi/2; zeros keep their sign.
   Largest error found 2.201 ulp, width 2 5.634 (OpenCL allows 5, exceeded at width 2); native 2.3e+07; by
   directed search, 2232 million evaluations (native 477 million; width 2 3773 million). Width 2 has a
   kernel of its own (full). */
double __ocl_tarn_k1_atan1(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_atan2(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_atan3(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_atan4(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_atan8(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_atan16(tarn_double16 x) TARN_CONST;
double __ocl_tarn_k1_atan1_native(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_atan2_native(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_atan3_native(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_atan4_native(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_atan8_native(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_atan16_native(tarn_double16 x) TARN_CONST;

/* atan2f: the angle of the point (y, x); first argument y. Domain: every y and x; radians. Special values:
   C99 Annex F. Largest error found 4.014 ulp (OpenCL allows 6); native 5585; by directed search, 461
   million evaluations (native by samples). A special lane makes its 16-byte block more exact (full). Last
   bits may differ between processor makers (native). */
float __ocl_tarn_k1_atan2f1(float x, float y) TARN_CONST;
tarn_float2 __ocl_tarn_k1_atan2f2(tarn_float2 x, tarn_float2 y) TARN_CONST;
tarn_float3 __ocl_tarn_k1_atan2f3(tarn_float3 x, tarn_float3 y) TARN_CONST;
tarn_float4 __ocl_tarn_k1_atan2f4(tarn_float4 x, tarn_float4 y) TARN_CONST;
tarn_float8 __ocl_tarn_k1_atan2f8(tarn_float8 x, tarn_float8 y) TARN_CONST;
tarn_float16 __ocl_tarn_k1_atan2f16(tarn_float16 x, tarn_float16 y) TARN_CONST;
float __ocl_tarn_k1_atan2f1_native(float x, float y) TARN_CONST;
tarn_float2 __ocl_tarn_k1_atan2f2_native(tarn_float2 x, tarn_float2 y) TARN_CONST;
tarn_float3 __ocl_tarn_k1_atan2f3_native(tarn_float3 x, tarn_float3 y) TARN_CONST;
tarn_float4 __ocl_tarn_k1_atan2f4_native(tarn_float4 x, tarn_float4 y) TARN_CONST;
tarn_float8 __ocl_tarn_k1_atan2f8_native(tarn_float8 x, tarn_float8 y) TARN_CONST;
tarn_float16 __ocl_tarn_k1_atan2f16_native(tarn_float16 x, tarn_float16 y) TARN_CONST;

/* atan2: the angle of the point (y, x); first argument y. Domain: every y and x; radians. Special values:
   C99 Annex F. Largest error found 3.193 ulp, width 2 5.693 (OpenCL allows 6); native 2.013e+07; by
   directed search, 566 million evaluations (native 358 million; width 2 771 million). Width 2 has a kernel
   of its own (full). */
double __ocl_tarn_k1_atan21(double x, double y) TARN_CONST;
tarn_double2 __ocl_tarn_k1_atan22(tarn_double2 x, tarn_double2 y) TARN_CONST;
tarn_double3 __ocl_tarn_k1_atan23(tarn_double3 x, tarn_double3 y) TARN_CONST;
tarn_double4 __ocl_tarn_k1_atan24(tarn_double4 x, tarn_double4 y) TARN_CONST;
tarn_double8 __ocl_tarn_k1_atan28(tarn_double8 x, tarn_double8 y) TARN_CONST;
tarn_double16 __ocl_tarn_k1_atan216(tarn_double16 x, tarn_double16 y) TARN_CONST;
double __ocl_tarn_k1_atan21_native(double x, double y) TARN_CONST;
tarn_double2 __ocl_tarn_k1_atan22_native(tarn_double2 x, tarn_double2 y) TARN_CONST;
tarn_double3 __ocl_tarn_k1_atan23_native(tarn_double3 x, tarn_double3 y) TARN_CONST;
tarn_double4 __ocl_tarn_k1_atan24_native(tarn_double4 x, tarn_double4 y) TARN_CONST;
tarn_double8 __ocl_tarn_k1_atan28_native(tarn_double8 x, tarn_double8 y) TARN_CONST;
tarn_double16 __ocl_tarn_k1_atan216_native(tarn_double16 x, tarn_double16 y) TARN_CONST;

/* asinpif: arcsin(x) / pi. Domain: |x| <= 1; half turns. Special values: beyond 1 NaN; zeros keep their
   sign. Worst error 3.208 ulp (OpenCL allows 5); native 845; measured over all inputs. */
float __ocl_tarn_k1_asinpif1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_asinpif2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_asinpif3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_asinpif4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_asinpif8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_asinpif16(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_asinpif1_native(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_asinpif2_native(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_asinpif3_native(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_asinpif4_native(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_asinpif8_native(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_asinpif16_native(tarn_float16 x) TARN_CONST;

/* asinpi: arcsin(x) / pi. Domain: |x| <= 1; half turns. Special values: beyond 1 NaN; zeros keep their
   sign. Largest error found 3.033 ulp (OpenCL allows 5); native 5.82e+07; by directed search, 627 million
   evaluations (native 354 million). */
double __ocl_tarn_k1_asinpi1(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_asinpi2(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_asinpi3(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_asinpi4(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_asinpi8(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_asinpi16(tarn_double16 x) TARN_CONST;
double __ocl_tarn_k1_asinpi1_native(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_asinpi2_native(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_asinpi3_native(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_asinpi4_native(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_asinpi8_native(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_asinpi16_native(tarn_double16 x) TARN_CONST;

/* acospif: arccos(x) / pi. Domain: |x| <= 1; half turns. Special values: beyond 1 NaN; acospi(1) is +0.
   Worst error 2.457 ulp (OpenCL allows 5); native 5492; measured over all inputs (native: on an Intel
   processor). Last bits may differ between processor makers (native). */
float __ocl_tarn_k1_acospif1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_acospif2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_acospif3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_acospif4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_acospif8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_acospif16(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_acospif1_native(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_acospif2_native(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_acospif3_native(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_acospif4_native(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_acospif8_native(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_acospif16_native(tarn_float16 x) TARN_CONST;

/* acospi: arccos(x) / pi. Domain: |x| <= 1; half turns. Special values: beyond 1 NaN; acospi(1) is +0.
   Largest error found 1.928 ulp (OpenCL allows 5); native 4.125e+07; by directed search, 582 million
   evaluations (native 289 million). */
double __ocl_tarn_k1_acospi1(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_acospi2(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_acospi3(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_acospi4(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_acospi8(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_acospi16(tarn_double16 x) TARN_CONST;
double __ocl_tarn_k1_acospi1_native(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_acospi2_native(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_acospi3_native(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_acospi4_native(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_acospi8_native(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_acospi16_native(tarn_double16 x) TARN_CONST;

/* atanpif: arctan(x) / pi. Domain: every x; half turns. Special values: infinities give +-0.5; zeros keep
   their sign. Worst error 3.607 ulp (OpenCL allows 5); native 1854; measured over all inputs (native: every
   third from 0.1 to 10000). Last bits may differ between processor makers (full and native). */
float __ocl_tarn_k1_atanpif1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_atanpif2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_atanpif3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_atanpif4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_atanpif8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_atanpif16(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_atanpif1_native(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_atanpif2_native(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_atanpif3_native(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_atanpif4_native(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_atanpif8_native(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_atanpif16_native(tarn_float16 x) TARN_CONST;

/* atanpi: arctan(x) / pi. Domain: every x; half turns. Special values: infinities give +-0.5; zeros keep
   their sign. Largest error found 1.961 ulp (OpenCL allows 5); native 2.318e+07; by directed search, 502
   million evaluations (native 251 million). */
double __ocl_tarn_k1_atanpi1(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_atanpi2(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_atanpi3(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_atanpi4(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_atanpi8(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_atanpi16(tarn_double16 x) TARN_CONST;
double __ocl_tarn_k1_atanpi1_native(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_atanpi2_native(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_atanpi3_native(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_atanpi4_native(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_atanpi8_native(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_atanpi16_native(tarn_double16 x) TARN_CONST;

/* atan2pif: the angle of the point (y, x) over pi; first argument y. Domain: every y and x; half turns.
   Special values: as atan2, divided by pi. Largest error found 3.288 ulp (OpenCL allows 6); native 5578; by
   directed search, 464 million evaluations (native by samples). Last bits may differ between processor
   makers (native). */
float __ocl_tarn_k1_atan2pif1(float x, float y) TARN_CONST;
tarn_float2 __ocl_tarn_k1_atan2pif2(tarn_float2 x, tarn_float2 y) TARN_CONST;
tarn_float3 __ocl_tarn_k1_atan2pif3(tarn_float3 x, tarn_float3 y) TARN_CONST;
tarn_float4 __ocl_tarn_k1_atan2pif4(tarn_float4 x, tarn_float4 y) TARN_CONST;
tarn_float8 __ocl_tarn_k1_atan2pif8(tarn_float8 x, tarn_float8 y) TARN_CONST;
tarn_float16 __ocl_tarn_k1_atan2pif16(tarn_float16 x, tarn_float16 y) TARN_CONST;
float __ocl_tarn_k1_atan2pif1_native(float x, float y) TARN_CONST;
tarn_float2 __ocl_tarn_k1_atan2pif2_native(tarn_float2 x, tarn_float2 y) TARN_CONST;
tarn_float3 __ocl_tarn_k1_atan2pif3_native(tarn_float3 x, tarn_float3 y) TARN_CONST;
tarn_float4 __ocl_tarn_k1_atan2pif4_native(tarn_float4 x, tarn_float4 y) TARN_CONST;
tarn_float8 __ocl_tarn_k1_atan2pif8_native(tarn_float8 x, tarn_float8 y) TARN_CONST;
tarn_float16 __ocl_tarn_k1_atan2pif16_native(tarn_float16 x, tarn_float16 y) TARN_CONST;

/* atan2pi: the angle of the point (y, x) over pi; first argument y. Domain: every y and x; half turns.
   Special values: as atan2, divided by pi. Largest error found 2.6 ulp (OpenCL allows 6); native 2.542e+07;
   by directed search, 649 million evaluations (native 133 million). */
double __ocl_tarn_k1_atan2pi1(double x, double y) TARN_CONST;
tarn_double2 __ocl_tarn_k1_atan2pi2(tarn_double2 x, tarn_double2 y) TARN_CONST;
tarn_double3 __ocl_tarn_k1_atan2pi3(tarn_double3 x, tarn_double3 y) TARN_CONST;
tarn_double4 __ocl_tarn_k1_atan2pi4(tarn_double4 x, tarn_double4 y) TARN_CONST;
tarn_double8 __ocl_tarn_k1_atan2pi8(tarn_double8 x, tarn_double8 y) TARN_CONST;
tarn_double16 __ocl_tarn_k1_atan2pi16(tarn_double16 x, tarn_double16 y) TARN_CONST;
double __ocl_tarn_k1_atan2pi1_native(double x, double y) TARN_CONST;
tarn_double2 __ocl_tarn_k1_atan2pi2_native(tarn_double2 x, tarn_double2 y) TARN_CONST;
tarn_double3 __ocl_tarn_k1_atan2pi3_native(tarn_double3 x, tarn_double3 y) TARN_CONST;
tarn_double4 __ocl_tarn_k1_atan2pi4_native(tarn_double4 x, tarn_double4 y) TARN_CONST;
tarn_double8 __ocl_tarn_k1_atan2pi8_native(tarn_double8 x, tarn_double8 y) TARN_CONST;
tarn_double16 __ocl_tarn_k1_atan2pi16_native(tarn_double16 x, tarn_double16 y) TARN_CONST;

/* Hyperbolic functions ---------------------------------------------------------------------------- */

/* sinhf: (e^x - e^-x) / 2. Domain: every x. Special values: infinities and zeros come back. Worst error
   2.024 ulp (OpenCL allows 4); native 1079; measured over all inputs. */
float __ocl_tarn_k1_sinhf1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_sinhf2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_sinhf3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_sinhf4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_sinhf8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_sinhf16(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_sinhf1_native(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_sinhf2_native(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_sinhf3_native(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_sinhf4_native(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_sinhf8_native(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_sinhf16_native(tarn_float16 x) TARN_CONST;

/* sinh: (e^x - e^-x) / 2. Domain: every x. Special values: infinities and zeros come back. Largest error
   found 2.143 ulp (OpenCL allows 4); native 2.517e+04; by directed search, 172 million evaluations (native
   60 million). */
double __ocl_tarn_k1_sinh1(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_sinh2(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_sinh3(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_sinh4(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_sinh8(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_sinh16(tarn_double16 x) TARN_CONST;
double __ocl_tarn_k1_sinh1_native(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_sinh2_native(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_sinh3_native(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_sinh4_native(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_sinh8_native(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_sinh16_native(tarn_double16 x) TARN_CONST;

/* coshf: (e^x + e^-x) / 2. Domain: every x. Special values: infinities give +inf. Worst error 1.841 ulp
   (OpenCL allows 4); native 427.3; measured over all inputs. */
float __ocl_tarn_k1_coshf1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_coshf2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_coshf3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_coshf4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_coshf8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_coshf16(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_coshf1_native(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_coshf2_native(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_coshf3_native(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_coshf4_native(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_coshf8_native(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_coshf16_native(tarn_float16 x) TARN_CONST;

/* cosh: (e^x + e^-x) / 2. Domain: every x. Special values: infinities give +inf. Largest error found 1.147
   ulp (OpenCL allows 4); native 1584; by directed search, 147 million evaluations (native 62 million). */
double __ocl_tarn_k1_cosh1(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_cosh2(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_cosh3(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_cosh4(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_cosh8(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_cosh16(tarn_double16 x) TARN_CONST;
double __ocl_tarn_k1_cosh1_native(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_cosh2_native(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_cosh3_native(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_cosh4_native(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_cosh8_native(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_cosh16_native(tarn_double16 x) TARN_CONST;

/* tanhf: sinh x / cosh x. Domain: every x. Special values: infinities give +-1; zeros keep their sign.
   Worst error 1.026 ulp (OpenCL allows 5); native 1.026; measured over all inputs. */
float __ocl_tarn_k1_tanhf1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_tanhf2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_tanhf3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_tanhf4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_tanhf8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_tanhf16(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_tanhf1_native(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_tanhf2_native(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_tanhf3_native(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_tanhf4_native(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_tanhf8_native(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_tanhf16_native(tarn_float16 x) TARN_CONST;

/* tanh: sinh x / cosh x. Domain: every x. Special values: infinities give +-1; zeros keep their sign.
   Largest error found 0.588 ulp (OpenCL allows 5); native 1.167e+07; by directed search, 139 million
   evaluations (native 73 million). */
double __ocl_tarn_k1_tanh1(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_tanh2(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_tanh3(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_tanh4(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_tanh8(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_tanh16(tarn_double16 x) TARN_CONST;
double __ocl_tarn_k1_tanh1_native(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_tanh2_native(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_tanh3_native(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_tanh4_native(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_tanh8_native(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_tanh16_native(tarn_double16 x) TARN_CONST;

/* asinhf: ln(x + (x^2 + 1)^(1/2)). Domain: every x. Special values: infinities and zeros come back. Worst
   error 1.886 ulp (OpenCL allows 4); native 1482; measured over all inputs (native: on an Intel processor).
   Last bits may differ between processor makers (native). */
float __ocl_tarn_k1_asinhf1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_asinhf2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_asinhf3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_asinhf4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_asinhf8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_asinhf16(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_asinhf1_native(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_asinhf2_native(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_asinhf3_native(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_asinhf4_native(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_asinhf8_native(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_asinhf16_native(tarn_float16 x) TARN_CONST;

/* asinh: ln(x + (x^2 + 1)^(1/2)). Domain: every x. Special values: infinities and zeros come back. Largest
   error found 0.5056 ulp (OpenCL allows 4); native 6.711e+07; by directed search, 93 million evaluations
   (native 80 million). */
double __ocl_tarn_k1_asinh1(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_asinh2(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_asinh3(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_asinh4(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_asinh8(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_asinh16(tarn_double16 x) TARN_CONST;
double __ocl_tarn_k1_asinh1_native(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_asinh2_native(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_asinh3_native(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_asinh4_native(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_asinh8_native(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_asinh16_native(tarn_double16 x) TARN_CONST;

/* acoshf: ln(x + (x^2 - 1)^(1/2)). Domain: x >= 1. Special values: below 1 NaN; +inf gives +inf. Worst
   error 2.085 ulp (OpenCL allows 4); native 4122; measured over all inputs (native: on an Intel processor).
   Last bits may differ between processor makers (native). */
float __ocl_tarn_k1_acoshf1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_acoshf2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_acoshf3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_acoshf4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_acoshf8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_acoshf16(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_acoshf1_native(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_acoshf2_native(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_acoshf3_native(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_acoshf4_native(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_acoshf8_native(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_acoshf16_native(tarn_float16 x) TARN_CONST;

/* acosh: ln(x + (x^2 - 1)^(1/2)). Domain: x >= 1. Special values: below 1 NaN; +inf gives +inf. Largest
   error found 0.5078 ulp (OpenCL allows 4); native 6.559e+04; by directed search, 87 million evaluations
   (native 66 million). */
double __ocl_tarn_k1_acosh1(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_acosh2(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_acosh3(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_acosh4(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_acosh8(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_acosh16(tarn_double16 x) TARN_CONST;
double __ocl_tarn_k1_acosh1_native(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_acosh2_native(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_acosh3_native(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_acosh4_native(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_acosh8_native(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_acosh16_native(tarn_double16 x) TARN_CONST;

/* atanhf: ln((1 + x) / (1 - x)) / 2. Domain: |x| <= 1. Special values: +-1 gives +-inf, beyond NaN; zeros
   keep their sign. Worst error 2.093 ulp (OpenCL allows 5); native 1471; measured over all inputs. Last
   bits may differ between processor makers (full and native). */
float __ocl_tarn_k1_atanhf1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_atanhf2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_atanhf3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_atanhf4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_atanhf8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_atanhf16(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_atanhf1_native(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_atanhf2_native(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_atanhf3_native(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_atanhf4_native(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_atanhf8_native(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_atanhf16_native(tarn_float16 x) TARN_CONST;

/* atanh: ln((1 + x) / (1 - x)) / 2. Domain: |x| <= 1. Special values: +-1 gives +-inf, beyond NaN; zeros
   keep their sign. Largest error found 0.5065 ulp (OpenCL allows 5); native 6.559e+04; by directed search,
   173 million evaluations (native 69 million). */
double __ocl_tarn_k1_atanh1(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_atanh2(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_atanh3(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_atanh4(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_atanh8(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_atanh16(tarn_double16 x) TARN_CONST;
double __ocl_tarn_k1_atanh1_native(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_atanh2_native(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_atanh3_native(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_atanh4_native(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_atanh8_native(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_atanh16_native(tarn_double16 x) TARN_CONST;

/* Error and gamma functions ----------------------------------------------------------------------- */

/* erff: 2/sqrt(pi) times the integral of e^(-t^2) from 0 to x. Domain: every x. Special values: infinities
   give +-1; zeros keep their sign. Worst error 1.929 ulp (OpenCL allows 16); native 68.87; measured over
   all inputs. */
float __ocl_tarn_k1_erff1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_erff2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_erff3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_erff4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_erff8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_erff16(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_erff1_native(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_erff2_native(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_erff3_native(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_erff4_native(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_erff8_native(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_erff16_native(tarn_float16 x) TARN_CONST;

/* erf: 2/sqrt(pi) times the integral of e^(-t^2) from 0 to x. Domain: every x. Special values: infinities
   give +-1; zeros keep their sign. Largest error found 2.545 ulp (OpenCL allows 16); native 1.152e+06; by
   directed search, 1407 million evaluations (native 93 million). */
double __ocl_tarn_k1_erf1(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_erf2(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_erf3(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_erf4(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_erf8(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_erf16(tarn_double16 x) TARN_CONST;
double __ocl_tarn_k1_erf1_native(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_erf2_native(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_erf3_native(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_erf4_native(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_erf8_native(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_erf16_native(tarn_double16 x) TARN_CONST;

/* erfcf: 1 - erf x. Domain: every x. Special values: -inf gives 2, +inf +0. Worst error 1.763 ulp (OpenCL
   allows 16); native 1250; measured over all inputs. */
float __ocl_tarn_k1_erfcf1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_erfcf2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_erfcf3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_erfcf4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_erfcf8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_erfcf16(tarn_float16 x) TARN_CONST;
float __ocl_tarn_k1_erfcf1_native(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_erfcf2_native(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_erfcf3_native(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_erfcf4_native(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_erfcf8_native(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_erfcf16_native(tarn_float16 x) TARN_CONST;

/* erfc: 1 - erf x. Domain: every x. Special values: -inf gives 2, +inf +0. Largest error found 1.333 ulp
   (OpenCL allows 16); native 3.981e+06; by directed search, 96 million evaluations (native 34 million). */
double __ocl_tarn_k1_erfc1(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_erfc2(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_erfc3(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_erfc4(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_erfc8(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_erfc16(tarn_double16 x) TARN_CONST;
double __ocl_tarn_k1_erfc1_native(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_erfc2_native(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_erfc3_native(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_erfc4_native(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_erfc8_native(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_erfc16_native(tarn_double16 x) TARN_CONST;

/* tgammaf: gamma(x). Domain: x not a negative integer. Special values: zeros give an infinity of their
   sign; negative integers and -inf NaN. Worst error 0.5 ulp (OpenCL allows 16); measured over all inputs. */
float __ocl_tarn_k1_tgammaf1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_tgammaf2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_tgammaf3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_tgammaf4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_tgammaf8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_tgammaf16(tarn_float16 x) TARN_CONST;

/* tgamma: gamma(x). Domain: x not a negative integer. Special values: zeros give an infinity of their sign;
   negative integers and -inf NaN. Largest error found 0.5347 ulp (OpenCL allows 16); by directed search, 79
   million evaluations. */
double __ocl_tarn_k1_tgamma1(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_tgamma2(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_tgamma3(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_tgamma4(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_tgamma8(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_tgamma16(tarn_double16 x) TARN_CONST;

/* lgammaf: ln |gamma(x)|. Domain: every x. Special values: poles and infinities give +inf; 1 and 2 give +0.
   Worst error 0.5 ulp; measured over all inputs. */
float __ocl_tarn_k1_lgammaf1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_lgammaf2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_lgammaf3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_lgammaf4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_lgammaf8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_lgammaf16(tarn_float16 x) TARN_CONST;

/* lgamma: ln |gamma(x)|. Domain: every x. Special values: poles and infinities give +inf; 1 and 2 give +0.
   Largest error found 0.7123 ulp; by directed search, 474 million evaluations. */
double __ocl_tarn_k1_lgamma1(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_lgamma2(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_lgamma3(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_lgamma4(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_lgamma8(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_lgamma16(tarn_double16 x) TARN_CONST;

/* lgammarf: ln |gamma(x)|, and the sign of gamma(x) through the pointer. Domain: every x. Special values:
   as lgamma; the sign is +1 at poles, -1 at -0. Worst error 0.5 ulp; measured over all inputs. */
float __ocl_tarn_k1_lgammarf1(float x, int32_t* second);
tarn_float2 __ocl_tarn_k1_lgammarf2(tarn_float2 x, int32_t* second);
tarn_float3 __ocl_tarn_k1_lgammarf3(tarn_float3 x, int32_t* second);
tarn_float4 __ocl_tarn_k1_lgammarf4(tarn_float4 x, int32_t* second);
tarn_float8 __ocl_tarn_k1_lgammarf8(tarn_float8 x, int32_t* second);
tarn_float16 __ocl_tarn_k1_lgammarf16(tarn_float16 x, int32_t* second);

/* lgammar: ln |gamma(x)|, and the sign of gamma(x) through the pointer. Domain: every x. Special values: as
   lgamma; the sign is +1 at poles, -1 at -0. Largest error found 0.7123 ulp; by directed search, 336
   million evaluations. */
double __ocl_tarn_k1_lgammar1(double x, int32_t* second);
tarn_double2 __ocl_tarn_k1_lgammar2(tarn_double2 x, int32_t* second);
tarn_double3 __ocl_tarn_k1_lgammar3(tarn_double3 x, int32_t* second);
tarn_double4 __ocl_tarn_k1_lgammar4(tarn_double4 x, int32_t* second);
tarn_double8 __ocl_tarn_k1_lgammar8(tarn_double8 x, int32_t* second);
tarn_double16 __ocl_tarn_k1_lgammar16(tarn_double16 x, int32_t* second);

/* Rounding, sign and bit-level functions ---------------------------------------------------------- */

/* ceilf: x rounded up to an integer. Domain: every x. Special values: infinities and zeros come back.
   Exact, or rounded once. */
float __ocl_tarn_k1_ceilf1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_ceilf2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_ceilf3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_ceilf4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_ceilf8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_ceilf16(tarn_float16 x) TARN_CONST;

/* ceil: x rounded up to an integer. Domain: every x. Special values: infinities and zeros come back. Exact,
   or rounded once. */
double __ocl_tarn_k1_ceil1(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_ceil2(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_ceil3(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_ceil4(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_ceil8(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_ceil16(tarn_double16 x) TARN_CONST;

/* floorf: x rounded down to an integer. Domain: every x. Special values: infinities and zeros come back.
   Exact, or rounded once. */
float __ocl_tarn_k1_floorf1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_floorf2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_floorf3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_floorf4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_floorf8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_floorf16(tarn_float16 x) TARN_CONST;

/* floor: x rounded down to an integer. Domain: every x. Special values: infinities and zeros come back.
   Exact, or rounded once. */
double __ocl_tarn_k1_floor1(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_floor2(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_floor3(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_floor4(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_floor8(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_floor16(tarn_double16 x) TARN_CONST;

/* truncf: x rounded toward zero to an integer. Domain: every x. Special values: infinities and zeros come
   back. Exact, or rounded once. */
float __ocl_tarn_k1_truncf1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_truncf2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_truncf3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_truncf4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_truncf8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_truncf16(tarn_float16 x) TARN_CONST;

/* trunc: x rounded toward zero to an integer. Domain: every x. Special values: infinities and zeros come
   back. Exact, or rounded once. */
double __ocl_tarn_k1_trunc1(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_trunc2(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_trunc3(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_trunc4(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_trunc8(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_trunc16(tarn_double16 x) TARN_CONST;

/* rintf: x rounded to an integer in the current mode. Domain: every x. Special values: raises inexact.
   Exact, or rounded once. */
float __ocl_tarn_k1_rintf1(float x);
tarn_float2 __ocl_tarn_k1_rintf2(tarn_float2 x);
tarn_float3 __ocl_tarn_k1_rintf3(tarn_float3 x);
tarn_float4 __ocl_tarn_k1_rintf4(tarn_float4 x);
tarn_float8 __ocl_tarn_k1_rintf8(tarn_float8 x);
tarn_float16 __ocl_tarn_k1_rintf16(tarn_float16 x);

/* rint: x rounded to an integer in the current mode. Domain: every x. Special values: raises inexact.
   Exact, or rounded once. */
double __ocl_tarn_k1_rint1(double x);
tarn_double2 __ocl_tarn_k1_rint2(tarn_double2 x);
tarn_double3 __ocl_tarn_k1_rint3(tarn_double3 x);
tarn_double4 __ocl_tarn_k1_rint4(tarn_double4 x);
tarn_double8 __ocl_tarn_k1_rint8(tarn_double8 x);
tarn_double16 __ocl_tarn_k1_rint16(tarn_double16 x);

/* nearbyintf: x rounded to an integer in the current mode. Domain: every x. Special values: does not raise
   inexact. Exact, or rounded once. */
float __ocl_tarn_k1_nearbyintf1(float x);
tarn_float2 __ocl_tarn_k1_nearbyintf2(tarn_float2 x);
tarn_float3 __ocl_tarn_k1_nearbyintf3(tarn_float3 x);
tarn_float4 __ocl_tarn_k1_nearbyintf4(tarn_float4 x);
tarn_float8 __ocl_tarn_k1_nearbyintf8(tarn_float8 x);
tarn_float16 __ocl_tarn_k1_nearbyintf16(tarn_float16 x);

/* nearbyint: x rounded to an integer in the current mode. Domain: every x. Special values: does not raise
   inexact. Exact, or rounded once. */
double __ocl_tarn_k1_nearbyint1(double x);
tarn_double2 __ocl_tarn_k1_nearbyint2(tarn_double2 x);
tarn_double3 __ocl_tarn_k1_nearbyint3(tarn_double3 x);
tarn_double4 __ocl_tarn_k1_nearbyint4(tarn_double4 x);
tarn_double8 __ocl_tarn_k1_nearbyint8(tarn_double8 x);
tarn_double16 __ocl_tarn_k1_nearbyint16(tarn_double16 x);

/* roundf: x rounded to an integer, half away from zero. Domain: every x. Special values: infinities and
   zeros come back. Exact, or rounded once. */
float __ocl_tarn_k1_roundf1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_roundf2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_roundf3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_roundf4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_roundf8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_roundf16(tarn_float16 x) TARN_CONST;

/* round: x rounded to an integer, half away from zero. Domain: every x. Special values: infinities and
   zeros come back. Exact, or rounded once. */
double __ocl_tarn_k1_round1(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_round2(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_round3(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_round4(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_round8(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_round16(tarn_double16 x) TARN_CONST;

/* fabsf: |x|. Domain: every x. Special values: clears the sign of a NaN too. Exact, or rounded once. */
float __ocl_tarn_k1_fabsf1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_fabsf2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_fabsf3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_fabsf4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_fabsf8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_fabsf16(tarn_float16 x) TARN_CONST;

/* fabs: |x|. Domain: every x. Special values: clears the sign of a NaN too. Exact, or rounded once. */
double __ocl_tarn_k1_fabs1(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_fabs2(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_fabs3(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_fabs4(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_fabs8(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_fabs16(tarn_double16 x) TARN_CONST;

/* copysignf: |x| with the sign of y. Domain: every x and y. Special values: carries the sign of a NaN too.
   Exact, or rounded once. */
float __ocl_tarn_k1_copysignf1(float x, float y) TARN_CONST;
tarn_float2 __ocl_tarn_k1_copysignf2(tarn_float2 x, tarn_float2 y) TARN_CONST;
tarn_float3 __ocl_tarn_k1_copysignf3(tarn_float3 x, tarn_float3 y) TARN_CONST;
tarn_float4 __ocl_tarn_k1_copysignf4(tarn_float4 x, tarn_float4 y) TARN_CONST;
tarn_float8 __ocl_tarn_k1_copysignf8(tarn_float8 x, tarn_float8 y) TARN_CONST;
tarn_float16 __ocl_tarn_k1_copysignf16(tarn_float16 x, tarn_float16 y) TARN_CONST;

/* copysign: |x| with the sign of y. Domain: every x and y. Special values: carries the sign of a NaN too.
   Exact, or rounded once. */
double __ocl_tarn_k1_copysign1(double x, double y) TARN_CONST;
tarn_double2 __ocl_tarn_k1_copysign2(tarn_double2 x, tarn_double2 y) TARN_CONST;
tarn_double3 __ocl_tarn_k1_copysign3(tarn_double3 x, tarn_double3 y) TARN_CONST;
tarn_double4 __ocl_tarn_k1_copysign4(tarn_double4 x, tarn_double4 y) TARN_CONST;
tarn_double8 __ocl_tarn_k1_copysign8(tarn_double8 x, tarn_double8 y) TARN_CONST;
tarn_double16 __ocl_tarn_k1_copysign16(tarn_double16 x, tarn_double16 y) TARN_CONST;

/* nanf: a quiet NaN with the payload x. Domain: every code. Exact, or rounded once. */
float __ocl_tarn_k1_nanf1(uint32_t x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_nanf2(tarn_uint2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_nanf3(tarn_uint3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_nanf4(tarn_uint4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_nanf8(tarn_uint8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_nanf16(tarn_uint16 x) TARN_CONST;

/* nan: a quiet NaN with the payload x. Domain: every code. Exact, or rounded once. */
double __ocl_tarn_k1_nan1(uint64_t x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_nan2(tarn_ulong2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_nan3(tarn_ulong3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_nan4(tarn_ulong4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_nan8(tarn_ulong8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_nan16(tarn_ulong16 x) TARN_CONST;

/* fminf: the smaller of x and y. Domain: every x and y. Special values: one NaN is ignored; of two zeros y
   comes back. Exact, or rounded once. */
float __ocl_tarn_k1_fminf1(float x, float y) TARN_CONST;
tarn_float2 __ocl_tarn_k1_fminf2(tarn_float2 x, tarn_float2 y) TARN_CONST;
tarn_float3 __ocl_tarn_k1_fminf3(tarn_float3 x, tarn_float3 y) TARN_CONST;
tarn_float4 __ocl_tarn_k1_fminf4(tarn_float4 x, tarn_float4 y) TARN_CONST;
tarn_float8 __ocl_tarn_k1_fminf8(tarn_float8 x, tarn_float8 y) TARN_CONST;
tarn_float16 __ocl_tarn_k1_fminf16(tarn_float16 x, tarn_float16 y) TARN_CONST;

/* fmin: the smaller of x and y. Domain: every x and y. Special values: one NaN is ignored; of two zeros y
   comes back. Exact, or rounded once. */
double __ocl_tarn_k1_fmin1(double x, double y) TARN_CONST;
tarn_double2 __ocl_tarn_k1_fmin2(tarn_double2 x, tarn_double2 y) TARN_CONST;
tarn_double3 __ocl_tarn_k1_fmin3(tarn_double3 x, tarn_double3 y) TARN_CONST;
tarn_double4 __ocl_tarn_k1_fmin4(tarn_double4 x, tarn_double4 y) TARN_CONST;
tarn_double8 __ocl_tarn_k1_fmin8(tarn_double8 x, tarn_double8 y) TARN_CONST;
tarn_double16 __ocl_tarn_k1_fmin16(tarn_double16 x, tarn_double16 y) TARN_CONST;

/* fmaxf: the larger of x and y. Domain: every x and y. Special values: one NaN is ignored; of two zeros y
   comes back. Exact, or rounded once. */
float __ocl_tarn_k1_fmaxf1(float x, float y) TARN_CONST;
tarn_float2 __ocl_tarn_k1_fmaxf2(tarn_float2 x, tarn_float2 y) TARN_CONST;
tarn_float3 __ocl_tarn_k1_fmaxf3(tarn_float3 x, tarn_float3 y) TARN_CONST;
tarn_float4 __ocl_tarn_k1_fmaxf4(tarn_float4 x, tarn_float4 y) TARN_CONST;
tarn_float8 __ocl_tarn_k1_fmaxf8(tarn_float8 x, tarn_float8 y) TARN_CONST;
tarn_float16 __ocl_tarn_k1_fmaxf16(tarn_float16 x, tarn_float16 y) TARN_CONST;

/* fmax: the larger of x and y. Domain: every x and y. Special values: one NaN is ignored; of two zeros y
   comes back. Exact, or rounded once. */
double __ocl_tarn_k1_fmax1(double x, double y) TARN_CONST;
tarn_double2 __ocl_tarn_k1_fmax2(tarn_double2 x, tarn_double2 y) TARN_CONST;
tarn_double3 __ocl_tarn_k1_fmax3(tarn_double3 x, tarn_double3 y) TARN_CONST;
tarn_double4 __ocl_tarn_k1_fmax4(tarn_double4 x, tarn_double4 y) TARN_CONST;
tarn_double8 __ocl_tarn_k1_fmax8(tarn_double8 x, tarn_double8 y) TARN_CONST;
tarn_double16 __ocl_tarn_k1_fmax16(tarn_double16 x, tarn_double16 y) TARN_CONST;

/* maxmagf: the one larger in magnitude. Domain: every x and y. Special values: equal magnitudes as fmax(y,
   x); one NaN is ignored. Exact, or rounded once. */
float __ocl_tarn_k1_maxmagf1(float x, float y) TARN_CONST;
tarn_float2 __ocl_tarn_k1_maxmagf2(tarn_float2 x, tarn_float2 y) TARN_CONST;
tarn_float3 __ocl_tarn_k1_maxmagf3(tarn_float3 x, tarn_float3 y) TARN_CONST;
tarn_float4 __ocl_tarn_k1_maxmagf4(tarn_float4 x, tarn_float4 y) TARN_CONST;
tarn_float8 __ocl_tarn_k1_maxmagf8(tarn_float8 x, tarn_float8 y) TARN_CONST;
tarn_float16 __ocl_tarn_k1_maxmagf16(tarn_float16 x, tarn_float16 y) TARN_CONST;

/* maxmag: the one larger in magnitude. Domain: every x and y. Special values: equal magnitudes as fmax(y,
   x); one NaN is ignored. Exact, or rounded once. */
double __ocl_tarn_k1_maxmag1(double x, double y) TARN_CONST;
tarn_double2 __ocl_tarn_k1_maxmag2(tarn_double2 x, tarn_double2 y) TARN_CONST;
tarn_double3 __ocl_tarn_k1_maxmag3(tarn_double3 x, tarn_double3 y) TARN_CONST;
tarn_double4 __ocl_tarn_k1_maxmag4(tarn_double4 x, tarn_double4 y) TARN_CONST;
tarn_double8 __ocl_tarn_k1_maxmag8(tarn_double8 x, tarn_double8 y) TARN_CONST;
tarn_double16 __ocl_tarn_k1_maxmag16(tarn_double16 x, tarn_double16 y) TARN_CONST;

/* minmagf: the one smaller in magnitude. Domain: every x and y. Special values: equal magnitudes as fmin(y,
   x); one NaN is ignored. Exact, or rounded once. */
float __ocl_tarn_k1_minmagf1(float x, float y) TARN_CONST;
tarn_float2 __ocl_tarn_k1_minmagf2(tarn_float2 x, tarn_float2 y) TARN_CONST;
tarn_float3 __ocl_tarn_k1_minmagf3(tarn_float3 x, tarn_float3 y) TARN_CONST;
tarn_float4 __ocl_tarn_k1_minmagf4(tarn_float4 x, tarn_float4 y) TARN_CONST;
tarn_float8 __ocl_tarn_k1_minmagf8(tarn_float8 x, tarn_float8 y) TARN_CONST;
tarn_float16 __ocl_tarn_k1_minmagf16(tarn_float16 x, tarn_float16 y) TARN_CONST;

/* minmag: the one smaller in magnitude. Domain: every x and y. Special values: equal magnitudes as fmin(y,
   x); one NaN is ignored. Exact, or rounded once. */
double __ocl_tarn_k1_minmag1(double x, double y) TARN_CONST;
tarn_double2 __ocl_tarn_k1_minmag2(tarn_double2 x, tarn_double2 y) TARN_CONST;
tarn_double3 __ocl_tarn_k1_minmag3(tarn_double3 x, tarn_double3 y) TARN_CONST;
tarn_double4 __ocl_tarn_k1_minmag4(tarn_double4 x, tarn_double4 y) TARN_CONST;
tarn_double8 __ocl_tarn_k1_minmag8(tarn_double8 x, tarn_double8 y) TARN_CONST;
tarn_double16 __ocl_tarn_k1_minmag16(tarn_double16 x, tarn_double16 y) TARN_CONST;

/* fdimf: x - y where x > y, else +0. Domain: every x and y. Special values: a NaN gives NaN; (+inf, -inf)
   +inf. Exact, or rounded once. */
float __ocl_tarn_k1_fdimf1(float x, float y) TARN_CONST;
tarn_float2 __ocl_tarn_k1_fdimf2(tarn_float2 x, tarn_float2 y) TARN_CONST;
tarn_float3 __ocl_tarn_k1_fdimf3(tarn_float3 x, tarn_float3 y) TARN_CONST;
tarn_float4 __ocl_tarn_k1_fdimf4(tarn_float4 x, tarn_float4 y) TARN_CONST;
tarn_float8 __ocl_tarn_k1_fdimf8(tarn_float8 x, tarn_float8 y) TARN_CONST;
tarn_float16 __ocl_tarn_k1_fdimf16(tarn_float16 x, tarn_float16 y) TARN_CONST;

/* fdim: x - y where x > y, else +0. Domain: every x and y. Special values: a NaN gives NaN. Exact, or
   rounded once. */
double __ocl_tarn_k1_fdim1(double x, double y) TARN_CONST;
tarn_double2 __ocl_tarn_k1_fdim2(tarn_double2 x, tarn_double2 y) TARN_CONST;
tarn_double3 __ocl_tarn_k1_fdim3(tarn_double3 x, tarn_double3 y) TARN_CONST;
tarn_double4 __ocl_tarn_k1_fdim4(tarn_double4 x, tarn_double4 y) TARN_CONST;
tarn_double8 __ocl_tarn_k1_fdim8(tarn_double8 x, tarn_double8 y) TARN_CONST;
tarn_double16 __ocl_tarn_k1_fdim16(tarn_double16 x, tarn_double16 y) TARN_CONST;

/* frexpf: m in [0.5, 1) with x = m 2^e, and e through the pointer. Domain: every x. Special values: zeros,
   infinities and NaN come back with e = 0. Exact, or rounded once. */
float __ocl_tarn_k1_frexpf1(float x, int32_t* second);
tarn_float2 __ocl_tarn_k1_frexpf2(tarn_float2 x, int32_t* second);
tarn_float3 __ocl_tarn_k1_frexpf3(tarn_float3 x, int32_t* second);
tarn_float4 __ocl_tarn_k1_frexpf4(tarn_float4 x, int32_t* second);
tarn_float8 __ocl_tarn_k1_frexpf8(tarn_float8 x, int32_t* second);
tarn_float16 __ocl_tarn_k1_frexpf16(tarn_float16 x, int32_t* second);

/* frexp: m in [0.5, 1) with x = m 2^e, and e through the pointer. Domain: every x. Special values: zeros,
   infinities and NaN come back with e = 0. Exact, or rounded once. */
double __ocl_tarn_k1_frexp1(double x, int32_t* second);
tarn_double2 __ocl_tarn_k1_frexp2(tarn_double2 x, int32_t* second);
tarn_double3 __ocl_tarn_k1_frexp3(tarn_double3 x, int32_t* second);
tarn_double4 __ocl_tarn_k1_frexp4(tarn_double4 x, int32_t* second);
tarn_double8 __ocl_tarn_k1_frexp8(tarn_double8 x, int32_t* second);
tarn_double16 __ocl_tarn_k1_frexp16(tarn_double16 x, int32_t* second);

/* ilogbf: the exponent of x. Domain: every x. Special values: 0 gives INT_MIN, infinities and NaN INT_MAX.
   Exact, or rounded once. */
int32_t __ocl_tarn_k1_ilogbf1(float x) TARN_CONST;
tarn_int2 __ocl_tarn_k1_ilogbf2(tarn_float2 x) TARN_CONST;
tarn_int3 __ocl_tarn_k1_ilogbf3(tarn_float3 x) TARN_CONST;
tarn_int4 __ocl_tarn_k1_ilogbf4(tarn_float4 x) TARN_CONST;
tarn_int8 __ocl_tarn_k1_ilogbf8(tarn_float8 x) TARN_CONST;
tarn_int16 __ocl_tarn_k1_ilogbf16(tarn_float16 x) TARN_CONST;

/* ilogb: the exponent of x. Domain: every x. Special values: 0 gives INT_MIN, infinities and NaN INT_MAX.
   Exact, or rounded once. */
int32_t __ocl_tarn_k1_ilogb1(double x) TARN_CONST;
tarn_int2 __ocl_tarn_k1_ilogb2(tarn_double2 x) TARN_CONST;
tarn_int3 __ocl_tarn_k1_ilogb3(tarn_double3 x) TARN_CONST;
tarn_int4 __ocl_tarn_k1_ilogb4(tarn_double4 x) TARN_CONST;
tarn_int8 __ocl_tarn_k1_ilogb8(tarn_double8 x) TARN_CONST;
tarn_int16 __ocl_tarn_k1_ilogb16(tarn_double16 x) TARN_CONST;

/* logbf: the exponent of x. Domain: every x. Special values: zeros give -inf, infinities +inf. Exact, or
   rounded once. */
float __ocl_tarn_k1_logbf1(float x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_logbf2(tarn_float2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_logbf3(tarn_float3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_logbf4(tarn_float4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_logbf8(tarn_float8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_logbf16(tarn_float16 x) TARN_CONST;

/* logb: the exponent of x. Domain: every x. Special values: zeros give -inf, infinities +inf. Exact, or
   rounded once. */
double __ocl_tarn_k1_logb1(double x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_logb2(tarn_double2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_logb3(tarn_double3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_logb4(tarn_double4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_logb8(tarn_double8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_logb16(tarn_double16 x) TARN_CONST;

/* fractf: x - floor x, below 1, and floor x through the pointer. Domain: every x. Special values: zeros
   keep their sign; +inf gives +0, -inf -0. Exact, or rounded once. */
float __ocl_tarn_k1_fractf1(float x, float* second);
tarn_float2 __ocl_tarn_k1_fractf2(tarn_float2 x, float* second);
tarn_float3 __ocl_tarn_k1_fractf3(tarn_float3 x, float* second);
tarn_float4 __ocl_tarn_k1_fractf4(tarn_float4 x, float* second);
tarn_float8 __ocl_tarn_k1_fractf8(tarn_float8 x, float* second);
tarn_float16 __ocl_tarn_k1_fractf16(tarn_float16 x, float* second);

/* fract: x - floor x, below 1, and floor x through the pointer. Domain: every x. Special values: zeros keep
   their sign; +inf gives +0, -inf -0. Exact, or rounded once. */
double __ocl_tarn_k1_fract1(double x, double* second);
tarn_double2 __ocl_tarn_k1_fract2(tarn_double2 x, double* second);
tarn_double3 __ocl_tarn_k1_fract3(tarn_double3 x, double* second);
tarn_double4 __ocl_tarn_k1_fract4(tarn_double4 x, double* second);
tarn_double8 __ocl_tarn_k1_fract8(tarn_double8 x, double* second);
tarn_double16 __ocl_tarn_k1_fract16(tarn_double16 x, double* second);

/* modff: the fraction of x, and its integral part through the pointer. Domain: every x. Special values:
   both with the sign of x; infinities give +-0. Exact, or rounded once. */
float __ocl_tarn_k1_modff1(float x, float* second);
tarn_float2 __ocl_tarn_k1_modff2(tarn_float2 x, float* second);
tarn_float3 __ocl_tarn_k1_modff3(tarn_float3 x, float* second);
tarn_float4 __ocl_tarn_k1_modff4(tarn_float4 x, float* second);
tarn_float8 __ocl_tarn_k1_modff8(tarn_float8 x, float* second);
tarn_float16 __ocl_tarn_k1_modff16(tarn_float16 x, float* second);

/* modf: the fraction of x, and its integral part through the pointer. Domain: every x. Special values: both
   with the sign of x; infinities give +-0. Exact, or rounded once. */
double __ocl_tarn_k1_modf1(double x, double* second);
tarn_double2 __ocl_tarn_k1_modf2(tarn_double2 x, double* second);
tarn_double3 __ocl_tarn_k1_modf3(tarn_double3 x, double* second);
tarn_double4 __ocl_tarn_k1_modf4(tarn_double4 x, double* second);
tarn_double8 __ocl_tarn_k1_modf8(tarn_double8 x, double* second);
tarn_double16 __ocl_tarn_k1_modf16(tarn_double16 x, double* second);

/* ldexpf: x 2^n. Domain: every x and n. Special values: one rounding; zeros, infinities and NaN come back.
   Exact, or rounded once. */
float __ocl_tarn_k1_ldexpf1(float x, int32_t n) TARN_CONST;
tarn_float2 __ocl_tarn_k1_ldexpf2(tarn_float2 x, tarn_int2 n) TARN_CONST;
tarn_float3 __ocl_tarn_k1_ldexpf3(tarn_float3 x, tarn_int3 n) TARN_CONST;
tarn_float4 __ocl_tarn_k1_ldexpf4(tarn_float4 x, tarn_int4 n) TARN_CONST;
tarn_float8 __ocl_tarn_k1_ldexpf8(tarn_float8 x, tarn_int8 n) TARN_CONST;
tarn_float16 __ocl_tarn_k1_ldexpf16(tarn_float16 x, tarn_int16 n) TARN_CONST;

/* ldexp: x 2^n. Domain: every x and n. Special values: one rounding; zeros, infinities and NaN come back.
   Exact, or rounded once. */
double __ocl_tarn_k1_ldexp1(double x, int32_t n) TARN_CONST;
tarn_double2 __ocl_tarn_k1_ldexp2(tarn_double2 x, tarn_int2 n) TARN_CONST;
tarn_double3 __ocl_tarn_k1_ldexp3(tarn_double3 x, tarn_int3 n) TARN_CONST;
tarn_double4 __ocl_tarn_k1_ldexp4(tarn_double4 x, tarn_int4 n) TARN_CONST;
tarn_double8 __ocl_tarn_k1_ldexp8(tarn_double8 x, tarn_int8 n) TARN_CONST;
tarn_double16 __ocl_tarn_k1_ldexp16(tarn_double16 x, tarn_int16 n) TARN_CONST;

/* nextafterf: the neighbour of x toward y. Domain: every x and y. Special values: x = y gives y; a NaN
   gives NaN. Exact, or rounded once. */
float __ocl_tarn_k1_nextafterf1(float x, float y) TARN_CONST;
tarn_float2 __ocl_tarn_k1_nextafterf2(tarn_float2 x, tarn_float2 y) TARN_CONST;
tarn_float3 __ocl_tarn_k1_nextafterf3(tarn_float3 x, tarn_float3 y) TARN_CONST;
tarn_float4 __ocl_tarn_k1_nextafterf4(tarn_float4 x, tarn_float4 y) TARN_CONST;
tarn_float8 __ocl_tarn_k1_nextafterf8(tarn_float8 x, tarn_float8 y) TARN_CONST;
tarn_float16 __ocl_tarn_k1_nextafterf16(tarn_float16 x, tarn_float16 y) TARN_CONST;

/* nextafter: the neighbour of x toward y. Domain: every x and y. Special values: x = y gives y; a NaN gives
   NaN. Exact, or rounded once. */
double __ocl_tarn_k1_nextafter1(double x, double y) TARN_CONST;
tarn_double2 __ocl_tarn_k1_nextafter2(tarn_double2 x, tarn_double2 y) TARN_CONST;
tarn_double3 __ocl_tarn_k1_nextafter3(tarn_double3 x, tarn_double3 y) TARN_CONST;
tarn_double4 __ocl_tarn_k1_nextafter4(tarn_double4 x, tarn_double4 y) TARN_CONST;
tarn_double8 __ocl_tarn_k1_nextafter8(tarn_double8 x, tarn_double8 y) TARN_CONST;
tarn_double16 __ocl_tarn_k1_nextafter16(tarn_double16 x, tarn_double16 y) TARN_CONST;

/* Remainders and multiply-add --------------------------------------------------------------------- */

/* fmodf: x - n y, n = x/y toward zero. Domain: x finite, y not zero. Special values: exact; the sign of x;
   infinite y gives x. Exact, or rounded once. */
float __ocl_tarn_k1_fmodf1(float x, float y) TARN_CONST;
tarn_float2 __ocl_tarn_k1_fmodf2(tarn_float2 x, tarn_float2 y) TARN_CONST;
tarn_float3 __ocl_tarn_k1_fmodf3(tarn_float3 x, tarn_float3 y) TARN_CONST;
tarn_float4 __ocl_tarn_k1_fmodf4(tarn_float4 x, tarn_float4 y) TARN_CONST;
tarn_float8 __ocl_tarn_k1_fmodf8(tarn_float8 x, tarn_float8 y) TARN_CONST;
tarn_float16 __ocl_tarn_k1_fmodf16(tarn_float16 x, tarn_float16 y) TARN_CONST;

/* fmod: x - n y, n = x/y toward zero. Domain: x finite, y not zero. Special values: exact; the sign of x;
   infinite y gives x. Exact, or rounded once. */
double __ocl_tarn_k1_fmod1(double x, double y) TARN_CONST;
tarn_double2 __ocl_tarn_k1_fmod2(tarn_double2 x, tarn_double2 y) TARN_CONST;
tarn_double3 __ocl_tarn_k1_fmod3(tarn_double3 x, tarn_double3 y) TARN_CONST;
tarn_double4 __ocl_tarn_k1_fmod4(tarn_double4 x, tarn_double4 y) TARN_CONST;
tarn_double8 __ocl_tarn_k1_fmod8(tarn_double8 x, tarn_double8 y) TARN_CONST;
tarn_double16 __ocl_tarn_k1_fmod16(tarn_double16 x, tarn_double16 y) TARN_CONST;

/* remainderf: x - n y, n = x/y to nearest even. Domain: x finite, y not zero. Special values: exact; a zero
   has the sign of x; infinite y gives x. Exact, or rounded once. */
float __ocl_tarn_k1_remainderf1(float x, float y) TARN_CONST;
tarn_float2 __ocl_tarn_k1_remainderf2(tarn_float2 x, tarn_float2 y) TARN_CONST;
tarn_float3 __ocl_tarn_k1_remainderf3(tarn_float3 x, tarn_float3 y) TARN_CONST;
tarn_float4 __ocl_tarn_k1_remainderf4(tarn_float4 x, tarn_float4 y) TARN_CONST;
tarn_float8 __ocl_tarn_k1_remainderf8(tarn_float8 x, tarn_float8 y) TARN_CONST;
tarn_float16 __ocl_tarn_k1_remainderf16(tarn_float16 x, tarn_float16 y) TARN_CONST;

/* remainder: x - n y, n = x/y to nearest even. Domain: x finite, y not zero. Special values: exact; a zero
   has the sign of x; infinite y gives x. Exact, or rounded once. */
double __ocl_tarn_k1_remainder1(double x, double y) TARN_CONST;
tarn_double2 __ocl_tarn_k1_remainder2(tarn_double2 x, tarn_double2 y) TARN_CONST;
tarn_double3 __ocl_tarn_k1_remainder3(tarn_double3 x, tarn_double3 y) TARN_CONST;
tarn_double4 __ocl_tarn_k1_remainder4(tarn_double4 x, tarn_double4 y) TARN_CONST;
tarn_double8 __ocl_tarn_k1_remainder8(tarn_double8 x, tarn_double8 y) TARN_CONST;
tarn_double16 __ocl_tarn_k1_remainder16(tarn_double16 x, tarn_double16 y) TARN_CONST;

/* remquof: as remainder, and n through the pointer. Domain: x finite, y not zero. Special values: n: sign
   and at least the low 7 bits; 0 with a NaN result. Exact, or rounded once. */
float __ocl_tarn_k1_remquof1(float x, float y, int32_t* second);
tarn_float2 __ocl_tarn_k1_remquof2(tarn_float2 x, tarn_float2 y, int32_t* second);
tarn_float3 __ocl_tarn_k1_remquof3(tarn_float3 x, tarn_float3 y, int32_t* second);
tarn_float4 __ocl_tarn_k1_remquof4(tarn_float4 x, tarn_float4 y, int32_t* second);
tarn_float8 __ocl_tarn_k1_remquof8(tarn_float8 x, tarn_float8 y, int32_t* second);
tarn_float16 __ocl_tarn_k1_remquof16(tarn_float16 x, tarn_float16 y, int32_t* second);

/* remquo: as remainder, and n through the pointer. Domain: x finite, y not zero. Special values: n: sign
   and at least the low 7 bits; 0 with a NaN result. Exact, or rounded once. */
double __ocl_tarn_k1_remquo1(double x, double y, int32_t* second);
tarn_double2 __ocl_tarn_k1_remquo2(tarn_double2 x, tarn_double2 y, int32_t* second);
tarn_double3 __ocl_tarn_k1_remquo3(tarn_double3 x, tarn_double3 y, int32_t* second);
tarn_double4 __ocl_tarn_k1_remquo4(tarn_double4 x, tarn_double4 y, int32_t* second);
tarn_double8 __ocl_tarn_k1_remquo8(tarn_double8 x, tarn_double8 y, int32_t* second);
tarn_double16 __ocl_tarn_k1_remquo16(tarn_double16 x, tarn_double16 y, int32_t* second);

/* madf: (x y) + z, rounded twice. Domain: every x, y and z. Special values: IEEE product and sum. */
float __ocl_tarn_k1_madf1(float x, float y, float z) TARN_CONST;
tarn_float2 __ocl_tarn_k1_madf2(tarn_float2 x, tarn_float2 y, tarn_float2 z) TARN_CONST;
tarn_float3 __ocl_tarn_k1_madf3(tarn_float3 x, tarn_float3 y, tarn_float3 z) TARN_CONST;
tarn_float4 __ocl_tarn_k1_madf4(tarn_float4 x, tarn_float4 y, tarn_float4 z) TARN_CONST;
tarn_float8 __ocl_tarn_k1_madf8(tarn_float8 x, tarn_float8 y, tarn_float8 z) TARN_CONST;
tarn_float16 __ocl_tarn_k1_madf16(tarn_float16 x, tarn_float16 y, tarn_float16 z) TARN_CONST;

/* mad: (x y) + z, rounded twice. Domain: every x, y and z. Special values: IEEE product and sum. */
double __ocl_tarn_k1_mad1(double x, double y, double z) TARN_CONST;
tarn_double2 __ocl_tarn_k1_mad2(tarn_double2 x, tarn_double2 y, tarn_double2 z) TARN_CONST;
tarn_double3 __ocl_tarn_k1_mad3(tarn_double3 x, tarn_double3 y, tarn_double3 z) TARN_CONST;
tarn_double4 __ocl_tarn_k1_mad4(tarn_double4 x, tarn_double4 y, tarn_double4 z) TARN_CONST;
tarn_double8 __ocl_tarn_k1_mad8(tarn_double8 x, tarn_double8 y, tarn_double8 z) TARN_CONST;
tarn_double16 __ocl_tarn_k1_mad16(tarn_double16 x, tarn_double16 y, tarn_double16 z) TARN_CONST;

/* fmaf: x y + z, rounded once, in the direction of the x87 control word. Domain: every x, y and z. Special
   values: IEEE fused multiply-add. Exact, or rounded once. */
float __ocl_tarn_k1_fmaf1(float x, float y, float z);
tarn_float2 __ocl_tarn_k1_fmaf2(tarn_float2 x, tarn_float2 y, tarn_float2 z);
tarn_float3 __ocl_tarn_k1_fmaf3(tarn_float3 x, tarn_float3 y, tarn_float3 z);
tarn_float4 __ocl_tarn_k1_fmaf4(tarn_float4 x, tarn_float4 y, tarn_float4 z);
tarn_float8 __ocl_tarn_k1_fmaf8(tarn_float8 x, tarn_float8 y, tarn_float8 z);
tarn_float16 __ocl_tarn_k1_fmaf16(tarn_float16 x, tarn_float16 y, tarn_float16 z);

/* fma: x y + z, rounded once, in the direction of the x87 control word. Domain: every x, y and z. Special
   values: IEEE fused multiply-add. Exact, or rounded once. */
double __ocl_tarn_k1_fma1(double x, double y, double z);
tarn_double2 __ocl_tarn_k1_fma2(tarn_double2 x, tarn_double2 y, tarn_double2 z);
tarn_double3 __ocl_tarn_k1_fma3(tarn_double3 x, tarn_double3 y, tarn_double3 z);
tarn_double4 __ocl_tarn_k1_fma4(tarn_double4 x, tarn_double4 y, tarn_double4 z);
tarn_double8 __ocl_tarn_k1_fma8(tarn_double8 x, tarn_double8 y, tarn_double8 z);
tarn_double16 __ocl_tarn_k1_fma16(tarn_double16 x, tarn_double16 y, tarn_double16 z);

/* Conversions ------------------------------------------------------------------------------------- */

/* cvtfptoi32rtesatf: x rounded to nearest, ties to even. Special values: Clamped to the integer's range; a
   NaN gives 0. Exact, or rounded once. */
int32_t __ocl_tarn_k1_cvtfptoi32rtesatf1(float x) TARN_CONST;
tarn_int2 __ocl_tarn_k1_cvtfptoi32rtesatf2(tarn_float2 x) TARN_CONST;
tarn_int3 __ocl_tarn_k1_cvtfptoi32rtesatf3(tarn_float3 x) TARN_CONST;
tarn_int4 __ocl_tarn_k1_cvtfptoi32rtesatf4(tarn_float4 x) TARN_CONST;
tarn_int8 __ocl_tarn_k1_cvtfptoi32rtesatf8(tarn_float8 x) TARN_CONST;
tarn_int16 __ocl_tarn_k1_cvtfptoi32rtesatf16(tarn_float16 x) TARN_CONST;

/* cvtfptoi32rtenosatf: x rounded to nearest, ties to even. Special values: Out of range and NaN 0x80000000.
   Exact, or rounded once. */
int32_t __ocl_tarn_k1_cvtfptoi32rtenosatf1(float x) TARN_CONST;
tarn_int2 __ocl_tarn_k1_cvtfptoi32rtenosatf2(tarn_float2 x) TARN_CONST;
tarn_int3 __ocl_tarn_k1_cvtfptoi32rtenosatf3(tarn_float3 x) TARN_CONST;
tarn_int4 __ocl_tarn_k1_cvtfptoi32rtenosatf4(tarn_float4 x) TARN_CONST;
tarn_int8 __ocl_tarn_k1_cvtfptoi32rtenosatf8(tarn_float8 x) TARN_CONST;
tarn_int16 __ocl_tarn_k1_cvtfptoi32rtenosatf16(tarn_float16 x) TARN_CONST;

/* cvtfptoi32rtnsatf: x rounded down. Special values: Clamped to the integer's range; a NaN gives 0. Exact,
   or rounded once. */
int32_t __ocl_tarn_k1_cvtfptoi32rtnsatf1(float x) TARN_CONST;
tarn_int2 __ocl_tarn_k1_cvtfptoi32rtnsatf2(tarn_float2 x) TARN_CONST;
tarn_int3 __ocl_tarn_k1_cvtfptoi32rtnsatf3(tarn_float3 x) TARN_CONST;
tarn_int4 __ocl_tarn_k1_cvtfptoi32rtnsatf4(tarn_float4 x) TARN_CONST;
tarn_int8 __ocl_tarn_k1_cvtfptoi32rtnsatf8(tarn_float8 x) TARN_CONST;
tarn_int16 __ocl_tarn_k1_cvtfptoi32rtnsatf16(tarn_float16 x) TARN_CONST;

/* cvtfptoi32rtnnosatf: x rounded down. Special values: Out of range and NaN 0x80000000. Exact, or rounded
   once. */
int32_t __ocl_tarn_k1_cvtfptoi32rtnnosatf1(float x) TARN_CONST;
tarn_int2 __ocl_tarn_k1_cvtfptoi32rtnnosatf2(tarn_float2 x) TARN_CONST;
tarn_int3 __ocl_tarn_k1_cvtfptoi32rtnnosatf3(tarn_float3 x) TARN_CONST;
tarn_int4 __ocl_tarn_k1_cvtfptoi32rtnnosatf4(tarn_float4 x) TARN_CONST;
tarn_int8 __ocl_tarn_k1_cvtfptoi32rtnnosatf8(tarn_float8 x) TARN_CONST;
tarn_int16 __ocl_tarn_k1_cvtfptoi32rtnnosatf16(tarn_float16 x) TARN_CONST;

/* cvtfptoi32rtpsatf: x rounded up. Special values: Clamped to the integer's range; a NaN gives 0. Exact, or
   rounded once. */
int32_t __ocl_tarn_k1_cvtfptoi32rtpsatf1(float x) TARN_CONST;
tarn_int2 __ocl_tarn_k1_cvtfptoi32rtpsatf2(tarn_float2 x) TARN_CONST;
tarn_int3 __ocl_tarn_k1_cvtfptoi32rtpsatf3(tarn_float3 x) TARN_CONST;
tarn_int4 __ocl_tarn_k1_cvtfptoi32rtpsatf4(tarn_float4 x) TARN_CONST;
tarn_int8 __ocl_tarn_k1_cvtfptoi32rtpsatf8(tarn_float8 x) TARN_CONST;
tarn_int16 __ocl_tarn_k1_cvtfptoi32rtpsatf16(tarn_float16 x) TARN_CONST;

/* cvtfptoi32rtpnosatf: x rounded up. Special values: Out of range and NaN 0x80000000. Exact, or rounded
   once. */
int32_t __ocl_tarn_k1_cvtfptoi32rtpnosatf1(float x) TARN_CONST;
tarn_int2 __ocl_tarn_k1_cvtfptoi32rtpnosatf2(tarn_float2 x) TARN_CONST;
tarn_int3 __ocl_tarn_k1_cvtfptoi32rtpnosatf3(tarn_float3 x) TARN_CONST;
tarn_int4 __ocl_tarn_k1_cvtfptoi32rtpnosatf4(tarn_float4 x) TARN_CONST;
tarn_int8 __ocl_tarn_k1_cvtfptoi32rtpnosatf8(tarn_float8 x) TARN_CONST;
tarn_int16 __ocl_tarn_k1_cvtfptoi32rtpnosatf16(tarn_float16 x) TARN_CONST;

/* cvtfptoi32rtzsatf: x rounded toward zero. Special values: Clamped to the integer's range; a NaN gives 0.
   Exact, or rounded once. */
int32_t __ocl_tarn_k1_cvtfptoi32rtzsatf1(float x) TARN_CONST;
tarn_int2 __ocl_tarn_k1_cvtfptoi32rtzsatf2(tarn_float2 x) TARN_CONST;
tarn_int3 __ocl_tarn_k1_cvtfptoi32rtzsatf3(tarn_float3 x) TARN_CONST;
tarn_int4 __ocl_tarn_k1_cvtfptoi32rtzsatf4(tarn_float4 x) TARN_CONST;
tarn_int8 __ocl_tarn_k1_cvtfptoi32rtzsatf8(tarn_float8 x) TARN_CONST;
tarn_int16 __ocl_tarn_k1_cvtfptoi32rtzsatf16(tarn_float16 x) TARN_CONST;

/* cvtfptoi32rtznosatf: x rounded toward zero. Special values: Out of range and NaN 0x80000000. Exact, or
   rounded once. */
int32_t __ocl_tarn_k1_cvtfptoi32rtznosatf1(float x) TARN_CONST;
tarn_int2 __ocl_tarn_k1_cvtfptoi32rtznosatf2(tarn_float2 x) TARN_CONST;
tarn_int3 __ocl_tarn_k1_cvtfptoi32rtznosatf3(tarn_float3 x) TARN_CONST;
tarn_int4 __ocl_tarn_k1_cvtfptoi32rtznosatf4(tarn_float4 x) TARN_CONST;
tarn_int8 __ocl_tarn_k1_cvtfptoi32rtznosatf8(tarn_float8 x) TARN_CONST;
tarn_int16 __ocl_tarn_k1_cvtfptoi32rtznosatf16(tarn_float16 x) TARN_CONST;

/* cvtfptou32rtesatf: x rounded to nearest, ties to even. Special values: Clamped to the integer's range; a
   NaN gives all ones, or 0 with its sign set. Exact, or rounded once. */
uint32_t __ocl_tarn_k1_cvtfptou32rtesatf1(float x) TARN_CONST;
tarn_uint2 __ocl_tarn_k1_cvtfptou32rtesatf2(tarn_float2 x) TARN_CONST;
tarn_uint3 __ocl_tarn_k1_cvtfptou32rtesatf3(tarn_float3 x) TARN_CONST;
tarn_uint4 __ocl_tarn_k1_cvtfptou32rtesatf4(tarn_float4 x) TARN_CONST;
tarn_uint8 __ocl_tarn_k1_cvtfptou32rtesatf8(tarn_float8 x) TARN_CONST;
tarn_uint16 __ocl_tarn_k1_cvtfptou32rtesatf16(tarn_float16 x) TARN_CONST;

/* cvtfptou32rtenosatf: x rounded to nearest, ties to even. Special values: The sign is dropped; from 2^32
   on and NaN 0x80000000. Exact, or rounded once. */
uint32_t __ocl_tarn_k1_cvtfptou32rtenosatf1(float x) TARN_CONST;
tarn_uint2 __ocl_tarn_k1_cvtfptou32rtenosatf2(tarn_float2 x) TARN_CONST;
tarn_uint3 __ocl_tarn_k1_cvtfptou32rtenosatf3(tarn_float3 x) TARN_CONST;
tarn_uint4 __ocl_tarn_k1_cvtfptou32rtenosatf4(tarn_float4 x) TARN_CONST;
tarn_uint8 __ocl_tarn_k1_cvtfptou32rtenosatf8(tarn_float8 x) TARN_CONST;
tarn_uint16 __ocl_tarn_k1_cvtfptou32rtenosatf16(tarn_float16 x) TARN_CONST;

/* cvtfptou32rtnsatf: x rounded down. Special values: Clamped to the integer's range; a NaN gives all ones,
   or 0 with its sign set. Exact, or rounded once. */
uint32_t __ocl_tarn_k1_cvtfptou32rtnsatf1(float x) TARN_CONST;
tarn_uint2 __ocl_tarn_k1_cvtfptou32rtnsatf2(tarn_float2 x) TARN_CONST;
tarn_uint3 __ocl_tarn_k1_cvtfptou32rtnsatf3(tarn_float3 x) TARN_CONST;
tarn_uint4 __ocl_tarn_k1_cvtfptou32rtnsatf4(tarn_float4 x) TARN_CONST;
tarn_uint8 __ocl_tarn_k1_cvtfptou32rtnsatf8(tarn_float8 x) TARN_CONST;
tarn_uint16 __ocl_tarn_k1_cvtfptou32rtnsatf16(tarn_float16 x) TARN_CONST;

/* cvtfptou32rtnnosatf: x rounded down. Special values: The sign is dropped; from 2^32 on and NaN
   0x80000000. Exact, or rounded once. */
uint32_t __ocl_tarn_k1_cvtfptou32rtnnosatf1(float x) TARN_CONST;
tarn_uint2 __ocl_tarn_k1_cvtfptou32rtnnosatf2(tarn_float2 x) TARN_CONST;
tarn_uint3 __ocl_tarn_k1_cvtfptou32rtnnosatf3(tarn_float3 x) TARN_CONST;
tarn_uint4 __ocl_tarn_k1_cvtfptou32rtnnosatf4(tarn_float4 x) TARN_CONST;
tarn_uint8 __ocl_tarn_k1_cvtfptou32rtnnosatf8(tarn_float8 x) TARN_CONST;
tarn_uint16 __ocl_tarn_k1_cvtfptou32rtnnosatf16(tarn_float16 x) TARN_CONST;

/* cvtfptou32rtpsatf: x rounded up. Special values: Clamped to the integer's range; a NaN gives all ones, or
   0 with its sign set. Exact, or rounded once. */
uint32_t __ocl_tarn_k1_cvtfptou32rtpsatf1(float x) TARN_CONST;
tarn_uint2 __ocl_tarn_k1_cvtfptou32rtpsatf2(tarn_float2 x) TARN_CONST;
tarn_uint3 __ocl_tarn_k1_cvtfptou32rtpsatf3(tarn_float3 x) TARN_CONST;
tarn_uint4 __ocl_tarn_k1_cvtfptou32rtpsatf4(tarn_float4 x) TARN_CONST;
tarn_uint8 __ocl_tarn_k1_cvtfptou32rtpsatf8(tarn_float8 x) TARN_CONST;
tarn_uint16 __ocl_tarn_k1_cvtfptou32rtpsatf16(tarn_float16 x) TARN_CONST;

/* cvtfptou32rtpnosatf: x rounded up. Special values: The sign is dropped; from 2^32 on and NaN 0x80000000.
   Exact, or rounded once. */
uint32_t __ocl_tarn_k1_cvtfptou32rtpnosatf1(float x) TARN_CONST;
tarn_uint2 __ocl_tarn_k1_cvtfptou32rtpnosatf2(tarn_float2 x) TARN_CONST;
tarn_uint3 __ocl_tarn_k1_cvtfptou32rtpnosatf3(tarn_float3 x) TARN_CONST;
tarn_uint4 __ocl_tarn_k1_cvtfptou32rtpnosatf4(tarn_float4 x) TARN_CONST;
tarn_uint8 __ocl_tarn_k1_cvtfptou32rtpnosatf8(tarn_float8 x) TARN_CONST;
tarn_uint16 __ocl_tarn_k1_cvtfptou32rtpnosatf16(tarn_float16 x) TARN_CONST;

/* cvtfptou32rtzsatf: x rounded toward zero. Special values: Clamped to the integer's range; a NaN gives all
   ones, or 0 with its sign set. Exact, or rounded once. */
uint32_t __ocl_tarn_k1_cvtfptou32rtzsatf1(float x) TARN_CONST;
tarn_uint2 __ocl_tarn_k1_cvtfptou32rtzsatf2(tarn_float2 x) TARN_CONST;
tarn_uint3 __ocl_tarn_k1_cvtfptou32rtzsatf3(tarn_float3 x) TARN_CONST;
tarn_uint4 __ocl_tarn_k1_cvtfptou32rtzsatf4(tarn_float4 x) TARN_CONST;
tarn_uint8 __ocl_tarn_k1_cvtfptou32rtzsatf8(tarn_float8 x) TARN_CONST;
tarn_uint16 __ocl_tarn_k1_cvtfptou32rtzsatf16(tarn_float16 x) TARN_CONST;

/* cvtfptou32rtznosatf: x rounded toward zero. Special values: The sign is dropped; from 2^32 on and NaN
   0x80000000. Exact, or rounded once. */
uint32_t __ocl_tarn_k1_cvtfptou32rtznosatf1(float x) TARN_CONST;
tarn_uint2 __ocl_tarn_k1_cvtfptou32rtznosatf2(tarn_float2 x) TARN_CONST;
tarn_uint3 __ocl_tarn_k1_cvtfptou32rtznosatf3(tarn_float3 x) TARN_CONST;
tarn_uint4 __ocl_tarn_k1_cvtfptou32rtznosatf4(tarn_float4 x) TARN_CONST;
tarn_uint8 __ocl_tarn_k1_cvtfptou32rtznosatf8(tarn_float8 x) TARN_CONST;
tarn_uint16 __ocl_tarn_k1_cvtfptou32rtznosatf16(tarn_float16 x) TARN_CONST;

/* cvtfptoi64rtesatf: x rounded to nearest, ties to even. Special values: Clamped to the integer's range; a
   NaN gives 0. Exact, or rounded once. */
int64_t __ocl_tarn_k1_cvtfptoi64rtesatf1(float x) TARN_CONST;
tarn_long2 __ocl_tarn_k1_cvtfptoi64rtesatf2(tarn_float2 x) TARN_CONST;
tarn_long3 __ocl_tarn_k1_cvtfptoi64rtesatf3(tarn_float3 x) TARN_CONST;
tarn_long4 __ocl_tarn_k1_cvtfptoi64rtesatf4(tarn_float4 x) TARN_CONST;
tarn_long8 __ocl_tarn_k1_cvtfptoi64rtesatf8(tarn_float8 x) TARN_CONST;
tarn_long16 __ocl_tarn_k1_cvtfptoi64rtesatf16(tarn_float16 x) TARN_CONST;

/* cvtfptoi64rtenosatf: x rounded to nearest, ties to even. Special values: Out of range and NaN
   0x8000000000000000. Exact, or rounded once. */
int64_t __ocl_tarn_k1_cvtfptoi64rtenosatf1(float x) TARN_CONST;
tarn_long2 __ocl_tarn_k1_cvtfptoi64rtenosatf2(tarn_float2 x) TARN_CONST;
tarn_long3 __ocl_tarn_k1_cvtfptoi64rtenosatf3(tarn_float3 x) TARN_CONST;
tarn_long4 __ocl_tarn_k1_cvtfptoi64rtenosatf4(tarn_float4 x) TARN_CONST;
tarn_long8 __ocl_tarn_k1_cvtfptoi64rtenosatf8(tarn_float8 x) TARN_CONST;
tarn_long16 __ocl_tarn_k1_cvtfptoi64rtenosatf16(tarn_float16 x) TARN_CONST;

/* cvtfptoi64rtnsatf: x rounded down. Special values: Clamped to the integer's range; a NaN gives 0. Exact,
   or rounded once. */
int64_t __ocl_tarn_k1_cvtfptoi64rtnsatf1(float x) TARN_CONST;
tarn_long2 __ocl_tarn_k1_cvtfptoi64rtnsatf2(tarn_float2 x) TARN_CONST;
tarn_long3 __ocl_tarn_k1_cvtfptoi64rtnsatf3(tarn_float3 x) TARN_CONST;
tarn_long4 __ocl_tarn_k1_cvtfptoi64rtnsatf4(tarn_float4 x) TARN_CONST;
tarn_long8 __ocl_tarn_k1_cvtfptoi64rtnsatf8(tarn_float8 x) TARN_CONST;
tarn_long16 __ocl_tarn_k1_cvtfptoi64rtnsatf16(tarn_float16 x) TARN_CONST;

/* cvtfptoi64rtnnosatf: x rounded down. Special values: Out of range and NaN 0x8000000000000000. Exact, or
   rounded once. */
int64_t __ocl_tarn_k1_cvtfptoi64rtnnosatf1(float x) TARN_CONST;
tarn_long2 __ocl_tarn_k1_cvtfptoi64rtnnosatf2(tarn_float2 x) TARN_CONST;
tarn_long3 __ocl_tarn_k1_cvtfptoi64rtnnosatf3(tarn_float3 x) TARN_CONST;
tarn_long4 __ocl_tarn_k1_cvtfptoi64rtnnosatf4(tarn_float4 x) TARN_CONST;
tarn_long8 __ocl_tarn_k1_cvtfptoi64rtnnosatf8(tarn_float8 x) TARN_CONST;
tarn_long16 __ocl_tarn_k1_cvtfptoi64rtnnosatf16(tarn_float16 x) TARN_CONST;

/* cvtfptoi64rtpsatf: x rounded up. Special values: Clamped to the integer's range; a NaN gives 0. Exact, or
   rounded once. */
int64_t __ocl_tarn_k1_cvtfptoi64rtpsatf1(float x) TARN_CONST;
tarn_long2 __ocl_tarn_k1_cvtfptoi64rtpsatf2(tarn_float2 x) TARN_CONST;
tarn_long3 __ocl_tarn_k1_cvtfptoi64rtpsatf3(tarn_float3 x) TARN_CONST;
tarn_long4 __ocl_tarn_k1_cvtfptoi64rtpsatf4(tarn_float4 x) TARN_CONST;
tarn_long8 __ocl_tarn_k1_cvtfptoi64rtpsatf8(tarn_float8 x) TARN_CONST;
tarn_long16 __ocl_tarn_k1_cvtfptoi64rtpsatf16(tarn_float16 x) TARN_CONST;

/* cvtfptoi64rtpnosatf: x rounded up. Special values: Out of range and NaN 0x8000000000000000. Exact, or
   rounded once. */
int64_t __ocl_tarn_k1_cvtfptoi64rtpnosatf1(float x) TARN_CONST;
tarn_long2 __ocl_tarn_k1_cvtfptoi64rtpnosatf2(tarn_float2 x) TARN_CONST;
tarn_long3 __ocl_tarn_k1_cvtfptoi64rtpnosatf3(tarn_float3 x) TARN_CONST;
tarn_long4 __ocl_tarn_k1_cvtfptoi64rtpnosatf4(tarn_float4 x) TARN_CONST;
tarn_long8 __ocl_tarn_k1_cvtfptoi64rtpnosatf8(tarn_float8 x) TARN_CONST;
tarn_long16 __ocl_tarn_k1_cvtfptoi64rtpnosatf16(tarn_float16 x) TARN_CONST;

/* cvtfptoi64rtzsatf: x rounded toward zero. Special values: Clamped to the integer's range; a NaN gives 0.
   Exact, or rounded once. */
int64_t __ocl_tarn_k1_cvtfptoi64rtzsatf1(float x) TARN_CONST;
tarn_long2 __ocl_tarn_k1_cvtfptoi64rtzsatf2(tarn_float2 x) TARN_CONST;
tarn_long3 __ocl_tarn_k1_cvtfptoi64rtzsatf3(tarn_float3 x) TARN_CONST;
tarn_long4 __ocl_tarn_k1_cvtfptoi64rtzsatf4(tarn_float4 x) TARN_CONST;
tarn_long8 __ocl_tarn_k1_cvtfptoi64rtzsatf8(tarn_float8 x) TARN_CONST;
tarn_long16 __ocl_tarn_k1_cvtfptoi64rtzsatf16(tarn_float16 x) TARN_CONST;

/* cvtfptoi64rtznosatf: x rounded toward zero. Special values: Out of range and NaN 0x8000000000000000.
   Exact, or rounded once. */
int64_t __ocl_tarn_k1_cvtfptoi64rtznosatf1(float x) TARN_CONST;
tarn_long2 __ocl_tarn_k1_cvtfptoi64rtznosatf2(tarn_float2 x) TARN_CONST;
tarn_long3 __ocl_tarn_k1_cvtfptoi64rtznosatf3(tarn_float3 x) TARN_CONST;
tarn_long4 __ocl_tarn_k1_cvtfptoi64rtznosatf4(tarn_float4 x) TARN_CONST;
tarn_long8 __ocl_tarn_k1_cvtfptoi64rtznosatf8(tarn_float8 x) TARN_CONST;
tarn_long16 __ocl_tarn_k1_cvtfptoi64rtznosatf16(tarn_float16 x) TARN_CONST;

/* cvtfptou64rtesatf: x rounded to nearest, ties to even. Special values: Clamped to the integer's range; a
   NaN gives 0. Exact, or rounded once. */
uint64_t __ocl_tarn_k1_cvtfptou64rtesatf1(float x) TARN_CONST;
tarn_ulong2 __ocl_tarn_k1_cvtfptou64rtesatf2(tarn_float2 x) TARN_CONST;
tarn_ulong3 __ocl_tarn_k1_cvtfptou64rtesatf3(tarn_float3 x) TARN_CONST;
tarn_ulong4 __ocl_tarn_k1_cvtfptou64rtesatf4(tarn_float4 x) TARN_CONST;
tarn_ulong8 __ocl_tarn_k1_cvtfptou64rtesatf8(tarn_float8 x) TARN_CONST;
tarn_ulong16 __ocl_tarn_k1_cvtfptou64rtesatf16(tarn_float16 x) TARN_CONST;

/* cvtfptou64rtenosatf: x rounded to nearest, ties to even. Special values: Out of range and NaN
   0x8000000000000000. Exact, or rounded once. */
uint64_t __ocl_tarn_k1_cvtfptou64rtenosatf1(float x) TARN_CONST;
tarn_ulong2 __ocl_tarn_k1_cvtfptou64rtenosatf2(tarn_float2 x) TARN_CONST;
tarn_ulong3 __ocl_tarn_k1_cvtfptou64rtenosatf3(tarn_float3 x) TARN_CONST;
tarn_ulong4 __ocl_tarn_k1_cvtfptou64rtenosatf4(tarn_float4 x) TARN_CONST;
tarn_ulong8 __ocl_tarn_k1_cvtfptou64rtenosatf8(tarn_float8 x) TARN_CONST;
tarn_ulong16 __ocl_tarn_k1_cvtfptou64rtenosatf16(tarn_float16 x) TARN_CONST;

/* cvtfptou64rtnsatf: x rounded down. Special values: Clamped to the integer's range; a NaN gives 0. Exact,
   or rounded once. */
uint64_t __ocl_tarn_k1_cvtfptou64rtnsatf1(float x) TARN_CONST;
tarn_ulong2 __ocl_tarn_k1_cvtfptou64rtnsatf2(tarn_float2 x) TARN_CONST;
tarn_ulong3 __ocl_tarn_k1_cvtfptou64rtnsatf3(tarn_float3 x) TARN_CONST;
tarn_ulong4 __ocl_tarn_k1_cvtfptou64rtnsatf4(tarn_float4 x) TARN_CONST;
tarn_ulong8 __ocl_tarn_k1_cvtfptou64rtnsatf8(tarn_float8 x) TARN_CONST;
tarn_ulong16 __ocl_tarn_k1_cvtfptou64rtnsatf16(tarn_float16 x) TARN_CONST;

/* cvtfptou64rtnnosatf: x rounded down. Special values: Out of range and NaN 0x8000000000000000. Exact, or
   rounded once. */
uint64_t __ocl_tarn_k1_cvtfptou64rtnnosatf1(float x) TARN_CONST;
tarn_ulong2 __ocl_tarn_k1_cvtfptou64rtnnosatf2(tarn_float2 x) TARN_CONST;
tarn_ulong3 __ocl_tarn_k1_cvtfptou64rtnnosatf3(tarn_float3 x) TARN_CONST;
tarn_ulong4 __ocl_tarn_k1_cvtfptou64rtnnosatf4(tarn_float4 x) TARN_CONST;
tarn_ulong8 __ocl_tarn_k1_cvtfptou64rtnnosatf8(tarn_float8 x) TARN_CONST;
tarn_ulong16 __ocl_tarn_k1_cvtfptou64rtnnosatf16(tarn_float16 x) TARN_CONST;

/* cvtfptou64rtpsatf: x rounded up. Special values: Clamped to the integer's range; a NaN gives 0. Exact, or
   rounded once. */
uint64_t __ocl_tarn_k1_cvtfptou64rtpsatf1(float x) TARN_CONST;
tarn_ulong2 __ocl_tarn_k1_cvtfptou64rtpsatf2(tarn_float2 x) TARN_CONST;
tarn_ulong3 __ocl_tarn_k1_cvtfptou64rtpsatf3(tarn_float3 x) TARN_CONST;
tarn_ulong4 __ocl_tarn_k1_cvtfptou64rtpsatf4(tarn_float4 x) TARN_CONST;
tarn_ulong8 __ocl_tarn_k1_cvtfptou64rtpsatf8(tarn_float8 x) TARN_CONST;
tarn_ulong16 __ocl_tarn_k1_cvtfptou64rtpsatf16(tarn_float16 x) TARN_CONST;

/* cvtfptou64rtpnosatf: x rounded up. Special values: Out of range and NaN 0x8000000000000000. Exact, or
   rounded once. */
uint64_t __ocl_tarn_k1_cvtfptou64rtpnosatf1(float x) TARN_CONST;
tarn_ulong2 __ocl_tarn_k1_cvtfptou64rtpnosatf2(tarn_float2 x) TARN_CONST;
tarn_ulong3 __ocl_tarn_k1_cvtfptou64rtpnosatf3(tarn_float3 x) TARN_CONST;
tarn_ulong4 __ocl_tarn_k1_cvtfptou64rtpnosatf4(tarn_float4 x) TARN_CONST;
tarn_ulong8 __ocl_tarn_k1_cvtfptou64rtpnosatf8(tarn_float8 x) TARN_CONST;
tarn_ulong16 __ocl_tarn_k1_cvtfptou64rtpnosatf16(tarn_float16 x) TARN_CONST;

/* cvtfptou64rtzsatf: x rounded toward zero. Special values: Clamped to the integer's range; a NaN gives 0.
   Exact, or rounded once. */
uint64_t __ocl_tarn_k1_cvtfptou64rtzsatf1(float x) TARN_CONST;
tarn_ulong2 __ocl_tarn_k1_cvtfptou64rtzsatf2(tarn_float2 x) TARN_CONST;
tarn_ulong3 __ocl_tarn_k1_cvtfptou64rtzsatf3(tarn_float3 x) TARN_CONST;
tarn_ulong4 __ocl_tarn_k1_cvtfptou64rtzsatf4(tarn_float4 x) TARN_CONST;
tarn_ulong8 __ocl_tarn_k1_cvtfptou64rtzsatf8(tarn_float8 x) TARN_CONST;
tarn_ulong16 __ocl_tarn_k1_cvtfptou64rtzsatf16(tarn_float16 x) TARN_CONST;

/* cvtfptou64rtznosatf: x rounded toward zero. Special values: Out of range and NaN 0x8000000000000000.
   Exact, or rounded once. */
uint64_t __ocl_tarn_k1_cvtfptou64rtznosatf1(float x) TARN_CONST;
tarn_ulong2 __ocl_tarn_k1_cvtfptou64rtznosatf2(tarn_float2 x) TARN_CONST;
tarn_ulong3 __ocl_tarn_k1_cvtfptou64rtznosatf3(tarn_float3 x) TARN_CONST;
tarn_ulong4 __ocl_tarn_k1_cvtfptou64rtznosatf4(tarn_float4 x) TARN_CONST;
tarn_ulong8 __ocl_tarn_k1_cvtfptou64rtznosatf8(tarn_float8 x) TARN_CONST;
tarn_ulong16 __ocl_tarn_k1_cvtfptou64rtznosatf16(tarn_float16 x) TARN_CONST;

/* cvtfptoi32rtesat: x rounded to nearest, ties to even. Special values: Clamped to the integer's range; a
   NaN gives 0. Exact, or rounded once. */
int32_t __ocl_tarn_k1_cvtfptoi32rtesat1(double x) TARN_CONST;
tarn_int2 __ocl_tarn_k1_cvtfptoi32rtesat2(tarn_double2 x) TARN_CONST;
tarn_int3 __ocl_tarn_k1_cvtfptoi32rtesat3(tarn_double3 x) TARN_CONST;
tarn_int4 __ocl_tarn_k1_cvtfptoi32rtesat4(tarn_double4 x) TARN_CONST;
tarn_int8 __ocl_tarn_k1_cvtfptoi32rtesat8(tarn_double8 x) TARN_CONST;
tarn_int16 __ocl_tarn_k1_cvtfptoi32rtesat16(tarn_double16 x) TARN_CONST;

/* cvtfptoi32rtenosat: x rounded to nearest, ties to even. Special values: Out of range and NaN 0x80000000.
   Exact, or rounded once. */
int32_t __ocl_tarn_k1_cvtfptoi32rtenosat1(double x) TARN_CONST;
tarn_int2 __ocl_tarn_k1_cvtfptoi32rtenosat2(tarn_double2 x) TARN_CONST;
tarn_int3 __ocl_tarn_k1_cvtfptoi32rtenosat3(tarn_double3 x) TARN_CONST;
tarn_int4 __ocl_tarn_k1_cvtfptoi32rtenosat4(tarn_double4 x) TARN_CONST;
tarn_int8 __ocl_tarn_k1_cvtfptoi32rtenosat8(tarn_double8 x) TARN_CONST;
tarn_int16 __ocl_tarn_k1_cvtfptoi32rtenosat16(tarn_double16 x) TARN_CONST;

/* cvtfptoi32rtnsat: x rounded down. Special values: Clamped to the integer's range; a NaN gives 0. Exact,
   or rounded once. */
int32_t __ocl_tarn_k1_cvtfptoi32rtnsat1(double x) TARN_CONST;
tarn_int2 __ocl_tarn_k1_cvtfptoi32rtnsat2(tarn_double2 x) TARN_CONST;
tarn_int3 __ocl_tarn_k1_cvtfptoi32rtnsat3(tarn_double3 x) TARN_CONST;
tarn_int4 __ocl_tarn_k1_cvtfptoi32rtnsat4(tarn_double4 x) TARN_CONST;
tarn_int8 __ocl_tarn_k1_cvtfptoi32rtnsat8(tarn_double8 x) TARN_CONST;
tarn_int16 __ocl_tarn_k1_cvtfptoi32rtnsat16(tarn_double16 x) TARN_CONST;

/* cvtfptoi32rtnnosat: x rounded down. Special values: Out of range and NaN 0x80000000. Exact, or rounded
   once. */
int32_t __ocl_tarn_k1_cvtfptoi32rtnnosat1(double x) TARN_CONST;
tarn_int2 __ocl_tarn_k1_cvtfptoi32rtnnosat2(tarn_double2 x) TARN_CONST;
tarn_int3 __ocl_tarn_k1_cvtfptoi32rtnnosat3(tarn_double3 x) TARN_CONST;
tarn_int4 __ocl_tarn_k1_cvtfptoi32rtnnosat4(tarn_double4 x) TARN_CONST;
tarn_int8 __ocl_tarn_k1_cvtfptoi32rtnnosat8(tarn_double8 x) TARN_CONST;
tarn_int16 __ocl_tarn_k1_cvtfptoi32rtnnosat16(tarn_double16 x) TARN_CONST;

/* cvtfptoi32rtpsat: x rounded up. Special values: Clamped to the integer's range; a NaN gives 0. Exact, or
   rounded once. */
int32_t __ocl_tarn_k1_cvtfptoi32rtpsat1(double x) TARN_CONST;
tarn_int2 __ocl_tarn_k1_cvtfptoi32rtpsat2(tarn_double2 x) TARN_CONST;
tarn_int3 __ocl_tarn_k1_cvtfptoi32rtpsat3(tarn_double3 x) TARN_CONST;
tarn_int4 __ocl_tarn_k1_cvtfptoi32rtpsat4(tarn_double4 x) TARN_CONST;
tarn_int8 __ocl_tarn_k1_cvtfptoi32rtpsat8(tarn_double8 x) TARN_CONST;
tarn_int16 __ocl_tarn_k1_cvtfptoi32rtpsat16(tarn_double16 x) TARN_CONST;

/* cvtfptoi32rtpnosat: x rounded up. Special values: Out of range and NaN 0x80000000. Exact, or rounded
   once. */
int32_t __ocl_tarn_k1_cvtfptoi32rtpnosat1(double x) TARN_CONST;
tarn_int2 __ocl_tarn_k1_cvtfptoi32rtpnosat2(tarn_double2 x) TARN_CONST;
tarn_int3 __ocl_tarn_k1_cvtfptoi32rtpnosat3(tarn_double3 x) TARN_CONST;
tarn_int4 __ocl_tarn_k1_cvtfptoi32rtpnosat4(tarn_double4 x) TARN_CONST;
tarn_int8 __ocl_tarn_k1_cvtfptoi32rtpnosat8(tarn_double8 x) TARN_CONST;
tarn_int16 __ocl_tarn_k1_cvtfptoi32rtpnosat16(tarn_double16 x) TARN_CONST;

/* cvtfptoi32rtzsat: x rounded toward zero. Special values: Clamped to the integer's range; a NaN gives 0.
   Exact, or rounded once. */
int32_t __ocl_tarn_k1_cvtfptoi32rtzsat1(double x) TARN_CONST;
tarn_int2 __ocl_tarn_k1_cvtfptoi32rtzsat2(tarn_double2 x) TARN_CONST;
tarn_int3 __ocl_tarn_k1_cvtfptoi32rtzsat3(tarn_double3 x) TARN_CONST;
tarn_int4 __ocl_tarn_k1_cvtfptoi32rtzsat4(tarn_double4 x) TARN_CONST;
tarn_int8 __ocl_tarn_k1_cvtfptoi32rtzsat8(tarn_double8 x) TARN_CONST;
tarn_int16 __ocl_tarn_k1_cvtfptoi32rtzsat16(tarn_double16 x) TARN_CONST;

/* cvtfptoi32rtznosat: x rounded toward zero. Special values: Out of range and NaN 0x80000000. Exact, or
   rounded once. */
int32_t __ocl_tarn_k1_cvtfptoi32rtznosat1(double x) TARN_CONST;
tarn_int2 __ocl_tarn_k1_cvtfptoi32rtznosat2(tarn_double2 x) TARN_CONST;
tarn_int3 __ocl_tarn_k1_cvtfptoi32rtznosat3(tarn_double3 x) TARN_CONST;
tarn_int4 __ocl_tarn_k1_cvtfptoi32rtznosat4(tarn_double4 x) TARN_CONST;
tarn_int8 __ocl_tarn_k1_cvtfptoi32rtznosat8(tarn_double8 x) TARN_CONST;
tarn_int16 __ocl_tarn_k1_cvtfptoi32rtznosat16(tarn_double16 x) TARN_CONST;

/* cvtfptou32rtesat: x rounded to nearest, ties to even. Special values: Clamped to the integer's range; a
   NaN gives all ones, or 0 with its sign set. Exact, or rounded once. */
uint32_t __ocl_tarn_k1_cvtfptou32rtesat1(double x) TARN_CONST;
tarn_uint2 __ocl_tarn_k1_cvtfptou32rtesat2(tarn_double2 x) TARN_CONST;
tarn_uint3 __ocl_tarn_k1_cvtfptou32rtesat3(tarn_double3 x) TARN_CONST;
tarn_uint4 __ocl_tarn_k1_cvtfptou32rtesat4(tarn_double4 x) TARN_CONST;
tarn_uint8 __ocl_tarn_k1_cvtfptou32rtesat8(tarn_double8 x) TARN_CONST;
tarn_uint16 __ocl_tarn_k1_cvtfptou32rtesat16(tarn_double16 x) TARN_CONST;

/* cvtfptou32rtenosat: x rounded to nearest, ties to even. Special values: The sign is dropped; from 2^32 on
   and NaN 0x80000000. Exact, or rounded once. */
uint32_t __ocl_tarn_k1_cvtfptou32rtenosat1(double x) TARN_CONST;
tarn_uint2 __ocl_tarn_k1_cvtfptou32rtenosat2(tarn_double2 x) TARN_CONST;
tarn_uint3 __ocl_tarn_k1_cvtfptou32rtenosat3(tarn_double3 x) TARN_CONST;
tarn_uint4 __ocl_tarn_k1_cvtfptou32rtenosat4(tarn_double4 x) TARN_CONST;
tarn_uint8 __ocl_tarn_k1_cvtfptou32rtenosat8(tarn_double8 x) TARN_CONST;
tarn_uint16 __ocl_tarn_k1_cvtfptou32rtenosat16(tarn_double16 x) TARN_CONST;

/* cvtfptou32rtnsat: x rounded down. Special values: Clamped to the integer's range; a NaN gives all ones,
   or 0 with its sign set. Exact, or rounded once. */
uint32_t __ocl_tarn_k1_cvtfptou32rtnsat1(double x) TARN_CONST;
tarn_uint2 __ocl_tarn_k1_cvtfptou32rtnsat2(tarn_double2 x) TARN_CONST;
tarn_uint3 __ocl_tarn_k1_cvtfptou32rtnsat3(tarn_double3 x) TARN_CONST;
tarn_uint4 __ocl_tarn_k1_cvtfptou32rtnsat4(tarn_double4 x) TARN_CONST;
tarn_uint8 __ocl_tarn_k1_cvtfptou32rtnsat8(tarn_double8 x) TARN_CONST;
tarn_uint16 __ocl_tarn_k1_cvtfptou32rtnsat16(tarn_double16 x) TARN_CONST;

/* cvtfptou32rtnnosat: x rounded down. Special values: The sign is dropped; from 2^32 on and NaN 0x80000000.
   Exact, or rounded once. */
uint32_t __ocl_tarn_k1_cvtfptou32rtnnosat1(double x) TARN_CONST;
tarn_uint2 __ocl_tarn_k1_cvtfptou32rtnnosat2(tarn_double2 x) TARN_CONST;
tarn_uint3 __ocl_tarn_k1_cvtfptou32rtnnosat3(tarn_double3 x) TARN_CONST;
tarn_uint4 __ocl_tarn_k1_cvtfptou32rtnnosat4(tarn_double4 x) TARN_CONST;
tarn_uint8 __ocl_tarn_k1_cvtfptou32rtnnosat8(tarn_double8 x) TARN_CONST;
tarn_uint16 __ocl_tarn_k1_cvtfptou32rtnnosat16(tarn_double16 x) TARN_CONST;

/* cvtfptou32rtpsat: x rounded up. Special values: Clamped to the integer's range; a NaN gives all ones, or
   0 with its sign set. Exact, or rounded once. */
uint32_t __ocl_tarn_k1_cvtfptou32rtpsat1(double x) TARN_CONST;
tarn_uint2 __ocl_tarn_k1_cvtfptou32rtpsat2(tarn_double2 x) TARN_CONST;
tarn_uint3 __ocl_tarn_k1_cvtfptou32rtpsat3(tarn_double3 x) TARN_CONST;
tarn_uint4 __ocl_tarn_k1_cvtfptou32rtpsat4(tarn_double4 x) TARN_CONST;
tarn_uint8 __ocl_tarn_k1_cvtfptou32rtpsat8(tarn_double8 x) TARN_CONST;
tarn_uint16 __ocl_tarn_k1_cvtfptou32rtpsat16(tarn_double16 x) TARN_CONST;

/* cvtfptou32rtpnosat: x rounded up. Special values: The sign is dropped; from 2^32 on and NaN 0x80000000.
   Exact, or rounded once. */
uint32_t __ocl_tarn_k1_cvtfptou32rtpnosat1(double x) TARN_CONST;
tarn_uint2 __ocl_tarn_k1_cvtfptou32rtpnosat2(tarn_double2 x) TARN_CONST;
tarn_uint3 __ocl_tarn_k1_cvtfptou32rtpnosat3(tarn_double3 x) TARN_CONST;
tarn_uint4 __ocl_tarn_k1_cvtfptou32rtpnosat4(tarn_double4 x) TARN_CONST;
tarn_uint8 __ocl_tarn_k1_cvtfptou32rtpnosat8(tarn_double8 x) TARN_CONST;
tarn_uint16 __ocl_tarn_k1_cvtfptou32rtpnosat16(tarn_double16 x) TARN_CONST;

/* cvtfptou32rtzsat: x rounded toward zero. Special values: Clamped to the integer's range; a NaN gives all
   ones, or 0 with its sign set. Exact, or rounded once. */
uint32_t __ocl_tarn_k1_cvtfptou32rtzsat1(double x) TARN_CONST;
tarn_uint2 __ocl_tarn_k1_cvtfptou32rtzsat2(tarn_double2 x) TARN_CONST;
tarn_uint3 __ocl_tarn_k1_cvtfptou32rtzsat3(tarn_double3 x) TARN_CONST;
tarn_uint4 __ocl_tarn_k1_cvtfptou32rtzsat4(tarn_double4 x) TARN_CONST;
tarn_uint8 __ocl_tarn_k1_cvtfptou32rtzsat8(tarn_double8 x) TARN_CONST;
tarn_uint16 __ocl_tarn_k1_cvtfptou32rtzsat16(tarn_double16 x) TARN_CONST;

/* cvtfptou32rtznosat: x rounded toward zero. Special values: The sign is dropped; from 2^32 on and NaN
   0x80000000. Exact, or rounded once. */
uint32_t __ocl_tarn_k1_cvtfptou32rtznosat1(double x) TARN_CONST;
tarn_uint2 __ocl_tarn_k1_cvtfptou32rtznosat2(tarn_double2 x) TARN_CONST;
tarn_uint3 __ocl_tarn_k1_cvtfptou32rtznosat3(tarn_double3 x) TARN_CONST;
tarn_uint4 __ocl_tarn_k1_cvtfptou32rtznosat4(tarn_double4 x) TARN_CONST;
tarn_uint8 __ocl_tarn_k1_cvtfptou32rtznosat8(tarn_double8 x) TARN_CONST;
tarn_uint16 __ocl_tarn_k1_cvtfptou32rtznosat16(tarn_double16 x) TARN_CONST;

/* cvtfptoi64rtesat: x rounded to nearest, ties to even. Special values: Clamped to the integer's range; a
   NaN gives 0. Exact, or rounded once. */
int64_t __ocl_tarn_k1_cvtfptoi64rtesat1(double x) TARN_CONST;
tarn_long2 __ocl_tarn_k1_cvtfptoi64rtesat2(tarn_double2 x) TARN_CONST;
tarn_long3 __ocl_tarn_k1_cvtfptoi64rtesat3(tarn_double3 x) TARN_CONST;
tarn_long4 __ocl_tarn_k1_cvtfptoi64rtesat4(tarn_double4 x) TARN_CONST;
tarn_long8 __ocl_tarn_k1_cvtfptoi64rtesat8(tarn_double8 x) TARN_CONST;
tarn_long16 __ocl_tarn_k1_cvtfptoi64rtesat16(tarn_double16 x) TARN_CONST;

/* cvtfptoi64rtenosat: x rounded to nearest, ties to even. Special values: Out of range and NaN
   0x8000000000000000. Exact, or rounded once. */
int64_t __ocl_tarn_k1_cvtfptoi64rtenosat1(double x) TARN_CONST;
tarn_long2 __ocl_tarn_k1_cvtfptoi64rtenosat2(tarn_double2 x) TARN_CONST;
tarn_long3 __ocl_tarn_k1_cvtfptoi64rtenosat3(tarn_double3 x) TARN_CONST;
tarn_long4 __ocl_tarn_k1_cvtfptoi64rtenosat4(tarn_double4 x) TARN_CONST;
tarn_long8 __ocl_tarn_k1_cvtfptoi64rtenosat8(tarn_double8 x) TARN_CONST;
tarn_long16 __ocl_tarn_k1_cvtfptoi64rtenosat16(tarn_double16 x) TARN_CONST;

/* cvtfptoi64rtnsat: x rounded down. Special values: Clamped to the integer's range; a NaN gives 0. Exact,
   or rounded once. */
int64_t __ocl_tarn_k1_cvtfptoi64rtnsat1(double x) TARN_CONST;
tarn_long2 __ocl_tarn_k1_cvtfptoi64rtnsat2(tarn_double2 x) TARN_CONST;
tarn_long3 __ocl_tarn_k1_cvtfptoi64rtnsat3(tarn_double3 x) TARN_CONST;
tarn_long4 __ocl_tarn_k1_cvtfptoi64rtnsat4(tarn_double4 x) TARN_CONST;
tarn_long8 __ocl_tarn_k1_cvtfptoi64rtnsat8(tarn_double8 x) TARN_CONST;
tarn_long16 __ocl_tarn_k1_cvtfptoi64rtnsat16(tarn_double16 x) TARN_CONST;

/* cvtfptoi64rtnnosat: x rounded down. Special values: Out of range and NaN 0x8000000000000000. Exact, or
   rounded once. */
int64_t __ocl_tarn_k1_cvtfptoi64rtnnosat1(double x) TARN_CONST;
tarn_long2 __ocl_tarn_k1_cvtfptoi64rtnnosat2(tarn_double2 x) TARN_CONST;
tarn_long3 __ocl_tarn_k1_cvtfptoi64rtnnosat3(tarn_double3 x) TARN_CONST;
tarn_long4 __ocl_tarn_k1_cvtfptoi64rtnnosat4(tarn_double4 x) TARN_CONST;
tarn_long8 __ocl_tarn_k1_cvtfptoi64rtnnosat8(tarn_double8 x) TARN_CONST;
tarn_long16 __ocl_tarn_k1_cvtfptoi64rtnnosat16(tarn_double16 x) TARN_CONST;

/* cvtfptoi64rtpsat: x rounded up. Special values: Clamped to the integer's range; a NaN gives 0. Exact, or
   rounded once. */
int64_t __ocl_tarn_k1_cvtfptoi64rtpsat1(double x) TARN_CONST;
tarn_long2 __ocl_tarn_k1_cvtfptoi64rtpsat2(tarn_double2 x) TARN_CONST;
tarn_long3 __ocl_tarn_k1_cvtfptoi64rtpsat3(tarn_double3 x) TARN_CONST;
tarn_long4 __ocl_tarn_k1_cvtfptoi64rtpsat4(tarn_double4 x) TARN_CONST;
tarn_long8 __ocl_tarn_k1_cvtfptoi64rtpsat8(tarn_double8 x) TARN_CONST;
tarn_long16 __ocl_tarn_k1_cvtfptoi64rtpsat16(tarn_double16 x) TARN_CONST;

/* cvtfptoi64rtpnosat: x rounded up. Special values: Out of range and NaN 0x8000000000000000. Exact, or
   rounded once. */
int64_t __ocl_tarn_k1_cvtfptoi64rtpnosat1(double x) TARN_CONST;
tarn_long2 __ocl_tarn_k1_cvtfptoi64rtpnosat2(tarn_double2 x) TARN_CONST;
tarn_long3 __ocl_tarn_k1_cvtfptoi64rtpnosat3(tarn_double3 x) TARN_CONST;
tarn_long4 __ocl_tarn_k1_cvtfptoi64rtpnosat4(tarn_double4 x) TARN_CONST;
tarn_long8 __ocl_tarn_k1_cvtfptoi64rtpnosat8(tarn_double8 x) TARN_CONST;
tarn_long16 __ocl_tarn_k1_cvtfptoi64rtpnosat16(tarn_double16 x) TARN_CONST;

/* cvtfptoi64rtzsat: x rounded toward zero. Special values: Clamped to the integer's range; a NaN gives 0.
   Exact, or rounded once. */
int64_t __ocl_tarn_k1_cvtfptoi64rtzsat1(double x) TARN_CONST;
tarn_long2 __ocl_tarn_k1_cvtfptoi64rtzsat2(tarn_double2 x) TARN_CONST;
tarn_long3 __ocl_tarn_k1_cvtfptoi64rtzsat3(tarn_double3 x) TARN_CONST;
tarn_long4 __ocl_tarn_k1_cvtfptoi64rtzsat4(tarn_double4 x) TARN_CONST;
tarn_long8 __ocl_tarn_k1_cvtfptoi64rtzsat8(tarn_double8 x) TARN_CONST;
tarn_long16 __ocl_tarn_k1_cvtfptoi64rtzsat16(tarn_double16 x) TARN_CONST;

/* cvtfptoi64rtznosat: x rounded toward zero. Special values: Out of range and NaN 0x8000000000000000.
   Exact, or rounded once. */
int64_t __ocl_tarn_k1_cvtfptoi64rtznosat1(double x) TARN_CONST;
tarn_long2 __ocl_tarn_k1_cvtfptoi64rtznosat2(tarn_double2 x) TARN_CONST;
tarn_long3 __ocl_tarn_k1_cvtfptoi64rtznosat3(tarn_double3 x) TARN_CONST;
tarn_long4 __ocl_tarn_k1_cvtfptoi64rtznosat4(tarn_double4 x) TARN_CONST;
tarn_long8 __ocl_tarn_k1_cvtfptoi64rtznosat8(tarn_double8 x) TARN_CONST;
tarn_long16 __ocl_tarn_k1_cvtfptoi64rtznosat16(tarn_double16 x) TARN_CONST;

/* cvtfptou64rtesat: x rounded to nearest, ties to even. Special values: Clamped to the integer's range; a
   NaN gives 0. Exact, or rounded once. */
uint64_t __ocl_tarn_k1_cvtfptou64rtesat1(double x) TARN_CONST;
tarn_ulong2 __ocl_tarn_k1_cvtfptou64rtesat2(tarn_double2 x) TARN_CONST;
tarn_ulong3 __ocl_tarn_k1_cvtfptou64rtesat3(tarn_double3 x) TARN_CONST;
tarn_ulong4 __ocl_tarn_k1_cvtfptou64rtesat4(tarn_double4 x) TARN_CONST;
tarn_ulong8 __ocl_tarn_k1_cvtfptou64rtesat8(tarn_double8 x) TARN_CONST;
tarn_ulong16 __ocl_tarn_k1_cvtfptou64rtesat16(tarn_double16 x) TARN_CONST;

/* cvtfptou64rtenosat: x rounded to nearest, ties to even. Special values: Out of range and NaN
   0x8000000000000000. Exact, or rounded once. */
uint64_t __ocl_tarn_k1_cvtfptou64rtenosat1(double x) TARN_CONST;
tarn_ulong2 __ocl_tarn_k1_cvtfptou64rtenosat2(tarn_double2 x) TARN_CONST;
tarn_ulong3 __ocl_tarn_k1_cvtfptou64rtenosat3(tarn_double3 x) TARN_CONST;
tarn_ulong4 __ocl_tarn_k1_cvtfptou64rtenosat4(tarn_double4 x) TARN_CONST;
tarn_ulong8 __ocl_tarn_k1_cvtfptou64rtenosat8(tarn_double8 x) TARN_CONST;
tarn_ulong16 __ocl_tarn_k1_cvtfptou64rtenosat16(tarn_double16 x) TARN_CONST;

/* cvtfptou64rtnsat: x rounded down. Special values: Clamped to the integer's range; a NaN gives 0. Exact,
   or rounded once. */
uint64_t __ocl_tarn_k1_cvtfptou64rtnsat1(double x) TARN_CONST;
tarn_ulong2 __ocl_tarn_k1_cvtfptou64rtnsat2(tarn_double2 x) TARN_CONST;
tarn_ulong3 __ocl_tarn_k1_cvtfptou64rtnsat3(tarn_double3 x) TARN_CONST;
tarn_ulong4 __ocl_tarn_k1_cvtfptou64rtnsat4(tarn_double4 x) TARN_CONST;
tarn_ulong8 __ocl_tarn_k1_cvtfptou64rtnsat8(tarn_double8 x) TARN_CONST;
tarn_ulong16 __ocl_tarn_k1_cvtfptou64rtnsat16(tarn_double16 x) TARN_CONST;

/* cvtfptou64rtnnosat: x rounded down. Special values: Out of range and NaN 0x8000000000000000. Exact, or
   rounded once. */
uint64_t __ocl_tarn_k1_cvtfptou64rtnnosat1(double x) TARN_CONST;
tarn_ulong2 __ocl_tarn_k1_cvtfptou64rtnnosat2(tarn_double2 x) TARN_CONST;
tarn_ulong3 __ocl_tarn_k1_cvtfptou64rtnnosat3(tarn_double3 x) TARN_CONST;
tarn_ulong4 __ocl_tarn_k1_cvtfptou64rtnnosat4(tarn_double4 x) TARN_CONST;
tarn_ulong8 __ocl_tarn_k1_cvtfptou64rtnnosat8(tarn_double8 x) TARN_CONST;
tarn_ulong16 __ocl_tarn_k1_cvtfptou64rtnnosat16(tarn_double16 x) TARN_CONST;

/* cvtfptou64rtpsat: x rounded up. Special values: Clamped to the integer's range; a NaN gives 0. Exact, or
   rounded once. */
uint64_t __ocl_tarn_k1_cvtfptou64rtpsat1(double x) TARN_CONST;
tarn_ulong2 __ocl_tarn_k1_cvtfptou64rtpsat2(tarn_double2 x) TARN_CONST;
tarn_ulong3 __ocl_tarn_k1_cvtfptou64rtpsat3(tarn_double3 x) TARN_CONST;
tarn_ulong4 __ocl_tarn_k1_cvtfptou64rtpsat4(tarn_double4 x) TARN_CONST;
tarn_ulong8 __ocl_tarn_k1_cvtfptou64rtpsat8(tarn_double8 x) TARN_CONST;
tarn_ulong16 __ocl_tarn_k1_cvtfptou64rtpsat16(tarn_double16 x) TARN_CONST;

/* cvtfptou64rtpnosat: x rounded up. Special values: Out of range and NaN 0x8000000000000000. Exact, or
   rounded once. */
uint64_t __ocl_tarn_k1_cvtfptou64rtpnosat1(double x) TARN_CONST;
tarn_ulong2 __ocl_tarn_k1_cvtfptou64rtpnosat2(tarn_double2 x) TARN_CONST;
tarn_ulong3 __ocl_tarn_k1_cvtfptou64rtpnosat3(tarn_double3 x) TARN_CONST;
tarn_ulong4 __ocl_tarn_k1_cvtfptou64rtpnosat4(tarn_double4 x) TARN_CONST;
tarn_ulong8 __ocl_tarn_k1_cvtfptou64rtpnosat8(tarn_double8 x) TARN_CONST;
tarn_ulong16 __ocl_tarn_k1_cvtfptou64rtpnosat16(tarn_double16 x) TARN_CONST;

/* cvtfptou64rtzsat: x rounded toward zero. Special values: Clamped to the integer's range; a NaN gives 0.
   Exact, or rounded once. */
uint64_t __ocl_tarn_k1_cvtfptou64rtzsat1(double x) TARN_CONST;
tarn_ulong2 __ocl_tarn_k1_cvtfptou64rtzsat2(tarn_double2 x) TARN_CONST;
tarn_ulong3 __ocl_tarn_k1_cvtfptou64rtzsat3(tarn_double3 x) TARN_CONST;
tarn_ulong4 __ocl_tarn_k1_cvtfptou64rtzsat4(tarn_double4 x) TARN_CONST;
tarn_ulong8 __ocl_tarn_k1_cvtfptou64rtzsat8(tarn_double8 x) TARN_CONST;
tarn_ulong16 __ocl_tarn_k1_cvtfptou64rtzsat16(tarn_double16 x) TARN_CONST;

/* cvtfptou64rtznosat: x rounded toward zero. Special values: Out of range and NaN 0x8000000000000000.
   Exact, or rounded once. */
uint64_t __ocl_tarn_k1_cvtfptou64rtznosat1(double x) TARN_CONST;
tarn_ulong2 __ocl_tarn_k1_cvtfptou64rtznosat2(tarn_double2 x) TARN_CONST;
tarn_ulong3 __ocl_tarn_k1_cvtfptou64rtznosat3(tarn_double3 x) TARN_CONST;
tarn_ulong4 __ocl_tarn_k1_cvtfptou64rtznosat4(tarn_double4 x) TARN_CONST;
tarn_ulong8 __ocl_tarn_k1_cvtfptou64rtznosat8(tarn_double8 x) TARN_CONST;
tarn_ulong16 __ocl_tarn_k1_cvtfptou64rtznosat16(tarn_double16 x) TARN_CONST;

/* cvti32tofprtef: x rounded to nearest, ties to even. Special values: 0 gives +0. Exact, or rounded once. */
float __ocl_tarn_k1_cvti32tofprtef1(int32_t x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_cvti32tofprtef2(tarn_int2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_cvti32tofprtef3(tarn_int3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_cvti32tofprtef4(tarn_int4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_cvti32tofprtef8(tarn_int8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_cvti32tofprtef16(tarn_int16 x) TARN_CONST;

/* cvti32tofprtnf: x rounded down. Special values: 0 gives +0. Exact, or rounded once. */
float __ocl_tarn_k1_cvti32tofprtnf1(int32_t x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_cvti32tofprtnf2(tarn_int2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_cvti32tofprtnf3(tarn_int3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_cvti32tofprtnf4(tarn_int4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_cvti32tofprtnf8(tarn_int8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_cvti32tofprtnf16(tarn_int16 x) TARN_CONST;

/* cvti32tofprtpf: x rounded up. Special values: 0 gives +0. Exact, or rounded once. */
float __ocl_tarn_k1_cvti32tofprtpf1(int32_t x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_cvti32tofprtpf2(tarn_int2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_cvti32tofprtpf3(tarn_int3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_cvti32tofprtpf4(tarn_int4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_cvti32tofprtpf8(tarn_int8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_cvti32tofprtpf16(tarn_int16 x) TARN_CONST;

/* cvti32tofprtzf: x rounded toward zero. Special values: 0 gives +0. Exact, or rounded once. */
float __ocl_tarn_k1_cvti32tofprtzf1(int32_t x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_cvti32tofprtzf2(tarn_int2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_cvti32tofprtzf3(tarn_int3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_cvti32tofprtzf4(tarn_int4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_cvti32tofprtzf8(tarn_int8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_cvti32tofprtzf16(tarn_int16 x) TARN_CONST;

/* cvtu32tofprtef: x rounded to nearest, ties to even. Special values: 0 gives +0. Exact, or rounded once. */
float __ocl_tarn_k1_cvtu32tofprtef1(uint32_t x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_cvtu32tofprtef2(tarn_uint2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_cvtu32tofprtef3(tarn_uint3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_cvtu32tofprtef4(tarn_uint4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_cvtu32tofprtef8(tarn_uint8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_cvtu32tofprtef16(tarn_uint16 x) TARN_CONST;

/* cvtu32tofprtnf: x rounded down. Special values: 0 gives +0. Exact, or rounded once. */
float __ocl_tarn_k1_cvtu32tofprtnf1(uint32_t x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_cvtu32tofprtnf2(tarn_uint2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_cvtu32tofprtnf3(tarn_uint3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_cvtu32tofprtnf4(tarn_uint4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_cvtu32tofprtnf8(tarn_uint8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_cvtu32tofprtnf16(tarn_uint16 x) TARN_CONST;

/* cvtu32tofprtpf: x rounded up. Special values: 0 gives +0. Exact, or rounded once. */
float __ocl_tarn_k1_cvtu32tofprtpf1(uint32_t x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_cvtu32tofprtpf2(tarn_uint2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_cvtu32tofprtpf3(tarn_uint3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_cvtu32tofprtpf4(tarn_uint4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_cvtu32tofprtpf8(tarn_uint8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_cvtu32tofprtpf16(tarn_uint16 x) TARN_CONST;

/* cvtu32tofprtzf: x rounded toward zero. Special values: 0 gives +0. Exact, or rounded once. */
float __ocl_tarn_k1_cvtu32tofprtzf1(uint32_t x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_cvtu32tofprtzf2(tarn_uint2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_cvtu32tofprtzf3(tarn_uint3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_cvtu32tofprtzf4(tarn_uint4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_cvtu32tofprtzf8(tarn_uint8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_cvtu32tofprtzf16(tarn_uint16 x) TARN_CONST;

/* cvti64tofprtef: x rounded to nearest, ties to even. Special values: 0 gives +0. Exact, or rounded once. */
float __ocl_tarn_k1_cvti64tofprtef1(int64_t x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_cvti64tofprtef2(tarn_long2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_cvti64tofprtef3(tarn_long3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_cvti64tofprtef4(tarn_long4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_cvti64tofprtef8(tarn_long8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_cvti64tofprtef16(tarn_long16 x) TARN_CONST;

/* cvti64tofprtnf: x rounded down. Special values: 0 gives +0. Exact, or rounded once. */
float __ocl_tarn_k1_cvti64tofprtnf1(int64_t x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_cvti64tofprtnf2(tarn_long2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_cvti64tofprtnf3(tarn_long3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_cvti64tofprtnf4(tarn_long4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_cvti64tofprtnf8(tarn_long8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_cvti64tofprtnf16(tarn_long16 x) TARN_CONST;

/* cvti64tofprtpf: x rounded up. Special values: 0 gives +0. Exact, or rounded once. */
float __ocl_tarn_k1_cvti64tofprtpf1(int64_t x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_cvti64tofprtpf2(tarn_long2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_cvti64tofprtpf3(tarn_long3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_cvti64tofprtpf4(tarn_long4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_cvti64tofprtpf8(tarn_long8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_cvti64tofprtpf16(tarn_long16 x) TARN_CONST;

/* cvti64tofprtzf: x rounded toward zero. Special values: 0 gives +0. Exact, or rounded once. */
float __ocl_tarn_k1_cvti64tofprtzf1(int64_t x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_cvti64tofprtzf2(tarn_long2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_cvti64tofprtzf3(tarn_long3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_cvti64tofprtzf4(tarn_long4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_cvti64tofprtzf8(tarn_long8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_cvti64tofprtzf16(tarn_long16 x) TARN_CONST;

/* cvtu64tofprtef: x rounded to nearest, ties to even. Special values: 0 gives +0. Exact, or rounded once. */
float __ocl_tarn_k1_cvtu64tofprtef1(uint64_t x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_cvtu64tofprtef2(tarn_ulong2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_cvtu64tofprtef3(tarn_ulong3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_cvtu64tofprtef4(tarn_ulong4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_cvtu64tofprtef8(tarn_ulong8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_cvtu64tofprtef16(tarn_ulong16 x) TARN_CONST;

/* cvtu64tofprtnf: x rounded down. Special values: 0 gives +0. Exact, or rounded once. */
float __ocl_tarn_k1_cvtu64tofprtnf1(uint64_t x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_cvtu64tofprtnf2(tarn_ulong2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_cvtu64tofprtnf3(tarn_ulong3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_cvtu64tofprtnf4(tarn_ulong4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_cvtu64tofprtnf8(tarn_ulong8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_cvtu64tofprtnf16(tarn_ulong16 x) TARN_CONST;

/* cvtu64tofprtpf: x rounded up. Special values: 0 gives +0. Exact, or rounded once. */
float __ocl_tarn_k1_cvtu64tofprtpf1(uint64_t x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_cvtu64tofprtpf2(tarn_ulong2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_cvtu64tofprtpf3(tarn_ulong3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_cvtu64tofprtpf4(tarn_ulong4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_cvtu64tofprtpf8(tarn_ulong8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_cvtu64tofprtpf16(tarn_ulong16 x) TARN_CONST;

/* cvtu64tofprtzf: x rounded toward zero. Special values: 0 gives +0. Exact, or rounded once. */
float __ocl_tarn_k1_cvtu64tofprtzf1(uint64_t x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_cvtu64tofprtzf2(tarn_ulong2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_cvtu64tofprtzf3(tarn_ulong3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_cvtu64tofprtzf4(tarn_ulong4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_cvtu64tofprtzf8(tarn_ulong8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_cvtu64tofprtzf16(tarn_ulong16 x) TARN_CONST;

/* cvti32tofprte: x rounded to nearest, ties to even. Special values: 0 gives +0. Exact, or rounded once. */
double __ocl_tarn_k1_cvti32tofprte1(int32_t x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_cvti32tofprte2(tarn_int2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_cvti32tofprte3(tarn_int3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_cvti32tofprte4(tarn_int4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_cvti32tofprte8(tarn_int8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_cvti32tofprte16(tarn_int16 x) TARN_CONST;

/* cvti32tofprtn: x rounded down. Special values: 0 gives +0. Exact, or rounded once. */
double __ocl_tarn_k1_cvti32tofprtn1(int32_t x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_cvti32tofprtn2(tarn_int2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_cvti32tofprtn3(tarn_int3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_cvti32tofprtn4(tarn_int4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_cvti32tofprtn8(tarn_int8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_cvti32tofprtn16(tarn_int16 x) TARN_CONST;

/* cvti32tofprtp: x rounded up. Special values: 0 gives +0. Exact, or rounded once. */
double __ocl_tarn_k1_cvti32tofprtp1(int32_t x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_cvti32tofprtp2(tarn_int2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_cvti32tofprtp3(tarn_int3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_cvti32tofprtp4(tarn_int4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_cvti32tofprtp8(tarn_int8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_cvti32tofprtp16(tarn_int16 x) TARN_CONST;

/* cvti32tofprtz: x rounded toward zero. Special values: 0 gives +0. Exact, or rounded once. */
double __ocl_tarn_k1_cvti32tofprtz1(int32_t x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_cvti32tofprtz2(tarn_int2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_cvti32tofprtz3(tarn_int3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_cvti32tofprtz4(tarn_int4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_cvti32tofprtz8(tarn_int8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_cvti32tofprtz16(tarn_int16 x) TARN_CONST;

/* cvtu32tofprte: x rounded to nearest, ties to even. Special values: 0 gives +0. Exact, or rounded once. */
double __ocl_tarn_k1_cvtu32tofprte1(uint32_t x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_cvtu32tofprte2(tarn_uint2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_cvtu32tofprte3(tarn_uint3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_cvtu32tofprte4(tarn_uint4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_cvtu32tofprte8(tarn_uint8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_cvtu32tofprte16(tarn_uint16 x) TARN_CONST;

/* cvtu32tofprtn: x rounded down. Special values: 0 gives +0. Exact, or rounded once. */
double __ocl_tarn_k1_cvtu32tofprtn1(uint32_t x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_cvtu32tofprtn2(tarn_uint2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_cvtu32tofprtn3(tarn_uint3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_cvtu32tofprtn4(tarn_uint4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_cvtu32tofprtn8(tarn_uint8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_cvtu32tofprtn16(tarn_uint16 x) TARN_CONST;

/* cvtu32tofprtp: x rounded up. Special values: 0 gives +0. Exact, or rounded once. */
double __ocl_tarn_k1_cvtu32tofprtp1(uint32_t x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_cvtu32tofprtp2(tarn_uint2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_cvtu32tofprtp3(tarn_uint3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_cvtu32tofprtp4(tarn_uint4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_cvtu32tofprtp8(tarn_uint8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_cvtu32tofprtp16(tarn_uint16 x) TARN_CONST;

/* cvtu32tofprtz: x rounded toward zero. Special values: 0 gives +0. Exact, or rounded once. */
double __ocl_tarn_k1_cvtu32tofprtz1(uint32_t x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_cvtu32tofprtz2(tarn_uint2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_cvtu32tofprtz3(tarn_uint3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_cvtu32tofprtz4(tarn_uint4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_cvtu32tofprtz8(tarn_uint8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_cvtu32tofprtz16(tarn_uint16 x) TARN_CONST;

/* cvti64tofprte: x rounded to nearest, ties to even. Special values: 0 gives +0. Exact, or rounded once. */
double __ocl_tarn_k1_cvti64tofprte1(int64_t x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_cvti64tofprte2(tarn_long2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_cvti64tofprte3(tarn_long3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_cvti64tofprte4(tarn_long4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_cvti64tofprte8(tarn_long8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_cvti64tofprte16(tarn_long16 x) TARN_CONST;

/* cvti64tofprtn: x rounded down. Special values: 0 gives +0. Exact, or rounded once. */
double __ocl_tarn_k1_cvti64tofprtn1(int64_t x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_cvti64tofprtn2(tarn_long2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_cvti64tofprtn3(tarn_long3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_cvti64tofprtn4(tarn_long4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_cvti64tofprtn8(tarn_long8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_cvti64tofprtn16(tarn_long16 x) TARN_CONST;

/* cvti64tofprtp: x rounded up. Special values: 0 gives +0. Exact, or rounded once. */
double __ocl_tarn_k1_cvti64tofprtp1(int64_t x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_cvti64tofprtp2(tarn_long2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_cvti64tofprtp3(tarn_long3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_cvti64tofprtp4(tarn_long4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_cvti64tofprtp8(tarn_long8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_cvti64tofprtp16(tarn_long16 x) TARN_CONST;

/* cvti64tofprtz: x rounded toward zero. Special values: 0 gives +0. Exact, or rounded once. */
double __ocl_tarn_k1_cvti64tofprtz1(int64_t x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_cvti64tofprtz2(tarn_long2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_cvti64tofprtz3(tarn_long3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_cvti64tofprtz4(tarn_long4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_cvti64tofprtz8(tarn_long8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_cvti64tofprtz16(tarn_long16 x) TARN_CONST;

/* cvtu64tofprte: x rounded to nearest, ties to even. Special values: 0 gives +0. Exact, or rounded once. */
double __ocl_tarn_k1_cvtu64tofprte1(uint64_t x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_cvtu64tofprte2(tarn_ulong2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_cvtu64tofprte3(tarn_ulong3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_cvtu64tofprte4(tarn_ulong4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_cvtu64tofprte8(tarn_ulong8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_cvtu64tofprte16(tarn_ulong16 x) TARN_CONST;

/* cvtu64tofprtn: x rounded down. Special values: 0 gives +0. Exact, or rounded once. */
double __ocl_tarn_k1_cvtu64tofprtn1(uint64_t x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_cvtu64tofprtn2(tarn_ulong2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_cvtu64tofprtn3(tarn_ulong3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_cvtu64tofprtn4(tarn_ulong4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_cvtu64tofprtn8(tarn_ulong8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_cvtu64tofprtn16(tarn_ulong16 x) TARN_CONST;

/* cvtu64tofprtp: x rounded up. Special values: 0 gives +0. Exact, or rounded once. */
double __ocl_tarn_k1_cvtu64tofprtp1(uint64_t x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_cvtu64tofprtp2(tarn_ulong2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_cvtu64tofprtp3(tarn_ulong3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_cvtu64tofprtp4(tarn_ulong4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_cvtu64tofprtp8(tarn_ulong8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_cvtu64tofprtp16(tarn_ulong16 x) TARN_CONST;

/* cvtu64tofprtz: x rounded toward zero. Special values: 0 gives +0. Exact, or rounded once. */
double __ocl_tarn_k1_cvtu64tofprtz1(uint64_t x) TARN_CONST;
tarn_double2 __ocl_tarn_k1_cvtu64tofprtz2(tarn_ulong2 x) TARN_CONST;
tarn_double3 __ocl_tarn_k1_cvtu64tofprtz3(tarn_ulong3 x) TARN_CONST;
tarn_double4 __ocl_tarn_k1_cvtu64tofprtz4(tarn_ulong4 x) TARN_CONST;
tarn_double8 __ocl_tarn_k1_cvtu64tofprtz8(tarn_ulong8 x) TARN_CONST;
tarn_double16 __ocl_tarn_k1_cvtu64tofprtz16(tarn_ulong16 x) TARN_CONST;

/* cvtfp64tofp32rte: x rounded to nearest, ties to even. Special values: -0 is kept; NaN gives a quiet NaN.
   Exact, or rounded once. */
float __ocl_tarn_k1_cvtfp64tofp32rte1(double x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_cvtfp64tofp32rte2(tarn_double2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_cvtfp64tofp32rte3(tarn_double3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_cvtfp64tofp32rte4(tarn_double4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_cvtfp64tofp32rte8(tarn_double8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_cvtfp64tofp32rte16(tarn_double16 x) TARN_CONST;

/* cvtfp64tofp32rtn: x rounded down. Special values: -0 is kept; NaN gives a quiet NaN. Exact, or rounded
   once. */
float __ocl_tarn_k1_cvtfp64tofp32rtn1(double x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_cvtfp64tofp32rtn2(tarn_double2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_cvtfp64tofp32rtn3(tarn_double3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_cvtfp64tofp32rtn4(tarn_double4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_cvtfp64tofp32rtn8(tarn_double8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_cvtfp64tofp32rtn16(tarn_double16 x) TARN_CONST;

/* cvtfp64tofp32rtp: x rounded up. Special values: -0 is kept; NaN gives a quiet NaN. Exact, or rounded
   once. */
float __ocl_tarn_k1_cvtfp64tofp32rtp1(double x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_cvtfp64tofp32rtp2(tarn_double2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_cvtfp64tofp32rtp3(tarn_double3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_cvtfp64tofp32rtp4(tarn_double4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_cvtfp64tofp32rtp8(tarn_double8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_cvtfp64tofp32rtp16(tarn_double16 x) TARN_CONST;

/* cvtfp64tofp32rtz: x rounded toward zero. Special values: -0 is kept; NaN gives a quiet NaN. Exact, or
   rounded once. */
float __ocl_tarn_k1_cvtfp64tofp32rtz1(double x) TARN_CONST;
tarn_float2 __ocl_tarn_k1_cvtfp64tofp32rtz2(tarn_double2 x) TARN_CONST;
tarn_float3 __ocl_tarn_k1_cvtfp64tofp32rtz3(tarn_double3 x) TARN_CONST;
tarn_float4 __ocl_tarn_k1_cvtfp64tofp32rtz4(tarn_double4 x) TARN_CONST;
tarn_float8 __ocl_tarn_k1_cvtfp64tofp32rtz8(tarn_double8 x) TARN_CONST;
tarn_float16 __ocl_tarn_k1_cvtfp64tofp32rtz16(tarn_double16 x) TARN_CONST;

#pragma GCC visibility pop
#ifdef __cplusplus
}
#endif
#endif
