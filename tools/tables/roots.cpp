// Tables of the single-precision roots.
#include "tables/tables.hpp"

namespace tarn::tables {
namespace {

// The middle of the j-th of 32 equal parts of [1, 2).
Real middle(int j) { return Real(1) + Real(2 * j + 1) / Real(64); }

// Cut, so that the second of the pair is not negative.
Row cut_pair(const Real& v) {
    const float high = v.float_toward_zero();
    return {high, (v - Real(high)).nearest_float()};
}

// Row 32 rem + j.
Real root_argument(int row) { return Real(1 << row / 32) * middle(row % 32); }

const Register root_tables({
    {"cube_root_reciprocals", "row j of 32: -1/c rounded to nearest, c = 1 + j/32 + 1/64.",
     each_row(32, [](int j) { return Row{(Real(-1) / middle(j)).nearest_float()}; })},
    {"cube_root_pairs",
     "row 32 rem + j of 96: (2^rem c)^(1/3) cut to single precision and what the cut leaves, c = 1 + j/32 + 1/64.",
     each_row(96, [](int row) { return cut_pair(cbrt(root_argument(row))); })},
    {"reciprocal_cube_root_pairs",
     "row 32 rem + j of 96: (2^rem c)^(-1/3) cut to single precision and what the cut leaves, c = 1 + j/32 + 1/64.",
     each_row(96, [](int row) { return cut_pair(Real(1) / cbrt(root_argument(row))); })},
});

}  // namespace
}  // namespace tarn::tables
