// x^(1/3) and x^(-1/3) for normal x of either sign by the steps of cube_root.hpp, a table pair times a polynomial of
// degree 7 and 8; the native forms have degree 3 and the pair's high part alone.
//
// Worst error of cbrt: 0.5157 ulp at 4.3690935981905819; native 4.159e+06.
// Worst error of rcbrt: 0.5153 ulp at 1.0944202118397901; native 1.817e+07.
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
