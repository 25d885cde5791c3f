// Tables of the double-precision powers.
#include <bit>

#include "tables/tables.hpp"

namespace tarn::tables {
namespace {

// 1/ln 2 in 23 significant bits.
const double log2_e = 0x1.7154740000000p+0;

// v to nearest at 23 significant bits.
double in_23_bits(const Real& v) { return on_grid(v, std::ilogb(v.nearest()) - 22); }

double log2_reciprocal(int i) { return in_23_bits(Real(log2_e) * Real(1024) / Real(1024 + i)); }

Row log2_pair_row(int i) {
    const Real value = log2(Real(log2_e) / Real(log2_reciprocal(i))) - Real(i < 512 ? 0 : 1);
    if (i == 0 || i == 1024) return {0.0, 0.0};
    const double near = value.nearest(), head = std::bit_cast<double>(std::bit_cast<std::uint64_t>(near) >> 32 << 32);
    return {head, (value - Real(head)).nearest()};
}

Row log2_row(int i) {
    const Real c = Real(1024 + i) / Real(1024);
    return {(Real(1) / c).nearest(), (log2(c) - Real(i < 512 ? 0 : 1)).nearest()};
}

const Register pow_double_tables({
    {"log2_reciprocals", "row i of 1025: 0x1.715474p+0/(1 + i/1024) rounded to nearest at 23 significant bits.",
     each_row(1025, [](int i) -> Row { return {log2_reciprocal(i)}; })},
    {"log2_pairs",
     "row i of 1025, R the i-th of log2_reciprocals: log2(0x1.715474p+0/R), less 1 from row 512 on, the lower 32 bits "
     "cleared; what that leaves. The first and last row are zero.",
     each_row(1025, log2_pair_row)},
    {"log2_reciprocal_rows", "row i of 1025, c = 1 + i/1024: 1/c and log2 c, less 1 from row 512 on, rounded to nearest.",
     each_row(1025, log2_row)},
});

}  // namespace
}  // namespace tarn::tables
