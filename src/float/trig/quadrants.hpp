// The angle of the point (y, x): arctan t with t = min(|y|, |x|) / max(|y|, |x|), from the axis that the
// point is nearer to, then mirrored into its quadrant.
#pragma once

#include "callout/callouts.hpp"
#include "frame/kernel.hpp"

namespace tarn {

// |y| and |x| in order.
struct Ordered {
    f32x4 smaller, larger;
    i32x4 swapped;
};

TARN_INLINE Ordered ordered(i32x4 swapped, f32x4 y, f32x4 x) {
    return {select(swapped, x, y), select(swapped, y, x), swapped};
}

// In a unit of arctangent.hpp, from the quotient t and the lanes to the left of the axis.
template <class Unit> TARN_INLINE f32x4 angle_of(f32x4 y, f32x4 x, const Ordered& o, f32x4 t, i32x4 left) {
    const f32x4 u = xor_bits(t, o.swapped & sign_mask_f32);
    const f32x4 first = Unit::over_t(t) * u + where(o.swapped, Unit::quarter);
    const f32x4 upper = xor_bits(first, sign_bit(x)) + where(left, Unit::half_turn);
    return xor_bits(upper, sign_bit(y));
}

// By division. Where y is not finite, or x is zero or not finite, the angle is the scalar function's.
template <class Unit> struct Atan2 : Kernel<float(float, float)> {
    static TARN_INLINE auto fast(f32x4 y, f32x4 x) {
        const f32x4 ay = abs(y), ax = abs(x);
        const Ordered o = ordered(ax < ay, ay, ax);
        const f32x4 value = angle_of<Unit>(y, x, o, o.smaller / o.larger, x < splat(0.0f));
        // Infinities and NaNs become negative integers, zero the least that is not.
        const i32x4 x_class = wrapping_sum(bits(ax), splat_i32(0x00800000));
        return Flagged{value, not_finite(y) | (x_class <= splat_i32(0x00800000))};
    }
};

// By the estimate of a reciprocal; lanes where that would overflow or vanish are the scalar function's,
// each alone. The order is that of integers, so that a NaN is the larger.
template <class Unit, callout::BinaryFloat scalar> struct Atan2Native : Kernel<float(float, float)> {
    static constexpr auto callout = scalar;

    static TARN_INLINE auto fast(f32x4 y, f32x4 x) {
        const f32x4 ay = abs(y), ax = abs(x);
        const Ordered o = ordered(bits(ay) > bits(ax), ay, ax);
        const f32x4 value = angle_of<Unit>(y, x, o, o.smaller * reciprocal_estimate(o.larger), bits(x) >> 31);
        const i32x4 from_smallest = wrapping_sum(bits(o.larger), splat_i32(0x7F800000));  // 2^-126 becomes the least integer
        return Flagged{value, from_smallest >= splat_i32(0xFE000000)};       // 2^126
    }
};

}  // namespace tarn
