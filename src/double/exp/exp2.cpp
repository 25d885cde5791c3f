// 2^x and 10^x as 2^(n/128) times a polynomial in the remainder of x, of degree 4 for 2^x (|r| <= 1/256)
// and 5 for 10^x (|r| <= 0.0012, reduced by log10 2 in a head and a tail). The native forms take the
// remainder in 128ths of the exponent and spend a quadratic on both. Width 2 of exp2 finishes its special
// lanes in line.
//
// Worst error of exp2: 1.643 ulp at 22.979727156384683; native 2.978e+07.
// Worst error of exp10: 1.004 ulp at 27.578322790062902; native 2.978e+07.
#include "callout/callouts.hpp"
#include "frame/exports.hpp"
#include "steps/double/exp_parts.hpp"

namespace tarn::doubles {
namespace {

// 2^(n/128) (1 + r q), n in the shifted sum.
template <class V> TARN_INLINE V exp2_of(V shifted, V r, V q) {
    const V table = exp2_128th(shifted);
    return raised<7>(table + (table * r) * q, shifted);
}

constexpr std::uint32_t exp2_bound = 0x408FEFFF;   // below 1022
constexpr std::uint32_t exp10_bound = 0x40733A70;  // 307.65

struct Exp2 : Kernel<double(double)> {
    static constexpr auto callout = callout::exp2;

    static constexpr double shifter = f64(0x42C8000000000000);  // 1.5 * 2^45: rounds to 128ths
    // |r| <= 1/256; fit not recorded.
    static constexpr double c1 = f64(0x3FE62E42FEFA3685);       // 0.6931471805598483
    static constexpr double c2 = f64(0x3FCEBFBDFF82CA48);       // 0.24022650695913428
    static constexpr double c3 = f64(0x3FAC6B09B180F045);       // 0.05550413409989167
    static constexpr double c4 = f64(0x3F83B2AB5BB1268F);       // 0.009618128524510964

    template <class V> static TARN_INLINE auto fast(V x) {
        const V shifted = x + shifter;
        const V r = x - (shifted - shifter);
        return Flagged{exp2_of(shifted, r, horner(r, c4, c3, c2, c1)), upper_magnitude_above(x, exp2_bound)};
    }
};

struct Exp2AtWidth2 : Kernel<double(double)> {
    template <class V> static TARN_INLINE auto fast(V x) { return Exp2::fast(x); }
    static f64x2 finish(f64x2 x, f64x2 value, unsigned flags) { return finish_lanes(callout::exp2, x, value, flags); }
};

struct Exp2Native : Kernel<double(double)> {
    static constexpr auto callout = callout::exp2;

    static constexpr double c1 = f64(0x3FE62E42FEFA39EF);  // 0.6931471805599453
    static constexpr double c2 = f64(0x3FCEBFBDFF82C58F);  // 0.24022650695910072

    template <class V> static TARN_INLINE auto fast(V x) {
        const V shifted = x + Exp2::shifter;
        const V r = x - (shifted - Exp2::shifter);
        return Flagged{exp2_of(shifted, r, c2 * r + c1), upper_magnitude_above(x, exp2_bound)};
    }
};

struct Exp10 : Kernel<double(double)> {
    static constexpr auto callout = callout::exp10;

    static constexpr double scale = f64(0x407A934F0979A371);               // 425.20679614558236 = 128 log2 10
    static constexpr double shifter = f64(0x4338800000000000);             // 1.53125 * 2^52
    static constexpr double log10_2_128th_head = f64(0x3F63441350A00000);  // 0.0023517968411397305
    static constexpr double log10_2_128th_tail = f64(0xBD10C0219DC1DA99);  // -1.487744411497209e-14
    // |r| <= 0.0012; fit not recorded.
    static constexpr double c1 = f64(0x40026BB1BBB55516);                  // 2.302585092994046
    static constexpr double c2 = f64(0x40053524C73CE8E3);                  // 2.650949055239026
    static constexpr double c3 = f64(0x4000470591CCEA8B);                  // 2.0346785917911965
    static constexpr double c4 = f64(0x3FF2BD767584DB59);                  // 1.1712555494866221
    static constexpr double c5 = f64(0x3FE144C03EFAFB54);                  // 0.5396424512945068

    template <class V> static TARN_INLINE auto fast(V x) {
        const V shifted = x * scale + shifter;
        const V n = shifted - shifter;
        const V r = (x - n * log10_2_128th_head) - n * log10_2_128th_tail;
        return Flagged{exp2_of(shifted, r, horner(r, c5, c4, c3, c2, c1)), upper_magnitude_above(x, exp10_bound)};
    }
};

struct Exp10Native : Kernel<double(double)> {
    static constexpr auto callout = callout::exp10;

    // The coefficients of 2^(u/128).
    static constexpr double c1 = f64(0x3F762E42FEFA39EF);  // 0.0054152123481245725
    static constexpr double c2 = f64(0x3EEEBFBDFF82C58F);  // 1.4662262387640425e-05

    template <class V> static TARN_INLINE auto fast(V x) {
        const V t = x * Exp10::scale;
        const V shifted = t + Exp10::shifter;
        const V u = t - (shifted - Exp10::shifter);
        return Flagged{exp2_of(shifted, u, c2 * u + c1), upper_magnitude_above(x, exp10_bound)};
    }
};

using Exp2ByWidth = ExceptAt<Exp2, 2, Exp2AtWidth2>;

}  // namespace
}  // namespace tarn::doubles

TARN_EXPORT(unary, exp2, full, tarn::doubles::Exp2ByWidth)
TARN_EXPORT(unary, exp2, native, tarn::doubles::Exp2Native)
TARN_EXPORT(unary, exp10, full, tarn::doubles::Exp10)
TARN_EXPORT(unary, exp10, native, tarn::doubles::Exp10Native)
