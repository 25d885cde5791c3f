// 10^x = 2^(n/512) * 10^r with n = round(512 x log2 10) and r = x - n log10(2)/512; 2^(j/512) comes
// from a table and r is so small that one linear term, with a small bias for the quadratic, does for
// 10^r - 1. The native form is that of 2^t with t = x log2 10 rounded.
//
// The bias makes exp10(+-0) 1.0000001 on purpose.
//
// Worst error of exp10f: 2.922 ulp at -2.38619773e-08; native and half 1304.
#include "callout/callouts.hpp"
#include "frame/exports.hpp"

namespace tarn {
namespace {

#include "tables/exp2f_512ths.inc"

constexpr f32x4 shifter = splat_f32(0x4B400000);    // 12582912.0 = 1.5 * 2^23
constexpr std::uint32_t normal_bound = 0x4217B818;  // 37.929779052734375

struct Exp10f : Kernel<float(float)> {
    static constexpr auto callout = callout::exp10f;

    static constexpr f32x4 scale = splat_f32(0x44D49A78);             // 1700.8271484375 = 512 log2 10
    static constexpr f32x4 log10_2_512th_head = splat_f32(0x3A1A0000);  // 0.00058746337890625
    static constexpr f32x4 log10_2_512th_tail = splat_f32(0x35026A14);  // 4.858313786826329e-07
    static constexpr f32x4 slope = splat_f32(0x40135D8D);             // 2.3025848865509033
    static constexpr f32x4 bias = splat_f32(0x33F5FDEA);              // 1.145488823794949e-07

    static TARN_INLINE auto fast(f32x4 x) {
        const f32x4 shifted = x * scale + shifter;
        const f32x4 n = shifted - shifter;
        const i32x4 row = bits(shifted) & splat_i32(0x1FF);
        const i32x4 exponent = (bits(shifted) & ~splat_i32(0x1FF)) << 14;
        const f32x4 r = (x - n * log10_2_512th_head) - n * log10_2_512th_tail;
        const f32x4 q = r * slope + bias;
        const f32x4 leading = gather(exp2f_512ths, row);
        const f32x4 v = leading * q + leading;
        return Flagged{from_bits(bits(v) + exponent), magnitude_above(x, normal_bound)};
    }
};

struct Exp10fNative : Kernel<float(float)> {
    static constexpr auto callout = callout::exp10f;

    static constexpr f32x4 log2_10 = splat_f32(0x40549A78);  // 3.321928024291992
    static constexpr f32x4 d3 = splat_f32(0x3D61FBCC);       // 0.055171772837638855
    static constexpr f32x4 d2 = splat_f32(0x3E786F13);       // 0.24261121451854706
    static constexpr f32x4 d1 = splat_f32(0x3F31798D);       // 0.6932609677314758
    static constexpr f32x4 d0 = splat_f32(0x3F7FFB49);       // 0.9999280571937561

    static TARN_INLINE auto fast(f32x4 x) {
        const f32x4 t = x * log2_10;
        const f32x4 shifted = t + shifter;
        const f32x4 r = t - (shifted - shifter);
        const f32x4 p = horner(r, d3, d2, d1, d0);
        return Flagged{from_bits(bits(p) + (bits(shifted) << 23)), magnitude_above(x, normal_bound)};
    }
};

}  // namespace
}  // namespace tarn

TARN_EXPORT(unary, exp10f, full, tarn::Exp10f)
TARN_EXPORT(unary, exp10f, native, tarn::Exp10fNative)
TARN_EXPORT_SAME(exp10f, half, native)
