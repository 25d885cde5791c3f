// e^x - 1 = (2^(n/64) - 1) + 2^(n/64) (e^r - 1) with n = round(64 x / ln 2); 2^(j/64) is a head of ten
// fraction bits, from which 1 is subtracted exactly, and a tail. e^r - 1 is of degree 3 (native: 2,
// on 32 rows without tails).
//
// Beyond |x| = 86.6 the callout gives -1 or e^x.
//
// Worst error of expm1f: 1.802 ulp at 0.0272449907; native 283.7.
#include "callout/callouts.hpp"
#include "frame/exports.hpp"

namespace tarn::singles {
namespace {

#include "tables/expm1f_pairs.inc"
#include "tables/expm1f_native_heads.inc"

constexpr float one = 1.0f;
// |r| <= ln 2/128, native ln 2/64; fit not recorded.
constexpr float c2 = f32(0x3F00000F);     // 0.5000008940696716
constexpr float bound = f32(0x42AD496B);  // 86.64339447021484

struct Expm1f : Kernel<float(float)> {
    static constexpr auto callout = callout::expm1f;

    static constexpr float scale = f32(0x42B8AA3B);          // 92.33248138427734 = 64/ln 2
    static constexpr float ln2_64th_head = f32(0x3C318000);  // 0.010833740234375
    static constexpr float ln2_64th_tail = f32(0xB65E8083);  // -3.3155381515825866e-06
    static constexpr float shifter = f32(0x49F0FE00);        // 1974208.0: exponent bias and 8 n
    static constexpr float c3 = f32(0x3E2AAABF);             // 0.16666696965694427

    template <class V> static TARN_INLINE auto fast(V x) {
        const V n = round<Rounding::nearest>(x * scale);
        const V r = (x - n * ln2_64th_head) - n * ln2_64th_tail;
        const BitsOf<V> shifted = bits(n + shifter);
        const BitsOf<V> exponent = (shifted & 0x1FE00) << 14;
        const auto [heads, tails] = gather_pairs(expm1f_pairs, (shifted & 0x1F8) >> 3);
        const V head = or_bits(heads, exponent);
        const V tail = tails * from_bits(exponent);
        const V a = tail + (head - one);
        const V q = (c3 * r + c2) * (r * r) + r;
        return Flagged{or_bits((a + one) * q + a, sign_bit(x)), not_within(x, bound)};
    }
};

struct Expm1fNative : Kernel<float(float)> {
    static constexpr auto callout = callout::expm1f;

    static constexpr float scale = f32(0x4238AA3B);     // 46.16624069213867 = 32/ln 2
    static constexpr float ln2_32nd = f32(0x3CB17218);  // 0.021660849452018738
    static constexpr float shifter = f32(0x4A403F80);   // 3149792.0: exponent bias and 4 n

    template <class V> static TARN_INLINE auto fast(V x) {
        const V n = round<Rounding::nearest>(x * scale);
        const V r = x - n * ln2_32nd;
        const BitsOf<V> shifted = bits(n + shifter);
        const BitsOf<V> fraction = gather(expm1f_native_heads, (shifted & 0x7C) >> 2);
        const V head = from_bits(fraction | (shifted & 0x7F80) << 16);
        const V q = r * r * c2 + r;
        return Flagged{or_bits(head * q + (head - one), sign_bit(x)), not_within(x, bound)};
    }
};

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(unary, expm1f, full, tarn::singles::Expm1f)
TARN_EXPORT(unary, expm1f, native, tarn::singles::Expm1fNative)
