// Rounding to an integral value: the processor's round instruction in its five modes, and round, whose
// halves go away from zero. Every x; exact. rint and nearbyint follow the caller's rounding mode, and
// rint raises inexact.
#include "frame/exports.hpp"
#include "lanewise/format.hpp"

namespace tarn {
namespace {

template <class Lane, Rounding mode> struct RoundInstruction : Kernel<Lane(Lane)> {
    template <class V> static TARN_INLINE auto fast(V x) { return round<mode>(x); }
};
template <class Lane> struct Ceil : RoundInstruction<Lane, Rounding::up> {};
template <class Lane> struct Floor : RoundInstruction<Lane, Rounding::down> {};
template <class Lane> struct Trunc : RoundInstruction<Lane, Rounding::zero> {};
template <class Lane> struct Rint : RoundInstruction<Lane, Rounding::current> {};
template <class Lane> struct NearbyInt : RoundInstruction<Lane, Rounding::current_quiet> {};

// A tie that went down to an even integer is taken up.
template <class Lane> struct Round : Kernel<Lane(Lane)> {
    template <class V> static TARN_INLINE auto fast(V x) {
        const auto magnitude = abs(x);
        const auto even = round<Rounding::nearest>(magnitude);
        const auto tied_down = magnitude - even == Lane(0.5);
        const auto one_if = where(tied_down, Lane(1));
        return or_bits(even + one_if, sign_bit(x));
    }
};

}  // namespace
}  // namespace tarn

TARN_EXPORT_BOTH(unary, ceil, tarn::Ceil)
TARN_EXPORT_BOTH(unary, floor, tarn::Floor)
TARN_EXPORT_BOTH(unary, trunc, tarn::Trunc)
TARN_EXPORT_BOTH(unary, rint, tarn::Rint)
TARN_EXPORT_BOTH(unary, nearbyint, tarn::NearbyInt)
TARN_EXPORT_BOTH(unary, round, tarn::Round)
