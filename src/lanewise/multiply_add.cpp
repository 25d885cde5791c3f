// x y + z: mad rounds the product and then the sum; fma rounds once, in the direction of the x87 control
// word.
//
// While that direction and the one in force are both to nearest, fma computes all lanes together from
// error-free transformations and hands over to the callout the lanes whose rounding a rounded tail cannot
// decide: those within a rounding of a boundary. Where the processor fuses, its instruction has the same value and
// no flag too many. In any other direction every lane goes to the callout.
#include "callout/callouts.hpp"
#include "frame/directions.hpp"
#include "frame/double_word.hpp"
#include "frame/exports.hpp"
#include "lanewise/format.hpp"

namespace tarn {
namespace {

template <class Lane> struct Mad : Kernel<Lane(Lane, Lane, Lane)> {
    template <class V> static TARN_INLINE auto fast(V x, V y, V z) { return (x * y) + z; }
};

template <class Lane> struct FmaFrame : Kernel<Lane(Lane, Lane, Lane)> {
    static constexpr auto callout = callout::fma<Lane>;
    static TARN_INLINE bool every_lane_special() { return !nearest_everywhere(); }
};
template <class Lane> struct Fma;

// The product is exact in double. A boundary of rounding to single precision, be it a single or the middle of
// two, ends in 28 zeros there: a rounded sum elsewhere lies on the same side of it as the exact one.
template <> struct Fma<float> : FmaFrame<float> {
    template <class W> struct Sum {
        W value;
        BitsOf<W> undecided;  // in the lower words
    };
    template <class W> static TARN_INLINE Sum<W> sum_of(W x, W y, W z) {
        const W product = x * y, sum = product + z;
        const auto boundary = (words(sum) & 0x0FFFFFFF) == 0;
        return {sum, (BitsOf<W>)(boundary & was_rounded(sum, product, z))};
    }

    template <class V> static TARN_INLINE auto fast(V x, V y, V z) {
        if constexpr (fuses) {
            return Flagged{fused_multiply_add(x, y, z), BitsOf<V>{}};
        } else {
            const auto low = sum_of(widen_low(x), widen_low(y), widen_low(z));
            const auto high = sum_of(widen_high(x), widen_high(y), widen_high(z));
            return Flagged{narrow(low.value, high.value), lower_words(low.undecided, high.undecided)};
        }
    }
};

// The exact result as three parts, the last two added to a tail. Its own rounding matters only where the tail
// is next to half a unit of the first part, or to a quarter below a power of two: a power of two itself.
// Products have to keep their error above the subnormal numbers; sums lose nothing there. A factor whose head
// overflows makes a NaN of the tail, which is then undecided.
template <> struct Fma<double> : FmaFrame<double> {
    static constexpr std::uint32_t lowest = 0x07B00000;   // of 2^-900
    static constexpr std::uint32_t highest = 0x7E700000;  // of 2^1000

    template <class V> static TARN_INLINE auto fast(V x, V y, V z) {
        if constexpr (fuses) return Flagged{fused_multiply_add(x, y, z), WordsOf<V>{}};
        else return by_parts(x, y, z);
    }

    template <class V> static TARN_INLINE auto by_parts(V x, V y, V z) {
        const auto product = two_product(x, y);
        const auto low = two_sum(z, product.tail);
        const auto high = two_sum(product.head, low.head);
        const V tail = high.tail + low.tail;
        const auto boundary = words((bits(tail) & 0x0000FFFFFFFFFFFF) == 0);
        const auto undecided = boundary & was_rounded(tail, high.tail, low.tail);
        const auto out_of_range = outside(magnitude_words(product.head), lowest, highest) |
                                  upper_magnitude_above(z, highest);
        return Flagged{high.head + tail, undecided | out_of_range};
    }
};

}  // namespace
}  // namespace tarn

TARN_EXPORT_BOTH(ternary, mad, tarn::Mad)
TARN_EXPORT_BOTH(ternary, fma, tarn::Fma)
