// Exact reduction of any finite angle: |x| in turns (or half turns), reduced to the nearest point of a
// grid and the remainder in radians as head and tail.
//
// |x| = m 2^(e-1075) with a significand m of 53 bits. Row e of reciprocal_two_pi_192 holds as many bits
// of 1/(2 pi) as matter: those above give whole turns, those below vanish. Bits 64 to 191 of the product
// with m are the fraction of a turn. The worst doubles come within 2^-62 of a grid point, so that more
// than 104 of these bits are needed.
#pragma once

#include "frame/double_word.hpp"

namespace tarn::doubles {

#include "tables/reciprocal_two_pi_192.inc"

// What the angle is counted in: the fraction of a turn doubled or not, the grid (the shifter whose
// sum is rounded to it, the mask of a grid point's number), and the unit in radians: rounded, and as
// a head of 25 bits with a tail.
struct Turns {
    static constexpr int doublings = 0;
    static constexpr double shifter = f64(0x42A8000000000000);  // 1.5 * 2^43: 512ths
    static constexpr std::int64_t row_mask = 0x1FF;
    static constexpr double unit = f64(0x401921FB54442D18);       // 6.283185307179586 = 2 pi
    static constexpr double unit_head = f64(0x401921FB54000000);  // 6.283185303211212
    static constexpr double unit_tail = f64(0x3E310B4611A62633);  // 3.968374318722162e-09
};
struct HalfTurns {
    static constexpr int doublings = 1;
    static constexpr double shifter = f64(0x42B8000000000000);  // 1.5 * 2^44: 256ths
    static constexpr std::int64_t row_mask = 0xFF;
    static constexpr double unit = f64(0x400921FB54442D18);       // 3.141592653589793 = pi
    static constexpr double unit_head = f64(0x400921FB54000000);  // 3.141592651605606
    static constexpr double unit_tail = f64(0x3E210B4611A62633);  // 1.984187159361081e-09
};

// The angle of grid point `row`, plus a rest in radians.
template <class V> struct Reduced {
    BitsOf<V> row;
    HeadTail<V> rest;
};

template <class V> struct Fraction {
    Unsigned<V> high, low;
};

// The 128 bits after the binary point of |x| / (2 pi): the product in columns of 32 bits, first with
// the low word of m, then with the high one, whose products leave room for the carries.
template <class V> TARN_INLINE Fraction<V> fraction_of_turn(V x) {
    using U = Unsigned<V>;
    const BitsOf<V> exponent = shift_right_logical(bits(abs(x)), 52);
    const auto column = [&](int i) __attribute__((always_inline)) {
        return for_each_lane(exponent, [i](std::int64_t e) __attribute__((always_inline)) {
            return reciprocal_two_pi_192[e][i];
        });
    };
    const U t4 = column(0), t2 = column(1), t0 = column(2);
    const U t5 = t4 >> 32, t3 = t2 >> 32, t1 = t0 >> 32;
    const U m = (U)((bits(x) & 0x000FFFFFFFFFFFFF) + 0x0010000000000000);
    const U m_high = m >> 32;
    const auto low_word = [](U v) __attribute__((always_inline)) { return v & 0xFFFFFFFF; };

    const U p0 = multiply_words(m, t0);
    const U p1 = multiply_words(m, t1) + (p0 >> 32);
    const U p2 = multiply_words(m, t2) + (p1 >> 32);
    const U p3 = multiply_words(m, t3) + (p2 >> 32);
    const U p4 = multiply_words(m, t4) + (p3 >> 32);
    const U p5 = multiply_words(m, t5) + (p4 >> 32);
    const U k1 = multiply_words(m_high, t0) + low_word(p1);
    const U k2 = multiply_words(m_high, t1) + low_word(p2) + (k1 >> 32);
    const U k3 = multiply_words(m_high, t2) + low_word(p3) + (k2 >> 32);
    const U k4 = multiply_words(m_high, t3) + low_word(p4) + (k3 >> 32);
    const U k5 = multiply_words(m_high, t4) + p5 + (k4 >> 32);
    return {k5 << 32 | low_word(k4), k3 << 32 | low_word(k2)};
}

// s + tail units in radians: s as 26 leading bits, whose product with the unit's head is exact, and the rest.
template <class Unit, class V> TARN_INLINE HeadTail<V> in_radians(V s, V tail) {
    const auto [s_head, s_rest] = short_split(s);
    const V head = Unit::unit_head * s_head;
    const V rest = (Unit::unit_head * s_rest + s_head * Unit::unit_tail) +
                   (Unit::unit * tail + Unit::unit_tail * s_rest);
    const V r = head + rest;
    return {r, (head - r) + rest};
}

template <class Unit, class V> TARN_INLINE Reduced<V> reduce_exactly(V x) {
    auto [high, low] = fraction_of_turn(x);
    if constexpr (Unit::doublings == 1) {
        high = high << 1 | low >> 63;
        low = low << 1;
    }

    // The fraction as three doubles of 52, 52 and 24 bits, each made by writing its bits below a
    // leading one and subtracting that.
    const auto value = [](Unsigned<V> bits_below, std::uint64_t power) __attribute__((always_inline)) {
        return (V)(bits_below | power) - f64(power);
    };
    const V one_and_top = (V)(high >> 12 | 0x3FF0000000000000);                    // 1.0 and 2^-52 units
    const V middle = value((high & 0xFFF) << 40 | low >> 24, 0x3CB0000000000000);  // 2^-52
    const V last = value((low & 0xFFFFFF) << 28, 0x3970000000000000);              // 2^-104
    const V shifted = one_and_top + Unit::shifter;
    const V top = one_and_top - (shifted - Unit::shifter);
    const V s = top + middle;
    const auto [r, r_tail] = in_radians<Unit>(s, (middle + (top - s)) + last);

    // Too small for the fraction's bits: row 0, and |x| is its own remainder; so is a NaN.
    const V a = abs(x);
    const auto large = a > f64(0x3EB0000000000000);  // 2^-20
    return {bits(shifted) & Unit::row_mask, {select(large, r, a), where(large, r_tail)}};
}

// Lanes for the callout: infinities, not NaNs.
template <class V> TARN_INLINE BitsOf<V> is_infinite(V x) { return abs(x) == f64(0x7FF0000000000000); }

}  // namespace tarn::doubles
