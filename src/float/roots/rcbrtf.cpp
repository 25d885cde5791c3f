// x^(-1/3) for normal x of either sign by the steps of cube_root.hpp, a table pair times a series of degree 4;
// the native form keeps the series' linear term.
//
// Worst error 0.52 ulp at 1.12471 times a power of eight; native 889.
#include "callout/callouts.hpp"
#include "float/roots/cube_root.hpp"
#include "frame/exports.hpp"

namespace tarn {
namespace {

template <bool short_series> struct Rcbrtf : Kernel<float(float)> {
    static constexpr auto callout = callout::rcbrtf;

    static TARN_INLINE auto fast(f32x4 x) {
        const i32x4 special = not_positive_normal(abs(x));
        return Flagged{cube_root_steps<ReciprocalCubeRoot, short_series>(x, special), special};
    }
};

}  // namespace
}  // namespace tarn

TARN_EXPORT(unary, rcbrtf, full, tarn::Rcbrtf<false>)
TARN_EXPORT(unary, rcbrtf, native, tarn::Rcbrtf<true>)
