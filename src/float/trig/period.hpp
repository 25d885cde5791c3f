// The pi forms have a period that floats hold exactly: x without a multiple of 512, which lies in
// [-256, 256]. From 2^31 on every float is such a multiple. Infinities give a NaN.
#pragma once

#include "frame/simd.hpp"

namespace tarn::singles {

constexpr float pi = f32(0x40490FDB);  // 3.1415927410125732

template <class V> TARN_INLINE V without_periods(V x) {
    constexpr float all_periods = f32(0x4F000000);  // 2^31
    constexpr float shifter = f32(0x4FC00000);      // 6442450944.0 = 1.5 * 2^32: rounds to 512s
    const V s = where(abs(x) < all_periods, shifter);
    return x - ((x + s) - s);
}

}  // namespace tarn::singles
