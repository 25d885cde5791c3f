// The inverse hyperbolic functions are logarithms of numbers from 1 on. Their arguments are kept as sums of a number
// and a tail, so that nothing is lost where the function is small. Kernels and callouts share the steps.
#pragma once

#include "steps/double/log_of_sum.hpp"
#include "steps/double/native_log2.hpp"

namespace tarn::doubles::inverse_hyperbolic {

constexpr double one = 1.0;

// x^2, exact.
template <class V> TARN_INLINE HeadTail<V> square(V x) {
    const auto [xh, xl] = short_split(x);
    const V head = x * x;
    return {head, ((xh * xh - head) + (xh + xh) * xl) + xl * xl};
}

// asinh a = ln(a + (a^2 + 1)^(1/2)) for a from 2^-28 to 2^511. What the root s misses is (a^2 + 1 - s^2)/2s.
template <class V> TARN_INLINE V asinh(V a) {
    const auto [p, p_tail] = square(a);
    const V larger = max(p, one), smaller = min(p, one);
    const V s = sqrt(larger + smaller);
    const auto [sh, sl] = short_split(s);
    const V rest = (((larger - sh * sh) + smaller) - (sh + s) * sl) + p_tail;
    const auto [sum, tail] = fast_two_sum(s, a);
    return log_of_sum(sum, tail + rest * (0.5 / s));
}

// acosh x = ln(x + (x^2 - 1)^(1/2)) for x from above 1 to 2^511.
template <class V> TARN_INLINE V acosh(V x) {
    const auto [p, p_tail] = square(x);
    const V less = p - one;
    const V s = sqrt(less + p_tail);
    const auto [sh, sl] = short_split(s);
    const V rest = ((less - sh * sh) - (sh + s) * sl) + p_tail;
    const auto [sum, tail] = fast_two_sum(x, s);
    return log_of_sum(sum, tail + rest * (0.5 / s));
}

// 2 atanh a = ln((1 + a)/(1 - a)) for a from 2^-28 to below 1. With R of the quotient's row, w = (1 + a) R/(1 - a) - 1
// is a quotient of differences that are known exactly.
template <class V> TARN_INLINE V twice_atanh(V a) {
    const V d = one - a, d_tail = (one - d) - a;
    const V sum = one + a, sum_head = short_head(sum), sum_tail = a - (sum_head - one);
    const V inverse = one / d;
    const LogRow<V> at = log_row(sum * inverse);
    const auto [n, n_tail] = fast_two_sum(sum_head * at.reciprocal - d, sum_tail * at.reciprocal - d_tail);
    const V w = short_head(n * inverse);
    const auto [dh, dl] = short_split(d);
    const V rest = (((n - w * dh) - w * dl) + n_tail) - w * d_tail;
    return log_from(at, w, rest * inverse);
}

// The same of a sum whose own error is not known.
template <class V> TARN_INLINE V native_log_of(const HeadTail<V>& x) {
    constexpr double ln2 = f64(0x3FE62E42FEFA39EF);  // 0.6931471805599453
    return native_log2_of_sum(x.head, x.tail) * ln2;
}

}  // namespace tarn::doubles::inverse_hyperbolic
