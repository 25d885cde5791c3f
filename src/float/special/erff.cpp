// erf |x| by one step of Taylor's series from the nearest point d of a grid of 128ths: with h = |x| - d,
// erf(d) + D(d) (h - d h^2 - h^3/3), where D is the derivative; both come from a table. Above 3.93 the
// last row gives exactly 1. No lane is special.
//
// Worst error of erff: 1.929 ulp at -0.00344431098; native 68.87.
#include "frame/exports.hpp"

namespace tarn::singles {
namespace {

#include "tables/erff_points.inc"

constexpr float largest = f32(0x407B8000);  // 3.9296875 = 503/128
constexpr float shifter = f32(0x47800000);  // 65536.0: rounds to 128ths

// The offset h, the grid point d and its row. The order of both minima matters: a NaN x leaves the
// clamp as the row's place, and comes back as the offset.
template <class V> struct Step {
    V h, offset, d;
    Columns2<V> row;
};
template <class V> TARN_INLINE Step<V> step(V a, V clamped) {
    const V shifted = clamped + shifter;
    const V d = shifted - shifter;
    const V h = clamped - d;
    return {h, min(h, a), d, gather_pairs(erff_points, bits(shifted) - bits(shifter))};
}

struct Erff : Kernel<float(float)> {
    static constexpr float tiny = f32(0x2F800000);   // 2^-32
    // |h| <= 1/256; fit not recorded.
    static constexpr float third = f32(0xBEAAAADE);  // -0.33333486318588257

    template <class V> static TARN_INLINE auto fast(V x) {
        const V a = abs(x);
        const V clamped = min(a, largest);
        const auto [h, offset, d, row] = step(a, clamped);
        const V cubed = where(clamped > tiny, h);  // no subnormal square
        const V q = ((cubed * cubed) * third - d * h) * offset + offset;
        return or_bits(row.first + row.second * q, sign_bit(x));
    }
};

struct ErffNative : Kernel<float(float)> {
    template <class V> static TARN_INLINE auto fast(V x) {
        const V a = abs(x);
        const auto [h, offset, d, row] = step(a, min(a, largest));
        const V q = offset - (d * h) * offset;
        return or_bits(row.first + row.second * q, sign_bit(x));
    }
};

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(unary, erff, full, tarn::singles::Erff)
TARN_EXPORT(unary, erff, native, tarn::singles::ErffNative)
