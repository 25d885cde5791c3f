// arctan(y/x)/pi in the quadrant of the point (y, x), with the polynomial of arctan(t)/pi. The native
// form estimates the reciprocal of the larger coordinate and has degree 9 instead of 17.
//
// Worst error of atan2pif: 3.288 ulp at (3.41661587e+13, 3.42696762e+13); native 5578.
#include "float/trig/arctangent.hpp"
#include "float/trig/quadrants.hpp"
#include "frame/exports.hpp"

namespace tarn::singles {
namespace {

struct Atan2pif : Atan2<arctangent::half_turns::Full> {
    static constexpr auto callout = callout::atan2pif;
};
using Atan2pifNative = Atan2Native<arctangent::half_turns::Native, callout::atan2pif>;

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(binary, atan2pif, full, tarn::singles::Atan2pif)
TARN_EXPORT(binary, atan2pif, native, tarn::singles::Atan2pifNative)
