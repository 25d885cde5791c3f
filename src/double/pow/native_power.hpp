// The native powers in double precision, below 1e-8 relative: log2 x by a row of 1025, whose r = (M - c)/c is exact
// but for one rounding, and a cubic; one product; 2^z by a row of 128 and a quadratic.
#pragma once

#include "double/pow/pair_power.hpp"

namespace tarn {

#include "tables/log2_reciprocal_rows.inc"

TARN_INLINE f64x2 native_log2(f64x2 x) {
    const f64x2 a3 = splat_f64(0x3FDEC70AAC125F13);  // 0.48089854053385855
    const f64x2 a2 = splat_f64(0xBFE7154787CFD1D5);  // -0.7213475849699146
    const f64x2 a1 = splat_f64(0x3FF71547652B82D4);  // 1.442695040888954
    const auto [row, m, e] = log2_reduction(x);
    const auto [reciprocal, log] = gather_columns(log2_reciprocal_rows, row);
    const f64x2 c = from_bits((row << 42) + bits(splat(1.0)));
    const f64x2 r = (m - c) * reciprocal;
    return (e + log) + horner(r, a3, a2, a1) * r;
}

TARN_INLINE Flagged<f64x2, i32x4> native_power(f64x2 x, f64x2 z) {
    const f64x2 shifter = splat_f64(0x42C8000000000000);  // 52776558133248.0 = 1.5 * 2^45
    const f64x2 c2 = splat_f64(0x3FCEBFC0C3C5D71B);       // 0.2402268367692891
    const f64x2 c1 = splat_f64(0x3FE62E4454752F82);       // 0.6931478166165877
    const f64x2 shifted = z + shifter;
    const f64x2 r = z - (shifted - shifter);
    const f64x2 T = raised<7>(exp2_128th(shifted), shifted);
    return {exp2_sum(T, r, c1 + c2 * r), not_positive_normal(x) | upper_magnitude_above(z, largest_exponent)};
}

}  // namespace tarn
