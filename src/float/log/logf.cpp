// ln x = k ln 2 + (r + r^2 q(r)) with x = 2^k (1 + r), 1 + r in [2/3, 4/3): q of degree 8, ln 2 as a
// head that makes k * head exact and a tail. The half form has q of degree 6 and the native form of
// degree 2, both ln 2 in one piece. No table.
//
// Zeros, subnormals, negative numbers, infinities and NaNs go to the callout.
//
// Worst error of logf: 0.9736 ulp at 1.33373356; native 8314, half 3.965.
#include "callout/callouts.hpp"
#include "float/log/two_thirds.hpp"
#include "frame/exports.hpp"

namespace tarn::singles {
namespace {

constexpr float ln2_head = factor_of_exponent(0x3F317200);  // 0.693145751953125
constexpr float ln2_tail = factor_of_exponent(0x35BFBE8E);  // 1.428606765330187e-06
constexpr float ln2 = factor_of_exponent(0x3F317218);       // 0.6931471824645996
constexpr float q0 = -0.5f;

struct Logf : Kernel<float(float)> {
    static constexpr auto callout = callout::logf;

    // |r| <= 1/3; fit not recorded.
    static constexpr float q8 = f32(0xBE0402C8);  // -0.12891685962677002
    static constexpr float q7 = f32(0x3E0F335D);  // 0.1398443728685379
    static constexpr float q6 = f32(0xBDF9889E);  // -0.12184260785579681
    static constexpr float q5 = f32(0x3E0F6B8C);  // 0.140058696269989
    static constexpr float q4 = f32(0xBE2ACEE6);  // -0.16680487990379333
    static constexpr float q3 = f32(0x3E4CE814);  // 0.20010405778884888
    static constexpr float q2 = f32(0xBE7FFF78);  // -0.24999797344207764
    static constexpr float q1 = f32(0x3EAAAA83);  // 0.3333321511745453

    template <class V> static TARN_INLINE auto fast(V x) {
        const auto [exponent, r] = split_at_two_thirds(x);
        const V k = to_f32(exponent);
        const V p = log1p_polynomial(r, q8, q7, q6, q5, q4, q3, q2, q1, q0);
        return Flagged{k * ln2_head + (k * ln2_tail + p), not_positive_normal(x)};
    }
};

struct LogfHalf : Kernel<float(float)> {
    static constexpr auto callout = callout::logf;

    // |r| <= 1/3; fit not recorded.
    static constexpr float q6 = f32(0xBE1B6A22);  // -0.15177205204963684
    static constexpr float q5 = f32(0x3E2DB86B);  // 0.16964881122112274
    static constexpr float q4 = f32(0xBE289358);  // -0.16462457180023193
    static constexpr float q3 = f32(0x3E4AFB81);  // 0.19822503626346588
    static constexpr float q2 = f32(0xBE80061D);  // -0.25004664063453674
    static constexpr float q1 = f32(0x3EAAAEE7);  // 0.33336564898490906

    template <class V> static TARN_INLINE auto fast(V x) {
        const auto [exponent, r] = split_at_two_thirds(x);
        const V p = log1p_polynomial(r, q6, q5, q4, q3, q2, q1, q0);
        return Flagged{to_f32(exponent) * ln2 + p, not_positive_normal(x)};
    }
};

struct LogfNative : Kernel<float(float)> {
    static constexpr auto callout = callout::logf;

    // |r| <= 1/3; fit not recorded.
    static constexpr float q2 = f32(0xBE89233C);  // -0.267846941947937
    static constexpr float q1 = f32(0x3EB4A830);  // 0.3528456687927246

    template <class V> static TARN_INLINE auto fast(V x) {
        const auto [exponent, r] = split_at_two_thirds(x);
        return Flagged{to_f32(exponent) * ln2 + log1p_polynomial(r, q2, q1, q0), not_positive_normal(x)};
    }
};

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(unary, logf, full, tarn::singles::Logf)
TARN_EXPORT(unary, logf, native, tarn::singles::LogfNative)
TARN_EXPORT(unary, logf, half, tarn::singles::LogfHalf)
