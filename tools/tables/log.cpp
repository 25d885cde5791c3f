// Tables of the single-precision logarithms.
#include "tables/tables.hpp"

namespace tarn::tables {
namespace {

// R so short that its product with 31 fraction bits is exact, and so is the sum of that with heads of logarithms.
Row reciprocal_row(int i) {
    if (i == 0) return {1.0, 0.0, 0.0};
    const double reciprocal = on_grid(Real(64) / Real(64 + i), -10);
    const Real log_of_inverse = -log(Real(reciprocal));
    const int bits = i == 64 ? 42 : 32;
    const double head = on_grid(log_of_inverse, std::ilogb(log_of_inverse.nearest()) + 1 - bits);
    return {reciprocal, head, (log_of_inverse - Real(head)).nearest()};
}

// The exponent's bias is taken off with ln 2 as the kernel holds it, and so is the whole ln 2 of row 0:
// just below a power of two the sum cancels to the bit.
Row log1pf_row(int j) {
    const float ln2_head = 0x1.62e4p-1f, ln2_tail = 0x1.7f7cp-20f;
    const Real ln2 = Real(ln2_head) + Real(ln2_tail);
    const Real part = j == 0 ? ln2 : log(Real(256) / Real(128 + j));
    const auto head = static_cast<float>(-127.0 * ln2_head + on_grid(part, -15));
    return {head, (Real(-127) * ln2 + part - Real(head)).nearest_float()};
}

const Register log_tables({
    {"log_reciprocals",
     "row i of 65: R, 1/(1 + i/64) rounded to a multiple of 2^-10; -ln R rounded to 32 bits, to 42 in the last row; "
     "what that rounding leaves.",
     each_row(65, reciprocal_row)},
    {"log1pf_pairs",
     "row c - 128 of 129: -127 * 0x1.62e4p-1 + ln(256/c) rounded to a multiple of 2^-15, and what that rounding leaves, "
     "less 127 * 0x1.7f7cp-20; row 0 is -126 times the same two numbers.",
     each_row(129, log1pf_row)},
});

}  // namespace
}  // namespace tarn::tables
