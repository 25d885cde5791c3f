// Tables of the double-precision trigonometry.
#include "tables/angles.hpp"
#include "tables/tables.hpp"

namespace tarn::tables {
namespace {

Real remainder(const Real& v, const Real& m) { return v - floor(v / m) * m; }

// floor(2^(e - 883) / (2 pi)) modulo 2^192, most significant word first.
Row reciprocal_two_pi_row(int e) {
    const auto usual = Real::precision;
    Real::precision = 1400;
    const Real half_word = Real(0x1p32);
    Real v = floor(exp2(Real(e - 883)) / (Real(2) * Real::pi()));
    const auto next = [&] {
        const auto low = static_cast<std::uint64_t>(remainder(v, half_word).nearest());
        v = floor(v / half_word);
        return low;
    };
    Row row(3);
    for (int i = 2; i >= 0; i--) {
        const std::uint64_t low = next();
        row[i] = next() << 32 | low;
    }
    Real::precision = usual;
    return row;
}

// The cosine as the nearest of -1, 0, 1 and the rest, the sine as head and tail.
Row sine_row(int j) {
    const Real c = cosine_of(j, 512), s = sine_of(j, 512);
    const double c_head = std::nearbyint(c.nearest()) + 0.0, s_head = s.nearest();
    return {(c - Real(c_head)).nearest(), c_head, s_head, double((s - Real(s_head)).float_toward_zero())};
}

// The tangent as head and tail, and its derivative.
Row tangent_row(int j) {
    if (j == 128) return {0.0, 0.0, 0.0};
    const Real t = j == 0 ? Real(0) : j == 64 ? Real(1) : j == 192 ? Real(-1) : tan(Real(j) * Real::pi() / Real(256));
    const double head = t.nearest();
    return {head, (t - Real(head)).nearest(), (Real(1) + t * t).nearest()};
}

// The angle of node c = k/32 in octant o of the upper half plane, from the axis it is next to: tail and head, and the
// slope of the arctangent at c.
Row octant_row(int i, const Real& half_turn) {
    const int octant = i / 33, k = i % 33;
    static const double axes[] = {0, 0.5, 1, 0.5}, signs[] = {1, -1, -1, 1};
    const Real c = Real(k) / Real(32);
    const Real node = k == 0 ? Real(0) : k == 32 ? half_turn / Real(4) : Real::apply(mpfr_atan, c) * (half_turn / Real::pi());
    const Real angle = half_turn * Real(axes[octant]) + Real(signs[octant]) * node;
    const double head = angle.nearest();
    return {(angle - Real(head)).nearest(), head, (Real(1) / (Real(1) + c * c)).nearest(), 0.0};
}

const Register double_trig_tables({
    {"reciprocal_two_pi_192",
     "row e of 2048, for a double's exponent field: floor(2^(e - 883) / (2 pi)) modulo 2^192, most significant word "
     "first.",
     each_row(2048, reciprocal_two_pi_row)},
    {"sine_512ths",
     "row j of 512, at theta = 2 pi j/512: C - C_hi, C_hi = C = cos theta rounded to an integer, S = sin theta rounded "
     "and what that leaves of S, cut to single precision.",
     each_row(512, sine_row)},
    {"tangent_256ths",
     "row j of 256, at theta = pi j/256: T = tan theta rounded, what that leaves, and 1 + T^2; row 128, the pole, "
     "is zero.",
     each_row(256, tangent_row)},
    {"octant_angles",
     "row 33 o + k of 132, for c = k/32 in octant o: what rounding leaves of arctan c, pi/2 - arctan c, pi - arctan c, "
     "pi/2 + arctan c; those rounded; 1/(1 + c^2), and 0.",
     each_row(132, [](int i) { return octant_row(i, Real::pi()); })},
    {"octant_half_turns", "the same with the angles over pi.", each_row(132, [](int i) { return octant_row(i, Real(1)); })},
});

}  // namespace
}  // namespace tarn::tables
