// Roots of doubles whose rounding errors are known exactly and taken off: the square root leaves the residual
// x - s^2, the quotient 1 - s y, and squares their own. Halves of 26 and 27 bits make the products exact.
#pragma once

#include "frame/simd.hpp"

namespace tarn {

struct Halves {
    f64x2 head, tail;
};
TARN_INLINE Halves halves(f64x2 x) {
    const f64x2 head = from_bits(bits(x) & splat_i64(0xFFFFFFFFF8000000));
    return {head, x - head};
}

// a - s^2 for an a next to s^2.
TARN_INLINE f64x2 square_residual(f64x2 a, const Halves& s) {
    return ((a - s.head * s.head) - (s.head + s.head) * s.tail) - s.tail * s.tail;
}

// x^(-1/2) = y (1 + e - d y^2/2) for s, the rounded root, y, its rounded reciprocal, e = 1 - s y and d = x - s^2.
TARN_INLINE f64x2 corrected_rsqrt(f64x2 x) {
    const f64x2 one = splat(1.0), half = splat(0.5);
    const f64x2 s = sqrt(x), y = one / s;
    const Halves sh = halves(s), yh = halves(y);
    const f64x2 d = square_residual(x, sh);
    const f64x2 e = ((one - sh.head * yh.head) - sh.head * yh.tail) - sh.tail * y;
    return y + y * (e - half * (d * y) * y);
}

// (x^2 + y^2)^(1/2) and the rounded sum of the squares.
struct Hypotenuse {
    f64x2 root, sum;
};
TARN_INLINE Hypotenuse corrected_hypot(f64x2 x, f64x2 y) {
    const f64x2 xx = x * x, yy = y * y;
    const f64x2 sum = xx + yy;
    const f64x2 s = sqrt(sum);
    const f64x2 larger = max(xx, yy), smaller = min(xx, yy);
    const f64x2 sum_tail = smaller - (sum - larger);
    const f64x2 squares_tail = square_residual(xx, halves(x)) + square_residual(yy, halves(y));
    const f64x2 d = square_residual(sum, halves(s)) + (sum_tail - squares_tail);
    return {s + d / (s + s), sum};
}

// A number below the bound, negative, infinite or NaN, in the upper words; the bound is an upper word.
TARN_INLINE i32x4 below_or_not_finite(f64x2 x, std::uint32_t bound) {
    return (i32x4)((u32x4)x + (u32x4)splat_i32(0x00100000)) < splat_i32(bound + 0x00100000);
}

// From here on no residual is lost to the end of the range: 2^-900.
inline constexpr std::uint32_t least_correctable = 0x07B00000;

}  // namespace tarn
