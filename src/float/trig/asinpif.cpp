// arcsin(x)/pi: the arcsine with its coefficients divided by pi; u/pi is added to the offset before
// the final sum, which keeps its rounding error small. The native form takes 1/pi into a shorter
// polynomial, but not an estimated root: just above 1/2 that alone could cost more than a half form may.
// Magnitudes from 1 on are the callout's.
//
// Worst error of asinpif: 3.208 ulp at 0.700083613; native 844.3.
#include "callout/callouts.hpp"
#include "float/trig/arcsine.hpp"
#include "frame/exports.hpp"

namespace tarn {
namespace {

struct Full : arcsine::HalfTurns {
    static TARN_INLINE f32x4 sum(f32x4 u, f32x4 z, f32x4 offset) {
        return rest(z) * u + (u * arcsine::inv_pi + offset);
    }
};
struct Native : arcsine::HalfTurnsNative {
    static TARN_INLINE f32x4 root(f32x4 y) { return arcsine::twice_root(y); }
    static TARN_INLINE f32x4 sum(f32x4 u, f32x4 z, f32x4 offset) { return value(u, z) + offset; }
};

template <class Form> struct Asinpif : Kernel<float(float)> {
    static constexpr auto callout = callout::asinpif;

    static TARN_INLINE auto fast(f32x4 x) {
        const f32x4 a = abs(x);
        const auto [u, z, upper] = arcsine::fold<Form>(a);
        const f32x4 y = Form::sum(u, z, where(upper, arcsine::half));
        return Flagged{xor_bits(y, sign_bit(x)), arcsine::one <= a};
    }
};

}  // namespace
}  // namespace tarn

TARN_EXPORT(unary, asinpif, full, tarn::Asinpif<tarn::Full>)
TARN_EXPORT(unary, asinpif, native, tarn::Asinpif<tarn::Native>)
