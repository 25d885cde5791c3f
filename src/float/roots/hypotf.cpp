// (x^2 + y^2)^(1/2): the sum of squares where neither can have lost accuracy to the ends of the range,
// and its refined root. The native form is the estimate alone and has no special lanes: an infinite
// argument or a sum that overflows gives NaN.
//
// Worst error of hypotf: 1.466 ulp at (-0.500404835, -0.500120044); native 4156.
#include "callout/callouts.hpp"
#include "float/roots/refined_root.hpp"
#include "frame/exports.hpp"

namespace tarn::singles {
namespace {

struct Hypotf : Kernel<float(float, float)> {
    static constexpr auto callout = callout::hypotf;

    static constexpr std::int32_t lowest = 0x1E300000;   // 9.317362419797304e-21
    static constexpr std::int32_t highest = 0x60A00000;  // 9.223372036854776e+19

    template <class V> static TARN_INLINE auto fast(V x, V y) {
        const V sum = x * x + y * y;
        return Flagged{refined_root(sum), (bits(sum) < lowest) | (bits(sum) > highest)};
    }
};

struct HypotfNative : Kernel<float(float, float)> {
    template <class V> static TARN_INLINE V fast(V x, V y) {
        const V sum = x * x + y * y;
        return sum * where(~(sum == 0.0f), rsqrt_estimate(sum));
    }
};

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(binary, hypotf, full, tarn::singles::Hypotf)
TARN_EXPORT(binary, hypotf, native, tarn::singles::HypotfNative)
