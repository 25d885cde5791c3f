// The angle of the point (y, x): arctan t with t = min(|y|, |x|) / max(|y|, |x|), from the axis that the
// point is nearer to, then mirrored into its quadrant.
#pragma once

#include "callout/callouts.hpp"
#include "frame/kernel.hpp"

namespace tarn::singles {

// |y| and |x| in order.
template <class V> struct Ordered {
    V smaller, larger;
    BitsOf<V> swapped;
};

template <class V> TARN_INLINE Ordered<V> ordered(BitsOf<V> swapped, V y, V x) {
    return {select(swapped, x, y), select(swapped, y, x), swapped};
}

// In a form of arctangent.hpp, from the quotient t and the lanes to the left of the axis.
template <class Form, class V> TARN_INLINE V angle_of(V y, V x, const Ordered<V>& o, V t, BitsOf<V> left) {
    const V u = xor_bits(t, o.swapped & sign_mask<V>);
    const V first = Form::over_t(t) * u + where(o.swapped, Form::quarter);
    const V upper = xor_bits(first, sign_bit(x)) + where(left, Form::half_turn);
    return xor_bits(upper, sign_bit(y));
}

// By division. Where y is not finite, or x is zero or not finite, the angle is the scalar function's.
template <class Form> struct Atan2 : Kernel<float(float, float)> {
    template <class V> static TARN_INLINE auto fast(V y, V x) {
        const V ay = abs(y), ax = abs(x);
        const Ordered<V> o = ordered(ax < ay, ay, ax);
        const V value = angle_of<Form>(y, x, o, o.smaller / o.larger, x < 0.0f);
        // Infinities and NaNs become negative integers, zero the least that is not.
        const BitsOf<V> x_class = wrapping_sum(bits(ax), 0x00800000);
        return Flagged{value, not_finite(y) | (x_class <= 0x00800000)};
    }
};

// By the estimate of a reciprocal; lanes where that would overflow or vanish are the scalar function's,
// each alone. The order is that of integers, so that a NaN is the larger.
template <class Form, callout::BinaryFloat scalar> struct Atan2Native : Kernel<float(float, float)> {
    static constexpr auto callout = scalar;

    template <class V> static TARN_INLINE auto fast(V y, V x) {
        const V ay = abs(y), ax = abs(x);
        const Ordered<V> o = ordered(bits(ay) > bits(ax), ay, ax);
        const V value = angle_of<Form>(y, x, o, o.smaller * reciprocal_estimate(o.larger), bits(x) >> 31);
        const BitsOf<V> from_smallest = wrapping_sum(bits(o.larger), 0x7F800000);  // 2^-126 becomes the least integer
        return Flagged{value, from_smallest >= i32(0xFE000000)};                   // 2^126
    }
};

}  // namespace tarn::singles
