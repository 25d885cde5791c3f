// log10 x = k log10 2 + p(r) with x = 2^k (1 + r), 1 + r in [2/3, 4/3): p of degree 9 without constant
// term, log10 2 as a head that makes k * head exact and a tail. Native and half: degree 5 and log10 2
// in one piece. No table.
//
// Worst error of log10f: 2.627 ulp at 1.33344579; native and half 995.7.
#include "callout/callouts.hpp"
#include "float/log/two_thirds.hpp"
#include "frame/exports.hpp"

namespace tarn::singles {
namespace {

struct Log10f : Kernel<float(float)> {
    static constexpr auto callout = callout::log10f;

    static constexpr float log10_2_head = factor_of_exponent(0x3E9A2100);  // 0.30103302001953125
    static constexpr float log10_2_tail = factor_of_exponent(0xB64AF600);  // -3.0243536457419395e-06
    // |r| <= 1/3; fit not recorded.
    static constexpr float p[9] = {
        f32(0x3EDE5BD9),  // 0.4342944920063019
        f32(0xBE5E5BC5),  // -0.21714694797992706
        f32(0x3E143CE5),  // 0.1447635442018509
        f32(0xBDDE6E20),  // -0.10860848426818848
        f32(0x3DB20B96),  // 0.08693616092205048
        f32(0xBD91FB27),  // -0.07127981632947922
        f32(0x3D775317),  // 0.06038197502493858
        f32(0xBD890073),  // -0.06689538806676865
        f32(0x3D8063B4),  // 0.06269016861915588
    };

    template <class V> static TARN_INLINE auto fast(V x) {
        const auto [exponent, r] = split_at_two_thirds(x);
        const V k = to_f32(exponent);
        return Flagged{k * log10_2_head + (k * log10_2_tail + degree_9(r, p)), not_positive_normal(x)};
    }
};

struct Log10fNative : Kernel<float(float)> {
    static constexpr auto callout = callout::log10f;

    static constexpr float log10_2 = factor_of_exponent(0x3E9A209B);  // 0.3010300099849701
    // |r| <= 1/3; fit not recorded.
    static constexpr float p5 = f32(0x3DCDC127);                      // 0.10046606510877609
    static constexpr float p4 = f32(0xBDF4ED71);                      // -0.11959350854158401
    static constexpr float p3 = f32(0x3E137DBE);                      // 0.14403435587882996
    static constexpr float p2 = f32(0xBE5E0922);                      // -0.21683171391487122
    static constexpr float p1 = f32(0x3EDE5CAE);                      // 0.43430083990097046

    template <class V> static TARN_INLINE auto fast(V x) {
        const auto [exponent, r] = split_at_two_thirds(x);
        return Flagged{to_f32(exponent) * log10_2 + horner(r, p5, p4, p3, p2, p1) * r, not_positive_normal(x)};
    }
};

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(unary, log10f, full, tarn::singles::Log10f)
TARN_EXPORT(unary, log10f, native, tarn::singles::Log10fNative)
TARN_EXPORT_SAME(log10f, half, native)
