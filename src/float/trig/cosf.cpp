// cos x = +-sin r with n = round((x + pi/2)/pi) and r = x - (n - 1/2) pi, |r| <= pi/2; pi in four
// pieces, the sine an odd polynomial of degree 9 (native: three pieces, degree 5).
//
// One lane above 10000 sends the whole call through the exact reduction in turns and the angle table;
// infinities and NaNs are then the callout's.
//
// Worst error of cosf: 2.387 ulp at 8656.91113; native and half 2349.
#include "callout/callouts.hpp"
#include "float/trig/angle_table.hpp"
#include "float/trig/sine.hpp"
#include "frame/exports.hpp"

namespace tarn::singles {
namespace {

constexpr float half_pi = f32(0x3FC90FDB);  // 1.5707963705062866

struct LargeArgument : Kernel<float(float)> {
    static constexpr auto callout = callout::cosf;
    static constexpr int blocks_at_a_time = 2;

    template <class V> static TARN_INLINE auto fast(V x) {
        return Flagged{from_angle_table(cosine_256ths, reduce_exactly<Turns>(x)), not_finite(x)};
    }
};

template <class Form> struct Cosf : Kernel<float(float)> {
    using long_path = LargeArgument;

    template <class V> static TARN_INLINE auto fast(V x) {
        using namespace sine;
        const V shifted = (x + half_pi) * inv_pi + shifter;
        const V m = (shifted - shifter) - half;
        const V r = Form::rest(near(x, m), m);
        const V y = Form::polynomial(xor_bits(r, parity_sign(shifted)), r * r);
        return Flagged{y, abs(x) > limit};
    }
};

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(unary, cosf, full, tarn::singles::Cosf<tarn::singles::sine::Full>)
TARN_EXPORT(unary, cosf, native, tarn::singles::Cosf<tarn::singles::sine::Native>)
TARN_EXPORT_SAME(cosf, half, native)
