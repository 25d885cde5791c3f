// cos(pi x) = +-sin(pi r) with n = round(|x| + 1/2) and r = |x| - (n - 1/2) exact, |r| <= 1/2; pi r is
// rounded once and its sine an odd polynomial of degree 9 (native: degree 5). Where |r| is 0 or 1/2
// the result is exact (native: at 0).
//
// One lane above 2^22 sends the call through the same steps after an exact removal of periods, which
// gives every lane the same bits; infinities and NaNs are then the callout's.
//
// Worst error of cospif: 2.109 ulp at 0.093335703; native 2280.
#include "callout/callouts.hpp"
#include "float/trig/period.hpp"
#include "float/trig/sine.hpp"
#include "frame/exports.hpp"

namespace tarn::singles {
namespace {

template <class Form> struct Cospif : Kernel<float(float)> {
    template <class V> static TARN_INLINE V of_magnitude(V a) {
        const V shifted = (a + sine::half) + sine::shifter;
        const V m = (shifted - sine::shifter) - sine::half;
        const V r = (a - m) * pi;
        return Form::polynomial(xor_bits(r, sine::parity_sign(shifted)), r * r);
    }

    template <class V> static TARN_INLINE auto fast(V x) {
        const V a = abs(x);
        return Flagged{of_magnitude(a), a > 0x1p22f};
    }

    struct LargeArgument : Kernel<float(float)> {
        static constexpr auto callout = callout::cospif;
        template <class V> static TARN_INLINE auto fast(V x) {
            return Flagged{of_magnitude(without_periods(abs(x))), not_finite(x)};
        }
    };
    using long_path = LargeArgument;
};

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(unary, cospif, full, tarn::singles::Cospif<tarn::singles::sine::Full>)
TARN_EXPORT(unary, cospif, native, tarn::singles::Cospif<tarn::singles::sine::Native>)
