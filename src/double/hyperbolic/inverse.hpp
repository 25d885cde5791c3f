// The inverse hyperbolic functions are logarithms of numbers from 1 on. Their arguments are kept as sums of a number
// and a tail, so that nothing is lost where the function is small. Kernels and callouts share the steps.
#pragma once

#include "double/log/log_of_sum.hpp"
#include "double/pow/native_log2.hpp"

namespace tarn::inverse_hyperbolic {

constexpr f64x2 one = splat(1.0);

struct Sum {
    f64x2 head, tail;
};

// x + y for |x| >= |y|.
TARN_INLINE Sum sum_of(f64x2 x, f64x2 y) {
    const f64x2 head = x + y;
    return {head, y - (head - x)};
}

// x^2, exact.
TARN_INLINE Sum square(f64x2 x) {
    const auto [xh, xl] = halves(x);
    const f64x2 head = x * x;
    return {head, ((xh * xh - head) + (xh + xh) * xl) + xl * xl};
}

// asinh a = ln(a + (a^2 + 1)^(1/2)) for a from 2^-28 to 2^511. What the root s misses is (a^2 + 1 - s^2)/2s.
TARN_INLINE f64x2 asinh(f64x2 a) {
    const auto [p, p_tail] = square(a);
    const f64x2 larger = max(p, one), smaller = min(p, one);
    const f64x2 s = sqrt(larger + smaller);
    const auto [sh, sl] = halves(s);
    const f64x2 rest = (((larger - sh * sh) + smaller) - (sh + s) * sl) + p_tail;
    const auto [sum, tail] = sum_of(s, a);
    return log_of_sum(sum, tail + rest * (splat(0.5) / s));
}

// acosh x = ln(x + (x^2 - 1)^(1/2)) for x from above 1 to 2^511.
TARN_INLINE f64x2 acosh(f64x2 x) {
    const auto [p, p_tail] = square(x);
    const f64x2 less = p - one;
    const f64x2 s = sqrt(less + p_tail);
    const auto [sh, sl] = halves(s);
    const f64x2 rest = ((less - sh * sh) - (sh + s) * sl) + p_tail;
    const auto [sum, tail] = sum_of(x, s);
    return log_of_sum(sum, tail + rest * (splat(0.5) / s));
}

// 2 atanh a = ln((1 + a)/(1 - a)) for a from 2^-28 to below 1. With R of the quotient's row, w = (1 + a) R/(1 - a) - 1
// is a quotient of differences that are known exactly.
TARN_INLINE f64x2 twice_atanh(f64x2 a) {
    const f64x2 d = one - a, d_tail = (one - d) - a;
    const f64x2 sum = one + a, sum_head = short_head(sum), sum_tail = a - (sum_head - one);
    const f64x2 inverse = one / d;
    const LogRow at = log_row(sum * inverse);
    const auto [n, n_tail] = sum_of(sum_head * at.reciprocal - d, sum_tail * at.reciprocal - d_tail);
    const f64x2 w = short_head(n * inverse);
    const auto [dh, dl] = halves(d);
    const f64x2 rest = (((n - w * dh) - w * dl) + n_tail) - w * d_tail;
    return log_from(at, w, rest * inverse);
}

// The same of a sum whose own error is not known.
TARN_INLINE f64x2 native_log_of(const Sum& x) {
    const f64x2 ln2 = splat_f64(0x3FE62E42FEFA39EF);  // 0.6931471805599453
    return native_log2_of_sum(x.head, x.tail) * ln2;
}

}  // namespace tarn::inverse_hyperbolic
