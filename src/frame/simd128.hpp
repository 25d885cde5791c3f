// The instructions on vectors of 16 bytes, each under the name that kernels use; simd256.hpp has the same names.
// Where 64-bit lanes meet as many 32-bit lanes, those are in the low half of their vector.
#pragma once

#include <immintrin.h>

#include "frame/vectors.hpp"

namespace tarn {

// Choice -----------------------------------------------------------------------------------------

TARN_INLINE f32x4 blended(i32x4 mask, f32x4 yes, f32x4 no) { return _mm_blendv_ps(no, yes, (__m128)mask); }
TARN_INLINE f64x2 blended(i64x2 mask, f64x2 yes, f64x2 no) { return _mm_blendv_pd(no, yes, (__m128d)mask); }
TARN_INLINE i32x4 blended(i32x4 mask, i32x4 yes, i32x4 no) { return (i32x4)_mm_blendv_epi8((__m128i)no, (__m128i)yes, (__m128i)mask); }
TARN_INLINE i64x2 blended(i64x2 mask, i64x2 yes, i64x2 no) { return (i64x2)_mm_blendv_epi8((__m128i)no, (__m128i)yes, (__m128i)mask); }

TARN_INLINE f32x4 smaller(f32x4 x, f32x4 y) { return _mm_min_ps(x, y); }
TARN_INLINE f64x2 smaller(f64x2 x, f64x2 y) { return _mm_min_pd(x, y); }
TARN_INLINE i32x4 smaller(i32x4 x, i32x4 y) { return (i32x4)_mm_min_epi32((__m128i)x, (__m128i)y); }
TARN_INLINE f32x4 larger(f32x4 x, f32x4 y) { return _mm_max_ps(x, y); }
TARN_INLINE f64x2 larger(f64x2 x, f64x2 y) { return _mm_max_pd(x, y); }
TARN_INLINE i32x4 larger(i32x4 x, i32x4 y) { return (i32x4)_mm_max_epi32((__m128i)x, (__m128i)y); }

// Rounding to an integral value, and roots ---------------------------------------------------------

template <Rounding mode> TARN_INLINE f32x4 round(f32x4 x) { return _mm_round_ps(x, static_cast<int>(mode)); }
template <Rounding mode> TARN_INLINE f64x2 round(f64x2 x) { return _mm_round_pd(x, static_cast<int>(mode)); }
TARN_INLINE f32x4 sqrt(f32x4 x) { return _mm_sqrt_ps(x); }
TARN_INLINE f64x2 sqrt(f64x2 x) { return _mm_sqrt_pd(x); }

// One rounding for a product and a sum, where the processor has it.
#ifdef __FMA__
inline constexpr bool fuses = true;
TARN_INLINE f32x4 fused_multiply_add(f32x4 x, f32x4 y, f32x4 z) { return _mm_fmadd_ps(x, y, z); }
TARN_INLINE f64x2 fused_multiply_add(f64x2 x, f64x2 y, f64x2 z) { return _mm_fmadd_pd(x, y, z); }
#else
inline constexpr bool fuses = false;
template <class V> V fused_multiply_add(V, V, V) = delete;
#endif

// Between precisions -----------------------------------------------------------------------------

TARN_INLINE f64x2 widen_low(f32x4 x) { return _mm_cvtps_pd(x); }
TARN_INLINE f64x2 widen_high(f32x4 x) { return _mm_cvtps_pd(_mm_movehl_ps(x, x)); }
TARN_INLINE f32x4 narrow(f64x2 low, f64x2 high) { return _mm_movelh_ps(_mm_cvtpd_ps(low), _mm_cvtpd_ps(high)); }
TARN_INLINE f32x4 narrow(f64x2 x) { return _mm_cvtpd_ps(x); }

// The words of 64-bit lanes, 32-bit lanes put into upper words, and made 64-bit lanes without sign.
TARN_INLINE i32x4 low_words(i64x2 v) { return (i32x4)_mm_shuffle_epi32((__m128i)v, _MM_SHUFFLE(2, 0, 2, 0)); }
TARN_INLINE i32x4 high_words(i64x2 v) { return (i32x4)_mm_shuffle_epi32((__m128i)v, _MM_SHUFFLE(3, 1, 3, 1)); }
TARN_INLINE i64x2 as_high_words(i32x4 v) { return (i64x2)_mm_unpacklo_epi32(_mm_setzero_si128(), (__m128i)v); }
TARN_INLINE i64x2 widen_unsigned(i32x4 v) { return (i64x2)_mm_unpacklo_epi32((__m128i)v, _mm_setzero_si128()); }

// The words of the 64-bit lanes of two vectors.
TARN_INLINE i32x4 lower_words(i64x2 low, i64x2 high) {
    return (i32x4)_mm_shuffle_ps((__m128)low, (__m128)high, _MM_SHUFFLE(2, 0, 2, 0));
}
TARN_INLINE i32x4 upper_words(i64x2 low, i64x2 high) {
    return (i32x4)_mm_shuffle_ps((__m128)low, (__m128)high, _MM_SHUFFLE(3, 1, 3, 1));
}

// 64-bit lanes, the even ones and the odd ones, as their low and their high words in order.
TARN_INLINE u32x4 woven_low_words(u64x2 even, u64x2 odd) {
    return (u32x4)_mm_blend_epi16((__m128i)even, (__m128i)(odd << 32), 0xCC);
}
TARN_INLINE u32x4 woven_high_words(u64x2 even, u64x2 odd) {
    return (u32x4)_mm_blend_epi16((__m128i)(even >> 32), (__m128i)odd, 0xCC);
}

// Between integers and floating point --------------------------------------------------------------
// To integers toward zero; what has no value there, NaN included, gives the lowest integer.

TARN_INLINE i32x4 to_i32(f32x4 x) { return (i32x4)_mm_cvttps_epi32(x); }
TARN_INLINE i32x4 to_i32(f64x2 x) { return (i32x4)_mm_cvttpd_epi32(x); }
TARN_INLINE i64x2 to_i64(f64x2 x) { return i64x2{_mm_cvttsd_si64(x), _mm_cvttsd_si64(_mm_unpackhi_pd(x, x))}; }
TARN_INLINE f32x4 to_f32(i32x4 v) { return _mm_cvtepi32_ps((__m128i)v); }
TARN_INLINE f64x2 to_f64(i32x4 v) { return _mm_cvtepi32_pd((__m128i)v); }
TARN_INLINE f64x2 to_f64_high(i32x4 v) { return _mm_cvtepi32_pd(_mm_unpackhi_epi64((__m128i)v, (__m128i)v)); }
TARN_INLINE i64x2 to_i64(i32x4 v) { return (i64x2)_mm_cvtepi32_epi64((__m128i)v); }

// Integer products ---------------------------------------------------------------------------------

// Of 32-bit words, the low word of each 64-bit lane, to 64 bits; of 16-bit halves, the upper half of each; and the
// difference of 16-bit halves without sign, 0 where it would be negative.
TARN_INLINE u64x2 multiply_words(u64x2 a, u64x2 b) { return (u64x2)_mm_mul_epu32((__m128i)a, (__m128i)b); }
TARN_INLINE u32x4 multiply_halves(u32x4 a, u32x4 b) { return (u32x4)_mm_mulhi_epu16((__m128i)a, (__m128i)b); }
TARN_INLINE i32x4 difference_from_zero(i32x4 v, i32x4 w) { return (i32x4)_mm_subs_epu16((__m128i)v, (__m128i)w); }

// Table rows -------------------------------------------------------------------------------------

// Four row numbers, moved to general registers two at a time.
struct Rows {
    std::uint64_t row[4];
};
TARN_INLINE Rows rows(i32x4 index) {
    const auto low = static_cast<std::uint64_t>(((i64x2)index)[0]), high = static_cast<std::uint64_t>(((i64x2)index)[1]);
    return {{low & 0xFFFFFFFF, low >> 32, high & 0xFFFFFFFF, high >> 32}};
}

// Entries of a table of doubles, of two floats as one double, and of four floats; tables may hold their patterns.
template <class Entry> TARN_INLINE const double* doubles_at(const Entry* entry) {
    static_assert(sizeof(Entry) == 8);
    return reinterpret_cast<const double*>(entry);
}
template <class Entry> TARN_INLINE const double* pair_at(const Entry* entry) {
    static_assert(sizeof(Entry) == 4);
    return reinterpret_cast<const double*>(entry);
}
template <class Entry> TARN_INLINE f32x4 quad_at(const Entry* entry) {
    static_assert(sizeof(Entry) == 4);
    return _mm_loadu_ps(reinterpret_cast<const float*>(entry));
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

// Neighbouring columns of a table's rows, from `column` on, a vector each.
TARN_INLINE Columns2<f64x2> two_columns(const double* row0, const double* row1) {
    const __m128d a = _mm_loadu_pd(row0), b = _mm_loadu_pd(row1);
    return {_mm_unpacklo_pd(a, b), _mm_unpackhi_pd(a, b)};
}
template <int column = 0, class Entry, std::size_t count>
TARN_INLINE Columns2<f64x2> gather_columns(const Entry (*table)[count], i64x2 index) {
    return two_columns(doubles_at(table[index[0]] + column), doubles_at(table[index[1]] + column));
}
// The same with the rows in 32-bit lanes, for the lower and the upper half of them.
template <int column = 0, class Entry, std::size_t count>
TARN_INLINE Columns2<f64x2> gather_columns_low(const Entry (*table)[count], i32x4 index) {
    const auto [a, b, c, d] = rows(index).row;
    return two_columns(doubles_at(table[a] + column), doubles_at(table[b] + column));
}
template <int column = 0, class Entry, std::size_t count>
TARN_INLINE Columns2<f64x2> gather_columns_high(const Entry (*table)[count], i32x4 index) {
    const auto [a, b, c, d] = rows(index).row;
    return two_columns(doubles_at(table[c] + column), doubles_at(table[d] + column));
}

// Two and four columns of floats.
template <int column = 0, class Entry, std::size_t count>
TARN_INLINE Columns2<f32x4> gather_pairs(const Entry (*table)[count], i32x4 index) {
    const auto [a, b, c, d] = rows(index).row;
    const auto at = [&](std::uint64_t row) __attribute__((always_inline)) { return pair_at(table[row] + column); };
    const __m128 low = (__m128)_mm_loadh_pd(_mm_load_sd(at(a)), at(b));
    const __m128 high = (__m128)_mm_loadh_pd(_mm_load_sd(at(c)), at(d));
    return {_mm_shuffle_ps(low, high, _MM_SHUFFLE(2, 0, 2, 0)), _mm_shuffle_ps(low, high, _MM_SHUFFLE(3, 1, 3, 1))};
}
template <int column = 0, class Entry, std::size_t count>
TARN_INLINE Columns4<f32x4> gather_quads(const Entry (*table)[count], i32x4 index) {
    const auto [i, j, k, l] = rows(index).row;
    const auto at = [&](std::uint64_t row) __attribute__((always_inline)) { return quad_at(table[row] + column); };
    __m128 a = at(i), b = at(j), c = at(k), d = at(l);
    _MM_TRANSPOSE4_PS(a, b, c, d);
    return {a, b, c, d};
}

// Masks --------------------------------------------------------------------------------------------
// The signs of mask lanes as bits, bit i for lane i.

TARN_INLINE unsigned gathered(i32x4 mask) { return _mm_movemask_ps((__m128)mask); }
TARN_INLINE unsigned gathered(i64x2 mask) { return _mm_movemask_pd((__m128d)mask); }

// Up to 16 lanes with signed saturation, 32 to 16 to 8 bits; a missing vector is a repeated one.
TARN_INLINE unsigned gathered(i32x4 a, i32x4 b) {
    const __m128i words = _mm_packs_epi32((__m128i)a, (__m128i)b);
    return _mm_movemask_epi8(_mm_packs_epi16(words, words)) & 0xff;
}
TARN_INLINE unsigned gathered(i32x4 a, i32x4 b, i32x4 c, i32x4 d) {
    return _mm_movemask_epi8(_mm_packs_epi16(_mm_packs_epi32((__m128i)a, (__m128i)b),
                                             _mm_packs_epi32((__m128i)c, (__m128i)d)));
}

}  // namespace tarn
