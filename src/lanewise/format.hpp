// What the lane-wise families know of the two formats. A format is told by the 32-bit word that holds
// sign, exponent and the top of the significand: every word in single precision, the upper one of two in
// double precision. Tests on these words serve both precisions; in double precision the lower words of
// such a test mean nothing.
#pragma once

#include "frame/lanes.hpp"

namespace tarn {

template <class Lane> struct Format;
template <> struct Format<float> {
    static constexpr std::uint32_t exponent = 0x7F800000;  // the mask, and the word of infinity
    static constexpr std::uint32_t half = 0x3F000000;      // the word of 0.5
    static constexpr int shift = 23;                       // from the word to the exponent field
    static constexpr int bias = 127;
    static constexpr std::int32_t exponent_mask = exponent;
    static constexpr std::int32_t half_bits = half;
};
template <> struct Format<double> {
    static constexpr std::uint32_t exponent = 0x7FF00000;
    static constexpr std::uint32_t half = 0x3FE00000;
    static constexpr int shift = 20;
    static constexpr int bias = 1023;
    static constexpr std::int64_t exponent_mask = 0x7FF0000000000000;
    static constexpr std::int64_t half_bits = 0x3FE0000000000000;
};

template <Floats V> TARN_INLINE WordsOf<V> magnitude_words(V x) { return words(abs(x)); }
template <Floats V> TARN_INLINE WordsOf<V> exponent_words(V x) { return words(x) & i32(Format<LaneOf<V>>::exponent); }

// From the words of V to 32-bit lanes, and the reverse.
template <Floats V> TARN_INLINE WordsOf<V> lanes_of_words(WordsOf<V> w) {
    if constexpr (Singles<V>) return w;
    else return high_words((BitsOf<V>)w);
}
template <Floats V> TARN_INLINE WordsOf<V> words_of_lanes(WordsOf<V> v) {
    if constexpr (Singles<V>) return v;
    else return words(as_high_words(v));
}

// Words outside [low, high], bounds without a sign, by one signed comparison.
template <Words W> TARN_INLINE W outside(W w, std::uint32_t low, std::uint32_t high) {
    return w - i32(low ^ 0x80000000) > i32((high - low) ^ 0x80000000);
}

// Zero, subnormal, infinity or NaN.
template <Floats V> TARN_INLINE WordsOf<V> not_normal(V x) {
    using F = Format<LaneOf<V>>;
    return outside(magnitude_words(x), 1u << F::shift, F::exponent - 1);
}

}  // namespace tarn

// A family whose kernel is one template over the lane type, in both precisions.
#define TARN_EXPORT_BOTH(shape, base, Kernel)           \
    TARN_EXPORT(shape, base##f, full, Kernel<float>)    \
    TARN_EXPORT(shape, base, full, Kernel<double>)
