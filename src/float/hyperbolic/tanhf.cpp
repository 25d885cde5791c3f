// tanh |x| by a cubic in double precision, one of 134 that cover sixteen parts of every octave from
// 1/32 to 10; one below and the constant 1 above. No division. The row is the number of the part, from
// the exponent and the top four bits of the mantissa.
//
// A native form would save a term of the cubic at most: native is full.
//
// Worst error of tanhf: 1.026 ulp at -2.10680056; native 1.026.
#include "callout/callouts.hpp"
#include "frame/exports.hpp"

namespace tarn {
namespace {

#include "tables/tanhf_cubics.inc"

struct Tanhf : Kernel<float(float)> {
    static constexpr auto callout = callout::tanhf;
    static constexpr int at_a_time = 8;

    static constexpr i32x4 first = splat_i32(0x3CF80000);  // where row 1 would begin, less one part
    static constexpr i32x4 last = splat_i32(0x04280000);   // 133 parts on

    // The cubics of two rows, at two lanes.
    static TARN_INLINE f64x2 cubic(f64x2 a, const double* row0, const double* row1) {
        const auto [c0, c1] = columns(row0, row1);
        const auto [c2, c3] = columns(row0 + 2, row1 + 2);
        return ((c3 * a + c2) * a + c1) * a + c0;
    }

    static TARN_INLINE auto fast(f32x4 x) {
        const i32x4 top = bits(x) & splat_i32(0x7FF80000);
        const i32x4 part = min(difference_from_zero(top, first), last);
        const auto [i, j, k, l] = rows(part, 19).row;
        const f32x4 a = abs(x);
        const f32x4 y = narrow(cubic(widen_low(a), tanhf_cubics[i], tanhf_cubics[j]),
                               cubic(widen_high(a), tanhf_cubics[k], tanhf_cubics[l]));
        return Flagged{or_bits(y, sign_bit(x)), top > splat_i32(0x7F000000)};
    }
};

}  // namespace
}  // namespace tarn

TARN_EXPORT(unary, tanhf, full, tarn::Tanhf)
TARN_EXPORT_SAME(tanhf, native, full)
