// x^y = 2^(y log2 |x|), log2 |x| as a head and a tail (log2_pair.hpp), the product with y and the exponential as
// in pair_power.hpp. The native form keeps one number for the logarithm (native_power.hpp).
//
// Worst error 1.61 ulp at (1.000491751, 1343544.11), where the logarithm's tail is largest beside its head; native 5.2e7.
#include "callout/callouts.hpp"
#include "double/pow/native_power.hpp"
#include "frame/exports.hpp"

namespace tarn {
namespace {

struct Pow : Kernel<double(double, double)> {
    static constexpr auto callout = callout::pow;

    static TARN_INLINE auto fast(f64x2 x, f64x2 y) {
        const auto power = pair_power(x, log2_of_power(log2_pair(x), y), largest_exponent);
        return Flagged{power.value, power.special | upper_magnitude_above(y, 0x7F7FFFFF)};  // from 2^1017 on
    }
};

struct PowNative : Kernel<double(double, double)> {
    static constexpr auto callout = callout::pow;

    static TARN_INLINE auto fast(f64x2 x, f64x2 y) { return native_power(x, native_log2(x) * y); }
};

}  // namespace
}  // namespace tarn

TARN_EXPORT(binary, pow, full, tarn::Pow)
TARN_EXPORT(binary, pow, native, tarn::PowNative)
