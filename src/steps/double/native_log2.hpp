// log2 in double precision, below 1e-8 relative: by a row of 1025, whose r = (M - c)/c is exact but for one rounding,
// and a cubic.
#pragma once

#include "steps/double/log2_pair.hpp"

namespace tarn::doubles {

#include "tables/log2_reciprocal_rows.inc"

template <class V> TARN_INLINE V from_row_point(const Log2Reduction<V>& x) {
    return x.m - from_bits((x.row << 42) + bits(1.0));
}
template <class V> TARN_INLINE V native_log2(const Log2Reduction<V>& x, V from_point) {
    // |r| <= 2^-11; fit not recorded.
    constexpr double a3 = f64(0x3FDEC70AAC125F13);  // 0.48089854053385855
    constexpr double a2 = f64(0xBFE7154787CFD1D5);  // -0.7213475849699146
    constexpr double a1 = f64(0x3FF71547652B82D4);  // 1.442695040888954
    const auto [reciprocal, log] = gather_columns(log2_reciprocal_rows, x.row);
    const V r = from_point * reciprocal;
    return (x.e + log) + horner(r, a3, a2, a1) * r;
}

template <class V> TARN_INLINE V native_log2(V x) {
    const Log2Reduction<V> at = log2_reduction(x);
    return native_log2(at, from_row_point(at));
}

// Of x + tail, the tail below an ulp of x.
template <class V> TARN_INLINE V native_log2_of_sum(V x, V tail) {
    const Log2Reduction<V> at = log2_reduction(x);
    return native_log2(at, from_row_point(at) + tail * inverse_scale(x));
}

}  // namespace tarn::doubles
