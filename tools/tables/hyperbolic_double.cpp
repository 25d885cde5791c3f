// Tables of the double-precision hyperbolic functions.
#include <bit>

#include "tables/fit.hpp"
#include "tables/tables.hpp"

namespace tarn::tables {
namespace {

Row sinh_row(int j) {
    const Real power = exp2_part(j, 128), half = 0.5;
    return {((power - Real(1) / power) * half).nearest(), (half / power).nearest()};
}

// Where part k of the line begins: eight to an octave from 1/8 on, part 0 below.
double part_begin(int k) {
    return k == 0 ? 0.0 : std::bit_cast<double>((0x3FBE0000ull + (static_cast<std::uint64_t>(k) << 17)) << 32);
}

constexpr int tanh_parts = 60;

Row tanh_row(int k) {
    if (k == tanh_parts - 1) {
        Row one(16, 0.0);
        one[1] = 1.0;
        return one;
    }
    const double low = part_begin(k), high = part_begin(k + 1);
    const double c = k == 0 ? 0.0 : (low + high) / 2;
    const Real value = Real::apply(mpfr_tanh, Real(c)), slope = Real(1) - value * value;
    const Curve rest = [&](const Real& h) { return (Real::apply(mpfr_tanh, Real(c) + h) - value - slope * h) / (h * h); };
    const Curve absolutely = [](const Real&) { return Real(1); };
    const auto q = minimax(rest, absolutely, k == 0 ? 1e-12 : low - c, high - c, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
    Row row = {c, value.nearest(), q[10].nearest(), (value - Real(value.nearest())).nearest()};
    for (const std::size_t even : {8, 6, 4, 2, 0}) row.insert(row.end(), {q[even].nearest(), q[even + 1].nearest()});
    row.insert(row.end(), {slope.nearest(), 0.0});
    return row;
}

Row ln_row(int i) {
    const float reciprocal = (Real(256) / Real(256 + i)).nearest_float();
    const Real value = -log(Real(reciprocal));
    const double head = on_grid(value, -42);
    return {static_cast<double>(reciprocal), head, (value - Real(head)).nearest()};
}

const Register hyperbolic_double_tables({
    {"sinh_pairs", "row j of 128, u = j ln 2 / 128: sinh u and e^-u / 2, rounded to nearest.", each_row(128, sinh_row)},
    {"cosh_halves", "row j of 256: 2^(j/256) / 2 rounded to nearest.",
     each_row(256, [](int j) { return Row{(exp2_part(j, 256) * Real(0.5)).nearest()}; })},
    {"tanh_parts",
     "row k of 60, for the eighth of an octave whose upper word begins at 0x3fbe0000 + (k << 17), c its middle, with q "
     "the coefficients of the polynomial of degree 10 nearest to (tanh(c + h) - tanh c - slope h) / h^2: c, the head of "
     "tanh c, q10, the tail of tanh c, q8, q9, q6, q7, ... q0, q1, the slope, 0; row 0 is for what lies below 1/8, with "
     "c = 0, row 59 is 1, for 20 and above.",
     each_row(tanh_parts, tanh_row)},
    {"ln_reciprocals",
     "row i of 256: R, 1/(1 + i/256) rounded to single precision; -ln R rounded to a multiple of 2^-42; what that "
     "rounding leaves.",
     each_row(256, ln_row)},
});

}  // namespace
}  // namespace tarn::tables
