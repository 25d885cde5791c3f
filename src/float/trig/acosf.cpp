// arccos x: pi/2 - arcsin x up to |x| = 1/2; above it 2 arcsin(sqrt((1 - |x|)/2)), or pi less that for
// a negative x, with the arcsine's polynomial of degree 11 (native: degree 5 and an estimated root).
// Magnitudes from 1 on are the callout's.
//
// Worst error of acosf: 1.238 ulp at -0.500880778; native 4691.
#include "callout/callouts.hpp"
#include "float/trig/arcsine.hpp"
#include "frame/exports.hpp"

namespace tarn::singles {
namespace {

template <class Form> struct Acosf : Kernel<float(float)> {
    static constexpr auto callout = callout::acosf;

    template <class V> static TARN_INLINE auto fast(V x) {
        const auto folded = arcsine::fold_signed<Form>(x);
        const V offset = arcsine::start(x, folded, arcsine::half_pi, arcsine::pi);
        return Flagged{offset + Form::value(folded.u, folded.z), arcsine::one <= abs(x)};
    }
};

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(unary, acosf, full, tarn::singles::Acosf<tarn::singles::arcsine::radians::Full>)
TARN_EXPORT(unary, acosf, native, tarn::singles::Acosf<tarn::singles::arcsine::radians::Native>)
