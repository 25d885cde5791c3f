/* The functions of ocl_tarn_k1.h for callers on Windows x64: __ocl_tarn_k1.dll.
 *
 * Vectors travel in xmm0 to xmm3 and come back in xmm0 upwards, as __vectorcall has them. Functions that it places
 * otherwise are declared nowhere: a comment names them, and docs/abi.md says where their arguments travel. They are
 * for compilers, and for calls in assembly.
 *
 * A vector of up to 16 bytes is a 16-byte register: of tarn_float2 and tarn_int2 the lower two lanes count, of the
 * integers of width 1 the lowest. Longer ones are structs of 16-byte blocks, lane 0 first.
 *
 * For Clang and Microsoft's compiler; that of GCC has no __vectorcall. What each function computes, for what arguments,
 * and with what error is said in ocl_tarn_k1.h.
 *
 * Generated from the table of families by tarn-exports; edit the table. */
#ifndef OCL_TARN_K1_WINDOWS_H
#define OCL_TARN_K1_WINDOWS_H

#include <stdint.h>

#if defined(__clang__) && defined(__x86_64__) && defined(_WIN32)
#define TARN_VECTOR(lane, name, register) typedef lane name __attribute__((vector_size(16)))
#define TARN_CALL __attribute__((vectorcall))
/* The whole name: without the mark the compiler adds the arguments' size. */
#define TARN_SYMBOL(name) __asm__("\01" #name)
#elif defined(_MSC_VER) && defined(_M_X64)
#include <emmintrin.h>
#define TARN_VECTOR(lane, name, register) typedef register name
#define TARN_CALL __vectorcall
#define TARN_SYMBOL(name) /* the import library knows the decorated names */
#else
#error "these declarations are for Clang and Microsoft's compiler for Windows x64"
#endif

#if defined(TARN_FENV_ACCESS) || !defined(__clang__)
#define TARN_CONST /* calls stay where they are between changes of the floating-point environment */
#else
#define TARN_CONST __attribute__((const)) /* the result depends on nothing but the arguments */
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* Vectors --------------------------------------------------------------------------------------- */

TARN_VECTOR(float, tarn_float4, __m128);
typedef tarn_float4 tarn_float2, tarn_float3;
typedef struct tarn_float8 { tarn_float4 block[2]; } tarn_float8;
typedef struct tarn_float16 { tarn_float4 block[4]; } tarn_float16;

TARN_VECTOR(double, tarn_double2, __m128d);
typedef struct tarn_double4 { tarn_double2 block[2]; } tarn_double4, tarn_double3;
typedef struct tarn_double8 { tarn_double2 block[4]; } tarn_double8;
typedef struct tarn_double16 { tarn_double2 block[8]; } tarn_double16;

TARN_VECTOR(int32_t, tarn_int4, __m128i);
typedef tarn_int4 tarn_int1, tarn_int2, tarn_int3;
typedef struct tarn_int8 { tarn_int4 block[2]; } tarn_int8;
typedef struct tarn_int16 { tarn_int4 block[4]; } tarn_int16;

TARN_VECTOR(uint32_t, tarn_uint4, __m128i);
typedef tarn_uint4 tarn_uint1, tarn_uint2, tarn_uint3;
typedef struct tarn_uint8 { tarn_uint4 block[2]; } tarn_uint8;
typedef struct tarn_uint16 { tarn_uint4 block[4]; } tarn_uint16;

TARN_VECTOR(int64_t, tarn_long2, __m128i);
typedef tarn_long2 tarn_long1;
typedef struct tarn_long4 { tarn_long2 block[2]; } tarn_long4, tarn_long3;
typedef struct tarn_long8 { tarn_long2 block[4]; } tarn_long8;
typedef struct tarn_long16 { tarn_long2 block[8]; } tarn_long16;

TARN_VECTOR(uint64_t, tarn_ulong2, __m128i);
typedef tarn_ulong2 tarn_ulong1;
typedef struct tarn_ulong4 { tarn_ulong2 block[2]; } tarn_ulong4, tarn_ulong3;
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

/* expf: e^x */
float TARN_CALL __ocl_tarn_k1_expf1(float x) TARN_SYMBOL(__ocl_tarn_k1_expf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_expf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_expf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_expf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_expf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_expf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_expf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_expf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_expf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_expf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_expf16) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_expf1_native(float x) TARN_SYMBOL(__ocl_tarn_k1_expf1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_expf2_native(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_expf2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_expf3_native(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_expf3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_expf4_native(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_expf4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_expf8_native(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_expf8_native) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_expf16_native(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_expf16_native) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_expf1_half(float x) TARN_SYMBOL(__ocl_tarn_k1_expf1_half) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_expf2_half(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_expf2_half) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_expf3_half(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_expf3_half) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_expf4_half(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_expf4_half) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_expf8_half(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_expf8_half) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_expf16_half(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_expf16_half) TARN_CONST;

/* exp: e^x */
double TARN_CALL __ocl_tarn_k1_exp1(double x) TARN_SYMBOL(__ocl_tarn_k1_exp1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_exp2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_exp2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_exp3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_exp3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_exp4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_exp4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_exp8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_exp8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_exp16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_exp16) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_exp1_native(double x) TARN_SYMBOL(__ocl_tarn_k1_exp1_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_exp2_native(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_exp2_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_exp3_native(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_exp3_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_exp4_native(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_exp4_native) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_exp8_native(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_exp8_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_exp16_native(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_exp16_native) TARN_CONST;

/* exp2f: 2^x */
float TARN_CALL __ocl_tarn_k1_exp2f1(float x) TARN_SYMBOL(__ocl_tarn_k1_exp2f1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_exp2f2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_exp2f2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_exp2f3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_exp2f3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_exp2f4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_exp2f4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_exp2f8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_exp2f8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_exp2f16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_exp2f16) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_exp2f1_native(float x) TARN_SYMBOL(__ocl_tarn_k1_exp2f1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_exp2f2_native(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_exp2f2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_exp2f3_native(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_exp2f3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_exp2f4_native(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_exp2f4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_exp2f8_native(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_exp2f8_native) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_exp2f16_native(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_exp2f16_native) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_exp2f1_half(float x) TARN_SYMBOL(__ocl_tarn_k1_exp2f1_half) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_exp2f2_half(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_exp2f2_half) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_exp2f3_half(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_exp2f3_half) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_exp2f4_half(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_exp2f4_half) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_exp2f8_half(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_exp2f8_half) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_exp2f16_half(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_exp2f16_half) TARN_CONST;

/* exp2: 2^x */
double TARN_CALL __ocl_tarn_k1_exp21(double x) TARN_SYMBOL(__ocl_tarn_k1_exp21) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_exp22(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_exp22) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_exp23(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_exp23) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_exp24(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_exp24) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_exp28(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_exp28) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_exp216(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_exp216) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_exp21_native(double x) TARN_SYMBOL(__ocl_tarn_k1_exp21_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_exp22_native(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_exp22_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_exp23_native(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_exp23_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_exp24_native(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_exp24_native) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_exp28_native(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_exp28_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_exp216_native(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_exp216_native) TARN_CONST;

/* exp10f: 10^x */
float TARN_CALL __ocl_tarn_k1_exp10f1(float x) TARN_SYMBOL(__ocl_tarn_k1_exp10f1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_exp10f2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_exp10f2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_exp10f3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_exp10f3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_exp10f4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_exp10f4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_exp10f8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_exp10f8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_exp10f16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_exp10f16) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_exp10f1_native(float x) TARN_SYMBOL(__ocl_tarn_k1_exp10f1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_exp10f2_native(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_exp10f2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_exp10f3_native(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_exp10f3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_exp10f4_native(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_exp10f4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_exp10f8_native(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_exp10f8_native) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_exp10f16_native(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_exp10f16_native) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_exp10f1_half(float x) TARN_SYMBOL(__ocl_tarn_k1_exp10f1_half) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_exp10f2_half(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_exp10f2_half) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_exp10f3_half(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_exp10f3_half) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_exp10f4_half(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_exp10f4_half) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_exp10f8_half(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_exp10f8_half) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_exp10f16_half(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_exp10f16_half) TARN_CONST;

/* exp10: 10^x */
double TARN_CALL __ocl_tarn_k1_exp101(double x) TARN_SYMBOL(__ocl_tarn_k1_exp101) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_exp102(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_exp102) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_exp103(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_exp103) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_exp104(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_exp104) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_exp108(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_exp108) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_exp1016(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_exp1016) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_exp101_native(double x) TARN_SYMBOL(__ocl_tarn_k1_exp101_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_exp102_native(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_exp102_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_exp103_native(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_exp103_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_exp104_native(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_exp104_native) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_exp108_native(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_exp108_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_exp1016_native(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_exp1016_native) TARN_CONST;

/* expm1f: e^x - 1 */
float TARN_CALL __ocl_tarn_k1_expm1f1(float x) TARN_SYMBOL(__ocl_tarn_k1_expm1f1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_expm1f2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_expm1f2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_expm1f3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_expm1f3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_expm1f4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_expm1f4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_expm1f8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_expm1f8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_expm1f16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_expm1f16) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_expm1f1_native(float x) TARN_SYMBOL(__ocl_tarn_k1_expm1f1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_expm1f2_native(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_expm1f2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_expm1f3_native(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_expm1f3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_expm1f4_native(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_expm1f4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_expm1f8_native(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_expm1f8_native) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_expm1f16_native(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_expm1f16_native) TARN_CONST;

/* expm1: e^x - 1 */
double TARN_CALL __ocl_tarn_k1_expm11(double x) TARN_SYMBOL(__ocl_tarn_k1_expm11) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_expm12(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_expm12) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_expm13(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_expm13) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_expm14(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_expm14) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_expm18(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_expm18) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_expm116(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_expm116) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_expm11_native(double x) TARN_SYMBOL(__ocl_tarn_k1_expm11_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_expm12_native(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_expm12_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_expm13_native(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_expm13_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_expm14_native(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_expm14_native) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_expm18_native(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_expm18_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_expm116_native(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_expm116_native) TARN_CONST;

/* Logarithms -------------------------------------------------------------------------------------- */

/* logf: ln x */
float TARN_CALL __ocl_tarn_k1_logf1(float x) TARN_SYMBOL(__ocl_tarn_k1_logf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_logf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_logf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_logf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_logf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_logf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_logf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_logf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_logf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_logf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_logf16) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_logf1_native(float x) TARN_SYMBOL(__ocl_tarn_k1_logf1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_logf2_native(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_logf2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_logf3_native(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_logf3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_logf4_native(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_logf4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_logf8_native(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_logf8_native) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_logf16_native(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_logf16_native) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_logf1_half(float x) TARN_SYMBOL(__ocl_tarn_k1_logf1_half) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_logf2_half(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_logf2_half) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_logf3_half(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_logf3_half) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_logf4_half(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_logf4_half) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_logf8_half(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_logf8_half) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_logf16_half(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_logf16_half) TARN_CONST;

/* log: ln x */
double TARN_CALL __ocl_tarn_k1_log1(double x) TARN_SYMBOL(__ocl_tarn_k1_log1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_log2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_log2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_log3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_log3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_log4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_log4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_log8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_log8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_log16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_log16) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_log1_native(double x) TARN_SYMBOL(__ocl_tarn_k1_log1_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_log2_native(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_log2_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_log3_native(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_log3_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_log4_native(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_log4_native) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_log8_native(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_log8_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_log16_native(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_log16_native) TARN_CONST;

/* log2f: log2 x */
float TARN_CALL __ocl_tarn_k1_log2f1(float x) TARN_SYMBOL(__ocl_tarn_k1_log2f1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_log2f2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_log2f2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_log2f3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_log2f3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_log2f4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_log2f4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_log2f8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_log2f8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_log2f16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_log2f16) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_log2f1_native(float x) TARN_SYMBOL(__ocl_tarn_k1_log2f1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_log2f2_native(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_log2f2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_log2f3_native(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_log2f3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_log2f4_native(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_log2f4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_log2f8_native(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_log2f8_native) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_log2f16_native(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_log2f16_native) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_log2f1_half(float x) TARN_SYMBOL(__ocl_tarn_k1_log2f1_half) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_log2f2_half(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_log2f2_half) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_log2f3_half(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_log2f3_half) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_log2f4_half(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_log2f4_half) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_log2f8_half(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_log2f8_half) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_log2f16_half(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_log2f16_half) TARN_CONST;

/* log2: log2 x */
double TARN_CALL __ocl_tarn_k1_log21(double x) TARN_SYMBOL(__ocl_tarn_k1_log21) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_log22(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_log22) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_log23(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_log23) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_log24(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_log24) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_log28(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_log28) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_log216(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_log216) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_log21_native(double x) TARN_SYMBOL(__ocl_tarn_k1_log21_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_log22_native(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_log22_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_log23_native(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_log23_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_log24_native(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_log24_native) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_log28_native(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_log28_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_log216_native(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_log216_native) TARN_CONST;

/* log10f: log10 x */
float TARN_CALL __ocl_tarn_k1_log10f1(float x) TARN_SYMBOL(__ocl_tarn_k1_log10f1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_log10f2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_log10f2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_log10f3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_log10f3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_log10f4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_log10f4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_log10f8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_log10f8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_log10f16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_log10f16) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_log10f1_native(float x) TARN_SYMBOL(__ocl_tarn_k1_log10f1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_log10f2_native(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_log10f2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_log10f3_native(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_log10f3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_log10f4_native(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_log10f4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_log10f8_native(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_log10f8_native) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_log10f16_native(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_log10f16_native) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_log10f1_half(float x) TARN_SYMBOL(__ocl_tarn_k1_log10f1_half) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_log10f2_half(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_log10f2_half) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_log10f3_half(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_log10f3_half) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_log10f4_half(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_log10f4_half) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_log10f8_half(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_log10f8_half) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_log10f16_half(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_log10f16_half) TARN_CONST;

/* log10: log10 x */
double TARN_CALL __ocl_tarn_k1_log101(double x) TARN_SYMBOL(__ocl_tarn_k1_log101) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_log102(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_log102) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_log103(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_log103) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_log104(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_log104) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_log108(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_log108) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_log1016(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_log1016) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_log101_native(double x) TARN_SYMBOL(__ocl_tarn_k1_log101_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_log102_native(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_log102_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_log103_native(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_log103_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_log104_native(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_log104_native) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_log108_native(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_log108_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_log1016_native(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_log1016_native) TARN_CONST;

/* log1pf: ln(1 + x) */
float TARN_CALL __ocl_tarn_k1_log1pf1(float x) TARN_SYMBOL(__ocl_tarn_k1_log1pf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_log1pf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_log1pf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_log1pf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_log1pf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_log1pf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_log1pf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_log1pf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_log1pf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_log1pf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_log1pf16) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_log1pf1_native(float x) TARN_SYMBOL(__ocl_tarn_k1_log1pf1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_log1pf2_native(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_log1pf2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_log1pf3_native(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_log1pf3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_log1pf4_native(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_log1pf4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_log1pf8_native(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_log1pf8_native) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_log1pf16_native(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_log1pf16_native) TARN_CONST;

/* log1p: ln(1 + x) */
double TARN_CALL __ocl_tarn_k1_log1p1(double x) TARN_SYMBOL(__ocl_tarn_k1_log1p1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_log1p2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_log1p2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_log1p3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_log1p3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_log1p4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_log1p4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_log1p8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_log1p8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_log1p16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_log1p16) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_log1p1_native(double x) TARN_SYMBOL(__ocl_tarn_k1_log1p1_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_log1p2_native(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_log1p2_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_log1p3_native(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_log1p3_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_log1p4_native(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_log1p4_native) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_log1p8_native(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_log1p8_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_log1p16_native(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_log1p16_native) TARN_CONST;

/* Powers ------------------------------------------------------------------------------------------ */

/* powf: x^y */
float TARN_CALL __ocl_tarn_k1_powf1(float x, float y) TARN_SYMBOL(__ocl_tarn_k1_powf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_powf2(tarn_float2 x, tarn_float2 y) TARN_SYMBOL(__ocl_tarn_k1_powf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_powf3(tarn_float3 x, tarn_float3 y) TARN_SYMBOL(__ocl_tarn_k1_powf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_powf4(tarn_float4 x, tarn_float4 y) TARN_SYMBOL(__ocl_tarn_k1_powf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_powf8(tarn_float8 x, tarn_float8 y) TARN_SYMBOL(__ocl_tarn_k1_powf8) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_powf1_native(float x, float y) TARN_SYMBOL(__ocl_tarn_k1_powf1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_powf2_native(tarn_float2 x, tarn_float2 y) TARN_SYMBOL(__ocl_tarn_k1_powf2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_powf3_native(tarn_float3 x, tarn_float3 y) TARN_SYMBOL(__ocl_tarn_k1_powf3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_powf4_native(tarn_float4 x, tarn_float4 y) TARN_SYMBOL(__ocl_tarn_k1_powf4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_powf8_native(tarn_float8 x, tarn_float8 y) TARN_SYMBOL(__ocl_tarn_k1_powf8_native) TARN_CONST;
/* By name: powf16, powf16_native. */

/* pow: x^y */
double TARN_CALL __ocl_tarn_k1_pow1(double x, double y) TARN_SYMBOL(__ocl_tarn_k1_pow1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_pow2(tarn_double2 x, tarn_double2 y) TARN_SYMBOL(__ocl_tarn_k1_pow2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_pow3(tarn_double3 x, tarn_double3 y) TARN_SYMBOL(__ocl_tarn_k1_pow3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_pow4(tarn_double4 x, tarn_double4 y) TARN_SYMBOL(__ocl_tarn_k1_pow4) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_pow16(tarn_double16 x, tarn_double16 y) TARN_SYMBOL(__ocl_tarn_k1_pow16) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_pow1_native(double x, double y) TARN_SYMBOL(__ocl_tarn_k1_pow1_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_pow2_native(tarn_double2 x, tarn_double2 y) TARN_SYMBOL(__ocl_tarn_k1_pow2_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_pow3_native(tarn_double3 x, tarn_double3 y) TARN_SYMBOL(__ocl_tarn_k1_pow3_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_pow4_native(tarn_double4 x, tarn_double4 y) TARN_SYMBOL(__ocl_tarn_k1_pow4_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_pow16_native(tarn_double16 x, tarn_double16 y) TARN_SYMBOL(__ocl_tarn_k1_pow16_native) TARN_CONST;
/* By name: pow8, pow8_native. */

/* powrf: x^y for x >= 0 */
float TARN_CALL __ocl_tarn_k1_powrf1(float x, float y) TARN_SYMBOL(__ocl_tarn_k1_powrf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_powrf2(tarn_float2 x, tarn_float2 y) TARN_SYMBOL(__ocl_tarn_k1_powrf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_powrf3(tarn_float3 x, tarn_float3 y) TARN_SYMBOL(__ocl_tarn_k1_powrf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_powrf4(tarn_float4 x, tarn_float4 y) TARN_SYMBOL(__ocl_tarn_k1_powrf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_powrf8(tarn_float8 x, tarn_float8 y) TARN_SYMBOL(__ocl_tarn_k1_powrf8) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_powrf1_native(float x, float y) TARN_SYMBOL(__ocl_tarn_k1_powrf1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_powrf2_native(tarn_float2 x, tarn_float2 y) TARN_SYMBOL(__ocl_tarn_k1_powrf2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_powrf3_native(tarn_float3 x, tarn_float3 y) TARN_SYMBOL(__ocl_tarn_k1_powrf3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_powrf4_native(tarn_float4 x, tarn_float4 y) TARN_SYMBOL(__ocl_tarn_k1_powrf4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_powrf8_native(tarn_float8 x, tarn_float8 y) TARN_SYMBOL(__ocl_tarn_k1_powrf8_native) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_powrf1_half(float x, float y) TARN_SYMBOL(__ocl_tarn_k1_powrf1_half) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_powrf2_half(tarn_float2 x, tarn_float2 y) TARN_SYMBOL(__ocl_tarn_k1_powrf2_half) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_powrf3_half(tarn_float3 x, tarn_float3 y) TARN_SYMBOL(__ocl_tarn_k1_powrf3_half) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_powrf4_half(tarn_float4 x, tarn_float4 y) TARN_SYMBOL(__ocl_tarn_k1_powrf4_half) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_powrf8_half(tarn_float8 x, tarn_float8 y) TARN_SYMBOL(__ocl_tarn_k1_powrf8_half) TARN_CONST;
/* By name: powrf16, powrf16_native, powrf16_half. */

/* powr: x^y for x >= 0 */
double TARN_CALL __ocl_tarn_k1_powr1(double x, double y) TARN_SYMBOL(__ocl_tarn_k1_powr1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_powr2(tarn_double2 x, tarn_double2 y) TARN_SYMBOL(__ocl_tarn_k1_powr2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_powr3(tarn_double3 x, tarn_double3 y) TARN_SYMBOL(__ocl_tarn_k1_powr3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_powr4(tarn_double4 x, tarn_double4 y) TARN_SYMBOL(__ocl_tarn_k1_powr4) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_powr16(tarn_double16 x, tarn_double16 y) TARN_SYMBOL(__ocl_tarn_k1_powr16) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_powr1_native(double x, double y) TARN_SYMBOL(__ocl_tarn_k1_powr1_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_powr2_native(tarn_double2 x, tarn_double2 y) TARN_SYMBOL(__ocl_tarn_k1_powr2_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_powr3_native(tarn_double3 x, tarn_double3 y) TARN_SYMBOL(__ocl_tarn_k1_powr3_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_powr4_native(tarn_double4 x, tarn_double4 y) TARN_SYMBOL(__ocl_tarn_k1_powr4_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_powr16_native(tarn_double16 x, tarn_double16 y) TARN_SYMBOL(__ocl_tarn_k1_powr16_native) TARN_CONST;
/* By name: powr8, powr8_native. */

/* pownf: x^n, n an integer */
float TARN_CALL __ocl_tarn_k1_pownf1(float x, tarn_int1 n) TARN_SYMBOL(__ocl_tarn_k1_pownf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_pownf2(tarn_float2 x, tarn_int2 n) TARN_SYMBOL(__ocl_tarn_k1_pownf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_pownf3(tarn_float3 x, tarn_int3 n) TARN_SYMBOL(__ocl_tarn_k1_pownf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_pownf4(tarn_float4 x, tarn_int4 n) TARN_SYMBOL(__ocl_tarn_k1_pownf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_pownf8(tarn_float8 x, tarn_int8 n) TARN_SYMBOL(__ocl_tarn_k1_pownf8) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_pownf1_native(float x, tarn_int1 n) TARN_SYMBOL(__ocl_tarn_k1_pownf1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_pownf2_native(tarn_float2 x, tarn_int2 n) TARN_SYMBOL(__ocl_tarn_k1_pownf2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_pownf3_native(tarn_float3 x, tarn_int3 n) TARN_SYMBOL(__ocl_tarn_k1_pownf3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_pownf4_native(tarn_float4 x, tarn_int4 n) TARN_SYMBOL(__ocl_tarn_k1_pownf4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_pownf8_native(tarn_float8 x, tarn_int8 n) TARN_SYMBOL(__ocl_tarn_k1_pownf8_native) TARN_CONST;
/* By name: pownf16, pownf16_native. */

/* pown: x^n, n an integer */
double TARN_CALL __ocl_tarn_k1_pown1(double x, tarn_int1 n) TARN_SYMBOL(__ocl_tarn_k1_pown1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_pown2(tarn_double2 x, tarn_int2 n) TARN_SYMBOL(__ocl_tarn_k1_pown2) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_pown16(tarn_double16 x, tarn_int16 n) TARN_SYMBOL(__ocl_tarn_k1_pown16) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_pown1_native(double x, tarn_int1 n) TARN_SYMBOL(__ocl_tarn_k1_pown1_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_pown2_native(tarn_double2 x, tarn_int2 n) TARN_SYMBOL(__ocl_tarn_k1_pown2_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_pown16_native(tarn_double16 x, tarn_int16 n) TARN_SYMBOL(__ocl_tarn_k1_pown16_native) TARN_CONST;
/* By name: pown3, pown4, pown8, pown3_native, pown4_native, pown8_native. */

/* rootnf: x^(1/n), n an integer */
float TARN_CALL __ocl_tarn_k1_rootnf1(float x, tarn_int1 n) TARN_SYMBOL(__ocl_tarn_k1_rootnf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_rootnf2(tarn_float2 x, tarn_int2 n) TARN_SYMBOL(__ocl_tarn_k1_rootnf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_rootnf3(tarn_float3 x, tarn_int3 n) TARN_SYMBOL(__ocl_tarn_k1_rootnf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_rootnf4(tarn_float4 x, tarn_int4 n) TARN_SYMBOL(__ocl_tarn_k1_rootnf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_rootnf8(tarn_float8 x, tarn_int8 n) TARN_SYMBOL(__ocl_tarn_k1_rootnf8) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_rootnf1_native(float x, tarn_int1 n) TARN_SYMBOL(__ocl_tarn_k1_rootnf1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_rootnf2_native(tarn_float2 x, tarn_int2 n) TARN_SYMBOL(__ocl_tarn_k1_rootnf2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_rootnf3_native(tarn_float3 x, tarn_int3 n) TARN_SYMBOL(__ocl_tarn_k1_rootnf3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_rootnf4_native(tarn_float4 x, tarn_int4 n) TARN_SYMBOL(__ocl_tarn_k1_rootnf4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_rootnf8_native(tarn_float8 x, tarn_int8 n) TARN_SYMBOL(__ocl_tarn_k1_rootnf8_native) TARN_CONST;
/* By name: rootnf16, rootnf16_native. */

/* rootn: x^(1/n), n an integer */
double TARN_CALL __ocl_tarn_k1_rootn1(double x, tarn_int1 n) TARN_SYMBOL(__ocl_tarn_k1_rootn1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_rootn2(tarn_double2 x, tarn_int2 n) TARN_SYMBOL(__ocl_tarn_k1_rootn2) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_rootn16(tarn_double16 x, tarn_int16 n) TARN_SYMBOL(__ocl_tarn_k1_rootn16) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_rootn1_native(double x, tarn_int1 n) TARN_SYMBOL(__ocl_tarn_k1_rootn1_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_rootn2_native(tarn_double2 x, tarn_int2 n) TARN_SYMBOL(__ocl_tarn_k1_rootn2_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_rootn16_native(tarn_double16 x, tarn_int16 n) TARN_SYMBOL(__ocl_tarn_k1_rootn16_native) TARN_CONST;
/* By name: rootn3, rootn4, rootn8, rootn3_native, rootn4_native, rootn8_native. */

/* Division and roots ------------------------------------------------------------------------------ */

/* divf: x / y */
float TARN_CALL __ocl_tarn_k1_divf1(float x, float y) TARN_SYMBOL(__ocl_tarn_k1_divf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_divf2(tarn_float2 x, tarn_float2 y) TARN_SYMBOL(__ocl_tarn_k1_divf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_divf3(tarn_float3 x, tarn_float3 y) TARN_SYMBOL(__ocl_tarn_k1_divf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_divf4(tarn_float4 x, tarn_float4 y) TARN_SYMBOL(__ocl_tarn_k1_divf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_divf8(tarn_float8 x, tarn_float8 y) TARN_SYMBOL(__ocl_tarn_k1_divf8) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_divf1_native(float x, float y) TARN_SYMBOL(__ocl_tarn_k1_divf1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_divf2_native(tarn_float2 x, tarn_float2 y) TARN_SYMBOL(__ocl_tarn_k1_divf2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_divf3_native(tarn_float3 x, tarn_float3 y) TARN_SYMBOL(__ocl_tarn_k1_divf3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_divf4_native(tarn_float4 x, tarn_float4 y) TARN_SYMBOL(__ocl_tarn_k1_divf4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_divf8_native(tarn_float8 x, tarn_float8 y) TARN_SYMBOL(__ocl_tarn_k1_divf8_native) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_divf1_half(float x, float y) TARN_SYMBOL(__ocl_tarn_k1_divf1_half) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_divf2_half(tarn_float2 x, tarn_float2 y) TARN_SYMBOL(__ocl_tarn_k1_divf2_half) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_divf3_half(tarn_float3 x, tarn_float3 y) TARN_SYMBOL(__ocl_tarn_k1_divf3_half) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_divf4_half(tarn_float4 x, tarn_float4 y) TARN_SYMBOL(__ocl_tarn_k1_divf4_half) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_divf8_half(tarn_float8 x, tarn_float8 y) TARN_SYMBOL(__ocl_tarn_k1_divf8_half) TARN_CONST;
/* By name: divf16, divf16_native, divf16_half. */

/* div: x / y */
double TARN_CALL __ocl_tarn_k1_div1(double x, double y) TARN_SYMBOL(__ocl_tarn_k1_div1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_div2(tarn_double2 x, tarn_double2 y) TARN_SYMBOL(__ocl_tarn_k1_div2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_div3(tarn_double3 x, tarn_double3 y) TARN_SYMBOL(__ocl_tarn_k1_div3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_div4(tarn_double4 x, tarn_double4 y) TARN_SYMBOL(__ocl_tarn_k1_div4) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_div16(tarn_double16 x, tarn_double16 y) TARN_SYMBOL(__ocl_tarn_k1_div16) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_div1_native(double x, double y) TARN_SYMBOL(__ocl_tarn_k1_div1_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_div2_native(tarn_double2 x, tarn_double2 y) TARN_SYMBOL(__ocl_tarn_k1_div2_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_div3_native(tarn_double3 x, tarn_double3 y) TARN_SYMBOL(__ocl_tarn_k1_div3_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_div4_native(tarn_double4 x, tarn_double4 y) TARN_SYMBOL(__ocl_tarn_k1_div4_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_div16_native(tarn_double16 x, tarn_double16 y) TARN_SYMBOL(__ocl_tarn_k1_div16_native) TARN_CONST;
/* By name: div8, div8_native. */

/* invf: 1 / x */
float TARN_CALL __ocl_tarn_k1_invf1(float x) TARN_SYMBOL(__ocl_tarn_k1_invf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_invf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_invf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_invf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_invf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_invf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_invf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_invf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_invf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_invf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_invf16) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_invf1_native(float x) TARN_SYMBOL(__ocl_tarn_k1_invf1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_invf2_native(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_invf2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_invf3_native(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_invf3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_invf4_native(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_invf4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_invf8_native(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_invf8_native) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_invf16_native(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_invf16_native) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_invf1_half(float x) TARN_SYMBOL(__ocl_tarn_k1_invf1_half) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_invf2_half(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_invf2_half) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_invf3_half(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_invf3_half) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_invf4_half(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_invf4_half) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_invf8_half(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_invf8_half) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_invf16_half(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_invf16_half) TARN_CONST;

/* inv: 1 / x */
double TARN_CALL __ocl_tarn_k1_inv1(double x) TARN_SYMBOL(__ocl_tarn_k1_inv1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_inv2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_inv2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_inv3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_inv3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_inv4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_inv4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_inv8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_inv8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_inv16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_inv16) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_inv1_native(double x) TARN_SYMBOL(__ocl_tarn_k1_inv1_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_inv2_native(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_inv2_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_inv3_native(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_inv3_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_inv4_native(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_inv4_native) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_inv8_native(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_inv8_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_inv16_native(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_inv16_native) TARN_CONST;

/* sqrtf: x^(1/2) */
float TARN_CALL __ocl_tarn_k1_sqrtf1(float x) TARN_SYMBOL(__ocl_tarn_k1_sqrtf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_sqrtf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_sqrtf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_sqrtf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_sqrtf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_sqrtf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_sqrtf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_sqrtf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_sqrtf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_sqrtf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_sqrtf16) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_sqrtf1_native(float x) TARN_SYMBOL(__ocl_tarn_k1_sqrtf1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_sqrtf2_native(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_sqrtf2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_sqrtf3_native(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_sqrtf3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_sqrtf4_native(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_sqrtf4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_sqrtf8_native(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_sqrtf8_native) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_sqrtf16_native(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_sqrtf16_native) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_sqrtf1_half(float x) TARN_SYMBOL(__ocl_tarn_k1_sqrtf1_half) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_sqrtf2_half(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_sqrtf2_half) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_sqrtf3_half(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_sqrtf3_half) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_sqrtf4_half(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_sqrtf4_half) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_sqrtf8_half(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_sqrtf8_half) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_sqrtf16_half(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_sqrtf16_half) TARN_CONST;

/* sqrt: x^(1/2) */
double TARN_CALL __ocl_tarn_k1_sqrt1(double x) TARN_SYMBOL(__ocl_tarn_k1_sqrt1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_sqrt2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_sqrt2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_sqrt3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_sqrt3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_sqrt4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_sqrt4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_sqrt8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_sqrt8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_sqrt16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_sqrt16) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_sqrt1_native(double x) TARN_SYMBOL(__ocl_tarn_k1_sqrt1_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_sqrt2_native(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_sqrt2_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_sqrt3_native(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_sqrt3_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_sqrt4_native(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_sqrt4_native) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_sqrt8_native(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_sqrt8_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_sqrt16_native(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_sqrt16_native) TARN_CONST;

/* rsqrtf: x^(-1/2) */
float TARN_CALL __ocl_tarn_k1_rsqrtf1(float x) TARN_SYMBOL(__ocl_tarn_k1_rsqrtf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_rsqrtf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_rsqrtf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_rsqrtf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_rsqrtf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_rsqrtf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_rsqrtf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_rsqrtf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_rsqrtf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_rsqrtf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_rsqrtf16) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_rsqrtf1_native(float x) TARN_SYMBOL(__ocl_tarn_k1_rsqrtf1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_rsqrtf2_native(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_rsqrtf2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_rsqrtf3_native(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_rsqrtf3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_rsqrtf4_native(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_rsqrtf4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_rsqrtf8_native(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_rsqrtf8_native) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_rsqrtf16_native(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_rsqrtf16_native) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_rsqrtf1_half(float x) TARN_SYMBOL(__ocl_tarn_k1_rsqrtf1_half) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_rsqrtf2_half(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_rsqrtf2_half) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_rsqrtf3_half(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_rsqrtf3_half) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_rsqrtf4_half(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_rsqrtf4_half) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_rsqrtf8_half(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_rsqrtf8_half) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_rsqrtf16_half(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_rsqrtf16_half) TARN_CONST;

/* rsqrt: x^(-1/2) */
double TARN_CALL __ocl_tarn_k1_rsqrt1(double x) TARN_SYMBOL(__ocl_tarn_k1_rsqrt1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_rsqrt2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_rsqrt2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_rsqrt3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_rsqrt3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_rsqrt4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_rsqrt4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_rsqrt8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_rsqrt8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_rsqrt16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_rsqrt16) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_rsqrt1_native(double x) TARN_SYMBOL(__ocl_tarn_k1_rsqrt1_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_rsqrt2_native(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_rsqrt2_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_rsqrt3_native(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_rsqrt3_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_rsqrt4_native(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_rsqrt4_native) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_rsqrt8_native(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_rsqrt8_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_rsqrt16_native(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_rsqrt16_native) TARN_CONST;

/* cbrtf: x^(1/3) */
float TARN_CALL __ocl_tarn_k1_cbrtf1(float x) TARN_SYMBOL(__ocl_tarn_k1_cbrtf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_cbrtf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cbrtf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_cbrtf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cbrtf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_cbrtf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cbrtf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_cbrtf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cbrtf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_cbrtf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cbrtf16) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_cbrtf1_native(float x) TARN_SYMBOL(__ocl_tarn_k1_cbrtf1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_cbrtf2_native(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cbrtf2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_cbrtf3_native(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cbrtf3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_cbrtf4_native(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cbrtf4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_cbrtf8_native(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cbrtf8_native) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_cbrtf16_native(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cbrtf16_native) TARN_CONST;

/* cbrt: x^(1/3) */
double TARN_CALL __ocl_tarn_k1_cbrt1(double x) TARN_SYMBOL(__ocl_tarn_k1_cbrt1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_cbrt2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cbrt2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_cbrt3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cbrt3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_cbrt4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cbrt4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_cbrt8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cbrt8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_cbrt16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cbrt16) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_cbrt1_native(double x) TARN_SYMBOL(__ocl_tarn_k1_cbrt1_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_cbrt2_native(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cbrt2_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_cbrt3_native(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cbrt3_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_cbrt4_native(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cbrt4_native) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_cbrt8_native(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cbrt8_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_cbrt16_native(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cbrt16_native) TARN_CONST;

/* rcbrtf: x^(-1/3) */
float TARN_CALL __ocl_tarn_k1_rcbrtf1(float x) TARN_SYMBOL(__ocl_tarn_k1_rcbrtf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_rcbrtf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_rcbrtf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_rcbrtf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_rcbrtf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_rcbrtf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_rcbrtf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_rcbrtf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_rcbrtf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_rcbrtf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_rcbrtf16) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_rcbrtf1_native(float x) TARN_SYMBOL(__ocl_tarn_k1_rcbrtf1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_rcbrtf2_native(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_rcbrtf2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_rcbrtf3_native(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_rcbrtf3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_rcbrtf4_native(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_rcbrtf4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_rcbrtf8_native(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_rcbrtf8_native) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_rcbrtf16_native(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_rcbrtf16_native) TARN_CONST;

/* rcbrt: x^(-1/3) */
double TARN_CALL __ocl_tarn_k1_rcbrt1(double x) TARN_SYMBOL(__ocl_tarn_k1_rcbrt1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_rcbrt2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_rcbrt2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_rcbrt3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_rcbrt3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_rcbrt4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_rcbrt4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_rcbrt8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_rcbrt8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_rcbrt16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_rcbrt16) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_rcbrt1_native(double x) TARN_SYMBOL(__ocl_tarn_k1_rcbrt1_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_rcbrt2_native(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_rcbrt2_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_rcbrt3_native(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_rcbrt3_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_rcbrt4_native(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_rcbrt4_native) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_rcbrt8_native(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_rcbrt8_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_rcbrt16_native(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_rcbrt16_native) TARN_CONST;

/* hypotf: (x^2 + y^2)^(1/2) */
float TARN_CALL __ocl_tarn_k1_hypotf1(float x, float y) TARN_SYMBOL(__ocl_tarn_k1_hypotf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_hypotf2(tarn_float2 x, tarn_float2 y) TARN_SYMBOL(__ocl_tarn_k1_hypotf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_hypotf3(tarn_float3 x, tarn_float3 y) TARN_SYMBOL(__ocl_tarn_k1_hypotf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_hypotf4(tarn_float4 x, tarn_float4 y) TARN_SYMBOL(__ocl_tarn_k1_hypotf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_hypotf8(tarn_float8 x, tarn_float8 y) TARN_SYMBOL(__ocl_tarn_k1_hypotf8) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_hypotf1_native(float x, float y) TARN_SYMBOL(__ocl_tarn_k1_hypotf1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_hypotf2_native(tarn_float2 x, tarn_float2 y) TARN_SYMBOL(__ocl_tarn_k1_hypotf2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_hypotf3_native(tarn_float3 x, tarn_float3 y) TARN_SYMBOL(__ocl_tarn_k1_hypotf3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_hypotf4_native(tarn_float4 x, tarn_float4 y) TARN_SYMBOL(__ocl_tarn_k1_hypotf4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_hypotf8_native(tarn_float8 x, tarn_float8 y) TARN_SYMBOL(__ocl_tarn_k1_hypotf8_native) TARN_CONST;
/* By name: hypotf16, hypotf16_native. */

/* hypot: (x^2 + y^2)^(1/2) */
double TARN_CALL __ocl_tarn_k1_hypot1(double x, double y) TARN_SYMBOL(__ocl_tarn_k1_hypot1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_hypot2(tarn_double2 x, tarn_double2 y) TARN_SYMBOL(__ocl_tarn_k1_hypot2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_hypot3(tarn_double3 x, tarn_double3 y) TARN_SYMBOL(__ocl_tarn_k1_hypot3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_hypot4(tarn_double4 x, tarn_double4 y) TARN_SYMBOL(__ocl_tarn_k1_hypot4) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_hypot16(tarn_double16 x, tarn_double16 y) TARN_SYMBOL(__ocl_tarn_k1_hypot16) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_hypot1_native(double x, double y) TARN_SYMBOL(__ocl_tarn_k1_hypot1_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_hypot2_native(tarn_double2 x, tarn_double2 y) TARN_SYMBOL(__ocl_tarn_k1_hypot2_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_hypot3_native(tarn_double3 x, tarn_double3 y) TARN_SYMBOL(__ocl_tarn_k1_hypot3_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_hypot4_native(tarn_double4 x, tarn_double4 y) TARN_SYMBOL(__ocl_tarn_k1_hypot4_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_hypot16_native(tarn_double16 x, tarn_double16 y) TARN_SYMBOL(__ocl_tarn_k1_hypot16_native) TARN_CONST;
/* By name: hypot8, hypot8_native. */

/* Trigonometry ------------------------------------------------------------------------------------ */

/* sinf: sin x */
float TARN_CALL __ocl_tarn_k1_sinf1(float x) TARN_SYMBOL(__ocl_tarn_k1_sinf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_sinf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_sinf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_sinf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_sinf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_sinf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_sinf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_sinf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_sinf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_sinf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_sinf16) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_sinf1_native(float x) TARN_SYMBOL(__ocl_tarn_k1_sinf1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_sinf2_native(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_sinf2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_sinf3_native(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_sinf3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_sinf4_native(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_sinf4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_sinf8_native(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_sinf8_native) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_sinf16_native(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_sinf16_native) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_sinf1_half(float x) TARN_SYMBOL(__ocl_tarn_k1_sinf1_half) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_sinf2_half(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_sinf2_half) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_sinf3_half(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_sinf3_half) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_sinf4_half(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_sinf4_half) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_sinf8_half(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_sinf8_half) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_sinf16_half(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_sinf16_half) TARN_CONST;

/* sin: sin x */
double TARN_CALL __ocl_tarn_k1_sin1(double x) TARN_SYMBOL(__ocl_tarn_k1_sin1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_sin2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_sin2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_sin3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_sin3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_sin4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_sin4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_sin8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_sin8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_sin16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_sin16) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_sin1_native(double x) TARN_SYMBOL(__ocl_tarn_k1_sin1_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_sin2_native(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_sin2_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_sin3_native(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_sin3_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_sin4_native(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_sin4_native) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_sin8_native(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_sin8_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_sin16_native(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_sin16_native) TARN_CONST;

/* cosf: cos x */
float TARN_CALL __ocl_tarn_k1_cosf1(float x) TARN_SYMBOL(__ocl_tarn_k1_cosf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_cosf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cosf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_cosf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cosf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_cosf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cosf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_cosf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cosf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_cosf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cosf16) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_cosf1_native(float x) TARN_SYMBOL(__ocl_tarn_k1_cosf1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_cosf2_native(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cosf2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_cosf3_native(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cosf3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_cosf4_native(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cosf4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_cosf8_native(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cosf8_native) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_cosf16_native(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cosf16_native) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_cosf1_half(float x) TARN_SYMBOL(__ocl_tarn_k1_cosf1_half) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_cosf2_half(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cosf2_half) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_cosf3_half(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cosf3_half) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_cosf4_half(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cosf4_half) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_cosf8_half(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cosf8_half) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_cosf16_half(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cosf16_half) TARN_CONST;

/* cos: cos x */
double TARN_CALL __ocl_tarn_k1_cos1(double x) TARN_SYMBOL(__ocl_tarn_k1_cos1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_cos2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cos2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_cos3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cos3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_cos4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cos4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_cos8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cos8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_cos16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cos16) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_cos1_native(double x) TARN_SYMBOL(__ocl_tarn_k1_cos1_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_cos2_native(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cos2_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_cos3_native(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cos3_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_cos4_native(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cos4_native) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_cos8_native(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cos8_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_cos16_native(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cos16_native) TARN_CONST;

/* sincosf: sin x, and cos x through the pointer */
/* By name: sincosf1, sincosf2, sincosf3, sincosf4, sincosf8, sincosf16, sincosf1_native, sincosf2_native,
   sincosf3_native, sincosf4_native, sincosf8_native, sincosf16_native. */

/* sincos: sin x, and cos x through the pointer */
tarn_double16 TARN_CALL __ocl_tarn_k1_sincos16(tarn_double16 x, double* second) TARN_SYMBOL(__ocl_tarn_k1_sincos16);
tarn_double16 TARN_CALL __ocl_tarn_k1_sincos16_native(tarn_double16 x, double* second) TARN_SYMBOL(__ocl_tarn_k1_sincos16_native);
/* By name: sincos1, sincos2, sincos3, sincos4, sincos8, sincos1_native, sincos2_native, sincos3_native,
   sincos4_native, sincos8_native. */

/* sincosregf: sin x and cos x */
tarn_sincos_float1 TARN_CALL __ocl_tarn_k1_sincosregf1(float x) TARN_SYMBOL(__ocl_tarn_k1_sincosregf1) TARN_CONST;
tarn_sincos_float2 TARN_CALL __ocl_tarn_k1_sincosregf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_sincosregf2) TARN_CONST;
tarn_sincos_float3 TARN_CALL __ocl_tarn_k1_sincosregf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_sincosregf3) TARN_CONST;
tarn_sincos_float4 TARN_CALL __ocl_tarn_k1_sincosregf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_sincosregf4) TARN_CONST;
tarn_sincos_float8 TARN_CALL __ocl_tarn_k1_sincosregf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_sincosregf8) TARN_CONST;
tarn_sincos_float16 TARN_CALL __ocl_tarn_k1_sincosregf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_sincosregf16) TARN_CONST;
tarn_sincos_float1 TARN_CALL __ocl_tarn_k1_sincosregf1_native(float x) TARN_SYMBOL(__ocl_tarn_k1_sincosregf1_native) TARN_CONST;
tarn_sincos_float2 TARN_CALL __ocl_tarn_k1_sincosregf2_native(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_sincosregf2_native) TARN_CONST;
tarn_sincos_float3 TARN_CALL __ocl_tarn_k1_sincosregf3_native(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_sincosregf3_native) TARN_CONST;
tarn_sincos_float4 TARN_CALL __ocl_tarn_k1_sincosregf4_native(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_sincosregf4_native) TARN_CONST;
tarn_sincos_float8 TARN_CALL __ocl_tarn_k1_sincosregf8_native(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_sincosregf8_native) TARN_CONST;
tarn_sincos_float16 TARN_CALL __ocl_tarn_k1_sincosregf16_native(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_sincosregf16_native) TARN_CONST;

/* sincosreg: sin x and cos x */
tarn_sincos_double1 TARN_CALL __ocl_tarn_k1_sincosreg1(double x) TARN_SYMBOL(__ocl_tarn_k1_sincosreg1) TARN_CONST;
tarn_sincos_double2 TARN_CALL __ocl_tarn_k1_sincosreg2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_sincosreg2) TARN_CONST;
tarn_sincos_double3 TARN_CALL __ocl_tarn_k1_sincosreg3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_sincosreg3) TARN_CONST;
tarn_sincos_double4 TARN_CALL __ocl_tarn_k1_sincosreg4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_sincosreg4) TARN_CONST;
tarn_sincos_double8 TARN_CALL __ocl_tarn_k1_sincosreg8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_sincosreg8) TARN_CONST;
tarn_sincos_double16 TARN_CALL __ocl_tarn_k1_sincosreg16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_sincosreg16) TARN_CONST;
tarn_sincos_double1 TARN_CALL __ocl_tarn_k1_sincosreg1_native(double x) TARN_SYMBOL(__ocl_tarn_k1_sincosreg1_native) TARN_CONST;
tarn_sincos_double2 TARN_CALL __ocl_tarn_k1_sincosreg2_native(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_sincosreg2_native) TARN_CONST;
tarn_sincos_double3 TARN_CALL __ocl_tarn_k1_sincosreg3_native(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_sincosreg3_native) TARN_CONST;
tarn_sincos_double4 TARN_CALL __ocl_tarn_k1_sincosreg4_native(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_sincosreg4_native) TARN_CONST;
tarn_sincos_double8 TARN_CALL __ocl_tarn_k1_sincosreg8_native(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_sincosreg8_native) TARN_CONST;
tarn_sincos_double16 TARN_CALL __ocl_tarn_k1_sincosreg16_native(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_sincosreg16_native) TARN_CONST;

/* tanf: tan x */
float TARN_CALL __ocl_tarn_k1_tanf1(float x) TARN_SYMBOL(__ocl_tarn_k1_tanf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_tanf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_tanf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_tanf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_tanf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_tanf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_tanf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_tanf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_tanf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_tanf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_tanf16) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_tanf1_native(float x) TARN_SYMBOL(__ocl_tarn_k1_tanf1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_tanf2_native(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_tanf2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_tanf3_native(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_tanf3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_tanf4_native(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_tanf4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_tanf8_native(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_tanf8_native) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_tanf16_native(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_tanf16_native) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_tanf1_half(float x) TARN_SYMBOL(__ocl_tarn_k1_tanf1_half) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_tanf2_half(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_tanf2_half) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_tanf3_half(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_tanf3_half) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_tanf4_half(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_tanf4_half) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_tanf8_half(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_tanf8_half) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_tanf16_half(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_tanf16_half) TARN_CONST;

/* tan: tan x */
double TARN_CALL __ocl_tarn_k1_tan1(double x) TARN_SYMBOL(__ocl_tarn_k1_tan1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_tan2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_tan2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_tan3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_tan3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_tan4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_tan4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_tan8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_tan8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_tan16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_tan16) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_tan1_native(double x) TARN_SYMBOL(__ocl_tarn_k1_tan1_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_tan2_native(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_tan2_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_tan3_native(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_tan3_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_tan4_native(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_tan4_native) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_tan8_native(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_tan8_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_tan16_native(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_tan16_native) TARN_CONST;

/* sinpif: sin(pi x) */
float TARN_CALL __ocl_tarn_k1_sinpif1(float x) TARN_SYMBOL(__ocl_tarn_k1_sinpif1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_sinpif2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_sinpif2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_sinpif3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_sinpif3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_sinpif4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_sinpif4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_sinpif8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_sinpif8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_sinpif16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_sinpif16) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_sinpif1_native(float x) TARN_SYMBOL(__ocl_tarn_k1_sinpif1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_sinpif2_native(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_sinpif2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_sinpif3_native(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_sinpif3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_sinpif4_native(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_sinpif4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_sinpif8_native(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_sinpif8_native) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_sinpif16_native(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_sinpif16_native) TARN_CONST;

/* sinpi: sin(pi x) */
double TARN_CALL __ocl_tarn_k1_sinpi1(double x) TARN_SYMBOL(__ocl_tarn_k1_sinpi1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_sinpi2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_sinpi2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_sinpi3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_sinpi3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_sinpi4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_sinpi4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_sinpi8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_sinpi8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_sinpi16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_sinpi16) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_sinpi1_native(double x) TARN_SYMBOL(__ocl_tarn_k1_sinpi1_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_sinpi2_native(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_sinpi2_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_sinpi3_native(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_sinpi3_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_sinpi4_native(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_sinpi4_native) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_sinpi8_native(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_sinpi8_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_sinpi16_native(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_sinpi16_native) TARN_CONST;

/* cospif: cos(pi x) */
float TARN_CALL __ocl_tarn_k1_cospif1(float x) TARN_SYMBOL(__ocl_tarn_k1_cospif1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_cospif2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cospif2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_cospif3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cospif3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_cospif4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cospif4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_cospif8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cospif8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_cospif16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cospif16) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_cospif1_native(float x) TARN_SYMBOL(__ocl_tarn_k1_cospif1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_cospif2_native(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cospif2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_cospif3_native(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cospif3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_cospif4_native(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cospif4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_cospif8_native(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cospif8_native) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_cospif16_native(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cospif16_native) TARN_CONST;

/* cospi: cos(pi x) */
double TARN_CALL __ocl_tarn_k1_cospi1(double x) TARN_SYMBOL(__ocl_tarn_k1_cospi1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_cospi2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cospi2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_cospi3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cospi3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_cospi4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cospi4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_cospi8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cospi8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_cospi16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cospi16) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_cospi1_native(double x) TARN_SYMBOL(__ocl_tarn_k1_cospi1_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_cospi2_native(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cospi2_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_cospi3_native(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cospi3_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_cospi4_native(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cospi4_native) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_cospi8_native(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cospi8_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_cospi16_native(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cospi16_native) TARN_CONST;

/* tanpif: tan(pi x) */
float TARN_CALL __ocl_tarn_k1_tanpif1(float x) TARN_SYMBOL(__ocl_tarn_k1_tanpif1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_tanpif2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_tanpif2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_tanpif3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_tanpif3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_tanpif4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_tanpif4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_tanpif8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_tanpif8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_tanpif16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_tanpif16) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_tanpif1_native(float x) TARN_SYMBOL(__ocl_tarn_k1_tanpif1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_tanpif2_native(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_tanpif2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_tanpif3_native(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_tanpif3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_tanpif4_native(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_tanpif4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_tanpif8_native(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_tanpif8_native) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_tanpif16_native(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_tanpif16_native) TARN_CONST;

/* tanpi: tan(pi x) */
double TARN_CALL __ocl_tarn_k1_tanpi1(double x) TARN_SYMBOL(__ocl_tarn_k1_tanpi1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_tanpi2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_tanpi2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_tanpi3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_tanpi3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_tanpi4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_tanpi4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_tanpi8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_tanpi8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_tanpi16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_tanpi16) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_tanpi1_native(double x) TARN_SYMBOL(__ocl_tarn_k1_tanpi1_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_tanpi2_native(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_tanpi2_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_tanpi3_native(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_tanpi3_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_tanpi4_native(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_tanpi4_native) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_tanpi8_native(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_tanpi8_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_tanpi16_native(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_tanpi16_native) TARN_CONST;

/* Inverse trigonometry ---------------------------------------------------------------------------- */

/* asinf: arcsin x */
float TARN_CALL __ocl_tarn_k1_asinf1(float x) TARN_SYMBOL(__ocl_tarn_k1_asinf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_asinf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_asinf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_asinf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_asinf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_asinf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_asinf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_asinf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_asinf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_asinf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_asinf16) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_asinf1_native(float x) TARN_SYMBOL(__ocl_tarn_k1_asinf1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_asinf2_native(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_asinf2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_asinf3_native(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_asinf3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_asinf4_native(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_asinf4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_asinf8_native(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_asinf8_native) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_asinf16_native(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_asinf16_native) TARN_CONST;

/* asin: arcsin x */
double TARN_CALL __ocl_tarn_k1_asin1(double x) TARN_SYMBOL(__ocl_tarn_k1_asin1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_asin2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_asin2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_asin3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_asin3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_asin4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_asin4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_asin8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_asin8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_asin16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_asin16) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_asin1_native(double x) TARN_SYMBOL(__ocl_tarn_k1_asin1_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_asin2_native(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_asin2_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_asin3_native(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_asin3_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_asin4_native(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_asin4_native) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_asin8_native(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_asin8_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_asin16_native(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_asin16_native) TARN_CONST;

/* acosf: arccos x */
float TARN_CALL __ocl_tarn_k1_acosf1(float x) TARN_SYMBOL(__ocl_tarn_k1_acosf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_acosf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_acosf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_acosf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_acosf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_acosf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_acosf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_acosf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_acosf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_acosf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_acosf16) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_acosf1_native(float x) TARN_SYMBOL(__ocl_tarn_k1_acosf1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_acosf2_native(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_acosf2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_acosf3_native(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_acosf3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_acosf4_native(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_acosf4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_acosf8_native(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_acosf8_native) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_acosf16_native(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_acosf16_native) TARN_CONST;

/* acos: arccos x */
double TARN_CALL __ocl_tarn_k1_acos1(double x) TARN_SYMBOL(__ocl_tarn_k1_acos1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_acos2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_acos2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_acos3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_acos3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_acos4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_acos4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_acos8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_acos8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_acos16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_acos16) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_acos1_native(double x) TARN_SYMBOL(__ocl_tarn_k1_acos1_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_acos2_native(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_acos2_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_acos3_native(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_acos3_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_acos4_native(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_acos4_native) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_acos8_native(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_acos8_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_acos16_native(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_acos16_native) TARN_CONST;

/* atanf: arctan x */
float TARN_CALL __ocl_tarn_k1_atanf1(float x) TARN_SYMBOL(__ocl_tarn_k1_atanf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_atanf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_atanf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_atanf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_atanf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_atanf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_atanf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_atanf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_atanf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_atanf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_atanf16) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_atanf1_native(float x) TARN_SYMBOL(__ocl_tarn_k1_atanf1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_atanf2_native(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_atanf2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_atanf3_native(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_atanf3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_atanf4_native(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_atanf4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_atanf8_native(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_atanf8_native) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_atanf16_native(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_atanf16_native) TARN_CONST;

/* atan: arctan x */
double TARN_CALL __ocl_tarn_k1_atan1(double x) TARN_SYMBOL(__ocl_tarn_k1_atan1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_atan2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_atan2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_atan3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_atan3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_atan4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_atan4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_atan8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_atan8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_atan16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_atan16) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_atan1_native(double x) TARN_SYMBOL(__ocl_tarn_k1_atan1_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_atan2_native(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_atan2_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_atan3_native(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_atan3_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_atan4_native(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_atan4_native) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_atan8_native(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_atan8_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_atan16_native(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_atan16_native) TARN_CONST;

/* atan2f: the angle of the point (y, x); first argument y */
float TARN_CALL __ocl_tarn_k1_atan2f1(float x, float y) TARN_SYMBOL(__ocl_tarn_k1_atan2f1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_atan2f2(tarn_float2 x, tarn_float2 y) TARN_SYMBOL(__ocl_tarn_k1_atan2f2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_atan2f3(tarn_float3 x, tarn_float3 y) TARN_SYMBOL(__ocl_tarn_k1_atan2f3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_atan2f4(tarn_float4 x, tarn_float4 y) TARN_SYMBOL(__ocl_tarn_k1_atan2f4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_atan2f8(tarn_float8 x, tarn_float8 y) TARN_SYMBOL(__ocl_tarn_k1_atan2f8) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_atan2f1_native(float x, float y) TARN_SYMBOL(__ocl_tarn_k1_atan2f1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_atan2f2_native(tarn_float2 x, tarn_float2 y) TARN_SYMBOL(__ocl_tarn_k1_atan2f2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_atan2f3_native(tarn_float3 x, tarn_float3 y) TARN_SYMBOL(__ocl_tarn_k1_atan2f3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_atan2f4_native(tarn_float4 x, tarn_float4 y) TARN_SYMBOL(__ocl_tarn_k1_atan2f4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_atan2f8_native(tarn_float8 x, tarn_float8 y) TARN_SYMBOL(__ocl_tarn_k1_atan2f8_native) TARN_CONST;
/* By name: atan2f16, atan2f16_native. */

/* atan2: the angle of the point (y, x); first argument y */
double TARN_CALL __ocl_tarn_k1_atan21(double x, double y) TARN_SYMBOL(__ocl_tarn_k1_atan21) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_atan22(tarn_double2 x, tarn_double2 y) TARN_SYMBOL(__ocl_tarn_k1_atan22) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_atan23(tarn_double3 x, tarn_double3 y) TARN_SYMBOL(__ocl_tarn_k1_atan23) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_atan24(tarn_double4 x, tarn_double4 y) TARN_SYMBOL(__ocl_tarn_k1_atan24) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_atan216(tarn_double16 x, tarn_double16 y) TARN_SYMBOL(__ocl_tarn_k1_atan216) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_atan21_native(double x, double y) TARN_SYMBOL(__ocl_tarn_k1_atan21_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_atan22_native(tarn_double2 x, tarn_double2 y) TARN_SYMBOL(__ocl_tarn_k1_atan22_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_atan23_native(tarn_double3 x, tarn_double3 y) TARN_SYMBOL(__ocl_tarn_k1_atan23_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_atan24_native(tarn_double4 x, tarn_double4 y) TARN_SYMBOL(__ocl_tarn_k1_atan24_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_atan216_native(tarn_double16 x, tarn_double16 y) TARN_SYMBOL(__ocl_tarn_k1_atan216_native) TARN_CONST;
/* By name: atan28, atan28_native. */

/* asinpif: arcsin(x) / pi */
float TARN_CALL __ocl_tarn_k1_asinpif1(float x) TARN_SYMBOL(__ocl_tarn_k1_asinpif1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_asinpif2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_asinpif2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_asinpif3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_asinpif3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_asinpif4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_asinpif4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_asinpif8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_asinpif8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_asinpif16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_asinpif16) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_asinpif1_native(float x) TARN_SYMBOL(__ocl_tarn_k1_asinpif1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_asinpif2_native(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_asinpif2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_asinpif3_native(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_asinpif3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_asinpif4_native(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_asinpif4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_asinpif8_native(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_asinpif8_native) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_asinpif16_native(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_asinpif16_native) TARN_CONST;

/* asinpi: arcsin(x) / pi */
double TARN_CALL __ocl_tarn_k1_asinpi1(double x) TARN_SYMBOL(__ocl_tarn_k1_asinpi1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_asinpi2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_asinpi2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_asinpi3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_asinpi3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_asinpi4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_asinpi4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_asinpi8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_asinpi8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_asinpi16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_asinpi16) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_asinpi1_native(double x) TARN_SYMBOL(__ocl_tarn_k1_asinpi1_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_asinpi2_native(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_asinpi2_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_asinpi3_native(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_asinpi3_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_asinpi4_native(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_asinpi4_native) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_asinpi8_native(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_asinpi8_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_asinpi16_native(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_asinpi16_native) TARN_CONST;

/* acospif: arccos(x) / pi */
float TARN_CALL __ocl_tarn_k1_acospif1(float x) TARN_SYMBOL(__ocl_tarn_k1_acospif1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_acospif2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_acospif2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_acospif3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_acospif3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_acospif4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_acospif4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_acospif8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_acospif8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_acospif16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_acospif16) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_acospif1_native(float x) TARN_SYMBOL(__ocl_tarn_k1_acospif1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_acospif2_native(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_acospif2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_acospif3_native(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_acospif3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_acospif4_native(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_acospif4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_acospif8_native(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_acospif8_native) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_acospif16_native(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_acospif16_native) TARN_CONST;

/* acospi: arccos(x) / pi */
double TARN_CALL __ocl_tarn_k1_acospi1(double x) TARN_SYMBOL(__ocl_tarn_k1_acospi1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_acospi2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_acospi2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_acospi3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_acospi3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_acospi4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_acospi4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_acospi8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_acospi8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_acospi16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_acospi16) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_acospi1_native(double x) TARN_SYMBOL(__ocl_tarn_k1_acospi1_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_acospi2_native(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_acospi2_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_acospi3_native(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_acospi3_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_acospi4_native(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_acospi4_native) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_acospi8_native(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_acospi8_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_acospi16_native(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_acospi16_native) TARN_CONST;

/* atanpif: arctan(x) / pi */
float TARN_CALL __ocl_tarn_k1_atanpif1(float x) TARN_SYMBOL(__ocl_tarn_k1_atanpif1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_atanpif2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_atanpif2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_atanpif3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_atanpif3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_atanpif4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_atanpif4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_atanpif8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_atanpif8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_atanpif16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_atanpif16) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_atanpif1_native(float x) TARN_SYMBOL(__ocl_tarn_k1_atanpif1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_atanpif2_native(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_atanpif2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_atanpif3_native(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_atanpif3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_atanpif4_native(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_atanpif4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_atanpif8_native(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_atanpif8_native) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_atanpif16_native(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_atanpif16_native) TARN_CONST;

/* atanpi: arctan(x) / pi */
double TARN_CALL __ocl_tarn_k1_atanpi1(double x) TARN_SYMBOL(__ocl_tarn_k1_atanpi1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_atanpi2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_atanpi2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_atanpi3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_atanpi3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_atanpi4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_atanpi4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_atanpi8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_atanpi8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_atanpi16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_atanpi16) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_atanpi1_native(double x) TARN_SYMBOL(__ocl_tarn_k1_atanpi1_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_atanpi2_native(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_atanpi2_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_atanpi3_native(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_atanpi3_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_atanpi4_native(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_atanpi4_native) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_atanpi8_native(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_atanpi8_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_atanpi16_native(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_atanpi16_native) TARN_CONST;

/* atan2pif: the angle of the point (y, x) over pi; first argument y */
float TARN_CALL __ocl_tarn_k1_atan2pif1(float x, float y) TARN_SYMBOL(__ocl_tarn_k1_atan2pif1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_atan2pif2(tarn_float2 x, tarn_float2 y) TARN_SYMBOL(__ocl_tarn_k1_atan2pif2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_atan2pif3(tarn_float3 x, tarn_float3 y) TARN_SYMBOL(__ocl_tarn_k1_atan2pif3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_atan2pif4(tarn_float4 x, tarn_float4 y) TARN_SYMBOL(__ocl_tarn_k1_atan2pif4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_atan2pif8(tarn_float8 x, tarn_float8 y) TARN_SYMBOL(__ocl_tarn_k1_atan2pif8) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_atan2pif1_native(float x, float y) TARN_SYMBOL(__ocl_tarn_k1_atan2pif1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_atan2pif2_native(tarn_float2 x, tarn_float2 y) TARN_SYMBOL(__ocl_tarn_k1_atan2pif2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_atan2pif3_native(tarn_float3 x, tarn_float3 y) TARN_SYMBOL(__ocl_tarn_k1_atan2pif3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_atan2pif4_native(tarn_float4 x, tarn_float4 y) TARN_SYMBOL(__ocl_tarn_k1_atan2pif4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_atan2pif8_native(tarn_float8 x, tarn_float8 y) TARN_SYMBOL(__ocl_tarn_k1_atan2pif8_native) TARN_CONST;
/* By name: atan2pif16, atan2pif16_native. */

/* atan2pi: the angle of the point (y, x) over pi; first argument y */
double TARN_CALL __ocl_tarn_k1_atan2pi1(double x, double y) TARN_SYMBOL(__ocl_tarn_k1_atan2pi1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_atan2pi2(tarn_double2 x, tarn_double2 y) TARN_SYMBOL(__ocl_tarn_k1_atan2pi2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_atan2pi3(tarn_double3 x, tarn_double3 y) TARN_SYMBOL(__ocl_tarn_k1_atan2pi3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_atan2pi4(tarn_double4 x, tarn_double4 y) TARN_SYMBOL(__ocl_tarn_k1_atan2pi4) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_atan2pi16(tarn_double16 x, tarn_double16 y) TARN_SYMBOL(__ocl_tarn_k1_atan2pi16) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_atan2pi1_native(double x, double y) TARN_SYMBOL(__ocl_tarn_k1_atan2pi1_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_atan2pi2_native(tarn_double2 x, tarn_double2 y) TARN_SYMBOL(__ocl_tarn_k1_atan2pi2_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_atan2pi3_native(tarn_double3 x, tarn_double3 y) TARN_SYMBOL(__ocl_tarn_k1_atan2pi3_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_atan2pi4_native(tarn_double4 x, tarn_double4 y) TARN_SYMBOL(__ocl_tarn_k1_atan2pi4_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_atan2pi16_native(tarn_double16 x, tarn_double16 y) TARN_SYMBOL(__ocl_tarn_k1_atan2pi16_native) TARN_CONST;
/* By name: atan2pi8, atan2pi8_native. */

/* Hyperbolic functions ---------------------------------------------------------------------------- */

/* sinhf: (e^x - e^-x) / 2 */
float TARN_CALL __ocl_tarn_k1_sinhf1(float x) TARN_SYMBOL(__ocl_tarn_k1_sinhf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_sinhf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_sinhf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_sinhf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_sinhf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_sinhf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_sinhf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_sinhf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_sinhf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_sinhf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_sinhf16) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_sinhf1_native(float x) TARN_SYMBOL(__ocl_tarn_k1_sinhf1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_sinhf2_native(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_sinhf2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_sinhf3_native(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_sinhf3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_sinhf4_native(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_sinhf4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_sinhf8_native(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_sinhf8_native) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_sinhf16_native(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_sinhf16_native) TARN_CONST;

/* sinh: (e^x - e^-x) / 2 */
double TARN_CALL __ocl_tarn_k1_sinh1(double x) TARN_SYMBOL(__ocl_tarn_k1_sinh1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_sinh2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_sinh2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_sinh3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_sinh3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_sinh4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_sinh4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_sinh8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_sinh8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_sinh16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_sinh16) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_sinh1_native(double x) TARN_SYMBOL(__ocl_tarn_k1_sinh1_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_sinh2_native(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_sinh2_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_sinh3_native(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_sinh3_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_sinh4_native(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_sinh4_native) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_sinh8_native(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_sinh8_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_sinh16_native(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_sinh16_native) TARN_CONST;

/* coshf: (e^x + e^-x) / 2 */
float TARN_CALL __ocl_tarn_k1_coshf1(float x) TARN_SYMBOL(__ocl_tarn_k1_coshf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_coshf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_coshf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_coshf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_coshf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_coshf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_coshf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_coshf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_coshf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_coshf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_coshf16) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_coshf1_native(float x) TARN_SYMBOL(__ocl_tarn_k1_coshf1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_coshf2_native(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_coshf2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_coshf3_native(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_coshf3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_coshf4_native(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_coshf4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_coshf8_native(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_coshf8_native) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_coshf16_native(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_coshf16_native) TARN_CONST;

/* cosh: (e^x + e^-x) / 2 */
double TARN_CALL __ocl_tarn_k1_cosh1(double x) TARN_SYMBOL(__ocl_tarn_k1_cosh1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_cosh2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cosh2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_cosh3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cosh3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_cosh4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cosh4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_cosh8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cosh8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_cosh16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cosh16) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_cosh1_native(double x) TARN_SYMBOL(__ocl_tarn_k1_cosh1_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_cosh2_native(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cosh2_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_cosh3_native(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cosh3_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_cosh4_native(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cosh4_native) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_cosh8_native(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cosh8_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_cosh16_native(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cosh16_native) TARN_CONST;

/* tanhf: sinh x / cosh x */
float TARN_CALL __ocl_tarn_k1_tanhf1(float x) TARN_SYMBOL(__ocl_tarn_k1_tanhf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_tanhf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_tanhf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_tanhf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_tanhf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_tanhf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_tanhf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_tanhf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_tanhf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_tanhf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_tanhf16) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_tanhf1_native(float x) TARN_SYMBOL(__ocl_tarn_k1_tanhf1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_tanhf2_native(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_tanhf2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_tanhf3_native(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_tanhf3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_tanhf4_native(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_tanhf4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_tanhf8_native(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_tanhf8_native) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_tanhf16_native(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_tanhf16_native) TARN_CONST;

/* tanh: sinh x / cosh x */
double TARN_CALL __ocl_tarn_k1_tanh1(double x) TARN_SYMBOL(__ocl_tarn_k1_tanh1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_tanh2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_tanh2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_tanh3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_tanh3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_tanh4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_tanh4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_tanh8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_tanh8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_tanh16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_tanh16) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_tanh1_native(double x) TARN_SYMBOL(__ocl_tarn_k1_tanh1_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_tanh2_native(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_tanh2_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_tanh3_native(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_tanh3_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_tanh4_native(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_tanh4_native) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_tanh8_native(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_tanh8_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_tanh16_native(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_tanh16_native) TARN_CONST;

/* asinhf: ln(x + (x^2 + 1)^(1/2)) */
float TARN_CALL __ocl_tarn_k1_asinhf1(float x) TARN_SYMBOL(__ocl_tarn_k1_asinhf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_asinhf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_asinhf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_asinhf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_asinhf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_asinhf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_asinhf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_asinhf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_asinhf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_asinhf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_asinhf16) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_asinhf1_native(float x) TARN_SYMBOL(__ocl_tarn_k1_asinhf1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_asinhf2_native(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_asinhf2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_asinhf3_native(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_asinhf3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_asinhf4_native(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_asinhf4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_asinhf8_native(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_asinhf8_native) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_asinhf16_native(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_asinhf16_native) TARN_CONST;

/* asinh: ln(x + (x^2 + 1)^(1/2)) */
double TARN_CALL __ocl_tarn_k1_asinh1(double x) TARN_SYMBOL(__ocl_tarn_k1_asinh1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_asinh2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_asinh2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_asinh3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_asinh3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_asinh4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_asinh4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_asinh8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_asinh8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_asinh16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_asinh16) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_asinh1_native(double x) TARN_SYMBOL(__ocl_tarn_k1_asinh1_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_asinh2_native(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_asinh2_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_asinh3_native(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_asinh3_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_asinh4_native(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_asinh4_native) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_asinh8_native(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_asinh8_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_asinh16_native(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_asinh16_native) TARN_CONST;

/* acoshf: ln(x + (x^2 - 1)^(1/2)) */
float TARN_CALL __ocl_tarn_k1_acoshf1(float x) TARN_SYMBOL(__ocl_tarn_k1_acoshf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_acoshf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_acoshf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_acoshf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_acoshf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_acoshf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_acoshf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_acoshf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_acoshf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_acoshf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_acoshf16) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_acoshf1_native(float x) TARN_SYMBOL(__ocl_tarn_k1_acoshf1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_acoshf2_native(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_acoshf2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_acoshf3_native(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_acoshf3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_acoshf4_native(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_acoshf4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_acoshf8_native(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_acoshf8_native) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_acoshf16_native(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_acoshf16_native) TARN_CONST;

/* acosh: ln(x + (x^2 - 1)^(1/2)) */
double TARN_CALL __ocl_tarn_k1_acosh1(double x) TARN_SYMBOL(__ocl_tarn_k1_acosh1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_acosh2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_acosh2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_acosh3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_acosh3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_acosh4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_acosh4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_acosh8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_acosh8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_acosh16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_acosh16) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_acosh1_native(double x) TARN_SYMBOL(__ocl_tarn_k1_acosh1_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_acosh2_native(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_acosh2_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_acosh3_native(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_acosh3_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_acosh4_native(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_acosh4_native) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_acosh8_native(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_acosh8_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_acosh16_native(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_acosh16_native) TARN_CONST;

/* atanhf: ln((1 + x) / (1 - x)) / 2 */
float TARN_CALL __ocl_tarn_k1_atanhf1(float x) TARN_SYMBOL(__ocl_tarn_k1_atanhf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_atanhf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_atanhf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_atanhf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_atanhf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_atanhf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_atanhf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_atanhf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_atanhf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_atanhf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_atanhf16) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_atanhf1_native(float x) TARN_SYMBOL(__ocl_tarn_k1_atanhf1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_atanhf2_native(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_atanhf2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_atanhf3_native(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_atanhf3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_atanhf4_native(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_atanhf4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_atanhf8_native(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_atanhf8_native) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_atanhf16_native(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_atanhf16_native) TARN_CONST;

/* atanh: ln((1 + x) / (1 - x)) / 2 */
double TARN_CALL __ocl_tarn_k1_atanh1(double x) TARN_SYMBOL(__ocl_tarn_k1_atanh1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_atanh2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_atanh2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_atanh3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_atanh3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_atanh4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_atanh4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_atanh8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_atanh8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_atanh16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_atanh16) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_atanh1_native(double x) TARN_SYMBOL(__ocl_tarn_k1_atanh1_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_atanh2_native(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_atanh2_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_atanh3_native(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_atanh3_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_atanh4_native(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_atanh4_native) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_atanh8_native(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_atanh8_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_atanh16_native(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_atanh16_native) TARN_CONST;

/* Error and gamma functions ----------------------------------------------------------------------- */

/* erff: 2/sqrt(pi) times the integral of e^(-t^2) from 0 to x */
float TARN_CALL __ocl_tarn_k1_erff1(float x) TARN_SYMBOL(__ocl_tarn_k1_erff1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_erff2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_erff2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_erff3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_erff3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_erff4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_erff4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_erff8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_erff8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_erff16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_erff16) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_erff1_native(float x) TARN_SYMBOL(__ocl_tarn_k1_erff1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_erff2_native(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_erff2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_erff3_native(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_erff3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_erff4_native(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_erff4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_erff8_native(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_erff8_native) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_erff16_native(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_erff16_native) TARN_CONST;

/* erf: 2/sqrt(pi) times the integral of e^(-t^2) from 0 to x */
double TARN_CALL __ocl_tarn_k1_erf1(double x) TARN_SYMBOL(__ocl_tarn_k1_erf1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_erf2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_erf2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_erf3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_erf3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_erf4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_erf4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_erf8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_erf8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_erf16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_erf16) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_erf1_native(double x) TARN_SYMBOL(__ocl_tarn_k1_erf1_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_erf2_native(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_erf2_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_erf3_native(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_erf3_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_erf4_native(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_erf4_native) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_erf8_native(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_erf8_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_erf16_native(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_erf16_native) TARN_CONST;

/* erfcf: 1 - erf x */
float TARN_CALL __ocl_tarn_k1_erfcf1(float x) TARN_SYMBOL(__ocl_tarn_k1_erfcf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_erfcf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_erfcf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_erfcf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_erfcf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_erfcf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_erfcf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_erfcf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_erfcf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_erfcf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_erfcf16) TARN_CONST;
float TARN_CALL __ocl_tarn_k1_erfcf1_native(float x) TARN_SYMBOL(__ocl_tarn_k1_erfcf1_native) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_erfcf2_native(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_erfcf2_native) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_erfcf3_native(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_erfcf3_native) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_erfcf4_native(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_erfcf4_native) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_erfcf8_native(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_erfcf8_native) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_erfcf16_native(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_erfcf16_native) TARN_CONST;

/* erfc: 1 - erf x */
double TARN_CALL __ocl_tarn_k1_erfc1(double x) TARN_SYMBOL(__ocl_tarn_k1_erfc1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_erfc2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_erfc2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_erfc3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_erfc3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_erfc4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_erfc4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_erfc8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_erfc8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_erfc16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_erfc16) TARN_CONST;
double TARN_CALL __ocl_tarn_k1_erfc1_native(double x) TARN_SYMBOL(__ocl_tarn_k1_erfc1_native) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_erfc2_native(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_erfc2_native) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_erfc3_native(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_erfc3_native) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_erfc4_native(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_erfc4_native) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_erfc8_native(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_erfc8_native) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_erfc16_native(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_erfc16_native) TARN_CONST;

/* tgammaf: gamma(x) */
float TARN_CALL __ocl_tarn_k1_tgammaf1(float x) TARN_SYMBOL(__ocl_tarn_k1_tgammaf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_tgammaf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_tgammaf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_tgammaf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_tgammaf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_tgammaf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_tgammaf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_tgammaf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_tgammaf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_tgammaf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_tgammaf16) TARN_CONST;

/* tgamma: gamma(x) */
double TARN_CALL __ocl_tarn_k1_tgamma1(double x) TARN_SYMBOL(__ocl_tarn_k1_tgamma1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_tgamma2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_tgamma2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_tgamma3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_tgamma3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_tgamma4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_tgamma4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_tgamma8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_tgamma8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_tgamma16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_tgamma16) TARN_CONST;

/* lgammaf: ln |gamma(x)| */
float TARN_CALL __ocl_tarn_k1_lgammaf1(float x) TARN_SYMBOL(__ocl_tarn_k1_lgammaf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_lgammaf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_lgammaf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_lgammaf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_lgammaf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_lgammaf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_lgammaf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_lgammaf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_lgammaf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_lgammaf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_lgammaf16) TARN_CONST;

/* lgamma: ln |gamma(x)| */
double TARN_CALL __ocl_tarn_k1_lgamma1(double x) TARN_SYMBOL(__ocl_tarn_k1_lgamma1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_lgamma2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_lgamma2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_lgamma3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_lgamma3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_lgamma4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_lgamma4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_lgamma8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_lgamma8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_lgamma16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_lgamma16) TARN_CONST;

/* lgammarf: ln |gamma(x)|, and the sign of gamma(x) through the pointer */
/* By name: lgammarf1, lgammarf2, lgammarf3, lgammarf4, lgammarf8, lgammarf16. */

/* lgammar: ln |gamma(x)|, and the sign of gamma(x) through the pointer */
tarn_double16 TARN_CALL __ocl_tarn_k1_lgammar16(tarn_double16 x, int32_t* second) TARN_SYMBOL(__ocl_tarn_k1_lgammar16);
/* By name: lgammar1, lgammar2, lgammar3, lgammar4, lgammar8. */

/* Rounding, sign and bit-level functions ---------------------------------------------------------- */

/* ceilf: x rounded up to an integer */
float TARN_CALL __ocl_tarn_k1_ceilf1(float x) TARN_SYMBOL(__ocl_tarn_k1_ceilf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_ceilf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_ceilf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_ceilf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_ceilf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_ceilf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_ceilf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_ceilf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_ceilf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_ceilf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_ceilf16) TARN_CONST;

/* ceil: x rounded up to an integer */
double TARN_CALL __ocl_tarn_k1_ceil1(double x) TARN_SYMBOL(__ocl_tarn_k1_ceil1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_ceil2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_ceil2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_ceil3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_ceil3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_ceil4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_ceil4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_ceil8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_ceil8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_ceil16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_ceil16) TARN_CONST;

/* floorf: x rounded down to an integer */
float TARN_CALL __ocl_tarn_k1_floorf1(float x) TARN_SYMBOL(__ocl_tarn_k1_floorf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_floorf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_floorf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_floorf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_floorf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_floorf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_floorf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_floorf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_floorf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_floorf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_floorf16) TARN_CONST;

/* floor: x rounded down to an integer */
double TARN_CALL __ocl_tarn_k1_floor1(double x) TARN_SYMBOL(__ocl_tarn_k1_floor1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_floor2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_floor2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_floor3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_floor3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_floor4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_floor4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_floor8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_floor8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_floor16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_floor16) TARN_CONST;

/* truncf: x rounded toward zero to an integer */
float TARN_CALL __ocl_tarn_k1_truncf1(float x) TARN_SYMBOL(__ocl_tarn_k1_truncf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_truncf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_truncf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_truncf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_truncf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_truncf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_truncf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_truncf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_truncf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_truncf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_truncf16) TARN_CONST;

/* trunc: x rounded toward zero to an integer */
double TARN_CALL __ocl_tarn_k1_trunc1(double x) TARN_SYMBOL(__ocl_tarn_k1_trunc1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_trunc2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_trunc2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_trunc3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_trunc3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_trunc4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_trunc4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_trunc8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_trunc8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_trunc16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_trunc16) TARN_CONST;

/* rintf: x rounded to an integer in the current mode */
float TARN_CALL __ocl_tarn_k1_rintf1(float x) TARN_SYMBOL(__ocl_tarn_k1_rintf1);
tarn_float2 TARN_CALL __ocl_tarn_k1_rintf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_rintf2);
tarn_float3 TARN_CALL __ocl_tarn_k1_rintf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_rintf3);
tarn_float4 TARN_CALL __ocl_tarn_k1_rintf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_rintf4);
tarn_float8 TARN_CALL __ocl_tarn_k1_rintf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_rintf8);
tarn_float16 TARN_CALL __ocl_tarn_k1_rintf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_rintf16);

/* rint: x rounded to an integer in the current mode */
double TARN_CALL __ocl_tarn_k1_rint1(double x) TARN_SYMBOL(__ocl_tarn_k1_rint1);
tarn_double2 TARN_CALL __ocl_tarn_k1_rint2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_rint2);
tarn_double3 TARN_CALL __ocl_tarn_k1_rint3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_rint3);
tarn_double4 TARN_CALL __ocl_tarn_k1_rint4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_rint4);
tarn_double8 TARN_CALL __ocl_tarn_k1_rint8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_rint8);
tarn_double16 TARN_CALL __ocl_tarn_k1_rint16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_rint16);

/* nearbyintf: x rounded to an integer in the current mode */
float TARN_CALL __ocl_tarn_k1_nearbyintf1(float x) TARN_SYMBOL(__ocl_tarn_k1_nearbyintf1);
tarn_float2 TARN_CALL __ocl_tarn_k1_nearbyintf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_nearbyintf2);
tarn_float3 TARN_CALL __ocl_tarn_k1_nearbyintf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_nearbyintf3);
tarn_float4 TARN_CALL __ocl_tarn_k1_nearbyintf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_nearbyintf4);
tarn_float8 TARN_CALL __ocl_tarn_k1_nearbyintf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_nearbyintf8);
tarn_float16 TARN_CALL __ocl_tarn_k1_nearbyintf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_nearbyintf16);

/* nearbyint: x rounded to an integer in the current mode */
double TARN_CALL __ocl_tarn_k1_nearbyint1(double x) TARN_SYMBOL(__ocl_tarn_k1_nearbyint1);
tarn_double2 TARN_CALL __ocl_tarn_k1_nearbyint2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_nearbyint2);
tarn_double3 TARN_CALL __ocl_tarn_k1_nearbyint3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_nearbyint3);
tarn_double4 TARN_CALL __ocl_tarn_k1_nearbyint4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_nearbyint4);
tarn_double8 TARN_CALL __ocl_tarn_k1_nearbyint8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_nearbyint8);
tarn_double16 TARN_CALL __ocl_tarn_k1_nearbyint16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_nearbyint16);

/* roundf: x rounded to an integer, half away from zero */
float TARN_CALL __ocl_tarn_k1_roundf1(float x) TARN_SYMBOL(__ocl_tarn_k1_roundf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_roundf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_roundf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_roundf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_roundf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_roundf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_roundf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_roundf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_roundf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_roundf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_roundf16) TARN_CONST;

/* round: x rounded to an integer, half away from zero */
double TARN_CALL __ocl_tarn_k1_round1(double x) TARN_SYMBOL(__ocl_tarn_k1_round1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_round2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_round2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_round3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_round3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_round4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_round4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_round8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_round8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_round16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_round16) TARN_CONST;

/* fabsf: |x| */
float TARN_CALL __ocl_tarn_k1_fabsf1(float x) TARN_SYMBOL(__ocl_tarn_k1_fabsf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_fabsf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_fabsf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_fabsf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_fabsf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_fabsf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_fabsf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_fabsf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_fabsf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_fabsf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_fabsf16) TARN_CONST;

/* fabs: |x| */
double TARN_CALL __ocl_tarn_k1_fabs1(double x) TARN_SYMBOL(__ocl_tarn_k1_fabs1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_fabs2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_fabs2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_fabs3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_fabs3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_fabs4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_fabs4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_fabs8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_fabs8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_fabs16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_fabs16) TARN_CONST;

/* copysignf: |x| with the sign of y */
float TARN_CALL __ocl_tarn_k1_copysignf1(float x, float y) TARN_SYMBOL(__ocl_tarn_k1_copysignf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_copysignf2(tarn_float2 x, tarn_float2 y) TARN_SYMBOL(__ocl_tarn_k1_copysignf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_copysignf3(tarn_float3 x, tarn_float3 y) TARN_SYMBOL(__ocl_tarn_k1_copysignf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_copysignf4(tarn_float4 x, tarn_float4 y) TARN_SYMBOL(__ocl_tarn_k1_copysignf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_copysignf8(tarn_float8 x, tarn_float8 y) TARN_SYMBOL(__ocl_tarn_k1_copysignf8) TARN_CONST;
/* By name: copysignf16. */

/* copysign: |x| with the sign of y */
double TARN_CALL __ocl_tarn_k1_copysign1(double x, double y) TARN_SYMBOL(__ocl_tarn_k1_copysign1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_copysign2(tarn_double2 x, tarn_double2 y) TARN_SYMBOL(__ocl_tarn_k1_copysign2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_copysign3(tarn_double3 x, tarn_double3 y) TARN_SYMBOL(__ocl_tarn_k1_copysign3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_copysign4(tarn_double4 x, tarn_double4 y) TARN_SYMBOL(__ocl_tarn_k1_copysign4) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_copysign16(tarn_double16 x, tarn_double16 y) TARN_SYMBOL(__ocl_tarn_k1_copysign16) TARN_CONST;
/* By name: copysign8. */

/* nanf: a quiet NaN with the payload x */
float TARN_CALL __ocl_tarn_k1_nanf1(tarn_uint1 x) TARN_SYMBOL(__ocl_tarn_k1_nanf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_nanf2(tarn_uint2 x) TARN_SYMBOL(__ocl_tarn_k1_nanf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_nanf3(tarn_uint3 x) TARN_SYMBOL(__ocl_tarn_k1_nanf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_nanf4(tarn_uint4 x) TARN_SYMBOL(__ocl_tarn_k1_nanf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_nanf8(tarn_uint8 x) TARN_SYMBOL(__ocl_tarn_k1_nanf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_nanf16(tarn_uint16 x) TARN_SYMBOL(__ocl_tarn_k1_nanf16) TARN_CONST;

/* nan: a quiet NaN with the payload x */
double TARN_CALL __ocl_tarn_k1_nan1(tarn_ulong1 x) TARN_SYMBOL(__ocl_tarn_k1_nan1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_nan2(tarn_ulong2 x) TARN_SYMBOL(__ocl_tarn_k1_nan2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_nan3(tarn_ulong3 x) TARN_SYMBOL(__ocl_tarn_k1_nan3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_nan4(tarn_ulong4 x) TARN_SYMBOL(__ocl_tarn_k1_nan4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_nan8(tarn_ulong8 x) TARN_SYMBOL(__ocl_tarn_k1_nan8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_nan16(tarn_ulong16 x) TARN_SYMBOL(__ocl_tarn_k1_nan16) TARN_CONST;

/* fminf: the smaller of x and y */
float TARN_CALL __ocl_tarn_k1_fminf1(float x, float y) TARN_SYMBOL(__ocl_tarn_k1_fminf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_fminf2(tarn_float2 x, tarn_float2 y) TARN_SYMBOL(__ocl_tarn_k1_fminf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_fminf3(tarn_float3 x, tarn_float3 y) TARN_SYMBOL(__ocl_tarn_k1_fminf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_fminf4(tarn_float4 x, tarn_float4 y) TARN_SYMBOL(__ocl_tarn_k1_fminf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_fminf8(tarn_float8 x, tarn_float8 y) TARN_SYMBOL(__ocl_tarn_k1_fminf8) TARN_CONST;
/* By name: fminf16. */

/* fmin: the smaller of x and y */
double TARN_CALL __ocl_tarn_k1_fmin1(double x, double y) TARN_SYMBOL(__ocl_tarn_k1_fmin1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_fmin2(tarn_double2 x, tarn_double2 y) TARN_SYMBOL(__ocl_tarn_k1_fmin2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_fmin3(tarn_double3 x, tarn_double3 y) TARN_SYMBOL(__ocl_tarn_k1_fmin3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_fmin4(tarn_double4 x, tarn_double4 y) TARN_SYMBOL(__ocl_tarn_k1_fmin4) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_fmin16(tarn_double16 x, tarn_double16 y) TARN_SYMBOL(__ocl_tarn_k1_fmin16) TARN_CONST;
/* By name: fmin8. */

/* fmaxf: the larger of x and y */
float TARN_CALL __ocl_tarn_k1_fmaxf1(float x, float y) TARN_SYMBOL(__ocl_tarn_k1_fmaxf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_fmaxf2(tarn_float2 x, tarn_float2 y) TARN_SYMBOL(__ocl_tarn_k1_fmaxf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_fmaxf3(tarn_float3 x, tarn_float3 y) TARN_SYMBOL(__ocl_tarn_k1_fmaxf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_fmaxf4(tarn_float4 x, tarn_float4 y) TARN_SYMBOL(__ocl_tarn_k1_fmaxf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_fmaxf8(tarn_float8 x, tarn_float8 y) TARN_SYMBOL(__ocl_tarn_k1_fmaxf8) TARN_CONST;
/* By name: fmaxf16. */

/* fmax: the larger of x and y */
double TARN_CALL __ocl_tarn_k1_fmax1(double x, double y) TARN_SYMBOL(__ocl_tarn_k1_fmax1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_fmax2(tarn_double2 x, tarn_double2 y) TARN_SYMBOL(__ocl_tarn_k1_fmax2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_fmax3(tarn_double3 x, tarn_double3 y) TARN_SYMBOL(__ocl_tarn_k1_fmax3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_fmax4(tarn_double4 x, tarn_double4 y) TARN_SYMBOL(__ocl_tarn_k1_fmax4) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_fmax16(tarn_double16 x, tarn_double16 y) TARN_SYMBOL(__ocl_tarn_k1_fmax16) TARN_CONST;
/* By name: fmax8. */

/* maxmagf: the one larger in magnitude */
float TARN_CALL __ocl_tarn_k1_maxmagf1(float x, float y) TARN_SYMBOL(__ocl_tarn_k1_maxmagf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_maxmagf2(tarn_float2 x, tarn_float2 y) TARN_SYMBOL(__ocl_tarn_k1_maxmagf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_maxmagf3(tarn_float3 x, tarn_float3 y) TARN_SYMBOL(__ocl_tarn_k1_maxmagf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_maxmagf4(tarn_float4 x, tarn_float4 y) TARN_SYMBOL(__ocl_tarn_k1_maxmagf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_maxmagf8(tarn_float8 x, tarn_float8 y) TARN_SYMBOL(__ocl_tarn_k1_maxmagf8) TARN_CONST;
/* By name: maxmagf16. */

/* maxmag: the one larger in magnitude */
double TARN_CALL __ocl_tarn_k1_maxmag1(double x, double y) TARN_SYMBOL(__ocl_tarn_k1_maxmag1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_maxmag2(tarn_double2 x, tarn_double2 y) TARN_SYMBOL(__ocl_tarn_k1_maxmag2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_maxmag3(tarn_double3 x, tarn_double3 y) TARN_SYMBOL(__ocl_tarn_k1_maxmag3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_maxmag4(tarn_double4 x, tarn_double4 y) TARN_SYMBOL(__ocl_tarn_k1_maxmag4) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_maxmag16(tarn_double16 x, tarn_double16 y) TARN_SYMBOL(__ocl_tarn_k1_maxmag16) TARN_CONST;
/* By name: maxmag8. */

/* minmagf: the one smaller in magnitude */
float TARN_CALL __ocl_tarn_k1_minmagf1(float x, float y) TARN_SYMBOL(__ocl_tarn_k1_minmagf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_minmagf2(tarn_float2 x, tarn_float2 y) TARN_SYMBOL(__ocl_tarn_k1_minmagf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_minmagf3(tarn_float3 x, tarn_float3 y) TARN_SYMBOL(__ocl_tarn_k1_minmagf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_minmagf4(tarn_float4 x, tarn_float4 y) TARN_SYMBOL(__ocl_tarn_k1_minmagf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_minmagf8(tarn_float8 x, tarn_float8 y) TARN_SYMBOL(__ocl_tarn_k1_minmagf8) TARN_CONST;
/* By name: minmagf16. */

/* minmag: the one smaller in magnitude */
double TARN_CALL __ocl_tarn_k1_minmag1(double x, double y) TARN_SYMBOL(__ocl_tarn_k1_minmag1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_minmag2(tarn_double2 x, tarn_double2 y) TARN_SYMBOL(__ocl_tarn_k1_minmag2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_minmag3(tarn_double3 x, tarn_double3 y) TARN_SYMBOL(__ocl_tarn_k1_minmag3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_minmag4(tarn_double4 x, tarn_double4 y) TARN_SYMBOL(__ocl_tarn_k1_minmag4) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_minmag16(tarn_double16 x, tarn_double16 y) TARN_SYMBOL(__ocl_tarn_k1_minmag16) TARN_CONST;
/* By name: minmag8. */

/* fdimf: x - y where x > y, else +0 */
float TARN_CALL __ocl_tarn_k1_fdimf1(float x, float y) TARN_SYMBOL(__ocl_tarn_k1_fdimf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_fdimf2(tarn_float2 x, tarn_float2 y) TARN_SYMBOL(__ocl_tarn_k1_fdimf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_fdimf3(tarn_float3 x, tarn_float3 y) TARN_SYMBOL(__ocl_tarn_k1_fdimf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_fdimf4(tarn_float4 x, tarn_float4 y) TARN_SYMBOL(__ocl_tarn_k1_fdimf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_fdimf8(tarn_float8 x, tarn_float8 y) TARN_SYMBOL(__ocl_tarn_k1_fdimf8) TARN_CONST;
/* By name: fdimf16. */

/* fdim: x - y where x > y, else +0 */
double TARN_CALL __ocl_tarn_k1_fdim1(double x, double y) TARN_SYMBOL(__ocl_tarn_k1_fdim1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_fdim2(tarn_double2 x, tarn_double2 y) TARN_SYMBOL(__ocl_tarn_k1_fdim2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_fdim3(tarn_double3 x, tarn_double3 y) TARN_SYMBOL(__ocl_tarn_k1_fdim3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_fdim4(tarn_double4 x, tarn_double4 y) TARN_SYMBOL(__ocl_tarn_k1_fdim4) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_fdim16(tarn_double16 x, tarn_double16 y) TARN_SYMBOL(__ocl_tarn_k1_fdim16) TARN_CONST;
/* By name: fdim8. */

/* frexpf: m in [0.5, 1) with x = m 2^e, and e through the pointer */
/* By name: frexpf1, frexpf2, frexpf3, frexpf4, frexpf8, frexpf16. */

/* frexp: m in [0.5, 1) with x = m 2^e, and e through the pointer */
tarn_double16 TARN_CALL __ocl_tarn_k1_frexp16(tarn_double16 x, int32_t* second) TARN_SYMBOL(__ocl_tarn_k1_frexp16);
/* By name: frexp1, frexp2, frexp3, frexp4, frexp8. */

/* ilogbf: the exponent of x */
tarn_int1 TARN_CALL __ocl_tarn_k1_ilogbf1(float x) TARN_SYMBOL(__ocl_tarn_k1_ilogbf1) TARN_CONST;
tarn_int2 TARN_CALL __ocl_tarn_k1_ilogbf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_ilogbf2) TARN_CONST;
tarn_int3 TARN_CALL __ocl_tarn_k1_ilogbf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_ilogbf3) TARN_CONST;
tarn_int4 TARN_CALL __ocl_tarn_k1_ilogbf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_ilogbf4) TARN_CONST;
tarn_int8 TARN_CALL __ocl_tarn_k1_ilogbf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_ilogbf8) TARN_CONST;
tarn_int16 TARN_CALL __ocl_tarn_k1_ilogbf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_ilogbf16) TARN_CONST;

/* ilogb: the exponent of x */
tarn_int1 TARN_CALL __ocl_tarn_k1_ilogb1(double x) TARN_SYMBOL(__ocl_tarn_k1_ilogb1) TARN_CONST;
tarn_int2 TARN_CALL __ocl_tarn_k1_ilogb2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_ilogb2) TARN_CONST;
tarn_int3 TARN_CALL __ocl_tarn_k1_ilogb3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_ilogb3) TARN_CONST;
tarn_int4 TARN_CALL __ocl_tarn_k1_ilogb4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_ilogb4) TARN_CONST;
tarn_int8 TARN_CALL __ocl_tarn_k1_ilogb8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_ilogb8) TARN_CONST;
tarn_int16 TARN_CALL __ocl_tarn_k1_ilogb16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_ilogb16) TARN_CONST;

/* logbf: the exponent of x */
float TARN_CALL __ocl_tarn_k1_logbf1(float x) TARN_SYMBOL(__ocl_tarn_k1_logbf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_logbf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_logbf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_logbf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_logbf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_logbf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_logbf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_logbf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_logbf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_logbf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_logbf16) TARN_CONST;

/* logb: the exponent of x */
double TARN_CALL __ocl_tarn_k1_logb1(double x) TARN_SYMBOL(__ocl_tarn_k1_logb1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_logb2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_logb2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_logb3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_logb3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_logb4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_logb4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_logb8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_logb8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_logb16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_logb16) TARN_CONST;

/* fractf: x - floor x, below 1, and floor x through the pointer */
/* By name: fractf1, fractf2, fractf3, fractf4, fractf8, fractf16. */

/* fract: x - floor x, below 1, and floor x through the pointer */
tarn_double16 TARN_CALL __ocl_tarn_k1_fract16(tarn_double16 x, double* second) TARN_SYMBOL(__ocl_tarn_k1_fract16);
/* By name: fract1, fract2, fract3, fract4, fract8. */

/* modff: the fraction of x, and its integral part through the pointer */
/* By name: modff1, modff2, modff3, modff4, modff8, modff16. */

/* modf: the fraction of x, and its integral part through the pointer */
tarn_double16 TARN_CALL __ocl_tarn_k1_modf16(tarn_double16 x, double* second) TARN_SYMBOL(__ocl_tarn_k1_modf16);
/* By name: modf1, modf2, modf3, modf4, modf8. */

/* ldexpf: x 2^n */
float TARN_CALL __ocl_tarn_k1_ldexpf1(float x, tarn_int1 n) TARN_SYMBOL(__ocl_tarn_k1_ldexpf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_ldexpf2(tarn_float2 x, tarn_int2 n) TARN_SYMBOL(__ocl_tarn_k1_ldexpf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_ldexpf3(tarn_float3 x, tarn_int3 n) TARN_SYMBOL(__ocl_tarn_k1_ldexpf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_ldexpf4(tarn_float4 x, tarn_int4 n) TARN_SYMBOL(__ocl_tarn_k1_ldexpf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_ldexpf8(tarn_float8 x, tarn_int8 n) TARN_SYMBOL(__ocl_tarn_k1_ldexpf8) TARN_CONST;
/* By name: ldexpf16. */

/* ldexp: x 2^n */
double TARN_CALL __ocl_tarn_k1_ldexp1(double x, tarn_int1 n) TARN_SYMBOL(__ocl_tarn_k1_ldexp1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_ldexp2(tarn_double2 x, tarn_int2 n) TARN_SYMBOL(__ocl_tarn_k1_ldexp2) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_ldexp16(tarn_double16 x, tarn_int16 n) TARN_SYMBOL(__ocl_tarn_k1_ldexp16) TARN_CONST;
/* By name: ldexp3, ldexp4, ldexp8. */

/* nextafterf: the neighbour of x toward y */
float TARN_CALL __ocl_tarn_k1_nextafterf1(float x, float y) TARN_SYMBOL(__ocl_tarn_k1_nextafterf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_nextafterf2(tarn_float2 x, tarn_float2 y) TARN_SYMBOL(__ocl_tarn_k1_nextafterf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_nextafterf3(tarn_float3 x, tarn_float3 y) TARN_SYMBOL(__ocl_tarn_k1_nextafterf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_nextafterf4(tarn_float4 x, tarn_float4 y) TARN_SYMBOL(__ocl_tarn_k1_nextafterf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_nextafterf8(tarn_float8 x, tarn_float8 y) TARN_SYMBOL(__ocl_tarn_k1_nextafterf8) TARN_CONST;
/* By name: nextafterf16. */

/* nextafter: the neighbour of x toward y */
double TARN_CALL __ocl_tarn_k1_nextafter1(double x, double y) TARN_SYMBOL(__ocl_tarn_k1_nextafter1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_nextafter2(tarn_double2 x, tarn_double2 y) TARN_SYMBOL(__ocl_tarn_k1_nextafter2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_nextafter3(tarn_double3 x, tarn_double3 y) TARN_SYMBOL(__ocl_tarn_k1_nextafter3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_nextafter4(tarn_double4 x, tarn_double4 y) TARN_SYMBOL(__ocl_tarn_k1_nextafter4) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_nextafter16(tarn_double16 x, tarn_double16 y) TARN_SYMBOL(__ocl_tarn_k1_nextafter16) TARN_CONST;
/* By name: nextafter8. */

/* Remainders and multiply-add --------------------------------------------------------------------- */

/* fmodf: x - n y, n = x/y toward zero */
float TARN_CALL __ocl_tarn_k1_fmodf1(float x, float y) TARN_SYMBOL(__ocl_tarn_k1_fmodf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_fmodf2(tarn_float2 x, tarn_float2 y) TARN_SYMBOL(__ocl_tarn_k1_fmodf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_fmodf3(tarn_float3 x, tarn_float3 y) TARN_SYMBOL(__ocl_tarn_k1_fmodf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_fmodf4(tarn_float4 x, tarn_float4 y) TARN_SYMBOL(__ocl_tarn_k1_fmodf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_fmodf8(tarn_float8 x, tarn_float8 y) TARN_SYMBOL(__ocl_tarn_k1_fmodf8) TARN_CONST;
/* By name: fmodf16. */

/* fmod: x - n y, n = x/y toward zero */
double TARN_CALL __ocl_tarn_k1_fmod1(double x, double y) TARN_SYMBOL(__ocl_tarn_k1_fmod1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_fmod2(tarn_double2 x, tarn_double2 y) TARN_SYMBOL(__ocl_tarn_k1_fmod2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_fmod3(tarn_double3 x, tarn_double3 y) TARN_SYMBOL(__ocl_tarn_k1_fmod3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_fmod4(tarn_double4 x, tarn_double4 y) TARN_SYMBOL(__ocl_tarn_k1_fmod4) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_fmod16(tarn_double16 x, tarn_double16 y) TARN_SYMBOL(__ocl_tarn_k1_fmod16) TARN_CONST;
/* By name: fmod8. */

/* remainderf: x - n y, n = x/y to nearest even */
float TARN_CALL __ocl_tarn_k1_remainderf1(float x, float y) TARN_SYMBOL(__ocl_tarn_k1_remainderf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_remainderf2(tarn_float2 x, tarn_float2 y) TARN_SYMBOL(__ocl_tarn_k1_remainderf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_remainderf3(tarn_float3 x, tarn_float3 y) TARN_SYMBOL(__ocl_tarn_k1_remainderf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_remainderf4(tarn_float4 x, tarn_float4 y) TARN_SYMBOL(__ocl_tarn_k1_remainderf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_remainderf8(tarn_float8 x, tarn_float8 y) TARN_SYMBOL(__ocl_tarn_k1_remainderf8) TARN_CONST;
/* By name: remainderf16. */

/* remainder: x - n y, n = x/y to nearest even */
double TARN_CALL __ocl_tarn_k1_remainder1(double x, double y) TARN_SYMBOL(__ocl_tarn_k1_remainder1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_remainder2(tarn_double2 x, tarn_double2 y) TARN_SYMBOL(__ocl_tarn_k1_remainder2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_remainder3(tarn_double3 x, tarn_double3 y) TARN_SYMBOL(__ocl_tarn_k1_remainder3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_remainder4(tarn_double4 x, tarn_double4 y) TARN_SYMBOL(__ocl_tarn_k1_remainder4) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_remainder16(tarn_double16 x, tarn_double16 y) TARN_SYMBOL(__ocl_tarn_k1_remainder16) TARN_CONST;
/* By name: remainder8. */

/* remquof: as remainder, and n through the pointer */
/* By name: remquof1, remquof2, remquof3, remquof4, remquof8, remquof16. */

/* remquo: as remainder, and n through the pointer */
tarn_double16 TARN_CALL __ocl_tarn_k1_remquo16(tarn_double16 x, tarn_double16 y, int32_t* second) TARN_SYMBOL(__ocl_tarn_k1_remquo16);
/* By name: remquo1, remquo2, remquo3, remquo4, remquo8. */

/* madf: (x y) + z, rounded twice */
float TARN_CALL __ocl_tarn_k1_madf1(float x, float y, float z) TARN_SYMBOL(__ocl_tarn_k1_madf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_madf2(tarn_float2 x, tarn_float2 y, tarn_float2 z) TARN_SYMBOL(__ocl_tarn_k1_madf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_madf3(tarn_float3 x, tarn_float3 y, tarn_float3 z) TARN_SYMBOL(__ocl_tarn_k1_madf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_madf4(tarn_float4 x, tarn_float4 y, tarn_float4 z) TARN_SYMBOL(__ocl_tarn_k1_madf4) TARN_CONST;
/* By name: madf8, madf16. */

/* mad: (x y) + z, rounded twice */
double TARN_CALL __ocl_tarn_k1_mad1(double x, double y, double z) TARN_SYMBOL(__ocl_tarn_k1_mad1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_mad2(tarn_double2 x, tarn_double2 y, tarn_double2 z) TARN_SYMBOL(__ocl_tarn_k1_mad2) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_mad16(tarn_double16 x, tarn_double16 y, tarn_double16 z) TARN_SYMBOL(__ocl_tarn_k1_mad16) TARN_CONST;
/* By name: mad3, mad4, mad8. */

/* fmaf: x y + z, rounded once, in the direction of the x87 control word */
float TARN_CALL __ocl_tarn_k1_fmaf1(float x, float y, float z) TARN_SYMBOL(__ocl_tarn_k1_fmaf1);
tarn_float2 TARN_CALL __ocl_tarn_k1_fmaf2(tarn_float2 x, tarn_float2 y, tarn_float2 z) TARN_SYMBOL(__ocl_tarn_k1_fmaf2);
tarn_float3 TARN_CALL __ocl_tarn_k1_fmaf3(tarn_float3 x, tarn_float3 y, tarn_float3 z) TARN_SYMBOL(__ocl_tarn_k1_fmaf3);
tarn_float4 TARN_CALL __ocl_tarn_k1_fmaf4(tarn_float4 x, tarn_float4 y, tarn_float4 z) TARN_SYMBOL(__ocl_tarn_k1_fmaf4);
/* By name: fmaf8, fmaf16. */

/* fma: x y + z, rounded once, in the direction of the x87 control word */
double TARN_CALL __ocl_tarn_k1_fma1(double x, double y, double z) TARN_SYMBOL(__ocl_tarn_k1_fma1);
tarn_double2 TARN_CALL __ocl_tarn_k1_fma2(tarn_double2 x, tarn_double2 y, tarn_double2 z) TARN_SYMBOL(__ocl_tarn_k1_fma2);
tarn_double16 TARN_CALL __ocl_tarn_k1_fma16(tarn_double16 x, tarn_double16 y, tarn_double16 z) TARN_SYMBOL(__ocl_tarn_k1_fma16);
/* By name: fma3, fma4, fma8. */

/* Conversions ------------------------------------------------------------------------------------- */

/* cvtfptoi32rtesatf: x rounded to nearest, ties to even */
tarn_int1 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtesatf1(float x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtesatf1) TARN_CONST;
tarn_int2 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtesatf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtesatf2) TARN_CONST;
tarn_int3 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtesatf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtesatf3) TARN_CONST;
tarn_int4 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtesatf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtesatf4) TARN_CONST;
tarn_int8 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtesatf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtesatf8) TARN_CONST;
tarn_int16 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtesatf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtesatf16) TARN_CONST;

/* cvtfptoi32rtenosatf: x rounded to nearest, ties to even */
tarn_int1 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtenosatf1(float x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtenosatf1) TARN_CONST;
tarn_int2 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtenosatf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtenosatf2) TARN_CONST;
tarn_int3 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtenosatf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtenosatf3) TARN_CONST;
tarn_int4 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtenosatf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtenosatf4) TARN_CONST;
tarn_int8 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtenosatf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtenosatf8) TARN_CONST;
tarn_int16 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtenosatf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtenosatf16) TARN_CONST;

/* cvtfptoi32rtnsatf: x rounded down */
tarn_int1 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtnsatf1(float x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtnsatf1) TARN_CONST;
tarn_int2 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtnsatf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtnsatf2) TARN_CONST;
tarn_int3 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtnsatf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtnsatf3) TARN_CONST;
tarn_int4 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtnsatf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtnsatf4) TARN_CONST;
tarn_int8 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtnsatf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtnsatf8) TARN_CONST;
tarn_int16 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtnsatf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtnsatf16) TARN_CONST;

/* cvtfptoi32rtnnosatf: x rounded down */
tarn_int1 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtnnosatf1(float x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtnnosatf1) TARN_CONST;
tarn_int2 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtnnosatf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtnnosatf2) TARN_CONST;
tarn_int3 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtnnosatf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtnnosatf3) TARN_CONST;
tarn_int4 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtnnosatf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtnnosatf4) TARN_CONST;
tarn_int8 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtnnosatf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtnnosatf8) TARN_CONST;
tarn_int16 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtnnosatf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtnnosatf16) TARN_CONST;

/* cvtfptoi32rtpsatf: x rounded up */
tarn_int1 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtpsatf1(float x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtpsatf1) TARN_CONST;
tarn_int2 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtpsatf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtpsatf2) TARN_CONST;
tarn_int3 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtpsatf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtpsatf3) TARN_CONST;
tarn_int4 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtpsatf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtpsatf4) TARN_CONST;
tarn_int8 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtpsatf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtpsatf8) TARN_CONST;
tarn_int16 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtpsatf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtpsatf16) TARN_CONST;

/* cvtfptoi32rtpnosatf: x rounded up */
tarn_int1 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtpnosatf1(float x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtpnosatf1) TARN_CONST;
tarn_int2 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtpnosatf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtpnosatf2) TARN_CONST;
tarn_int3 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtpnosatf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtpnosatf3) TARN_CONST;
tarn_int4 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtpnosatf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtpnosatf4) TARN_CONST;
tarn_int8 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtpnosatf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtpnosatf8) TARN_CONST;
tarn_int16 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtpnosatf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtpnosatf16) TARN_CONST;

/* cvtfptoi32rtzsatf: x rounded toward zero */
tarn_int1 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtzsatf1(float x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtzsatf1) TARN_CONST;
tarn_int2 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtzsatf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtzsatf2) TARN_CONST;
tarn_int3 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtzsatf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtzsatf3) TARN_CONST;
tarn_int4 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtzsatf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtzsatf4) TARN_CONST;
tarn_int8 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtzsatf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtzsatf8) TARN_CONST;
tarn_int16 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtzsatf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtzsatf16) TARN_CONST;

/* cvtfptoi32rtznosatf: x rounded toward zero */
tarn_int1 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtznosatf1(float x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtznosatf1) TARN_CONST;
tarn_int2 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtznosatf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtznosatf2) TARN_CONST;
tarn_int3 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtznosatf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtznosatf3) TARN_CONST;
tarn_int4 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtznosatf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtznosatf4) TARN_CONST;
tarn_int8 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtznosatf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtznosatf8) TARN_CONST;
tarn_int16 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtznosatf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtznosatf16) TARN_CONST;

/* cvtfptou32rtesatf: x rounded to nearest, ties to even */
tarn_uint1 TARN_CALL __ocl_tarn_k1_cvtfptou32rtesatf1(float x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtesatf1) TARN_CONST;
tarn_uint2 TARN_CALL __ocl_tarn_k1_cvtfptou32rtesatf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtesatf2) TARN_CONST;
tarn_uint3 TARN_CALL __ocl_tarn_k1_cvtfptou32rtesatf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtesatf3) TARN_CONST;
tarn_uint4 TARN_CALL __ocl_tarn_k1_cvtfptou32rtesatf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtesatf4) TARN_CONST;
tarn_uint8 TARN_CALL __ocl_tarn_k1_cvtfptou32rtesatf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtesatf8) TARN_CONST;
tarn_uint16 TARN_CALL __ocl_tarn_k1_cvtfptou32rtesatf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtesatf16) TARN_CONST;

/* cvtfptou32rtenosatf: x rounded to nearest, ties to even */
tarn_uint1 TARN_CALL __ocl_tarn_k1_cvtfptou32rtenosatf1(float x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtenosatf1) TARN_CONST;
tarn_uint2 TARN_CALL __ocl_tarn_k1_cvtfptou32rtenosatf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtenosatf2) TARN_CONST;
tarn_uint3 TARN_CALL __ocl_tarn_k1_cvtfptou32rtenosatf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtenosatf3) TARN_CONST;
tarn_uint4 TARN_CALL __ocl_tarn_k1_cvtfptou32rtenosatf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtenosatf4) TARN_CONST;
tarn_uint8 TARN_CALL __ocl_tarn_k1_cvtfptou32rtenosatf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtenosatf8) TARN_CONST;
tarn_uint16 TARN_CALL __ocl_tarn_k1_cvtfptou32rtenosatf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtenosatf16) TARN_CONST;

/* cvtfptou32rtnsatf: x rounded down */
tarn_uint1 TARN_CALL __ocl_tarn_k1_cvtfptou32rtnsatf1(float x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtnsatf1) TARN_CONST;
tarn_uint2 TARN_CALL __ocl_tarn_k1_cvtfptou32rtnsatf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtnsatf2) TARN_CONST;
tarn_uint3 TARN_CALL __ocl_tarn_k1_cvtfptou32rtnsatf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtnsatf3) TARN_CONST;
tarn_uint4 TARN_CALL __ocl_tarn_k1_cvtfptou32rtnsatf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtnsatf4) TARN_CONST;
tarn_uint8 TARN_CALL __ocl_tarn_k1_cvtfptou32rtnsatf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtnsatf8) TARN_CONST;
tarn_uint16 TARN_CALL __ocl_tarn_k1_cvtfptou32rtnsatf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtnsatf16) TARN_CONST;

/* cvtfptou32rtnnosatf: x rounded down */
tarn_uint1 TARN_CALL __ocl_tarn_k1_cvtfptou32rtnnosatf1(float x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtnnosatf1) TARN_CONST;
tarn_uint2 TARN_CALL __ocl_tarn_k1_cvtfptou32rtnnosatf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtnnosatf2) TARN_CONST;
tarn_uint3 TARN_CALL __ocl_tarn_k1_cvtfptou32rtnnosatf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtnnosatf3) TARN_CONST;
tarn_uint4 TARN_CALL __ocl_tarn_k1_cvtfptou32rtnnosatf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtnnosatf4) TARN_CONST;
tarn_uint8 TARN_CALL __ocl_tarn_k1_cvtfptou32rtnnosatf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtnnosatf8) TARN_CONST;
tarn_uint16 TARN_CALL __ocl_tarn_k1_cvtfptou32rtnnosatf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtnnosatf16) TARN_CONST;

/* cvtfptou32rtpsatf: x rounded up */
tarn_uint1 TARN_CALL __ocl_tarn_k1_cvtfptou32rtpsatf1(float x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtpsatf1) TARN_CONST;
tarn_uint2 TARN_CALL __ocl_tarn_k1_cvtfptou32rtpsatf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtpsatf2) TARN_CONST;
tarn_uint3 TARN_CALL __ocl_tarn_k1_cvtfptou32rtpsatf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtpsatf3) TARN_CONST;
tarn_uint4 TARN_CALL __ocl_tarn_k1_cvtfptou32rtpsatf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtpsatf4) TARN_CONST;
tarn_uint8 TARN_CALL __ocl_tarn_k1_cvtfptou32rtpsatf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtpsatf8) TARN_CONST;
tarn_uint16 TARN_CALL __ocl_tarn_k1_cvtfptou32rtpsatf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtpsatf16) TARN_CONST;

/* cvtfptou32rtpnosatf: x rounded up */
tarn_uint1 TARN_CALL __ocl_tarn_k1_cvtfptou32rtpnosatf1(float x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtpnosatf1) TARN_CONST;
tarn_uint2 TARN_CALL __ocl_tarn_k1_cvtfptou32rtpnosatf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtpnosatf2) TARN_CONST;
tarn_uint3 TARN_CALL __ocl_tarn_k1_cvtfptou32rtpnosatf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtpnosatf3) TARN_CONST;
tarn_uint4 TARN_CALL __ocl_tarn_k1_cvtfptou32rtpnosatf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtpnosatf4) TARN_CONST;
tarn_uint8 TARN_CALL __ocl_tarn_k1_cvtfptou32rtpnosatf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtpnosatf8) TARN_CONST;
tarn_uint16 TARN_CALL __ocl_tarn_k1_cvtfptou32rtpnosatf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtpnosatf16) TARN_CONST;

/* cvtfptou32rtzsatf: x rounded toward zero */
tarn_uint1 TARN_CALL __ocl_tarn_k1_cvtfptou32rtzsatf1(float x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtzsatf1) TARN_CONST;
tarn_uint2 TARN_CALL __ocl_tarn_k1_cvtfptou32rtzsatf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtzsatf2) TARN_CONST;
tarn_uint3 TARN_CALL __ocl_tarn_k1_cvtfptou32rtzsatf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtzsatf3) TARN_CONST;
tarn_uint4 TARN_CALL __ocl_tarn_k1_cvtfptou32rtzsatf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtzsatf4) TARN_CONST;
tarn_uint8 TARN_CALL __ocl_tarn_k1_cvtfptou32rtzsatf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtzsatf8) TARN_CONST;
tarn_uint16 TARN_CALL __ocl_tarn_k1_cvtfptou32rtzsatf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtzsatf16) TARN_CONST;

/* cvtfptou32rtznosatf: x rounded toward zero */
tarn_uint1 TARN_CALL __ocl_tarn_k1_cvtfptou32rtznosatf1(float x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtznosatf1) TARN_CONST;
tarn_uint2 TARN_CALL __ocl_tarn_k1_cvtfptou32rtznosatf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtznosatf2) TARN_CONST;
tarn_uint3 TARN_CALL __ocl_tarn_k1_cvtfptou32rtznosatf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtznosatf3) TARN_CONST;
tarn_uint4 TARN_CALL __ocl_tarn_k1_cvtfptou32rtznosatf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtznosatf4) TARN_CONST;
tarn_uint8 TARN_CALL __ocl_tarn_k1_cvtfptou32rtznosatf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtznosatf8) TARN_CONST;
tarn_uint16 TARN_CALL __ocl_tarn_k1_cvtfptou32rtznosatf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtznosatf16) TARN_CONST;

/* cvtfptoi64rtesatf: x rounded to nearest, ties to even */
tarn_long1 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtesatf1(float x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtesatf1) TARN_CONST;
tarn_long2 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtesatf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtesatf2) TARN_CONST;
tarn_long3 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtesatf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtesatf3) TARN_CONST;
tarn_long4 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtesatf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtesatf4) TARN_CONST;
tarn_long8 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtesatf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtesatf8) TARN_CONST;
tarn_long16 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtesatf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtesatf16) TARN_CONST;

/* cvtfptoi64rtenosatf: x rounded to nearest, ties to even */
tarn_long1 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtenosatf1(float x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtenosatf1) TARN_CONST;
tarn_long2 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtenosatf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtenosatf2) TARN_CONST;
tarn_long3 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtenosatf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtenosatf3) TARN_CONST;
tarn_long4 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtenosatf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtenosatf4) TARN_CONST;
tarn_long8 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtenosatf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtenosatf8) TARN_CONST;
tarn_long16 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtenosatf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtenosatf16) TARN_CONST;

/* cvtfptoi64rtnsatf: x rounded down */
tarn_long1 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtnsatf1(float x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtnsatf1) TARN_CONST;
tarn_long2 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtnsatf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtnsatf2) TARN_CONST;
tarn_long3 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtnsatf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtnsatf3) TARN_CONST;
tarn_long4 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtnsatf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtnsatf4) TARN_CONST;
tarn_long8 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtnsatf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtnsatf8) TARN_CONST;
tarn_long16 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtnsatf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtnsatf16) TARN_CONST;

/* cvtfptoi64rtnnosatf: x rounded down */
tarn_long1 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtnnosatf1(float x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtnnosatf1) TARN_CONST;
tarn_long2 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtnnosatf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtnnosatf2) TARN_CONST;
tarn_long3 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtnnosatf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtnnosatf3) TARN_CONST;
tarn_long4 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtnnosatf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtnnosatf4) TARN_CONST;
tarn_long8 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtnnosatf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtnnosatf8) TARN_CONST;
tarn_long16 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtnnosatf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtnnosatf16) TARN_CONST;

/* cvtfptoi64rtpsatf: x rounded up */
tarn_long1 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtpsatf1(float x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtpsatf1) TARN_CONST;
tarn_long2 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtpsatf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtpsatf2) TARN_CONST;
tarn_long3 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtpsatf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtpsatf3) TARN_CONST;
tarn_long4 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtpsatf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtpsatf4) TARN_CONST;
tarn_long8 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtpsatf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtpsatf8) TARN_CONST;
tarn_long16 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtpsatf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtpsatf16) TARN_CONST;

/* cvtfptoi64rtpnosatf: x rounded up */
tarn_long1 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtpnosatf1(float x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtpnosatf1) TARN_CONST;
tarn_long2 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtpnosatf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtpnosatf2) TARN_CONST;
tarn_long3 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtpnosatf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtpnosatf3) TARN_CONST;
tarn_long4 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtpnosatf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtpnosatf4) TARN_CONST;
tarn_long8 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtpnosatf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtpnosatf8) TARN_CONST;
tarn_long16 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtpnosatf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtpnosatf16) TARN_CONST;

/* cvtfptoi64rtzsatf: x rounded toward zero */
tarn_long1 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtzsatf1(float x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtzsatf1) TARN_CONST;
tarn_long2 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtzsatf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtzsatf2) TARN_CONST;
tarn_long3 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtzsatf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtzsatf3) TARN_CONST;
tarn_long4 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtzsatf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtzsatf4) TARN_CONST;
tarn_long8 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtzsatf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtzsatf8) TARN_CONST;
tarn_long16 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtzsatf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtzsatf16) TARN_CONST;

/* cvtfptoi64rtznosatf: x rounded toward zero */
tarn_long1 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtznosatf1(float x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtznosatf1) TARN_CONST;
tarn_long2 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtznosatf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtznosatf2) TARN_CONST;
tarn_long3 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtznosatf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtznosatf3) TARN_CONST;
tarn_long4 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtznosatf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtznosatf4) TARN_CONST;
tarn_long8 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtznosatf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtznosatf8) TARN_CONST;
tarn_long16 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtznosatf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtznosatf16) TARN_CONST;

/* cvtfptou64rtesatf: x rounded to nearest, ties to even */
tarn_ulong1 TARN_CALL __ocl_tarn_k1_cvtfptou64rtesatf1(float x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtesatf1) TARN_CONST;
tarn_ulong2 TARN_CALL __ocl_tarn_k1_cvtfptou64rtesatf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtesatf2) TARN_CONST;
tarn_ulong3 TARN_CALL __ocl_tarn_k1_cvtfptou64rtesatf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtesatf3) TARN_CONST;
tarn_ulong4 TARN_CALL __ocl_tarn_k1_cvtfptou64rtesatf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtesatf4) TARN_CONST;
tarn_ulong8 TARN_CALL __ocl_tarn_k1_cvtfptou64rtesatf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtesatf8) TARN_CONST;
tarn_ulong16 TARN_CALL __ocl_tarn_k1_cvtfptou64rtesatf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtesatf16) TARN_CONST;

/* cvtfptou64rtenosatf: x rounded to nearest, ties to even */
tarn_ulong1 TARN_CALL __ocl_tarn_k1_cvtfptou64rtenosatf1(float x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtenosatf1) TARN_CONST;
tarn_ulong2 TARN_CALL __ocl_tarn_k1_cvtfptou64rtenosatf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtenosatf2) TARN_CONST;
tarn_ulong3 TARN_CALL __ocl_tarn_k1_cvtfptou64rtenosatf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtenosatf3) TARN_CONST;
tarn_ulong4 TARN_CALL __ocl_tarn_k1_cvtfptou64rtenosatf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtenosatf4) TARN_CONST;
tarn_ulong8 TARN_CALL __ocl_tarn_k1_cvtfptou64rtenosatf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtenosatf8) TARN_CONST;
tarn_ulong16 TARN_CALL __ocl_tarn_k1_cvtfptou64rtenosatf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtenosatf16) TARN_CONST;

/* cvtfptou64rtnsatf: x rounded down */
tarn_ulong1 TARN_CALL __ocl_tarn_k1_cvtfptou64rtnsatf1(float x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtnsatf1) TARN_CONST;
tarn_ulong2 TARN_CALL __ocl_tarn_k1_cvtfptou64rtnsatf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtnsatf2) TARN_CONST;
tarn_ulong3 TARN_CALL __ocl_tarn_k1_cvtfptou64rtnsatf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtnsatf3) TARN_CONST;
tarn_ulong4 TARN_CALL __ocl_tarn_k1_cvtfptou64rtnsatf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtnsatf4) TARN_CONST;
tarn_ulong8 TARN_CALL __ocl_tarn_k1_cvtfptou64rtnsatf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtnsatf8) TARN_CONST;
tarn_ulong16 TARN_CALL __ocl_tarn_k1_cvtfptou64rtnsatf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtnsatf16) TARN_CONST;

/* cvtfptou64rtnnosatf: x rounded down */
tarn_ulong1 TARN_CALL __ocl_tarn_k1_cvtfptou64rtnnosatf1(float x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtnnosatf1) TARN_CONST;
tarn_ulong2 TARN_CALL __ocl_tarn_k1_cvtfptou64rtnnosatf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtnnosatf2) TARN_CONST;
tarn_ulong3 TARN_CALL __ocl_tarn_k1_cvtfptou64rtnnosatf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtnnosatf3) TARN_CONST;
tarn_ulong4 TARN_CALL __ocl_tarn_k1_cvtfptou64rtnnosatf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtnnosatf4) TARN_CONST;
tarn_ulong8 TARN_CALL __ocl_tarn_k1_cvtfptou64rtnnosatf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtnnosatf8) TARN_CONST;
tarn_ulong16 TARN_CALL __ocl_tarn_k1_cvtfptou64rtnnosatf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtnnosatf16) TARN_CONST;

/* cvtfptou64rtpsatf: x rounded up */
tarn_ulong1 TARN_CALL __ocl_tarn_k1_cvtfptou64rtpsatf1(float x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtpsatf1) TARN_CONST;
tarn_ulong2 TARN_CALL __ocl_tarn_k1_cvtfptou64rtpsatf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtpsatf2) TARN_CONST;
tarn_ulong3 TARN_CALL __ocl_tarn_k1_cvtfptou64rtpsatf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtpsatf3) TARN_CONST;
tarn_ulong4 TARN_CALL __ocl_tarn_k1_cvtfptou64rtpsatf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtpsatf4) TARN_CONST;
tarn_ulong8 TARN_CALL __ocl_tarn_k1_cvtfptou64rtpsatf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtpsatf8) TARN_CONST;
tarn_ulong16 TARN_CALL __ocl_tarn_k1_cvtfptou64rtpsatf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtpsatf16) TARN_CONST;

/* cvtfptou64rtpnosatf: x rounded up */
tarn_ulong1 TARN_CALL __ocl_tarn_k1_cvtfptou64rtpnosatf1(float x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtpnosatf1) TARN_CONST;
tarn_ulong2 TARN_CALL __ocl_tarn_k1_cvtfptou64rtpnosatf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtpnosatf2) TARN_CONST;
tarn_ulong3 TARN_CALL __ocl_tarn_k1_cvtfptou64rtpnosatf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtpnosatf3) TARN_CONST;
tarn_ulong4 TARN_CALL __ocl_tarn_k1_cvtfptou64rtpnosatf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtpnosatf4) TARN_CONST;
tarn_ulong8 TARN_CALL __ocl_tarn_k1_cvtfptou64rtpnosatf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtpnosatf8) TARN_CONST;
tarn_ulong16 TARN_CALL __ocl_tarn_k1_cvtfptou64rtpnosatf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtpnosatf16) TARN_CONST;

/* cvtfptou64rtzsatf: x rounded toward zero */
tarn_ulong1 TARN_CALL __ocl_tarn_k1_cvtfptou64rtzsatf1(float x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtzsatf1) TARN_CONST;
tarn_ulong2 TARN_CALL __ocl_tarn_k1_cvtfptou64rtzsatf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtzsatf2) TARN_CONST;
tarn_ulong3 TARN_CALL __ocl_tarn_k1_cvtfptou64rtzsatf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtzsatf3) TARN_CONST;
tarn_ulong4 TARN_CALL __ocl_tarn_k1_cvtfptou64rtzsatf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtzsatf4) TARN_CONST;
tarn_ulong8 TARN_CALL __ocl_tarn_k1_cvtfptou64rtzsatf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtzsatf8) TARN_CONST;
tarn_ulong16 TARN_CALL __ocl_tarn_k1_cvtfptou64rtzsatf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtzsatf16) TARN_CONST;

/* cvtfptou64rtznosatf: x rounded toward zero */
tarn_ulong1 TARN_CALL __ocl_tarn_k1_cvtfptou64rtznosatf1(float x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtznosatf1) TARN_CONST;
tarn_ulong2 TARN_CALL __ocl_tarn_k1_cvtfptou64rtznosatf2(tarn_float2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtznosatf2) TARN_CONST;
tarn_ulong3 TARN_CALL __ocl_tarn_k1_cvtfptou64rtznosatf3(tarn_float3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtznosatf3) TARN_CONST;
tarn_ulong4 TARN_CALL __ocl_tarn_k1_cvtfptou64rtznosatf4(tarn_float4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtznosatf4) TARN_CONST;
tarn_ulong8 TARN_CALL __ocl_tarn_k1_cvtfptou64rtznosatf8(tarn_float8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtznosatf8) TARN_CONST;
tarn_ulong16 TARN_CALL __ocl_tarn_k1_cvtfptou64rtznosatf16(tarn_float16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtznosatf16) TARN_CONST;

/* cvtfptoi32rtesat: x rounded to nearest, ties to even */
tarn_int1 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtesat1(double x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtesat1) TARN_CONST;
tarn_int2 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtesat2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtesat2) TARN_CONST;
tarn_int3 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtesat3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtesat3) TARN_CONST;
tarn_int4 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtesat4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtesat4) TARN_CONST;
tarn_int8 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtesat8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtesat8) TARN_CONST;
tarn_int16 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtesat16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtesat16) TARN_CONST;

/* cvtfptoi32rtenosat: x rounded to nearest, ties to even */
tarn_int1 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtenosat1(double x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtenosat1) TARN_CONST;
tarn_int2 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtenosat2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtenosat2) TARN_CONST;
tarn_int3 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtenosat3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtenosat3) TARN_CONST;
tarn_int4 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtenosat4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtenosat4) TARN_CONST;
tarn_int8 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtenosat8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtenosat8) TARN_CONST;
tarn_int16 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtenosat16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtenosat16) TARN_CONST;

/* cvtfptoi32rtnsat: x rounded down */
tarn_int1 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtnsat1(double x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtnsat1) TARN_CONST;
tarn_int2 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtnsat2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtnsat2) TARN_CONST;
tarn_int3 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtnsat3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtnsat3) TARN_CONST;
tarn_int4 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtnsat4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtnsat4) TARN_CONST;
tarn_int8 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtnsat8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtnsat8) TARN_CONST;
tarn_int16 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtnsat16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtnsat16) TARN_CONST;

/* cvtfptoi32rtnnosat: x rounded down */
tarn_int1 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtnnosat1(double x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtnnosat1) TARN_CONST;
tarn_int2 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtnnosat2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtnnosat2) TARN_CONST;
tarn_int3 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtnnosat3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtnnosat3) TARN_CONST;
tarn_int4 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtnnosat4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtnnosat4) TARN_CONST;
tarn_int8 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtnnosat8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtnnosat8) TARN_CONST;
tarn_int16 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtnnosat16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtnnosat16) TARN_CONST;

/* cvtfptoi32rtpsat: x rounded up */
tarn_int1 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtpsat1(double x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtpsat1) TARN_CONST;
tarn_int2 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtpsat2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtpsat2) TARN_CONST;
tarn_int3 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtpsat3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtpsat3) TARN_CONST;
tarn_int4 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtpsat4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtpsat4) TARN_CONST;
tarn_int8 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtpsat8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtpsat8) TARN_CONST;
tarn_int16 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtpsat16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtpsat16) TARN_CONST;

/* cvtfptoi32rtpnosat: x rounded up */
tarn_int1 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtpnosat1(double x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtpnosat1) TARN_CONST;
tarn_int2 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtpnosat2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtpnosat2) TARN_CONST;
tarn_int3 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtpnosat3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtpnosat3) TARN_CONST;
tarn_int4 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtpnosat4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtpnosat4) TARN_CONST;
tarn_int8 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtpnosat8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtpnosat8) TARN_CONST;
tarn_int16 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtpnosat16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtpnosat16) TARN_CONST;

/* cvtfptoi32rtzsat: x rounded toward zero */
tarn_int1 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtzsat1(double x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtzsat1) TARN_CONST;
tarn_int2 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtzsat2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtzsat2) TARN_CONST;
tarn_int3 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtzsat3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtzsat3) TARN_CONST;
tarn_int4 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtzsat4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtzsat4) TARN_CONST;
tarn_int8 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtzsat8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtzsat8) TARN_CONST;
tarn_int16 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtzsat16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtzsat16) TARN_CONST;

/* cvtfptoi32rtznosat: x rounded toward zero */
tarn_int1 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtznosat1(double x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtznosat1) TARN_CONST;
tarn_int2 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtznosat2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtznosat2) TARN_CONST;
tarn_int3 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtznosat3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtznosat3) TARN_CONST;
tarn_int4 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtznosat4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtznosat4) TARN_CONST;
tarn_int8 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtznosat8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtznosat8) TARN_CONST;
tarn_int16 TARN_CALL __ocl_tarn_k1_cvtfptoi32rtznosat16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi32rtznosat16) TARN_CONST;

/* cvtfptou32rtesat: x rounded to nearest, ties to even */
tarn_uint1 TARN_CALL __ocl_tarn_k1_cvtfptou32rtesat1(double x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtesat1) TARN_CONST;
tarn_uint2 TARN_CALL __ocl_tarn_k1_cvtfptou32rtesat2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtesat2) TARN_CONST;
tarn_uint3 TARN_CALL __ocl_tarn_k1_cvtfptou32rtesat3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtesat3) TARN_CONST;
tarn_uint4 TARN_CALL __ocl_tarn_k1_cvtfptou32rtesat4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtesat4) TARN_CONST;
tarn_uint8 TARN_CALL __ocl_tarn_k1_cvtfptou32rtesat8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtesat8) TARN_CONST;
tarn_uint16 TARN_CALL __ocl_tarn_k1_cvtfptou32rtesat16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtesat16) TARN_CONST;

/* cvtfptou32rtenosat: x rounded to nearest, ties to even */
tarn_uint1 TARN_CALL __ocl_tarn_k1_cvtfptou32rtenosat1(double x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtenosat1) TARN_CONST;
tarn_uint2 TARN_CALL __ocl_tarn_k1_cvtfptou32rtenosat2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtenosat2) TARN_CONST;
tarn_uint3 TARN_CALL __ocl_tarn_k1_cvtfptou32rtenosat3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtenosat3) TARN_CONST;
tarn_uint4 TARN_CALL __ocl_tarn_k1_cvtfptou32rtenosat4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtenosat4) TARN_CONST;
tarn_uint8 TARN_CALL __ocl_tarn_k1_cvtfptou32rtenosat8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtenosat8) TARN_CONST;
tarn_uint16 TARN_CALL __ocl_tarn_k1_cvtfptou32rtenosat16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtenosat16) TARN_CONST;

/* cvtfptou32rtnsat: x rounded down */
tarn_uint1 TARN_CALL __ocl_tarn_k1_cvtfptou32rtnsat1(double x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtnsat1) TARN_CONST;
tarn_uint2 TARN_CALL __ocl_tarn_k1_cvtfptou32rtnsat2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtnsat2) TARN_CONST;
tarn_uint3 TARN_CALL __ocl_tarn_k1_cvtfptou32rtnsat3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtnsat3) TARN_CONST;
tarn_uint4 TARN_CALL __ocl_tarn_k1_cvtfptou32rtnsat4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtnsat4) TARN_CONST;
tarn_uint8 TARN_CALL __ocl_tarn_k1_cvtfptou32rtnsat8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtnsat8) TARN_CONST;
tarn_uint16 TARN_CALL __ocl_tarn_k1_cvtfptou32rtnsat16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtnsat16) TARN_CONST;

/* cvtfptou32rtnnosat: x rounded down */
tarn_uint1 TARN_CALL __ocl_tarn_k1_cvtfptou32rtnnosat1(double x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtnnosat1) TARN_CONST;
tarn_uint2 TARN_CALL __ocl_tarn_k1_cvtfptou32rtnnosat2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtnnosat2) TARN_CONST;
tarn_uint3 TARN_CALL __ocl_tarn_k1_cvtfptou32rtnnosat3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtnnosat3) TARN_CONST;
tarn_uint4 TARN_CALL __ocl_tarn_k1_cvtfptou32rtnnosat4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtnnosat4) TARN_CONST;
tarn_uint8 TARN_CALL __ocl_tarn_k1_cvtfptou32rtnnosat8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtnnosat8) TARN_CONST;
tarn_uint16 TARN_CALL __ocl_tarn_k1_cvtfptou32rtnnosat16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtnnosat16) TARN_CONST;

/* cvtfptou32rtpsat: x rounded up */
tarn_uint1 TARN_CALL __ocl_tarn_k1_cvtfptou32rtpsat1(double x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtpsat1) TARN_CONST;
tarn_uint2 TARN_CALL __ocl_tarn_k1_cvtfptou32rtpsat2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtpsat2) TARN_CONST;
tarn_uint3 TARN_CALL __ocl_tarn_k1_cvtfptou32rtpsat3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtpsat3) TARN_CONST;
tarn_uint4 TARN_CALL __ocl_tarn_k1_cvtfptou32rtpsat4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtpsat4) TARN_CONST;
tarn_uint8 TARN_CALL __ocl_tarn_k1_cvtfptou32rtpsat8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtpsat8) TARN_CONST;
tarn_uint16 TARN_CALL __ocl_tarn_k1_cvtfptou32rtpsat16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtpsat16) TARN_CONST;

/* cvtfptou32rtpnosat: x rounded up */
tarn_uint1 TARN_CALL __ocl_tarn_k1_cvtfptou32rtpnosat1(double x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtpnosat1) TARN_CONST;
tarn_uint2 TARN_CALL __ocl_tarn_k1_cvtfptou32rtpnosat2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtpnosat2) TARN_CONST;
tarn_uint3 TARN_CALL __ocl_tarn_k1_cvtfptou32rtpnosat3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtpnosat3) TARN_CONST;
tarn_uint4 TARN_CALL __ocl_tarn_k1_cvtfptou32rtpnosat4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtpnosat4) TARN_CONST;
tarn_uint8 TARN_CALL __ocl_tarn_k1_cvtfptou32rtpnosat8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtpnosat8) TARN_CONST;
tarn_uint16 TARN_CALL __ocl_tarn_k1_cvtfptou32rtpnosat16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtpnosat16) TARN_CONST;

/* cvtfptou32rtzsat: x rounded toward zero */
tarn_uint1 TARN_CALL __ocl_tarn_k1_cvtfptou32rtzsat1(double x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtzsat1) TARN_CONST;
tarn_uint2 TARN_CALL __ocl_tarn_k1_cvtfptou32rtzsat2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtzsat2) TARN_CONST;
tarn_uint3 TARN_CALL __ocl_tarn_k1_cvtfptou32rtzsat3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtzsat3) TARN_CONST;
tarn_uint4 TARN_CALL __ocl_tarn_k1_cvtfptou32rtzsat4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtzsat4) TARN_CONST;
tarn_uint8 TARN_CALL __ocl_tarn_k1_cvtfptou32rtzsat8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtzsat8) TARN_CONST;
tarn_uint16 TARN_CALL __ocl_tarn_k1_cvtfptou32rtzsat16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtzsat16) TARN_CONST;

/* cvtfptou32rtznosat: x rounded toward zero */
tarn_uint1 TARN_CALL __ocl_tarn_k1_cvtfptou32rtznosat1(double x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtznosat1) TARN_CONST;
tarn_uint2 TARN_CALL __ocl_tarn_k1_cvtfptou32rtznosat2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtznosat2) TARN_CONST;
tarn_uint3 TARN_CALL __ocl_tarn_k1_cvtfptou32rtznosat3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtznosat3) TARN_CONST;
tarn_uint4 TARN_CALL __ocl_tarn_k1_cvtfptou32rtznosat4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtznosat4) TARN_CONST;
tarn_uint8 TARN_CALL __ocl_tarn_k1_cvtfptou32rtznosat8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtznosat8) TARN_CONST;
tarn_uint16 TARN_CALL __ocl_tarn_k1_cvtfptou32rtznosat16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou32rtznosat16) TARN_CONST;

/* cvtfptoi64rtesat: x rounded to nearest, ties to even */
tarn_long1 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtesat1(double x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtesat1) TARN_CONST;
tarn_long2 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtesat2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtesat2) TARN_CONST;
tarn_long3 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtesat3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtesat3) TARN_CONST;
tarn_long4 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtesat4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtesat4) TARN_CONST;
tarn_long8 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtesat8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtesat8) TARN_CONST;
tarn_long16 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtesat16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtesat16) TARN_CONST;

/* cvtfptoi64rtenosat: x rounded to nearest, ties to even */
tarn_long1 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtenosat1(double x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtenosat1) TARN_CONST;
tarn_long2 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtenosat2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtenosat2) TARN_CONST;
tarn_long3 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtenosat3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtenosat3) TARN_CONST;
tarn_long4 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtenosat4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtenosat4) TARN_CONST;
tarn_long8 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtenosat8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtenosat8) TARN_CONST;
tarn_long16 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtenosat16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtenosat16) TARN_CONST;

/* cvtfptoi64rtnsat: x rounded down */
tarn_long1 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtnsat1(double x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtnsat1) TARN_CONST;
tarn_long2 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtnsat2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtnsat2) TARN_CONST;
tarn_long3 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtnsat3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtnsat3) TARN_CONST;
tarn_long4 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtnsat4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtnsat4) TARN_CONST;
tarn_long8 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtnsat8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtnsat8) TARN_CONST;
tarn_long16 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtnsat16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtnsat16) TARN_CONST;

/* cvtfptoi64rtnnosat: x rounded down */
tarn_long1 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtnnosat1(double x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtnnosat1) TARN_CONST;
tarn_long2 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtnnosat2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtnnosat2) TARN_CONST;
tarn_long3 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtnnosat3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtnnosat3) TARN_CONST;
tarn_long4 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtnnosat4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtnnosat4) TARN_CONST;
tarn_long8 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtnnosat8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtnnosat8) TARN_CONST;
tarn_long16 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtnnosat16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtnnosat16) TARN_CONST;

/* cvtfptoi64rtpsat: x rounded up */
tarn_long1 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtpsat1(double x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtpsat1) TARN_CONST;
tarn_long2 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtpsat2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtpsat2) TARN_CONST;
tarn_long3 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtpsat3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtpsat3) TARN_CONST;
tarn_long4 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtpsat4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtpsat4) TARN_CONST;
tarn_long8 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtpsat8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtpsat8) TARN_CONST;
tarn_long16 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtpsat16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtpsat16) TARN_CONST;

/* cvtfptoi64rtpnosat: x rounded up */
tarn_long1 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtpnosat1(double x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtpnosat1) TARN_CONST;
tarn_long2 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtpnosat2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtpnosat2) TARN_CONST;
tarn_long3 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtpnosat3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtpnosat3) TARN_CONST;
tarn_long4 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtpnosat4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtpnosat4) TARN_CONST;
tarn_long8 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtpnosat8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtpnosat8) TARN_CONST;
tarn_long16 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtpnosat16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtpnosat16) TARN_CONST;

/* cvtfptoi64rtzsat: x rounded toward zero */
tarn_long1 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtzsat1(double x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtzsat1) TARN_CONST;
tarn_long2 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtzsat2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtzsat2) TARN_CONST;
tarn_long3 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtzsat3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtzsat3) TARN_CONST;
tarn_long4 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtzsat4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtzsat4) TARN_CONST;
tarn_long8 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtzsat8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtzsat8) TARN_CONST;
tarn_long16 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtzsat16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtzsat16) TARN_CONST;

/* cvtfptoi64rtznosat: x rounded toward zero */
tarn_long1 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtznosat1(double x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtznosat1) TARN_CONST;
tarn_long2 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtznosat2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtznosat2) TARN_CONST;
tarn_long3 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtznosat3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtznosat3) TARN_CONST;
tarn_long4 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtznosat4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtznosat4) TARN_CONST;
tarn_long8 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtznosat8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtznosat8) TARN_CONST;
tarn_long16 TARN_CALL __ocl_tarn_k1_cvtfptoi64rtznosat16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptoi64rtznosat16) TARN_CONST;

/* cvtfptou64rtesat: x rounded to nearest, ties to even */
tarn_ulong1 TARN_CALL __ocl_tarn_k1_cvtfptou64rtesat1(double x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtesat1) TARN_CONST;
tarn_ulong2 TARN_CALL __ocl_tarn_k1_cvtfptou64rtesat2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtesat2) TARN_CONST;
tarn_ulong3 TARN_CALL __ocl_tarn_k1_cvtfptou64rtesat3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtesat3) TARN_CONST;
tarn_ulong4 TARN_CALL __ocl_tarn_k1_cvtfptou64rtesat4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtesat4) TARN_CONST;
tarn_ulong8 TARN_CALL __ocl_tarn_k1_cvtfptou64rtesat8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtesat8) TARN_CONST;
tarn_ulong16 TARN_CALL __ocl_tarn_k1_cvtfptou64rtesat16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtesat16) TARN_CONST;

/* cvtfptou64rtenosat: x rounded to nearest, ties to even */
tarn_ulong1 TARN_CALL __ocl_tarn_k1_cvtfptou64rtenosat1(double x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtenosat1) TARN_CONST;
tarn_ulong2 TARN_CALL __ocl_tarn_k1_cvtfptou64rtenosat2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtenosat2) TARN_CONST;
tarn_ulong3 TARN_CALL __ocl_tarn_k1_cvtfptou64rtenosat3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtenosat3) TARN_CONST;
tarn_ulong4 TARN_CALL __ocl_tarn_k1_cvtfptou64rtenosat4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtenosat4) TARN_CONST;
tarn_ulong8 TARN_CALL __ocl_tarn_k1_cvtfptou64rtenosat8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtenosat8) TARN_CONST;
tarn_ulong16 TARN_CALL __ocl_tarn_k1_cvtfptou64rtenosat16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtenosat16) TARN_CONST;

/* cvtfptou64rtnsat: x rounded down */
tarn_ulong1 TARN_CALL __ocl_tarn_k1_cvtfptou64rtnsat1(double x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtnsat1) TARN_CONST;
tarn_ulong2 TARN_CALL __ocl_tarn_k1_cvtfptou64rtnsat2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtnsat2) TARN_CONST;
tarn_ulong3 TARN_CALL __ocl_tarn_k1_cvtfptou64rtnsat3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtnsat3) TARN_CONST;
tarn_ulong4 TARN_CALL __ocl_tarn_k1_cvtfptou64rtnsat4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtnsat4) TARN_CONST;
tarn_ulong8 TARN_CALL __ocl_tarn_k1_cvtfptou64rtnsat8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtnsat8) TARN_CONST;
tarn_ulong16 TARN_CALL __ocl_tarn_k1_cvtfptou64rtnsat16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtnsat16) TARN_CONST;

/* cvtfptou64rtnnosat: x rounded down */
tarn_ulong1 TARN_CALL __ocl_tarn_k1_cvtfptou64rtnnosat1(double x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtnnosat1) TARN_CONST;
tarn_ulong2 TARN_CALL __ocl_tarn_k1_cvtfptou64rtnnosat2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtnnosat2) TARN_CONST;
tarn_ulong3 TARN_CALL __ocl_tarn_k1_cvtfptou64rtnnosat3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtnnosat3) TARN_CONST;
tarn_ulong4 TARN_CALL __ocl_tarn_k1_cvtfptou64rtnnosat4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtnnosat4) TARN_CONST;
tarn_ulong8 TARN_CALL __ocl_tarn_k1_cvtfptou64rtnnosat8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtnnosat8) TARN_CONST;
tarn_ulong16 TARN_CALL __ocl_tarn_k1_cvtfptou64rtnnosat16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtnnosat16) TARN_CONST;

/* cvtfptou64rtpsat: x rounded up */
tarn_ulong1 TARN_CALL __ocl_tarn_k1_cvtfptou64rtpsat1(double x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtpsat1) TARN_CONST;
tarn_ulong2 TARN_CALL __ocl_tarn_k1_cvtfptou64rtpsat2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtpsat2) TARN_CONST;
tarn_ulong3 TARN_CALL __ocl_tarn_k1_cvtfptou64rtpsat3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtpsat3) TARN_CONST;
tarn_ulong4 TARN_CALL __ocl_tarn_k1_cvtfptou64rtpsat4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtpsat4) TARN_CONST;
tarn_ulong8 TARN_CALL __ocl_tarn_k1_cvtfptou64rtpsat8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtpsat8) TARN_CONST;
tarn_ulong16 TARN_CALL __ocl_tarn_k1_cvtfptou64rtpsat16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtpsat16) TARN_CONST;

/* cvtfptou64rtpnosat: x rounded up */
tarn_ulong1 TARN_CALL __ocl_tarn_k1_cvtfptou64rtpnosat1(double x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtpnosat1) TARN_CONST;
tarn_ulong2 TARN_CALL __ocl_tarn_k1_cvtfptou64rtpnosat2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtpnosat2) TARN_CONST;
tarn_ulong3 TARN_CALL __ocl_tarn_k1_cvtfptou64rtpnosat3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtpnosat3) TARN_CONST;
tarn_ulong4 TARN_CALL __ocl_tarn_k1_cvtfptou64rtpnosat4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtpnosat4) TARN_CONST;
tarn_ulong8 TARN_CALL __ocl_tarn_k1_cvtfptou64rtpnosat8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtpnosat8) TARN_CONST;
tarn_ulong16 TARN_CALL __ocl_tarn_k1_cvtfptou64rtpnosat16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtpnosat16) TARN_CONST;

/* cvtfptou64rtzsat: x rounded toward zero */
tarn_ulong1 TARN_CALL __ocl_tarn_k1_cvtfptou64rtzsat1(double x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtzsat1) TARN_CONST;
tarn_ulong2 TARN_CALL __ocl_tarn_k1_cvtfptou64rtzsat2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtzsat2) TARN_CONST;
tarn_ulong3 TARN_CALL __ocl_tarn_k1_cvtfptou64rtzsat3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtzsat3) TARN_CONST;
tarn_ulong4 TARN_CALL __ocl_tarn_k1_cvtfptou64rtzsat4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtzsat4) TARN_CONST;
tarn_ulong8 TARN_CALL __ocl_tarn_k1_cvtfptou64rtzsat8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtzsat8) TARN_CONST;
tarn_ulong16 TARN_CALL __ocl_tarn_k1_cvtfptou64rtzsat16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtzsat16) TARN_CONST;

/* cvtfptou64rtznosat: x rounded toward zero */
tarn_ulong1 TARN_CALL __ocl_tarn_k1_cvtfptou64rtznosat1(double x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtznosat1) TARN_CONST;
tarn_ulong2 TARN_CALL __ocl_tarn_k1_cvtfptou64rtznosat2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtznosat2) TARN_CONST;
tarn_ulong3 TARN_CALL __ocl_tarn_k1_cvtfptou64rtznosat3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtznosat3) TARN_CONST;
tarn_ulong4 TARN_CALL __ocl_tarn_k1_cvtfptou64rtznosat4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtznosat4) TARN_CONST;
tarn_ulong8 TARN_CALL __ocl_tarn_k1_cvtfptou64rtznosat8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtznosat8) TARN_CONST;
tarn_ulong16 TARN_CALL __ocl_tarn_k1_cvtfptou64rtznosat16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfptou64rtznosat16) TARN_CONST;

/* cvti32tofprtef: x rounded to nearest, ties to even */
float TARN_CALL __ocl_tarn_k1_cvti32tofprtef1(tarn_int1 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtef1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_cvti32tofprtef2(tarn_int2 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtef2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_cvti32tofprtef3(tarn_int3 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtef3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_cvti32tofprtef4(tarn_int4 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtef4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_cvti32tofprtef8(tarn_int8 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtef8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_cvti32tofprtef16(tarn_int16 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtef16) TARN_CONST;

/* cvti32tofprtnf: x rounded down */
float TARN_CALL __ocl_tarn_k1_cvti32tofprtnf1(tarn_int1 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtnf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_cvti32tofprtnf2(tarn_int2 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtnf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_cvti32tofprtnf3(tarn_int3 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtnf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_cvti32tofprtnf4(tarn_int4 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtnf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_cvti32tofprtnf8(tarn_int8 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtnf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_cvti32tofprtnf16(tarn_int16 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtnf16) TARN_CONST;

/* cvti32tofprtpf: x rounded up */
float TARN_CALL __ocl_tarn_k1_cvti32tofprtpf1(tarn_int1 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtpf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_cvti32tofprtpf2(tarn_int2 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtpf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_cvti32tofprtpf3(tarn_int3 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtpf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_cvti32tofprtpf4(tarn_int4 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtpf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_cvti32tofprtpf8(tarn_int8 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtpf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_cvti32tofprtpf16(tarn_int16 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtpf16) TARN_CONST;

/* cvti32tofprtzf: x rounded toward zero */
float TARN_CALL __ocl_tarn_k1_cvti32tofprtzf1(tarn_int1 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtzf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_cvti32tofprtzf2(tarn_int2 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtzf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_cvti32tofprtzf3(tarn_int3 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtzf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_cvti32tofprtzf4(tarn_int4 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtzf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_cvti32tofprtzf8(tarn_int8 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtzf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_cvti32tofprtzf16(tarn_int16 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtzf16) TARN_CONST;

/* cvtu32tofprtef: x rounded to nearest, ties to even */
float TARN_CALL __ocl_tarn_k1_cvtu32tofprtef1(tarn_uint1 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtef1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_cvtu32tofprtef2(tarn_uint2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtef2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_cvtu32tofprtef3(tarn_uint3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtef3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_cvtu32tofprtef4(tarn_uint4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtef4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_cvtu32tofprtef8(tarn_uint8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtef8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_cvtu32tofprtef16(tarn_uint16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtef16) TARN_CONST;

/* cvtu32tofprtnf: x rounded down */
float TARN_CALL __ocl_tarn_k1_cvtu32tofprtnf1(tarn_uint1 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtnf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_cvtu32tofprtnf2(tarn_uint2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtnf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_cvtu32tofprtnf3(tarn_uint3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtnf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_cvtu32tofprtnf4(tarn_uint4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtnf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_cvtu32tofprtnf8(tarn_uint8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtnf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_cvtu32tofprtnf16(tarn_uint16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtnf16) TARN_CONST;

/* cvtu32tofprtpf: x rounded up */
float TARN_CALL __ocl_tarn_k1_cvtu32tofprtpf1(tarn_uint1 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtpf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_cvtu32tofprtpf2(tarn_uint2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtpf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_cvtu32tofprtpf3(tarn_uint3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtpf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_cvtu32tofprtpf4(tarn_uint4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtpf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_cvtu32tofprtpf8(tarn_uint8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtpf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_cvtu32tofprtpf16(tarn_uint16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtpf16) TARN_CONST;

/* cvtu32tofprtzf: x rounded toward zero */
float TARN_CALL __ocl_tarn_k1_cvtu32tofprtzf1(tarn_uint1 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtzf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_cvtu32tofprtzf2(tarn_uint2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtzf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_cvtu32tofprtzf3(tarn_uint3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtzf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_cvtu32tofprtzf4(tarn_uint4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtzf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_cvtu32tofprtzf8(tarn_uint8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtzf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_cvtu32tofprtzf16(tarn_uint16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtzf16) TARN_CONST;

/* cvti64tofprtef: x rounded to nearest, ties to even */
float TARN_CALL __ocl_tarn_k1_cvti64tofprtef1(tarn_long1 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtef1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_cvti64tofprtef2(tarn_long2 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtef2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_cvti64tofprtef3(tarn_long3 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtef3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_cvti64tofprtef4(tarn_long4 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtef4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_cvti64tofprtef8(tarn_long8 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtef8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_cvti64tofprtef16(tarn_long16 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtef16) TARN_CONST;

/* cvti64tofprtnf: x rounded down */
float TARN_CALL __ocl_tarn_k1_cvti64tofprtnf1(tarn_long1 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtnf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_cvti64tofprtnf2(tarn_long2 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtnf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_cvti64tofprtnf3(tarn_long3 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtnf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_cvti64tofprtnf4(tarn_long4 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtnf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_cvti64tofprtnf8(tarn_long8 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtnf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_cvti64tofprtnf16(tarn_long16 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtnf16) TARN_CONST;

/* cvti64tofprtpf: x rounded up */
float TARN_CALL __ocl_tarn_k1_cvti64tofprtpf1(tarn_long1 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtpf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_cvti64tofprtpf2(tarn_long2 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtpf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_cvti64tofprtpf3(tarn_long3 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtpf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_cvti64tofprtpf4(tarn_long4 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtpf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_cvti64tofprtpf8(tarn_long8 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtpf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_cvti64tofprtpf16(tarn_long16 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtpf16) TARN_CONST;

/* cvti64tofprtzf: x rounded toward zero */
float TARN_CALL __ocl_tarn_k1_cvti64tofprtzf1(tarn_long1 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtzf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_cvti64tofprtzf2(tarn_long2 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtzf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_cvti64tofprtzf3(tarn_long3 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtzf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_cvti64tofprtzf4(tarn_long4 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtzf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_cvti64tofprtzf8(tarn_long8 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtzf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_cvti64tofprtzf16(tarn_long16 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtzf16) TARN_CONST;

/* cvtu64tofprtef: x rounded to nearest, ties to even */
float TARN_CALL __ocl_tarn_k1_cvtu64tofprtef1(tarn_ulong1 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtef1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_cvtu64tofprtef2(tarn_ulong2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtef2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_cvtu64tofprtef3(tarn_ulong3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtef3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_cvtu64tofprtef4(tarn_ulong4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtef4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_cvtu64tofprtef8(tarn_ulong8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtef8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_cvtu64tofprtef16(tarn_ulong16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtef16) TARN_CONST;

/* cvtu64tofprtnf: x rounded down */
float TARN_CALL __ocl_tarn_k1_cvtu64tofprtnf1(tarn_ulong1 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtnf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_cvtu64tofprtnf2(tarn_ulong2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtnf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_cvtu64tofprtnf3(tarn_ulong3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtnf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_cvtu64tofprtnf4(tarn_ulong4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtnf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_cvtu64tofprtnf8(tarn_ulong8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtnf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_cvtu64tofprtnf16(tarn_ulong16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtnf16) TARN_CONST;

/* cvtu64tofprtpf: x rounded up */
float TARN_CALL __ocl_tarn_k1_cvtu64tofprtpf1(tarn_ulong1 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtpf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_cvtu64tofprtpf2(tarn_ulong2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtpf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_cvtu64tofprtpf3(tarn_ulong3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtpf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_cvtu64tofprtpf4(tarn_ulong4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtpf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_cvtu64tofprtpf8(tarn_ulong8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtpf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_cvtu64tofprtpf16(tarn_ulong16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtpf16) TARN_CONST;

/* cvtu64tofprtzf: x rounded toward zero */
float TARN_CALL __ocl_tarn_k1_cvtu64tofprtzf1(tarn_ulong1 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtzf1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_cvtu64tofprtzf2(tarn_ulong2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtzf2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_cvtu64tofprtzf3(tarn_ulong3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtzf3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_cvtu64tofprtzf4(tarn_ulong4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtzf4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_cvtu64tofprtzf8(tarn_ulong8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtzf8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_cvtu64tofprtzf16(tarn_ulong16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtzf16) TARN_CONST;

/* cvti32tofprte: x rounded to nearest, ties to even */
double TARN_CALL __ocl_tarn_k1_cvti32tofprte1(tarn_int1 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprte1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_cvti32tofprte2(tarn_int2 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprte2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_cvti32tofprte3(tarn_int3 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprte3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_cvti32tofprte4(tarn_int4 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprte4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_cvti32tofprte8(tarn_int8 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprte8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_cvti32tofprte16(tarn_int16 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprte16) TARN_CONST;

/* cvti32tofprtn: x rounded down */
double TARN_CALL __ocl_tarn_k1_cvti32tofprtn1(tarn_int1 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtn1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_cvti32tofprtn2(tarn_int2 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtn2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_cvti32tofprtn3(tarn_int3 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtn3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_cvti32tofprtn4(tarn_int4 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtn4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_cvti32tofprtn8(tarn_int8 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtn8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_cvti32tofprtn16(tarn_int16 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtn16) TARN_CONST;

/* cvti32tofprtp: x rounded up */
double TARN_CALL __ocl_tarn_k1_cvti32tofprtp1(tarn_int1 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtp1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_cvti32tofprtp2(tarn_int2 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtp2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_cvti32tofprtp3(tarn_int3 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtp3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_cvti32tofprtp4(tarn_int4 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtp4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_cvti32tofprtp8(tarn_int8 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtp8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_cvti32tofprtp16(tarn_int16 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtp16) TARN_CONST;

/* cvti32tofprtz: x rounded toward zero */
double TARN_CALL __ocl_tarn_k1_cvti32tofprtz1(tarn_int1 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtz1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_cvti32tofprtz2(tarn_int2 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtz2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_cvti32tofprtz3(tarn_int3 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtz3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_cvti32tofprtz4(tarn_int4 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtz4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_cvti32tofprtz8(tarn_int8 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtz8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_cvti32tofprtz16(tarn_int16 x) TARN_SYMBOL(__ocl_tarn_k1_cvti32tofprtz16) TARN_CONST;

/* cvtu32tofprte: x rounded to nearest, ties to even */
double TARN_CALL __ocl_tarn_k1_cvtu32tofprte1(tarn_uint1 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprte1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_cvtu32tofprte2(tarn_uint2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprte2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_cvtu32tofprte3(tarn_uint3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprte3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_cvtu32tofprte4(tarn_uint4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprte4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_cvtu32tofprte8(tarn_uint8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprte8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_cvtu32tofprte16(tarn_uint16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprte16) TARN_CONST;

/* cvtu32tofprtn: x rounded down */
double TARN_CALL __ocl_tarn_k1_cvtu32tofprtn1(tarn_uint1 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtn1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_cvtu32tofprtn2(tarn_uint2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtn2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_cvtu32tofprtn3(tarn_uint3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtn3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_cvtu32tofprtn4(tarn_uint4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtn4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_cvtu32tofprtn8(tarn_uint8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtn8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_cvtu32tofprtn16(tarn_uint16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtn16) TARN_CONST;

/* cvtu32tofprtp: x rounded up */
double TARN_CALL __ocl_tarn_k1_cvtu32tofprtp1(tarn_uint1 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtp1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_cvtu32tofprtp2(tarn_uint2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtp2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_cvtu32tofprtp3(tarn_uint3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtp3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_cvtu32tofprtp4(tarn_uint4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtp4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_cvtu32tofprtp8(tarn_uint8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtp8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_cvtu32tofprtp16(tarn_uint16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtp16) TARN_CONST;

/* cvtu32tofprtz: x rounded toward zero */
double TARN_CALL __ocl_tarn_k1_cvtu32tofprtz1(tarn_uint1 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtz1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_cvtu32tofprtz2(tarn_uint2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtz2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_cvtu32tofprtz3(tarn_uint3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtz3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_cvtu32tofprtz4(tarn_uint4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtz4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_cvtu32tofprtz8(tarn_uint8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtz8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_cvtu32tofprtz16(tarn_uint16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu32tofprtz16) TARN_CONST;

/* cvti64tofprte: x rounded to nearest, ties to even */
double TARN_CALL __ocl_tarn_k1_cvti64tofprte1(tarn_long1 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprte1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_cvti64tofprte2(tarn_long2 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprte2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_cvti64tofprte3(tarn_long3 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprte3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_cvti64tofprte4(tarn_long4 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprte4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_cvti64tofprte8(tarn_long8 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprte8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_cvti64tofprte16(tarn_long16 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprte16) TARN_CONST;

/* cvti64tofprtn: x rounded down */
double TARN_CALL __ocl_tarn_k1_cvti64tofprtn1(tarn_long1 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtn1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_cvti64tofprtn2(tarn_long2 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtn2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_cvti64tofprtn3(tarn_long3 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtn3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_cvti64tofprtn4(tarn_long4 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtn4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_cvti64tofprtn8(tarn_long8 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtn8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_cvti64tofprtn16(tarn_long16 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtn16) TARN_CONST;

/* cvti64tofprtp: x rounded up */
double TARN_CALL __ocl_tarn_k1_cvti64tofprtp1(tarn_long1 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtp1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_cvti64tofprtp2(tarn_long2 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtp2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_cvti64tofprtp3(tarn_long3 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtp3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_cvti64tofprtp4(tarn_long4 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtp4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_cvti64tofprtp8(tarn_long8 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtp8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_cvti64tofprtp16(tarn_long16 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtp16) TARN_CONST;

/* cvti64tofprtz: x rounded toward zero */
double TARN_CALL __ocl_tarn_k1_cvti64tofprtz1(tarn_long1 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtz1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_cvti64tofprtz2(tarn_long2 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtz2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_cvti64tofprtz3(tarn_long3 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtz3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_cvti64tofprtz4(tarn_long4 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtz4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_cvti64tofprtz8(tarn_long8 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtz8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_cvti64tofprtz16(tarn_long16 x) TARN_SYMBOL(__ocl_tarn_k1_cvti64tofprtz16) TARN_CONST;

/* cvtu64tofprte: x rounded to nearest, ties to even */
double TARN_CALL __ocl_tarn_k1_cvtu64tofprte1(tarn_ulong1 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprte1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_cvtu64tofprte2(tarn_ulong2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprte2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_cvtu64tofprte3(tarn_ulong3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprte3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_cvtu64tofprte4(tarn_ulong4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprte4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_cvtu64tofprte8(tarn_ulong8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprte8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_cvtu64tofprte16(tarn_ulong16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprte16) TARN_CONST;

/* cvtu64tofprtn: x rounded down */
double TARN_CALL __ocl_tarn_k1_cvtu64tofprtn1(tarn_ulong1 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtn1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_cvtu64tofprtn2(tarn_ulong2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtn2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_cvtu64tofprtn3(tarn_ulong3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtn3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_cvtu64tofprtn4(tarn_ulong4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtn4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_cvtu64tofprtn8(tarn_ulong8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtn8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_cvtu64tofprtn16(tarn_ulong16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtn16) TARN_CONST;

/* cvtu64tofprtp: x rounded up */
double TARN_CALL __ocl_tarn_k1_cvtu64tofprtp1(tarn_ulong1 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtp1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_cvtu64tofprtp2(tarn_ulong2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtp2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_cvtu64tofprtp3(tarn_ulong3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtp3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_cvtu64tofprtp4(tarn_ulong4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtp4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_cvtu64tofprtp8(tarn_ulong8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtp8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_cvtu64tofprtp16(tarn_ulong16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtp16) TARN_CONST;

/* cvtu64tofprtz: x rounded toward zero */
double TARN_CALL __ocl_tarn_k1_cvtu64tofprtz1(tarn_ulong1 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtz1) TARN_CONST;
tarn_double2 TARN_CALL __ocl_tarn_k1_cvtu64tofprtz2(tarn_ulong2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtz2) TARN_CONST;
tarn_double3 TARN_CALL __ocl_tarn_k1_cvtu64tofprtz3(tarn_ulong3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtz3) TARN_CONST;
tarn_double4 TARN_CALL __ocl_tarn_k1_cvtu64tofprtz4(tarn_ulong4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtz4) TARN_CONST;
tarn_double8 TARN_CALL __ocl_tarn_k1_cvtu64tofprtz8(tarn_ulong8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtz8) TARN_CONST;
tarn_double16 TARN_CALL __ocl_tarn_k1_cvtu64tofprtz16(tarn_ulong16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtu64tofprtz16) TARN_CONST;

/* cvtfp64tofp32rte: x rounded to nearest, ties to even */
float TARN_CALL __ocl_tarn_k1_cvtfp64tofp32rte1(double x) TARN_SYMBOL(__ocl_tarn_k1_cvtfp64tofp32rte1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_cvtfp64tofp32rte2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfp64tofp32rte2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_cvtfp64tofp32rte3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfp64tofp32rte3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_cvtfp64tofp32rte4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfp64tofp32rte4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_cvtfp64tofp32rte8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfp64tofp32rte8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_cvtfp64tofp32rte16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfp64tofp32rte16) TARN_CONST;

/* cvtfp64tofp32rtn: x rounded down */
float TARN_CALL __ocl_tarn_k1_cvtfp64tofp32rtn1(double x) TARN_SYMBOL(__ocl_tarn_k1_cvtfp64tofp32rtn1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_cvtfp64tofp32rtn2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfp64tofp32rtn2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_cvtfp64tofp32rtn3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfp64tofp32rtn3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_cvtfp64tofp32rtn4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfp64tofp32rtn4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_cvtfp64tofp32rtn8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfp64tofp32rtn8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_cvtfp64tofp32rtn16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfp64tofp32rtn16) TARN_CONST;

/* cvtfp64tofp32rtp: x rounded up */
float TARN_CALL __ocl_tarn_k1_cvtfp64tofp32rtp1(double x) TARN_SYMBOL(__ocl_tarn_k1_cvtfp64tofp32rtp1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_cvtfp64tofp32rtp2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfp64tofp32rtp2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_cvtfp64tofp32rtp3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfp64tofp32rtp3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_cvtfp64tofp32rtp4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfp64tofp32rtp4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_cvtfp64tofp32rtp8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfp64tofp32rtp8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_cvtfp64tofp32rtp16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfp64tofp32rtp16) TARN_CONST;

/* cvtfp64tofp32rtz: x rounded toward zero */
float TARN_CALL __ocl_tarn_k1_cvtfp64tofp32rtz1(double x) TARN_SYMBOL(__ocl_tarn_k1_cvtfp64tofp32rtz1) TARN_CONST;
tarn_float2 TARN_CALL __ocl_tarn_k1_cvtfp64tofp32rtz2(tarn_double2 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfp64tofp32rtz2) TARN_CONST;
tarn_float3 TARN_CALL __ocl_tarn_k1_cvtfp64tofp32rtz3(tarn_double3 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfp64tofp32rtz3) TARN_CONST;
tarn_float4 TARN_CALL __ocl_tarn_k1_cvtfp64tofp32rtz4(tarn_double4 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfp64tofp32rtz4) TARN_CONST;
tarn_float8 TARN_CALL __ocl_tarn_k1_cvtfp64tofp32rtz8(tarn_double8 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfp64tofp32rtz8) TARN_CONST;
tarn_float16 TARN_CALL __ocl_tarn_k1_cvtfp64tofp32rtz16(tarn_double16 x) TARN_SYMBOL(__ocl_tarn_k1_cvtfp64tofp32rtz16) TARN_CONST;

#ifdef __cplusplus
}
#endif
#endif
