// Double to single precision in four roundings: the processor rounds to nearest, and where the result,
// widened back, lies on the wrong side of x, its neighbour is taken. So a finite x beyond the largest
// single gives that single where the direction says so, and a tiny one the smallest subnormal.
#include "lanewise/conversion.hpp"

namespace tarn {
namespace {

struct Narrowed {
    using Signature = float(double);
    template <Rounding mode, Doubles V> static TARN_INLINE auto to(V x) {
        const Like<V, float> f = narrow(x);
        const V back = widen_low(f);
        return redirected<mode>(f, low_words(back > x), low_words(back < x));
    }
};

}  // namespace
}  // namespace tarn

TARN_EXPORT_ROUNDINGS(cvtfp64tofp32, , tarn::Narrowed)
