// frexp, ilogb and logb, which read the exponent field, and ldexp, which adds to it. Exact; ldexp rounds
// once where its result is subnormal. Lanes whose own exponent field does not say the exponent (zeros,
// subnormals, infinities, NaN), and for ldexp those whose result has another kind, go to the callout.
#include "callout/callouts.hpp"
#include "frame/exports.hpp"
#include "lanewise/format.hpp"

namespace tarn {
namespace {

template <class Lane> struct Frexp : Kernel<Both<Lane, std::int32_t>(Lane)> {
    using F = Format<Lane>;
    static constexpr auto callout = callout::frexp<Lane>;
    template <class V> static TARN_INLINE auto fast(V x) {
        const auto significand = from_bits((bits(x) & ~F::exponent_mask) | F::half_bits);
        const auto exponent = (exponent_words(x) - i32(F::half)) >> F::shift;
        return FlaggedPair{significand, lanes_of_words<V>(exponent), not_normal(x)};
    }
};

// The exponent of a normal x, in 32-bit lanes.
template <class V> TARN_INLINE WordsOf<V> exponent_of(V x) {
    using F = Format<LaneOf<V>>;
    return lanes_of_words<V>(exponent_words(x) >> F::shift) - F::bias;
}

template <class Lane> struct Ilogb : Kernel<std::int32_t(Lane)> {
    static constexpr int lanes = 16 / sizeof(Lane);
    static constexpr auto callout = callout::ilogb<Lane>;
    template <class V> static TARN_INLINE auto fast(V x) { return Flagged{exponent_of(x), not_normal(x)}; }
};

template <class Lane> struct Logb : Kernel<Lane(Lane)> {
    static constexpr auto callout = callout::logb<Lane>;
    template <class V> static TARN_INLINE auto fast(V x) {
        const auto exponent = exponent_of(x);
        if constexpr (sizeof(Lane) == 4) return Flagged{to_f32(exponent), not_normal(x)};
        else return Flagged{to_f64(exponent), not_normal(x)};
    }
};

// n is held against what is left on either side of the exponent field, so that no n can wrap.
template <class Lane> struct Ldexp : Kernel<Lane(Lane, std::int32_t)> {
    using F = Format<Lane>;
    static constexpr auto callout = callout::ldexp<Lane>;
    template <class V> static TARN_INLINE auto fast(V x, WordsOf<V> n) {
        const auto n_words = words_of_lanes<V>(n);
        const auto field = exponent_words(x) >> F::shift;
        const auto out_of_range = (n_words > 2 * F::bias - field) | (1 - field > n_words);
        const auto scaled = from_bits(bits(x) + (BitsOf<V>)(n_words << F::shift));
        return Flagged{scaled, out_of_range | not_normal(x)};
    }
};

}  // namespace
}  // namespace tarn

TARN_EXPORT_BOTH(unary_second, frexp, tarn::Frexp)
TARN_EXPORT_BOTH(unary, ilogb, tarn::Ilogb)
TARN_EXPORT_BOTH(unary, logb, tarn::Logb)
TARN_EXPORT_BOTH(binary, ldexp, tarn::Ldexp)
