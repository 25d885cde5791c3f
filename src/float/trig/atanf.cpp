// arctan x = +-arctan t, or +-(pi/2 - arctan t) above 1, with t = |x| or its reciprocal by one
// division; an odd polynomial of degree 17 on [0, 1] in two interleaved halves. No lane is special.
// The native form estimates the reciprocal and has degree 9.
//
// Worst error of atanf: 3.752 ulp at 0.950908661; native 2912.
#include "float/trig/arctangent.hpp"
#include "frame/exports.hpp"

namespace tarn {
namespace {

using arctangent::one;

struct Full : arctangent::Radians {
    static TARN_INLINE f32x4 at_most_one(f32x4 a, i32x4) { return min(one, a) / max(one, a); }
};
struct Native : arctangent::RadiansNative {
    static TARN_INLINE f32x4 at_most_one(f32x4 a, i32x4 inverted) {
        return select(inverted, reciprocal_estimate(a), a);
    }
};

template <class Form> struct Atanf : Kernel<float(float)> {
    static TARN_INLINE f32x4 fast(f32x4 x) {
        const i32x4 sign = sign_bit(x);
        const f32x4 a = abs(x);
        const i32x4 inverted = bits(a) > bits(one);
        const f32x4 t = Form::at_most_one(a, inverted);
        const f32x4 u = xor_bits(t, (inverted & sign_mask_f32) ^ sign);
        const f32x4 offset = xor_bits(where(inverted, Form::quarter), sign);
        return Form::over_t(t) * u + offset;
    }
};

}  // namespace
}  // namespace tarn

TARN_EXPORT(unary, atanf, full, tarn::Atanf<tarn::Full>)
TARN_EXPORT(unary, atanf, native, tarn::Atanf<tarn::Native>)
