// e^x = 2^n * e^r with n = round(x log2 e) and r = x - n ln 2, |r| <= 0.35; ln 2 in a short head and
// a tail, e^r of degree 5, 2^n added to the exponent field. The native form reduces in base 2 without
// a split and spends degree 3. No table.
//
// Above |x| = 87.33, where the result may be subnormal or overflow, the callout computes the lane.
//
// Worst error of expf: 2.932 ulp at -5.89163828; native and half 2169.
#include "callout/callouts.hpp"
#include "frame/exports.hpp"

namespace tarn::singles {
namespace {

constexpr float log2_e = f32(0x3FB8AA3B);           // 1.4426950216293335
constexpr float shifter = f32(0x4B400000);          // 12582912.0 = 1.5 * 2^23
constexpr float ln2_head = f32(0x3F317200);         // 0.693145751953125
constexpr float ln2_tail = f32(0x35BFBE8E);         // 1.428606765330187e-06
constexpr std::uint32_t normal_bound = 0x42AEAC4F;  // 87.33654022216797

struct Expf : Kernel<float(float)> {
    static constexpr auto callout = callout::expf;

    // |r| <= 0.35; fit not recorded.
    static constexpr float a5 = f32(0x3C07D9FE);  // 0.008291719481348991
    static constexpr float a4 = f32(0x3D2B8392);  // 0.041873522102832794
    static constexpr float a3 = f32(0x3E2AACAC);  // 0.16667431592941284
    static constexpr float a2 = f32(0x3EFFFF34);  // 0.4999939203262329
    static constexpr float a1 = f32(0x3F7FFFFE);  // 0.9999998807907104
    static constexpr float a0 = f32(0x3F800000);  // 1.0

    template <class V> static TARN_INLINE auto fast(V x) {
        const V shifted = x * log2_e + shifter;  // n in the low bits
        const V n = shifted - shifter;
        const V r = (x - n * ln2_head) - n * ln2_tail;
        const V p = horner(r, a5, a4, a3, a2, a1, a0);
        return Flagged{from_bits(bits(p) + (bits(shifted) << 23)), magnitude_above(x, normal_bound)};
    }
};

struct ExpfNative : Kernel<float(float)> {
    static constexpr auto callout = callout::expf;

    // |r| <= 1/2; fit not recorded.
    static constexpr float b3 = f32(0x3D63582B);  // 0.055504005402326584
    static constexpr float b2 = f32(0x3E77D66A);  // 0.2420288622379303
    static constexpr float b1 = f32(0x3F317422);  // 0.6931782960891724
    static constexpr float b0 = f32(0x3F800000);  // 1.0

    template <class V> static TARN_INLINE auto fast(V x) {
        const V t = x * log2_e;
        const V shifted = t + shifter;
        const V r = t - (shifted - shifter);
        const V p = horner(r, b3, b2, b1, b0);
        return Flagged{from_bits(bits(p) + (bits(shifted) << 23)), magnitude_above(x, normal_bound)};
    }
};

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(unary, expf, full, tarn::singles::Expf)
TARN_EXPORT(unary, expf, native, tarn::singles::ExpfNative)
TARN_EXPORT_SAME(expf, half, native)
