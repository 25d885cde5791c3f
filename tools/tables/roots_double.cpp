// Tables of the double-precision roots.
#include "tables/tables.hpp"

namespace tarn::tables {
namespace {

// Row 32 rem + j: the root cut to double, -1/c, and what the cut leaves, which is not negative.
Row root_row(int row, Real (*root)(const Real&)) {
    const Real c = Real(1) + Real(2 * (row % 32) + 1) / Real(64), v = root(Real(1 << row / 32) * c);
    const double high = v.toward_zero();
    return {high, (Real(-1) / c).nearest(), (v - Real(high)).nearest(), 0.0};
}

const Register root_double_tables({
    {"cube_root_pairs",
     "row 32 rem + j of 96, c = 1 + j/32 + 1/64: (2^rem c)^(1/3) cut to double precision; -1/c; what the cut leaves; "
     "nothing.",
     each_row(96, [](int row) { return root_row(row, [](const Real& v) { return cbrt(v); }); })},
    {"reciprocal_cube_root_pairs",
     "row 32 rem + j of 96, c = 1 + j/32 + 1/64: (2^rem c)^(-1/3) cut to double precision; -1/c; what the cut leaves; "
     "nothing.",
     each_row(96, [](int row) { return root_row(row, [](const Real& v) { return Real(1) / cbrt(v); }); })},
});

}  // namespace
}  // namespace tarn::tables
