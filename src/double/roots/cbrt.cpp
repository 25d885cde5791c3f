// x^(1/3) and x^(-1/3) for normal x of either sign by the steps of cube_root.hpp, a table pair times a polynomial of
// degree 7 and 8; the native forms have degree 3 and the pair's high part alone.
//
// Worst errors 0.52 ulp, of cbrt at 4.3691 and of rcbrt at 1.09442 times a power of eight; native 4.2e6 and 1.82e7.
#include "callout/callouts.hpp"
#include "double/roots/cube_root.hpp"
#include "frame/exports.hpp"

namespace tarn {
namespace {

template <class Root, auto special_lane, bool native = false> struct CubeRootOf : Kernel<double(double)> {
    static constexpr auto callout = special_lane;

    template <class V> static TARN_INLINE auto fast(V x) {
        return Flagged{cube_root_steps<Root, native>(x), not_positive_normal(abs(x))};
    }
};

using Cbrt = CubeRootOf<CubeRoot64, callout::cbrt>;
using Rcbrt = CubeRootOf<ReciprocalCubeRoot64, callout::rcbrt>;
using CbrtNative = CubeRootOf<CubeRoot64, callout::cbrt, true>;
using RcbrtNative = CubeRootOf<ReciprocalCubeRoot64, callout::rcbrt, true>;

}  // namespace
}  // namespace tarn

TARN_EXPORT(unary, cbrt, full, tarn::Cbrt)
TARN_EXPORT(unary, cbrt, native, tarn::CbrtNative)
TARN_EXPORT(unary, rcbrt, full, tarn::Rcbrt)
TARN_EXPORT(unary, rcbrt, native, tarn::RcbrtNative)
