// Exact reduction of any finite angle: x in turns (or half turns), reduced to the nearest point of a
// grid and the remainder in radians as head and tail.
//
// x = m 2^(e-150) with a significand m of 24 bits. Row e of two_over_pi_96 holds as many bits of 2/pi as matter:
// those above give whole turns, those below vanish. Bits 32 to 95 of the product with m are the fraction of
// a turn.
#pragma once

#include "frame/double_word.hpp"

namespace tarn::singles {

#include "tables/two_over_pi_96.inc"

// What the angle is counted in: the fraction of a turn doubled or not, the grid (the shifter whose
// sum is rounded to it, the mask of a grid point's number), and the unit in radians: rounded, and as
// a head of 12 bits with a tail.
struct Turns {
    static constexpr int doublings = 0;
    static constexpr float shifter = f32(0x47400000);  // 49152.0 = 1.5 * 2^15: 256ths
    static constexpr std::int32_t row_mask = 255;
    static constexpr float unit = f32(0x40C90FDB);       // 6.2831854820251465 = 2 pi
    static constexpr float unit_head = f32(0x40C91000);  // 6.283203125
    static constexpr float unit_tail = f32(0xB795777A);  // -1.781781975296326e-05
};
struct HalfTurns {
    static constexpr int doublings = 1;
    static constexpr float shifter = f32(0x47C00000);  // 98304.0 = 1.5 * 2^16: 128ths
    static constexpr std::int32_t row_mask = 127;
    static constexpr float unit = f32(0x40490FDB);       // 3.1415927410125732 = pi
    static constexpr float unit_head = f32(0x40491000);  // 3.1416015625
    static constexpr float unit_tail = f32(0xB715777A);  // -8.90890987648163e-06
};

// The angle of grid point `row`, plus a rest in radians.
template <class V> struct Reduced {
    BitsOf<V> row;
    HeadTail<V> rest;
};

template <class V> struct Fraction {
    Unsigned<V> high, low;
};

// The 64 bits after the binary point of |x| / (2 pi). Of the row's last word the products of 16 by 16 bits
// that begin at bit 32 count and those at bit 16 but for their low half, as the rest changes nothing above 2^-63.
template <class V> TARN_INLINE Fraction<V> fraction_of_turn(V x) {
    using U = Unsigned<V>;
    using L = Like<V, std::uint64_t>;
    const BitsOf<V> exponent = shift_right_logical(bits(abs(x)), 23);
    const auto row = gather_quads(two_over_pi_96, exponent);
    const U m = (U)((bits(x) & 0x007FFFFF) + 0x00800000);
    const U t0 = (U)row.first, t1 = (U)row.second, t2_exchanged = (U)row.third;
    const U crossed = multiply_halves(m, t2_exchanged);
    const U last = (m >> 16) * (t2_exchanged & 0xFFFF) + (crossed >> 16) + (crossed & 0xFFFF);
    const L even = multiply_words((L)m, (L)t1) + ((L)last & 0xFFFFFFFF);
    const L odd = multiply_words((L)m >> 32, (L)t1 >> 32) + ((L)last >> 32);
    return {m * t0 + woven_high_words(even, odd), woven_low_words(even, odd)};
}

template <class Unit, class V> TARN_INLINE Reduced<V> reduce_exactly(V x) {
    using U = Unsigned<V>;
    const auto [high, low] = fraction_of_turn(x);
    constexpr int d = Unit::doublings;

    // The fraction as three floats of 23, 23 and 18 bits with the sign of x, each made by writing its
    // bits below a leading one and subtracting that.
    const U sign = (U)sign_bit(x);
    const auto leading = [&](std::uint32_t power) __attribute__((always_inline)) { return sign | power; };
    const auto value = [&](U bits_below, std::uint32_t power) __attribute__((always_inline)) {
        return (V)(bits_below | leading(power)) - (V)leading(power);
    };
    const V one_and_top = (V)((high << d) >> 9 | leading(0x3F800000));                      // 1.0 and 2^-23 units
    const V middle = value((high & 0x1FF >> d) << (14 + d) | low >> (18 - d), 0x34000000);  // 2^-23
    const V last = value((low & 0x3FFFF >> d) << (5 + d), 0x28800000);                      // 2^-46
    const V shifted = one_and_top + Unit::shifter;
    const V top = one_and_top - (shifted - Unit::shifter);

    // The remainder in units, as a sum of 12 leading bits, the rest and a tail; then in radians.
    const V s = top + middle;
    const auto [s_head, s_rest] = short_split(s);
    const V s_tail = (middle + (top - s)) + last;
    const V head = Unit::unit_head * s_head;  // exact
    const V rest = (Unit::unit_head * s_rest + s_head * Unit::unit_tail) +
                   (Unit::unit * s_tail + Unit::unit_tail * s_rest);
    const V r = head + rest;
    const V r_tail = (head - r) + rest;

    // Too small for the fraction's bits: row 0, and x is its own remainder.
    const BitsOf<V> tiny = abs(x) <= f32(0x35800000);  // 2^-20
    return {bits(shifted) & Unit::row_mask, {select(tiny, x, r), where(~tiny, r_tail)}};
}

}  // namespace tarn::singles
