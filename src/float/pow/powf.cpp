// x^y = e^(y ln |x|) in double precision. ln: the mantissa m/1024 times its rounded reciprocal estimate
// c gives r = mc - 1, |r| below 2^-9, for a cubic; ln(1024/c) or, up to c = 724, ln(512/c) from a
// table keeps the sum with k ln 2 near zero on both sides of 1. e: 2^(j/2048) from a table times
// 1 + f, the table's common factor and the fitted slope centring the error of the missing square.
// No division, no long polynomial. The native form is in single precision (native_power.hpp).
//
// Native 4466 at 1.33339 to a large power.
//
// Worst error of powf: 1.099 ulp at (0.998902261, 78887.9531); native 4467.
#include "callout/callouts.hpp"
#include "float/pow/native_power.hpp"
#include "frame/exports.hpp"

namespace tarn::singles {
namespace {

#include "tables/powf_exp2.inc"
#include "tables/powf_logs.inc"

// In two halves, or, for the widths that have no more lanes, the lower one.
template <bool two_halves> struct Powf : Kernel<float(float, float)> {
    static constexpr int lanes = two_halves ? 4 : 2;
    static constexpr auto callout = callout::powf;

    static constexpr double ln2 = f64(0x3FE62E42FEFA39EF);      // 0.6931471805599453
    // |r| < 2^-9; fit not recorded.
    static constexpr double a3 = f64(0x3FD55555555543C5);       // 0.33333333333308374
    static constexpr double a2 = f64(0xBFDFFFFFFFFFF81F);       // -0.49999999999988803
    static constexpr double scale = f64(0x40A71547652B82FE);    // 2954.639443740597 = 2048/ln 2
    static constexpr double slope = f64(0x3F362F3904051FA1);    // 0.00033850805268231294, near ln 2/2048
    static constexpr double shifter = f64(0x4338000000000000);  // 6755399441055744.0 = 1.5 * 2^52
    static constexpr float one = 1.0, half = 0.5;
    static constexpr std::int32_t bound = 0x4059FE36;  // upper half of 103.9720458984375

    // y ln x, in double precision.
    template <class V> static TARN_INLINE V log_product(V m, V c, V log_c, V k, V y) {
        const V r = m * c - one;
        const V p = r + r * r * (a2 + a3 * r);
        return ((p + log_c) + k * ln2) * y;
    }

    template <class V> struct Exponent {
        V n, f;  // n as the shifter holds it
    };
    template <class V> static TARN_INLINE Exponent<V> split(V z) {
        const V t = z * scale;
        const V shifted = (t - half) + shifter;
        return {shifted, (t - (shifted - shifter)) * slope};
    }
    template <class V> static TARN_INLINE V exp2_of(const Exponent<V>& e, V table) {
        return from_bits(bits(table + table * e.f) + (shift_right_logical(bits(e.n), 11) << 52));
    }

    template <class V> static TARN_INLINE auto fast(V x, V y) {
        const V m = from_bits((bits(x) & 0x007FFFFF) | 0x3A800000);    // m/1024
        const V c = round<Rounding::nearest>(reciprocal_estimate(m));  // 512 to 1024
        const BitsOf<V> upper = bits(c) > 0x44350000;                  // above 724
        const BitsOf<V> k = shift_right_logical(bits(x), 23) - 126 + upper;
        const BitsOf<V> row = (bits(c) - 0x44000000) >> 14;

        const auto z_low = log_product(widen_low(m), widen_low(c), gather_low(powf_logs, row), to_f64(k),
                                       widen_low(y));
        const auto z_high = two_halves ? log_product(widen_high(m), widen_high(c), gather_high(powf_logs, row),
                                                     to_f64_high(k), widen_high(y))
                                       : z_low;
        const auto low = split(z_low), high = split(z_high);
        const BitsOf<V> j = lower_words(bits(low.n), bits(high.n)) & 2047;
        const auto power_low = exp2_of(low, gather_low(powf_exp2, j));
        const auto power_high = two_halves ? exp2_of(high, gather_high(powf_exp2, j)) : power_low;

        // An infinite or NaN y makes z one.
        const BitsOf<V> size = upper_words(bits(z_low), bits(z_high)) & ~sign_mask<V>;
        const BitsOf<V> special = not_below_largest_normal(x) | (size > bound);
        const V power = narrow(power_low, power_high);
        if constexpr (two_halves) return Flagged{power, special};
        else return Flagged{power, to_i64(special)};
    }

private:
    // Not positive and normal, or the largest finite number.
    template <class V> static TARN_INLINE BitsOf<V> not_below_largest_normal(V x) {
        return wrapping_difference(bits(x), i32(0x80800000)) >= i32(0xFEFFFFFF);
    }
};

struct PowfNative : Kernel<float(float, float)> {
    static constexpr auto callout = callout::powf;

    template <class V> static TARN_INLINE auto fast(V x, V y) { return native_power<NativeExp>(x, y); }
};

using PowfByWidth = ExceptAt<ExceptAt<Powf<true>, 1, Powf<false>>, 2, Powf<false>>;

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(binary, powf, full, tarn::singles::PowfByWidth)
TARN_EXPORT(binary, powf, native, tarn::singles::PowfNative)
