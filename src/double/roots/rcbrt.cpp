// x^(-1/3) for normal x of either sign by the steps of cube_root.hpp, a table pair times a polynomial of degree 8; the
// native form has degree 3 and the pair's high part alone.
//
// Worst error 0.52 ulp at 1.09442 times a power of eight; native 1.82e7.
#include "callout/callouts.hpp"
#include "double/roots/cube_root.hpp"
#include "frame/exports.hpp"

namespace tarn {
namespace {

template <bool native> struct Rcbrt : Kernel<double(double)> {
    static constexpr auto callout = callout::rcbrt;

    static TARN_INLINE auto fast(f64x2 x) {
        return Flagged{cube_root_steps<ReciprocalCubeRoot64, native>(x), not_positive_normal(abs(x))};
    }
};

}  // namespace
}  // namespace tarn

TARN_EXPORT(unary, rcbrt, full, tarn::Rcbrt<false>)
TARN_EXPORT(unary, rcbrt, native, tarn::Rcbrt<true>)
