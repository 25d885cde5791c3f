// sinh x and cosh x by the addition theorem, |x| = u + r with u = N ln 2 / 128 (cosh: 256): sinh r and
// cosh r - 1 are short odd and even polynomials, |r| <= 0.0027, and sinh u and cosh u come from e^u / 2 and
// e^-u / 2, table rows with their exponent fields moved. For sinh u the table also holds the hyperbolic sine of the row
// itself, so that nothing is lost where u is small; cosh u needs only powers, read at N and -N. The native
// forms have ln 2 in one piece and a term less in each polynomial.
//
// Worst error of sinh: 2.143 ulp at 0.0035003781002475743; native 2.517e+04.
// Worst error of cosh: 1.147 ulp at 1.2387298893219394; native 1584.
#include "callout/callouts.hpp"
#include "frame/exports.hpp"
#include "steps/double/exp_parts.hpp"

namespace tarn::doubles {
namespace {

#include "tables/cosh_halves.inc"
#include "tables/sinh_pairs.inc"

constexpr double shifter = f64(0x4338000000000000);  // 6755399441055744.0 = 1.5 * 2^52
// |r| <= ln 2/256, cosh ln 2/512; fit not recorded.
constexpr double c2 = f64(0x3FDFFFFFFFFFFDBD);       // 0.49999999999996786
constexpr double c3 = f64(0x3FC55555555554AD);       // 0.166666666666662
constexpr double c4 = f64(0x3FA55555CF16D299);       // 0.04166668084090936
constexpr double c5 = f64(0x3F8111115712F425);       // 0.008333335370815995
constexpr double cosh_c3 = f64(0x3FC5555570813E14);  // 0.16666667931939172
constexpr std::uint32_t bound = 0x40861D99;          // below 707.7001953125

// r for both grids, and the polynomials: sinh r = r + r z odd(z), cosh r - 1 = z even(z), z = r^2.
struct Full {
    static constexpr int sinh_blocks = 4;
    static constexpr double ln2_128th_head = f64(0x3F762E42FEFA0000);  // 0.005415212348111709
    static constexpr double ln2_128th_tail = f64(0x3D0CF79ABC9E3B3A);  // 1.2864023111638346e-14
    static constexpr double ln2_256th_head = f64(0x3F662E42FEFC0000);  // 0.0027076061741126978
    static constexpr double ln2_256th_tail = f64(0xBD2C610CA86C3899);  // -5.0411407304988844e-14

    template <class V> static TARN_INLINE V from_128th(V a, V n) {
        return (a - n * ln2_128th_head) - n * ln2_128th_tail;
    }
    template <class V> static TARN_INLINE V from_256th(V a, V n) {
        return (a - n * ln2_256th_head) - n * ln2_256th_tail;
    }
    template <class V> static TARN_INLINE V odd(V z) { return c3 + c5 * z; }
    template <class V> static TARN_INLINE V even(V z) { return c2 + c4 * z; }
};
struct Native {
    static constexpr int sinh_blocks = 8;
    static constexpr double ln2_128th = f64(0x3F762E42FEFA39EF);  // 0.0054152123481245725
    static constexpr double ln2_256th = f64(0x3F662E42FEFA39EF);  // 0.0027076061740622863

    template <class V> static TARN_INLINE V from_128th(V a, V n) { return a - n * ln2_128th; }
    template <class V> static TARN_INLINE V from_256th(V a, V n) { return a - n * ln2_256th; }
    template <class V> static TARN_INLINE double odd(V) { return c3; }
    template <class V> static TARN_INLINE double even(V) { return c2; }
};

template <class Form> struct Sinh : Kernel<double(double)> {
    static constexpr auto callout = callout::sinh;
    static constexpr int blocks_at_a_time = Form::sinh_blocks;

    static constexpr double scale = f64(0x40671547652B82FE);  // 184.6649652337873 = 128/ln 2

    // The functions of u.
    template <class V> struct AtRow {
        V sinh, cosh;
    };
    template <class V> static TARN_INLINE AtRow<V> at_row(V shifted) {
        const auto [sine, half] = gather_columns(sinh_pairs, bits(shifted) & 127);
        const BitsOf<V> moved = (bits(shifted) & ~127) << 45;
        const V plus = from_bits(bits(half) + moved), minus = from_bits(bits(half) - moved);
        const V raised_sine = from_bits(bits(sine) + moved);
        return {(plus - minus) + raised_sine, raised_sine + (plus + minus)};
    }

    template <class V> static TARN_INLINE auto fast(V x) {
        const V a = abs(x);
        const V shifted = a * scale + shifter;
        const V r = Form::from_128th(a, shifted - shifter);
        const V z = r * r;
        const V sinh_r = r + r * z * Form::odd(z), cosh_r = z * Form::even(z);
        const auto [sinh_u, cosh_u] = at_row(shifted);
        const V y = (sinh_r * cosh_u + cosh_r * sinh_u) + sinh_u;
        return Flagged{or_bits(y, sign_bit(x)), upper_magnitude_above(x, bound)};
    }
};

template <class Form> struct Cosh : Kernel<double(double)> {
    static constexpr auto callout = callout::cosh;

    static constexpr double scale = f64(0x40771547652B82FE);  // 369.3299304675746 = 256/ln 2

    template <class I> static TARN_INLINE auto half_power(I n) {
        const auto half = gather(cosh_halves, n & 255);
        return from_bits(bits(half) + ((n & ~255) << 44));
    }

    template <class V> static TARN_INLINE auto fast(V x) {
        const V a = abs(x);
        const V shifted = a * scale + shifter;
        const V r = Form::from_256th(a, shifted - shifter);
        const V z = r * r;
        const V sinh_r = r + r * z * cosh_c3, cosh_r = z * Form::even(z);
        const V plus = half_power(bits(shifted)), minus = half_power(0 - bits(shifted));
        const V y = plus + (minus + (sinh_r * (plus - minus) + cosh_r * (plus + minus)));
        return Flagged{y, upper_magnitude_above(x, bound)};
    }
};

}  // namespace
}  // namespace tarn::doubles

TARN_EXPORT(unary, sinh, full, tarn::doubles::Sinh<tarn::doubles::Full>)
TARN_EXPORT(unary, sinh, native, tarn::doubles::Sinh<tarn::doubles::Native>)
TARN_EXPORT(unary, cosh, full, tarn::doubles::Cosh<tarn::doubles::Full>)
TARN_EXPORT(unary, cosh, native, tarn::doubles::Cosh<tarn::doubles::Native>)
