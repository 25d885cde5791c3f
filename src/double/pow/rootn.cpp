// x^(1/n) = 2^((log2 x)/n) with pow's logarithm and exponential; the quotient's remainder goes into its tail
// (pair_power.hpp).
//
// Worst error of rootn: 1.001 ulp at (484.21874019357682, -23); native 7.455e+06.
#include "callout/callouts.hpp"
#include "double/pow/native_power.hpp"
#include "frame/exports.hpp"

namespace tarn::doubles {
namespace {

struct Rootn : Kernel<double(double, std::int32_t)> {
    static constexpr auto callout = callout::rootn;

    template <class V> static TARN_INLINE auto fast(V x, WordsOf<V> n) {
        return pair_power(x, log2_of_root(log2_pair(x), to_f64(n)), largest_exponent);
    }
};

struct RootnNative : Kernel<double(double, std::int32_t)> {
    static constexpr auto callout = callout::rootn;

    template <class V> static TARN_INLINE auto fast(V x, WordsOf<V> n) {
        return native_power(x, native_log2(x) / to_f64(n));
    }
};

}  // namespace
}  // namespace tarn::doubles

TARN_EXPORT(binary, rootn, full, tarn::doubles::Rootn)
TARN_EXPORT(binary, rootn, native, tarn::doubles::RootnNative)
