// Tables of the error and gamma functions.
#include "tables/fit.hpp"
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

Real gamma_of(const Real& x) { return Real::apply(mpfr_gamma, x); }
// The polynomial in x - centre nearest to `f`, relatively, highest coefficient first.
std::vector<Row> polynomial(const Curve& f, const Real& centre, double low, double high, int degree) {
    const Curve moved = [&](const Real& t) { return f(centre + t); };
    std::vector<int> powers;
    for (int p = degree; p >= 0; p--) powers.push_back(p);
    std::vector<Row> rows;
    for (const Real& c : minimax(moved, moved, low, high, powers)) rows.push_back({c.nearest()});
    return rows;
}

// sin(pi r)/r as a polynomial in r^2, |r| <= 1/2.
std::vector<Row> sine_of_half_turns() {
    const Curve f = [](const Real& t) {
        if (mpfr_zero_p(t.value)) return Real::pi();
        const Real r = sqrt(t);
        return sin(Real::pi() * r) / r;
    };
    return polynomial(f, 0, 0, 0.25, 7);
}

const Register special_tables({
    {"erff_points", "row k of 504, d = k/128: erf(d) and its derivative 2/sqrt(pi) e^(-d^2), rounded to nearest; the last erf is 1.",
     each_row(504, erf_row)},
    {"erfcf_points", "row k of 645, d = k/64: 2^48 erfc(d) and 2^48 2/sqrt(pi) e^(-d^2), rounded to nearest; the last row is zero.",
     each_row(645, [](int k) { return erfc_row(k, 64, 644); })},
    {"erfcf_native_points", "row k of 323, d = k/32: as erfcf_points.",
     each_row(323, [](int k) { return erfc_row(k, 32, 322); })},
    {"gammaf_2_to_3", "gamma(2.5 + t) for |t| <= 1/2, relatively: coefficients of t^13 to t^0.",
     [] { return polynomial(gamma_of, 2.5, -0.5, 0.5, 13); }},
    {"sine_of_half_turns", "sin(pi r) / r for |r| <= 1/2, relatively: coefficients of r^14, r^12 to r^0.",
     sine_of_half_turns},
});

}  // namespace
}  // namespace tarn::tables
