// The native powers in double precision, below 1e-8 relative: log2 x as one number (native_log2.hpp), one product, 2^z
// by a row of 128 and a quadratic.
#pragma once

#include "steps/double/native_log2.hpp"
#include "steps/double/pair_power.hpp"

namespace tarn::doubles {

template <class V> TARN_INLINE Flagged<V, WordsOf<V>> native_power(V x, V z) {
    constexpr double shifter = f64(0x42C8000000000000);  // 52776558133248.0 = 1.5 * 2^45
    // |r| <= 1/256; fit not recorded.
    constexpr double c2 = f64(0x3FCEBFC0C3C5D71B);       // 0.2402268367692891
    constexpr double c1 = f64(0x3FE62E4454752F82);       // 0.6931478166165877
    const V shifted = z + shifter;
    const V r = z - (shifted - shifter);
    const V T = raised<7>(exp2_128th(shifted), shifted);
    return {exp2_sum(T, r, c1 + c2 * r), not_positive_normal(x) | upper_magnitude_above(z, largest_exponent)};
}

}  // namespace tarn::doubles
