// tanh |x| by a cubic in double precision, one of 134 that cover sixteen parts of every octave from
// 1/32 to 10; one below and the constant 1 above. No division. The row is the number of the part, from
// the exponent and the top four bits of the mantissa.
//
// WORST
// A cheaper native form would save only a term of the cubic, so native is full.
#include "callout/callouts.hpp"
#include "frame/exports.hpp"

namespace tarn {
namespace {

#include "tables/tanhf_cubics.inc"

struct Tanhf : Kernel<float(float)> {
    static constexpr auto callout = callout::tanhf;
    static constexpr i32x4 first = splat_i32(0x3CF80000);  // where row 1 would begin, less one part
    static constexpr i32x4 last = splat_i32(0x04280000);   // 133 parts on

    static TARN_INLINE f64x2 cubic(f64x2 a, const double* row0, const double* row1) {
        const f64x2 low0 = load(row0), low1 = load(row1), high0 = load(row0 + 2), high1 = load(row1 + 2);
        const f64x2 c0 = first_of(low0, low1), c1 = second_of(low0, low1);
        const f64x2 c2 = first_of(high0, high1), c3 = second_of(high0, high1);
        return ((c3 * a + c2) * a + c1) * a + c0;
    }

    static TARN_INLINE auto fast(f32x4 x) {
        const i32x4 top = bits(x) & splat_i32(0x7FF80000);
        const i32x4 part = top - first;
        const i32x4 row = min(max(part, splat(0)), last) >> 19;
        const auto at = [&](int i) __attribute__((always_inline)) { return tanhf_cubics[lane(row, i)]; };
        const f32x4 a = abs(x);
        const f32x4 y = narrow(cubic(widen_low(a), at(0), at(1)), cubic(widen_high(a), at(2), at(3)));
        return Flagged{or_bits(y, sign_bit(x)), top > splat_i32(0x7F000000)};
    }
};

}  // namespace
}  // namespace tarn

TARN_EXPORT(unary, tanhf, full, tarn::Tanhf)
TARN_EXPORT_SAME(tanhf, native, full)
