// x / y and 1 / x by the processor's division. The native and half forms use its estimate of the
// reciprocal; where that would leave the normal range the callout divides.
//
// y = +-2^126 is not special, though the estimate of its reciprocal may be a zero.
//
// Worst error of divf: 0.5 ulp at (-9.0168799e+18, -2.82940988e-07); native and half 5238.
// Worst error of invf: 0.5 ulp at 2.31605587e-38; native and half 4762.
#include "callout/callouts.hpp"
#include "frame/exports.hpp"

namespace tarn {
namespace {

// |x| outside [2^-126, 2^-126 + span], in steps of the bit pattern; infinities and NaNs are outside.
TARN_INLINE i32x4 outside_normal_span(f32x4 x, std::uint32_t span) {
    const i32x4 above = (i32x4)((u32x4)x - (u32x4)splat_i32(0x00800000));
    return (above & ~sign_mask_f32) > splat_i32(span);
}

struct Divf : Kernel<float(float, float)> {
    static TARN_INLINE f32x4 fast(f32x4 x, f32x4 y) { return x / y; }
};

struct DivfNative : Kernel<float(float, float)> {
    static constexpr auto callout = callout::divf;
    static constexpr std::uint32_t span = 0x7E000000;  // up to 2^126

    static TARN_INLINE auto fast(f32x4 x, f32x4 y) {
        return Flagged{x * reciprocal_estimate(y), outside_normal_span(y, span)};
    }
};

struct Invf : Kernel<float(float)> {
    static TARN_INLINE f32x4 fast(f32x4 x) { return splat(1.0f) / x; }
};

struct InvfNative : Kernel<float(float)> {
    static constexpr auto callout = callout::invf;
    static constexpr std::uint32_t span = 0x7DFFE800;  // up to 8.502e37, just below 2^126

    static TARN_INLINE auto fast(f32x4 x) { return Flagged{reciprocal_estimate(x), outside_normal_span(x, span)}; }
};

}  // namespace
}  // namespace tarn

TARN_EXPORT(binary, divf, full, tarn::Divf)
TARN_EXPORT(binary, divf, native, tarn::DivfNative)
TARN_EXPORT_SAME(divf, half, native)
TARN_EXPORT(unary, invf, full, tarn::Invf)
TARN_EXPORT(unary, invf, native, tarn::InvfNative)
TARN_EXPORT_SAME(invf, half, native)
