// erfc |x| by Taylor's series from the nearest point d of a grid of 64ths (native: 32nds), in the
// offset h = |x| - d and in u = d h. Value and derivative come from a table, scaled by 2^48: all is
// computed far above the subnormals, and the last multiplication is the only rounding into them. For
// negative x the same sum is turned into 2 - erfc |x| before that.
//
// Worst error of erfcf: 1.763 ulp at 8.92956543; native 1250.
#include "callout/callouts.hpp"
#include "frame/exports.hpp"

namespace tarn {
namespace {

#include "tables/erfcf_native_points.inc"
#include "tables/erfcf_points.inc"

constexpr f32x4 largest = splat_f32(0x41210000);    // 10.0625, the row of zeros
constexpr f32x4 smallest = splat_f32(0x27800000);   // 2^-48
constexpr f32x4 bound = splat_f32(0x4120DDFB);      // 10.054194450378418: from here on erfc underflows
constexpr f32x4 two = splat_f32(0xD8000000);        // -2^49
constexpr f32x4 unscale = splat_f32(0x27800000);    // 2^-48

struct Full {
    static constexpr f32x4 shifter = splat_f32(0x48000000);  // 131072.0: rounds to 64ths
    static constexpr f32x4 u1 = splat_f32(0xBF7FFFFC);       // -0.9999997615814209
    static constexpr f32x4 u2 = splat_f32(0x3F2AAAA6);       // 0.6666663885116577
    static constexpr f32x4 u3 = splat_f32(0xBEAACF22);       // -0.33361154794692993
    static constexpr f32x4 u4 = splat_f32(0x3E08A7CA);       // 0.13345256447792053
    static constexpr f32x4 h0 = splat_f32(0xBEAB4EDB);       // -0.3345859944820404
    static constexpr f32x4 h1 = splat_f32(0x3F005B36);       // 0.5013917684555054

    static TARN_INLINE PairLanes row(i32x4 k) { return gather_pairs(erfcf_points, k); }
    static TARN_INLINE f32x4 series(f32x4 u, f32x4 h) {
        return u * (u1 + u * (u2 + u * (u3 + u4 * u))) + (h * h) * (h0 + h1 * u);
    }
};

struct Native {
    static constexpr f32x4 shifter = splat_f32(0x48800000);  // 262144.0: rounds to 32nds
    // Fitted to the least error over the whole grid, the terms in h^2 alone left out.
    static constexpr f32x4 u1 = splat_f32(0xBF80D115);       // -1.0063806772232056
    static constexpr f32x4 u2 = splat_f32(0x3F2A0E54);       // 0.6642811298370361

    static TARN_INLINE PairLanes row(i32x4 k) { return gather_pairs(erfcf_native_points, k); }
    static TARN_INLINE f32x4 series(f32x4 u, f32x4) { return u * (u1 + u2 * u); }
};

template <class Form> struct Erfcf : Kernel<float(float)> {
    static constexpr auto callout = callout::erfcf;

    static TARN_INLINE auto fast(f32x4 x) {
        const f32x4 a = min(abs(x), largest);
        const f32x4 shifted = a + Form::shifter;
        const f32x4 d = shifted - Form::shifter;
        const f32x4 h = max(a, smallest) - d;
        const auto [value, slope] = Form::row(bits(shifted) - bits(Form::shifter));
        const f32x4 p = Form::series(d * h, h);
        const f32x4 scaled = value - h * (slope + slope * p);
        const i32x4 negative = x < splat(0.0f);
        const f32x4 sum = scaled + where(negative, two);
        return Flagged{sum * or_bits(unscale, negative & sign_mask_f32), (i32x4)_mm_cmpnlt_ps(x, bound)};
    }
};

}  // namespace
}  // namespace tarn

TARN_EXPORT(unary, erfcf, full, tarn::Erfcf<tarn::Full>)
TARN_EXPORT(unary, erfcf, native, tarn::Erfcf<tarn::Native>)
