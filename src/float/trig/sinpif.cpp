// sin(pi x) = +-sin(pi r) with n = round(|x|) and r = |x| - n exact, |r| <= 1/2; pi r is rounded once
// and its sine an odd polynomial of degree 9 (native: degree 5). Where |r| is 0 or 1/2 the result is
// exact (native: at 0).
//
// One lane above 2^22 sends the call through the same steps after an exact removal of periods, which
// gives every lane the same bits; infinities and NaNs are then the callout's.
//
// Worst error of sinpif: 2.131 ulp at 0.00248682126; native 2280.
#include "callout/callouts.hpp"
#include "float/trig/period.hpp"
#include "float/trig/sine.hpp"
#include "frame/exports.hpp"

namespace tarn::singles {
namespace {

template <class Form> struct Sinpif : Kernel<float(float)> {
    template <class V> static TARN_INLINE V of_magnitude(V a, V x) {
        const V shifted = a + sine::shifter;
        const V r = (a - (shifted - sine::shifter)) * pi;
        const V y = Form::polynomial(xor_bits(r, sine::parity_sign(shifted)), r * r);
        return xor_bits(y, sign_bit(x));
    }

    template <class V> static TARN_INLINE auto fast(V x) {
        const V a = abs(x);
        return Flagged{of_magnitude(a, x), a > 0x1p22f};
    }

    struct LargeArgument : Kernel<float(float)> {
        static constexpr auto callout = callout::sinpif;
        template <class V> static TARN_INLINE auto fast(V x) {
            return Flagged{of_magnitude(without_periods(abs(x)), x), not_finite(x)};
        }
    };
    using long_path = LargeArgument;
};

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(unary, sinpif, full, tarn::singles::Sinpif<tarn::singles::sine::Full>)
TARN_EXPORT(unary, sinpif, native, tarn::singles::Sinpif<tarn::singles::sine::Native>)
