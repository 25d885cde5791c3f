// arcsin x: an odd polynomial of degree 11 up to |x| = 1/2, above it pi/2 - 2 arcsin(sqrt((1 - |x|)/2))
// (native: degree 5 and an estimated root). Magnitudes from 1 on are the callout's.
//
// Worst error of asinf: 2.274 ulp at 0.501524568; native 4952.
#include "callout/callouts.hpp"
#include "float/trig/arcsine.hpp"
#include "frame/exports.hpp"

namespace tarn::singles {
namespace {

template <class Form> struct Asinf : Kernel<float(float)> {
    static constexpr auto callout = callout::asinf;

    template <class V> static TARN_INLINE auto fast(V x) {
        const V a = abs(x);
        const auto [u, z, upper] = arcsine::fold<Form>(a);
        const V y = Form::value(u, z) + where(upper, arcsine::half_pi);
        return Flagged{xor_bits(y, sign_bit(x)), arcsine::one <= a};
    }
};

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(unary, asinf, full, tarn::singles::Asinf<tarn::singles::arcsine::radians::Full>)
TARN_EXPORT(unary, asinf, native, tarn::singles::Asinf<tarn::singles::arcsine::radians::Native>)
