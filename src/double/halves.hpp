// Doubles in halves of 26 and 27 bits, whose products are exact.
#pragma once

#include "frame/simd.hpp"

namespace tarn {

TARN_INLINE f64x2 short_head(f64x2 x) { return from_bits(bits(x) & splat_i64(0xFFFFFFFFF8000000)); }

struct Halves {
    f64x2 head, tail;
};
TARN_INLINE Halves halves(f64x2 x) {
    const f64x2 head = short_head(x);
    return {head, x - head};
}

}  // namespace tarn
