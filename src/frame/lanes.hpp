// Between the vectors of the calling convention and the lane groups that kernels compute on.
//
// A group is as many lanes as a kernel takes at a time: 4 in single precision, 2 in double. Groups of
// 16 bytes are one block; two 32-bit lanes travel in the low half of a block; four 64-bit lanes are two
// blocks. A kernel may also declare groups of one lane, which are plain scalars.
#pragma once

#include "frame/abi.hpp"

namespace tarn {

template <class Lane> struct BlockOf;
template <> struct BlockOf<float> { using type = f32x4; };
template <> struct BlockOf<double> { using type = f64x2; };
template <> struct BlockOf<std::int32_t> { using type = i32x4; };
template <> struct BlockOf<std::uint32_t> { using type = u32x4; };
template <> struct BlockOf<std::int64_t> { using type = i64x2; };
template <> struct BlockOf<std::uint64_t> { using type = u64x2; };
template <class Lane> using Block = typename BlockOf<Lane>::type;

// Four 64-bit lanes.
template <class Lane> struct Quad { Block<Lane> low, high; };

template <class Lane, int lanes>
using Group = std::conditional_t<lanes == 1, Lane,
              std::conditional_t<lanes * sizeof(Lane) <= 16, Block<Lane>, Quad<Lane>>>;

// Block i of a vector. A short vector is repeated to fill its block, so that the lanes beyond it
// compute what a real lane computes and raise no flag of their own.
template <class Lane, int width>
TARN_INLINE Block<Lane> block(const Vec<Lane, width>& v, int i) {
    if constexpr (in_memory<Lane, width>) {
        return v.block[i];
    } else if constexpr (width == 1 && sizeof(Lane) == 4) {
        return Block<Lane>{v, v, v, v};
    } else if constexpr (width == 1) {
        return Block<Lane>{v, v};
    } else if constexpr (width == 2 && sizeof(Lane) == 4) {
        return Block<Lane>{v[0], v[1], v[0], v[1]};
    } else {
        return v;
    }
}

// The upper two 32-bit lanes, moved down.
template <class V> TARN_INLINE V upper_half(V v) { return V{v[2], v[3], v[2], v[3]}; }

template <class V> TARN_INLINE V join_halves(V low, V high) { return V{low[0], low[1], high[0], high[1]}; }

template <int lanes, class Lane, int width>
TARN_INLINE Group<Lane, lanes> group(const Vec<Lane, width>& v, int i) {
    if constexpr (lanes == 1 && width == 1) {
        return v;
    } else if constexpr (lanes == 1) {
        constexpr int per_block = 16 / sizeof(Lane);
        return block<Lane, width>(v, i / per_block)[i % per_block];
    } else if constexpr (lanes * sizeof(Lane) == 16) {
        return block<Lane, width>(v, i);
    } else if constexpr (lanes * sizeof(Lane) == 8) {
        const auto whole = block<Lane, width>(v, i / 2);
        return i % 2 ? upper_half(whole) : whole;
    } else if constexpr (width <= 2) {
        return {block<Lane, width>(v, 0), block<Lane, width>(v, 0)};
    } else {
        return {block<Lane, width>(v, 2 * i), block<Lane, width>(v, 2 * i + 1)};
    }
}

// A vector from its groups.
template <int lanes, class Lane, int width, int count>
TARN_INLINE Vec<Lane, width> vector_of(const Group<Lane, lanes> (&groups)[count]) {
    Vec<Lane, width> v;
    if constexpr (width == 1 && lanes == 1) {
        v = groups[0];
    } else if constexpr (lanes == 1) {
        constexpr int per_block = 16 / sizeof(Lane);
        for (int i = 0; i < count; i++) {
            if constexpr (in_memory<Lane, width>) v.block[i / per_block][i % per_block] = groups[i];
            else v[i] = groups[i];
        }
    } else if constexpr (lanes * sizeof(Lane) == 16) {
        if constexpr (in_memory<Lane, width>) for (int i = 0; i < count; i++) v.block[i] = groups[i];
        else if constexpr (width == 1) v = groups[0][0];
        else if constexpr (width == 2 && sizeof(Lane) == 4) v = Vec<Lane, width>{groups[0][0], groups[0][1]};
        else v = groups[0];
    } else if constexpr (lanes * sizeof(Lane) == 8) {
        if constexpr (in_memory<Lane, width>)
            for (int i = 0; i < count; i += 2) v.block[i / 2] = join_halves(groups[i], groups[i + 1]);
        else if constexpr (width == 1) v = groups[0][0];
        else if constexpr (width == 2) v = Vec<Lane, width>{groups[0][0], groups[0][1]};
        else v = join_halves(groups[0], groups[1]);
    } else {
        if constexpr (width == 1) v = groups[0].low[0];
        else if constexpr (width == 2) v = groups[0].low;
        else for (int i = 0; i < count; i++) {
            v.block[2 * i] = groups[i].low;
            v.block[2 * i + 1] = groups[i].high;
        }
    }
    return v;
}

// Replaces the lane that width 3 carries without meaning.
template <class Lane, int lanes>
TARN_INLINE Group<Lane, lanes> with_last_lane(Group<Lane, lanes> g, Lane value) {
    if constexpr (lanes * sizeof(Lane) > 16) g.high[1] = value;
    else g[lanes - 1] = value;
    return g;
}

// Special-lane masks -----------------------------------------------------------------------------
// A kernel marks a special lane by the sign bit of its 32- or 64-bit mask lane. The masks of a call
// are narrowed until their sign bits can be gathered at once, bit i for lane i.

TARN_INLINE unsigned gathered(i32x4 mask) { return _mm_movemask_ps((__m128)mask); }
TARN_INLINE unsigned gathered(i64x2 mask) { return _mm_movemask_pd((__m128d)mask); }

// Up to 16 lanes with signed saturation, 32 to 16 to 8 bits; a missing block is a repeated one.
TARN_INLINE unsigned gathered(i32x4 a, i32x4 b) {
    const __m128i words = _mm_packs_epi32((__m128i)a, (__m128i)b);
    return _mm_movemask_epi8(_mm_packs_epi16(words, words)) & 0xff;
}
TARN_INLINE unsigned gathered(i32x4 a, i32x4 b, i32x4 c, i32x4 d) {
    return _mm_movemask_epi8(_mm_packs_epi16(_mm_packs_epi32((__m128i)a, (__m128i)b),
                                             _mm_packs_epi32((__m128i)c, (__m128i)d)));
}

// The mask bits of a call whose groups hold `lanes` lanes each.
template <int lanes, class Mask, int count>
TARN_INLINE unsigned special_bits(const Mask (&m)[count]) {
    if constexpr (lanes == 1) {
        unsigned all = 0;
        for (int i = 0; i < count; i++) all |= static_cast<unsigned>(m[i]) << i;
        return all;
    } else if constexpr (lanes == 2) {
        if constexpr (count == 1) return gathered((i64x2)m[0]);
        else if constexpr (count == 2) return gathered(upper_words(m[0], m[1]));
        else if constexpr (count == 4) return gathered(upper_words(m[0], m[1]), upper_words(m[2], m[3]));
        else return gathered(upper_words(m[0], m[1]), upper_words(m[2], m[3]),
                             upper_words(m[4], m[5]), upper_words(m[6], m[7]));
    } else {
        if constexpr (count == 1) return gathered(m[0]);
        else if constexpr (count == 2) return gathered(m[0], m[1]);
        else return gathered(m[0], m[1], m[2], m[3]);
    }
}

}  // namespace tarn
