// The instructions on vectors of 32 bytes, each under the name that kernels use; simd128.hpp has the same names and
// says what they mean. Where 64-bit lanes meet as many 32-bit lanes, those are in the low half of their vector.
#pragma once

#include <immintrin.h>

#include "frame/simd128.hpp"

namespace tarn {

using f32x8 = Vector<float, 32>;
using f64x4 = Vector<double, 32>;
using i32x8 = Vector<std::int32_t, 32>;
using u32x8 = Vector<std::uint32_t, 32>;
using i64x4 = Vector<std::int64_t, 32>;
using u64x4 = Vector<std::uint64_t, 32>;

// Halves -----------------------------------------------------------------------------------------

template <class V> using HalfOf = Vector<LaneOf<V>, int(sizeof(V) / 2)>;
template <Vectors V> TARN_INLINE HalfOf<V> low_half(V v) { return (HalfOf<V>)_mm256_castsi256_si128((__m256i)v); }
template <Vectors V> TARN_INLINE HalfOf<V> high_half(V v) { return (HalfOf<V>)_mm256_extractf128_si256((__m256i)v, 1); }
template <Vectors H> TARN_INLINE auto join(H low, H high) {
    return (Vector<LaneOf<H>, 32>)_mm256_insertf128_si256(_mm256_castsi128_si256((__m128i)low), (__m128i)high, 1);
}
// The upper half zero.
template <Vectors H> TARN_INLINE auto in_low_half(H low) {
    return (Vector<LaneOf<H>, 32>)_mm256_zextsi128_si256((__m128i)low);
}

// Choice -----------------------------------------------------------------------------------------

TARN_INLINE f32x8 blended(i32x8 mask, f32x8 yes, f32x8 no) { return _mm256_blendv_ps(no, yes, (__m256)mask); }
TARN_INLINE f64x4 blended(i64x4 mask, f64x4 yes, f64x4 no) { return _mm256_blendv_pd(no, yes, (__m256d)mask); }
TARN_INLINE i32x8 blended(i32x8 mask, i32x8 yes, i32x8 no) { return (i32x8)_mm256_blendv_epi8((__m256i)no, (__m256i)yes, (__m256i)mask); }
TARN_INLINE i64x4 blended(i64x4 mask, i64x4 yes, i64x4 no) { return (i64x4)_mm256_blendv_epi8((__m256i)no, (__m256i)yes, (__m256i)mask); }

TARN_INLINE f32x8 smaller(f32x8 x, f32x8 y) { return _mm256_min_ps(x, y); }
TARN_INLINE f64x4 smaller(f64x4 x, f64x4 y) { return _mm256_min_pd(x, y); }
TARN_INLINE i32x8 smaller(i32x8 x, i32x8 y) { return (i32x8)_mm256_min_epi32((__m256i)x, (__m256i)y); }
TARN_INLINE f32x8 larger(f32x8 x, f32x8 y) { return _mm256_max_ps(x, y); }
TARN_INLINE f64x4 larger(f64x4 x, f64x4 y) { return _mm256_max_pd(x, y); }
TARN_INLINE i32x8 larger(i32x8 x, i32x8 y) { return (i32x8)_mm256_max_epi32((__m256i)x, (__m256i)y); }

// Rounding to an integral value, and roots ---------------------------------------------------------

template <Rounding mode> TARN_INLINE f32x8 round(f32x8 x) { return _mm256_round_ps(x, static_cast<int>(mode)); }
template <Rounding mode> TARN_INLINE f64x4 round(f64x4 x) { return _mm256_round_pd(x, static_cast<int>(mode)); }
TARN_INLINE f32x8 sqrt(f32x8 x) { return _mm256_sqrt_ps(x); }
TARN_INLINE f64x4 sqrt(f64x4 x) { return _mm256_sqrt_pd(x); }

TARN_INLINE f32x8 fused_multiply_add(f32x8 x, f32x8 y, f32x8 z) { return _mm256_fmadd_ps(x, y, z); }
TARN_INLINE f64x4 fused_multiply_add(f64x4 x, f64x4 y, f64x4 z) { return _mm256_fmadd_pd(x, y, z); }

// A caller's instructions for 16 bytes would have to keep what is there.
TARN_INLINE void clear_upper_halves() { _mm256_zeroupper(); }

// Between precisions -----------------------------------------------------------------------------

TARN_INLINE f64x4 widen_low(f32x8 x) { return _mm256_cvtps_pd(low_half(x)); }
TARN_INLINE f64x4 widen_high(f32x8 x) { return _mm256_cvtps_pd(high_half(x)); }
TARN_INLINE f32x8 narrow(f64x4 low, f64x4 high) {
    return join((f32x4)_mm256_cvtpd_ps(low), (f32x4)_mm256_cvtpd_ps(high));
}
TARN_INLINE f32x8 narrow(f64x4 x) { return in_low_half((f32x4)_mm256_cvtpd_ps(x)); }

TARN_INLINE i32x8 low_words(i64x4 v) {
    return (i32x8)_mm256_permutevar8x32_epi32((__m256i)v, (__m256i)i32x8{0, 2, 4, 6, 0, 2, 4, 6});
}
TARN_INLINE i32x8 high_words(i64x4 v) {
    return (i32x8)_mm256_permutevar8x32_epi32((__m256i)v, (__m256i)i32x8{1, 3, 5, 7, 1, 3, 5, 7});
}
TARN_INLINE i64x4 widen_unsigned(i32x8 v) { return (i64x4)_mm256_cvtepu32_epi64((__m128i)low_half(v)); }
TARN_INLINE i64x4 as_high_words(i32x8 v) { return widen_unsigned(v) << 32; }

// Both shuffles work in halves of their own; the permutation puts the quarters in order.
TARN_INLINE i32x8 lower_words(i64x4 low, i64x4 high) {
    const __m256 quarters = _mm256_shuffle_ps((__m256)low, (__m256)high, _MM_SHUFFLE(2, 0, 2, 0));
    return (i32x8)_mm256_permute4x64_epi64((__m256i)quarters, _MM_SHUFFLE(3, 1, 2, 0));
}
TARN_INLINE i32x8 upper_words(i64x4 low, i64x4 high) {
    const __m256 quarters = _mm256_shuffle_ps((__m256)low, (__m256)high, _MM_SHUFFLE(3, 1, 3, 1));
    return (i32x8)_mm256_permute4x64_epi64((__m256i)quarters, _MM_SHUFFLE(3, 1, 2, 0));
}

TARN_INLINE u32x8 woven_low_words(u64x4 even, u64x4 odd) {
    return (u32x8)_mm256_blend_epi32((__m256i)even, (__m256i)(odd << 32), 0xAA);
}
TARN_INLINE u32x8 woven_high_words(u64x4 even, u64x4 odd) {
    return (u32x8)_mm256_blend_epi32((__m256i)(even >> 32), (__m256i)odd, 0xAA);
}

// Between integers and floating point --------------------------------------------------------------

TARN_INLINE i32x8 to_i32(f32x8 x) { return (i32x8)_mm256_cvttps_epi32(x); }
TARN_INLINE i32x8 to_i32(f64x4 x) { return in_low_half((i32x4)_mm256_cvttpd_epi32(x)); }
TARN_INLINE i64x4 to_i64(f64x4 x) { return join(to_i64(low_half(x)), to_i64(high_half(x))); }
TARN_INLINE f32x8 to_f32(i32x8 v) { return _mm256_cvtepi32_ps((__m256i)v); }
TARN_INLINE f64x4 to_f64(i32x8 v) { return _mm256_cvtepi32_pd((__m128i)low_half(v)); }
TARN_INLINE f64x4 to_f64_high(i32x8 v) { return _mm256_cvtepi32_pd((__m128i)high_half(v)); }
TARN_INLINE i64x4 to_i64(i32x8 v) { return (i64x4)_mm256_cvtepi32_epi64((__m128i)low_half(v)); }

// Integer products ---------------------------------------------------------------------------------

TARN_INLINE u64x4 multiply_words(u64x4 a, u64x4 b) { return (u64x4)_mm256_mul_epu32((__m256i)a, (__m256i)b); }
TARN_INLINE u32x8 multiply_halves(u32x8 a, u32x8 b) { return (u32x8)_mm256_mulhi_epu16((__m256i)a, (__m256i)b); }
TARN_INLINE i32x8 difference_from_zero(i32x8 v, i32x8 w) { return (i32x8)_mm256_subs_epu16((__m256i)v, (__m256i)w); }

// Table rows, half by half: rows are loaded one by one at either size ------------------------------

TARN_INLINE f32x8 gather(const float* table, i32x8 index) {
    return join(gather(table, low_half(index)), gather(table, high_half(index)));
}
TARN_INLINE i32x8 gather(const std::uint32_t* table, i32x8 index) {
    return join(gather(table, low_half(index)), gather(table, high_half(index)));
}
TARN_INLINE f64x4 gather_low(const double* table, i32x8 index) {
    return join(gather_low(table, low_half(index)), gather_high(table, low_half(index)));
}
TARN_INLINE f64x4 gather_high(const double* table, i32x8 index) {
    return join(gather_low(table, high_half(index)), gather_high(table, high_half(index)));
}
TARN_INLINE f64x4 gather(const double* table, i64x4 index) {
    return join(gather(table, low_half(index)), gather(table, high_half(index)));
}
TARN_INLINE i64x4 gather(const std::uint64_t* table, i64x4 index) {
    return join(gather(table, low_half(index)), gather(table, high_half(index)));
}

// Rows i and i + half share a vector, so that the transposition of each half is that of all.
TARN_INLINE Columns2<f64x4> two_columns(const double* row0, const double* row1, const double* row2, const double* row3) {
    const auto at = [](const double* row) __attribute__((always_inline)) { return (f64x2)_mm_loadu_pd(row); };
    const f64x4 a = join(at(row0), at(row2)), b = join(at(row1), at(row3));
    return {_mm256_unpacklo_pd(a, b), _mm256_unpackhi_pd(a, b)};
}
template <int column = 0, class Entry, std::size_t count>
TARN_INLINE Columns2<f64x4> gather_columns(const Entry (*table)[count], i64x4 index) {
    const auto at = [&](std::int64_t row) __attribute__((always_inline)) { return doubles_at(table[row] + column); };
    const i64x2 low = low_half(index), high = high_half(index);
    return two_columns(at(low[0]), at(low[1]), at(high[0]), at(high[1]));
}
template <int column, class Entry, std::size_t count>
TARN_INLINE Columns2<f64x4> gather_columns_of_four(const Entry (*table)[count], i32x4 index) {
    const auto [a, b, c, d] = rows(index).row;
    const auto at = [&](std::uint64_t row) __attribute__((always_inline)) { return doubles_at(table[row] + column); };
    return two_columns(at(a), at(b), at(c), at(d));
}
template <int column = 0, class Entry, std::size_t count>
TARN_INLINE Columns2<f64x4> gather_columns_low(const Entry (*table)[count], i32x8 index) {
    return gather_columns_of_four<column>(table, low_half(index));
}
template <int column = 0, class Entry, std::size_t count>
TARN_INLINE Columns2<f64x4> gather_columns_high(const Entry (*table)[count], i32x8 index) {
    return gather_columns_of_four<column>(table, high_half(index));
}

template <int column = 0, class Entry, std::size_t count>
TARN_INLINE Columns2<f32x8> gather_pairs(const Entry (*table)[count], i32x8 index) {
    const auto [a, b, c, d] = rows(low_half(index)).row;
    const auto [e, f, g, h] = rows(high_half(index)).row;
    const auto two = [&](std::uint64_t row, std::uint64_t next) __attribute__((always_inline)) {
        return (f64x2)_mm_loadh_pd(_mm_load_sd(pair_at(table[row] + column)), pair_at(table[next] + column));
    };
    const __m256 first = (__m256)join(two(a, b), two(e, f)), second = (__m256)join(two(c, d), two(g, h));
    return {_mm256_shuffle_ps(first, second, _MM_SHUFFLE(2, 0, 2, 0)),
            _mm256_shuffle_ps(first, second, _MM_SHUFFLE(3, 1, 3, 1))};
}
template <int column = 0, class Entry, std::size_t count>
TARN_INLINE Columns4<f32x8> gather_quads(const Entry (*table)[count], i32x8 index) {
    const auto [a, b, c, d] = rows(low_half(index)).row;
    const auto [e, f, g, h] = rows(high_half(index)).row;
    const auto two = [&](std::uint64_t row, std::uint64_t other) __attribute__((always_inline)) {
        return join(quad_at(table[row] + column), quad_at(table[other] + column));
    };
    const __m256 ae = two(a, e), bf = two(b, f), cg = two(c, g), dh = two(d, h);
    const __m256 low_ab = _mm256_unpacklo_ps(ae, bf), high_ab = _mm256_unpackhi_ps(ae, bf);
    const __m256 low_cd = _mm256_unpacklo_ps(cg, dh), high_cd = _mm256_unpackhi_ps(cg, dh);
    return {_mm256_shuffle_ps(low_ab, low_cd, _MM_SHUFFLE(1, 0, 1, 0)),
            _mm256_shuffle_ps(low_ab, low_cd, _MM_SHUFFLE(3, 2, 3, 2)),
            _mm256_shuffle_ps(high_ab, high_cd, _MM_SHUFFLE(1, 0, 1, 0)),
            _mm256_shuffle_ps(high_ab, high_cd, _MM_SHUFFLE(3, 2, 3, 2))};
}

// Masks --------------------------------------------------------------------------------------------

TARN_INLINE unsigned gathered(i32x8 mask) { return static_cast<unsigned>(_mm256_movemask_ps((__m256)mask)); }
TARN_INLINE unsigned gathered(i64x4 mask) { return static_cast<unsigned>(_mm256_movemask_pd((__m256d)mask)); }

}  // namespace tarn
