// x y + z: mad rounds the product and then the sum; fma rounds once, in the direction of the x87 control
// word.
//
// While that direction and the one in force are both to nearest, fma computes all lanes together from
// error-free transformations and hands over to the callout the lanes whose rounding a rounded tail cannot
// decide: those within a rounding of a boundary. In any other direction every lane goes to the callout.
#include "callout/callouts.hpp"
#include "frame/directions.hpp"
#include "frame/exact.hpp"
#include "frame/exports.hpp"
#include "lanewise/format.hpp"

namespace tarn {
namespace {

template <class Lane> struct Mad : Kernel<Lane(Lane, Lane, Lane)> {
    static TARN_INLINE auto fast(Block<Lane> x, Block<Lane> y, Block<Lane> z) { return (x * y) + z; }
};

template <class Lane> struct FmaFrame : Kernel<Lane(Lane, Lane, Lane)> {
    static constexpr auto callout = callout::fma<Lane>;
    static TARN_INLINE bool every_lane_special() { return !nearest_everywhere(); }
};
template <class Lane> struct Fma;

// The product is exact in double. A boundary of rounding to single precision, be it a single or the middle of
// two, ends in 28 zeros there: a rounded sum elsewhere lies on the same side of it as the exact one.
template <> struct Fma<float> : FmaFrame<float> {
    struct Sum {
        f64x2 value;
        i32x4 undecided;
    };
    static TARN_INLINE Sum sum_of(f64x2 x, f64x2 y, f64x2 z) {
        const f64x2 product = x * y, sum = product + z;
        const i32x4 boundary = ((i32x4)sum & splat_i32(0x0FFFFFFF)) == 0;
        return {sum, boundary & was_rounded(sum, product, z)};
    }

    static TARN_INLINE auto fast(f32x4 x, f32x4 y, f32x4 z) {
        const Sum low = sum_of(widen_low(x), widen_low(y), widen_low(z));
        const Sum high = sum_of(widen_high(x), widen_high(y), widen_high(z));
        return Flagged{narrow(low.value, high.value), lower_words((i64x2)low.undecided, (i64x2)high.undecided)};
    }
};

// The exact result as three parts, the last two added to a tail. Its own rounding matters only where the tail
// is next to half a unit of the first part, or to a quarter below a power of two: a power of two itself.
// Products have to keep their error above the subnormal numbers; sums lose nothing there. A factor whose head
// overflows makes a NaN of the tail, which is then undecided.
template <> struct Fma<double> : FmaFrame<double> {
    static constexpr std::uint32_t lowest = 0x07B00000;   // of 2^-900
    static constexpr std::uint32_t highest = 0x7E700000;  // of 2^1000

    static TARN_INLINE auto fast(f64x2 x, f64x2 y, f64x2 z) {
        const auto product = two_product(x, y);
        const auto low = two_sum(z, product.error);
        const auto high = two_sum(product.value, low.value);
        const f64x2 tail = high.error + low.error;
        const auto boundary = (i32x4)((bits(tail) & splat_i64(0x0000FFFFFFFFFFFF)) == 0);
        const i32x4 undecided = boundary & was_rounded(tail, high.error, low.error);
        const i32x4 out_of_range = outside(magnitude_words<double>(product.value), lowest, highest) |
                                   upper_magnitude_above(z, highest);
        return Flagged{high.value + tail, undecided | out_of_range};
    }
};

}  // namespace
}  // namespace tarn

TARN_EXPORT_BOTH(ternary, mad, tarn::Mad)
TARN_EXPORT_BOTH(ternary, fma, tarn::Fma)
