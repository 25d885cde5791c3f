// sin(pi x) = +-sin(pi r) with n = round(|x|) and r = |x| - n exact, |r| <= 1/2; pi r is rounded once
// and its sine an odd polynomial of degree 15 (native: degree 9). Where |r| is 0 or 1/2 the result is
// exact (native: at 0).
//
// One lane above 2^51 sends the call through the same steps after an exact removal of periods, which
// gives every lane the same bits; infinities are then the callout's. A NaN goes through the arithmetic.
//
// Worst error of sinpi: 3.663 ulp at 12.492142935432; native 5.453e+07.
#include "callout/callouts.hpp"
#include "double/trig/period.hpp"
#include "double/trig/sine.hpp"
#include "frame/exports.hpp"
#include "steps/double/turns.hpp"

namespace tarn::doubles {
namespace {

using namespace sine;

template <class Form> struct Sinpi : Kernel<double(double)> {
    template <class V> static TARN_INLINE V of_magnitude(V a, V x) {
        const V shifted = a + shifter;
        const V r = (a - (shifted - shifter)) * pi;
        const V y = Form::cosine(xor_bits(r, parity_sign(shifted)), r * r);
        return xor_bits(y, sign_bit(x));
    }

    template <class V> static TARN_INLINE auto fast(V x) {
        const V a = abs(x);
        return Flagged{of_magnitude(a, x), a > 0x1p51};
    }

    struct LargeArgument : Kernel<double(double)> {
        static constexpr auto callout = callout::sinpi;
        template <class V> static TARN_INLINE auto fast(V x) {
            return Flagged{of_magnitude(without_periods(abs(x)), x), is_infinite(x)};
        }
    };
    using long_path = LargeArgument;
};

}  // namespace
}  // namespace tarn::doubles

TARN_EXPORT(unary, sinpi, full, tarn::doubles::Sinpi<tarn::doubles::sine::Full>)
TARN_EXPORT(unary, sinpi, native, tarn::doubles::Sinpi<tarn::doubles::sine::Native>)
