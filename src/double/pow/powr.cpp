// x^y for x >= 0 by the steps of pow (pair_power.hpp); only the special values differ.
//
// Worst error 1.61 ulp at (1.000491751, 1343544.11); native 5.2e7.
#include "callout/callouts.hpp"
#include "double/pow/native_power.hpp"
#include "frame/exports.hpp"

namespace tarn {
namespace {

struct Powr : Kernel<double(double, double)> {
    static constexpr auto callout = callout::powr;

    static TARN_INLINE auto fast(f64x2 x, f64x2 y) {
        const auto power = pair_power(x, log2_of_power(log2_pair(x), y), largest_exponent);
        return Flagged{power.value, power.special | upper_magnitude_above(y, 0x7F7FFFFF)};  // from 2^1017 on
    }
};

struct PowrNative : Kernel<double(double, double)> {
    static constexpr auto callout = callout::powr;

    static TARN_INLINE auto fast(f64x2 x, f64x2 y) { return native_power(x, native_log2(x) * y); }
};

}  // namespace
}  // namespace tarn

TARN_EXPORT(binary, powr, full, tarn::Powr)
TARN_EXPORT(binary, powr, native, tarn::PowrNative)
