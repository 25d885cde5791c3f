// x^(1/3) and x^(-1/3) for normal x of either sign by the steps of cube_root.hpp, a table pair times a series of
// degree 4; the native forms keep the series' linear term.
//
// Worst error of cbrtf: 0.5118 ulp at 5.99771786; native 355.4.
// Worst error of rcbrtf: 0.5143 ulp at 1.12471235; native 888.7.
#include "callout/callouts.hpp"
#include "frame/exports.hpp"
#include "steps/float/cube_root.hpp"

namespace tarn::singles {
namespace {

template <class Root, auto special_lane> struct CubeRootOf : Kernel<float(float)> {
    static constexpr auto callout = special_lane;

    template <class V> static TARN_INLINE auto fast(V x) {
        const BitsOf<V> special = not_positive_normal(abs(x));
        return Flagged{cube_root_steps<Root>(x, special), special};
    }
};

using Cbrtf = CubeRootOf<CubeRoot, callout::cbrtf>;
using Rcbrtf = CubeRootOf<ReciprocalCubeRoot, callout::rcbrtf>;
using CbrtfNative = CubeRootOf<CubeRootNative, callout::cbrtf>;
using RcbrtfNative = CubeRootOf<ReciprocalCubeRootNative, callout::rcbrtf>;

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(unary, cbrtf, full, tarn::singles::Cbrtf)
TARN_EXPORT(unary, cbrtf, native, tarn::singles::CbrtfNative)
TARN_EXPORT(unary, rcbrtf, full, tarn::singles::Rcbrtf)
TARN_EXPORT(unary, rcbrtf, native, tarn::singles::RcbrtfNative)
