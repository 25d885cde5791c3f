// 2^t of the native exponentials to the bases 2 and 10: n = round(t) and a cubic in r = t - n, 2^n added to the exponent
// field.
#pragma once

#include "frame/simd.hpp"

namespace tarn::singles {

template <class V> TARN_INLINE V native_exp2(V t) {
    constexpr float shifter = f32(0x4B400000);  // 12582912.0 = 1.5 * 2^23
    // |r| <= 1/2; fit not recorded.
    constexpr float d3 = f32(0x3D61FBCC);       // 0.055171772837638855
    constexpr float d2 = f32(0x3E786F13);       // 0.24261121451854706
    constexpr float d1 = f32(0x3F31798D);       // 0.6932609677314758
    constexpr float d0 = f32(0x3F7FFB49);       // 0.9999280571937561

    const V shifted = t + shifter;
    const V r = t - (shifted - shifter);
    return from_bits(bits(horner(r, d3, d2, d1, d0)) + (bits(shifted) << 23));
}

}  // namespace tarn::singles
