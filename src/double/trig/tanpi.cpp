// tan(pi x) = +-P/Q or its cotangent -+Q/P with n = round(2|x|) and r = |x| - n/2 exact, |r| <= 1/4: the
// tangent of pi r, rounded once, as a quotient of polynomials, inverted where n is odd (native: shorter
// ones). At integers the result is a zero, at half-integers an infinity, both exactly, with the sign
// alternating from one to the next.
//
// One lane above 2^50 sends the call through the same steps after an exact removal of periods, which
// gives every lane the same bits; infinities are then the callout's. A NaN goes through the arithmetic.
//
// Worst error of tanpi: 5.184 ulp at 0.24998142553094269; native 2.261e+05.
#include "callout/callouts.hpp"
#include "double/trig/period.hpp"
#include "double/trig/sine.hpp"
#include "double/trig/tangent_quotient.hpp"
#include "frame/exports.hpp"
#include "steps/double/turns.hpp"

namespace tarn::doubles {
namespace {

using sine::parity_sign, sine::pi;

constexpr double half_shifter = f64(0x4328000000000000);  // 3377699720527872.0 = 1.5 * 2^51: rounds to halves

template <class Form> struct Tanpi : Kernel<double(double)> {
    static constexpr int blocks_at_a_time = 4;

    template <class V> static TARN_INLINE V of_magnitude(V a, V x) {
        const V shifted = a + half_shifter;
        const BitsOf<V> parity = parity_sign(shifted);
        const V r = (a - (shifted - half_shifter)) * pi;
        const V y = tangent::quotient<Form>(r, parity);

        // Where r is 0, y is +0 or +inf, and every other one of each changes its sign.
        const BitsOf<V> odd = bits(shifted) << 62 & sign_mask<V>;
        const auto exact = r == 0.0;
        return xor_bits(y, sign_bit(x) ^ select(exact, odd, parity));
    }

    template <class V> static TARN_INLINE auto fast(V x) {
        const V a = abs(x);
        return Flagged{of_magnitude(a, x), a > 0x1p50};
    }

    struct LargeArgument : Kernel<double(double)> {
        static constexpr auto callout = callout::tanpi;
        template <class V> static TARN_INLINE auto fast(V x) {
            return Flagged{of_magnitude(without_periods(abs(x)), x), is_infinite(x)};
        }
    };
    using long_path = LargeArgument;
};

}  // namespace
}  // namespace tarn::doubles

TARN_EXPORT(unary, tanpi, full, tarn::doubles::Tanpi<tarn::doubles::tangent::Full>)
TARN_EXPORT(unary, tanpi, native, tarn::doubles::Tanpi<tarn::doubles::tangent::Native>)
