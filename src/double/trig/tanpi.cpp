// tan(pi x) = +-P/Q or its cotangent -+Q/P with n = round(2|x|) and r = |x| - n/2 exact, |r| <= 1/4: the
// tangent of pi r, rounded once, as a quotient of polynomials, inverted where n is odd (native: shorter
// ones). At integers the result is a zero, at half-integers an infinity, both exactly, with the sign
// alternating from one to the next.
//
// One lane above 2^50 sends the call through the same steps after an exact removal of periods, which
// gives every lane the same bits; infinities are then the callout's. A NaN goes through the arithmetic.
//
// Worst error of tanpi: 4.718 ulp at 1.2499725385330658; native 2.261e+05.
#include "callout/callouts.hpp"
#include "double/trig/period.hpp"
#include "double/trig/sine.hpp"
#include "double/trig/tangent_quotient.hpp"
#include "double/trig/turns.hpp"
#include "frame/exports.hpp"

namespace tarn {
namespace {

using namespace trig_f64;

constexpr f64x2 half_shifter = splat_f64(0x4328000000000000);  // 3377699720527872.0 = 1.5 * 2^51: rounds to halves

template <class Form> struct Tanpi : Kernel<double(double)> {
    static constexpr int at_a_time = 8;

    static TARN_INLINE f64x2 of_magnitude(f64x2 a, f64x2 x) {
        const f64x2 shifted = a + half_shifter;
        const i64x2 parity = parity_sign(shifted);
        const f64x2 r = (a - (shifted - half_shifter)) * pi;
        const f64x2 y = tangent_quotient<Form>(r, parity);

        // Where r is 0, y is +0 or +inf, and every other one of each changes its sign.
        const i64x2 odd = bits(shifted) << 62 & sign_mask_f64;
        const i64x2 exact = (i64x2)(r == splat(0.0));
        return xor_bits(y, sign_bit(x) ^ select(exact, odd, parity));
    }

    static TARN_INLINE auto fast(f64x2 x) {
        const f64x2 a = abs(x);
        return Flagged{of_magnitude(a, x), (i64x2)(a > splat(0x1p50))};
    }

    struct LargeArgument : Kernel<double(double)> {
        static constexpr auto callout = callout::tanpi;
        static TARN_INLINE auto fast(f64x2 x) {
            return Flagged{of_magnitude(without_periods(abs(x)), x), is_infinite(x)};
        }
    };
    using long_path = LargeArgument;
};

}  // namespace
}  // namespace tarn

TARN_EXPORT(unary, tanpi, full, tarn::Tanpi<tarn::trig_f64::TangentFull>)
TARN_EXPORT(unary, tanpi, native, tarn::Tanpi<tarn::trig_f64::TangentNative>)
