// Numbers as the unevaluated sum of a head and a tail, and the error-free transformations that make them: a sum or
// product rounded to nearest, and what the rounding lost, exactly. Nothing may overflow, and the tail of a product
// has to be above the smallest number.
//
// Every order of operations here is part of some kernel's bits.
#pragma once

#include "frame/simd.hpp"

namespace tarn {

template <class V> struct HeadTail {
    V head, tail;
};

// Of a larger and a smaller number.
template <class V> TARN_INLINE HeadTail<V> fast_two_sum(V larger, V smaller) {
    const V sum = larger + smaller;
    return {sum, smaller - (sum - larger)};
}

// Knuth's, of two numbers in either order.
template <class V> TARN_INLINE HeadTail<V> two_sum(V x, V y) {
    const V sum = x + y, y_part = sum - x;
    return {sum, (x - (sum - y_part)) + (y - y_part)};
}

// The upper 12 bits of a single or 26 of a double, cut off: products of two such heads are exact.
template <Singles V> TARN_INLINE V short_head(V x) { return and_bits(x, i32(0xFFFFF000)); }
template <Doubles V> TARN_INLINE V short_head(V x) { return and_bits(x, i64(0xFFFFFFFFF8000000)); }
template <Floats V> TARN_INLINE HeadTail<V> short_split(V x) {
    const V head = short_head(x);
    return {head, x - head};
}

// Veltkamp's split of a single: the upper 12 bits, rounded, and a rest of 11 bits and a sign.
template <Singles V> TARN_INLINE HeadTail<V> veltkamp_split(V x) {
    const V scaled = x * 4097.0f;
    const V head = scaled - (scaled - x);
    return {head, x - head};
}

// Dekker's product of numbers that are split already.
template <Singles V>
TARN_INLINE HeadTail<V> two_product(V a, const HeadTail<V>& a_split, V b, const HeadTail<V>& b_split) {
    const auto& [ah, al] = a_split;
    const auto& [bh, bl] = b_split;
    const V product = a * b;
    return {product, (((ah * bh - product) + ah * bl) + al * bh) + al * bl};
}

// Dekker's product of doubles. A head rounded to 26 bits leaves a rest of 26 bits and a sign, so that the product
// of the rests is exact too.
template <Doubles V> TARN_INLINE HeadTail<V> two_product(V x, V y) {
    const auto head = [](V v) __attribute__((always_inline)) {
        return from_bits((bits(v) + 0x4000000) & i64(0xFFFFFFFFF8000000));
    };
    const V product = x * y;
    const V xh = head(x), xl = x - xh;
    const V yh = head(y), yl = y - yh;
    return {product, ((xh * yh - product) + (xh * yl + xl * yh)) + xl * yl};
}

// Where x + y was rounded: of both differences one starts from the larger operand, has no rounding of its own, and
// fails to give the other back.
template <Doubles V> TARN_INLINE auto was_rounded(V sum, V x, V y) { return words((sum - x != y) | (sum - y != x)); }

}  // namespace tarn
