// The neighbour of x toward y: one step of the bit pattern. Where the signs differ and both are normal
// the step is toward zero; the callout does the rest: equal signs, zeros, subnormals, infinities, NaN,
// and the step out of the normal numbers.
#include "callout/callouts.hpp"
#include "frame/exports.hpp"
#include "lanewise/format.hpp"

namespace tarn {
namespace {

template <class Lane> struct NextAfter : Kernel<Lane(Lane, Lane)> {
    static constexpr auto callout = callout::nextafter<Lane>;
    template <class V> static TARN_INLINE auto fast(V x, V y) {
        const auto toward_zero = from_bits(bits(x) - 1);
        const auto same_sign = ~(words(x) ^ words(y));  // in the sign bit
        return Flagged{toward_zero,
                       not_normal(x) | not_normal(y) | not_normal(toward_zero) | same_sign};
    }
};

}  // namespace
}  // namespace tarn

TARN_EXPORT_BOTH(binary, nextafter, tarn::NextAfter)
