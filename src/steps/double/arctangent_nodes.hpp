// The angle of a quotient 0 <= q <= 1 in any octant, in radians and in half turns: that of the nearest node c = k/32
// from a table, the octant's axis included, as head and tail, and of what lies between, arctan((q - c)/(1 + cq)), below
// 1/64, by a short series. All is exact but q, what is small, and the last sum. The native form drops the tail and
// takes the arctangent's own series around c, which saves the second quotient.
#pragma once

#include "frame/simd.hpp"

namespace tarn::doubles::arctangent {

#include "tables/octant_angles.inc"
#include "tables/octant_half_turns.inc"

// t (1 + rest) in the unit.
struct RadiansByNodes {
    static constexpr const auto& rows = octant_angles;
    template <class V> static TARN_INLINE V product(V t, V rest) { return t + t * rest; }
    template <class V> static TARN_INLINE V rough_product(V t, V rest) { return t + t * rest; }
};
struct HalfTurnsByNodes {
    static constexpr const auto& rows = octant_half_turns;
    static constexpr double inv_pi = f64(0x3FD45F306DC9C883);       // 0.3183098861837907
    static constexpr double inv_pi_tail = f64(0xBC76B01EC5417056);  // -1.9678676675182486e-17
    template <class V> static TARN_INLINE V product(V t, V rest) {
        return t * inv_pi + (t * inv_pi_tail + (t * rest) * inv_pi);
    }
    template <class V> static TARN_INLINE V rough_product(V t, V rest) { return (t + t * rest) * inv_pi; }
};

// The node next to q, its row in the first octant, and the distance from it.
template <class V> struct Node {
    V c, d;
    BitsOf<V> row;
};
template <class V> TARN_INLINE Node<V> node_of(V q) {
    constexpr double shifter = f64(0x42E8000000000000);  // 211106232532992.0 = 1.5 * 2^47: rounds to 32nds
    const V shifted = q + shifter;
    const V c = shifted - shifter;
    return {c, q - c, bits(shifted) & 63};
}

// An octant by its first row, and by a sign bit where its angle is measured back from the axis.
template <class V> struct Octant {
    BitsOf<V> row, back;
};
constexpr std::int64_t nodes = 33;

template <class Unit> struct Full {
    template <class V> static TARN_INLINE V angle(V q, const Octant<V>& octant) {
        // |t| < 1/64; fit not recorded.
        constexpr double a1 = f64(0xBFD55555555551C7);  // -0.3333333333332828
        constexpr double a2 = f64(0x3FC999999199999A);  // 0.1999999962747097
        constexpr double a3 = f64(0xBFC247CF3CF3CF3D);  // -0.1428164527529762
        const auto [c, d, row] = node_of(q);
        const V t = d / (1.0 + c * q), z = t * t;
        const V small = Unit::product(t, horner(z, a3, a2, a1) * z);
        const auto [tail, head] = gather_columns(Unit::rows, row + octant.row);
        return head + (tail + xor_bits(small, octant.back));
    }
};
template <class Unit> struct Native {
    template <class V> static TARN_INLINE V angle(V q, const Octant<V>& octant) {
        constexpr double third = f64(0x3FD5548888888889);  // 0.3332845052083333, where c is 0 for the next term too
        const auto [c, d, row] = node_of(q);
        const auto [head, slope] = gather_columns<1>(Unit::rows, row + octant.row);
        const V u = d * slope, c2 = c * c;
        const V rest = horner(u, c - c * c2, c2 - third, -c) * u;
        return head + xor_bits(Unit::rough_product(u, rest), octant.back);
    }
};

// arctan x; the order of the maximum makes a NaN come through.
template <class Form, class V> TARN_INLINE V by_nodes(V x) {
    constexpr double one = 1.0;
    const V a = abs(x);
    const BitsOf<V> inverted = not_within(x, one);
    const V q = select(inverted, one, a) / max(one, a);
    return or_bits(Form::angle(q, Octant<V>{inverted & nodes, inverted & sign_mask<V>}), sign_bit(x));
}

// The angle of the point (y, x); no value where a coordinate is special.
template <class Form, class V> TARN_INLINE V point_by_nodes(V y, V x) {
    const V ay = abs(y), ax = abs(x);
    const BitsOf<V> steep = ~(ay < ax), backward = x < 0.0;
    const V q = select(steep, ax, ay) / select(steep, ay, ax);
    const Octant<V> octant = {(steep & nodes) + (backward & 2 * nodes), (steep ^ backward) & sign_mask<V>};
    return xor_bits(Form::angle(q, octant), sign_bit(y));
}

}  // namespace tarn::doubles::arctangent
