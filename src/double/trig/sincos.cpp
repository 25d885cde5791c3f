// sin x and cos x from one reduction: n and r as for the sine, |r| <= pi/2; the cosine is the sine of
// the angle half a step further toward r, +-(|r| - pi/2), reduced afresh with the pieces of pi.
//
// One lane above 2^23 sends the whole call through the exact reduction in turns and the angle table,
// where both have the bits of sin and cos; infinities are then the callout's. A NaN goes through the
// arithmetic. Up to 2^24, where the sine alone still holds, the cosine loses its bound near 14461176.67.
//
// Worst error of sincos: 3.803 ulp at 7570927.5300161233; native 5.453e+07.
// Worst error of sincosreg: 3.803 ulp at -7570927.5300161233; native 5.453e+07.
#include "callout/callouts.hpp"
#include "double/trig/sine.hpp"
#include "frame/exports.hpp"
#include "steps/double/angle_table.hpp"

namespace tarn::doubles {
namespace {

using namespace sine;

struct LargeArgument : Kernel<Both<double, double>(double)> {
    static constexpr auto callout = callout::sincos;
    static constexpr int blocks_at_a_time = 2;

    template <class V> static TARN_INLINE auto fast(V x) {
        const Reduced<V> angle = reduce_exactly<Turns>(x);
        const V sine = xor_bits(sine_from_table(angle).rounded(), sign_bit(x));
        return FlaggedPair{sine, cosine_from_table(angle).rounded(), is_infinite(x)};
    }
};

template <class Form> struct Sincos : Kernel<Both<double, double>(double)> {
    using long_path = LargeArgument;
    static constexpr int blocks_at_a_time = 4;

    template <class V> static TARN_INLINE auto fast(V x) {
        const V a = abs(x);
        const V shifted = a * inv_pi + shifter;
        const V n = shifted - shifter;
        const BitsOf<V> parity = parity_sign(shifted);
        const V near_n = Form::near(a, n);
        const BitsOf<V> side = sign_bit(near_n);
        const V m = n + or_bits(half, side);
        const V sine_r = xor_bits(Form::rest(near_n, n), parity);
        const V cosine_r = xor_bits(Form::rest(Form::near(a, m), m), sign_mask<V> ^ side ^ parity);
        const V sine = xor_bits(Form::sine(sine_r, sine_r * sine_r), sign_bit(x));
        const V cosine = Form::cosine(cosine_r, cosine_r * cosine_r);
        return FlaggedPair{sine, cosine, a > 0x1p23};
    }
};

}  // namespace
}  // namespace tarn::doubles

TARN_EXPORT(unary_second, sincos, full, tarn::doubles::Sincos<tarn::doubles::sine::Full>)
TARN_EXPORT(unary_second, sincos, native, tarn::doubles::Sincos<tarn::doubles::sine::Native>)
TARN_EXPORT(unary_pair, sincosreg, full, tarn::doubles::Sincos<tarn::doubles::sine::Full>)
TARN_EXPORT(unary_pair, sincosreg, native, tarn::doubles::Sincos<tarn::doubles::sine::Native>)
