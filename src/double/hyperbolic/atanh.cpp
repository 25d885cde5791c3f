// atanh |x| = ln((1 + a)/(1 - a))/2 with a = |x|: of the quotient only its row of the logarithm's table is taken; what
// is left of it next to that row is a quotient of exact differences, a head and a tail (inverse_hyperbolic.hpp).
// atanh x is x below 2^-28. The native form takes the logarithm of the powers of 1 + 2a/(1 - a), keeping what the sum
// left.
//
// Worst error of atanh: 0.5065 ulp at 0.00097189912753878728; native 6.559e+04.
#include "callout/callouts.hpp"
#include "frame/exports.hpp"
#include "steps/double/inverse_hyperbolic.hpp"

namespace tarn::doubles {
namespace {

using namespace inverse_hyperbolic;

constexpr double half = 0.5;
constexpr std::uint32_t below_one = 0x3FEFFFFF;
constexpr double tiny = f64(0x3E30000000000000);  // 2^-28

struct Atanh : Kernel<double(double)> {
    static constexpr auto callout = callout::atanh;

    template <class V> static TARN_INLINE auto fast(V x) {
        const V a = abs(x);
        const V y = select(a < tiny, a, twice_atanh(a) * half);
        return Flagged{or_bits(y, sign_bit(x)), upper_magnitude_above(x, below_one)};
    }
};

struct AtanhNative : Kernel<double(double)> {
    static constexpr auto callout = callout::atanh;

    template <class V> static TARN_INLINE auto fast(V x) {
        const V a = abs(x);
        const V w = (a + a) / (one - a);
        const V y = native_log_of(fast_two_sum(max(w, one), min(w, one)));
        return Flagged{y * or_bits(half, sign_bit(x)), upper_magnitude_above(x, below_one)};
    }
};

}  // namespace
}  // namespace tarn::doubles

TARN_EXPORT(unary, atanh, full, tarn::doubles::Atanh)
TARN_EXPORT(unary, atanh, native, tarn::doubles::AtanhNative)
