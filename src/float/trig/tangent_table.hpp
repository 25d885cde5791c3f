// The tangent near a 128th of its period: tan(theta + r) from the table of Taylor coefficients at theta.
// Rows around the pole carry the term 1/(d - r), d = pi/2 - theta, apart: its denominator is kept as
// head + tail, and a reciprocal estimate of the head is corrected by a series in what it misses, so
// that any estimate of at least 9 bits will do.
#pragma once

#include "frame/simd.hpp"

namespace tarn {

#include "tables/tangent_128ths.inc"

// r_tail is what r leaves of the remainder; only the pole feels it.
TARN_INLINE f32x4 from_tangent_table(i32x4 row, f32x4 r, f32x4 r_tail) {
    constexpr i32x4 head_bits = splat_i32(0xFFFFF000);
    const f32x4 one = splat(1.0f);
    const auto [d_high, d_low, pole, t_high] = gather_quads<0>(tangent_128ths, row);
    const auto [t_low, l_high, l_low, c2] = gather_quads<4>(tangent_128ths, row);
    const auto [c3, c4] = gather_pairs<8>(tangent_128ths, row);

    const f32x4 d = d_high - r;
    const f32x4 d_error = (d_high - d) - r;
    const f32x4 head = from_bits(bits(d) & head_bits);
    const f32x4 tail = (((d - head) + d_low) + d_error) - r_tail;

    const f32x4 y0 = from_bits(bits(reciprocal_estimate(head)) & head_bits);
    const f32x4 e = one - head * y0;
    const f32x4 y = (y0 + y0 * e) * (one + e * e);
    const f32x4 q = tail * y;
    const f32x4 correction = ((q * q) - (q - e)) * y * pole;

    const f32x4 s1 = t_high + l_high * r;
    const f32x4 error_1 = (t_high - s1) + l_high * r;
    const f32x4 s2 = s1 + pole * y0;
    const f32x4 error_2 = (pole * y0 - s2) + s1;
    const f32x4 rest = t_low + ((error_1 + correction) + error_2);
    const f32x4 polynomial = ((l_low + c2 * r) + (r * r) * (c3 + c4 * r)) * r;
    return s2 + (polynomial + rest);
}

}  // namespace tarn
