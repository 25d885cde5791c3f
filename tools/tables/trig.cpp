// Tables of the single-precision trigonometry.
#include "tables/angles.hpp"
#include "tables/tables.hpp"

#include <bit>
#include <cmath>

namespace tarn::tables {
namespace {

// The power of two nearest on a logarithmic scale, with the sign of v. `half` is what the tie at
// sqrt(1/2) becomes.
double nearest_power(const Real& v, double half) {
    if (!(v < Real(0)) && !(Real(0) < v)) return 0;
    const double sign = v < Real(0) ? -1 : 1;
    const double magnitude = abs(v).nearest();
    return sign * (magnitude == std::sqrt(0.5) ? half : std::exp2(std::round(std::log2(magnitude))));
}

// A function's value at a table angle and the factor of its first-order change, each in two parts:
// factor's rest, value, value's rest, factor as a power of two.
Row angle_row_f(const Real& value, const Real& factor) {
    const float head = value.nearest_float();
    const double power = nearest_power(factor, 1.0);
    return {(factor - Real(power)).nearest_float(), head, (value - Real(head)).nearest_float(),
            static_cast<float>(power)};
}
Row angle_row(const Real& value, const Real& factor) {
    const double head = value.nearest();
    const double power = nearest_power(factor, 0.5);
    return {(factor - Real(power)).nearest(), head, double((value - Real(head)).nearest_float()), power};
}

// floor(2^(e - 56) * 2/pi) modulo 2^96, most significant word first, the halves of the last exchanged.
Row two_over_pi_96_row(int e) {
    const Real word = Real(0x1p32);
    const auto modulo = [](const Real& v, const Real& m) { return v - floor(v / m) * m; };
    Real v = floor(exp2(Real(e - 56)) * Real(2) / Real::pi());
    Row row(4);
    row[3] = std::uint32_t{0};
    for (int i = 2; i >= 0; i--) {
        row[i] = static_cast<std::uint32_t>(modulo(v, word).nearest());
        v = floor(v / word);
    }
    row[2] = std::rotl(std::get<std::uint32_t>(row[2]), 16);
    return row;
}

// Bits 25(k-1)+1 to 25k of 2/pi, at 2^200 times their weight in 4/pi.
Row two_over_pi_25_row(int k) {
    const auto usual = Real::precision;
    Real::precision = 1400;
    const auto bits_to = [](int count) { return floor(exp2(Real(count)) * Real(2) / Real::pi()); };
    const double chunk = k == 0 ? 0 : (bits_to(25 * k) - bits_to(25 * k - 25) * Real(0x1p25)).nearest();
    Real::precision = usual;
    return {std::ldexp(chunk, 201 - 25 * k)};
}

// tan(theta + r) = F/(d - r) + T + L r + C2 r^2 + C3 r^3 + C4 r^4 at theta = pi j/128, d = pi/2 - theta.
Row tangent_row(int j) {
    const bool pole = j >= 32 && j < 96;
    const Real d = Real(64 - j) * Real::pi() / Real(128);
    Real c[5] = {Real(0), Real(1) / Real(3), Real(0), Real(1) / Real(45), Real(0)};  // row 64: -cot r + 1/r
    if (j != 64) {
        const Real t = j == 0 ? Real(0) : j == 32 ? Real(1) : j == 96 ? Real(-1) : tan(Real(j) * Real::pi() / Real(128));
        const Real s = Real(1) + t * t;
        c[0] = t;
        c[1] = s;
        c[2] = t * s;
        c[3] = s * (Real(1) + Real(3) * t * t) / Real(3);
        c[4] = t * s * (Real(2) + Real(3) * t * t) / Real(3);
        Real power = Real(1);
        for (Real& coefficient : c) {
            power = power / d;
            if (pole) coefficient = coefficient - power;
        }
    }
    const auto rest = [](const Real& v, double head) { return (v - Real(head)).nearest_float(); };
    const double first = nearest_power(c[1], 1.0);
    const float d_head = d.nearest_float(), t_head = c[0].nearest_float();
    Row row = {d_head, rest(d, d_head), pole ? 1.0f : 0.0f, t_head, rest(c[0], t_head), static_cast<float>(first),
               rest(c[1], first), c[2].nearest_float(), c[3].nearest_float(), c[4].nearest_float()};
    if (j == 0) row[8] = 0.333350092f;
    if (j == 1 || j == 127) {
        const float sign = j == 1 ? 1 : -1;
        const float fitted[] = {sign * 2.59299082e-10f, 1.0f, 0.000602632761f, sign * 0.0245633963f, 0.334171563f,
                                sign * 0.0166460183f};
        for (int i = 0; i < 6; i++) row[4 + i] = fitted[i];
    }
    return row;
}

const Register trig_tables({
    {"two_over_pi_96",
     "row e of 256, for a float's exponent field: floor(2^(e - 56) * 2/pi) modulo 2^96, most significant word first, "
     "the halves of the last word exchanged, and a word of padding.",
     each_row(256, two_over_pi_96_row)},
    {"two_over_pi_25",
     "row k of 50: bits 25(k-1)+1 to 25k of 2/pi as an integer times 2^(201 - 25k); row 0 is 0.",
     each_row(50, two_over_pi_25_row)},
    {"sine_256ths",
     "row j of 256, at theta = 2 pi j/256: C - C_hi, S = sin theta rounded, what that leaves of S, and C_hi = "
     "C = cos theta reduced to the nearest power of two (1 at sqrt(1/2)).",
     each_row(256, [](int j) { return angle_row_f(sine_of(j, 256), cosine_of(j, 256)); })},
    {"cosine_256ths", "row j of 256: as sine_256ths with S = cos theta and C = -sin theta.",
     each_row(256, [](int j) { return angle_row_f(cosine_of(j, 256), sine_of(j + 128, 256)); })},
    {"sine_64ths",
     "row j of 64, at theta = 2 pi j/64: C - C_hi, S = sin theta rounded, what that leaves of S in "
     "single precision, and C_hi = C = cos theta reduced to the nearest power of two (1/2 at sqrt(1/2)).",
     each_row(64, [](int j) { return angle_row(sine_of(j, 64), cosine_of(j, 64)); })},
    {"cosine_64ths", "row j of 64: as sine_64ths with S = cos theta and C = -sin theta.",
     each_row(64, [](int j) { return angle_row(cosine_of(j, 64), sine_of(j + 32, 64)); })},
    {"tangent_128ths",
     "row j of 128, at theta = pi j/128: d = pi/2 - theta in two parts, the flag F of rows 32 to 95, whose pole term "
     "is taken out, then the Taylor coefficients of tan(theta + r) - F/(d - r): the constant in two parts, the first "
     "as the nearest power of two and the rest, the second, third and fourth. From the constant's second part on, "
     "rows 0, 1 and 127 are a fit to |r| < pi/256.",
     each_row(128, tangent_row)},
});

}  // namespace
}  // namespace tarn::tables
