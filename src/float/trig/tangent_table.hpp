// The tangent near a 128th of its period: tan(theta + r) from the table of Taylor coefficients at theta.
// Rows around the pole carry the term 1/(d - r), d = pi/2 - theta, apart: its denominator is kept as
// head + tail, and a reciprocal estimate of the head is corrected by a series in what it misses, so
// that any estimate of at least 9 bits will do.
#pragma once

#include "frame/double_word.hpp"

namespace tarn::singles {

#include "tables/tangent_128ths.inc"

// r_tail is what r leaves of the remainder; only the pole feels it.
template <class V> TARN_INLINE V from_tangent_table(BitsOf<V> row, V r, V r_tail) {
    constexpr float one = 1.0f;
    const auto [d_high, d_low, pole, t_high] = gather_quads<0>(tangent_128ths, row);
    const auto [t_low, l_high, l_low, c2] = gather_quads<4>(tangent_128ths, row);
    const auto [c3, c4] = gather_pairs<8>(tangent_128ths, row);

    const V d = d_high - r;
    const V d_error = (d_high - d) - r;
    const V head = short_head(d);
    const V tail = (((d - head) + d_low) + d_error) - r_tail;

    const V y0 = short_head(reciprocal_estimate(head));
    const V e = one - head * y0;
    const V y = (y0 + y0 * e) * (one + e * e);
    const V q = tail * y;
    const V correction = ((q * q) - (q - e)) * y * pole;

    const V s1 = t_high + l_high * r;
    const V error_1 = (t_high - s1) + l_high * r;
    const V s2 = s1 + pole * y0;
    const V error_2 = (pole * y0 - s2) + s1;
    const V rest = t_low + ((error_1 + correction) + error_2);
    const V polynomial = ((l_low + c2 * r) + (r * r) * (c3 + c4 * r)) * r;
    return s2 + (polynomial + rest);
}

}  // namespace tarn::singles
