// fract and modf: x less its floor or its integral part, and that part through the pointer. Both are
// differences without error, but for fract of a tiny negative x, which would round to 1 and is kept at
// the largest number below it. Infinities and NaN go to the callout, and for fract the zeros too, which
// keep their sign.
#include "callout/callouts.hpp"
#include "frame/exports.hpp"
#include "lanewise/format.hpp"

namespace tarn {
namespace {

template <class Lane> struct Fract : Kernel<Both<Lane, Lane>(Lane)> {
    static constexpr auto callout = callout::fract<Lane>;
    static constexpr Lane below_one =
        sizeof(Lane) == 4 ? Lane(f32(0x3F7FFFFF)) : Lane(f64(0x3FEFFFFFFFFFFFFF));  // 1 - 2^-24, 1 - 2^-53

    template <class V> static TARN_INLINE auto fast(V x) {
        const auto floor = round<Rounding::down>(x);
        const auto zero = words(x == Lane(0));
        return FlaggedPair{min(x - floor, below_one), floor, zero | not_finite(x)};
    }
};

template <class Lane> struct Modf : Kernel<Both<Lane, Lane>(Lane)> {
    static constexpr auto callout = callout::modf<Lane>;
    template <class V> static TARN_INLINE auto fast(V x) {
        const auto integral = round<Rounding::zero>(x);
        return FlaggedPair{or_bits(x - integral, sign_bit(x)), integral, not_finite(x)};
    }
};

}  // namespace
}  // namespace tarn

TARN_EXPORT_BOTH(unary_second, fract, tarn::Fract)
TARN_EXPORT_BOTH(unary_second, modf, tarn::Modf)
