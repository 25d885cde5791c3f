// Between the vectors of the calling convention and the groups of lanes that kernels compute on.
//
// A group is as many lanes as a kernel takes at a time. The frame computes on blocks of 16 or 32 bytes; a kernel says
// how many lanes make a group where blocks have 16 bytes, and a block of 32 holds twice as many. Lanes that fill a
// block are one; lanes half as wide lie in the low half of a block, lanes twice as wide in two blocks. A kernel may
// also declare groups of one lane, which are plain scalars.
#pragma once

#include "frame/abi.hpp"

namespace tarn {

// Two blocks of lanes.
template <class V> struct Twice { V low, high; };

template <class Lane, int lanes, int bytes>
using Group = std::conditional_t<lanes == 1, Lane,
              std::conditional_t<lanes * sizeof(Lane) <= bytes, Vector<Lane, bytes>, Twice<Vector<Lane, bytes>>>>;

// Block i of 16 bytes of a vector. Lanes beyond those of a short vector repeat a real one: they compute what it
// computes and raise no flag of their own. The compiler must not see that they do not matter, or it would compute
// them from whatever it finds.
template <class Lane, int width>
TARN_INLINE Vector<Lane, 16> block(const Vec<Lane, width>& v, int i) {
    using Block = Vector<Lane, 16>;
    if constexpr (in_blocks<Lane, width>) {
        if constexpr (width == 3)
            if (i == 1) return opaque(filled<Block>(v.block[1][0]));
        return v.block[i];
    } else if constexpr (width == 1) {
        return opaque(filled<Block>(v));
    } else if constexpr (width == 2 && sizeof(Lane) == 4) {
        return opaque(Block{v[0], v[1], v[0], v[1]});
    } else if constexpr (width == 3) {
        return opaque(Block{v[0], v[1], v[2], v[2]});
    } else {
        return v;
    }
}

// The upper two 32-bit lanes, moved down.
template <class V> TARN_INLINE V upper_half(V v) { return V{v[2], v[3], v[2], v[3]}; }

template <class V> TARN_INLINE V join_halves(V low, V high) { return V{low[0], low[1], high[0], high[1]}; }

#ifdef __AVX2__
// Two blocks of an argument as one. The caller may have written it 16 bytes at a time, and one load of both blocks
// would wait for both stores; the compiler would make one load of anything it could see through.
template <class Lane, int width>
TARN_INLINE Vector<Lane, 32> two_blocks(const Vec<Lane, width>& v, int i) {
    if constexpr (width == 3) {
        return join(opaque(v.block[i]), block<Lane, width>(v, i + 1));
    } else {
        Vector<Lane, 32> both;
        asm("vinsertf128 $1, %2, %t1, %0" : "=x"(both) : "x"(v.block[i]), "m"(v.block[i + 1]));
        return both;
    }
}
#endif

template <int lanes, int bytes, class Lane, int width>
TARN_INLINE Group<Lane, lanes, bytes> group(const Vec<Lane, width>& v, int i) {
    constexpr int size = lanes * sizeof(Lane);
    if constexpr (lanes == 1 && width == 1) {
        return v;
    } else if constexpr (lanes == 1) {
        constexpr int per_block = 16 / sizeof(Lane);
        return block<Lane, width>(v, i / per_block)[i % per_block];
    } else if constexpr (bytes == 16) {
        if constexpr (size == 16) {
            return block<Lane, width>(v, i);
        } else if constexpr (size == 8) {
            const auto whole = block<Lane, width>(v, i / 2);
            return i % 2 ? upper_half(whole) : whole;
        } else if constexpr (width <= 2) {
            return {block<Lane, width>(v, 0), block<Lane, width>(v, 0)};
        } else {
            return {block<Lane, width>(v, 2 * i), block<Lane, width>(v, 2 * i + 1)};
        }
    } else {
#ifdef __AVX2__
        if constexpr (size == 32) return two_blocks<Lane, width>(v, 2 * i);
        else if constexpr (size == 16) return in_low_half(block<Lane, width>(v, i));
        else return {two_blocks<Lane, width>(v, 4 * i), two_blocks<Lane, width>(v, 4 * i + 2)};
#endif
    }
}

// A vector from its groups.
template <int lanes, int bytes, class Lane, int width, int count>
TARN_INLINE Vec<Lane, width> vector_of(const Group<Lane, lanes, bytes> (&groups)[count]) {
    constexpr int size = lanes * sizeof(Lane);
    Vec<Lane, width> v;
    if constexpr (width == 1 && lanes == 1) {
        v = groups[0];
    } else if constexpr (lanes == 1) {
        constexpr int per_block = 16 / sizeof(Lane);
        for (int i = 0; i < count; i++) {
            if constexpr (in_blocks<Lane, width>) v.block[i / per_block][i % per_block] = groups[i];
            else v[i] = groups[i];
        }
    } else if constexpr (bytes == 16) {
        if constexpr (size == 16) {
            if constexpr (in_blocks<Lane, width>) for (int i = 0; i < count; i++) v.block[i] = groups[i];
            else if constexpr (width == 1) v = groups[0][0];
            else if constexpr (width == 2 && sizeof(Lane) == 4) v = Vec<Lane, width>{groups[0][0], groups[0][1]};
            else v = groups[0];
        } else if constexpr (size == 8) {
            if constexpr (in_blocks<Lane, width>)
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
    } else {
#ifdef __AVX2__
        const auto put = [](auto& v, int i, auto two) __attribute__((always_inline)) {
            v.block[i] = low_half(two);
            v.block[i + 1] = high_half(two);
        };
        if constexpr (size == 32) {
            for (int i = 0; i < count; i++) put(v, 2 * i, groups[i]);
        } else if constexpr (size == 16) {
            if constexpr (in_blocks<Lane, width>) for (int i = 0; i < count; i++) v.block[i] = low_half(groups[i]);
            else v = low_half(groups[0]);
        } else {
            for (int i = 0; i < count; i++) {
                put(v, 4 * i, groups[i].low);
                put(v, 4 * i + 2, groups[i].high);
            }
        }
#endif
    }
    return v;
}

// The mask bits of a call whose groups hold `lanes` lanes each, bit i for lane i. A kernel marks a special lane by
// the sign bit of its 32- or 64-bit mask lane.
template <int lanes, class Mask, int count>
TARN_INLINE unsigned special_bits(const Mask (&m)[count]) {
    if constexpr (lanes == 1) {
        unsigned all = 0;
        for (int i = 0; i < count; i++) all |= static_cast<unsigned>(m[i]) << i;
        return all;
    } else {
        using Sign = Like<Mask, std::conditional_t<sizeof(Mask) / lanes == 8, std::int64_t, std::int32_t>>;
        if constexpr (sizeof(Mask) > 16 || count == 1) {
            unsigned all = 0;
            for (int i = 0; i < count; i++) all |= gathered((Sign)m[i]) << (i * lanes);
            return all;
        } else if constexpr (lanes == 2) {
            const auto two = [&](int i) __attribute__((always_inline)) { return upper_words((i64x2)m[i], (i64x2)m[i + 1]); };
            if constexpr (count == 2) return gathered(two(0));
            else if constexpr (count == 4) return gathered(two(0), two(2));
            else return gathered(two(0), two(2), two(4), two(6));
        } else {
            if constexpr (count == 2) return gathered(m[0], m[1]);
            else return gathered(m[0], m[1], m[2], m[3]);
        }
    }
}

}  // namespace tarn
