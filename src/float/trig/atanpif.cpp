// arctan(x)/pi by an odd polynomial of degree 17 in t = x, or above 1 in -1/x, from half a quarter turn;
// the reciprocal is an estimate refined once, of 1 where x stays (native: the bare estimate, degree 9).
// Below 2^-125, where the products would underflow, and from 2^123 on, where the reciprocal would,
// the callout answers, as for NaN.
//
// Worst error of atanpif: 3.607 ulp at 0.996979356; native 1854.
#include "callout/callouts.hpp"
#include "float/trig/arctangent.hpp"
#include "frame/exports.hpp"

namespace tarn::singles {
namespace {

using arctangent::one;

struct Full : arctangent::half_turns::Full {
    template <class V> static TARN_INLINE V argument(V a, BitsOf<V> small) {
        const V d = select(small, one, a);
        const V estimate = reciprocal_estimate(d);
        return select(small, a, -1.0f) * (estimate * (2.0f - d * estimate));
    }
};
struct Native : arctangent::half_turns::Native {
    template <class V> static TARN_INLINE V argument(V a, BitsOf<V> small) {
        return select(small, a, negated(reciprocal_estimate(a)));
    }
};

template <class Form> struct Atanpif : Kernel<float(float)> {
    static constexpr auto callout = callout::atanpif;

    template <class V> static TARN_INLINE auto fast(V x) {
        const V a = abs(x);
        const BitsOf<V> small = a <= one;
        const V t = Form::argument(a, small);
        const V y = Form::over_t(t) * t + where(~small, Form::quarter);
        const BitsOf<V> from_smallest = wrapping_sum(bits(a), 0x7F000000);  // 2^-125 becomes the least integer
        return Flagged{or_bits(y, sign_bit(x)), from_smallest >= i32(0xFC000000)};
    }
};

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(unary, atanpif, full, tarn::singles::Atanpif<tarn::singles::Full>)
TARN_EXPORT(unary, atanpif, native, tarn::singles::Atanpif<tarn::singles::Native>)
