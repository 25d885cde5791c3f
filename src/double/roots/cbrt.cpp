// x^(1/3) for normal x of either sign by the steps of cube_root.hpp, a table pair times a polynomial of degree 7; the
// native form has degree 3 and the pair's high part alone.
//
// Worst error 0.52 ulp at 4.3691 times a power of eight; native 4.2e6.
#include "callout/callouts.hpp"
#include "double/roots/cube_root.hpp"
#include "frame/exports.hpp"

namespace tarn {
namespace {

template <bool native> struct Cbrt : Kernel<double(double)> {
    static constexpr auto callout = callout::cbrt;

    static TARN_INLINE auto fast(f64x2 x) {
        return Flagged{cube_root_steps<CubeRoot64, native>(x), not_positive_normal(abs(x))};
    }
};

}  // namespace
}  // namespace tarn

TARN_EXPORT(unary, cbrt, full, tarn::Cbrt<false>)
TARN_EXPORT(unary, cbrt, native, tarn::Cbrt<true>)
