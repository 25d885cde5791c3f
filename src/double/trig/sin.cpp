// sin x = +-sin r with n = round(|x|/pi) and r = |x| - n pi, |r| <= pi/2; pi in four pieces, the sine
// an odd polynomial of degree 15 (native: three pieces, degree 9).
//
// One lane above 2^24 sends the whole call through the exact reduction in turns and the angle table;
// infinities are then the callout's. A NaN goes through the arithmetic.
//
// Worst error of sin: 3.821 ulp at 8102397.0424052728; native 5.453e+07.
#include "callout/callouts.hpp"
#include "double/trig/sine.hpp"
#include "frame/exports.hpp"
#include "steps/double/angle_table.hpp"

namespace tarn::doubles {
namespace {

using namespace sine;

struct LargeArgument : Kernel<double(double)> {
    static constexpr auto callout = callout::sin;
    static constexpr int blocks_at_a_time = 2;

    template <class V> static TARN_INLINE auto fast(V x) {
        return Flagged{xor_bits(sine_from_table(reduce_exactly<Turns>(x)).rounded(), sign_bit(x)), is_infinite(x)};
    }
};

template <class Form> struct Sin : Kernel<double(double)> {
    using long_path = LargeArgument;

    template <class V> static TARN_INLINE auto fast(V x) {
        const V a = abs(x);
        const V shifted = a * inv_pi + shifter;
        const V n = shifted - shifter;
        const V r = Form::rest(Form::near(a, n), n);
        const V y = Form::sine(xor_bits(r, parity_sign(shifted)), r * r);
        return Flagged{xor_bits(y, sign_bit(x)), a > 0x1p24};
    }
};

}  // namespace
}  // namespace tarn::doubles

TARN_EXPORT(unary, sin, full, tarn::doubles::Sin<tarn::doubles::sine::Full>)
TARN_EXPORT(unary, sin, native, tarn::doubles::Sin<tarn::doubles::sine::Native>)
