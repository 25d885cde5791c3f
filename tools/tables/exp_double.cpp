// Tables of the double-precision exponentials and logarithms.
#include <bit>

#include "tables/tables.hpp"

namespace tarn::tables {
namespace {

// A fitted first row, times 2^(j/n).
Row fitted_row(std::uint64_t first, int j, int n) { return {(Real(std::bit_cast<double>(first)) * exp2_part(j, n)).nearest()}; }

std::uint64_t fraction(double x) { return std::bit_cast<std::uint64_t>(x) & 0x000FFFFFFFFFFFFF; }

Row expm1_row(int j) {
    const Real v = exp2_part(j, 128);
    const double head = v.nearest();
    return {fraction(head), std::bit_cast<std::uint64_t>((v - Real(head)).nearest())};
}

// The logarithm of R/512 or R/1024 turned round, R from 512 to 1024: near 0 on both sides of x = 1.
Real log_of_row(int i) {
    const int R = 512 + i;
    return log(Real(R <= 724 ? 512 : 1024) / Real(R));
}
Row log_row(int i, const Real& unit) {
    const double value = (log_of_row(i) / unit).nearest();
    return {i == 0 ? -0.0 : value};
}

// The same as head and tail, the head on the grid of 2^-42.
Row log1p_row(int i) {
    const Real v = log_of_row(i);
    const Real head = floor(v * Real(0x1p42) + Real(0.5)) / Real(0x1p42);
    return {head.nearest(), (v - head).nearest()};
}

const Register exp_double_tables({
    {"exp_fine", "row j of 1024: row 0, a fit near 1/6, times 2^(j/1024), rounded to nearest.",
     each_row(1024, [](int j) { return fitted_row(0x3FC5555556E68764, j, 1024); })},
    {"exp_native", "row j of 64: row 0, a fit near 1/17050.6, times 2^(j/64), rounded to nearest.",
     each_row(64, [](int j) { return fitted_row(0x3F0EBFBA4E01A90D, j, 64); })},
    {"exp_64th_fractions", "row j of 64: the fraction field of 2^(j/64) rounded to nearest.",
     each_row(64, [](int j) { return Row{fraction(exp2_part(j, 64).nearest())}; })},
    {"exp2_128ths", "row j of 128: 2^(j/128) rounded to nearest.",
     each_row(128, [](int j) { return Row{exp2_part(j, 128).nearest()}; })},
    {"expm1_pairs", "row j of 128: the fraction field of 2^(j/128) rounded to nearest, and the pattern of what rounding left.",
     each_row(128, expm1_row)},
    {"log_rows", "row i of 513, R = 512 + i: ln(512/R) up to R = 724, then ln(1024/R), rounded to nearest; row 0 is -0.",
     each_row(513, [](int i) { return log_row(i, 1); })},
    {"log2_rows", "row i of 513: as log_rows, to the base 2.", each_row(513, [](int i) { return log_row(i, Real::ln2()); })},
    {"log10_rows", "row i of 513: as log_rows, to the base 10.", each_row(513, [](int i) { return log_row(i, log(Real(10))); })},
    {"log1p_rows", "row i of 513: as log_rows, as a head on the grid of 2^-42 and a tail rounded to nearest.",
     each_row(513, log1p_row)},
});

}  // namespace
}  // namespace tarn::tables
