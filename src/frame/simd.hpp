// The vocabulary of the kernels: 16-byte blocks with the language's own operators, and a name for
// each thing that operators cannot say.
#pragma once

#include <cstddef>
#include <cstdint>
#include <smmintrin.h>

#define TARN_INLINE __attribute__((always_inline)) inline

namespace tarn {

typedef float f32x4 __attribute__((vector_size(16)));
typedef double f64x2 __attribute__((vector_size(16)));
typedef std::int32_t i32x4 __attribute__((vector_size(16)));
typedef std::uint32_t u32x4 __attribute__((vector_size(16)));
typedef std::int64_t i64x2 __attribute__((vector_size(16)));
typedef std::uint64_t u64x2 __attribute__((vector_size(16)));

// Bit patterns -----------------------------------------------------------------------------------

constexpr float f32(std::uint32_t pattern) { return __builtin_bit_cast(float, pattern); }
constexpr double f64(std::uint64_t pattern) { return __builtin_bit_cast(double, pattern); }
constexpr std::int32_t bits(float x) { return __builtin_bit_cast(std::int32_t, x); }
constexpr std::int64_t bits(double x) { return __builtin_bit_cast(std::int64_t, x); }

TARN_INLINE i32x4 bits(f32x4 x) { return (i32x4)x; }
TARN_INLINE i64x2 bits(f64x2 x) { return (i64x2)x; }
TARN_INLINE f32x4 from_bits(i32x4 pattern) { return (f32x4)pattern; }
TARN_INLINE f64x2 from_bits(i64x2 pattern) { return (f64x2)pattern; }

// A shift that fills with zeros; `>>` on signed lanes repeats the sign.
TARN_INLINE i32x4 shift_right_logical(i32x4 v, int count) { return (i32x4)((u32x4)v >> count); }
TARN_INLINE i64x2 shift_right_logical(i64x2 v, int count) { return (i64x2)((u64x2)v >> count); }

// A sum that may wrap round; `+` on signed lanes must not.
TARN_INLINE i32x4 wrapping_sum(i32x4 v, i32x4 w) { return (i32x4)((u32x4)v + (u32x4)w); }

// The difference of 16-bit halves without sign, 0 where it would be negative.
TARN_INLINE i32x4 difference_from_zero(i32x4 v, i32x4 w) { return (i32x4)_mm_subs_epu16((__m128i)v, (__m128i)w); }

// Constants: every lane the same -----------------------------------------------------------------

constexpr i32x4 splat(std::int32_t v) { return i32x4{v, v, v, v}; }
constexpr i64x2 splat(std::int64_t v) { return i64x2{v, v}; }
constexpr f32x4 splat(float v) { return f32x4{v, v, v, v}; }
constexpr f64x2 splat(double v) { return f64x2{v, v}; }
constexpr f32x4 splat_f32(std::uint32_t pattern) { return splat(f32(pattern)); }
constexpr f64x2 splat_f64(std::uint64_t pattern) { return splat(f64(pattern)); }
constexpr i32x4 splat_i32(std::uint32_t pattern) { return splat(static_cast<std::int32_t>(pattern)); }
constexpr i64x2 splat_i64(std::uint64_t pattern) { return splat(static_cast<std::int64_t>(pattern)); }

// Sign and magnitude -----------------------------------------------------------------------------

constexpr i32x4 sign_mask_f32 = splat_i32(0x80000000);
constexpr i64x2 sign_mask_f64 = splat_i64(0x8000000000000000);

TARN_INLINE i32x4 sign_bit(f32x4 x) { return bits(x) & sign_mask_f32; }
TARN_INLINE i64x2 sign_bit(f64x2 x) { return bits(x) & sign_mask_f64; }
TARN_INLINE f32x4 abs(f32x4 x) { return from_bits(bits(x) & ~sign_mask_f32); }
TARN_INLINE f64x2 abs(f64x2 x) { return from_bits(bits(x) & ~sign_mask_f64); }
TARN_INLINE f32x4 or_bits(f32x4 x, i32x4 pattern) { return from_bits(bits(x) | pattern); }
TARN_INLINE f64x2 or_bits(f64x2 x, i64x2 pattern) { return from_bits(bits(x) | pattern); }
TARN_INLINE f32x4 xor_bits(f32x4 x, i32x4 pattern) { return from_bits(bits(x) ^ pattern); }
TARN_INLINE f64x2 xor_bits(f64x2 x, i64x2 pattern) { return from_bits(bits(x) ^ pattern); }

// Choice -----------------------------------------------------------------------------------------

// Lane by lane: `yes` where the mask lane is all ones, else `no`.
TARN_INLINE f32x4 select(i32x4 mask, f32x4 yes, f32x4 no) { return _mm_blendv_ps(no, yes, (__m128)mask); }
TARN_INLINE f64x2 select(i64x2 mask, f64x2 yes, f64x2 no) { return _mm_blendv_pd(no, yes, (__m128d)mask); }
TARN_INLINE i32x4 select(i32x4 mask, i32x4 yes, i32x4 no) {
    return (i32x4)_mm_blendv_epi8((__m128i)no, (__m128i)yes, (__m128i)mask);
}
TARN_INLINE i64x2 select(i64x2 mask, i64x2 yes, i64x2 no) {
    return (i64x2)_mm_blendv_epi8((__m128i)no, (__m128i)yes, (__m128i)mask);
}

// The value where the mask lane is all ones, else +0.
TARN_INLINE f32x4 where(i32x4 mask, f32x4 x) { return from_bits(bits(x) & mask); }
TARN_INLINE f64x2 where(i64x2 mask, f64x2 x) { return from_bits(bits(x) & mask); }

// The processor's minimum and maximum: the second operand comes back when either is a NaN or both
// are zeros, so the order of the operands is part of the result.
TARN_INLINE f32x4 min(f32x4 x, f32x4 y) { return _mm_min_ps(x, y); }
TARN_INLINE f64x2 min(f64x2 x, f64x2 y) { return _mm_min_pd(x, y); }
TARN_INLINE f32x4 max(f32x4 x, f32x4 y) { return _mm_max_ps(x, y); }
TARN_INLINE f64x2 max(f64x2 x, f64x2 y) { return _mm_max_pd(x, y); }
TARN_INLINE i32x4 min(i32x4 x, i32x4 y) { return (i32x4)_mm_min_epi32((__m128i)x, (__m128i)y); }
TARN_INLINE i32x4 max(i32x4 x, i32x4 y) { return (i32x4)_mm_max_epi32((__m128i)x, (__m128i)y); }

// Rounding to an integral value ------------------------------------------------------------------

enum class Rounding {
    nearest = _MM_FROUND_TO_NEAREST_INT,
    down = _MM_FROUND_TO_NEG_INF,
    up = _MM_FROUND_TO_POS_INF,
    zero = _MM_FROUND_TO_ZERO,
    current = _MM_FROUND_CUR_DIRECTION,                             // the caller's rounding mode
    current_quiet = _MM_FROUND_CUR_DIRECTION | _MM_FROUND_NO_EXC,  // the same, never inexact
};
template <Rounding mode> TARN_INLINE f32x4 round(f32x4 x) { return _mm_round_ps(x, static_cast<int>(mode)); }
template <Rounding mode> TARN_INLINE f64x2 round(f64x2 x) { return _mm_round_pd(x, static_cast<int>(mode)); }

// Roots (the processor's approximations are in estimates.hpp) --------------------------------------

TARN_INLINE f32x4 sqrt(f32x4 x) { return _mm_sqrt_ps(x); }
TARN_INLINE f64x2 sqrt(f64x2 x) { return _mm_sqrt_pd(x); }

// Between precisions -----------------------------------------------------------------------------

TARN_INLINE f64x2 widen_low(f32x4 x) { return _mm_cvtps_pd(x); }
TARN_INLINE f64x2 widen_high(f32x4 x) { return _mm_cvtps_pd(_mm_movehl_ps(x, x)); }
TARN_INLINE f32x4 narrow(f64x2 low, f64x2 high) { return _mm_movelh_ps(_mm_cvtpd_ps(low), _mm_cvtpd_ps(high)); }
TARN_INLINE f32x4 narrow(f64x2 x) { return _mm_cvtpd_ps(x); }  // in the low half

// The halves of two 64-bit lanes, in the low half of a block; and 32-bit lanes put into upper halves.
TARN_INLINE i32x4 low_words(i64x2 v) { return (i32x4)_mm_shuffle_epi32((__m128i)v, _MM_SHUFFLE(2, 0, 2, 0)); }
TARN_INLINE i32x4 high_words(i64x2 v) { return (i32x4)_mm_shuffle_epi32((__m128i)v, _MM_SHUFFLE(3, 1, 3, 1)); }
TARN_INLINE i64x2 as_high_words(i32x4 v) { return (i64x2)_mm_unpacklo_epi32(_mm_setzero_si128(), (__m128i)v); }
TARN_INLINE i64x2 widen_unsigned(i32x4 v) { return (i64x2)_mm_unpacklo_epi32((__m128i)v, _mm_setzero_si128()); }

// Between integers and floating point --------------------------------------------------------------
// To integers toward zero; what has no value there, NaN included, gives the lowest integer. Two lanes
// are the low half of a block of 32-bit lanes.

TARN_INLINE i32x4 to_i32(f32x4 x) { return (i32x4)_mm_cvttps_epi32(x); }
TARN_INLINE i32x4 to_i32(f64x2 x) { return (i32x4)_mm_cvttpd_epi32(x); }
TARN_INLINE i64x2 to_i64(f64x2 x) { return i64x2{_mm_cvttsd_si64(x), _mm_cvttsd_si64(_mm_unpackhi_pd(x, x))}; }
TARN_INLINE f32x4 to_f32(i32x4 v) { return _mm_cvtepi32_ps((__m128i)v); }
TARN_INLINE f64x2 to_f64(i32x4 v) { return _mm_cvtepi32_pd((__m128i)v); }
TARN_INLINE f64x2 to_f64_high(i32x4 v) { return _mm_cvtepi32_pd(_mm_unpackhi_epi64((__m128i)v, (__m128i)v)); }
TARN_INLINE i64x2 to_i64(i32x4 v) { return (i64x2)_mm_cvtepi32_epi64((__m128i)v); }

// The halves of four 64-bit lanes.
TARN_INLINE i32x4 upper_words(i64x2 low, i64x2 high) {
    return (i32x4)_mm_shuffle_ps((__m128)low, (__m128)high, _MM_SHUFFLE(3, 1, 3, 1));
}
TARN_INLINE i32x4 upper_words(i32x4 low, i32x4 high) { return upper_words((i64x2)low, (i64x2)high); }
TARN_INLINE i32x4 lower_words(i64x2 low, i64x2 high) {
    return (i32x4)_mm_shuffle_ps((__m128)low, (__m128)high, _MM_SHUFFLE(2, 0, 2, 0));
}

// Multiplication of 32-bit words: the low word of each 64-bit lane, to 64 bits.
TARN_INLINE u64x2 multiply_words(u64x2 a, u64x2 b) { return (u64x2)_mm_mul_epu32((__m128i)a, (__m128i)b); }

// Multiplication of 16-bit halves: the upper half of each product.
TARN_INLINE u32x4 multiply_halves(u32x4 a, u32x4 b) { return (u32x4)_mm_mulhi_epu16((__m128i)a, (__m128i)b); }

// Four 64-bit lanes, the even ones and the odd ones, as their low and their high words in order.
TARN_INLINE u32x4 woven_low_words(u64x2 even, u64x2 odd) {
    return (u32x4)_mm_blend_epi16((__m128i)even, (__m128i)(odd << 32), 0xCC);
}
TARN_INLINE u32x4 woven_high_words(u64x2 even, u64x2 odd) {
    return (u32x4)_mm_blend_epi16((__m128i)(even >> 32), (__m128i)odd, 0xCC);
}

// Polynomials ------------------------------------------------------------------------------------

// Horner's rule, highest coefficient first: ((c0*x + c1)*x + c2)*x + ... A coefficient may be one lane.
template <class V> TARN_INLINE V horner(V, V sum) { return sum; }
template <class V, class C, class D, class... More> TARN_INLINE V horner(V x, C leading, D next, More... more) {
    return horner(x, V(leading * x + next), more...);
}

// Several blocks as one --------------------------------------------------------------------------
// A kernel written for blocks of any size takes all lanes of a wide call at once, and the compiler
// interleaves its blocks operation by operation: they advance together, where one after the other the
// processor can only look ahead from one to the next. Its constants are single lanes.

template <int blocks> struct SeveralBlocks;
template <> struct SeveralBlocks<2> {
    typedef float f32 __attribute__((vector_size(32)));
};
template <> struct SeveralBlocks<4> {
    typedef float f32 __attribute__((vector_size(64)));
};

template <class V> concept Several = sizeof(V) > 16;
template <class V> using LanesOf = decltype(V{} < V{});  // the integers, or the mask, beside a vector of floats

template <Several V> TARN_INLINE LanesOf<V> bits(V x) { return (LanesOf<V>)x; }
template <Several V> TARN_INLINE LanesOf<V> sign_bit(V x) { return bits(x) & bits(-0.0f); }
template <Several V> TARN_INLINE V abs(V x) { return (V)(bits(x) & 0x7FFFFFFF); }
template <Several V> TARN_INLINE V or_bits(V x, LanesOf<V> pattern) { return (V)(bits(x) | pattern); }
template <Several V> TARN_INLINE V xor_bits(V x, LanesOf<V> pattern) { return (V)(bits(x) ^ pattern); }
template <Several V> TARN_INLINE V where(LanesOf<V> mask, V x) { return (V)(bits(x) & mask); }

// Table rows -------------------------------------------------------------------------------------

// Four row numbers, moved to general registers two at a time.
struct Rows {
    std::uint64_t row[4];
};
TARN_INLINE Rows rows(i32x4 index) {
    const auto low = static_cast<std::uint64_t>(((i64x2)index)[0]), high = static_cast<std::uint64_t>(((i64x2)index)[1]);
    return {{low & 0xFFFFFFFF, low >> 32, high & 0xFFFFFFFF, high >> 32}};
}

// The same of lanes that hold their row in the bits from `shift` on.
TARN_INLINE Rows rows(i32x4 index, int shift) {
    const auto low = static_cast<std::uint64_t>(((i64x2)index)[0]), high = static_cast<std::uint64_t>(((i64x2)index)[1]);
    return {{(low & 0xFFFFFFFF) >> shift, low >> (32 + shift), (high & 0xFFFFFFFF) >> shift, high >> (32 + shift)}};
}

// table[index] in each lane.
TARN_INLINE f32x4 gather(const float* table, i32x4 index) {
    const auto [a, b, c, d] = rows(index).row;
    return f32x4{table[a], table[b], table[c], table[d]};
}
TARN_INLINE i32x4 gather(const std::uint32_t* table, i32x4 index) {
    const auto [a, b, c, d] = rows(index).row;
    return (i32x4)u32x4{table[a], table[b], table[c], table[d]};
}
TARN_INLINE f64x2 gather_low(const double* table, i32x4 index) {
    const auto [a, b, c, d] = rows(index).row;
    return f64x2{table[a], table[b]};
}
TARN_INLINE f64x2 gather_high(const double* table, i32x4 index) {
    const auto [a, b, c, d] = rows(index).row;
    return f64x2{table[c], table[d]};
}
TARN_INLINE f64x2 gather(const double* table, i64x2 index) { return f64x2{table[index[0]], table[index[1]]}; }
TARN_INLINE i64x2 gather(const std::uint64_t* table, i64x2 index) {
    return i64x2{static_cast<std::int64_t>(table[index[0]]), static_cast<std::int64_t>(table[index[1]])};
}

// Two neighbouring columns of two rows of doubles, a vector each.
struct ColumnsF64 {
    f64x2 first, second;
};
TARN_INLINE ColumnsF64 columns(const double* row0, const double* row1) {
    const __m128d a = _mm_loadu_pd(row0), b = _mm_loadu_pd(row1);
    return {_mm_unpacklo_pd(a, b), _mm_unpackhi_pd(a, b)};
}
template <int column = 0, class Entry, std::size_t count>
TARN_INLINE ColumnsF64 gather_columns(const Entry (*table)[count], i64x2 index) {
    static_assert(sizeof(Entry) == 8);
    return columns(reinterpret_cast<const double*>(table[index[0]] + column),
                   reinterpret_cast<const double*>(table[index[1]] + column));
}

// Two neighbouring columns of a table's rows, from `column` on, a vector each.
struct PairLanes {
    f32x4 first, second;
};
template <int column = 0, class Entry, std::size_t columns>
TARN_INLINE PairLanes gather_pairs(const Entry (*table)[columns], i32x4 index) {
    static_assert(sizeof(Entry) == 4);
    const auto [a, b, c, d] = rows(index).row;
    const auto at = [&](std::uint64_t row) __attribute__((always_inline)) {
        return reinterpret_cast<const double*>(table[row] + column);
    };
    const __m128 low = (__m128)_mm_loadh_pd(_mm_load_sd(at(a)), at(b));
    const __m128 high = (__m128)_mm_loadh_pd(_mm_load_sd(at(c)), at(d));
    return {_mm_shuffle_ps(low, high, _MM_SHUFFLE(2, 0, 2, 0)), _mm_shuffle_ps(low, high, _MM_SHUFFLE(3, 1, 3, 1))};
}

// Four neighbouring columns, from `column` on.
struct QuadLanes {
    f32x4 first, second, third, fourth;
};
template <int column = 0, class Entry, std::size_t columns>
TARN_INLINE QuadLanes gather_quads(const Entry (*table)[columns], i32x4 index) {
    static_assert(sizeof(Entry) == 4);
    const auto [i, j, k, l] = rows(index).row;
    const auto at = [&](std::uint64_t row) __attribute__((always_inline)) {
        return _mm_loadu_ps(reinterpret_cast<const float*>(table[row] + column));
    };
    __m128 a = at(i), b = at(j), c = at(k), d = at(l);
    _MM_TRANSPOSE4_PS(a, b, c, d);
    return {a, b, c, d};
}

// Special-lane tests -----------------------------------------------------------------------------

// Bit pattern of |x| above the bound; infinities and NaNs are above every finite bound.
TARN_INLINE i32x4 magnitude_above(f32x4 x, std::uint32_t bound) { return bits(abs(x)) > splat_i32(bound); }

// Infinities and NaNs.
TARN_INLINE i32x4 not_finite(f32x4 x) { return magnitude_above(x, 0x7F7FFFFF); }

// The upper word of |x| above the bound, in the upper words of the mask.
TARN_INLINE i32x4 upper_magnitude_above(f64x2 x, std::uint32_t bound) {
    return (i32x4)bits(abs(x)) > splat_i32(bound);
}

// |x| within the bound as a float comparison turned round, so that a NaN is not within.
TARN_INLINE i32x4 not_within(f32x4 x, f32x4 bound) { return (i32x4)_mm_cmpnle_ps(abs(x), bound); }
TARN_INLINE i64x2 not_within(f64x2 x, f64x2 bound) { return (i64x2)_mm_cmpnle_pd(abs(x), bound); }

// Anything but a positive normal finite number, in one wrapping sum: zeros, subnormals, negative numbers,
// infinities and NaNs.
TARN_INLINE i32x4 not_positive_normal(f32x4 x) {
    return (i32x4)((u32x4)x + (u32x4)splat_i32(0x00800000)) < splat_i32(0x01000000);
}
// The same in double precision, in the upper words of the mask; and anything below a bound, given as an upper
// word, in the place of what is not normal.
TARN_INLINE i32x4 below_or_not_finite(f64x2 x, std::uint32_t bound) {
    return (i32x4)((u32x4)x + (u32x4)splat_i32(0x00100000)) < splat_i32(bound + 0x00100000);
}
TARN_INLINE i32x4 not_positive_normal(f64x2 x) { return below_or_not_finite(x, 0x00100000); }

// Floating-point flags ---------------------------------------------------------------------------

// The value as one the compiler cannot see through: operations on it are carried out when the
// program runs, in the caller's floating-point environment, and raise their flags there.
TARN_INLINE float opaque(float x) {
    asm volatile("" : "+x"(x));
    return x;
}
TARN_INLINE f64x2 opaque(f64x2 x) {
    asm volatile("" : "+x"(x));
    return x;
}
TARN_INLINE double opaque(double x) {
    asm volatile("" : "+x"(x));
    return x;
}
TARN_INLINE std::uint64_t opaque(std::uint64_t v) {
    asm volatile("" : "+r"(v));
    return v;
}

}  // namespace tarn

#include "frame/estimates.hpp"
