// x / y and 1 / x by the processor's division. A zero or subnormal divisor is divided by again in the callout, a
// scalar operation that raises the flags of that lane alone. The native forms leave that out; their results are
// the same.
//
// Correctly rounded.
//
// Worst error of div: 0.5 ulp at (-5.3104970007246847e-290, -2.1184571316770906e-256); native 0.5.
// Worst error of inv: 0.5 ulp at -5.6696204113137826e+112; native 0.5.
#include "callout/callouts.hpp"
#include "frame/exports.hpp"

namespace tarn::doubles {
namespace {

// Zeros and subnormals, in the upper words.
template <class V> TARN_INLINE WordsOf<V> without_exponent(V x) { return (words(x) & 0x7FF00000) == 0; }

struct Div : Kernel<double(double, double)> {
    static constexpr auto callout = callout::div;

    template <class V> static TARN_INLINE auto fast(V x, V y) { return Flagged{x / y, without_exponent(y)}; }
};

struct DivNative : Kernel<double(double, double)> {
    template <class V> static TARN_INLINE V fast(V x, V y) { return x / y; }
};

struct Inv : Kernel<double(double)> {
    static constexpr auto callout = callout::inv;

    template <class V> static TARN_INLINE auto fast(V x) { return Flagged{1.0 / x, without_exponent(x)}; }
};

struct InvNative : Kernel<double(double)> {
    template <class V> static TARN_INLINE V fast(V x) { return 1.0 / x; }
};

}  // namespace
}  // namespace tarn::doubles

TARN_EXPORT(binary, div, full, tarn::doubles::Div)
TARN_EXPORT(binary, div, native, tarn::doubles::DivNative)
TARN_EXPORT(unary, inv, full, tarn::doubles::Inv)
TARN_EXPORT(unary, inv, native, tarn::doubles::InvNative)
