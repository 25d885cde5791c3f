/* Vector math in OpenCL C: built-in functions of a kernel that includes this are the module's, __ocl_tarn_k1.
 *
 *     #include <ocl_tarn_k1.cl.h>
 *     kernel void k(global float4* x) { size_t i = get_global_id(0); x[i] = pow(sin(x[i]), 2.5f); }
 *
 * sin(x), pow(x, y), native_exp(x), half_log(x), convert_int4_sat_rtz(x), sincos(x, &c) and the others, of every
 * width and in both precisions, then mean tarn_sin(x) and so on: those names are always there, and every export
 * has one. OpenCL C has no name for tarn_divide, tarn_recip, tarn_rcbrt, tarn_nearbyint, tarn_sincosreg, and for
 * most of tarn_native_acos and its like. Conversions without a rounding mode (convert_int4, convert_int4_sat) stay
 * the runtime's.
 *
 * Macros, as options of the build (-D NAME) or before the header:
 *   TARN_ONLY           only what TARN_USE_<name> asks for, as in -D TARN_ONLY -D TARN_USE_sin -D TARN_USE_native_exp;
 *                       of a conversion the name of width 1 (TARN_USE_convert_int_sat_rtz). Programs build faster
 *                       with less, and functions of a few instructions are better left to the runtime.
 *   TARN_PREFIXED_ONLY  OpenCL's own names stay the runtime's: sin(x) beside tarn_sin(x).
 *
 * For runtimes on x86-64 that compile kernels with clang in the process that runs them. The module has to be in
 * the process's global scope before a kernel runs: dlopen("__ocl_tarn_k1.so", RTLD_NOW | RTLD_GLOBAL), or linked.
 * Each function here stands for a jump to its export; that jump is a definition, so that a runtime which resolves
 * nothing but its own built-ins takes it, and is bound when the kernel's code is loaded. Second results may be
 * written to any address space.
 *
 * Generated from the table of families by tarn-exports; edit the table. */
#ifndef OCL_TARN_K1_CL_H
#define OCL_TARN_K1_CL_H

#if !defined(__x86_64__) || !defined(__clang__)
#error "this header is for OpenCL runtimes that compile for x86-64 with clang"
#endif
#ifdef cl_khr_fp64
#pragma OPENCL EXTENSION cl_khr_fp64 : enable
#endif

#define TARN_INLINE static inline __attribute__((always_inline))
#define TARN_OVERLOAD static inline __attribute__((always_inline, overloadable))
#define TARN_JUMP static inline __attribute__((naked))
#define TARN_PURE static inline __attribute__((naked, const))

/* Vectors as C passes them: a vector beyond 16 bytes would change its registers with the target. ------- */
typedef float tarn_c_float1;
#define tarn_pack_float1(x) (x)
#define tarn_lanes_float1(c) (c)
typedef float2 tarn_c_float2;
#define tarn_pack_float2(x) (x)
#define tarn_lanes_float2(c) (c)
typedef float4 tarn_c_float3;
#define tarn_pack_float3(x) as_float4(x)
#define tarn_lanes_float3(c) as_float3(c)
typedef float4 tarn_c_float4;
#define tarn_pack_float4(x) (x)
#define tarn_lanes_float4(c) (c)
typedef struct { float4 block[2]; } tarn_c_float8;
TARN_INLINE tarn_c_float8 tarn_pack_float8(float8 x) {
    tarn_c_float8 c = {{x.s0123, x.s4567}}; return c; }
TARN_INLINE float8 tarn_lanes_float8(tarn_c_float8 c) {
    return (float8)(c.block[0], c.block[1]); }
typedef struct { float4 block[4]; } tarn_c_float16;
TARN_INLINE tarn_c_float16 tarn_pack_float16(float16 x) {
    tarn_c_float16 c = {{x.s0123, x.s4567, x.s89ab, x.scdef}}; return c; }
TARN_INLINE float16 tarn_lanes_float16(tarn_c_float16 c) {
    return (float16)(c.block[0], c.block[1], c.block[2], c.block[3]); }
#ifdef cl_khr_fp64
typedef double tarn_c_double1;
#define tarn_pack_double1(x) (x)
#define tarn_lanes_double1(c) (c)
typedef double2 tarn_c_double2;
#define tarn_pack_double2(x) (x)
#define tarn_lanes_double2(c) (c)
typedef struct { double2 block[2]; } tarn_c_double3;
TARN_INLINE tarn_c_double3 tarn_pack_double3(double3 x) { tarn_c_double3 c = {{x.s01, x.s22}}; return c; }
TARN_INLINE double3 tarn_lanes_double3(tarn_c_double3 c) { return (double3)(c.block[0], c.block[1].x); }
typedef struct { double2 block[2]; } tarn_c_double4;
TARN_INLINE tarn_c_double4 tarn_pack_double4(double4 x) {
    tarn_c_double4 c = {{x.s01, x.s23}}; return c; }
TARN_INLINE double4 tarn_lanes_double4(tarn_c_double4 c) {
    return (double4)(c.block[0], c.block[1]); }
typedef struct { double2 block[4]; } tarn_c_double8;
TARN_INLINE tarn_c_double8 tarn_pack_double8(double8 x) {
    tarn_c_double8 c = {{x.s01, x.s23, x.s45, x.s67}}; return c; }
TARN_INLINE double8 tarn_lanes_double8(tarn_c_double8 c) {
    return (double8)(c.block[0], c.block[1], c.block[2], c.block[3]); }
typedef struct { double2 block[8]; } tarn_c_double16;
TARN_INLINE tarn_c_double16 tarn_pack_double16(double16 x) {
    tarn_c_double16 c = {{x.s01, x.s23, x.s45, x.s67, x.s89, x.sab, x.scd, x.sef}}; return c; }
TARN_INLINE double16 tarn_lanes_double16(tarn_c_double16 c) {
    return (double16)(c.block[0], c.block[1], c.block[2], c.block[3], c.block[4], c.block[5], c.block[6], c.block[7]); }
#endif
typedef int tarn_c_int1;
#define tarn_pack_int1(x) (x)
#define tarn_lanes_int1(c) (c)
typedef int2 tarn_c_int2;
#define tarn_pack_int2(x) (x)
#define tarn_lanes_int2(c) (c)
typedef int4 tarn_c_int3;
#define tarn_pack_int3(x) as_int4(x)
#define tarn_lanes_int3(c) as_int3(c)
typedef int4 tarn_c_int4;
#define tarn_pack_int4(x) (x)
#define tarn_lanes_int4(c) (c)
typedef struct { int4 block[2]; } tarn_c_int8;
TARN_INLINE tarn_c_int8 tarn_pack_int8(int8 x) {
    tarn_c_int8 c = {{x.s0123, x.s4567}}; return c; }
TARN_INLINE int8 tarn_lanes_int8(tarn_c_int8 c) {
    return (int8)(c.block[0], c.block[1]); }
typedef struct { int4 block[4]; } tarn_c_int16;
TARN_INLINE tarn_c_int16 tarn_pack_int16(int16 x) {
    tarn_c_int16 c = {{x.s0123, x.s4567, x.s89ab, x.scdef}}; return c; }
TARN_INLINE int16 tarn_lanes_int16(tarn_c_int16 c) {
    return (int16)(c.block[0], c.block[1], c.block[2], c.block[3]); }
typedef uint tarn_c_uint1;
#define tarn_pack_uint1(x) (x)
#define tarn_lanes_uint1(c) (c)
typedef uint2 tarn_c_uint2;
#define tarn_pack_uint2(x) (x)
#define tarn_lanes_uint2(c) (c)
typedef uint4 tarn_c_uint3;
#define tarn_pack_uint3(x) as_uint4(x)
#define tarn_lanes_uint3(c) as_uint3(c)
typedef uint4 tarn_c_uint4;
#define tarn_pack_uint4(x) (x)
#define tarn_lanes_uint4(c) (c)
typedef struct { uint4 block[2]; } tarn_c_uint8;
TARN_INLINE tarn_c_uint8 tarn_pack_uint8(uint8 x) {
    tarn_c_uint8 c = {{x.s0123, x.s4567}}; return c; }
TARN_INLINE uint8 tarn_lanes_uint8(tarn_c_uint8 c) {
    return (uint8)(c.block[0], c.block[1]); }
typedef struct { uint4 block[4]; } tarn_c_uint16;
TARN_INLINE tarn_c_uint16 tarn_pack_uint16(uint16 x) {
    tarn_c_uint16 c = {{x.s0123, x.s4567, x.s89ab, x.scdef}}; return c; }
TARN_INLINE uint16 tarn_lanes_uint16(tarn_c_uint16 c) {
    return (uint16)(c.block[0], c.block[1], c.block[2], c.block[3]); }
typedef long tarn_c_long1;
#define tarn_pack_long1(x) (x)
#define tarn_lanes_long1(c) (c)
typedef long2 tarn_c_long2;
#define tarn_pack_long2(x) (x)
#define tarn_lanes_long2(c) (c)
typedef struct { long2 block[2]; } tarn_c_long3;
TARN_INLINE tarn_c_long3 tarn_pack_long3(long3 x) { tarn_c_long3 c = {{x.s01, x.s22}}; return c; }
TARN_INLINE long3 tarn_lanes_long3(tarn_c_long3 c) { return (long3)(c.block[0], c.block[1].x); }
typedef struct { long2 block[2]; } tarn_c_long4;
TARN_INLINE tarn_c_long4 tarn_pack_long4(long4 x) {
    tarn_c_long4 c = {{x.s01, x.s23}}; return c; }
TARN_INLINE long4 tarn_lanes_long4(tarn_c_long4 c) {
    return (long4)(c.block[0], c.block[1]); }
typedef struct { long2 block[4]; } tarn_c_long8;
TARN_INLINE tarn_c_long8 tarn_pack_long8(long8 x) {
    tarn_c_long8 c = {{x.s01, x.s23, x.s45, x.s67}}; return c; }
TARN_INLINE long8 tarn_lanes_long8(tarn_c_long8 c) {
    return (long8)(c.block[0], c.block[1], c.block[2], c.block[3]); }
typedef struct { long2 block[8]; } tarn_c_long16;
TARN_INLINE tarn_c_long16 tarn_pack_long16(long16 x) {
    tarn_c_long16 c = {{x.s01, x.s23, x.s45, x.s67, x.s89, x.sab, x.scd, x.sef}}; return c; }
TARN_INLINE long16 tarn_lanes_long16(tarn_c_long16 c) {
    return (long16)(c.block[0], c.block[1], c.block[2], c.block[3], c.block[4], c.block[5], c.block[6], c.block[7]); }
typedef ulong tarn_c_ulong1;
#define tarn_pack_ulong1(x) (x)
#define tarn_lanes_ulong1(c) (c)
typedef ulong2 tarn_c_ulong2;
#define tarn_pack_ulong2(x) (x)
#define tarn_lanes_ulong2(c) (c)
typedef struct { ulong2 block[2]; } tarn_c_ulong3;
TARN_INLINE tarn_c_ulong3 tarn_pack_ulong3(ulong3 x) { tarn_c_ulong3 c = {{x.s01, x.s22}}; return c; }
TARN_INLINE ulong3 tarn_lanes_ulong3(tarn_c_ulong3 c) { return (ulong3)(c.block[0], c.block[1].x); }
typedef struct { ulong2 block[2]; } tarn_c_ulong4;
TARN_INLINE tarn_c_ulong4 tarn_pack_ulong4(ulong4 x) {
    tarn_c_ulong4 c = {{x.s01, x.s23}}; return c; }
TARN_INLINE ulong4 tarn_lanes_ulong4(tarn_c_ulong4 c) {
    return (ulong4)(c.block[0], c.block[1]); }
typedef struct { ulong2 block[4]; } tarn_c_ulong8;
TARN_INLINE tarn_c_ulong8 tarn_pack_ulong8(ulong8 x) {
    tarn_c_ulong8 c = {{x.s01, x.s23, x.s45, x.s67}}; return c; }
TARN_INLINE ulong8 tarn_lanes_ulong8(tarn_c_ulong8 c) {
    return (ulong8)(c.block[0], c.block[1], c.block[2], c.block[3]); }
typedef struct { ulong2 block[8]; } tarn_c_ulong16;
TARN_INLINE tarn_c_ulong16 tarn_pack_ulong16(ulong16 x) {
    tarn_c_ulong16 c = {{x.s01, x.s23, x.s45, x.s67, x.s89, x.sab, x.scd, x.sef}}; return c; }
TARN_INLINE ulong16 tarn_lanes_ulong16(tarn_c_ulong16 c) {
    return (ulong16)(c.block[0], c.block[1], c.block[2], c.block[3], c.block[4], c.block[5], c.block[6], c.block[7]); }
/* Sine and cosine together, as a function returns them and as they travel. */
typedef struct { float sine, cosine; } tarn_sincos_float1;
typedef struct { tarn_c_float1 sine, cosine; } tarn_both_float1;
typedef struct { float2 sine, cosine; } tarn_sincos_float2;
typedef struct { tarn_c_float2 sine, cosine; } tarn_both_float2;
typedef struct { float3 sine, cosine; } tarn_sincos_float3;
typedef struct { tarn_c_float3 sine, cosine; } tarn_both_float3;
typedef struct { float4 sine, cosine; } tarn_sincos_float4;
typedef struct { tarn_c_float4 sine, cosine; } tarn_both_float4;
typedef struct { float8 sine, cosine; } tarn_sincos_float8;
typedef struct { tarn_c_float8 sine, cosine; } tarn_both_float8;
typedef struct { float16 sine, cosine; } tarn_sincos_float16;
typedef struct { tarn_c_float16 sine, cosine; } tarn_both_float16;
#ifdef cl_khr_fp64
typedef struct { double sine, cosine; } tarn_sincos_double1;
typedef struct { tarn_c_double1 sine, cosine; } tarn_both_double1;
typedef struct { double2 sine, cosine; } tarn_sincos_double2;
typedef struct { tarn_c_double2 sine, cosine; } tarn_both_double2;
typedef struct { double3 sine, cosine; } tarn_sincos_double3;
typedef struct { tarn_c_double3 sine, cosine; } tarn_both_double3;
typedef struct { double4 sine, cosine; } tarn_sincos_double4;
typedef struct { tarn_c_double4 sine, cosine; } tarn_both_double4;
typedef struct { double8 sine, cosine; } tarn_sincos_double8;
typedef struct { tarn_c_double8 sine, cosine; } tarn_both_double8;
typedef struct { double16 sine, cosine; } tarn_sincos_double16;
typedef struct { tarn_c_double16 sine, cosine; } tarn_both_double16;
#endif

/* A function at one width: the jump, and the overload over it. E is the export's name without width and form, N the
 * width, V the width as types are spelled (nothing for 1). ------------------------------------------- */
#define TARN_TO(E, N, F) { __asm__("jmp " #E #N #F "@PLT"); }
#define TARN_1(NAME, E, F, N, V, R, A) \
    TARN_PURE tarn_c_##R##N tarn_to##E##N##F(tarn_c_##A##N x) TARN_TO(E, N, F) \
    TARN_OVERLOAD R##V NAME(A##V x) { return tarn_lanes_##R##N(tarn_to##E##N##F(tarn_pack_##A##N(x))); }
#define TARN_2(NAME, E, F, N, V, R, A, B) \
    TARN_PURE tarn_c_##R##N tarn_to##E##N##F(tarn_c_##A##N x, tarn_c_##B##N y) TARN_TO(E, N, F) \
    TARN_OVERLOAD R##V NAME(A##V x, B##V y) { \
        return tarn_lanes_##R##N(tarn_to##E##N##F(tarn_pack_##A##N(x), tarn_pack_##B##N(y))); }
#define TARN_3(NAME, E, F, N, V, R, A, B, C) \
    TARN_PURE tarn_c_##R##N tarn_to##E##N##F(tarn_c_##A##N x, tarn_c_##B##N y, tarn_c_##C##N z) TARN_TO(E, N, F) \
    TARN_OVERLOAD R##V NAME(A##V x, B##V y, C##V z) { \
        return tarn_lanes_##R##N(tarn_to##E##N##F(tarn_pack_##A##N(x), tarn_pack_##B##N(y), tarn_pack_##C##N(z))); }
/* Both results returned. */
#define TARN_PAIR(NAME, E, F, N, V, R, A) \
    TARN_PURE tarn_both_##R##N tarn_to##E##N##F(tarn_c_##A##N x) TARN_TO(E, N, F) \
    TARN_OVERLOAD tarn_sincos_##R##N NAME(A##V x) { \
        const tarn_both_##R##N both = tarn_to##E##N##F(tarn_pack_##A##N(x)); \
        const tarn_sincos_##R##N r = {tarn_lanes_##R##N(both.sine), tarn_lanes_##R##N(both.cosine)}; \
        return r; }
/* A second result goes to a carrier first: width 3 is written with four lanes, and other address spaces have other
 * pointers. */
#define TARN_SECOND_1(SPACE, NAME, E, F, N, V, R, A, S) \
    TARN_OVERLOAD R##V NAME(A##V x, SPACE S##V* second) { \
        tarn_c_##S##N s; \
        const R##V r = tarn_lanes_##R##N(tarn_to##E##N##F(tarn_pack_##A##N(x), &s)); \
        *second = tarn_lanes_##S##N(s); \
        return r; }
#define TARN_SECOND_2(SPACE, NAME, E, F, N, V, R, A, B, S) \
    TARN_OVERLOAD R##V NAME(A##V x, B##V y, SPACE S##V* second) { \
        tarn_c_##S##N s; \
        const R##V r = tarn_lanes_##R##N(tarn_to##E##N##F(tarn_pack_##A##N(x), tarn_pack_##B##N(y), &s)); \
        *second = tarn_lanes_##S##N(s); \
        return r; }
#if defined(__opencl_c_generic_address_space) || __OPENCL_C_VERSION__ == 200
#define TARN_EVERY_SPACE(M, ...) M(__global, __VA_ARGS__) M(__local, __VA_ARGS__) M(__private, __VA_ARGS__) \
    M(__generic, __VA_ARGS__)
#else
#define TARN_EVERY_SPACE(M, ...) M(__global, __VA_ARGS__) M(__local, __VA_ARGS__) M(__private, __VA_ARGS__)
#endif
#define TARN_1_SECOND(NAME, E, F, N, V, R, A, S) \
    TARN_JUMP tarn_c_##R##N tarn_to##E##N##F(tarn_c_##A##N x, __private tarn_c_##S##N* second) TARN_TO(E, N, F) \
    TARN_EVERY_SPACE(TARN_SECOND_1, NAME, E, F, N, V, R, A, S)
#define TARN_2_SECOND(NAME, E, F, N, V, R, A, B, S) \
    TARN_JUMP tarn_c_##R##N tarn_to##E##N##F(tarn_c_##A##N x, tarn_c_##B##N y, __private tarn_c_##S##N* second) \
        TARN_TO(E, N, F) \
    TARN_EVERY_SPACE(TARN_SECOND_2, NAME, E, F, N, V, R, A, B, S)
/* OpenCL C has these also with a scalar beside a vector. */
#define TARN_SCALAR(NAME, V, T, B) TARN_OVERLOAD T##V NAME(T##V x, B y) { return NAME(x, (B##V)(y)); }
#define TARN_WITH_SCALAR(NAME, T, B) TARN_SCALAR(NAME, 2, T, B) TARN_SCALAR(NAME, 3, T, B) TARN_SCALAR(NAME, 4, T, B) \
    TARN_SCALAR(NAME, 8, T, B) TARN_SCALAR(NAME, 16, T, B)
/* Every width. */
#define TARN_ALL(M, NAME, E, F, ...) M(NAME, E, F, 1, , __VA_ARGS__) M(NAME, E, F, 2, 2, __VA_ARGS__) \
    M(NAME, E, F, 3, 3, __VA_ARGS__) M(NAME, E, F, 4, 4, __VA_ARGS__) M(NAME, E, F, 8, 8, __VA_ARGS__) \
    M(NAME, E, F, 16, 16, __VA_ARGS__)
#define TARN_CONVERT(R, TAIL, E, A) \
    TARN_1(tarn_convert_##R##TAIL, E, , 1, , R, A) TARN_1(tarn_convert_##R##2##TAIL, E, , 2, 2, R, A) \
    TARN_1(tarn_convert_##R##3##TAIL, E, , 3, 3, R, A) TARN_1(tarn_convert_##R##4##TAIL, E, , 4, 4, R, A) \
    TARN_1(tarn_convert_##R##8##TAIL, E, , 8, 8, R, A) TARN_1(tarn_convert_##R##16##TAIL, E, , 16, 16, R, A)
/* Sources that the module has no conversion for keep the runtime's. */
#define TARN_KEEP_1(R, TAIL, V, A) \
    TARN_OVERLOAD R##V tarn_convert_##R##V##TAIL(A##V x) { return convert_##R##V##TAIL(x); }
#define TARN_KEEP(R, TAIL, A) TARN_KEEP_1(R, TAIL, , A) TARN_KEEP_1(R, TAIL, 2, A) TARN_KEEP_1(R, TAIL, 3, A) \
    TARN_KEEP_1(R, TAIL, 4, A) TARN_KEEP_1(R, TAIL, 8, A) TARN_KEEP_1(R, TAIL, 16, A)

/* Exponentials ------------------------------------------------------------------------------------ */
#if !defined(TARN_ONLY) || defined(TARN_USE_exp)
TARN_ALL(TARN_1, tarn_exp, __ocl_tarn_k1_expf, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_exp, __ocl_tarn_k1_exp, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_exp)
TARN_ALL(TARN_1, tarn_native_exp, __ocl_tarn_k1_expf, _native, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_native_exp, __ocl_tarn_k1_exp, _native, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_half_exp)
TARN_ALL(TARN_1, tarn_half_exp, __ocl_tarn_k1_expf, _half, float, float)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_exp2)
TARN_ALL(TARN_1, tarn_exp2, __ocl_tarn_k1_exp2f, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_exp2, __ocl_tarn_k1_exp2, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_exp2)
TARN_ALL(TARN_1, tarn_native_exp2, __ocl_tarn_k1_exp2f, _native, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_native_exp2, __ocl_tarn_k1_exp2, _native, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_half_exp2)
TARN_ALL(TARN_1, tarn_half_exp2, __ocl_tarn_k1_exp2f, _half, float, float)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_exp10)
TARN_ALL(TARN_1, tarn_exp10, __ocl_tarn_k1_exp10f, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_exp10, __ocl_tarn_k1_exp10, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_exp10)
TARN_ALL(TARN_1, tarn_native_exp10, __ocl_tarn_k1_exp10f, _native, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_native_exp10, __ocl_tarn_k1_exp10, _native, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_half_exp10)
TARN_ALL(TARN_1, tarn_half_exp10, __ocl_tarn_k1_exp10f, _half, float, float)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_expm1)
TARN_ALL(TARN_1, tarn_expm1, __ocl_tarn_k1_expm1f, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_expm1, __ocl_tarn_k1_expm1, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_expm1)
TARN_ALL(TARN_1, tarn_native_expm1, __ocl_tarn_k1_expm1f, _native, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_native_expm1, __ocl_tarn_k1_expm1, _native, double, double)
#endif
#endif

/* Logarithms -------------------------------------------------------------------------------------- */
#if !defined(TARN_ONLY) || defined(TARN_USE_log)
TARN_ALL(TARN_1, tarn_log, __ocl_tarn_k1_logf, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_log, __ocl_tarn_k1_log, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_log)
TARN_ALL(TARN_1, tarn_native_log, __ocl_tarn_k1_logf, _native, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_native_log, __ocl_tarn_k1_log, _native, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_half_log)
TARN_ALL(TARN_1, tarn_half_log, __ocl_tarn_k1_logf, _half, float, float)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_log2)
TARN_ALL(TARN_1, tarn_log2, __ocl_tarn_k1_log2f, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_log2, __ocl_tarn_k1_log2, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_log2)
TARN_ALL(TARN_1, tarn_native_log2, __ocl_tarn_k1_log2f, _native, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_native_log2, __ocl_tarn_k1_log2, _native, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_half_log2)
TARN_ALL(TARN_1, tarn_half_log2, __ocl_tarn_k1_log2f, _half, float, float)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_log10)
TARN_ALL(TARN_1, tarn_log10, __ocl_tarn_k1_log10f, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_log10, __ocl_tarn_k1_log10, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_log10)
TARN_ALL(TARN_1, tarn_native_log10, __ocl_tarn_k1_log10f, _native, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_native_log10, __ocl_tarn_k1_log10, _native, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_half_log10)
TARN_ALL(TARN_1, tarn_half_log10, __ocl_tarn_k1_log10f, _half, float, float)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_log1p)
TARN_ALL(TARN_1, tarn_log1p, __ocl_tarn_k1_log1pf, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_log1p, __ocl_tarn_k1_log1p, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_log1p)
TARN_ALL(TARN_1, tarn_native_log1p, __ocl_tarn_k1_log1pf, _native, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_native_log1p, __ocl_tarn_k1_log1p, _native, double, double)
#endif
#endif

/* Powers ------------------------------------------------------------------------------------------ */
#if !defined(TARN_ONLY) || defined(TARN_USE_pow)
TARN_ALL(TARN_2, tarn_pow, __ocl_tarn_k1_powf, , float, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_2, tarn_pow, __ocl_tarn_k1_pow, , double, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_pow)
TARN_ALL(TARN_2, tarn_native_pow, __ocl_tarn_k1_powf, _native, float, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_2, tarn_native_pow, __ocl_tarn_k1_pow, _native, double, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_powr)
TARN_ALL(TARN_2, tarn_powr, __ocl_tarn_k1_powrf, , float, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_2, tarn_powr, __ocl_tarn_k1_powr, , double, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_powr)
TARN_ALL(TARN_2, tarn_native_powr, __ocl_tarn_k1_powrf, _native, float, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_2, tarn_native_powr, __ocl_tarn_k1_powr, _native, double, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_half_powr)
TARN_ALL(TARN_2, tarn_half_powr, __ocl_tarn_k1_powrf, _half, float, float, float)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_pown)
TARN_ALL(TARN_2, tarn_pown, __ocl_tarn_k1_pownf, , float, float, int)
#ifdef cl_khr_fp64
TARN_ALL(TARN_2, tarn_pown, __ocl_tarn_k1_pown, , double, double, int)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_pown)
TARN_ALL(TARN_2, tarn_native_pown, __ocl_tarn_k1_pownf, _native, float, float, int)
#ifdef cl_khr_fp64
TARN_ALL(TARN_2, tarn_native_pown, __ocl_tarn_k1_pown, _native, double, double, int)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_rootn)
TARN_ALL(TARN_2, tarn_rootn, __ocl_tarn_k1_rootnf, , float, float, int)
#ifdef cl_khr_fp64
TARN_ALL(TARN_2, tarn_rootn, __ocl_tarn_k1_rootn, , double, double, int)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_rootn)
TARN_ALL(TARN_2, tarn_native_rootn, __ocl_tarn_k1_rootnf, _native, float, float, int)
#ifdef cl_khr_fp64
TARN_ALL(TARN_2, tarn_native_rootn, __ocl_tarn_k1_rootn, _native, double, double, int)
#endif
#endif

/* Division and roots ------------------------------------------------------------------------------ */
#if !defined(TARN_ONLY) || defined(TARN_USE_divide)
TARN_ALL(TARN_2, tarn_divide, __ocl_tarn_k1_divf, , float, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_2, tarn_divide, __ocl_tarn_k1_div, , double, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_divide)
TARN_ALL(TARN_2, tarn_native_divide, __ocl_tarn_k1_divf, _native, float, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_2, tarn_native_divide, __ocl_tarn_k1_div, _native, double, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_half_divide)
TARN_ALL(TARN_2, tarn_half_divide, __ocl_tarn_k1_divf, _half, float, float, float)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_recip)
TARN_ALL(TARN_1, tarn_recip, __ocl_tarn_k1_invf, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_recip, __ocl_tarn_k1_inv, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_recip)
TARN_ALL(TARN_1, tarn_native_recip, __ocl_tarn_k1_invf, _native, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_native_recip, __ocl_tarn_k1_inv, _native, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_half_recip)
TARN_ALL(TARN_1, tarn_half_recip, __ocl_tarn_k1_invf, _half, float, float)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_sqrt)
TARN_ALL(TARN_1, tarn_sqrt, __ocl_tarn_k1_sqrtf, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_sqrt, __ocl_tarn_k1_sqrt, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_sqrt)
TARN_ALL(TARN_1, tarn_native_sqrt, __ocl_tarn_k1_sqrtf, _native, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_native_sqrt, __ocl_tarn_k1_sqrt, _native, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_half_sqrt)
TARN_ALL(TARN_1, tarn_half_sqrt, __ocl_tarn_k1_sqrtf, _half, float, float)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_rsqrt)
TARN_ALL(TARN_1, tarn_rsqrt, __ocl_tarn_k1_rsqrtf, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_rsqrt, __ocl_tarn_k1_rsqrt, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_rsqrt)
TARN_ALL(TARN_1, tarn_native_rsqrt, __ocl_tarn_k1_rsqrtf, _native, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_native_rsqrt, __ocl_tarn_k1_rsqrt, _native, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_half_rsqrt)
TARN_ALL(TARN_1, tarn_half_rsqrt, __ocl_tarn_k1_rsqrtf, _half, float, float)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_cbrt)
TARN_ALL(TARN_1, tarn_cbrt, __ocl_tarn_k1_cbrtf, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_cbrt, __ocl_tarn_k1_cbrt, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_cbrt)
TARN_ALL(TARN_1, tarn_native_cbrt, __ocl_tarn_k1_cbrtf, _native, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_native_cbrt, __ocl_tarn_k1_cbrt, _native, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_rcbrt)
TARN_ALL(TARN_1, tarn_rcbrt, __ocl_tarn_k1_rcbrtf, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_rcbrt, __ocl_tarn_k1_rcbrt, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_rcbrt)
TARN_ALL(TARN_1, tarn_native_rcbrt, __ocl_tarn_k1_rcbrtf, _native, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_native_rcbrt, __ocl_tarn_k1_rcbrt, _native, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_hypot)
TARN_ALL(TARN_2, tarn_hypot, __ocl_tarn_k1_hypotf, , float, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_2, tarn_hypot, __ocl_tarn_k1_hypot, , double, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_hypot)
TARN_ALL(TARN_2, tarn_native_hypot, __ocl_tarn_k1_hypotf, _native, float, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_2, tarn_native_hypot, __ocl_tarn_k1_hypot, _native, double, double, double)
#endif
#endif

/* Trigonometry ------------------------------------------------------------------------------------ */
#if !defined(TARN_ONLY) || defined(TARN_USE_sin)
TARN_ALL(TARN_1, tarn_sin, __ocl_tarn_k1_sinf, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_sin, __ocl_tarn_k1_sin, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_sin)
TARN_ALL(TARN_1, tarn_native_sin, __ocl_tarn_k1_sinf, _native, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_native_sin, __ocl_tarn_k1_sin, _native, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_half_sin)
TARN_ALL(TARN_1, tarn_half_sin, __ocl_tarn_k1_sinf, _half, float, float)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_cos)
TARN_ALL(TARN_1, tarn_cos, __ocl_tarn_k1_cosf, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_cos, __ocl_tarn_k1_cos, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_cos)
TARN_ALL(TARN_1, tarn_native_cos, __ocl_tarn_k1_cosf, _native, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_native_cos, __ocl_tarn_k1_cos, _native, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_half_cos)
TARN_ALL(TARN_1, tarn_half_cos, __ocl_tarn_k1_cosf, _half, float, float)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_sincos)
TARN_ALL(TARN_1_SECOND, tarn_sincos, __ocl_tarn_k1_sincosf, , float, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1_SECOND, tarn_sincos, __ocl_tarn_k1_sincos, , double, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_sincos)
TARN_ALL(TARN_1_SECOND, tarn_native_sincos, __ocl_tarn_k1_sincosf, _native, float, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1_SECOND, tarn_native_sincos, __ocl_tarn_k1_sincos, _native, double, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_sincosreg)
TARN_ALL(TARN_PAIR, tarn_sincosreg, __ocl_tarn_k1_sincosregf, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_PAIR, tarn_sincosreg, __ocl_tarn_k1_sincosreg, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_sincosreg)
TARN_ALL(TARN_PAIR, tarn_native_sincosreg, __ocl_tarn_k1_sincosregf, _native, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_PAIR, tarn_native_sincosreg, __ocl_tarn_k1_sincosreg, _native, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_tan)
TARN_ALL(TARN_1, tarn_tan, __ocl_tarn_k1_tanf, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_tan, __ocl_tarn_k1_tan, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_tan)
TARN_ALL(TARN_1, tarn_native_tan, __ocl_tarn_k1_tanf, _native, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_native_tan, __ocl_tarn_k1_tan, _native, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_half_tan)
TARN_ALL(TARN_1, tarn_half_tan, __ocl_tarn_k1_tanf, _half, float, float)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_sinpi)
TARN_ALL(TARN_1, tarn_sinpi, __ocl_tarn_k1_sinpif, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_sinpi, __ocl_tarn_k1_sinpi, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_sinpi)
TARN_ALL(TARN_1, tarn_native_sinpi, __ocl_tarn_k1_sinpif, _native, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_native_sinpi, __ocl_tarn_k1_sinpi, _native, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_cospi)
TARN_ALL(TARN_1, tarn_cospi, __ocl_tarn_k1_cospif, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_cospi, __ocl_tarn_k1_cospi, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_cospi)
TARN_ALL(TARN_1, tarn_native_cospi, __ocl_tarn_k1_cospif, _native, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_native_cospi, __ocl_tarn_k1_cospi, _native, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_tanpi)
TARN_ALL(TARN_1, tarn_tanpi, __ocl_tarn_k1_tanpif, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_tanpi, __ocl_tarn_k1_tanpi, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_tanpi)
TARN_ALL(TARN_1, tarn_native_tanpi, __ocl_tarn_k1_tanpif, _native, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_native_tanpi, __ocl_tarn_k1_tanpi, _native, double, double)
#endif
#endif

/* Inverse trigonometry ---------------------------------------------------------------------------- */
#if !defined(TARN_ONLY) || defined(TARN_USE_asin)
TARN_ALL(TARN_1, tarn_asin, __ocl_tarn_k1_asinf, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_asin, __ocl_tarn_k1_asin, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_asin)
TARN_ALL(TARN_1, tarn_native_asin, __ocl_tarn_k1_asinf, _native, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_native_asin, __ocl_tarn_k1_asin, _native, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_acos)
TARN_ALL(TARN_1, tarn_acos, __ocl_tarn_k1_acosf, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_acos, __ocl_tarn_k1_acos, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_acos)
TARN_ALL(TARN_1, tarn_native_acos, __ocl_tarn_k1_acosf, _native, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_native_acos, __ocl_tarn_k1_acos, _native, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_atan)
TARN_ALL(TARN_1, tarn_atan, __ocl_tarn_k1_atanf, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_atan, __ocl_tarn_k1_atan, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_atan)
TARN_ALL(TARN_1, tarn_native_atan, __ocl_tarn_k1_atanf, _native, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_native_atan, __ocl_tarn_k1_atan, _native, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_atan2)
TARN_ALL(TARN_2, tarn_atan2, __ocl_tarn_k1_atan2f, , float, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_2, tarn_atan2, __ocl_tarn_k1_atan2, , double, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_atan2)
TARN_ALL(TARN_2, tarn_native_atan2, __ocl_tarn_k1_atan2f, _native, float, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_2, tarn_native_atan2, __ocl_tarn_k1_atan2, _native, double, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_asinpi)
TARN_ALL(TARN_1, tarn_asinpi, __ocl_tarn_k1_asinpif, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_asinpi, __ocl_tarn_k1_asinpi, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_asinpi)
TARN_ALL(TARN_1, tarn_native_asinpi, __ocl_tarn_k1_asinpif, _native, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_native_asinpi, __ocl_tarn_k1_asinpi, _native, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_acospi)
TARN_ALL(TARN_1, tarn_acospi, __ocl_tarn_k1_acospif, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_acospi, __ocl_tarn_k1_acospi, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_acospi)
TARN_ALL(TARN_1, tarn_native_acospi, __ocl_tarn_k1_acospif, _native, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_native_acospi, __ocl_tarn_k1_acospi, _native, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_atanpi)
TARN_ALL(TARN_1, tarn_atanpi, __ocl_tarn_k1_atanpif, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_atanpi, __ocl_tarn_k1_atanpi, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_atanpi)
TARN_ALL(TARN_1, tarn_native_atanpi, __ocl_tarn_k1_atanpif, _native, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_native_atanpi, __ocl_tarn_k1_atanpi, _native, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_atan2pi)
TARN_ALL(TARN_2, tarn_atan2pi, __ocl_tarn_k1_atan2pif, , float, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_2, tarn_atan2pi, __ocl_tarn_k1_atan2pi, , double, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_atan2pi)
TARN_ALL(TARN_2, tarn_native_atan2pi, __ocl_tarn_k1_atan2pif, _native, float, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_2, tarn_native_atan2pi, __ocl_tarn_k1_atan2pi, _native, double, double, double)
#endif
#endif

/* Hyperbolic functions ---------------------------------------------------------------------------- */
#if !defined(TARN_ONLY) || defined(TARN_USE_sinh)
TARN_ALL(TARN_1, tarn_sinh, __ocl_tarn_k1_sinhf, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_sinh, __ocl_tarn_k1_sinh, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_sinh)
TARN_ALL(TARN_1, tarn_native_sinh, __ocl_tarn_k1_sinhf, _native, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_native_sinh, __ocl_tarn_k1_sinh, _native, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_cosh)
TARN_ALL(TARN_1, tarn_cosh, __ocl_tarn_k1_coshf, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_cosh, __ocl_tarn_k1_cosh, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_cosh)
TARN_ALL(TARN_1, tarn_native_cosh, __ocl_tarn_k1_coshf, _native, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_native_cosh, __ocl_tarn_k1_cosh, _native, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_tanh)
TARN_ALL(TARN_1, tarn_tanh, __ocl_tarn_k1_tanhf, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_tanh, __ocl_tarn_k1_tanh, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_tanh)
TARN_ALL(TARN_1, tarn_native_tanh, __ocl_tarn_k1_tanhf, _native, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_native_tanh, __ocl_tarn_k1_tanh, _native, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_asinh)
TARN_ALL(TARN_1, tarn_asinh, __ocl_tarn_k1_asinhf, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_asinh, __ocl_tarn_k1_asinh, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_asinh)
TARN_ALL(TARN_1, tarn_native_asinh, __ocl_tarn_k1_asinhf, _native, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_native_asinh, __ocl_tarn_k1_asinh, _native, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_acosh)
TARN_ALL(TARN_1, tarn_acosh, __ocl_tarn_k1_acoshf, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_acosh, __ocl_tarn_k1_acosh, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_acosh)
TARN_ALL(TARN_1, tarn_native_acosh, __ocl_tarn_k1_acoshf, _native, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_native_acosh, __ocl_tarn_k1_acosh, _native, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_atanh)
TARN_ALL(TARN_1, tarn_atanh, __ocl_tarn_k1_atanhf, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_atanh, __ocl_tarn_k1_atanh, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_atanh)
TARN_ALL(TARN_1, tarn_native_atanh, __ocl_tarn_k1_atanhf, _native, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_native_atanh, __ocl_tarn_k1_atanh, _native, double, double)
#endif
#endif

/* Error and gamma functions ----------------------------------------------------------------------- */
#if !defined(TARN_ONLY) || defined(TARN_USE_erf)
TARN_ALL(TARN_1, tarn_erf, __ocl_tarn_k1_erff, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_erf, __ocl_tarn_k1_erf, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_erf)
TARN_ALL(TARN_1, tarn_native_erf, __ocl_tarn_k1_erff, _native, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_native_erf, __ocl_tarn_k1_erf, _native, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_erfc)
TARN_ALL(TARN_1, tarn_erfc, __ocl_tarn_k1_erfcf, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_erfc, __ocl_tarn_k1_erfc, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_erfc)
TARN_ALL(TARN_1, tarn_native_erfc, __ocl_tarn_k1_erfcf, _native, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_native_erfc, __ocl_tarn_k1_erfc, _native, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_tgamma)
TARN_ALL(TARN_1, tarn_tgamma, __ocl_tarn_k1_tgammaf, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_tgamma, __ocl_tarn_k1_tgamma, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_lgamma)
TARN_ALL(TARN_1, tarn_lgamma, __ocl_tarn_k1_lgammaf, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_lgamma, __ocl_tarn_k1_lgamma, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_lgamma_r)
TARN_ALL(TARN_1_SECOND, tarn_lgamma_r, __ocl_tarn_k1_lgammarf, , float, float, int)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1_SECOND, tarn_lgamma_r, __ocl_tarn_k1_lgammar, , double, double, int)
#endif
#endif

/* Rounding, sign and bit-level functions ---------------------------------------------------------- */
#if !defined(TARN_ONLY) || defined(TARN_USE_ceil)
TARN_ALL(TARN_1, tarn_ceil, __ocl_tarn_k1_ceilf, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_ceil, __ocl_tarn_k1_ceil, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_floor)
TARN_ALL(TARN_1, tarn_floor, __ocl_tarn_k1_floorf, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_floor, __ocl_tarn_k1_floor, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_trunc)
TARN_ALL(TARN_1, tarn_trunc, __ocl_tarn_k1_truncf, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_trunc, __ocl_tarn_k1_trunc, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_rint)
TARN_ALL(TARN_1, tarn_rint, __ocl_tarn_k1_rintf, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_rint, __ocl_tarn_k1_rint, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_nearbyint)
TARN_ALL(TARN_1, tarn_nearbyint, __ocl_tarn_k1_nearbyintf, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_nearbyint, __ocl_tarn_k1_nearbyint, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_round)
TARN_ALL(TARN_1, tarn_round, __ocl_tarn_k1_roundf, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_round, __ocl_tarn_k1_round, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_fabs)
TARN_ALL(TARN_1, tarn_fabs, __ocl_tarn_k1_fabsf, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_fabs, __ocl_tarn_k1_fabs, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_copysign)
TARN_ALL(TARN_2, tarn_copysign, __ocl_tarn_k1_copysignf, , float, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_2, tarn_copysign, __ocl_tarn_k1_copysign, , double, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_nan)
TARN_ALL(TARN_1, tarn_nan, __ocl_tarn_k1_nanf, , float, uint)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_nan, __ocl_tarn_k1_nan, , double, ulong)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_fmin)
TARN_ALL(TARN_2, tarn_fmin, __ocl_tarn_k1_fminf, , float, float, float) TARN_WITH_SCALAR(tarn_fmin, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_2, tarn_fmin, __ocl_tarn_k1_fmin, , double, double, double) TARN_WITH_SCALAR(tarn_fmin, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_fmax)
TARN_ALL(TARN_2, tarn_fmax, __ocl_tarn_k1_fmaxf, , float, float, float) TARN_WITH_SCALAR(tarn_fmax, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_2, tarn_fmax, __ocl_tarn_k1_fmax, , double, double, double) TARN_WITH_SCALAR(tarn_fmax, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_maxmag)
TARN_ALL(TARN_2, tarn_maxmag, __ocl_tarn_k1_maxmagf, , float, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_2, tarn_maxmag, __ocl_tarn_k1_maxmag, , double, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_minmag)
TARN_ALL(TARN_2, tarn_minmag, __ocl_tarn_k1_minmagf, , float, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_2, tarn_minmag, __ocl_tarn_k1_minmag, , double, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_fdim)
TARN_ALL(TARN_2, tarn_fdim, __ocl_tarn_k1_fdimf, , float, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_2, tarn_fdim, __ocl_tarn_k1_fdim, , double, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_frexp)
TARN_ALL(TARN_1_SECOND, tarn_frexp, __ocl_tarn_k1_frexpf, , float, float, int)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1_SECOND, tarn_frexp, __ocl_tarn_k1_frexp, , double, double, int)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_ilogb)
TARN_ALL(TARN_1, tarn_ilogb, __ocl_tarn_k1_ilogbf, , int, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_ilogb, __ocl_tarn_k1_ilogb, , int, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_logb)
TARN_ALL(TARN_1, tarn_logb, __ocl_tarn_k1_logbf, , float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1, tarn_logb, __ocl_tarn_k1_logb, , double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_fract)
TARN_ALL(TARN_1_SECOND, tarn_fract, __ocl_tarn_k1_fractf, , float, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1_SECOND, tarn_fract, __ocl_tarn_k1_fract, , double, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_modf)
TARN_ALL(TARN_1_SECOND, tarn_modf, __ocl_tarn_k1_modff, , float, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_1_SECOND, tarn_modf, __ocl_tarn_k1_modf, , double, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_ldexp)
TARN_ALL(TARN_2, tarn_ldexp, __ocl_tarn_k1_ldexpf, , float, float, int) TARN_WITH_SCALAR(tarn_ldexp, float, int)
#ifdef cl_khr_fp64
TARN_ALL(TARN_2, tarn_ldexp, __ocl_tarn_k1_ldexp, , double, double, int) TARN_WITH_SCALAR(tarn_ldexp, double, int)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_nextafter)
TARN_ALL(TARN_2, tarn_nextafter, __ocl_tarn_k1_nextafterf, , float, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_2, tarn_nextafter, __ocl_tarn_k1_nextafter, , double, double, double)
#endif
#endif

/* Remainders and multiply-add --------------------------------------------------------------------- */
#if !defined(TARN_ONLY) || defined(TARN_USE_fmod)
TARN_ALL(TARN_2, tarn_fmod, __ocl_tarn_k1_fmodf, , float, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_2, tarn_fmod, __ocl_tarn_k1_fmod, , double, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_remainder)
TARN_ALL(TARN_2, tarn_remainder, __ocl_tarn_k1_remainderf, , float, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_2, tarn_remainder, __ocl_tarn_k1_remainder, , double, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_remquo)
TARN_ALL(TARN_2_SECOND, tarn_remquo, __ocl_tarn_k1_remquof, , float, float, float, int)
#ifdef cl_khr_fp64
TARN_ALL(TARN_2_SECOND, tarn_remquo, __ocl_tarn_k1_remquo, , double, double, double, int)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_mad)
TARN_ALL(TARN_3, tarn_mad, __ocl_tarn_k1_madf, , float, float, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_3, tarn_mad, __ocl_tarn_k1_mad, , double, double, double, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_fma)
TARN_ALL(TARN_3, tarn_fma, __ocl_tarn_k1_fmaf, , float, float, float, float)
#ifdef cl_khr_fp64
TARN_ALL(TARN_3, tarn_fma, __ocl_tarn_k1_fma, , double, double, double, double)
#endif
#endif

/* Conversions ------------------------------------------------------------------------------------- */
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_int_sat_rte)
TARN_CONVERT(int, _sat_rte, __ocl_tarn_k1_cvtfptoi32rtesatf, float)
#ifdef cl_khr_fp64
TARN_CONVERT(int, _sat_rte, __ocl_tarn_k1_cvtfptoi32rtesat, double)
#endif
TARN_KEEP(int, _sat_rte, char)
TARN_KEEP(int, _sat_rte, uchar)
TARN_KEEP(int, _sat_rte, short)
TARN_KEEP(int, _sat_rte, ushort)
TARN_KEEP(int, _sat_rte, int)
TARN_KEEP(int, _sat_rte, uint)
TARN_KEEP(int, _sat_rte, long)
TARN_KEEP(int, _sat_rte, ulong)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_int_rte)
TARN_CONVERT(int, _rte, __ocl_tarn_k1_cvtfptoi32rtenosatf, float)
#ifdef cl_khr_fp64
TARN_CONVERT(int, _rte, __ocl_tarn_k1_cvtfptoi32rtenosat, double)
#endif
TARN_KEEP(int, _rte, char)
TARN_KEEP(int, _rte, uchar)
TARN_KEEP(int, _rte, short)
TARN_KEEP(int, _rte, ushort)
TARN_KEEP(int, _rte, int)
TARN_KEEP(int, _rte, uint)
TARN_KEEP(int, _rte, long)
TARN_KEEP(int, _rte, ulong)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_int_sat_rtn)
TARN_CONVERT(int, _sat_rtn, __ocl_tarn_k1_cvtfptoi32rtnsatf, float)
#ifdef cl_khr_fp64
TARN_CONVERT(int, _sat_rtn, __ocl_tarn_k1_cvtfptoi32rtnsat, double)
#endif
TARN_KEEP(int, _sat_rtn, char)
TARN_KEEP(int, _sat_rtn, uchar)
TARN_KEEP(int, _sat_rtn, short)
TARN_KEEP(int, _sat_rtn, ushort)
TARN_KEEP(int, _sat_rtn, int)
TARN_KEEP(int, _sat_rtn, uint)
TARN_KEEP(int, _sat_rtn, long)
TARN_KEEP(int, _sat_rtn, ulong)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_int_rtn)
TARN_CONVERT(int, _rtn, __ocl_tarn_k1_cvtfptoi32rtnnosatf, float)
#ifdef cl_khr_fp64
TARN_CONVERT(int, _rtn, __ocl_tarn_k1_cvtfptoi32rtnnosat, double)
#endif
TARN_KEEP(int, _rtn, char)
TARN_KEEP(int, _rtn, uchar)
TARN_KEEP(int, _rtn, short)
TARN_KEEP(int, _rtn, ushort)
TARN_KEEP(int, _rtn, int)
TARN_KEEP(int, _rtn, uint)
TARN_KEEP(int, _rtn, long)
TARN_KEEP(int, _rtn, ulong)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_int_sat_rtp)
TARN_CONVERT(int, _sat_rtp, __ocl_tarn_k1_cvtfptoi32rtpsatf, float)
#ifdef cl_khr_fp64
TARN_CONVERT(int, _sat_rtp, __ocl_tarn_k1_cvtfptoi32rtpsat, double)
#endif
TARN_KEEP(int, _sat_rtp, char)
TARN_KEEP(int, _sat_rtp, uchar)
TARN_KEEP(int, _sat_rtp, short)
TARN_KEEP(int, _sat_rtp, ushort)
TARN_KEEP(int, _sat_rtp, int)
TARN_KEEP(int, _sat_rtp, uint)
TARN_KEEP(int, _sat_rtp, long)
TARN_KEEP(int, _sat_rtp, ulong)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_int_rtp)
TARN_CONVERT(int, _rtp, __ocl_tarn_k1_cvtfptoi32rtpnosatf, float)
#ifdef cl_khr_fp64
TARN_CONVERT(int, _rtp, __ocl_tarn_k1_cvtfptoi32rtpnosat, double)
#endif
TARN_KEEP(int, _rtp, char)
TARN_KEEP(int, _rtp, uchar)
TARN_KEEP(int, _rtp, short)
TARN_KEEP(int, _rtp, ushort)
TARN_KEEP(int, _rtp, int)
TARN_KEEP(int, _rtp, uint)
TARN_KEEP(int, _rtp, long)
TARN_KEEP(int, _rtp, ulong)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_int_sat_rtz)
TARN_CONVERT(int, _sat_rtz, __ocl_tarn_k1_cvtfptoi32rtzsatf, float)
#ifdef cl_khr_fp64
TARN_CONVERT(int, _sat_rtz, __ocl_tarn_k1_cvtfptoi32rtzsat, double)
#endif
TARN_KEEP(int, _sat_rtz, char)
TARN_KEEP(int, _sat_rtz, uchar)
TARN_KEEP(int, _sat_rtz, short)
TARN_KEEP(int, _sat_rtz, ushort)
TARN_KEEP(int, _sat_rtz, int)
TARN_KEEP(int, _sat_rtz, uint)
TARN_KEEP(int, _sat_rtz, long)
TARN_KEEP(int, _sat_rtz, ulong)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_int_rtz)
TARN_CONVERT(int, _rtz, __ocl_tarn_k1_cvtfptoi32rtznosatf, float)
#ifdef cl_khr_fp64
TARN_CONVERT(int, _rtz, __ocl_tarn_k1_cvtfptoi32rtznosat, double)
#endif
TARN_KEEP(int, _rtz, char)
TARN_KEEP(int, _rtz, uchar)
TARN_KEEP(int, _rtz, short)
TARN_KEEP(int, _rtz, ushort)
TARN_KEEP(int, _rtz, int)
TARN_KEEP(int, _rtz, uint)
TARN_KEEP(int, _rtz, long)
TARN_KEEP(int, _rtz, ulong)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_uint_sat_rte)
TARN_CONVERT(uint, _sat_rte, __ocl_tarn_k1_cvtfptou32rtesatf, float)
#ifdef cl_khr_fp64
TARN_CONVERT(uint, _sat_rte, __ocl_tarn_k1_cvtfptou32rtesat, double)
#endif
TARN_KEEP(uint, _sat_rte, char)
TARN_KEEP(uint, _sat_rte, uchar)
TARN_KEEP(uint, _sat_rte, short)
TARN_KEEP(uint, _sat_rte, ushort)
TARN_KEEP(uint, _sat_rte, int)
TARN_KEEP(uint, _sat_rte, uint)
TARN_KEEP(uint, _sat_rte, long)
TARN_KEEP(uint, _sat_rte, ulong)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_uint_rte)
TARN_CONVERT(uint, _rte, __ocl_tarn_k1_cvtfptou32rtenosatf, float)
#ifdef cl_khr_fp64
TARN_CONVERT(uint, _rte, __ocl_tarn_k1_cvtfptou32rtenosat, double)
#endif
TARN_KEEP(uint, _rte, char)
TARN_KEEP(uint, _rte, uchar)
TARN_KEEP(uint, _rte, short)
TARN_KEEP(uint, _rte, ushort)
TARN_KEEP(uint, _rte, int)
TARN_KEEP(uint, _rte, uint)
TARN_KEEP(uint, _rte, long)
TARN_KEEP(uint, _rte, ulong)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_uint_sat_rtn)
TARN_CONVERT(uint, _sat_rtn, __ocl_tarn_k1_cvtfptou32rtnsatf, float)
#ifdef cl_khr_fp64
TARN_CONVERT(uint, _sat_rtn, __ocl_tarn_k1_cvtfptou32rtnsat, double)
#endif
TARN_KEEP(uint, _sat_rtn, char)
TARN_KEEP(uint, _sat_rtn, uchar)
TARN_KEEP(uint, _sat_rtn, short)
TARN_KEEP(uint, _sat_rtn, ushort)
TARN_KEEP(uint, _sat_rtn, int)
TARN_KEEP(uint, _sat_rtn, uint)
TARN_KEEP(uint, _sat_rtn, long)
TARN_KEEP(uint, _sat_rtn, ulong)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_uint_rtn)
TARN_CONVERT(uint, _rtn, __ocl_tarn_k1_cvtfptou32rtnnosatf, float)
#ifdef cl_khr_fp64
TARN_CONVERT(uint, _rtn, __ocl_tarn_k1_cvtfptou32rtnnosat, double)
#endif
TARN_KEEP(uint, _rtn, char)
TARN_KEEP(uint, _rtn, uchar)
TARN_KEEP(uint, _rtn, short)
TARN_KEEP(uint, _rtn, ushort)
TARN_KEEP(uint, _rtn, int)
TARN_KEEP(uint, _rtn, uint)
TARN_KEEP(uint, _rtn, long)
TARN_KEEP(uint, _rtn, ulong)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_uint_sat_rtp)
TARN_CONVERT(uint, _sat_rtp, __ocl_tarn_k1_cvtfptou32rtpsatf, float)
#ifdef cl_khr_fp64
TARN_CONVERT(uint, _sat_rtp, __ocl_tarn_k1_cvtfptou32rtpsat, double)
#endif
TARN_KEEP(uint, _sat_rtp, char)
TARN_KEEP(uint, _sat_rtp, uchar)
TARN_KEEP(uint, _sat_rtp, short)
TARN_KEEP(uint, _sat_rtp, ushort)
TARN_KEEP(uint, _sat_rtp, int)
TARN_KEEP(uint, _sat_rtp, uint)
TARN_KEEP(uint, _sat_rtp, long)
TARN_KEEP(uint, _sat_rtp, ulong)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_uint_rtp)
TARN_CONVERT(uint, _rtp, __ocl_tarn_k1_cvtfptou32rtpnosatf, float)
#ifdef cl_khr_fp64
TARN_CONVERT(uint, _rtp, __ocl_tarn_k1_cvtfptou32rtpnosat, double)
#endif
TARN_KEEP(uint, _rtp, char)
TARN_KEEP(uint, _rtp, uchar)
TARN_KEEP(uint, _rtp, short)
TARN_KEEP(uint, _rtp, ushort)
TARN_KEEP(uint, _rtp, int)
TARN_KEEP(uint, _rtp, uint)
TARN_KEEP(uint, _rtp, long)
TARN_KEEP(uint, _rtp, ulong)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_uint_sat_rtz)
TARN_CONVERT(uint, _sat_rtz, __ocl_tarn_k1_cvtfptou32rtzsatf, float)
#ifdef cl_khr_fp64
TARN_CONVERT(uint, _sat_rtz, __ocl_tarn_k1_cvtfptou32rtzsat, double)
#endif
TARN_KEEP(uint, _sat_rtz, char)
TARN_KEEP(uint, _sat_rtz, uchar)
TARN_KEEP(uint, _sat_rtz, short)
TARN_KEEP(uint, _sat_rtz, ushort)
TARN_KEEP(uint, _sat_rtz, int)
TARN_KEEP(uint, _sat_rtz, uint)
TARN_KEEP(uint, _sat_rtz, long)
TARN_KEEP(uint, _sat_rtz, ulong)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_uint_rtz)
TARN_CONVERT(uint, _rtz, __ocl_tarn_k1_cvtfptou32rtznosatf, float)
#ifdef cl_khr_fp64
TARN_CONVERT(uint, _rtz, __ocl_tarn_k1_cvtfptou32rtznosat, double)
#endif
TARN_KEEP(uint, _rtz, char)
TARN_KEEP(uint, _rtz, uchar)
TARN_KEEP(uint, _rtz, short)
TARN_KEEP(uint, _rtz, ushort)
TARN_KEEP(uint, _rtz, int)
TARN_KEEP(uint, _rtz, uint)
TARN_KEEP(uint, _rtz, long)
TARN_KEEP(uint, _rtz, ulong)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_long_sat_rte)
TARN_CONVERT(long, _sat_rte, __ocl_tarn_k1_cvtfptoi64rtesatf, float)
#ifdef cl_khr_fp64
TARN_CONVERT(long, _sat_rte, __ocl_tarn_k1_cvtfptoi64rtesat, double)
#endif
TARN_KEEP(long, _sat_rte, char)
TARN_KEEP(long, _sat_rte, uchar)
TARN_KEEP(long, _sat_rte, short)
TARN_KEEP(long, _sat_rte, ushort)
TARN_KEEP(long, _sat_rte, int)
TARN_KEEP(long, _sat_rte, uint)
TARN_KEEP(long, _sat_rte, long)
TARN_KEEP(long, _sat_rte, ulong)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_long_rte)
TARN_CONVERT(long, _rte, __ocl_tarn_k1_cvtfptoi64rtenosatf, float)
#ifdef cl_khr_fp64
TARN_CONVERT(long, _rte, __ocl_tarn_k1_cvtfptoi64rtenosat, double)
#endif
TARN_KEEP(long, _rte, char)
TARN_KEEP(long, _rte, uchar)
TARN_KEEP(long, _rte, short)
TARN_KEEP(long, _rte, ushort)
TARN_KEEP(long, _rte, int)
TARN_KEEP(long, _rte, uint)
TARN_KEEP(long, _rte, long)
TARN_KEEP(long, _rte, ulong)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_long_sat_rtn)
TARN_CONVERT(long, _sat_rtn, __ocl_tarn_k1_cvtfptoi64rtnsatf, float)
#ifdef cl_khr_fp64
TARN_CONVERT(long, _sat_rtn, __ocl_tarn_k1_cvtfptoi64rtnsat, double)
#endif
TARN_KEEP(long, _sat_rtn, char)
TARN_KEEP(long, _sat_rtn, uchar)
TARN_KEEP(long, _sat_rtn, short)
TARN_KEEP(long, _sat_rtn, ushort)
TARN_KEEP(long, _sat_rtn, int)
TARN_KEEP(long, _sat_rtn, uint)
TARN_KEEP(long, _sat_rtn, long)
TARN_KEEP(long, _sat_rtn, ulong)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_long_rtn)
TARN_CONVERT(long, _rtn, __ocl_tarn_k1_cvtfptoi64rtnnosatf, float)
#ifdef cl_khr_fp64
TARN_CONVERT(long, _rtn, __ocl_tarn_k1_cvtfptoi64rtnnosat, double)
#endif
TARN_KEEP(long, _rtn, char)
TARN_KEEP(long, _rtn, uchar)
TARN_KEEP(long, _rtn, short)
TARN_KEEP(long, _rtn, ushort)
TARN_KEEP(long, _rtn, int)
TARN_KEEP(long, _rtn, uint)
TARN_KEEP(long, _rtn, long)
TARN_KEEP(long, _rtn, ulong)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_long_sat_rtp)
TARN_CONVERT(long, _sat_rtp, __ocl_tarn_k1_cvtfptoi64rtpsatf, float)
#ifdef cl_khr_fp64
TARN_CONVERT(long, _sat_rtp, __ocl_tarn_k1_cvtfptoi64rtpsat, double)
#endif
TARN_KEEP(long, _sat_rtp, char)
TARN_KEEP(long, _sat_rtp, uchar)
TARN_KEEP(long, _sat_rtp, short)
TARN_KEEP(long, _sat_rtp, ushort)
TARN_KEEP(long, _sat_rtp, int)
TARN_KEEP(long, _sat_rtp, uint)
TARN_KEEP(long, _sat_rtp, long)
TARN_KEEP(long, _sat_rtp, ulong)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_long_rtp)
TARN_CONVERT(long, _rtp, __ocl_tarn_k1_cvtfptoi64rtpnosatf, float)
#ifdef cl_khr_fp64
TARN_CONVERT(long, _rtp, __ocl_tarn_k1_cvtfptoi64rtpnosat, double)
#endif
TARN_KEEP(long, _rtp, char)
TARN_KEEP(long, _rtp, uchar)
TARN_KEEP(long, _rtp, short)
TARN_KEEP(long, _rtp, ushort)
TARN_KEEP(long, _rtp, int)
TARN_KEEP(long, _rtp, uint)
TARN_KEEP(long, _rtp, long)
TARN_KEEP(long, _rtp, ulong)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_long_sat_rtz)
TARN_CONVERT(long, _sat_rtz, __ocl_tarn_k1_cvtfptoi64rtzsatf, float)
#ifdef cl_khr_fp64
TARN_CONVERT(long, _sat_rtz, __ocl_tarn_k1_cvtfptoi64rtzsat, double)
#endif
TARN_KEEP(long, _sat_rtz, char)
TARN_KEEP(long, _sat_rtz, uchar)
TARN_KEEP(long, _sat_rtz, short)
TARN_KEEP(long, _sat_rtz, ushort)
TARN_KEEP(long, _sat_rtz, int)
TARN_KEEP(long, _sat_rtz, uint)
TARN_KEEP(long, _sat_rtz, long)
TARN_KEEP(long, _sat_rtz, ulong)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_long_rtz)
TARN_CONVERT(long, _rtz, __ocl_tarn_k1_cvtfptoi64rtznosatf, float)
#ifdef cl_khr_fp64
TARN_CONVERT(long, _rtz, __ocl_tarn_k1_cvtfptoi64rtznosat, double)
#endif
TARN_KEEP(long, _rtz, char)
TARN_KEEP(long, _rtz, uchar)
TARN_KEEP(long, _rtz, short)
TARN_KEEP(long, _rtz, ushort)
TARN_KEEP(long, _rtz, int)
TARN_KEEP(long, _rtz, uint)
TARN_KEEP(long, _rtz, long)
TARN_KEEP(long, _rtz, ulong)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_ulong_sat_rte)
TARN_CONVERT(ulong, _sat_rte, __ocl_tarn_k1_cvtfptou64rtesatf, float)
#ifdef cl_khr_fp64
TARN_CONVERT(ulong, _sat_rte, __ocl_tarn_k1_cvtfptou64rtesat, double)
#endif
TARN_KEEP(ulong, _sat_rte, char)
TARN_KEEP(ulong, _sat_rte, uchar)
TARN_KEEP(ulong, _sat_rte, short)
TARN_KEEP(ulong, _sat_rte, ushort)
TARN_KEEP(ulong, _sat_rte, int)
TARN_KEEP(ulong, _sat_rte, uint)
TARN_KEEP(ulong, _sat_rte, long)
TARN_KEEP(ulong, _sat_rte, ulong)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_ulong_rte)
TARN_CONVERT(ulong, _rte, __ocl_tarn_k1_cvtfptou64rtenosatf, float)
#ifdef cl_khr_fp64
TARN_CONVERT(ulong, _rte, __ocl_tarn_k1_cvtfptou64rtenosat, double)
#endif
TARN_KEEP(ulong, _rte, char)
TARN_KEEP(ulong, _rte, uchar)
TARN_KEEP(ulong, _rte, short)
TARN_KEEP(ulong, _rte, ushort)
TARN_KEEP(ulong, _rte, int)
TARN_KEEP(ulong, _rte, uint)
TARN_KEEP(ulong, _rte, long)
TARN_KEEP(ulong, _rte, ulong)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_ulong_sat_rtn)
TARN_CONVERT(ulong, _sat_rtn, __ocl_tarn_k1_cvtfptou64rtnsatf, float)
#ifdef cl_khr_fp64
TARN_CONVERT(ulong, _sat_rtn, __ocl_tarn_k1_cvtfptou64rtnsat, double)
#endif
TARN_KEEP(ulong, _sat_rtn, char)
TARN_KEEP(ulong, _sat_rtn, uchar)
TARN_KEEP(ulong, _sat_rtn, short)
TARN_KEEP(ulong, _sat_rtn, ushort)
TARN_KEEP(ulong, _sat_rtn, int)
TARN_KEEP(ulong, _sat_rtn, uint)
TARN_KEEP(ulong, _sat_rtn, long)
TARN_KEEP(ulong, _sat_rtn, ulong)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_ulong_rtn)
TARN_CONVERT(ulong, _rtn, __ocl_tarn_k1_cvtfptou64rtnnosatf, float)
#ifdef cl_khr_fp64
TARN_CONVERT(ulong, _rtn, __ocl_tarn_k1_cvtfptou64rtnnosat, double)
#endif
TARN_KEEP(ulong, _rtn, char)
TARN_KEEP(ulong, _rtn, uchar)
TARN_KEEP(ulong, _rtn, short)
TARN_KEEP(ulong, _rtn, ushort)
TARN_KEEP(ulong, _rtn, int)
TARN_KEEP(ulong, _rtn, uint)
TARN_KEEP(ulong, _rtn, long)
TARN_KEEP(ulong, _rtn, ulong)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_ulong_sat_rtp)
TARN_CONVERT(ulong, _sat_rtp, __ocl_tarn_k1_cvtfptou64rtpsatf, float)
#ifdef cl_khr_fp64
TARN_CONVERT(ulong, _sat_rtp, __ocl_tarn_k1_cvtfptou64rtpsat, double)
#endif
TARN_KEEP(ulong, _sat_rtp, char)
TARN_KEEP(ulong, _sat_rtp, uchar)
TARN_KEEP(ulong, _sat_rtp, short)
TARN_KEEP(ulong, _sat_rtp, ushort)
TARN_KEEP(ulong, _sat_rtp, int)
TARN_KEEP(ulong, _sat_rtp, uint)
TARN_KEEP(ulong, _sat_rtp, long)
TARN_KEEP(ulong, _sat_rtp, ulong)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_ulong_rtp)
TARN_CONVERT(ulong, _rtp, __ocl_tarn_k1_cvtfptou64rtpnosatf, float)
#ifdef cl_khr_fp64
TARN_CONVERT(ulong, _rtp, __ocl_tarn_k1_cvtfptou64rtpnosat, double)
#endif
TARN_KEEP(ulong, _rtp, char)
TARN_KEEP(ulong, _rtp, uchar)
TARN_KEEP(ulong, _rtp, short)
TARN_KEEP(ulong, _rtp, ushort)
TARN_KEEP(ulong, _rtp, int)
TARN_KEEP(ulong, _rtp, uint)
TARN_KEEP(ulong, _rtp, long)
TARN_KEEP(ulong, _rtp, ulong)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_ulong_sat_rtz)
TARN_CONVERT(ulong, _sat_rtz, __ocl_tarn_k1_cvtfptou64rtzsatf, float)
#ifdef cl_khr_fp64
TARN_CONVERT(ulong, _sat_rtz, __ocl_tarn_k1_cvtfptou64rtzsat, double)
#endif
TARN_KEEP(ulong, _sat_rtz, char)
TARN_KEEP(ulong, _sat_rtz, uchar)
TARN_KEEP(ulong, _sat_rtz, short)
TARN_KEEP(ulong, _sat_rtz, ushort)
TARN_KEEP(ulong, _sat_rtz, int)
TARN_KEEP(ulong, _sat_rtz, uint)
TARN_KEEP(ulong, _sat_rtz, long)
TARN_KEEP(ulong, _sat_rtz, ulong)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_ulong_rtz)
TARN_CONVERT(ulong, _rtz, __ocl_tarn_k1_cvtfptou64rtznosatf, float)
#ifdef cl_khr_fp64
TARN_CONVERT(ulong, _rtz, __ocl_tarn_k1_cvtfptou64rtznosat, double)
#endif
TARN_KEEP(ulong, _rtz, char)
TARN_KEEP(ulong, _rtz, uchar)
TARN_KEEP(ulong, _rtz, short)
TARN_KEEP(ulong, _rtz, ushort)
TARN_KEEP(ulong, _rtz, int)
TARN_KEEP(ulong, _rtz, uint)
TARN_KEEP(ulong, _rtz, long)
TARN_KEEP(ulong, _rtz, ulong)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_float_rte)
TARN_CONVERT(float, _rte, __ocl_tarn_k1_cvti32tofprtef, int)
TARN_CONVERT(float, _rte, __ocl_tarn_k1_cvtu32tofprtef, uint)
TARN_CONVERT(float, _rte, __ocl_tarn_k1_cvti64tofprtef, long)
TARN_CONVERT(float, _rte, __ocl_tarn_k1_cvtu64tofprtef, ulong)
#ifdef cl_khr_fp64
TARN_CONVERT(float, _rte, __ocl_tarn_k1_cvtfp64tofp32rte, double)
#endif
TARN_KEEP(float, _rte, char)
TARN_KEEP(float, _rte, uchar)
TARN_KEEP(float, _rte, short)
TARN_KEEP(float, _rte, ushort)
TARN_KEEP(float, _rte, float)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_float_rtn)
TARN_CONVERT(float, _rtn, __ocl_tarn_k1_cvti32tofprtnf, int)
TARN_CONVERT(float, _rtn, __ocl_tarn_k1_cvtu32tofprtnf, uint)
TARN_CONVERT(float, _rtn, __ocl_tarn_k1_cvti64tofprtnf, long)
TARN_CONVERT(float, _rtn, __ocl_tarn_k1_cvtu64tofprtnf, ulong)
#ifdef cl_khr_fp64
TARN_CONVERT(float, _rtn, __ocl_tarn_k1_cvtfp64tofp32rtn, double)
#endif
TARN_KEEP(float, _rtn, char)
TARN_KEEP(float, _rtn, uchar)
TARN_KEEP(float, _rtn, short)
TARN_KEEP(float, _rtn, ushort)
TARN_KEEP(float, _rtn, float)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_float_rtp)
TARN_CONVERT(float, _rtp, __ocl_tarn_k1_cvti32tofprtpf, int)
TARN_CONVERT(float, _rtp, __ocl_tarn_k1_cvtu32tofprtpf, uint)
TARN_CONVERT(float, _rtp, __ocl_tarn_k1_cvti64tofprtpf, long)
TARN_CONVERT(float, _rtp, __ocl_tarn_k1_cvtu64tofprtpf, ulong)
#ifdef cl_khr_fp64
TARN_CONVERT(float, _rtp, __ocl_tarn_k1_cvtfp64tofp32rtp, double)
#endif
TARN_KEEP(float, _rtp, char)
TARN_KEEP(float, _rtp, uchar)
TARN_KEEP(float, _rtp, short)
TARN_KEEP(float, _rtp, ushort)
TARN_KEEP(float, _rtp, float)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_float_rtz)
TARN_CONVERT(float, _rtz, __ocl_tarn_k1_cvti32tofprtzf, int)
TARN_CONVERT(float, _rtz, __ocl_tarn_k1_cvtu32tofprtzf, uint)
TARN_CONVERT(float, _rtz, __ocl_tarn_k1_cvti64tofprtzf, long)
TARN_CONVERT(float, _rtz, __ocl_tarn_k1_cvtu64tofprtzf, ulong)
#ifdef cl_khr_fp64
TARN_CONVERT(float, _rtz, __ocl_tarn_k1_cvtfp64tofp32rtz, double)
#endif
TARN_KEEP(float, _rtz, char)
TARN_KEEP(float, _rtz, uchar)
TARN_KEEP(float, _rtz, short)
TARN_KEEP(float, _rtz, ushort)
TARN_KEEP(float, _rtz, float)
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_double_rte)
#ifdef cl_khr_fp64
TARN_CONVERT(double, _rte, __ocl_tarn_k1_cvti32tofprte, int)
TARN_CONVERT(double, _rte, __ocl_tarn_k1_cvtu32tofprte, uint)
TARN_CONVERT(double, _rte, __ocl_tarn_k1_cvti64tofprte, long)
TARN_CONVERT(double, _rte, __ocl_tarn_k1_cvtu64tofprte, ulong)
#endif
#ifdef cl_khr_fp64
TARN_KEEP(double, _rte, char)
TARN_KEEP(double, _rte, uchar)
TARN_KEEP(double, _rte, short)
TARN_KEEP(double, _rte, ushort)
TARN_KEEP(double, _rte, float)
TARN_KEEP(double, _rte, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_double_rtn)
#ifdef cl_khr_fp64
TARN_CONVERT(double, _rtn, __ocl_tarn_k1_cvti32tofprtn, int)
TARN_CONVERT(double, _rtn, __ocl_tarn_k1_cvtu32tofprtn, uint)
TARN_CONVERT(double, _rtn, __ocl_tarn_k1_cvti64tofprtn, long)
TARN_CONVERT(double, _rtn, __ocl_tarn_k1_cvtu64tofprtn, ulong)
#endif
#ifdef cl_khr_fp64
TARN_KEEP(double, _rtn, char)
TARN_KEEP(double, _rtn, uchar)
TARN_KEEP(double, _rtn, short)
TARN_KEEP(double, _rtn, ushort)
TARN_KEEP(double, _rtn, float)
TARN_KEEP(double, _rtn, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_double_rtp)
#ifdef cl_khr_fp64
TARN_CONVERT(double, _rtp, __ocl_tarn_k1_cvti32tofprtp, int)
TARN_CONVERT(double, _rtp, __ocl_tarn_k1_cvtu32tofprtp, uint)
TARN_CONVERT(double, _rtp, __ocl_tarn_k1_cvti64tofprtp, long)
TARN_CONVERT(double, _rtp, __ocl_tarn_k1_cvtu64tofprtp, ulong)
#endif
#ifdef cl_khr_fp64
TARN_KEEP(double, _rtp, char)
TARN_KEEP(double, _rtp, uchar)
TARN_KEEP(double, _rtp, short)
TARN_KEEP(double, _rtp, ushort)
TARN_KEEP(double, _rtp, float)
TARN_KEEP(double, _rtp, double)
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_double_rtz)
#ifdef cl_khr_fp64
TARN_CONVERT(double, _rtz, __ocl_tarn_k1_cvti32tofprtz, int)
TARN_CONVERT(double, _rtz, __ocl_tarn_k1_cvtu32tofprtz, uint)
TARN_CONVERT(double, _rtz, __ocl_tarn_k1_cvti64tofprtz, long)
TARN_CONVERT(double, _rtz, __ocl_tarn_k1_cvtu64tofprtz, ulong)
#endif
#ifdef cl_khr_fp64
TARN_KEEP(double, _rtz, char)
TARN_KEEP(double, _rtz, uchar)
TARN_KEEP(double, _rtz, short)
TARN_KEEP(double, _rtz, ushort)
TARN_KEEP(double, _rtz, float)
TARN_KEEP(double, _rtz, double)
#endif
#endif

/* OpenCL's own names, once everything that asks the runtime's is defined. ------------------------- */
#ifndef TARN_PREFIXED_ONLY
#if !defined(TARN_ONLY) || defined(TARN_USE_exp)
#undef exp
#define exp tarn_exp
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_exp)
#undef native_exp
#define native_exp tarn_native_exp
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_half_exp)
#undef half_exp
#define half_exp tarn_half_exp
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_exp2)
#undef exp2
#define exp2 tarn_exp2
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_exp2)
#undef native_exp2
#define native_exp2 tarn_native_exp2
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_half_exp2)
#undef half_exp2
#define half_exp2 tarn_half_exp2
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_exp10)
#undef exp10
#define exp10 tarn_exp10
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_exp10)
#undef native_exp10
#define native_exp10 tarn_native_exp10
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_half_exp10)
#undef half_exp10
#define half_exp10 tarn_half_exp10
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_expm1)
#undef expm1
#define expm1 tarn_expm1
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_log)
#undef log
#define log tarn_log
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_log)
#undef native_log
#define native_log tarn_native_log
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_half_log)
#undef half_log
#define half_log tarn_half_log
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_log2)
#undef log2
#define log2 tarn_log2
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_log2)
#undef native_log2
#define native_log2 tarn_native_log2
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_half_log2)
#undef half_log2
#define half_log2 tarn_half_log2
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_log10)
#undef log10
#define log10 tarn_log10
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_log10)
#undef native_log10
#define native_log10 tarn_native_log10
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_half_log10)
#undef half_log10
#define half_log10 tarn_half_log10
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_log1p)
#undef log1p
#define log1p tarn_log1p
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_pow)
#undef pow
#define pow tarn_pow
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_powr)
#undef powr
#define powr tarn_powr
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_powr)
#undef native_powr
#define native_powr tarn_native_powr
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_half_powr)
#undef half_powr
#define half_powr tarn_half_powr
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_pown)
#undef pown
#define pown tarn_pown
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_rootn)
#undef rootn
#define rootn tarn_rootn
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_divide)
#undef native_divide
#define native_divide tarn_native_divide
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_half_divide)
#undef half_divide
#define half_divide tarn_half_divide
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_recip)
#undef native_recip
#define native_recip tarn_native_recip
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_half_recip)
#undef half_recip
#define half_recip tarn_half_recip
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_sqrt)
#undef sqrt
#define sqrt tarn_sqrt
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_sqrt)
#undef native_sqrt
#define native_sqrt tarn_native_sqrt
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_half_sqrt)
#undef half_sqrt
#define half_sqrt tarn_half_sqrt
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_rsqrt)
#undef rsqrt
#define rsqrt tarn_rsqrt
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_rsqrt)
#undef native_rsqrt
#define native_rsqrt tarn_native_rsqrt
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_half_rsqrt)
#undef half_rsqrt
#define half_rsqrt tarn_half_rsqrt
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_cbrt)
#undef cbrt
#define cbrt tarn_cbrt
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_hypot)
#undef hypot
#define hypot tarn_hypot
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_sin)
#undef sin
#define sin tarn_sin
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_sin)
#undef native_sin
#define native_sin tarn_native_sin
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_half_sin)
#undef half_sin
#define half_sin tarn_half_sin
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_cos)
#undef cos
#define cos tarn_cos
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_cos)
#undef native_cos
#define native_cos tarn_native_cos
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_half_cos)
#undef half_cos
#define half_cos tarn_half_cos
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_sincos)
#undef sincos
#define sincos tarn_sincos
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_tan)
#undef tan
#define tan tarn_tan
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_native_tan)
#undef native_tan
#define native_tan tarn_native_tan
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_half_tan)
#undef half_tan
#define half_tan tarn_half_tan
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_sinpi)
#undef sinpi
#define sinpi tarn_sinpi
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_cospi)
#undef cospi
#define cospi tarn_cospi
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_tanpi)
#undef tanpi
#define tanpi tarn_tanpi
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_asin)
#undef asin
#define asin tarn_asin
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_acos)
#undef acos
#define acos tarn_acos
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_atan)
#undef atan
#define atan tarn_atan
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_atan2)
#undef atan2
#define atan2 tarn_atan2
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_asinpi)
#undef asinpi
#define asinpi tarn_asinpi
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_acospi)
#undef acospi
#define acospi tarn_acospi
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_atanpi)
#undef atanpi
#define atanpi tarn_atanpi
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_atan2pi)
#undef atan2pi
#define atan2pi tarn_atan2pi
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_sinh)
#undef sinh
#define sinh tarn_sinh
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_cosh)
#undef cosh
#define cosh tarn_cosh
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_tanh)
#undef tanh
#define tanh tarn_tanh
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_asinh)
#undef asinh
#define asinh tarn_asinh
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_acosh)
#undef acosh
#define acosh tarn_acosh
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_atanh)
#undef atanh
#define atanh tarn_atanh
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_erf)
#undef erf
#define erf tarn_erf
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_erfc)
#undef erfc
#define erfc tarn_erfc
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_tgamma)
#undef tgamma
#define tgamma tarn_tgamma
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_lgamma)
#undef lgamma
#define lgamma tarn_lgamma
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_lgamma_r)
#undef lgamma_r
#define lgamma_r tarn_lgamma_r
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_ceil)
#undef ceil
#define ceil tarn_ceil
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_floor)
#undef floor
#define floor tarn_floor
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_trunc)
#undef trunc
#define trunc tarn_trunc
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_rint)
#undef rint
#define rint tarn_rint
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_round)
#undef round
#define round tarn_round
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_fabs)
#undef fabs
#define fabs tarn_fabs
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_copysign)
#undef copysign
#define copysign tarn_copysign
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_nan)
#undef nan
#define nan tarn_nan
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_fmin)
#undef fmin
#define fmin tarn_fmin
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_fmax)
#undef fmax
#define fmax tarn_fmax
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_maxmag)
#undef maxmag
#define maxmag tarn_maxmag
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_minmag)
#undef minmag
#define minmag tarn_minmag
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_fdim)
#undef fdim
#define fdim tarn_fdim
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_frexp)
#undef frexp
#define frexp tarn_frexp
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_ilogb)
#undef ilogb
#define ilogb tarn_ilogb
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_logb)
#undef logb
#define logb tarn_logb
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_fract)
#undef fract
#define fract tarn_fract
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_modf)
#undef modf
#define modf tarn_modf
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_ldexp)
#undef ldexp
#define ldexp tarn_ldexp
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_nextafter)
#undef nextafter
#define nextafter tarn_nextafter
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_fmod)
#undef fmod
#define fmod tarn_fmod
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_remainder)
#undef remainder
#define remainder tarn_remainder
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_remquo)
#undef remquo
#define remquo tarn_remquo
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_mad)
#undef mad
#define mad tarn_mad
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_fma)
#undef fma
#define fma tarn_fma
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_int_sat_rte)
#undef convert_int_sat_rte
#define convert_int_sat_rte tarn_convert_int_sat_rte
#undef convert_int2_sat_rte
#define convert_int2_sat_rte tarn_convert_int2_sat_rte
#undef convert_int3_sat_rte
#define convert_int3_sat_rte tarn_convert_int3_sat_rte
#undef convert_int4_sat_rte
#define convert_int4_sat_rte tarn_convert_int4_sat_rte
#undef convert_int8_sat_rte
#define convert_int8_sat_rte tarn_convert_int8_sat_rte
#undef convert_int16_sat_rte
#define convert_int16_sat_rte tarn_convert_int16_sat_rte
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_int_rte)
#undef convert_int_rte
#define convert_int_rte tarn_convert_int_rte
#undef convert_int2_rte
#define convert_int2_rte tarn_convert_int2_rte
#undef convert_int3_rte
#define convert_int3_rte tarn_convert_int3_rte
#undef convert_int4_rte
#define convert_int4_rte tarn_convert_int4_rte
#undef convert_int8_rte
#define convert_int8_rte tarn_convert_int8_rte
#undef convert_int16_rte
#define convert_int16_rte tarn_convert_int16_rte
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_int_sat_rtn)
#undef convert_int_sat_rtn
#define convert_int_sat_rtn tarn_convert_int_sat_rtn
#undef convert_int2_sat_rtn
#define convert_int2_sat_rtn tarn_convert_int2_sat_rtn
#undef convert_int3_sat_rtn
#define convert_int3_sat_rtn tarn_convert_int3_sat_rtn
#undef convert_int4_sat_rtn
#define convert_int4_sat_rtn tarn_convert_int4_sat_rtn
#undef convert_int8_sat_rtn
#define convert_int8_sat_rtn tarn_convert_int8_sat_rtn
#undef convert_int16_sat_rtn
#define convert_int16_sat_rtn tarn_convert_int16_sat_rtn
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_int_rtn)
#undef convert_int_rtn
#define convert_int_rtn tarn_convert_int_rtn
#undef convert_int2_rtn
#define convert_int2_rtn tarn_convert_int2_rtn
#undef convert_int3_rtn
#define convert_int3_rtn tarn_convert_int3_rtn
#undef convert_int4_rtn
#define convert_int4_rtn tarn_convert_int4_rtn
#undef convert_int8_rtn
#define convert_int8_rtn tarn_convert_int8_rtn
#undef convert_int16_rtn
#define convert_int16_rtn tarn_convert_int16_rtn
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_int_sat_rtp)
#undef convert_int_sat_rtp
#define convert_int_sat_rtp tarn_convert_int_sat_rtp
#undef convert_int2_sat_rtp
#define convert_int2_sat_rtp tarn_convert_int2_sat_rtp
#undef convert_int3_sat_rtp
#define convert_int3_sat_rtp tarn_convert_int3_sat_rtp
#undef convert_int4_sat_rtp
#define convert_int4_sat_rtp tarn_convert_int4_sat_rtp
#undef convert_int8_sat_rtp
#define convert_int8_sat_rtp tarn_convert_int8_sat_rtp
#undef convert_int16_sat_rtp
#define convert_int16_sat_rtp tarn_convert_int16_sat_rtp
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_int_rtp)
#undef convert_int_rtp
#define convert_int_rtp tarn_convert_int_rtp
#undef convert_int2_rtp
#define convert_int2_rtp tarn_convert_int2_rtp
#undef convert_int3_rtp
#define convert_int3_rtp tarn_convert_int3_rtp
#undef convert_int4_rtp
#define convert_int4_rtp tarn_convert_int4_rtp
#undef convert_int8_rtp
#define convert_int8_rtp tarn_convert_int8_rtp
#undef convert_int16_rtp
#define convert_int16_rtp tarn_convert_int16_rtp
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_int_sat_rtz)
#undef convert_int_sat_rtz
#define convert_int_sat_rtz tarn_convert_int_sat_rtz
#undef convert_int2_sat_rtz
#define convert_int2_sat_rtz tarn_convert_int2_sat_rtz
#undef convert_int3_sat_rtz
#define convert_int3_sat_rtz tarn_convert_int3_sat_rtz
#undef convert_int4_sat_rtz
#define convert_int4_sat_rtz tarn_convert_int4_sat_rtz
#undef convert_int8_sat_rtz
#define convert_int8_sat_rtz tarn_convert_int8_sat_rtz
#undef convert_int16_sat_rtz
#define convert_int16_sat_rtz tarn_convert_int16_sat_rtz
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_int_rtz)
#undef convert_int_rtz
#define convert_int_rtz tarn_convert_int_rtz
#undef convert_int2_rtz
#define convert_int2_rtz tarn_convert_int2_rtz
#undef convert_int3_rtz
#define convert_int3_rtz tarn_convert_int3_rtz
#undef convert_int4_rtz
#define convert_int4_rtz tarn_convert_int4_rtz
#undef convert_int8_rtz
#define convert_int8_rtz tarn_convert_int8_rtz
#undef convert_int16_rtz
#define convert_int16_rtz tarn_convert_int16_rtz
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_uint_sat_rte)
#undef convert_uint_sat_rte
#define convert_uint_sat_rte tarn_convert_uint_sat_rte
#undef convert_uint2_sat_rte
#define convert_uint2_sat_rte tarn_convert_uint2_sat_rte
#undef convert_uint3_sat_rte
#define convert_uint3_sat_rte tarn_convert_uint3_sat_rte
#undef convert_uint4_sat_rte
#define convert_uint4_sat_rte tarn_convert_uint4_sat_rte
#undef convert_uint8_sat_rte
#define convert_uint8_sat_rte tarn_convert_uint8_sat_rte
#undef convert_uint16_sat_rte
#define convert_uint16_sat_rte tarn_convert_uint16_sat_rte
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_uint_rte)
#undef convert_uint_rte
#define convert_uint_rte tarn_convert_uint_rte
#undef convert_uint2_rte
#define convert_uint2_rte tarn_convert_uint2_rte
#undef convert_uint3_rte
#define convert_uint3_rte tarn_convert_uint3_rte
#undef convert_uint4_rte
#define convert_uint4_rte tarn_convert_uint4_rte
#undef convert_uint8_rte
#define convert_uint8_rte tarn_convert_uint8_rte
#undef convert_uint16_rte
#define convert_uint16_rte tarn_convert_uint16_rte
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_uint_sat_rtn)
#undef convert_uint_sat_rtn
#define convert_uint_sat_rtn tarn_convert_uint_sat_rtn
#undef convert_uint2_sat_rtn
#define convert_uint2_sat_rtn tarn_convert_uint2_sat_rtn
#undef convert_uint3_sat_rtn
#define convert_uint3_sat_rtn tarn_convert_uint3_sat_rtn
#undef convert_uint4_sat_rtn
#define convert_uint4_sat_rtn tarn_convert_uint4_sat_rtn
#undef convert_uint8_sat_rtn
#define convert_uint8_sat_rtn tarn_convert_uint8_sat_rtn
#undef convert_uint16_sat_rtn
#define convert_uint16_sat_rtn tarn_convert_uint16_sat_rtn
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_uint_rtn)
#undef convert_uint_rtn
#define convert_uint_rtn tarn_convert_uint_rtn
#undef convert_uint2_rtn
#define convert_uint2_rtn tarn_convert_uint2_rtn
#undef convert_uint3_rtn
#define convert_uint3_rtn tarn_convert_uint3_rtn
#undef convert_uint4_rtn
#define convert_uint4_rtn tarn_convert_uint4_rtn
#undef convert_uint8_rtn
#define convert_uint8_rtn tarn_convert_uint8_rtn
#undef convert_uint16_rtn
#define convert_uint16_rtn tarn_convert_uint16_rtn
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_uint_sat_rtp)
#undef convert_uint_sat_rtp
#define convert_uint_sat_rtp tarn_convert_uint_sat_rtp
#undef convert_uint2_sat_rtp
#define convert_uint2_sat_rtp tarn_convert_uint2_sat_rtp
#undef convert_uint3_sat_rtp
#define convert_uint3_sat_rtp tarn_convert_uint3_sat_rtp
#undef convert_uint4_sat_rtp
#define convert_uint4_sat_rtp tarn_convert_uint4_sat_rtp
#undef convert_uint8_sat_rtp
#define convert_uint8_sat_rtp tarn_convert_uint8_sat_rtp
#undef convert_uint16_sat_rtp
#define convert_uint16_sat_rtp tarn_convert_uint16_sat_rtp
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_uint_rtp)
#undef convert_uint_rtp
#define convert_uint_rtp tarn_convert_uint_rtp
#undef convert_uint2_rtp
#define convert_uint2_rtp tarn_convert_uint2_rtp
#undef convert_uint3_rtp
#define convert_uint3_rtp tarn_convert_uint3_rtp
#undef convert_uint4_rtp
#define convert_uint4_rtp tarn_convert_uint4_rtp
#undef convert_uint8_rtp
#define convert_uint8_rtp tarn_convert_uint8_rtp
#undef convert_uint16_rtp
#define convert_uint16_rtp tarn_convert_uint16_rtp
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_uint_sat_rtz)
#undef convert_uint_sat_rtz
#define convert_uint_sat_rtz tarn_convert_uint_sat_rtz
#undef convert_uint2_sat_rtz
#define convert_uint2_sat_rtz tarn_convert_uint2_sat_rtz
#undef convert_uint3_sat_rtz
#define convert_uint3_sat_rtz tarn_convert_uint3_sat_rtz
#undef convert_uint4_sat_rtz
#define convert_uint4_sat_rtz tarn_convert_uint4_sat_rtz
#undef convert_uint8_sat_rtz
#define convert_uint8_sat_rtz tarn_convert_uint8_sat_rtz
#undef convert_uint16_sat_rtz
#define convert_uint16_sat_rtz tarn_convert_uint16_sat_rtz
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_uint_rtz)
#undef convert_uint_rtz
#define convert_uint_rtz tarn_convert_uint_rtz
#undef convert_uint2_rtz
#define convert_uint2_rtz tarn_convert_uint2_rtz
#undef convert_uint3_rtz
#define convert_uint3_rtz tarn_convert_uint3_rtz
#undef convert_uint4_rtz
#define convert_uint4_rtz tarn_convert_uint4_rtz
#undef convert_uint8_rtz
#define convert_uint8_rtz tarn_convert_uint8_rtz
#undef convert_uint16_rtz
#define convert_uint16_rtz tarn_convert_uint16_rtz
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_long_sat_rte)
#undef convert_long_sat_rte
#define convert_long_sat_rte tarn_convert_long_sat_rte
#undef convert_long2_sat_rte
#define convert_long2_sat_rte tarn_convert_long2_sat_rte
#undef convert_long3_sat_rte
#define convert_long3_sat_rte tarn_convert_long3_sat_rte
#undef convert_long4_sat_rte
#define convert_long4_sat_rte tarn_convert_long4_sat_rte
#undef convert_long8_sat_rte
#define convert_long8_sat_rte tarn_convert_long8_sat_rte
#undef convert_long16_sat_rte
#define convert_long16_sat_rte tarn_convert_long16_sat_rte
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_long_rte)
#undef convert_long_rte
#define convert_long_rte tarn_convert_long_rte
#undef convert_long2_rte
#define convert_long2_rte tarn_convert_long2_rte
#undef convert_long3_rte
#define convert_long3_rte tarn_convert_long3_rte
#undef convert_long4_rte
#define convert_long4_rte tarn_convert_long4_rte
#undef convert_long8_rte
#define convert_long8_rte tarn_convert_long8_rte
#undef convert_long16_rte
#define convert_long16_rte tarn_convert_long16_rte
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_long_sat_rtn)
#undef convert_long_sat_rtn
#define convert_long_sat_rtn tarn_convert_long_sat_rtn
#undef convert_long2_sat_rtn
#define convert_long2_sat_rtn tarn_convert_long2_sat_rtn
#undef convert_long3_sat_rtn
#define convert_long3_sat_rtn tarn_convert_long3_sat_rtn
#undef convert_long4_sat_rtn
#define convert_long4_sat_rtn tarn_convert_long4_sat_rtn
#undef convert_long8_sat_rtn
#define convert_long8_sat_rtn tarn_convert_long8_sat_rtn
#undef convert_long16_sat_rtn
#define convert_long16_sat_rtn tarn_convert_long16_sat_rtn
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_long_rtn)
#undef convert_long_rtn
#define convert_long_rtn tarn_convert_long_rtn
#undef convert_long2_rtn
#define convert_long2_rtn tarn_convert_long2_rtn
#undef convert_long3_rtn
#define convert_long3_rtn tarn_convert_long3_rtn
#undef convert_long4_rtn
#define convert_long4_rtn tarn_convert_long4_rtn
#undef convert_long8_rtn
#define convert_long8_rtn tarn_convert_long8_rtn
#undef convert_long16_rtn
#define convert_long16_rtn tarn_convert_long16_rtn
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_long_sat_rtp)
#undef convert_long_sat_rtp
#define convert_long_sat_rtp tarn_convert_long_sat_rtp
#undef convert_long2_sat_rtp
#define convert_long2_sat_rtp tarn_convert_long2_sat_rtp
#undef convert_long3_sat_rtp
#define convert_long3_sat_rtp tarn_convert_long3_sat_rtp
#undef convert_long4_sat_rtp
#define convert_long4_sat_rtp tarn_convert_long4_sat_rtp
#undef convert_long8_sat_rtp
#define convert_long8_sat_rtp tarn_convert_long8_sat_rtp
#undef convert_long16_sat_rtp
#define convert_long16_sat_rtp tarn_convert_long16_sat_rtp
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_long_rtp)
#undef convert_long_rtp
#define convert_long_rtp tarn_convert_long_rtp
#undef convert_long2_rtp
#define convert_long2_rtp tarn_convert_long2_rtp
#undef convert_long3_rtp
#define convert_long3_rtp tarn_convert_long3_rtp
#undef convert_long4_rtp
#define convert_long4_rtp tarn_convert_long4_rtp
#undef convert_long8_rtp
#define convert_long8_rtp tarn_convert_long8_rtp
#undef convert_long16_rtp
#define convert_long16_rtp tarn_convert_long16_rtp
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_long_sat_rtz)
#undef convert_long_sat_rtz
#define convert_long_sat_rtz tarn_convert_long_sat_rtz
#undef convert_long2_sat_rtz
#define convert_long2_sat_rtz tarn_convert_long2_sat_rtz
#undef convert_long3_sat_rtz
#define convert_long3_sat_rtz tarn_convert_long3_sat_rtz
#undef convert_long4_sat_rtz
#define convert_long4_sat_rtz tarn_convert_long4_sat_rtz
#undef convert_long8_sat_rtz
#define convert_long8_sat_rtz tarn_convert_long8_sat_rtz
#undef convert_long16_sat_rtz
#define convert_long16_sat_rtz tarn_convert_long16_sat_rtz
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_long_rtz)
#undef convert_long_rtz
#define convert_long_rtz tarn_convert_long_rtz
#undef convert_long2_rtz
#define convert_long2_rtz tarn_convert_long2_rtz
#undef convert_long3_rtz
#define convert_long3_rtz tarn_convert_long3_rtz
#undef convert_long4_rtz
#define convert_long4_rtz tarn_convert_long4_rtz
#undef convert_long8_rtz
#define convert_long8_rtz tarn_convert_long8_rtz
#undef convert_long16_rtz
#define convert_long16_rtz tarn_convert_long16_rtz
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_ulong_sat_rte)
#undef convert_ulong_sat_rte
#define convert_ulong_sat_rte tarn_convert_ulong_sat_rte
#undef convert_ulong2_sat_rte
#define convert_ulong2_sat_rte tarn_convert_ulong2_sat_rte
#undef convert_ulong3_sat_rte
#define convert_ulong3_sat_rte tarn_convert_ulong3_sat_rte
#undef convert_ulong4_sat_rte
#define convert_ulong4_sat_rte tarn_convert_ulong4_sat_rte
#undef convert_ulong8_sat_rte
#define convert_ulong8_sat_rte tarn_convert_ulong8_sat_rte
#undef convert_ulong16_sat_rte
#define convert_ulong16_sat_rte tarn_convert_ulong16_sat_rte
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_ulong_rte)
#undef convert_ulong_rte
#define convert_ulong_rte tarn_convert_ulong_rte
#undef convert_ulong2_rte
#define convert_ulong2_rte tarn_convert_ulong2_rte
#undef convert_ulong3_rte
#define convert_ulong3_rte tarn_convert_ulong3_rte
#undef convert_ulong4_rte
#define convert_ulong4_rte tarn_convert_ulong4_rte
#undef convert_ulong8_rte
#define convert_ulong8_rte tarn_convert_ulong8_rte
#undef convert_ulong16_rte
#define convert_ulong16_rte tarn_convert_ulong16_rte
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_ulong_sat_rtn)
#undef convert_ulong_sat_rtn
#define convert_ulong_sat_rtn tarn_convert_ulong_sat_rtn
#undef convert_ulong2_sat_rtn
#define convert_ulong2_sat_rtn tarn_convert_ulong2_sat_rtn
#undef convert_ulong3_sat_rtn
#define convert_ulong3_sat_rtn tarn_convert_ulong3_sat_rtn
#undef convert_ulong4_sat_rtn
#define convert_ulong4_sat_rtn tarn_convert_ulong4_sat_rtn
#undef convert_ulong8_sat_rtn
#define convert_ulong8_sat_rtn tarn_convert_ulong8_sat_rtn
#undef convert_ulong16_sat_rtn
#define convert_ulong16_sat_rtn tarn_convert_ulong16_sat_rtn
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_ulong_rtn)
#undef convert_ulong_rtn
#define convert_ulong_rtn tarn_convert_ulong_rtn
#undef convert_ulong2_rtn
#define convert_ulong2_rtn tarn_convert_ulong2_rtn
#undef convert_ulong3_rtn
#define convert_ulong3_rtn tarn_convert_ulong3_rtn
#undef convert_ulong4_rtn
#define convert_ulong4_rtn tarn_convert_ulong4_rtn
#undef convert_ulong8_rtn
#define convert_ulong8_rtn tarn_convert_ulong8_rtn
#undef convert_ulong16_rtn
#define convert_ulong16_rtn tarn_convert_ulong16_rtn
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_ulong_sat_rtp)
#undef convert_ulong_sat_rtp
#define convert_ulong_sat_rtp tarn_convert_ulong_sat_rtp
#undef convert_ulong2_sat_rtp
#define convert_ulong2_sat_rtp tarn_convert_ulong2_sat_rtp
#undef convert_ulong3_sat_rtp
#define convert_ulong3_sat_rtp tarn_convert_ulong3_sat_rtp
#undef convert_ulong4_sat_rtp
#define convert_ulong4_sat_rtp tarn_convert_ulong4_sat_rtp
#undef convert_ulong8_sat_rtp
#define convert_ulong8_sat_rtp tarn_convert_ulong8_sat_rtp
#undef convert_ulong16_sat_rtp
#define convert_ulong16_sat_rtp tarn_convert_ulong16_sat_rtp
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_ulong_rtp)
#undef convert_ulong_rtp
#define convert_ulong_rtp tarn_convert_ulong_rtp
#undef convert_ulong2_rtp
#define convert_ulong2_rtp tarn_convert_ulong2_rtp
#undef convert_ulong3_rtp
#define convert_ulong3_rtp tarn_convert_ulong3_rtp
#undef convert_ulong4_rtp
#define convert_ulong4_rtp tarn_convert_ulong4_rtp
#undef convert_ulong8_rtp
#define convert_ulong8_rtp tarn_convert_ulong8_rtp
#undef convert_ulong16_rtp
#define convert_ulong16_rtp tarn_convert_ulong16_rtp
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_ulong_sat_rtz)
#undef convert_ulong_sat_rtz
#define convert_ulong_sat_rtz tarn_convert_ulong_sat_rtz
#undef convert_ulong2_sat_rtz
#define convert_ulong2_sat_rtz tarn_convert_ulong2_sat_rtz
#undef convert_ulong3_sat_rtz
#define convert_ulong3_sat_rtz tarn_convert_ulong3_sat_rtz
#undef convert_ulong4_sat_rtz
#define convert_ulong4_sat_rtz tarn_convert_ulong4_sat_rtz
#undef convert_ulong8_sat_rtz
#define convert_ulong8_sat_rtz tarn_convert_ulong8_sat_rtz
#undef convert_ulong16_sat_rtz
#define convert_ulong16_sat_rtz tarn_convert_ulong16_sat_rtz
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_ulong_rtz)
#undef convert_ulong_rtz
#define convert_ulong_rtz tarn_convert_ulong_rtz
#undef convert_ulong2_rtz
#define convert_ulong2_rtz tarn_convert_ulong2_rtz
#undef convert_ulong3_rtz
#define convert_ulong3_rtz tarn_convert_ulong3_rtz
#undef convert_ulong4_rtz
#define convert_ulong4_rtz tarn_convert_ulong4_rtz
#undef convert_ulong8_rtz
#define convert_ulong8_rtz tarn_convert_ulong8_rtz
#undef convert_ulong16_rtz
#define convert_ulong16_rtz tarn_convert_ulong16_rtz
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_float_rte)
#undef convert_float_rte
#define convert_float_rte tarn_convert_float_rte
#undef convert_float2_rte
#define convert_float2_rte tarn_convert_float2_rte
#undef convert_float3_rte
#define convert_float3_rte tarn_convert_float3_rte
#undef convert_float4_rte
#define convert_float4_rte tarn_convert_float4_rte
#undef convert_float8_rte
#define convert_float8_rte tarn_convert_float8_rte
#undef convert_float16_rte
#define convert_float16_rte tarn_convert_float16_rte
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_float_rtn)
#undef convert_float_rtn
#define convert_float_rtn tarn_convert_float_rtn
#undef convert_float2_rtn
#define convert_float2_rtn tarn_convert_float2_rtn
#undef convert_float3_rtn
#define convert_float3_rtn tarn_convert_float3_rtn
#undef convert_float4_rtn
#define convert_float4_rtn tarn_convert_float4_rtn
#undef convert_float8_rtn
#define convert_float8_rtn tarn_convert_float8_rtn
#undef convert_float16_rtn
#define convert_float16_rtn tarn_convert_float16_rtn
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_float_rtp)
#undef convert_float_rtp
#define convert_float_rtp tarn_convert_float_rtp
#undef convert_float2_rtp
#define convert_float2_rtp tarn_convert_float2_rtp
#undef convert_float3_rtp
#define convert_float3_rtp tarn_convert_float3_rtp
#undef convert_float4_rtp
#define convert_float4_rtp tarn_convert_float4_rtp
#undef convert_float8_rtp
#define convert_float8_rtp tarn_convert_float8_rtp
#undef convert_float16_rtp
#define convert_float16_rtp tarn_convert_float16_rtp
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_float_rtz)
#undef convert_float_rtz
#define convert_float_rtz tarn_convert_float_rtz
#undef convert_float2_rtz
#define convert_float2_rtz tarn_convert_float2_rtz
#undef convert_float3_rtz
#define convert_float3_rtz tarn_convert_float3_rtz
#undef convert_float4_rtz
#define convert_float4_rtz tarn_convert_float4_rtz
#undef convert_float8_rtz
#define convert_float8_rtz tarn_convert_float8_rtz
#undef convert_float16_rtz
#define convert_float16_rtz tarn_convert_float16_rtz
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_double_rte)
#ifdef cl_khr_fp64
#undef convert_double_rte
#define convert_double_rte tarn_convert_double_rte
#undef convert_double2_rte
#define convert_double2_rte tarn_convert_double2_rte
#undef convert_double3_rte
#define convert_double3_rte tarn_convert_double3_rte
#undef convert_double4_rte
#define convert_double4_rte tarn_convert_double4_rte
#undef convert_double8_rte
#define convert_double8_rte tarn_convert_double8_rte
#undef convert_double16_rte
#define convert_double16_rte tarn_convert_double16_rte
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_double_rtn)
#ifdef cl_khr_fp64
#undef convert_double_rtn
#define convert_double_rtn tarn_convert_double_rtn
#undef convert_double2_rtn
#define convert_double2_rtn tarn_convert_double2_rtn
#undef convert_double3_rtn
#define convert_double3_rtn tarn_convert_double3_rtn
#undef convert_double4_rtn
#define convert_double4_rtn tarn_convert_double4_rtn
#undef convert_double8_rtn
#define convert_double8_rtn tarn_convert_double8_rtn
#undef convert_double16_rtn
#define convert_double16_rtn tarn_convert_double16_rtn
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_double_rtp)
#ifdef cl_khr_fp64
#undef convert_double_rtp
#define convert_double_rtp tarn_convert_double_rtp
#undef convert_double2_rtp
#define convert_double2_rtp tarn_convert_double2_rtp
#undef convert_double3_rtp
#define convert_double3_rtp tarn_convert_double3_rtp
#undef convert_double4_rtp
#define convert_double4_rtp tarn_convert_double4_rtp
#undef convert_double8_rtp
#define convert_double8_rtp tarn_convert_double8_rtp
#undef convert_double16_rtp
#define convert_double16_rtp tarn_convert_double16_rtp
#endif
#endif
#if !defined(TARN_ONLY) || defined(TARN_USE_convert_double_rtz)
#ifdef cl_khr_fp64
#undef convert_double_rtz
#define convert_double_rtz tarn_convert_double_rtz
#undef convert_double2_rtz
#define convert_double2_rtz tarn_convert_double2_rtz
#undef convert_double3_rtz
#define convert_double3_rtz tarn_convert_double3_rtz
#undef convert_double4_rtz
#define convert_double4_rtz tarn_convert_double4_rtz
#undef convert_double8_rtz
#define convert_double8_rtz tarn_convert_double8_rtz
#undef convert_double16_rtz
#define convert_double16_rtz tarn_convert_double16_rtz
#endif
#endif
#endif
#endif
