// The steps of tanh x, for kernels and callouts: the part of the line that |x| lies in, and the sum around its middle.
#pragma once

#include "frame/simd.hpp"

namespace tarn::doubles {

#include "tables/tanh_parts.inc"

// The row, |x| less its point, and the upper word without all but its first three fraction bits.
template <class V> struct TanhPlace {
    BitsOf<V> row;
    V h, head;
    WordsOf<V> top;
};
template <class V> TARN_INLINE TanhPlace<V> tanh_place(V x) {
    constexpr std::int32_t first = 0x3FBE0000;  // upper word of 0.1171875: one part below 1/8
    constexpr std::int32_t last = 59 << 17;     // 59 parts on
    constexpr double largest = 32.0;            // no power of what lies above overflows
    const WordsOf<V> top = words(x) & 0x7FFE0000;
    const WordsOf<V> part = min(max(top - first, 0), last);
    const BitsOf<V> row = shift_right_logical((BitsOf<V>)part, 32 + 17);
    const auto [c, head] = gather_columns(tanh_parts, row);
    return {row, min(abs(x), largest) - c, head, top};
}

// The columns lie in the order of their use, so that few are held at a time.
template <class V> TARN_INLINE V tanh_sum(V x, const TanhPlace<V>& place) {
    const auto [row, h, head, top] = place;
    const auto [q10, tail] = gather_columns<2>(tanh_parts, row);
    const auto [q8, q9] = gather_columns<4>(tanh_parts, row);
    const auto [q6, q7] = gather_columns<6>(tanh_parts, row);
    const auto [q4, q5] = gather_columns<8>(tanh_parts, row);
    const auto [q2, q3] = gather_columns<10>(tanh_parts, row);
    const auto [q0, q1] = gather_columns<12>(tanh_parts, row);
    const V slope = gather_columns<14>(tanh_parts, row).first;
    const V h2 = h * h;
    const V q = horner(h2, q10, q8, q6, q4, q2, q0) + horner(h2, q9, q7, q5, q3, q1) * h;
    return or_bits(head + (slope * h + (h2 * q + tail)), sign_bit(x));
}

}  // namespace tarn::doubles
