// sin x and cos x from one reduction: n and r as for the sine, |r| <= pi/2; the cosine is the sine of
// the angle half a step further toward r, +-(|r| - pi/2), reduced afresh with the pieces of pi.
//
// One lane above 10000 sends the whole call through the exact reduction in turns and the angle
// tables, where the sine has the bits of sinf; infinities and NaNs are then the callout's.
#include "callout/callouts.hpp"
#include "float/trig/angle_table.hpp"
#include "float/trig/sine.hpp"
#include "frame/exports.hpp"

namespace tarn {
namespace {

// One copy for all widths and variants: inlined, it would be most of the code.
[[gnu::noinline]] f32x4 large_argument(f32x4 x, f32x4* cosine) {
    const Reduced angle = reduce_exactly<Turns>(x);
    *cosine = from_angle_table(cosine_256ths, angle);
    return from_angle_table(sine_256ths, angle);
}

template <class Form> struct Sincosf : Kernel<Both<float, float>(float)> {
    static constexpr auto callout = callout::sincosf;

    static TARN_INLINE auto fast(f32x4 x) {
        using namespace sine;
        const f32x4 a = abs(x);
        const f32x4 shifted = a * inv_pi + shifter;
        const f32x4 n = shifted - shifter;
        const i32x4 parity = parity_sign(shifted);
        const f32x4 near_n = near(a, n);
        const i32x4 side = sign_bit(near_n);
        const f32x4 m = n + or_bits(half, side);
        const f32x4 sine_r = xor_bits(Form::rest(near_n, n), parity);
        const f32x4 cosine_r = xor_bits(Form::rest(near(a, m), m), sign_mask_f32 ^ side ^ parity);
        const f32x4 sine = xor_bits(Form::polynomial(sine_r, sine_r * sine_r), sign_bit(x));
        const f32x4 cosine = Form::polynomial(cosine_r, cosine_r * cosine_r);
        return FlaggedPair{sine, cosine, a > limit};
    }

    static TARN_INLINE auto long_path(f32x4 x) {
        f32x4 cosine;
        const f32x4 sine = large_argument(x, &cosine);
        return FlaggedPair{sine, cosine, not_finite(x)};
    }
};

}  // namespace
}  // namespace tarn

TARN_EXPORT(unary_second, sincosf, full, tarn::Sincosf<tarn::sine::Full>)
TARN_EXPORT(unary_second, sincosf, native, tarn::Sincosf<tarn::sine::Native>)
TARN_EXPORT(unary_pair, sincosregf, full, tarn::Sincosf<tarn::sine::Full>)
TARN_EXPORT(unary_pair, sincosregf, native, tarn::Sincosf<tarn::sine::Native>)
