// arctan(y/x) in the quadrant of the point (y, x), in radians, with the polynomial of the arctangent.
// The native form estimates the reciprocal of the larger coordinate and has degree 9 instead of 17.
//
// Worst error of atan2f: 4.014 ulp at (-1.22905827, 1.29250932); native 5585.
#include "float/trig/arctangent.hpp"
#include "float/trig/quadrants.hpp"
#include "frame/exports.hpp"

namespace tarn::singles {
namespace {

// A special lane makes its group of four the scalar function's, which is more exact than beside ordinary ones.
struct Atan2f : Atan2<arctangent::radians::Full> {
    static f32x4 finish(f32x4 y, f32x4 x, f32x4 result, unsigned) {
        for (int i = 0; i < 4; i++) {
            const float y_lane = y[i], x_lane = x[i];
            float lane;
            callout::atan2f(&y_lane, &x_lane, &lane);
            result[i] = lane;
        }
        return result;
    }
};

using Atan2fNative = Atan2Native<arctangent::radians::Native, callout::atan2f>;

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(binary, atan2f, full, tarn::singles::Atan2f)
TARN_EXPORT(binary, atan2f, native, tarn::singles::Atan2fNative)
