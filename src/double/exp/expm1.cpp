// e^x - 1 = (H - 1) + (L + H q) with H + L = 2^(n/128), n = round(128 x / ln 2), and q = e^r - 1 of degree
// 5; H, its exponent written into the pattern, is rounded, L is what that leaves. The native form has no L,
// ln 2 in one piece and degree 3.
//
// Worst error of expm1: 1.978 ulp at -0.002708923968737001; native 5.189e+06.
#include "callout/callouts.hpp"
#include "frame/exports.hpp"

namespace tarn::doubles {
namespace {

#include "tables/expm1_pairs.inc"

constexpr double one = 1.0;
constexpr double scale = f64(0x40671547652B82FE);    // 184.6649652337873 = 128/ln 2
constexpr double shifter = f64(0x42F80000001FF800);  // 1.5 * 2^48 and the exponent bias, in 16ths
constexpr double bound = f64(0x40861DA04CBAFE43);    // 707.7032713517041
// |r| <= ln 2/256; fit not recorded.
constexpr double c2 = f64(0x3FDFFFFFFFFFFE5C);       // 0.4999999999999767
constexpr double c3 = f64(0x3FC555555555541D);       // 0.166666666666658

// n, the row and the exponent field of 2^(n/128).
template <class V> struct Split {
    V n;
    BitsOf<V> row, exponent;
};
template <class V> TARN_INLINE Split<V> split(V x) {
    const V n = round<Rounding::nearest>(x * scale);
    const BitsOf<V> shifted = bits(n + shifter);
    return {n, shift_right_logical(shifted & 0x7F0, 4), (shifted & 0x3FF800) << 41};
}

struct Expm1 : Kernel<double(double)> {
    static constexpr auto callout = callout::expm1;

    static constexpr double ln2_128th_head = f64(0x3F762E42FEF80000);  // 0.005415212347998022
    static constexpr double ln2_128th_tail = f64(0x3D41CF79ABC9E3B4);  // 1.2655086083325438e-13
    static constexpr double c4 = f64(0x3FA55555C2A9C0F3);              // 0.04166667939432669
    static constexpr double c5 = f64(0x3F81111168877F38);              // 0.008333335878830547

    template <class V> static TARN_INLINE auto fast(V x) {
        const auto [n, row, exponent] = split(x);
        const V r = (x - n * ln2_128th_head) - n * ln2_128th_tail;
        const V q = horner(r, c5, c4, c3, c2) * (r * r) + r;
        const auto [heads, tails] = gather_columns(expm1_pairs, row);
        const V h = or_bits(heads, exponent);
        const V l = tails * from_bits(exponent);
        return Flagged{or_bits((h - one) + (l + h * q), sign_bit(x)), not_within(x, bound)};
    }
};

struct Expm1Native : Kernel<double(double)> {
    static constexpr auto callout = callout::expm1;

    static constexpr double ln2_128th = f64(0x3F762E42FEFA39EF);  // 0.0054152123481245725

    template <class V> static TARN_INLINE auto fast(V x) {
        const auto [n, row, exponent] = split(x);
        const V r = x - n * ln2_128th;
        const V q = (c3 * r + c2) * (r * r) + r;
        const V h = or_bits(gather_columns(expm1_pairs, row).first, exponent);
        return Flagged{or_bits((h - one) + h * q, sign_bit(x)), not_within(x, bound)};
    }
};

}  // namespace
}  // namespace tarn::doubles

TARN_EXPORT(unary, expm1, full, tarn::doubles::Expm1)
TARN_EXPORT(unary, expm1, native, tarn::doubles::Expm1Native)
