// x^(1/3) for normal x of either sign by the steps of cube_root.hpp, a table pair times a series of degree 4;
// the native form keeps the series' linear term.
//
// Worst error 0.52 ulp at 5.9977 times a power of eight; native 356.
#include "callout/callouts.hpp"
#include "float/roots/cube_root.hpp"
#include "frame/exports.hpp"

namespace tarn {
namespace {

template <bool short_series> struct Cbrtf : Kernel<float(float)> {
    static constexpr auto callout = callout::cbrtf;

    static TARN_INLINE auto fast(f32x4 x) {
        const i32x4 special = not_positive_normal(abs(x));
        return Flagged{cube_root_steps<CubeRoot, short_series>(x, special), special};
    }
};

}  // namespace
}  // namespace tarn

TARN_EXPORT(unary, cbrtf, full, tarn::Cbrtf<false>)
TARN_EXPORT(unary, cbrtf, native, tarn::Cbrtf<true>)
