// (x^2 + y^2)^(1/2): the sum of squares where neither can have lost accuracy to the ends of the range,
// and its refined root. The native form is the estimate alone and has no special lanes: an infinite
// argument or a sum that overflows gives NaN.
//
// Worst error of hypotf: 1.408 ulp at (1.00749707, 1.49715292); native 4156.
#include "callout/callouts.hpp"
#include "float/roots/refined_root.hpp"
#include "frame/exports.hpp"

namespace tarn {
namespace {

struct Hypotf : Kernel<float(float, float)> {
    static constexpr auto callout = callout::hypotf;

    static constexpr i32x4 lowest = splat_i32(0x1E300000);   // 9.317362419797304e-21
    static constexpr i32x4 highest = splat_i32(0x60A00000);  // 9.223372036854776e+19

    static TARN_INLINE auto fast(f32x4 x, f32x4 y) {
        const f32x4 sum = x * x + y * y;
        return Flagged{refined_root(sum), (bits(sum) < lowest) | (bits(sum) > highest)};
    }
};

struct HypotfNative : Kernel<float(float, float)> {
    static TARN_INLINE f32x4 fast(f32x4 x, f32x4 y) {
        const f32x4 sum = x * x + y * y;
        const i32x4 nonzero = ~(sum == splat(0.0f));
        return sum * from_bits(bits(rsqrt_estimate(sum)) & nonzero);
    }
};

}  // namespace
}  // namespace tarn

TARN_EXPORT(binary, hypotf, full, tarn::Hypotf)
TARN_EXPORT(binary, hypotf, native, tarn::HypotfNative)
