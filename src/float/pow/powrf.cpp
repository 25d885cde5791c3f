// x^y for x >= 0 in split single precision (split_power.hpp). The native and half forms drop the
// splitting (native_power.hpp).
//
// Worst error of powrf: 3.088 ulp at (2.24836483e+21, -1.23361933); native and half 4488.
#include "callout/callouts.hpp"
#include "float/pow/native_power.hpp"
#include "float/pow/split_power.hpp"
#include "frame/exports.hpp"

namespace tarn::singles {
namespace {

struct Powrf : Kernel<float(float, float)> {
    static constexpr auto callout = callout::powrf;

    template <class V> static TARN_INLINE auto fast(V x, V y) {
        return split_power<RealExponentExp>(x, split_log(x), y, veltkamp_split(y), V{});
    }
};

struct PowrfNative : Kernel<float(float, float)> {
    static constexpr auto callout = callout::powrf;

    template <class V> static TARN_INLINE auto fast(V x, V y) { return native_power<NativeExp>(x, y); }
};

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(binary, powrf, full, tarn::singles::Powrf)
TARN_EXPORT(binary, powrf, native, tarn::singles::PowrfNative)
TARN_EXPORT_SAME(powrf, half, native)
