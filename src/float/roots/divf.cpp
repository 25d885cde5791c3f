// x / y and 1 / x by the processor's division. The native and half forms use its estimate of the
// reciprocal; where that would leave the normal range the callout divides.
//
// y = +-2^126 is not special, though the estimate of its reciprocal may be a zero.
//
// Worst error of divf: 0.5 ulp at (-9.0168799e+18, -2.82940988e-07); native and half 5238.
// Worst error of invf: 0.5 ulp at 2.31605587e-38; native and half 4996.
#include "callout/callouts.hpp"
#include "frame/exports.hpp"

namespace tarn::singles {
namespace {

// |x| outside [2^-126, 2^-126 + span], in steps of the bit pattern; infinities and NaNs are outside.
template <class V> TARN_INLINE BitsOf<V> outside_normal_span(V x, std::uint32_t span) {
    const BitsOf<V> above = wrapping_difference(bits(x), 0x00800000);
    return (above & ~sign_mask<V>) > i32(span);
}

struct Divf : Kernel<float(float, float)> {
    template <class V> static TARN_INLINE V fast(V x, V y) { return x / y; }
};

struct DivfNative : Kernel<float(float, float)> {
    static constexpr auto callout = callout::divf;
    static constexpr std::uint32_t span = 0x7E000000;  // up to 2^126

    template <class V> static TARN_INLINE auto fast(V x, V y) {
        return Flagged{x * reciprocal_estimate(y), outside_normal_span(y, span)};
    }
};

struct Invf : Kernel<float(float)> {
    template <class V> static TARN_INLINE V fast(V x) { return 1.0f / x; }
};

struct InvfNative : Kernel<float(float)> {
    static constexpr auto callout = callout::invf;
    static constexpr std::uint32_t span = 0x7DFFE800;  // up to 8.502e37, just below 2^126

    template <class V> static TARN_INLINE auto fast(V x) {
        return Flagged{reciprocal_estimate(x), outside_normal_span(x, span)};
    }
};

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(binary, divf, full, tarn::singles::Divf)
TARN_EXPORT(binary, divf, native, tarn::singles::DivfNative)
TARN_EXPORT_SAME(divf, half, native)
TARN_EXPORT(unary, invf, full, tarn::singles::Invf)
TARN_EXPORT(unary, invf, native, tarn::singles::InvfNative)
TARN_EXPORT_SAME(invf, half, native)
