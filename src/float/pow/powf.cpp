// x^y = e^(y ln |x|) in double precision. ln: the mantissa m/1024 times its rounded reciprocal estimate
// c gives r = mc - 1, |r| below 2^-9, for a cubic; ln(1024/c) or, up to c = 724, ln(512/c) from a
// table keeps the sum with k ln 2 near zero on both sides of 1. e: 2^(j/2048) from a table times
// 1 + f, the table's common factor and the fitted slope centring the error of the missing square.
// No division, no long polynomial. The native form is in single precision (native_power.hpp).
//
// Native 4466 at 1.33339 to a large power.
//
// Worst error of powf: 1.099 ulp at (0.998902261, 78887.9531); native 4466.
#include "callout/callouts.hpp"
#include "float/pow/native_power.hpp"
#include "frame/exports.hpp"

namespace tarn {
namespace {

#include "tables/powf_exp2.inc"
#include "tables/powf_logs.inc"

// Four lanes at a time as two halves, or, for the widths that have no more, two lanes.
template <int group_lanes> struct Powf : Kernel<float(float, float)> {
    static constexpr int lanes = group_lanes;
    static constexpr bool two_halves = lanes == 4;
    static constexpr auto callout = callout::powf;

    static constexpr f64x2 ln2 = splat_f64(0x3FE62E42FEFA39EF);       // 0.6931471805599453
    static constexpr f64x2 a3 = splat_f64(0x3FD55555555543C5);        // 0.33333333333308374
    static constexpr f64x2 a2 = splat_f64(0xBFDFFFFFFFFFF81F);        // -0.49999999999988803
    static constexpr f64x2 scale = splat_f64(0x40A71547652B82FE);     // 2954.639443740597 = 2048/ln 2
    static constexpr f64x2 slope = splat_f64(0x3F362F3904051FA1);     // 0.00033850805268231294, near ln 2/2048
    static constexpr f64x2 shifter = splat_f64(0x4338000000000000);   // 6755399441055744.0 = 1.5 * 2^52
    static constexpr f64x2 one = splat(1.0), half = splat(0.5);
    static constexpr i32x4 bound = splat_i32(0x4059FE36);             // upper half of 103.9720458984375

    // y ln x for two lanes.
    static TARN_INLINE f64x2 log_product(f64x2 m, f64x2 c, f64x2 log_c, f64x2 k, f64x2 y) {
        const f64x2 r = m * c - one;
        const f64x2 p = r + r * r * (a2 + a3 * r);
        return ((p + log_c) + k * ln2) * y;
    }

    struct Exponent {
        f64x2 n, f;  // n as the shifter holds it
    };
    static TARN_INLINE Exponent split(f64x2 z) {
        const f64x2 t = z * scale;
        const f64x2 shifted = (t - half) + shifter;
        return {shifted, (t - (shifted - shifter)) * slope};
    }
    static TARN_INLINE f64x2 exp2_of(Exponent e, f64x2 table) {
        return from_bits(bits(table + table * e.f) + (shift_right_logical(bits(e.n), 11) << 52));
    }

    static TARN_INLINE auto fast(f32x4 x, f32x4 y) {
        const f32x4 m = from_bits((bits(x) & splat_i32(0x007FFFFF)) | splat_i32(0x3A800000));  // m/1024
        const f32x4 c = round<Rounding::nearest>(reciprocal_estimate(m));                      // 512 to 1024
        const i32x4 upper = bits(c) > splat_i32(0x44350000);                                   // above 724
        const i32x4 k = shift_right_logical(bits(x), 23) - splat(126) + upper;
        const i32x4 row = (bits(c) - splat_i32(0x44000000)) >> 14;

        const f64x2 z_low = log_product(widen_low(m), widen_low(c), gather_low(powf_logs, row), to_f64(k),
                                        widen_low(y));
        const f64x2 z_high = two_halves ? log_product(widen_high(m), widen_high(c), gather_high(powf_logs, row),
                                                      to_f64_high(k), widen_high(y))
                                        : z_low;
        const Exponent low = split(z_low), high = split(z_high);
        const i32x4 j = lower_words(bits(low.n), bits(high.n)) & splat(2047);
        const f64x2 power_low = exp2_of(low, gather_low(powf_exp2, j));
        const f64x2 power_high = two_halves ? exp2_of(high, gather_high(powf_exp2, j)) : power_low;

        // An infinite or NaN y makes z one.
        const i32x4 size = upper_words(bits(z_low), bits(z_high)) & ~sign_mask_f32;
        const i32x4 special = not_below_largest_normal(x) | (size > bound);
        const f32x4 power = narrow(power_low, power_high);
        if constexpr (two_halves) return Flagged{power, special};
        else return Flagged{power, to_i64(special)};
    }

private:
    // Not positive and normal, or the largest finite number.
    static TARN_INLINE i32x4 not_below_largest_normal(f32x4 x) {
        return (i32x4)((u32x4)x - (u32x4)splat_i32(0x80800000)) >= splat_i32(0xFEFFFFFF);
    }
};

struct PowfNative : Kernel<float(float, float)> {
    static constexpr auto callout = callout::powf;

    static TARN_INLINE auto fast(f32x4 x, f32x4 y) { return native_power<NativeExp>(x, y); }
};

using PowfByWidth = ExceptAt<ExceptAt<Powf<4>, 1, Powf<2>>, 2, Powf<2>>;

}  // namespace
}  // namespace tarn

TARN_EXPORT(binary, powf, full, tarn::PowfByWidth)
TARN_EXPORT(binary, powf, native, tarn::PowfNative)
