// e^x = 2^(n/1024) e^r with n = round(1024 x / ln 2), |r| <= 0.00034; a table of 2^(j/1024)/6 times six
// times a cubic, its exponent field raised by n >> 10. The native form reduces in base 2 in 64ths, with a
// quadratic and no split.
//
// Width 2 has a kernel of its own: 64ths and degree 5 in two halves, and its special lanes are finished in
// line, scaled by 2^200 on the way where the result leaves the normal range.
//
// exp(+-0) is one unit below 1 but for width 2: the table's and the cubic's first constants are a fit.
//
// Worst error of exp: 2.658 ulp at 40.173429847115138, width 2 3.009; native 5.944e+07.
#include "callout/callouts.hpp"
#include "frame/exports.hpp"
#include "steps/double/exp_parts.hpp"

namespace tarn::doubles {
namespace {

#include "tables/exp_64th_fractions.inc"
#include "tables/exp_fine.inc"
#include "tables/exp_native.inc"

constexpr double shifter = f64(0x4338000000000000);           // 6755399441055744.0 = 1.5 * 2^52
constexpr double sixtyfour_log2_e = f64(0x40571547652B82FE);  // 92.33248261689366 = 64/ln 2

struct Exp : Kernel<double(double)> {
    static constexpr auto callout = callout::exp;

    static constexpr double scale = f64(0x40971547652B82FE);            // 1477.3197218702985 = 1024/ln 2
    static constexpr double ln2_1024th_head = f64(0x3F462E42FEC00000);  // 0.0006769015431018488
    static constexpr double ln2_1024th_tail = f64(0x3D5D1CF79ABC9E3B);  // 4.137227896298129e-13
    // |r| <= 0.00034; fit not recorded.
    static constexpr double k1 = f64(0x4008000002503ECD);               // 3.0000000172366073
    static constexpr double k2 = f64(0x4017FFFFFE3CA7B0);               // 5.999999973728265
    static constexpr double k3 = f64(0x4017FFFFFE3CA7AF);               // 5.999999973728264

    template <class V> static TARN_INLINE auto fast(V x) {
        const V shifted = x * scale + shifter;
        const V n = shifted - shifter;
        const V r = (x - n * ln2_1024th_head) - n * ln2_1024th_tail;
        const V q = ((r + k1) * r + k2) * r + k3;
        const V y = gather(exp_fine, bits(shifted) & 1023) * q;
        return Flagged{raised<10>(y, shifted), upper_magnitude_above(x, 0x4086232A)};  // 708.3959960937499
    }
};

struct ExpNative : Kernel<double(double)> {
    static constexpr auto callout = callout::exp;

    // |u| <= 1/2; fit not recorded.
    static constexpr double k1 = f64(0x4067154FB6857607);  // 184.66598058764086
    static constexpr double k2 = f64(0x40D0A6A6C7C54F24);  // 17050.60594303826

    template <class V> static TARN_INLINE auto fast(V x) {
        const V t = x * sixtyfour_log2_e;
        const V shifted = t + shifter;
        const V u = t - (shifted - shifter);
        const V q = (u + k1) * u + k2;
        const V scaled = raised<6>(gather(exp_native, bits(shifted) & 63), shifted);
        return Flagged{q * scaled, upper_magnitude_above(x, 0x4085D533)};  // 698.6499023437499
    }
};

struct ExpAtWidth2 : Kernel<double(double)> {
    static constexpr double ln2_64th_head = f64(0x3F862E42FEE00000);  // 0.01083042469326756
    static constexpr double ln2_64th_tail = f64(0x3D8A39EF35793C76);  // 2.9815858269852933e-12
    // |r| <= ln 2/128; fit not recorded.
    static constexpr double c2 = f64(0x3FDFFFFFFFFF62DC);             // 0.4999999999977669
    static constexpr double c3 = f64(0x3FC555555555E58E);             // 0.16666666666769142
    static constexpr double c4 = f64(0x3FA555594C77FF02);             // 0.04166678484398113
    static constexpr double c5 = f64(0x3F81111001A21E3A);             // 0.008333325433581885
    static constexpr double one = 1.0;

    // 2^(n/64) e^r as the two factors, the exponent of the first moved by `moved`.
    template <class V> struct Factors {
        V power, p;
    };
    template <class V> static TARN_INLINE Factors<V> factors(V x, BitsOf<V> moved) {
        const V t = x * sixtyfour_log2_e;
        const V n = round<Rounding::nearest>(t);
        const BitsOf<V> number = bits(t + shifter) & 0xFFFFFFFF;
        const V r = (x - n * ln2_64th_head) - n * ln2_64th_tail;
        const V r2 = r * r;
        const V p = (r + r2 * (c2 + c4 * r2)) + (one + r2 * r * (c3 + c5 * r2));
        const BitsOf<V> exponent = shift_right_logical(number + 0xFFC0, 6) + moved;
        return {from_bits(exponent << 52 | gather(exp_64th_fractions, number & 63)), p};
    }

    template <class V> static TARN_INLINE auto fast(V x) {
        const auto [power, p] = factors(x, BitsOf<V>{});
        return Flagged{power * p, upper_magnitude_above(x, 0x4085FFFF)};  // from 704 on
    }

    static f64x2 finish(f64x2 x, f64x2 ordinary, unsigned) {
        const f64x2 a = abs(x);
        const i64x2 positive = x > 0.0;
        // Up to 768: through a power that is 2^200 nearer to 1, so that the last product is what overflows
        // or becomes subnormal.
        const auto [power, p] = factors(x, select(positive, std::int64_t{-200}, std::int64_t{200}));
        const f64x2 scaled = power * p * select(positive, f64(0x4C70000000000000), f64(0x3370000000000000));
        // Beyond: squares that overflow or vanish. Infinities and NaNs square to what they are.
        const f64x2 end = select(positive, f64(0x7FE0000000000000), f64(0x0010000000000000));
        const f64x2 itself = select(x == f64(0xFFF0000000000000), 0.0, x);
        const f64x2 root = opaque(select(a < f64(0x7FF0000000000000), end, itself));
        return select(a < 704.0, ordinary, select(a < 768.0, scaled, root * root));
    }
};

using ExpByWidth = ExceptAt<Exp, 2, ExpAtWidth2>;

}  // namespace
}  // namespace tarn::doubles

TARN_EXPORT(unary, exp, full, tarn::doubles::ExpByWidth)
TARN_EXPORT(unary, exp, native, tarn::doubles::ExpNative)
