// The smaller, the larger, the one larger or smaller in magnitude, and the positive difference. Exact
// (fdim: one rounding). Ordinary lanes are one or a few of the processor's comparisons, whose answer
// for two zeros is the second operand; lanes with an infinity or a NaN go to the callout, where one
// NaN is ignored.
#include "callout/callouts.hpp"
#include "frame/exports.hpp"
#include "lanewise/format.hpp"

namespace tarn {
namespace {

template <class V> TARN_INLINE WordsOf<V> either_not_finite(V x, V y) {
    return not_finite(x) | not_finite(y);
}

template <class Lane> struct Fmin : Kernel<Lane(Lane, Lane)> {
    static constexpr auto callout = callout::fmin<Lane>;
    template <class V> static TARN_INLINE auto fast(V x, V y) {
        return Flagged{min(x, y), either_not_finite(x, y)};
    }
};

template <class Lane> struct Fmax : Kernel<Lane(Lane, Lane)> {
    static constexpr auto callout = callout::fmax<Lane>;
    template <class V> static TARN_INLINE auto fast(V x, V y) {
        return Flagged{max(x, y), either_not_finite(x, y)};
    }
};

template <class Lane> struct MaxMag : Kernel<Lane(Lane, Lane)> {
    static constexpr auto callout = callout::maxmag<Lane>;
    template <class V> static TARN_INLINE auto fast(V x, V y) {
        const auto unequal = select(abs(x) > abs(y), x, y);
        return Flagged{select(abs(x) == abs(y), max(y, x), unequal), either_not_finite(x, y)};
    }
};

template <class Lane> struct MinMag : Kernel<Lane(Lane, Lane)> {
    static constexpr auto callout = callout::minmag<Lane>;
    template <class V> static TARN_INLINE auto fast(V x, V y) {
        const auto unequal = select(abs(x) < abs(y), x, y);
        return Flagged{select(abs(x) == abs(y), min(y, x), unequal), either_not_finite(x, y)};
    }
};

template <class Lane> struct Fdim : Kernel<Lane(Lane, Lane)> {
    static constexpr auto callout = callout::fdim<Lane>;
    template <class V> static TARN_INLINE auto fast(V x, V y) {
        return Flagged{where(y < x, x - y), either_not_finite(x, y)};
    }
};

}  // namespace
}  // namespace tarn

TARN_EXPORT_BOTH(binary, fmin, tarn::Fmin)
TARN_EXPORT_BOTH(binary, fmax, tarn::Fmax)
TARN_EXPORT_BOTH(binary, maxmag, tarn::MaxMag)
TARN_EXPORT_BOTH(binary, minmag, tarn::MinMag)
TARN_EXPORT_BOTH(binary, fdim, tarn::Fdim)
