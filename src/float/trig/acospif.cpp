// arccos(x)/pi: the arccosine with its coefficients divided by pi, 1/pi the leading one of the
// polynomial. Magnitudes from 1 on are the callout's.
//
// Worst error of acospif: 2.457 ulp at 0.926441371; native 5492.
#include "callout/callouts.hpp"
#include "float/trig/arcsine.hpp"
#include "frame/exports.hpp"

namespace tarn::singles {
namespace {

struct Full : arcsine::half_turns::Full {
    template <class V> static TARN_INLINE V value(V u, V z) { return (rest(z) + arcsine::inv_pi) * u; }
};

template <class Form> struct Acospif : Kernel<float(float)> {
    static constexpr auto callout = callout::acospif;

    template <class V> static TARN_INLINE auto fast(V x) {
        const auto folded = arcsine::fold_signed<Form>(x);
        const V offset = arcsine::start(x, folded, arcsine::half, arcsine::one);
        return Flagged{Form::value(folded.u, folded.z) + offset, arcsine::one <= abs(x)};
    }
};

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(unary, acospif, full, tarn::singles::Acospif<tarn::singles::Full>)
TARN_EXPORT(unary, acospif, native, tarn::singles::Acospif<tarn::singles::arcsine::half_turns::Native>)
