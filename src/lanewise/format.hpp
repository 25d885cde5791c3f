// What the lane-wise families know of the two formats. A format is told by the 32-bit word that holds
// sign, exponent and the top of the significand: every word of a single-precision block, the upper one
// of two in double precision. Tests on these words serve both precisions; in double precision the lower
// words of such a test mean nothing.
#pragma once

#include "frame/lanes.hpp"

namespace tarn {

template <class Lane> struct Format;
template <> struct Format<float> {
    using Bits = i32x4;
    static constexpr std::uint32_t exponent = 0x7F800000;  // the mask, and the word of infinity
    static constexpr std::uint32_t half = 0x3F000000;      // the word of 0.5
    static constexpr int shift = 23;                       // from the word to the exponent field
    static constexpr int bias = 127;
    static constexpr Bits exponent_mask = splat_i32(exponent);
    static constexpr Bits half_bits = splat_i32(half);
};
template <> struct Format<double> {
    using Bits = i64x2;
    static constexpr std::uint32_t exponent = 0x7FF00000;
    static constexpr std::uint32_t half = 0x3FE00000;
    static constexpr int shift = 20;
    static constexpr int bias = 1023;
    static constexpr Bits exponent_mask = splat_i64(0x7FF0000000000000);
    static constexpr Bits half_bits = splat_i64(0x3FE0000000000000);
};

template <class Lane> TARN_INLINE i32x4 words(Block<Lane> x) { return (i32x4)x; }
template <class Lane> TARN_INLINE i32x4 magnitude_words(Block<Lane> x) { return words<Lane>(abs(x)); }
template <class Lane> TARN_INLINE i32x4 exponent_words(Block<Lane> x) {
    return words<Lane>(x) & splat_i32(Format<Lane>::exponent);
}

// From the words to 32-bit lanes, and the reverse.
template <class Lane> TARN_INLINE i32x4 lanes_of_words(i32x4 w) {
    if constexpr (sizeof(Lane) == 4) return w;
    else return high_words((i64x2)w);
}
template <class Lane> TARN_INLINE i32x4 words_of_lanes(i32x4 v) {
    if constexpr (sizeof(Lane) == 4) return v;
    else return (i32x4)as_high_words(v);
}

// Words outside [low, high], bounds without a sign, by one signed comparison.
TARN_INLINE i32x4 outside(i32x4 w, std::uint32_t low, std::uint32_t high) {
    return w - splat_i32(low ^ 0x80000000) > splat_i32((high - low) ^ 0x80000000);
}

// Infinity or NaN.
template <class Lane> TARN_INLINE i32x4 not_finite(Block<Lane> x) {
    return magnitude_words<Lane>(x) > splat_i32(Format<Lane>::exponent - 1);
}

// Zero, subnormal, infinity or NaN.
template <class Lane> TARN_INLINE i32x4 not_normal(Block<Lane> x) {
    return outside(magnitude_words<Lane>(x), 1u << Format<Lane>::shift, Format<Lane>::exponent - 1);
}

}  // namespace tarn

// A family whose kernel is one template over the lane type, in both precisions.
#define TARN_EXPORT_BOTH(shape, base, Kernel)           \
    TARN_EXPORT(shape, base##f, full, Kernel<float>)    \
    TARN_EXPORT(shape, base, full, Kernel<double>)
