// The angle of the point (y, x), in radians and over pi: the arctangent of the smaller coordinate over the larger, one
// quotient, in its octant, by nodes (arctangent_nodes.hpp); full radians at width 2 by a polynomial (arctangent.hpp).
// Lanes with a zero, infinite or NaN coordinate are the callout's.
//
// Worst error of atan2: 3.193 ulp at (1.6296662853021393, 104.29493959571643), width 2 5.693; native 2.013e+07.
// Worst error of atan2pi: 2.6 ulp at (0.21715009709793073, 13.053960418298065); native 2.542e+07.
#include "callout/callouts.hpp"
#include "double/trig/arctangent.hpp"
#include "frame/exports.hpp"
#include "steps/double/arctangent_nodes.hpp"

namespace tarn::doubles {
namespace {

using namespace arctangent;

template <class Form, callout::BinaryDouble scalar> struct ByNodes : Kernel<double(double, double)> {
    static constexpr auto callout = scalar;
    template <class V> static TARN_INLINE auto fast(V y, V x) {
        return Flagged{point_by_nodes<Form>(y, x), no_coordinate(y) | no_coordinate(x)};
    }
};
struct Atan2AtWidth2 : Kernel<double(double, double)> {
    static constexpr auto callout = callout::atan2;
    template <class V> static TARN_INLINE auto fast(V y, V x) {
        return Flagged{of_point<radians::Full>(y, x), no_coordinate(y) | no_coordinate(x)};
    }
};

using Atan2 = ExceptAt<ByNodes<Full<RadiansByNodes>, callout::atan2>, 2, Atan2AtWidth2>;
using Atan2Native = ByNodes<Native<RadiansByNodes>, callout::atan2>;
using Atan2pi = ByNodes<Full<HalfTurnsByNodes>, callout::atan2pi>;
using Atan2piNative = ByNodes<Native<HalfTurnsByNodes>, callout::atan2pi>;

}  // namespace
}  // namespace tarn::doubles

TARN_EXPORT(binary, atan2, full, tarn::doubles::Atan2)
TARN_EXPORT(binary, atan2, native, tarn::doubles::Atan2Native)
TARN_EXPORT(binary, atan2pi, full, tarn::doubles::Atan2pi)
TARN_EXPORT(binary, atan2pi, native, tarn::doubles::Atan2piNative)
