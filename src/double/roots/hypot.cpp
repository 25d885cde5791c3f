// (x^2 + y^2)^(1/2): the processor's square root of the rounded sum where neither square can have lost accuracy to
// the ends of the range. The native form is the same without special lanes.
//
// Worst error of hypot: 1.221 ulp at (-11587.776331054181, -8192.0123950970992); native 1.217.
#include "callout/callouts.hpp"
#include "frame/exports.hpp"

namespace tarn::doubles {
namespace {

struct Hypot : Kernel<double(double, double)> {
    static constexpr auto callout = callout::hypot;
    static constexpr std::uint32_t lowest = 0x07B00000;  // of 2^-900

    template <class V> static TARN_INLINE auto fast(V x, V y) {
        const V sum = x * x + y * y;
        return Flagged{sqrt(sum), below_or_not_finite(sum, lowest)};
    }
};

struct HypotNative : Kernel<double(double, double)> {
    template <class V> static TARN_INLINE V fast(V x, V y) { return sqrt(x * x + y * y); }
};

}  // namespace
}  // namespace tarn::doubles

TARN_EXPORT(binary, hypot, full, tarn::doubles::Hypot)
TARN_EXPORT(binary, hypot, native, tarn::doubles::HypotNative)
