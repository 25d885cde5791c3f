// sin x = +-sin r with n = round(|x|/pi) and r = |x| - n pi, |r| <= pi/2; pi in four pieces, the sine
// an odd polynomial of degree 9 (native: three pieces, degree 5).
//
// One lane above 10000 sends the whole call through the exact reduction in turns and the angle table;
// there a zero of either sign gives +0. Infinities and NaNs are then the callout's.
//
// Worst error of sinf: 2.474 ulp at 9201.47461; native and half 2321.
#include "callout/callouts.hpp"
#include "float/trig/angle_table.hpp"
#include "float/trig/sine.hpp"
#include "frame/exports.hpp"

namespace tarn::singles {
namespace {

struct LargeArgument : Kernel<float(float)> {
    static constexpr auto callout = callout::sinf;
    static constexpr int blocks_at_a_time = 2;

    template <class V> static TARN_INLINE auto fast(V x) {
        return Flagged{from_angle_table(sine_256ths, reduce_exactly<Turns>(x)), not_finite(x)};
    }
};

template <class Form> struct Sinf : Kernel<float(float)> {
    using long_path = LargeArgument;

    template <class V> static TARN_INLINE auto fast(V x) {
        using namespace sine;
        const V a = abs(x);
        const V shifted = a * inv_pi + shifter;
        const V n = shifted - shifter;
        const V r = Form::rest(near(a, n), n);
        const V y = Form::polynomial(xor_bits(r, parity_sign(shifted)), r * r);
        return Flagged{xor_bits(y, sign_bit(x)), a > limit};
    }
};

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(unary, sinf, full, tarn::singles::Sinf<tarn::singles::sine::Full>)
TARN_EXPORT(unary, sinf, native, tarn::singles::Sinf<tarn::singles::sine::Native>)
TARN_EXPORT_SAME(sinf, half, native)
