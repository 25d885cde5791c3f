// x^(-1/2) = y (1 + t)^(-1/2) with y the processor's estimate cut to 9 significant bits, so that y^2 is
// exact, and t = y^2 x - 1: three terms of the binomial series. The native and half forms are the
// estimate itself.
//
// Worst error of rsqrtf: 0.9845 ulp at 1.22806715e-38; native and half 4980.
#include "callout/callouts.hpp"
#include "frame/exports.hpp"

namespace tarn::singles {
namespace {

struct Rsqrtf : Kernel<float(float)> {
    static constexpr auto callout = callout::rsqrtf;

    static constexpr float c3 = -0.3125f;
    static constexpr float c2 = 0.375f;
    static constexpr float c1 = -0.5f;

    template <class V> static TARN_INLINE auto fast(V x) {
        const V y = and_bits(rsqrt_estimate(x), i32(0xFFFF8000));
        const V t = y * y * x - 1.0f;
        return Flagged{horner(t, c3, c2, c1) * t * y + y, not_positive_normal(x)};
    }
};

struct RsqrtfNative : Kernel<float(float)> {
    static constexpr auto callout = callout::rsqrtf;

    template <class V> static TARN_INLINE auto fast(V x) { return Flagged{rsqrt_estimate(x), not_positive_normal(x)}; }
};

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(unary, rsqrtf, full, tarn::singles::Rsqrtf)
TARN_EXPORT(unary, rsqrtf, native, tarn::singles::RsqrtfNative)
TARN_EXPORT_SAME(rsqrtf, half, native)
