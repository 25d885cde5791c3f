// The angle of the point (y, x), in radians and over pi: the arctangent of the smaller coordinate over the
// larger, one division, mirrored into the quadrant. Lanes with a zero, infinite or NaN coordinate are the
// callout's.
//
// Worst errors in 6.5 million random pairs, near the diagonals: atan2 4.90 ulp, atan2pi 4.65; native 2.4e7 ulp.
#include "callout/callouts.hpp"
#include "double/trig/arctangent.hpp"
#include "frame/exports.hpp"

namespace tarn {
namespace {

template <class Unit, callout::BinaryDouble scalar> struct AngleOfPoint : Kernel<double(double, double)> {
    static constexpr auto callout = scalar;
    static TARN_INLINE auto fast(f64x2 y, f64x2 x) {
        using namespace arctangent;
        return Flagged{of_point<Unit>(y, x), no_coordinate(y) | no_coordinate(x)};
    }
};

using Atan2 = AngleOfPoint<arctangent::Radians, callout::atan2>;
using Atan2Native = AngleOfPoint<arctangent::RadiansNative, callout::atan2>;
using Atan2pi = AngleOfPoint<arctangent::HalfTurns, callout::atan2pi>;
using Atan2piNative = AngleOfPoint<arctangent::HalfTurnsNative, callout::atan2pi>;

}  // namespace
}  // namespace tarn

TARN_EXPORT(binary, atan2, full, tarn::Atan2)
TARN_EXPORT(binary, atan2, native, tarn::Atan2Native)
TARN_EXPORT(binary, atan2pi, full, tarn::Atan2pi)
TARN_EXPORT(binary, atan2pi, native, tarn::Atan2piNative)
