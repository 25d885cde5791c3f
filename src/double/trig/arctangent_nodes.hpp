// The angle of a quotient 0 <= q <= 1 in any octant, in radians and in half turns: that of the nearest node c = k/32
// from a table, the octant's axis included, as head and tail, and of what lies between, arctan((q - c)/(1 + cq)), below
// 1/64, by a short series. All is exact but q, what is small, and the last sum. The native form drops the tail and
// takes the arctangent's own series around c, which saves the second quotient.
#pragma once

#include "frame/simd.hpp"

namespace tarn::arctangent {

#include "tables/octant_angles.inc"
#include "tables/octant_half_turns.inc"

// t (1 + rest) in the unit.
struct RadiansByNodes {
    static constexpr const auto& rows = octant_angles;
    static TARN_INLINE f64x2 product(f64x2 t, f64x2 rest) { return t + t * rest; }
    static TARN_INLINE f64x2 rough_product(f64x2 t, f64x2 rest) { return t + t * rest; }
};
struct HalfTurnsByNodes {
    static constexpr const auto& rows = octant_half_turns;
    static constexpr f64x2 inv_pi = splat_f64(0x3FD45F306DC9C883);       // 0.3183098861837907
    static constexpr f64x2 inv_pi_tail = splat_f64(0xBC76B01EC5417056);  // -1.9678676675182486e-17
    static TARN_INLINE f64x2 product(f64x2 t, f64x2 rest) {
        return t * inv_pi + (t * inv_pi_tail + (t * rest) * inv_pi);
    }
    static TARN_INLINE f64x2 rough_product(f64x2 t, f64x2 rest) { return (t + t * rest) * inv_pi; }
};

// The node next to q, its row in the first octant, and the distance from it.
struct Node {
    f64x2 c, d;
    i64x2 row;
};
TARN_INLINE Node node_of(f64x2 q) {
    const f64x2 shifter = splat_f64(0x42E8000000000000);  // 211106232532992.0 = 1.5 * 2^47: rounds to 32nds
    const f64x2 shifted = q + shifter;
    const f64x2 c = shifted - shifter;
    return {c, q - c, bits(shifted) & splat(std::int64_t{63})};
}

// An octant by its first row, and by a sign bit where its angle is measured back from the axis.
struct Octant {
    i64x2 row, back;
};
constexpr std::int64_t nodes = 33;

template <class Unit> struct Full {
    static TARN_INLINE f64x2 angle(f64x2 q, const Octant& octant) {
        const f64x2 a1 = splat_f64(0xBFD55555555551C7);  // -0.3333333333332828
        const f64x2 a2 = splat_f64(0x3FC999999199999A);  // 0.1999999962747097
        const f64x2 a3 = splat_f64(0xBFC247CF3CF3CF3D);  // -0.1428164527529762
        const auto [c, d, row] = node_of(q);
        const f64x2 t = d / (splat(1.0) + c * q), z = t * t;
        const f64x2 small = Unit::product(t, horner(z, a3, a2, a1) * z);
        const auto [tail, head] = gather_columns(Unit::rows, row + octant.row);
        return head + (tail + xor_bits(small, octant.back));
    }
};
template <class Unit> struct Native {
    static TARN_INLINE f64x2 angle(f64x2 q, const Octant& octant) {
        const f64x2 third = splat_f64(0x3FD5548888888889);  // 0.3332845052083333, where c is 0 for the next term too
        const auto [c, d, row] = node_of(q);
        const auto [head, slope] = gather_columns<1>(Unit::rows, row + octant.row);
        const f64x2 u = d * slope, c2 = c * c;
        const f64x2 rest = horner(u, c - c * c2, c2 - third, -c) * u;
        return head + xor_bits(Unit::rough_product(u, rest), octant.back);
    }
};

// arctan x; the order of the maximum makes a NaN come through.
template <class Form> TARN_INLINE f64x2 by_nodes(f64x2 x) {
    const f64x2 one = splat(1.0), a = abs(x);
    const i64x2 inverted = not_within(x, one);
    const f64x2 q = select(inverted, one, a) / max(one, a);
    return or_bits(Form::angle(q, {inverted & splat(nodes), inverted & sign_mask_f64}), sign_bit(x));
}

// The angle of the point (y, x); no value where a coordinate is special.
template <class Form> TARN_INLINE f64x2 point_by_nodes(f64x2 y, f64x2 x) {
    const f64x2 ay = abs(y), ax = abs(x);
    const i64x2 steep = ~(ay < ax), backward = (i64x2)(x < splat(0.0));
    const f64x2 q = select(steep, ax, ay) / select(steep, ay, ax);
    const Octant octant = {(steep & splat(nodes)) + (backward & splat(2 * nodes)), (steep ^ backward) & sign_mask_f64};
    return xor_bits(Form::angle(q, octant), sign_bit(y));
}

}  // namespace tarn::arctangent
