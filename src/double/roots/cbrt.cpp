// x^(1/3) and x^(-1/3) for normal x of either sign by the steps of cube_root.hpp, a table pair times a polynomial of
// degree 7 and 8; the native forms have degree 3 and the pair's high part alone.
//
// Worst error of cbrt: 0.5204 ulp at 26113.207999487244; native 4.159e+06.
// Worst error of rcbrt: 0.5207 ulp at 0.016601178101054648; native 1.818e+07.
#include "callout/callouts.hpp"
#include "frame/exports.hpp"
#include "steps/double/cube_root.hpp"

namespace tarn::doubles {
namespace {

template <class Root, auto special_lane> struct CubeRootOf : Kernel<double(double)> {
    static constexpr auto callout = special_lane;

    template <class V> static TARN_INLINE auto fast(V x) {
        return Flagged{cube_root_steps<Root>(x), not_positive_normal(abs(x))};
    }
};

using Cbrt = CubeRootOf<CubeRoot, callout::cbrt>;
using Rcbrt = CubeRootOf<ReciprocalCubeRoot, callout::rcbrt>;
using CbrtNative = CubeRootOf<CubeRootNative, callout::cbrt>;
using RcbrtNative = CubeRootOf<ReciprocalCubeRootNative, callout::rcbrt>;

}  // namespace
}  // namespace tarn::doubles

TARN_EXPORT(unary, cbrt, full, tarn::doubles::Cbrt)
TARN_EXPORT(unary, cbrt, native, tarn::doubles::CbrtNative)
TARN_EXPORT(unary, rcbrt, full, tarn::doubles::Rcbrt)
TARN_EXPORT(unary, rcbrt, native, tarn::doubles::RcbrtNative)
