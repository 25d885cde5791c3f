// arcsin(x)/pi: the arcsine with its coefficients divided by pi; u/pi is added to the offset before
// the final sum, which keeps its rounding error small. The native form takes 1/pi into a shorter
// polynomial, but not an estimated root: just above 1/2 that alone could cost more than a half form may.
// Magnitudes from 1 on are the callout's.
//
// Worst error of asinpif: 3.208 ulp at 0.700083613; native 845.
#include "callout/callouts.hpp"
#include "float/trig/arcsine.hpp"
#include "frame/exports.hpp"

namespace tarn::singles {
namespace {

struct Full : arcsine::half_turns::Full {
    template <class V> static TARN_INLINE V sum(V u, V z, V offset) {
        return rest(z) * u + (u * arcsine::inv_pi + offset);
    }
};
struct Native : arcsine::half_turns::Native {
    template <class V> static TARN_INLINE V root(V y) { return arcsine::twice_root(y); }
    template <class V> static TARN_INLINE V sum(V u, V z, V offset) { return value(u, z) + offset; }
};

template <class Form> struct Asinpif : Kernel<float(float)> {
    static constexpr auto callout = callout::asinpif;

    template <class V> static TARN_INLINE auto fast(V x) {
        const V a = abs(x);
        const auto [u, z, upper] = arcsine::fold<Form>(a);
        const V y = Form::sum(u, z, where(upper, arcsine::half));
        return Flagged{xor_bits(y, sign_bit(x)), arcsine::one <= a};
    }
};

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(unary, asinpif, full, tarn::singles::Asinpif<tarn::singles::Full>)
TARN_EXPORT(unary, asinpif, native, tarn::singles::Asinpif<tarn::singles::Native>)
