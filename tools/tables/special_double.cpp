// Tables of the double-precision error functions.
#include "tables/tables.hpp"

namespace tarn::tables {
namespace {

// Values of the function and of the error function's derivative at d = k/128, times a scale.
Row point(const Real& value, const Real& d, double scale) {
    const Real density = Real(2) / sqrt(Real::pi()) * exp(-(d * d));
    return {(value * Real(scale)).nearest(), (density * Real(scale)).nearest()};
}
Row erf_row(int k) {
    const Real d = Real(k) / Real(128);
    return point(erf(d), d, 1.0);
}
Row erfc_row(int k) {
    const Real d = Real(k) / Real(128);
    Row row = point(erfc(d), d, 0x1p64);
    row.push_back((erfc(d) * Real(0x1p64) - Real(std::get<double>(row[0]))).nearest());
    return row;
}

const Register special_double_tables({
    {"erf_points", "row k of 768, d = k/128: erf(d) and its derivative 2/sqrt(pi) e^(-d^2), rounded to nearest.",
     each_row(768, erf_row)},
    {"erfc_points", "row k of 3489, d = k/128: 2^64 erfc(d) and 2^64 2/sqrt(pi) e^(-d^2), rounded to nearest, and what the first "
     "rounding leaves.",
     each_row(3489, erfc_row)},
});

}  // namespace
}  // namespace tarn::tables
