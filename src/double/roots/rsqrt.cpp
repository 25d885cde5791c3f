// x^(-1/2) as the reciprocal of the square root, corrected by what both roundings left (corrected_rsqrt.hpp). The
// native form has no correction and no special lanes.
//
// Worst error of rsqrt: 0.5 ulp at 5.6564302477225688e+100; native 1.5.
#include "callout/callouts.hpp"
#include "frame/exports.hpp"
#include "steps/double/corrected_rsqrt.hpp"

namespace tarn::doubles {
namespace {

struct Rsqrt : Kernel<double(double)> {
    static constexpr auto callout = callout::rsqrt;
    static constexpr int blocks_at_a_time = 2;           // the root and the division take their turns
    static constexpr std::uint32_t lowest = 0x07B00000;  // of 2^-900: below, residuals reach the end of the range

    template <class V> static TARN_INLINE auto fast(V x) {
        return Flagged{corrected_rsqrt(x), below_or_not_finite(x, lowest)};
    }
};

struct RsqrtNative : Kernel<double(double)> {
    template <class V> static TARN_INLINE V fast(V x) { return 1.0 / sqrt(x); }
};

}  // namespace
}  // namespace tarn::doubles

TARN_EXPORT(unary, rsqrt, full, tarn::doubles::Rsqrt)
TARN_EXPORT(unary, rsqrt, native, tarn::doubles::RsqrtNative)
