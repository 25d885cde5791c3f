// x^(1/n) in split single precision (split_power.hpp): 1/n as a quotient and its remainder. From
// |n| = 2^24 on, where n is rounded, the exponent is too small for that to matter. The native form
// drops the splitting (native_power.hpp).
//
// Worst error of rootnf: 4.079 ulp at (2.38312907e-07, -4); native 2706.
#include "callout/callouts.hpp"
#include "float/pow/native_power.hpp"
#include "float/pow/split_power.hpp"
#include "frame/exports.hpp"

namespace tarn::singles {
namespace {

struct Rootnf : Kernel<float(float, std::int32_t)> {
    static constexpr auto callout = callout::rootnf;

    template <class V> static TARN_INLINE auto fast(V x, BitsOf<V> n) {
        const HeadTail<V> log = split_log(x);
        const V divisor = to_f32(n);
        const V y = 1.0f / divisor;
        const HeadTail<V> y_split = veltkamp_split(y);
        const auto [back, back_tail] = two_product(y, y_split, divisor, veltkamp_split(divisor));
        const V y_tail = ((1.0f - back) - back_tail) * y;
        return split_power<IntegerExponentExp>(x, log, y, y_split, y_tail);
    }
};

struct RootnfNative : Kernel<float(float, std::int32_t)> {
    static constexpr auto callout = callout::rootnf;

    template <class V> static TARN_INLINE auto fast(V x, BitsOf<V> n) {
        return native_power<NativeIntegerExp>(x, 1.0f / to_f32(n));
    }
};

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(binary, rootnf, full, tarn::singles::Rootnf)
TARN_EXPORT(binary, rootnf, native, tarn::singles::RootnfNative)
