// x^n by the steps of pow (pair_power.hpp); a double holds every n.
//
// Worst error of pown: 1.663 ulp at (1.0004882831912731, 1320429); native 5.231e+07.
#include "callout/callouts.hpp"
#include "double/pow/native_power.hpp"
#include "frame/exports.hpp"

namespace tarn::doubles {
namespace {

struct Pown : Kernel<double(double, std::int32_t)> {
    static constexpr auto callout = callout::pown;

    template <class V> static TARN_INLINE auto fast(V x, WordsOf<V> n) {
        return pair_power(x, log2_of_power(log2_pair(x), to_f64(n)), largest_integer_exponent);
    }
};

struct PownNative : Kernel<double(double, std::int32_t)> {
    static constexpr auto callout = callout::pown;

    template <class V> static TARN_INLINE auto fast(V x, WordsOf<V> n) {
        return native_power(x, native_log2(x) * to_f64(n));
    }
};

}  // namespace
}  // namespace tarn::doubles

TARN_EXPORT(binary, pown, full, tarn::doubles::Pown)
TARN_EXPORT(binary, pown, native, tarn::doubles::PownNative)
