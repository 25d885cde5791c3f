// x^(1/n) in split single precision (split_power.hpp): 1/n as a quotient and its remainder. From
// |n| = 2^24 on, where n is rounded, the exponent is too small for that to matter. The native form
// drops the splitting (native_power.hpp).
//
// Worst error of rootnf: 4 ulp at (45.2584686, 1); native 2703.
#include "callout/callouts.hpp"
#include "float/pow/native_power.hpp"
#include "float/pow/split_power.hpp"
#include "frame/exports.hpp"

namespace tarn {
namespace {

struct Rootnf : Kernel<float(float, std::int32_t)> {
    static constexpr auto callout = callout::rootnf;

    static TARN_INLINE auto fast(f32x4 x, i32x4 n) {
        const Split log = split_log(x);
        const f32x4 one = splat(1.0f), divisor = to_f32(n);
        const f32x4 y = one / divisor;
        const Split y_halves = halves(y);
        const auto [back, back_tail] = exact_product(y, y_halves, divisor, halves(divisor));
        const f32x4 y_tail = ((one - back) - back_tail) * y;
        return split_power<IntegerExponentExp>(x, log, y, y_halves, y_tail);
    }
};

struct RootnfNative : Kernel<float(float, std::int32_t)> {
    static constexpr auto callout = callout::rootnf;

    static TARN_INLINE auto fast(f32x4 x, i32x4 n) {
        return native_power<NativeIntegerExp>(x, splat(1.0f) / to_f32(n));
    }
};

}  // namespace
}  // namespace tarn

TARN_EXPORT(binary, rootnf, full, tarn::Rootnf)
TARN_EXPORT(binary, rootnf, native, tarn::RootnfNative)
