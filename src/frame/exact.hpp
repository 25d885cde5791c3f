// Error-free transformations: a sum or product rounded to nearest, and what the rounding lost, exactly.
// Nothing may overflow, and a product has to be 2^106 times the smallest number at least.
#pragma once

#include "frame/simd.hpp"

namespace tarn {

template <class V> struct Exact {
    V value, error;
};

// Knuth's two-sum: the operands in either order.
template <class V> TARN_INLINE Exact<V> two_sum(V x, V y) {
    const V sum = x + y, y_part = sum - x;
    return {sum, (x - (sum - y_part)) + (y - y_part)};
}

// Dekker's product. A head rounded to 26 bits leaves a rest of 26 bits and a sign, so that the product of the
// rests is exact too.
TARN_INLINE Exact<f64x2> two_product(f64x2 x, f64x2 y) {
    const auto head = [](f64x2 v) __attribute__((always_inline)) {
        return from_bits((bits(v) + splat_i64(0x4000000)) & splat_i64(0xFFFFFFFFF8000000));
    };
    const f64x2 product = x * y;
    const f64x2 xh = head(x), xl = x - xh;
    const f64x2 yh = head(y), yl = y - yh;
    return {product, ((xh * yh - product) + (xh * yl + xl * yh)) + xl * yl};
}

// Where x + y was rounded: of both differences one starts from the larger operand, has no rounding of its own, and
// fails to give the other back.
TARN_INLINE i32x4 was_rounded(f64x2 sum, f64x2 x, f64x2 y) { return (i32x4)(sum - x != y) | (i32x4)(sum - y != x); }

}  // namespace tarn
