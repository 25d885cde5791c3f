// The angle of the point (y, x): arctan t with t = min(|y|, |x|) / max(|y|, |x|), from the axis that the
// point is nearer to, then mirrored into its quadrant. A block with a lane that this does not serve (y
// not finite; x zero or not finite) is computed by the scalar function, every lane of it.
#pragma once

#include "frame/kernel.hpp"

namespace tarn {

// |y| and |x| in order.
struct Ordered {
    f32x4 smaller, larger;
    i32x4 swapped;
};

// A Form is a unit of arctangent.hpp with the scalar function, the lanes it is for and the quotient.
template <class Form> struct Atan2 : Kernel<float(float, float)> {
    static TARN_INLINE auto fast(f32x4 y, f32x4 x) {
        const Ordered o = Form::ordered(abs(y), abs(x));
        const f32x4 t = Form::quotient(o);
        const f32x4 u = xor_bits(t, o.swapped & sign_mask_f32);
        const f32x4 first = Form::over_t(t) * u + where(o.swapped, Form::quarter);
        const f32x4 upper = xor_bits(first, sign_bit(x)) + where(Form::left(x), Form::half_turn);
        return Flagged{xor_bits(upper, sign_bit(y)), Form::special(y, x, o)};
    }

    static f32x4 finish(f32x4 y, f32x4 x, f32x4 result, unsigned) {
        for (int i = 0; i < 4; i++) {
            const float y_lane = y[i], x_lane = x[i];
            float lane;
            Form::scalar(&y_lane, &x_lane, &lane);
            result[i] = lane;
        }
        return result;
    }
};

// By division, where both are finite and x is not zero.
template <class Unit, auto function> struct Divided : Unit {
    static constexpr auto scalar = function;

    static TARN_INLINE Ordered ordered(f32x4 y, f32x4 x) {
        const i32x4 swapped = x < y;
        return {select(swapped, x, y), select(swapped, y, x), swapped};
    }
    static TARN_INLINE f32x4 quotient(const Ordered& o) { return o.smaller / o.larger; }
    static TARN_INLINE i32x4 left(f32x4 x) { return x < splat(0.0f); }
    static TARN_INLINE i32x4 special(f32x4 y, f32x4 x, const Ordered&) {
        // Infinities and NaNs become negative integers, zero the least that is not.
        const i32x4 x_class = bits(abs(x)) + splat_i32(0x00800000);
        return not_finite(y) | (x_class <= splat_i32(0x00800000));
    }
};

// By the estimate of a reciprocal, where that neither overflows nor vanishes. Ordered as integers, so
// that a NaN is the larger.
template <class Unit, auto function> struct Estimated : Unit {
    static constexpr auto scalar = function;

    static TARN_INLINE Ordered ordered(f32x4 y, f32x4 x) {
        const i32x4 swapped = bits(y) > bits(x);
        return {select(swapped, x, y), select(swapped, y, x), swapped};
    }
    static TARN_INLINE f32x4 quotient(const Ordered& o) { return o.smaller * reciprocal_estimate(o.larger); }
    static TARN_INLINE i32x4 left(f32x4 x) { return bits(x) >> 31; }
    static TARN_INLINE i32x4 special(f32x4, f32x4, const Ordered& o) {
        const i32x4 from_smallest = bits(o.larger) - splat_i32(0x80800000);  // 2^-126 becomes the least integer
        return from_smallest >= splat_i32(0xFE000000);                       // 2^126
    }
};

}  // namespace tarn
