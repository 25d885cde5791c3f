// sinh x and cosh x by the addition theorem, |x| = u + r with u = N ln 2 / 128 (cosh: 256): sinh r and
// cosh r - 1 are short odd and even polynomials, |r| <= 0.0027, and sinh u and cosh u come from e^u / 2 and
// e^-u / 2, table rows with their exponent fields moved. For sinh u the table also holds the hyperbolic sine of the row
// itself, so that nothing is lost where u is small; cosh u needs only powers, read at N and -N. The native
// forms have ln 2 in one piece and a term less in each polynomial.
//
// Worst error of sinh: 2.091 ulp at 0.0035005794279415192; native 2.517e+04.
// Worst error of cosh: 1.138 ulp at 1.2387324920711453; native 1545.
#include "callout/callouts.hpp"
#include "double/exp/parts.hpp"
#include "frame/exports.hpp"

namespace tarn {
namespace {

#include "tables/cosh_halves.inc"
#include "tables/sinh_pairs.inc"

constexpr f64x2 shifter = splat_f64(0x4338000000000000);  // 6755399441055744.0 = 1.5 * 2^52
constexpr f64x2 c2 = splat_f64(0x3FDFFFFFFFFFFDBD);       // 0.49999999999996786
constexpr f64x2 c4 = splat_f64(0x3FA55555CF16D299);       // 0.04166668084090936
constexpr std::uint32_t bound = 0x40861D99;               // below 707.7001953125


struct Sinh : Kernel<double(double)> {
    static constexpr auto callout = callout::sinh;
    static constexpr int at_a_time = 8;

    static constexpr f64x2 scale = splat_f64(0x40671547652B82FE);           // 184.6649652337873 = 128/ln 2
    static constexpr f64x2 ln2_128th_head = splat_f64(0x3F762E42FEFA0000);  // 0.005415212348111709
    static constexpr f64x2 ln2_128th_tail = splat_f64(0x3D0CF79ABC9E3B3A);  // 1.2864023111638346e-14
    static constexpr f64x2 c3 = splat_f64(0x3FC55555555554AD);              // 0.166666666666662
    static constexpr f64x2 c5 = splat_f64(0x3F8111115712F425);              // 0.008333335370815995

    // The functions of u.
    struct AtRow {
        f64x2 sinh, cosh;
    };
    static TARN_INLINE AtRow at_row(f64x2 shifted) {
        const auto [sine, half] = gather_columns(sinh_pairs, bits(shifted) & splat_i64(127));
        const i64x2 moved = (bits(shifted) & ~splat_i64(127)) << 45;
        const f64x2 plus = from_bits(bits(half) + moved), minus = from_bits(bits(half) - moved);
        const f64x2 raised_sine = from_bits(bits(sine) + moved);
        return {(plus - minus) + raised_sine, raised_sine + (plus + minus)};
    }
    static TARN_INLINE auto sum(f64x2 x, f64x2 shifted, f64x2 sinh_r, f64x2 cosh_r) {
        const auto [sinh_u, cosh_u] = at_row(shifted);
        const f64x2 y = (sinh_r * cosh_u + cosh_r * sinh_u) + sinh_u;
        return Flagged{or_bits(y, sign_bit(x)), upper_magnitude_above(x, bound)};
    }

    static TARN_INLINE auto fast(f64x2 x) {
        const f64x2 a = abs(x);
        const f64x2 shifted = a * scale + shifter;
        const f64x2 n = shifted - shifter;
        const f64x2 r = (a - n * ln2_128th_head) - n * ln2_128th_tail;
        const f64x2 z = r * r;
        return sum(x, shifted, r + r * z * (c3 + c5 * z), z * (c2 + c4 * z));
    }
};

struct SinhNative : Kernel<double(double)> {
    static constexpr auto callout = callout::sinh;

    static constexpr f64x2 ln2_128th = splat_f64(0x3F762E42FEFA39EF);  // 0.005415212348514945

    static TARN_INLINE auto fast(f64x2 x) {
        const f64x2 a = abs(x);
        const f64x2 shifted = a * Sinh::scale + shifter;
        const f64x2 r = a - (shifted - shifter) * ln2_128th;
        const f64x2 z = r * r;
        return Sinh::sum(x, shifted, r + r * z * Sinh::c3, z * c2);
    }
};

struct Cosh : Kernel<double(double)> {
    static constexpr auto callout = callout::cosh;

    static constexpr f64x2 scale = splat_f64(0x40771547652B82FE);           // 369.3299304675746 = 256/ln 2
    static constexpr f64x2 ln2_256th_head = splat_f64(0x3F662E42FEFC0000);  // 0.0027076061741126978
    static constexpr f64x2 ln2_256th_tail = splat_f64(0xBD2C610CA86C3899);  // -5.0411407304988844e-14
    static constexpr f64x2 c3 = splat_f64(0x3FC5555570813E14);              // 0.16666667931939172

    static TARN_INLINE f64x2 half_power(i64x2 n) {
        const f64x2 half = gather(cosh_halves, n & splat_i64(255));
        return from_bits(bits(half) + ((n & ~splat_i64(255)) << 44));
    }
    static TARN_INLINE auto sum(f64x2 x, f64x2 shifted, f64x2 sinh_r, f64x2 cosh_r) {
        const f64x2 plus = half_power(bits(shifted)), minus = half_power(splat_i64(0) - bits(shifted));
        const f64x2 y = plus + (minus + (sinh_r * (plus - minus) + cosh_r * (plus + minus)));
        return Flagged{y, upper_magnitude_above(x, bound)};
    }

    static TARN_INLINE auto fast(f64x2 x) {
        const f64x2 a = abs(x);
        const f64x2 shifted = a * scale + shifter;
        const f64x2 n = shifted - shifter;
        const f64x2 r = (a - n * ln2_256th_head) - n * ln2_256th_tail;
        const f64x2 z = r * r;
        return sum(x, shifted, r + r * z * c3, z * (c2 + c4 * z));
    }
};

struct CoshNative : Kernel<double(double)> {
    static constexpr auto callout = callout::cosh;

    static constexpr f64x2 ln2_256th = splat_f64(0x3F662E42FEFA39EF);  // 0.0027076061742574725

    static TARN_INLINE auto fast(f64x2 x) {
        const f64x2 a = abs(x);
        const f64x2 shifted = a * Cosh::scale + shifter;
        const f64x2 r = a - (shifted - shifter) * ln2_256th;
        const f64x2 z = r * r;
        return Cosh::sum(x, shifted, r + r * z * Cosh::c3, z * c2);
    }
};

}  // namespace
}  // namespace tarn

TARN_EXPORT(unary, sinh, full, tarn::Sinh)
TARN_EXPORT(unary, sinh, native, tarn::SinhNative)
TARN_EXPORT(unary, cosh, full, tarn::Cosh)
TARN_EXPORT(unary, cosh, native, tarn::CoshNative)
