// Tables of the error function.
#include "tables/tables.hpp"

namespace tarn::tables {
namespace {

// 2/sqrt(pi) e^(-d^2), the derivative of erf.
Real density(const Real& d) { return Real(2) / sqrt(Real::pi()) * exp(-(d * d)); }

Row erf_row(int k) {
    const Real d = Real(k) / Real(128);
    return {k == 503 ? 1.0f : erf(d).nearest_float(), density(d).nearest_float()};
}

// Scaled by 2^48, so that the row of the smallest value is a normal number; the last row is zero.
Row erfc_row(int k, int per_unit, int last) {
    if (k == last) return {0.0f, 0.0f};
    const Real d = Real(k) / Real(per_unit), scale = Real(0x1p48);
    return {(erfc(d) * scale).nearest_float(), (density(d) * scale).nearest_float()};
}

const Register special_tables({
    {"erff_points", "row k of 504, d = k/128: erf(d) and its derivative 2/sqrt(pi) e^(-d^2), rounded to nearest; the last erf is 1.",
     each_row(504, erf_row)},
    {"erfcf_points", "row k of 645, d = k/64: 2^48 erfc(d) and 2^48 2/sqrt(pi) e^(-d^2), rounded to nearest; the last row is zero.",
     each_row(645, [](int k) { return erfc_row(k, 64, 644); })},
    {"erfcf_native_points", "row k of 323, d = k/32: as erfcf_points.",
     each_row(323, [](int k) { return erfc_row(k, 32, 322); })},
});

}  // namespace
}  // namespace tarn::tables
