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
    static TARN_INLINE auto fast(Block<Lane> x) {
        const auto significand = from_bits((bits(x) & ~F::exponent_mask) | F::half_bits);
        const i32x4 exponent = (exponent_words<Lane>(x) - splat_i32(F::half)) >> F::shift;
        return FlaggedPair{significand, lanes_of_words<Lane>(exponent), not_normal<Lane>(x)};
    }
};

// The exponent of a normal x, in 32-bit lanes.
template <class Lane> TARN_INLINE i32x4 exponent_of(Block<Lane> x) {
    using F = Format<Lane>;
    return lanes_of_words<Lane>(exponent_words<Lane>(x) >> F::shift) - splat(F::bias);
}

template <class Lane> struct Ilogb : Kernel<std::int32_t(Lane)> {
    static constexpr int lanes = 16 / sizeof(Lane);
    static constexpr auto callout = callout::ilogb<Lane>;
    static TARN_INLINE auto fast(Block<Lane> x) { return Flagged{exponent_of<Lane>(x), not_normal<Lane>(x)}; }
};

template <class Lane> struct Logb : Kernel<Lane(Lane)> {
    static constexpr auto callout = callout::logb<Lane>;
    static TARN_INLINE auto fast(Block<Lane> x) {
        const i32x4 exponent = exponent_of<Lane>(x);
        if constexpr (sizeof(Lane) == 4) return Flagged{to_f32(exponent), not_normal<Lane>(x)};
        else return Flagged{to_f64(exponent), not_normal<Lane>(x)};
    }
};

// n is held against what is left on either side of the exponent field, so that no n can wrap.
template <class Lane> struct Ldexp : Kernel<Lane(Lane, std::int32_t)> {
    using F = Format<Lane>;
    static constexpr auto callout = callout::ldexp<Lane>;
    static TARN_INLINE auto fast(Block<Lane> x, i32x4 n) {
        const i32x4 n_words = words_of_lanes<Lane>(n);
        const i32x4 field = exponent_words<Lane>(x) >> F::shift;
        const i32x4 out_of_range = (n_words > splat(2 * F::bias) - field) | (splat(1) - field > n_words);
        const auto scaled = from_bits(bits(x) + (typename F::Bits)(n_words << F::shift));
        return Flagged{scaled, out_of_range | not_normal<Lane>(x)};
    }
};

}  // namespace
}  // namespace tarn

TARN_EXPORT_BOTH(unary_second, frexp, tarn::Frexp)
TARN_EXPORT_BOTH(unary, ilogb, tarn::Ilogb)
TARN_EXPORT_BOTH(unary, logb, tarn::Logb)
TARN_EXPORT_BOTH(binary, ldexp, tarn::Ldexp)
