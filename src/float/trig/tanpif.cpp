// tan(pi x): x without its periods to the nearest 128th, the remainder times pi, and the table of the
// tangent. At integers the result is a zero, at half-integers an infinity, both exactly, with the
// sign alternating from one to the next. Infinities and NaNs are the callout's.
//
// The native form takes r = x - n/2 to the nearest half, |r| <= 1/4, and the quotient of polynomials
// of the tangent with the processor's reciprocal estimate.
//
// Worst error of tanpif: 1.908 ulp at 0.497463197; native 5197.
#include "callout/callouts.hpp"
#include "float/trig/period.hpp"
#include "float/trig/tangent_quotient.hpp"
#include "float/trig/tangent_table.hpp"
#include "frame/exports.hpp"

namespace tarn::singles {
namespace {

constexpr std::int32_t infinity = 0x7F800000;

struct Tanpif : Kernel<float(float)> {
    static constexpr auto callout = callout::tanpif;
    static constexpr int blocks_at_a_time = 2;

    static constexpr float shifter = f32(0x47C00000);  // 98304.0 = 1.5 * 2^16: rounds to 128ths

    template <class V> static TARN_INLINE auto fast(V x) {
        const V within = without_periods(x);
        const V shifted = within + shifter;
        const BitsOf<V> row = bits(shifted) & 127;
        const V r = (within - (shifted - shifter)) * pi;
        const V y = from_tangent_table(row, r, V{});

        const BitsOf<V> odd = bits(shifted) << 24 & sign_mask<V>;
        const BitsOf<V> on_pole = (r == 0.0f) & (row == 64);
        const BitsOf<V> on_zero = (r == 0.0f) & (row == 0);
        const V at_zero = from_bits(sign_bit(x) ^ odd);
        return Flagged{select(on_pole, from_bits(infinity | odd), select(on_zero, at_zero, y)), not_finite(x)};
    }
};

struct TanpifNative : Kernel<float(float)> {
    static constexpr auto callout = callout::tanpif;

    static constexpr float shifter = f32(0x4AC00000);  // 6291456.0 = 1.5 * 2^22: rounds to halves

    template <class V> static TARN_INLINE auto fast(V x) {
        const V within = without_periods(x) + 0.0f;  // -0 becomes +0
        const V shifted = within + shifter;
        const BitsOf<V> inverted = bits(shifted) << 31;
        const V r = (within - (shifted - shifter)) * pi;
        const auto [numerator, denominator] = tangent_quotient(r, inverted);
        const V y = numerator * reciprocal_estimate(denominator);

        // Where r is 0, y is +0 or +inf.
        const BitsOf<V> odd = bits(shifted) << 30 & sign_mask<V>;
        const BitsOf<V> exact_sign = odd ^ (sign_bit(x) & ~(inverted >> 31));
        return Flagged{xor_bits(y, select(r == 0.0f, exact_sign, inverted)), not_finite(x)};
    }
};

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(unary, tanpif, full, tarn::singles::Tanpif)
TARN_EXPORT(unary, tanpif, native, tarn::singles::TanpifNative)
