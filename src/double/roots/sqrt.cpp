// x^(1/2) by the processor's square root, which has no special lanes; the native form is the same.
//
// Correctly rounded.
//
// Worst error of sqrt: 0.5 ulp at 2.5155183177451399e-281; native 0.5.
#include "frame/exports.hpp"

namespace tarn::doubles {
namespace {

struct Sqrt : Kernel<double(double)> {
    template <class V> static TARN_INLINE V fast(V x) { return sqrt(x); }
};

}  // namespace
}  // namespace tarn::doubles

TARN_EXPORT(unary, sqrt, full, tarn::doubles::Sqrt)
TARN_EXPORT_SAME(sqrt, native, full)
