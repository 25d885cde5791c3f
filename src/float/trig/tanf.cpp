// tan x = +-Q/P or its cotangent -+P/Q with n = round(2|x|/pi) and r = |x| - n pi/2, |r| <= pi/4: the
// tangent of r as a quotient of polynomials, inverted where n is odd; pi/2 in four pieces. The native
// form has three, and the processor's reciprocal estimate for the division.
//
// One lane above 8256 sends the whole call through the exact reduction in half turns and the table of
// the tangent; infinities and NaNs are then the callout's.
//
// Worst error of tanf: 4.556 ulp at 701.334351; native and half 5203.
#include "callout/callouts.hpp"
#include "float/trig/tangent_quotient.hpp"
#include "float/trig/tangent_table.hpp"
#include "float/trig/turns.hpp"
#include "frame/exports.hpp"

namespace tarn::singles {
namespace {

constexpr float limit = f32(0x46010000);        // 8256.0
constexpr float two_over_pi = f32(0x3F22F983);  // 0.6366197466850281
constexpr float shifter = f32(0x4B400000);      // 12582912.0 = 1.5 * 2^23
constexpr float half_pi_1 = f32(0x3FC90000);    // 1.5703125

struct Full {
    static constexpr float half_pi_2 = f32(0x39FD8000);  // 0.00048351287841796875
    static constexpr float half_pi_3 = f32(0x34A88000);  // 3.1385570764541626e-07
    static constexpr float half_pi_4 = f32(0x2E85A309);  // 6.07710062827671e-11

    template <class V> static TARN_INLINE V reduced(V a, V n) {
        return (((a - n * half_pi_1) - n * half_pi_2) - n * half_pi_3) - n * half_pi_4;
    }
    template <class V> static TARN_INLINE V value(Quotient<V> y) { return y.numerator / y.denominator; }
};
struct Native {
    static constexpr float half_pi_2 = f32(0x39FDA000);  // 0.0004837512969970703
    static constexpr float half_pi_3 = f32(0x33A22169);  // 7.549790126404332e-08

    template <class V> static TARN_INLINE V reduced(V a, V n) {
        return ((a - n * half_pi_1) - n * half_pi_2) - n * half_pi_3;
    }
    template <class V> static TARN_INLINE V value(Quotient<V> y) {
        return y.numerator * reciprocal_estimate(y.denominator);
    }
};

struct LargeArgument : Kernel<float(float)> {
    static constexpr auto callout = callout::tanf;
    static constexpr int blocks_at_a_time = 2;

    template <class V> static TARN_INLINE auto fast(V x) {
        const auto [row, rest] = reduce_exactly<HalfTurns>(x);
        const V y = from_tangent_table(row, rest.head, rest.tail);
        return Flagged{select(x == 0.0f, x, y), not_finite(x)};
    }
};

template <class Form> struct Tanf : Kernel<float(float)> {
    using long_path = LargeArgument;

    template <class V> static TARN_INLINE auto fast(V x) {
        const V a = abs(x);
        const V shifted = a * two_over_pi + shifter;
        const BitsOf<V> parity = bits(shifted) << 31;
        const V r = Form::reduced(a, shifted - shifter);
        const V y = Form::value(tangent_quotient(r, parity));
        return Flagged{xor_bits(y, sign_bit(x) ^ parity), a > limit};
    }
};

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(unary, tanf, full, tarn::singles::Tanf<tarn::singles::Full>)
TARN_EXPORT(unary, tanf, native, tarn::singles::Tanf<tarn::singles::Native>)
TARN_EXPORT_SAME(tanf, half, native)
