// asinh |x| = ln(a + (a^2 + 1)^(1/2)) with a = |x|, and acosh x = ln(x + (x^2 - 1)^(1/2)): the squares, the root and
// the sum each as a number and what its rounding left, and the logarithm of such a sum (inverse_hyperbolic.hpp).
// asinh x is x below 2^-28. The native forms keep what the last sum left and nothing else; their logarithm is that of
// the powers.
//
// Worst error of asinh: 0.5056 ulp at 0.0016154525686357393; native 6.711e+07.
// Worst error of acosh: 0.5078 ulp at 95187564.626176775; native 6.559e+04.
#include "callout/callouts.hpp"
#include "frame/exports.hpp"
#include "steps/double/inverse_hyperbolic.hpp"

namespace tarn::doubles {
namespace {

using namespace inverse_hyperbolic;

constexpr std::uint32_t bound = 0x5FDFFFFF;       // below 2^511: the square is finite
constexpr double tiny = f64(0x3E30000000000000);  // 2^-28

struct Asinh : Kernel<double(double)> {
    static constexpr auto callout = callout::asinh;

    template <class V> static TARN_INLINE auto fast(V x) {
        const V a = abs(x);
        const V y = select(a < tiny, a, inverse_hyperbolic::asinh(a));
        return Flagged{or_bits(y, sign_bit(x)), upper_magnitude_above(x, bound)};
    }
};

struct AsinhNative : Kernel<double(double)> {
    static constexpr auto callout = callout::asinh;

    template <class V> static TARN_INLINE auto fast(V x) {
        const V a = abs(x);
        const V y = native_log_of(fast_two_sum(sqrt(a * a + one), a));
        return Flagged{or_bits(y, sign_bit(x)), upper_magnitude_above(x, bound)};
    }
};

struct Acosh : Kernel<double(double)> {
    static constexpr auto callout = callout::acosh;

    template <class V> static TARN_INLINE auto outside(V x) {
        return words(~(x > one)) | upper_magnitude_above(x, bound);
    }
    template <class V> static TARN_INLINE auto fast(V x) { return Flagged{inverse_hyperbolic::acosh(x), outside(x)}; }
};

struct AcoshNative : Kernel<double(double)> {
    static constexpr auto callout = callout::acosh;

    template <class V> static TARN_INLINE auto fast(V x) {
        return Flagged{native_log_of(fast_two_sum(x, sqrt((x - one) * (x + one)))), Acosh::outside(x)};
    }
};

}  // namespace
}  // namespace tarn::doubles

TARN_EXPORT(unary, asinh, full, tarn::doubles::Asinh)
TARN_EXPORT(unary, asinh, native, tarn::doubles::AsinhNative)
TARN_EXPORT(unary, acosh, full, tarn::doubles::Acosh)
TARN_EXPORT(unary, acosh, native, tarn::doubles::AcoshNative)
