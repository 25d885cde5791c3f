// tanh |x| around the middle c of an eighth of an octave, from 1/8 to 20: with h = |x| - c, tanh c as head and
// tail, the slope times h and h^2 times a polynomial of degree 10; one row around 0 below, the constant 1
// above. No division. The row is the number of the part, from the upper word. The native form leaves out the
// tail and five terms.
//
// Worst error of tanh: 0.588 ulp at 0.50001279473794025; native 1.167e+07.
#include "callout/callouts.hpp"
#include "frame/exports.hpp"
#include "steps/double/tanh.hpp"

namespace tarn::doubles {
namespace {

// From 1.125 2^1023 on, infinities and NaNs.
template <class V> TARN_INLINE WordsOf<V> beyond(const TanhPlace<V>& place) { return place.top > 0x7FE00000; }

struct Tanh : Kernel<double(double)> {
    static constexpr auto callout = callout::tanh;
    static constexpr int blocks_at_a_time = 4;

    template <class V> static TARN_INLINE auto fast(V x) {
        const TanhPlace<V> place = tanh_place(x);
        return Flagged{tanh_sum(x, place), beyond(place)};
    }
};

struct TanhNative : Kernel<double(double)> {
    static constexpr auto callout = callout::tanh;

    template <class V> static TARN_INLINE auto fast(V x) {
        const TanhPlace<V> place = tanh_place(x);
        const V h = place.h, h2 = h * h;
        const auto [q4, q5] = gather_columns<8>(tanh_parts, place.row);
        const auto [q2, q3] = gather_columns<10>(tanh_parts, place.row);
        const auto [q0, q1] = gather_columns<12>(tanh_parts, place.row);
        const V slope = gather_columns<14>(tanh_parts, place.row).first;
        const V q = horner(h2, q4, q2, q0) + horner(h2, q5, q3, q1) * h;
        return Flagged{or_bits(place.head + h * (slope + h * q), sign_bit(x)), beyond(place)};
    }
};

}  // namespace
}  // namespace tarn::doubles

TARN_EXPORT(unary, tanh, full, tarn::doubles::Tanh)
TARN_EXPORT(unary, tanh, native, tarn::doubles::TanhNative)
