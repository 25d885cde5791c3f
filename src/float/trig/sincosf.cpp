// sin x and cos x from one reduction: n and r as for the sine, |r| <= pi/2; the cosine is the sine of
// the angle half a step further toward r, +-(|r| - pi/2), reduced afresh with the pieces of pi.
//
// One lane above 10000 sends the whole call through the exact reduction in turns and the angle
// tables, where the sine has the bits of sinf; infinities and NaNs are then the callout's.
//
// Worst error of sincosf: 2.474 ulp at 9201.47461; native 2321.
// Worst error of sincosregf: 2.474 ulp at 9201.47461; native 2321.
#include "callout/callouts.hpp"
#include "float/trig/angle_table.hpp"
#include "float/trig/sine.hpp"
#include "frame/exports.hpp"

namespace tarn::singles {
namespace {

struct LargeArgument : Kernel<Both<float, float>(float)> {
    static constexpr auto callout = callout::sincosf;
    static constexpr int blocks_at_a_time = 2;

    template <class V> static TARN_INLINE auto fast(V x) {
        const Reduced<V> angle = reduce_exactly<Turns>(x);
        return FlaggedPair{from_angle_table(sine_256ths, angle), from_angle_table(cosine_256ths, angle), not_finite(x)};
    }
};

template <class Form> struct Sincosf : Kernel<Both<float, float>(float)> {
    using long_path = LargeArgument;

    template <class V> static TARN_INLINE auto fast(V x) {
        using namespace sine;
        const V a = abs(x);
        const V shifted = a * inv_pi + shifter;
        const V n = shifted - shifter;
        const auto parity = parity_sign(shifted);
        const V near_n = near(a, n);
        const auto side = sign_bit(near_n);
        const V m = n + or_bits(half, side);
        const V sine_r = xor_bits(Form::rest(near_n, n), parity);
        const V cosine_r = xor_bits(Form::rest(near(a, m), m), sign_mask<V> ^ side ^ parity);
        const V sine = xor_bits(Form::polynomial(sine_r, sine_r * sine_r), sign_bit(x));
        const V cosine = Form::polynomial(cosine_r, cosine_r * cosine_r);
        return FlaggedPair{sine, cosine, a > limit};
    }
};

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(unary_second, sincosf, full, tarn::singles::Sincosf<tarn::singles::sine::Full>)
TARN_EXPORT(unary_second, sincosf, native, tarn::singles::Sincosf<tarn::singles::sine::Native>)
TARN_EXPORT(unary_pair, sincosregf, full, tarn::singles::Sincosf<tarn::singles::sine::Full>)
TARN_EXPORT(unary_pair, sincosregf, native, tarn::singles::Sincosf<tarn::singles::sine::Native>)
