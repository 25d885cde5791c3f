// tanh |x| by a cubic in double precision, one of 134 that cover sixteen parts of every octave from
// 1/32 to 10; one below and the constant 1 above. No division. The row is the number of the part, from
// the exponent and the top four bits of the mantissa.
//
// A native form would save a term of the cubic at most: native is full.
//
// Worst error of tanhf: 1.026 ulp at -2.10680056; native 1.026.
#include "callout/callouts.hpp"
#include "frame/exports.hpp"

namespace tarn::singles {
namespace {

#include "tables/tanhf_cubics.inc"

// In two halves, or, for the widths that have no more lanes, the lower one.
template <bool two_halves> struct Tanhf : Kernel<float(float)> {
    static constexpr int lanes = two_halves ? 4 : 2;
    static constexpr auto callout = callout::tanhf;
    static constexpr int blocks_at_a_time = 2;

    static constexpr std::int32_t first = 0x3CF80000;  // where row 1 would begin, less one part
    static constexpr std::int32_t last = 0x04280000;   // 133 parts on

    template <class V, class Columns> static TARN_INLINE V cubic(V a, Columns lower, Columns upper) {
        const auto [c0, c1] = lower;
        const auto [c2, c3] = upper;
        return ((c3 * a + c2) * a + c1) * a + c0;
    }

    template <class V> static TARN_INLINE auto fast(V x) {
        const BitsOf<V> top = bits(x) & 0x7FF80000;
        const BitsOf<V> part = min(difference_from_zero(top, filled<BitsOf<V>>(first)), last);
        const BitsOf<V> row = part >> 19;
        const V a = abs(x);
        const auto low = cubic(widen_low(a), gather_columns_low<0>(tanhf_cubics, row),
                               gather_columns_low<2>(tanhf_cubics, row));
        const BitsOf<V> special = top > 0x7F000000;
        if constexpr (two_halves) {
            const auto high = cubic(widen_high(a), gather_columns_high<0>(tanhf_cubics, row),
                                    gather_columns_high<2>(tanhf_cubics, row));
            return Flagged{or_bits(narrow(low, high), sign_bit(x)), special};
        } else {
            return Flagged{or_bits(narrow(low), sign_bit(x)), to_i64(special)};
        }
    }
};

using TanhfByWidth = ExceptAt<ExceptAt<Tanhf<true>, 1, Tanhf<false>>, 2, Tanhf<false>>;

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(unary, tanhf, full, tarn::singles::TanhfByWidth)
TARN_EXPORT_SAME(tanhf, native, full)
