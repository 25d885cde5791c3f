// The rounding directions in force: the one of the x87 control word, which the multiply-adds follow, and
// the one that all other arithmetic follows.
#pragma once

#include "frame/lanes.hpp"

namespace tarn {

enum class Direction : unsigned { nearest = 0, down = 1, up = 2, zero = 3 };
TARN_INLINE Direction x87_direction() {
    // A load of more than was stored would wait for the store: neither a wider move nor a register popped over the
    // word may follow, so the word is loaded as it is and has more than a register's room.
    std::uint16_t room[8];
    asm volatile("fnstcw %0" : "=m"(room[0]));
    std::uint16_t word = room[0];
    asm volatile("" : "+r"(word));
    return static_cast<Direction>(word >> 10 & 3);
}

// Whether both are to nearest. The second shows in sums on either side of the middle between 1 and the next number.
TARN_INLINE bool nearest_everywhere() {
    const f64x2 sums = opaque(filled<f64x2>(1.0)) + f64x2{0x0.cp-52, 0x0.4p-52};
    const unsigned rounded_otherwise = gathered((i64x2)(sums != f64x2{1 + 0x1p-52, 1}));
    return (rounded_otherwise | static_cast<unsigned>(x87_direction())) == 0;
}

}  // namespace tarn
