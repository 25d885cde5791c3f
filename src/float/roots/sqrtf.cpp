// x^(1/2), refined from the processor's estimate of the reciprocal root. The native and half forms are
// the estimate alone, times x; they have no special lanes, so that a zero or +inf gives NaN and every
// subnormal +inf.
//
// Worst error of sqrtf: 0.8104 ulp at 3.00768929e-38; native and half 4156.
#include "callout/callouts.hpp"
#include "float/roots/refined_root.hpp"
#include "frame/exports.hpp"

namespace tarn::singles {
namespace {

struct Sqrtf : Kernel<float(float)> {
    static constexpr auto callout = callout::sqrtf;

    template <class V> static TARN_INLINE auto fast(V x) { return Flagged{refined_root(x), not_positive_normal(x)}; }
};

struct SqrtfNative : Kernel<float(float)> {
    template <class V> static TARN_INLINE V fast(V x) { return x * rsqrt_estimate(x); }
};

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(unary, sqrtf, full, tarn::singles::Sqrtf)
TARN_EXPORT(unary, sqrtf, native, tarn::singles::SqrtfNative)
TARN_EXPORT_SAME(sqrtf, half, native)
