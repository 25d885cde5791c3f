// atanh |x| = ln(1 + w)/2 with a = |x|, w = 2a/(1 - a). The quotient is a head that is exact, 12 bits of
// 2a times 12 bits of the reciprocal estimate, and a remainder from one step of Newton's on the latter:
// w itself is never rounded next to 1. 1 + w = 2^k m with m in [2/3, 4/3) and the tail of the sum
// carried into r = m - 1, ln m of degree 10. No division. The native form rounds the quotient and spends
// degree 5.
//
// Worst error of atanhf: 2.093 ulp at 0.06156791; native 1471.
#include "callout/callouts.hpp"
#include "float/log/two_thirds.hpp"
#include "frame/double_word.hpp"
#include "frame/exports.hpp"

namespace tarn::singles {
namespace {

constexpr float one = 1.0f, half = 0.5f;
constexpr float ln2 = factor_of_exponent(0x3F317218);  // 0.6931471824645996

struct Full {
    // |r| <= 1/3; fit not recorded.
    static constexpr float q8 = f32(0x3E0D84ED);  // 0.13820238411426544
    static constexpr float q7 = f32(0xBE1AD9E3);  // -0.15122179687023163
    static constexpr float q6 = f32(0x3E0FCB12);  // 0.14042308926582336
    static constexpr float q5 = f32(0xBE28AD37);  // -0.1647232621908188
    static constexpr float q4 = f32(0x3E4CE190);  // 0.20007920265197754
    static constexpr float q3 = f32(0xBE80058E);  // -0.2500423789024353
    static constexpr float q2 = f32(0x3EAAAA94);  // 0.3333326578140259
    static constexpr float q1 = -0.5f;

    // 2a/(1 - a).
    template <class V> static TARN_INLINE HeadTail<V> quotient(V a) {
        const V n = a + a, d = one - a;
        const V d_lost = (one - d) - a;
        const V y = short_head(reciprocal_estimate(d));
        const auto [d_head, d_rest] = short_split(d);
        const auto [n_head, n_rest] = short_split(n);
        const V e = (one - d_head * y) - (d_rest + d_lost) * y;
        return {n_head * y, n_rest * y + (n * y) * (e + e * e)};
    }
    template <class V> static TARN_INLINE V log_m(V r) { return log1p_polynomial(r, q8, q7, q6, q5, q4, q3, q2, q1); }
};

struct Native {
    // |r| <= 1/3; fit not recorded.
    static constexpr float q4 = f32(0x3E612933);  // 0.2198837250471115
    static constexpr float q3 = f32(0xBE88E8FE);  // -0.2674025893211365
    static constexpr float q2 = f32(0x3EAA7160);  // 0.33289623260498047
    static constexpr float q1 = -0.5f;

    template <class V> static TARN_INLINE HeadTail<V> quotient(V a) {
        const V d = one - a;
        const V y = reciprocal_estimate(d);
        return {(a + a) * (y * (2.0f - d * y)), V{}};
    }
    template <class V> static TARN_INLINE V log_m(V r) { return log1p_polynomial(r, q4, q3, q2, q1); }
};

template <class Form> struct Atanhf : Kernel<float(float)> {
    static constexpr auto callout = callout::atanhf;
    static constexpr std::uint32_t tiny = 0x0C000000;  // 9.860761315262648e-32: below it x is the value

    template <class V> static TARN_INLINE auto fast(V x) {
        const V a = abs(x);
        const auto [w, w_tail] = Form::quotient(a);
        const auto [sum, sum_tail] = fast_two_sum(max(one, w), min(one, w));
        const auto [exponent, r_of_sum] = split_at_two_thirds(sum);
        const V r = r_of_sum + (sum_tail + w_tail) * from_bits(bits(one) - exponent);
        const V y = to_f32(exponent) * ln2 + Form::log_m(r);
        // Outside [tiny, 1), in one wrapping sum.
        const BitsOf<V> special = bits(a) + i32(0x80000000 - tiny) >= i32(0x80000000 + 0x3F800000 - tiny);
        return Flagged{y * or_bits(half, sign_bit(x)), special};
    }
};

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(unary, atanhf, full, tarn::singles::Atanhf<tarn::singles::Full>)
TARN_EXPORT(unary, atanhf, native, tarn::singles::Atanhf<tarn::singles::Native>)
