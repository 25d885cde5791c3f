// x - n y: fmod with n = x/y toward zero, remainder and remquo with n to nearest. While the exponents are
// at most 11 (double 25) apart, n is so short that its products with the two halves of y are exact, and so
// are the differences; a quotient that rounding put off by one is set right by one y. Exact everywhere.
// Wider gaps and a y that is not normal go to the callout, and for remainder and remquo a y so large
// that it cannot be doubled.
#include "callout/callouts.hpp"
#include "frame/exports.hpp"
#include "lanewise/format.hpp"

namespace tarn {
namespace {

template <class Lane> struct Division;
template <> struct Division<float> {
    static constexpr i32x4 head = splat_i32(0xFFFFF000);
    static constexpr int widest_gap = 11;
    static constexpr std::uint32_t large = 0x79800000;  // 2^116
};
template <> struct Division<double> {
    static constexpr i64x2 head = splat_i64(0xFFFFFFFFF8000000);
    static constexpr int widest_gap = 25;
    static constexpr std::uint32_t large = 0x7E500000;  // 2^998, the upper word
};

// Words where the exponents are too far apart, or |y| is not in [least normal, limit).
template <class Lane> TARN_INLINE i32x4 special(Block<Lane> x, Block<Lane> y, std::uint32_t limit) {
    using F = Format<Lane>;
    const i32x4 gap = exponent_words<Lane>(x) - exponent_words<Lane>(y);
    return (gap > splat(Division<Lane>::widest_gap << F::shift)) |
           outside(magnitude_words<Lane>(y), 1u << F::shift, limit - 1);
}

// y in a head, short enough for exact products, and a tail.
template <class V> struct Halves { V head, tail; };
template <class Lane> TARN_INLINE Halves<Block<Lane>> halves(Block<Lane> y) {
    const auto head = from_bits(bits(y) & Division<Lane>::head);
    return {head, y - head};
}

template <class Lane> struct Fmod : Kernel<Lane(Lane, Lane)> {
    static constexpr auto callout = callout::fmod<Lane>;
    static constexpr int at_a_time = sizeof(Lane) == 8 ? 8 : 16;

    static TARN_INLINE auto fast(Block<Lane> x, Block<Lane> y) {
        const auto sign = sign_bit(x);
        const auto q = round<Rounding::zero>(x / y);
        const auto [head, tail] = halves<Lane>(y);
        auto r = (abs(x) - xor_bits(head, sign) * q) - q * xor_bits(tail, sign);  // products at least 0
        r = r + from_bits(bits(abs(y)) & (r < splat(Lane(0))));
        return Flagged{or_bits(r, sign), special<Lane>(x, y, Format<Lane>::exponent)};
    }
};

// The remainder of the nearest quotient, q before it was put right, and in 32-bit lanes what puts it right.
template <class V> struct Nearest {
    V r, q;
    i32x4 correction;
};
template <class Lane> TARN_INLINE auto nearest(Block<Lane> x, Block<Lane> y) {
    const auto q = round<Rounding::current_quiet>(x / y);
    const auto [head, tail] = halves<Lane>(y);
    const auto r = (x - head * q) - q * tail;
    const auto beyond_half = abs(r) + abs(r) > abs(y);  // half of y may round
    const auto back = from_bits((bits(abs(y)) & beyond_half) | sign_bit(r));
    const auto result = r - back;
    const auto zero_of_x = sign_bit(x) & (result == splat(Lane(0)));
    const i32x4 unit = lanes_of_words<Lane>((words<Lane>(r) ^ words<Lane>(y)) >> 31) | 1;
    return Nearest<Block<Lane>>{or_bits(result, zero_of_x), q, unit & lanes_of_words<Lane>((i32x4)beyond_half)};
}

template <class Lane> struct Remainder : Kernel<Lane(Lane, Lane)> {
    static constexpr auto callout = callout::remainder<Lane>;
    static TARN_INLINE auto fast(Block<Lane> x, Block<Lane> y) {
        return Flagged{nearest<Lane>(x, y).r, special<Lane>(x, y, Division<Lane>::large)};
    }
};

template <class Lane> struct Remquo : Kernel<Both<Lane, std::int32_t>(Lane, Lane)> {
    static constexpr auto callout = callout::remquo<Lane>;
    static constexpr int at_a_time = 4;

    static TARN_INLINE auto fast(Block<Lane> x, Block<Lane> y) {
        const auto [r, q, correction] = nearest<Lane>(x, y);
        return FlaggedPair{r, to_i32(q) + correction, special<Lane>(x, y, Division<Lane>::large)};
    }
};

}  // namespace
}  // namespace tarn

TARN_EXPORT_BOTH(binary, fmod, tarn::Fmod)
TARN_EXPORT_BOTH(binary, remainder, tarn::Remainder)
TARN_EXPORT_BOTH(binary_second, remquo, tarn::Remquo)
