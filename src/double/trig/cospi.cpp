// cos(pi x) = +-sin(pi r) with n = round(|x| + 1/2) and r = |x| - (n - 1/2) exact, |r| <= 1/2; pi r is
// rounded once and its sine an odd polynomial of degree 15 (native: degree 9). Where |r| is 0 or 1/2
// the result is exact (native: at 0).
//
// One lane above 2^51 sends the call through the same steps after an exact removal of periods, which
// gives every lane the same bits; infinities are then the callout's. A NaN goes through the arithmetic.
//
// Worst error of cospi: 3.683 ulp at -134054.00788327347; native 5.453e+07.
#include "callout/callouts.hpp"
#include "double/trig/period.hpp"
#include "double/trig/sine.hpp"
#include "frame/exports.hpp"
#include "steps/double/turns.hpp"

namespace tarn::doubles {
namespace {

using namespace sine;

template <class Form> struct Cospi : Kernel<double(double)> {
    template <class V> static TARN_INLINE V of_magnitude(V a) {
        const V shifted = (a + half) + shifter;
        const V m = (shifted - shifter) - half;
        const V r = (a - m) * pi;
        return Form::cosine(xor_bits(r, parity_sign(shifted)), r * r);
    }

    template <class V> static TARN_INLINE auto fast(V x) {
        const V a = abs(x);
        return Flagged{of_magnitude(a), a > 0x1p51};
    }

    struct LargeArgument : Kernel<double(double)> {
        static constexpr auto callout = callout::cospi;
        template <class V> static TARN_INLINE auto fast(V x) {
            return Flagged{of_magnitude(without_periods(abs(x))), is_infinite(x)};
        }
    };
    using long_path = LargeArgument;
};

}  // namespace
}  // namespace tarn::doubles

TARN_EXPORT(unary, cospi, full, tarn::doubles::Cospi<tarn::doubles::sine::Full>)
TARN_EXPORT(unary, cospi, native, tarn::doubles::Cospi<tarn::doubles::sine::Native>)
