// tan x = +-P/Q or its cotangent -+Q/P with n = round(2|x|/pi) and r = |x| - n pi/2, |r| <= pi/4: the
// tangent of r as a quotient of polynomials, inverted where n is odd; pi/2 in four pieces (native:
// three, and shorter polynomials).
//
// One lane above 128000 sends the whole call through the exact reduction in half turns; there
// tan(theta + r) = T + (1 + T^2) t/(1 - T t) with T = tan theta from a table of 256ths and t = tan r.
// Infinities are then the callout's. A NaN goes through the arithmetic.
//
// Worst error of tan: 5.012 ulp at 121308.67356856716; native 2.261e+05.
#include "callout/callouts.hpp"
#include "double/trig/sine.hpp"
#include "double/trig/tangent_quotient.hpp"
#include "frame/exports.hpp"
#include "steps/double/turns.hpp"

namespace tarn::doubles {
namespace {

using sine::parity_sign, sine::shifter;

#include "tables/tangent_256ths.inc"

constexpr double two_over_pi = f64(0x3FE45F306DC9C883);  // 0.6366197723675814
constexpr double limit = f64(0x40FF400000000000);        // 128000.0

struct Full : tangent::Full {
    static constexpr double half_pi_1 = f64(0x3FF921FB40000000);  // 1.570796251296997
    static constexpr double half_pi_2 = f64(0x3E74442D00000000);  // 7.549789415861596e-08
    static constexpr double half_pi_3 = f64(0x3CF8469880000000);  // 5.390302529957765e-15
    static constexpr double half_pi_4 = f64(0x3B78CC51701B839A);  // 3.2820035428735005e-22

    template <class V> static TARN_INLINE V reduced(V a, V n) {
        return (((a - n * half_pi_1) - n * half_pi_2) - n * half_pi_3) - n * half_pi_4;
    }
};
struct Native : tangent::Native {
    static constexpr double half_pi_1 = f64(0x3FF921FB54440000);  // 1.5707963267923333
    static constexpr double half_pi_2 = f64(0x3D868C234C4C0000);  // 2.5633441515839558e-12
    static constexpr double half_pi_3 = f64(0x3B298A2E03707345);  // 1.0562999066987428e-23

    template <class V> static TARN_INLINE V reduced(V a, V n) {
        return ((a - n * half_pi_1) - n * half_pi_2) - n * half_pi_3;
    }
};

struct LargeArgument : Kernel<double(double)> {
    static constexpr auto callout = callout::tan;
    static constexpr int blocks_at_a_time = 2;

    template <class V> static TARN_INLINE auto fast(V x) {
        constexpr double t3 = f64(0x3FD5555555555555);  // 0.3333333333333333 = 1/3
        constexpr double t5 = f64(0x3FC1111111111111);  // 0.13333333333333333 = 2/15
        constexpr double t7 = f64(0x3FABA1BA1BA1BA1C);  // 0.05396825396825397 = 17/315

        const auto [row, rest] = reduce_exactly<HalfTurns>(x);
        const auto [head, tail] = gather_columns(tangent_256ths, row);
        const auto slope_of = [](std::int64_t r) __attribute__((always_inline)) { return tangent_256ths[r][2]; };
        const V slope = for_each_lane(row, slope_of);

        const V r = rest.head, z = r * r;
        const V t = r + (horner(z, t7, t5, t3) * z * r + rest.tail);
        const auto pole = row == 128;
        const V y = head + (tail + select(pole, -1.0, slope * t) / select(pole, t, 1.0 - head * t));
        return Flagged{xor_bits(y, sign_bit(x)), is_infinite(x)};
    }
};

template <class Form> struct Tan : Kernel<double(double)> {
    using long_path = LargeArgument;
    static constexpr int blocks_at_a_time = 2;

    template <class V> static TARN_INLINE auto fast(V x) {
        const V a = abs(x);
        const V shifted = a * two_over_pi + shifter;
        const BitsOf<V> parity = parity_sign(shifted);
        const V y = tangent::quotient<Form>(Form::reduced(a, shifted - shifter), parity);
        return Flagged{xor_bits(y, sign_bit(x) ^ parity), a > limit};
    }
};

}  // namespace
}  // namespace tarn::doubles

TARN_EXPORT(unary, tan, full, tarn::doubles::Tan<tarn::doubles::Full>)
TARN_EXPORT(unary, tan, native, tarn::doubles::Tan<tarn::doubles::Native>)
