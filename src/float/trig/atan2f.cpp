// arctan(y/x) in the quadrant of the point (y, x), in radians, with the polynomial of the arctangent.
// The native form estimates the reciprocal of the larger coordinate and has degree 9 instead of 17.
//
// Worst error seen in 2 * 10^8 pairs 3.91 ulp; native 5585.
#include "float/trig/arctangent.hpp"
#include "float/trig/quadrants.hpp"
#include "frame/exports.hpp"

namespace tarn {
namespace {

using Atan2f = Atan2<arctangent::Radians, callout::atan2f>;
using Atan2fNative = Atan2Native<arctangent::RadiansNative, callout::atan2f>;

}  // namespace
}  // namespace tarn

TARN_EXPORT(binary, atan2f, full, tarn::Atan2f)
TARN_EXPORT(binary, atan2f, native, tarn::Atan2fNative)
