// erfc |x| by Taylor's series from the nearest point d of a grid of 64ths (native: 32nds), in the
// offset h = |x| - d and in u = d h. Value and derivative come from a table, scaled by 2^48: all is
// computed far above the subnormals, and the last multiplication is the only rounding into them. For
// negative x the same sum is turned into 2 - erfc |x| before that.
//
// Worst error of erfcf: 1.763 ulp at 8.92956543; native 1250.
#include "callout/callouts.hpp"
#include "frame/exports.hpp"

namespace tarn::singles {
namespace {

#include "tables/erfcf_native_points.inc"
#include "tables/erfcf_points.inc"

constexpr float largest = f32(0x41210000);   // 10.0625, the row of zeros
constexpr float smallest = f32(0x27800000);  // 2^-48
constexpr float bound = f32(0x4120DDFB);     // 10.054194450378418: from here on erfc underflows
constexpr float two = f32(0xD8000000);       // -2^49
constexpr float unscale = f32(0x27800000);   // 2^-48

struct Full {
    static constexpr float shifter = f32(0x48000000);  // 131072.0: rounds to 64ths
    // |h| <= 1/128; fit not recorded.
    static constexpr float u1 = f32(0xBF7FFFFC);       // -0.9999997615814209
    static constexpr float u2 = f32(0x3F2AAAA6);       // 0.6666663885116577
    static constexpr float u3 = f32(0xBEAACF22);       // -0.33361154794692993
    static constexpr float u4 = f32(0x3E08A7CA);       // 0.13345256447792053
    static constexpr float h0 = f32(0xBEAB4EDB);       // -0.3345859944820404
    static constexpr float h1 = f32(0x3F005B36);       // 0.5013917684555054

    template <class I> static TARN_INLINE auto row(I k) { return gather_pairs(erfcf_points, k); }
    template <class V> static TARN_INLINE V series(V u, V h) {
        return u * (u1 + u * (u2 + u * (u3 + u4 * u))) + (h * h) * (h0 + h1 * u);
    }
};

struct Native {
    static constexpr float shifter = f32(0x48800000);  // 262144.0: rounds to 32nds
    // |h| <= 1/64; fitted to the least error over the whole grid, the terms in h^2 alone left out.
    static constexpr float u1 = f32(0xBF80D115);  // -1.0063806772232056
    static constexpr float u2 = f32(0x3F2A0E54);  // 0.6642811298370361

    template <class I> static TARN_INLINE auto row(I k) { return gather_pairs(erfcf_native_points, k); }
    template <class V> static TARN_INLINE V series(V u, V) { return u * (u1 + u2 * u); }
};

template <class Form> struct Erfcf : Kernel<float(float)> {
    static constexpr auto callout = callout::erfcf;

    template <class V> static TARN_INLINE auto fast(V x) {
        const V a = min(abs(x), largest);
        const V shifted = a + Form::shifter;
        const V d = shifted - Form::shifter;
        const V h = max(a, smallest) - d;
        const auto [value, slope] = Form::row(bits(shifted) - bits(Form::shifter));
        const V p = Form::series(d * h, h);
        const V scaled = value - h * (slope + slope * p);
        const BitsOf<V> negative = x < 0.0f;
        const V sum = scaled + where(negative, two);
        return Flagged{sum * or_bits(unscale, negative & sign_mask<V>), ~(x < bound)};
    }
};

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(unary, erfcf, full, tarn::singles::Erfcf<tarn::singles::Full>)
TARN_EXPORT(unary, erfcf, native, tarn::singles::Erfcf<tarn::singles::Native>)
