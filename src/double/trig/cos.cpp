// cos x = +-sin r with n = round((x + pi/2)/pi) and r = x - (n - 1/2) pi, |r| <= pi/2; pi in four
// pieces, the sine an odd polynomial of degree 15 (native: three pieces, degree 9).
//
// One lane with |x + pi/2| above 2^23 sends the whole call through the exact reduction in turns and the
// angle table; infinities are then the callout's. A NaN goes through the arithmetic.
//
// Worst error of cos: 3.802 ulp at 6238573.373332506; native 5.453e+07.
#include "callout/callouts.hpp"
#include "double/trig/sine.hpp"
#include "frame/exports.hpp"
#include "steps/double/angle_table.hpp"

namespace tarn::doubles {
namespace {

using namespace sine;

constexpr double half_pi = f64(0x3FF921FB54442D18);  // 1.5707963267948966

struct LargeArgument : Kernel<double(double)> {
    static constexpr auto callout = callout::cos;
    static constexpr int blocks_at_a_time = 2;

    template <class V> static TARN_INLINE auto fast(V x) {
        return Flagged{cosine_from_table(reduce_exactly<Turns>(x)).rounded(), is_infinite(x)};
    }
};

template <class Form> struct Cos : Kernel<double(double)> {
    using long_path = LargeArgument;

    template <class V> static TARN_INLINE auto fast(V x) {
        const V v = x + half_pi;
        const V shifted = v * inv_pi + shifter;
        const V m = (shifted - shifter) - half;
        const V r = Form::rest(Form::near(x, m), m);
        const V y = Form::cosine(xor_bits(r, parity_sign(shifted)), r * r);
        return Flagged{y, abs(v) > 0x1p23};
    }
};

}  // namespace
}  // namespace tarn::doubles

TARN_EXPORT(unary, cos, full, tarn::doubles::Cos<tarn::doubles::sine::Full>)
TARN_EXPORT(unary, cos, native, tarn::doubles::Cos<tarn::doubles::sine::Native>)
