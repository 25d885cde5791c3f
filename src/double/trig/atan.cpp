// arctan x and arctan(x)/pi, of min(|x|, 1) / max(|x|, 1), measured from the quarter turn above 1, by nodes
// (arctangent_nodes.hpp); radians at width 2 and the native forms by a polynomial (arctangent.hpp). No lane is special.
//
// Worst error of atan: 2.201 ulp at 0.015626232423084464, width 2 5.634; native 2.3e+07.
// Worst error of atanpi: 1.961 ulp at -0.015626278659357961; native 2.318e+07.
#include "double/trig/arctangent.hpp"
#include "frame/exports.hpp"
#include "steps/double/arctangent_nodes.hpp"

namespace tarn::doubles {
namespace {

using namespace arctangent;

template <class Form> struct ByNodes : Kernel<double(double)> {
    template <class V> static TARN_INLINE auto fast(V x) { return by_nodes<Form>(x); }
};
template <class Form> struct ByPolynomial : Kernel<double(double)> {
    template <class V> static TARN_INLINE auto fast(V x) { return of<Form>(x); }
};

using Atan = ExceptAt<ByNodes<Full<RadiansByNodes>>, 2, ByPolynomial<radians::Full>>;
using AtanNative = ByPolynomial<radians::Native>;
using Atanpi = ByNodes<Full<HalfTurnsByNodes>>;
using AtanpiNative = ByPolynomial<half_turns::Native>;

}  // namespace
}  // namespace tarn::doubles

TARN_EXPORT(unary, atan, full, tarn::doubles::Atan)
TARN_EXPORT(unary, atan, native, tarn::doubles::AtanNative)
TARN_EXPORT(unary, atanpi, full, tarn::doubles::Atanpi)
TARN_EXPORT(unary, atanpi, native, tarn::doubles::AtanpiNative)
