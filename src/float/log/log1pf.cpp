// ln(1 + x). The sum 1 + x is held exactly as s + e, s cut to 16 bits; s = 2^(E-127) m and the rounded
// reciprocal estimate c of m/256 make r = s c 2^(119-E) - 1 exact, and ln(1 + x) = E ln 2 + T(c) +
// ln(1 + R) with R = r + e c 2^(119-E), |R| below 2^-7: a cubic and a table of 129 pairs that carry
// the exponent's bias. The native form splits s at 2/3 instead and spends degree 5, ln 2 in one piece.
//
// Worst error of log1pf: 0.622 ulp at 0.00195376272; native 1568.
#include "callout/callouts.hpp"
#include "float/log/two_thirds.hpp"
#include "frame/double_word.hpp"
#include "frame/exports.hpp"

namespace tarn::singles {
namespace {

#include "tables/log1pf_pairs.inc"

constexpr float one = 1.0f;

struct Log1pf : Kernel<float(float)> {
    static constexpr auto callout = callout::log1pf;

    static constexpr float ln2_head = f32(0x3F317200);  // 0.693145751953125
    static constexpr float ln2_tail = f32(0x35BFBE00);  // 1.4285906217992306e-06
    // |R| < 2^-7; fit not recorded.
    static constexpr float c3 = f32(0x3EAAAB39);        // 0.33333757519721985
    static constexpr float c2 = f32(0xBF000036);        // -0.5000032186508179
    static constexpr float small = f32(0x39800000);     // 2^-12: 1 + x needs no cut

    // 1 + x outside [2^-24, 2^118] in one wrapping sum: x <= -1, x above 2^118, infinities and NaNs.
    template <class V> static TARN_INLINE BitsOf<V> outside(V sum) {
        return wrapping_difference(bits(sum), i32(0xB3800000)) > i32(0xC7000000);
    }

    template <class V> static TARN_INLINE auto fast(V x) {
        const V larger = max(one, x), smaller = min(one, x);
        const V whole = larger + smaller;
        const V s = and_bits(whole, (abs(x) < small) | i32(0xFFFFFF00));
        const V e = (larger - s) + smaller;

        const V m_256th = from_bits((bits(s) & 0x007FFFFF) | 0x3B800000);
        const V c = round<Rounding::nearest>(reciprocal_estimate(m_256th));  // 128 to 256
        const auto [heads, tails] = gather_pairs(log1pf_pairs, (bits(c) - 0x43000000) >> 16);

        const V k = to_f32(shift_right_logical(bits(s), 23));
        const V scale = c * from_bits(0x7B000000 - (bits(s) & 0x7F800000));
        const V r = s * scale - one;
        const V el = e * scale;
        const auto [R, R_tail] = fast_two_sum(r, el);
        const V p = (c3 * R + c2) * (R * R) + R_tail;

        const auto [sum, sum_tail] = fast_two_sum(k * ln2_head + heads, R);
        const V y = (((k * ln2_tail + tails) + sum_tail) + p) + sum;
        return Flagged{or_bits(y, sign_bit(x)), outside(whole)};
    }
};

struct Log1pfNative : Kernel<float(float)> {
    static constexpr auto callout = callout::log1pf;

    static constexpr float ln2 = factor_of_exponent(0x3F317218);  // 0.6931471824645996
    // |r| <= 1/3; fit not recorded.
    static constexpr float q3 = f32(0x3E612933);                  // 0.2198837250471115
    static constexpr float q2 = f32(0xBE88E8FE);                  // -0.2674025893211365
    static constexpr float q1 = f32(0x3EAA7160);                  // 0.33289623260498047
    static constexpr float q0 = -0.5f;

    template <class V> static TARN_INLINE auto fast(V x) {
        const V s = one + x;
        const V e = (max(one, x) - s) + min(one, x);
        const auto [exponent, r_of_s] = split_at_two_thirds(s);
        const V r = r_of_s + e * from_bits(bits(one) - exponent);
        const V y = to_f32(exponent) * ln2 + log1p_polynomial(r, q3, q2, q1, q0);
        // In one wrapping sum: 1 + x outside [2^-126, 2^127).
        const BitsOf<V> special = wrapping_sum(bits(s), 0x01000000) < 0x01800000;
        return Flagged{or_bits(y, sign_bit(x)), special};
    }
};

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(unary, log1pf, full, tarn::singles::Log1pf)
TARN_EXPORT(unary, log1pf, native, tarn::singles::Log1pfNative)
