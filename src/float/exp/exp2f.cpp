// 2^x = 2^n * 2^r with n = round(x) and r = x - n exact, |r| <= 0.5, 2^r of degree 6 (native: 3).
//
// Two widths have kernels of their own. Width 4 rounds to 64ths and takes 2^(j/64) from a table, times
// a quadratic; a special lane sends all four through the same steps in scalars, scaled where the
// result leaves the normal range. Width 1 works in double precision, 2^(j/256) times a quadratic, and
// needs no callout.
//
// Worst error of exp2f: 1.102 ulp at -0.499960393, width 1 0.5069, width 4 2.555; native and half 1230.
#include "callout/scalar.hpp"
#include "float/exp/native_exp2.hpp"
#include "frame/exports.hpp"

namespace tarn::singles {
namespace {

#include "tables/exp2_256ths.inc"
#include "tables/exp2f_quadratic.inc"

constexpr float shifter = f32(0x4B400000);          // 12582912.0 = 1.5 * 2^23
constexpr std::uint32_t normal_bound = 0x42FC0000;  // 126.0

struct Exp2f : Kernel<float(float)> {
    static constexpr auto callout = callout::exp2f;

    // |r| <= 1/2; fit not recorded.
    static constexpr float c6 = f32(0x39213C8C);  // 0.00015376711962744594
    static constexpr float c5 = f32(0x3AAF7A51);  // 0.0013387893559411168
    static constexpr float c4 = f32(0x3C1D962C);  // 0.009618323296308517
    static constexpr float c3 = f32(0x3D6357CF);  // 0.055503662675619125
    static constexpr float c2 = f32(0x3E75FDEF);  // 0.24022649228572845
    static constexpr float c1 = f32(0x3F317218);  // 0.6931471824645996
    static constexpr float c0 = f32(0x3F800000);  // 1.0

    template <class V> static TARN_INLINE auto fast(V x) {
        const V shifted = x + shifter;
        const V r = x - (shifted - shifter);
        const V p = horner(r, c6, c5, c4, c3, c2, c1, c0);
        return Flagged{from_bits(bits(p) + (bits(shifted) << 23)), magnitude_above(x, normal_bound)};
    }
};

struct Exp2fNative : Kernel<float(float)> {
    static constexpr auto callout = callout::exp2f;

    template <class V> static TARN_INLINE auto fast(V x) {
        return Flagged{native_exp2(x), magnitude_above(x, normal_bound)};
    }
};

// Width 4: the table method.
struct Exp2fTable : Kernel<float(float)> {
    static constexpr float shifter = f32(0x48400000);          // 196608.0 = 1.5 * 2^17: rounds to 64ths
    static constexpr std::uint32_t bias = 0x1FC0;              // 127 * 64
    // |r| <= 1/128; fit not recorded.
    static constexpr float b1 = f32(0x4038AA68);               // 2.8854007720947266
    static constexpr float b0 = f32(0x40853526);               // 4.162737846374512
    static constexpr std::uint32_t normal_bound = 0x42F70000;  // 123.5

    template <class V> static TARN_INLINE auto fast(V x) {
        const BitsOf<V> exponent = bits(x) & 0x7F800000;
        const V flushed = where(~(exponent == 0), x);
        const V shifted = x + shifter;
        const V r = (shifter - shifted) + flushed;
        const V scale = from_bits(shift_right_logical(bits(shifted) + i32(bias), 6) << 23);
        const V leading = gather(exp2f_quadratic, bits(shifted) & 63);
        const V p = (r + b1) * r + b0;
        return Flagged{(leading * scale) * p, magnitude_above(x, normal_bound)};
    }

    // The same steps on one value of any size: moved by 24 where the result is subnormal or overflows.
    static float scalar(float x) {
        const std::uint32_t b = callout::pattern(x);
        const bool above = static_cast<std::int32_t>(b) >= 0x43000000;  // 128, +inf, NaN
        if (above || b >= 0xC3160000) {                                 // -150, -inf, -NaN
            if ((b & 0x7FFFFFFF) > 0x7F800000) return x;
            if ((b & 0x7FFFFFFF) == 0x7F800000) return above ? x : 0.0f;
            return static_cast<float>(above ? callout::overflowed() : callout::underflowed());
        }
        const bool low = b >= 0xC2F70000, high = static_cast<std::int32_t>(b) > 0x42F70000;
        const float moved = x + (low ? 24.0f : high ? -24.0f : 0.0f);
        const float flushed = (callout::pattern(moved) & 0x7F800000) == 0 ? 0.0f : moved;
        const float shifted = flushed + shifter;
        const float r = (shifter - shifted) + flushed;
        const float scale = f32((callout::pattern(shifted) + bias) >> 6 << 23);
        const float p = (r + b1) * r + b0;
        const float y = (exp2f_quadratic[callout::pattern(shifted) & 63] * scale) * p;
        return y * (low ? 0x1p-24f : high ? 0x1p24f : 1.0f);
    }

    static f32x4 finish(f32x4 x, f32x4, unsigned) {
        for (int i = 0; i < 4; i++) x[i] = scalar(x[i]);
        return x;
    }
};

// Width 1: double precision, all special values in line.
struct Exp2fScalar : Kernel<float(float)> {
    static constexpr int lanes = 1;
    static constexpr double shifter = f64(0x42B8000000000000);  // 1.5 * 2^44: rounds to 256ths
    // |r| <= 1/512; fit not recorded.
    static constexpr double c1 = f64(0x3FE62E42FEFA72C5);       // 0.6931471805615607
    static constexpr double c0 = f64(0x3FCEBFBDFF82C58E);       // 0.2402265069591007

    static TARN_INLINE double steps(float x) {
        const double X = x;
        const double u = X + shifter;
        const auto low = static_cast<std::int32_t>(bits(u));
        const double r = X - (u - shifter);
        const double scaled =
            f64(callout::pattern(exp2_256ths[low & 255]) + (static_cast<std::uint64_t>(low >> 8) << 52));
        return scaled * ((1.0 + c1 * r) + c0 * (r * r));
    }

    static TARN_INLINE float fast(float x) {
        const std::uint32_t magnitude = callout::pattern(x) & 0x7FFFFFFF;
        if (magnitude - 0x31800000 < 0x117C0000) [[likely]] return static_cast<float>(steps(x));
        return outside(x, magnitude);
    }

    // Below 2^-28 and from 126 on; the conversion to single raises underflow and overflow.
    [[gnu::noinline, gnu::cold]] static float outside(float x, std::uint32_t magnitude) {
        if (magnitude < 0x31800000) return x + 1.0f;
        if (magnitude < 0x43200000) return static_cast<float>(steps(x));
        if (magnitude >= 0x7F800000) return callout::pattern(x) == 0xFF800000 ? 0.0f : x + x;
        const float edge = opaque(x < 0 ? 0x1p-126f : 0x1p126f);
        return edge * edge;
    }
};

using Exp2fByWidth = ExceptAt<ExceptAt<Exp2f, 1, Exp2fScalar>, 4, Exp2fTable>;

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(unary, exp2f, full, tarn::singles::Exp2fByWidth)
TARN_EXPORT(unary, exp2f, native, tarn::singles::Exp2fNative)
TARN_EXPORT_SAME(exp2f, half, native)
