// (x^2 + y^2)^(1/2) as the square root of the rounded sum, corrected by what every rounding left
// (corrected_roots.hpp). The native form has no correction. Sums of squares outside [2^-900, 2^1024) are special.
//
// @@
#include "callout/callouts.hpp"
#include "double/roots/corrected_roots.hpp"
#include "frame/exports.hpp"

namespace tarn {
namespace {

struct Hypot : Kernel<double(double, double)> {
    static constexpr auto callout = callout::hypot;

    static TARN_INLINE auto fast(f64x2 x, f64x2 y) {
        const auto [root, sum] = corrected_hypot(x, y);
        return Flagged{root, below_or_not_finite(sum, least_correctable)};
    }
};

struct HypotNative : Kernel<double(double, double)> {
    static constexpr auto callout = callout::hypot;

    static TARN_INLINE auto fast(f64x2 x, f64x2 y) {
        const f64x2 sum = x * x + y * y;
        return Flagged{sqrt(sum), below_or_not_finite(sum, least_correctable)};
    }
};

}  // namespace
}  // namespace tarn

TARN_EXPORT(binary, hypot, full, tarn::Hypot)
TARN_EXPORT(binary, hypot, native, tarn::HypotNative)
