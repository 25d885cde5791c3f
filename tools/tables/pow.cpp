// Tables of the single-precision powers.
#include "tables/tables.hpp"

namespace tarn::tables {
namespace {

Row powf_log_row(int j) {
    const int c = 512 + j;
    if (j == 0) return {-0.0};
    return {log(Real(c <= 724 ? 512 : 1024) / Real(c)).nearest()};
}

Row powf_exp2_row(int j) {
    const double centre = 0x1.ffffffc27dd9ep-1;
    return {(exp2_part(j, 2048) * Real(centre)).nearest()};
}

// R of ten significant bits: 1/(1 + i/128) lies in [1/2, 1), and row 0 is 1.
Row powrf_log_row(int i) {
    const double reciprocal = on_grid(Real(128) / Real(128 + i), -10);
    const Real log_of_inverse = -log(Real(reciprocal)) - (i < 54 ? Real(0) : Real::ln2());
    const double head = on_grid(log_of_inverse, -17);
    return {static_cast<float>(reciprocal), static_cast<float>(head), (log_of_inverse - Real(head)).nearest_float(),
            0.0f};
}

const Register pow_tables({
    {"powf_logs", "row c - 512 of 513: ln(512/c) up to c = 724, then ln(1024/c), rounded to nearest.",
     each_row(513, powf_log_row)},
    {"powf_exp2", "row j of 2048: 2^(j/2048) 0x1.ffffffc27dd9ep-1 rounded to nearest.",
     each_row(2048, powf_exp2_row)},
    {"powrf_logs",
     "row i of 128: R, 1/(1 + i/128) rounded to a multiple of 2^-10; -ln R, less ln 2 from row 54 on, rounded to a "
     "multiple of 2^-17; what that rounding leaves; nothing.",
     each_row(128, powrf_log_row)},
});

}  // namespace
}  // namespace tarn::tables
