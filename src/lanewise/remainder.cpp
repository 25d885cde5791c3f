// x - n y: fmod with n = x/y toward zero, remainder and remquo with n to nearest. While the exponents are
// at most 11 (double 25) apart, n is so short that its products with the two halves of y are exact, and so
// are the differences; a quotient that rounding put off by one is set right by one y. Exact everywhere.
// Wider gaps and a y that is not normal go to the callout, and for remainder and remquo a y so large
// that it cannot be doubled.
#include "callout/callouts.hpp"
#include "frame/double_word.hpp"
#include "frame/exports.hpp"
#include "lanewise/format.hpp"

namespace tarn {
namespace {

template <class Lane> struct Division;
template <> struct Division<float> {
    static constexpr int widest_gap = 11;
    static constexpr std::uint32_t large = 0x79800000;  // 2^116
};
template <> struct Division<double> {
    static constexpr int widest_gap = 25;
    static constexpr std::uint32_t large = 0x7E500000;  // 2^998, the upper word
};

// Words where the exponents are too far apart, or |y| is not in [least normal, limit).
template <class V> TARN_INLINE WordsOf<V> special(V x, V y, std::uint32_t limit) {
    using F = Format<LaneOf<V>>;
    const auto gap = exponent_words(x) - exponent_words(y);
    return (gap > Division<LaneOf<V>>::widest_gap << F::shift) |
           outside(magnitude_words(y), 1u << F::shift, limit - 1);
}

template <class Lane> struct Fmod : Kernel<Lane(Lane, Lane)> {
    static constexpr auto callout = callout::fmod<Lane>;
    static constexpr int blocks_at_a_time = 4;

    template <class V> static TARN_INLINE auto fast(V x, V y) {
        const auto sign = sign_bit(x);
        const auto q = round<Rounding::zero>(x / y);
        const auto [head, tail] = short_split(y);
        auto r = (abs(x) - xor_bits(head, sign) * q) - q * xor_bits(tail, sign);  // products at least 0
        r = r + where(r < Lane(0), abs(y));
        return Flagged{or_bits(r, sign), special(x, y, Format<Lane>::exponent)};
    }
};

// The remainder of the nearest quotient, q before it was put right, and in 32-bit lanes what puts it right.
template <class V> struct Nearest {
    V r, q;
    WordsOf<V> correction;
};
template <class V> TARN_INLINE auto nearest(V x, V y) {
    const auto q = round<Rounding::current_quiet>(x / y);
    const auto [head, tail] = short_split(y);
    const auto r = (x - head * q) - q * tail;
    const auto beyond_half = abs(r) + abs(r) > abs(y);  // half of y may round
    const auto back = or_bits(where(beyond_half, abs(y)), sign_bit(r));
    const auto result = r - back;
    const auto zero_of_x = sign_bit(x) & (result == LaneOf<V>(0));
    const auto unit = lanes_of_words<V>((words(r) ^ words(y)) >> 31) | 1;
    return Nearest<V>{or_bits(result, zero_of_x), q, unit & lanes_of_words<V>(words(beyond_half))};
}

template <class Lane> struct Remainder : Kernel<Lane(Lane, Lane)> {
    static constexpr auto callout = callout::remainder<Lane>;
    template <class V> static TARN_INLINE auto fast(V x, V y) {
        return Flagged{nearest(x, y).r, special(x, y, Division<Lane>::large)};
    }
};

template <class Lane> struct Remquo : Kernel<Both<Lane, std::int32_t>(Lane, Lane)> {
    static constexpr auto callout = callout::remquo<Lane>;
    static constexpr int blocks_at_a_time = sizeof(Lane) / 4;

    template <class V> static TARN_INLINE auto fast(V x, V y) {
        const auto [r, q, correction] = nearest(x, y);
        return FlaggedPair{r, to_i32(q) + correction, special(x, y, Division<Lane>::large)};
    }
};

}  // namespace
}  // namespace tarn

TARN_EXPORT_BOTH(binary, fmod, tarn::Fmod)
TARN_EXPORT_BOTH(binary, remainder, tarn::Remainder)
TARN_EXPORT_BOTH(binary_second, remquo, tarn::Remquo)
