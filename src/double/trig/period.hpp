// The pi forms have a period that doubles hold exactly: x without a multiple of 256, which lies in
// [-128, 128]. From 2^59 on every double is such a multiple. Infinities give a NaN.
#pragma once

#include "frame/simd.hpp"

namespace tarn::doubles {

template <class V> TARN_INLINE V without_periods(V x) {
    constexpr double all_periods = f64(0x43A0000000000000);     // 2^59
    constexpr double period_shifter = f64(0x43B8000000000000);  // 1.5 * 2^60: rounds to 256s
    const V s = where(abs(x) < all_periods, period_shifter);
    return x - ((x + s) - s);
}

}  // namespace tarn::doubles
