// arctan x = +-arctan t, or +-(pi/2 - arctan t) above 1, with t = |x| or its reciprocal by one
// division; an odd polynomial of degree 17 on [0, 1] in two interleaved halves. No lane is special.
// The native form estimates the reciprocal and has degree 9.
//
// Worst error of atanf: 3.752 ulp at 0.950908661; native 2912.
#include "float/trig/arctangent.hpp"
#include "frame/exports.hpp"

namespace tarn::singles {
namespace {

using arctangent::one;

struct Full : arctangent::radians::Full {
    template <class V> static TARN_INLINE V at_most_one(V a, BitsOf<V>) { return min(one, a) / max(one, a); }
};
struct Native : arctangent::radians::Native {
    template <class V> static TARN_INLINE V at_most_one(V a, BitsOf<V> inverted) {
        return select(inverted, reciprocal_estimate(a), a);
    }
};

template <class Form> struct Atanf : Kernel<float(float)> {
    template <class V> static TARN_INLINE V fast(V x) {
        const BitsOf<V> sign = sign_bit(x);
        const V a = abs(x);
        const BitsOf<V> inverted = bits(a) > bits(one);
        const V t = Form::at_most_one(a, inverted);
        const V u = xor_bits(t, (inverted & sign_mask<V>) ^ sign);
        const V offset = xor_bits(where(inverted, Form::quarter), sign);
        return Form::over_t(t) * u + offset;
    }
};

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(unary, atanf, full, tarn::singles::Atanf<tarn::singles::Full>)
TARN_EXPORT(unary, atanf, native, tarn::singles::Atanf<tarn::singles::Native>)
