// erf |x| by one step of Taylor's series from the nearest point d of a grid of 128ths: with h = |x| - d,
// erf(d) + D(d) (h - d h^2 - h^3/3), where D is the derivative; both come from a table. Above 3.93 the
// last row gives exactly 1. No lane is special.
//
// Worst error of erff: 1.929 ulp at -0.00344431098; native 68.87.
#include "frame/exports.hpp"

namespace tarn {
namespace {

#include "tables/erff_points.inc"

constexpr f32x4 largest = splat_f32(0x407B8000);  // 3.9296875 = 503/128
constexpr f32x4 shifter = splat_f32(0x47800000);  // 65536.0: rounds to 128ths

// The offset h, the grid point d and its row. The order of both minima matters: a NaN x leaves the
// clamp as the row's place, and comes back as the offset.
struct Step {
    f32x4 h, offset, d;
    PairLanes row;
};
TARN_INLINE Step step(f32x4 a, f32x4 clamped) {
    const f32x4 shifted = clamped + shifter;
    const f32x4 d = shifted - shifter;
    const f32x4 h = clamped - d;
    return {h, min(h, a), d, gather_pairs(erff_points, bits(shifted) - bits(shifter))};
}

struct Erff : Kernel<float(float)> {
    static constexpr f32x4 tiny = splat_f32(0x2F800000);   // 2^-32
    static constexpr f32x4 third = splat_f32(0xBEAAAADE);  // -0.33333486318588257

    static TARN_INLINE auto fast(f32x4 x) {
        const f32x4 a = abs(x);
        const f32x4 clamped = min(a, largest);
        const auto [h, offset, d, row] = step(a, clamped);
        const f32x4 cubed = where(clamped > tiny, h);  // no subnormal square
        const f32x4 q = ((cubed * cubed) * third - d * h) * offset + offset;
        return or_bits(row.first + row.second * q, sign_bit(x));
    }
};

struct ErffNative : Kernel<float(float)> {
    static TARN_INLINE auto fast(f32x4 x) {
        const f32x4 a = abs(x);
        const auto [h, offset, d, row] = step(a, min(a, largest));
        const f32x4 q = offset - (d * h) * offset;
        return or_bits(row.first + row.second * q, sign_bit(x));
    }
};

}  // namespace
}  // namespace tarn

TARN_EXPORT(unary, erff, full, tarn::Erff)
TARN_EXPORT(unary, erff, native, tarn::ErffNative)
