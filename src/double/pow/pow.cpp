// x^y = 2^(y log2 |x|), log2 |x| as a head and a tail (log2_pair.hpp), the product with y and the exponential as
// in pair_power.hpp. powr, for x >= 0, differs in its special values only. The native forms keep one number for the
// logarithm (native_power.hpp).
//
// Worst error of pow: 1.675 ulp at (1.0004918890852843, -1343314.1202372387); native 5.254e+07.
// Worst error of powr: 1.684 ulp at (1.0004889728811408, -1345651.9741615832); native 5.281e+07.
#include "callout/callouts.hpp"
#include "double/pow/native_power.hpp"
#include "frame/exports.hpp"

namespace tarn::doubles {
namespace {

template <auto special_lane> struct PowerOf : Kernel<double(double, double)> {
    static constexpr auto callout = special_lane;

    template <class V> static TARN_INLINE auto fast(V x, V y) {
        const auto power = pair_power(x, log2_of_power(log2_pair(x), y), largest_exponent);
        return Flagged{power.value, power.special | upper_magnitude_above(y, 0x7F7FFFFF)};  // from 2^1017 on
    }
};

template <auto special_lane> struct PowerNative : Kernel<double(double, double)> {
    static constexpr auto callout = special_lane;

    template <class V> static TARN_INLINE auto fast(V x, V y) { return native_power(x, native_log2(x) * y); }
};

}  // namespace
}  // namespace tarn::doubles

TARN_EXPORT(binary, pow, full, tarn::doubles::PowerOf<tarn::callout::pow>)
TARN_EXPORT(binary, pow, native, tarn::doubles::PowerNative<tarn::callout::pow>)
TARN_EXPORT(binary, powr, full, tarn::doubles::PowerOf<tarn::callout::powr>)
TARN_EXPORT(binary, powr, native, tarn::doubles::PowerNative<tarn::callout::powr>)
