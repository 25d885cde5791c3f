// Tables of the single-precision roots.
#include "tables/tables.hpp"

namespace tarn::tables {
namespace {

// The middle of the j-th of 32 equal parts of [1, 2).
Real middle(int j) { return Real(1) + Real(2 * j + 1) / Real(64); }

// Row 32 rem + j: the root as a cut number and what the cut leaves, which is not negative, and -1/c.
Row root_row(int row, Real (*root)(const Real&)) {
    const Real c = middle(row % 32), v = root(Real(1 << row / 32) * c);
    const float high = v.float_toward_zero();
    return {high, (v - Real(high)).nearest_float(), (Real(-1) / c).nearest_float(), 0.0f};
}

const Register root_tables({
    {"cube_root_rows",
     "row 32 rem + j of 96, c = 1 + j/32 + 1/64: (2^rem c)^(1/3) cut to single precision; what the cut leaves; -1/c; "
     "nothing.",
     each_row(96, [](int row) { return root_row(row, [](const Real& v) { return cbrt(v); }); })},
    {"reciprocal_cube_root_rows",
     "row 32 rem + j of 96, c = 1 + j/32 + 1/64: (2^rem c)^(-1/3) cut to single precision; what the cut leaves; -1/c; "
     "nothing.",
     each_row(96, [](int row) { return root_row(row, [](const Real& v) { return Real(1) / cbrt(v); }); })},
});

}  // namespace
}  // namespace tarn::tables
