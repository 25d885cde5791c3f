// x^n in split single precision (split_power.hpp). An n that no single holds keeps its low bits in the
// second part of the exponent. The native form rounds n to single precision (native_power.hpp).
//
// Worst error of pownf: 4.078 ulp at (11.3138542, 11); native 5518.
#include "callout/callouts.hpp"
#include "float/pow/native_power.hpp"
#include "float/pow/split_power.hpp"
#include "frame/exports.hpp"

namespace tarn::singles {
namespace {

struct Pownf : Kernel<float(float, std::int32_t)> {
    static constexpr auto callout = callout::pownf;

    template <class V> static TARN_INLINE auto fast(V x, BitsOf<V> n) {
        const HeadTail<V> log = split_log(x);
        const V y = to_f32(n);
        const BitsOf<V> rest = wrapping_difference(n, to_i32(y));  // 2^31 wraps, and wraps back
        return split_power<IntegerExponentExp>(x, log, y, veltkamp_split(y), to_f32(rest));
    }
};

struct PownfNative : Kernel<float(float, std::int32_t)> {
    static constexpr auto callout = callout::pownf;

    template <class V> static TARN_INLINE auto fast(V x, BitsOf<V> n) {
        return native_power<NativeIntegerExp>(x, to_f32(n));
    }
};

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(binary, pownf, full, tarn::singles::Pownf)
TARN_EXPORT(binary, pownf, native, tarn::singles::PownfNative)
