// ln x, log2 x and log10 x = T(R) + k u + p(r) with u the unit of a binary exponent, R and r as in
// table_log.hpp and p of degree 5; the other bases have the whole polynomial multiplied through. The
// native forms are of degree 3 with an unsplit product.
//
// log2 of a power of two is exact. Its width 2 finishes its special lanes in line.
//
// Worst error of log: 1.589 ulp at 1.0004882285450589; native 2.095e+06.
// Worst error of log2: 2.089 ulp at 1.0004885559481962; native 2.426e+06.
// Worst error of log10: 2.093 ulp at 1.0004917148651571; native 2.921e+06.
#include "callout/callouts.hpp"
#include "frame/exports.hpp"
#include "steps/double/table_log.hpp"

namespace tarn::doubles {
namespace {

template <class Base, auto special> struct Log : Kernel<double(double)> {
    static constexpr auto callout = special;
    template <class V> static TARN_INLINE auto fast(V x) {
        return Flagged{table_log<Base>(x, V{}), not_positive_normal(x)};
    }
};
template <class Base, auto special> struct LogNative : Kernel<double(double)> {
    static constexpr auto callout = special;
    template <class V> static TARN_INLINE auto fast(V x) {
        return Flagged{native_table_log<Base>(x), not_positive_normal(x)};
    }
};

using LogE = Log<BaseE, callout::log>;
using LogENative = LogNative<BaseE, callout::log>;
using Log2 = Log<Base2, callout::log2>;
using Log2Native = LogNative<Base2, callout::log2>;
using Log10 = Log<Base10, callout::log10>;
using Log10Native = LogNative<Base10, callout::log10>;

struct Log2AtWidth2 : Kernel<double(double)> {
    template <class V> static TARN_INLINE auto fast(V x) { return Log2::fast(x); }
    static f64x2 finish(f64x2 x, f64x2 value, unsigned flags) { return finish_lanes(callout::log2, x, value, flags); }
};

using Log2ByWidth = ExceptAt<Log2, 2, Log2AtWidth2>;

}  // namespace
}  // namespace tarn::doubles

TARN_EXPORT(unary, log, full, tarn::doubles::LogE)
TARN_EXPORT(unary, log, native, tarn::doubles::LogENative)
TARN_EXPORT(unary, log2, full, tarn::doubles::Log2ByWidth)
TARN_EXPORT(unary, log2, native, tarn::doubles::Log2Native)
TARN_EXPORT(unary, log10, full, tarn::doubles::Log10)
TARN_EXPORT(unary, log10, native, tarn::doubles::Log10Native)
