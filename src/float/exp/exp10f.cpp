// 10^x = 2^(n/512) * 10^r with n = round(512 x log2 10) and r = x - n log10(2)/512; 2^(j/512) comes
// from a table and r is so small that one linear term, with a small bias for the quadratic, does for
// 10^r - 1. The native form is that of 2^t with t = x log2 10 rounded.
//
// The bias makes exp10(+-0) 1.0000001 on purpose.
//
// Worst error of exp10f: 2.922 ulp at -2.38619773e-08; native and half 1304.
#include "callout/callouts.hpp"
#include "float/exp/native_exp2.hpp"
#include "frame/exports.hpp"

namespace tarn::singles {
namespace {

#include "tables/exp2f_512ths.inc"

constexpr float shifter = f32(0x4B400000);          // 12582912.0 = 1.5 * 2^23
constexpr std::uint32_t normal_bound = 0x4217B818;  // 37.929779052734375

struct Exp10f : Kernel<float(float)> {
    static constexpr auto callout = callout::exp10f;

    static constexpr float scale = f32(0x44D49A78);               // 1700.8271484375 = 512 log2 10
    static constexpr float log10_2_512th_head = f32(0x3A1A0000);  // 0.00058746337890625
    static constexpr float log10_2_512th_tail = f32(0x35026A14);  // 4.858313786826329e-07
    // |r| <= 0.0003; fit not recorded.
    static constexpr float slope = f32(0x40135D8D);               // 2.3025848865509033
    static constexpr float bias = f32(0x33F5FDEA);                // 1.145488823794949e-07

    template <class V> static TARN_INLINE auto fast(V x) {
        const V shifted = x * scale + shifter;
        const V n = shifted - shifter;
        const BitsOf<V> row = bits(shifted) & 0x1FF;
        const BitsOf<V> exponent = (bits(shifted) & ~0x1FF) << 14;
        const V r = (x - n * log10_2_512th_head) - n * log10_2_512th_tail;
        const V q = r * slope + bias;
        const V leading = gather(exp2f_512ths, row);
        const V v = leading * q + leading;
        return Flagged{from_bits(bits(v) + exponent), magnitude_above(x, normal_bound)};
    }
};

struct Exp10fNative : Kernel<float(float)> {
    static constexpr auto callout = callout::exp10f;

    static constexpr float log2_10 = f32(0x40549A78);  // 3.321928024291992

    template <class V> static TARN_INLINE auto fast(V x) {
        return Flagged{native_exp2(x * log2_10), magnitude_above(x, normal_bound)};
    }
};

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(unary, exp10f, full, tarn::singles::Exp10f)
TARN_EXPORT(unary, exp10f, native, tarn::singles::Exp10fNative)
TARN_EXPORT_SAME(exp10f, half, native)
