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
Real log_gamma_of(const Real& x) {
    Real r;
    int sign;
    mpfr_lgamma(r.value, &sign, x.value, MPFR_RNDN);
    return r;
}

// The polynomial in x - centre nearest to `f`, relatively, highest coefficient first.
std::vector<Row> polynomial(const Curve& f, const Real& centre, double low, double high, int degree) {
    const Curve moved = [&](const Real& t) { return f(centre + t); };
    std::vector<int> powers;
    for (int p = degree; p >= 0; p--) powers.push_back(p);
    std::vector<Row> rows;
    for (const Real& c : minimax(moved, moved, low, high, powers)) rows.push_back({c.nearest()});
    return rows;
}

// ln gamma over its zero at 1 or 2, which is taken out so that results next to it keep their accuracy.
std::vector<Row> over_zero(const Real& zero, double low, double high, int degree) {
    const Curve quotient = [&](const Real& x) {
        // At the zero itself: the derivative, -0.577... at 1 and 0.422... at 2.
        const Real t = x - zero;
        if (mpfr_zero_p(t.value)) return Real::apply(mpfr_digamma, zero);
        return log_gamma_of(x) / t;
    };
    return polynomial(quotient, zero, low, high, degree);
}

// The zeros of ln |gamma| between -4 and -2, by bisection from where it changes sign.
Real negative_zero(int which) {
    static const double brackets[][2] = {{-2.5, -2.4}, {-2.8, -2.7}, {-3.2, -3.1}, {-3.97, -3.94}};
    Real low = brackets[which][0], high = brackets[which][1];
    const bool rising = log_gamma_of(low) < Real(0);
    for (int i = 0; i < 300; i++) {
        const Real middle = (low + high) / Real(2);
        if ((log_gamma_of(middle) < Real(0)) == rising) low = middle;
        else high = middle;
    }
    return low;
}
constexpr double zero_radius[] = {0.1, 0.07, 0.03, 0.01};
constexpr int zero_degree = 13;

Row negative_zero_row(int which) {
    const Real zero = negative_zero(which);
    const double head = zero.nearest(), radius = zero_radius[which];
    Row row = {radius, head, (zero - Real(head)).nearest()};
    for (const Row& c : over_zero(zero, -radius, radius, zero_degree)) row.push_back(c[0]);
    return row;
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
    {"lgammaf_at_1", "ln gamma(1 + t) / t for t from -1/4 to 1/2, relatively: coefficients of t^15 to t^0.",
     [] { return over_zero(1, -0.25, 0.5, 15); }},
    {"lgammaf_at_2", "ln gamma(2 + t) / t for t from -1/2 to 1, relatively: coefficients of t^15 to t^0.",
     [] { return over_zero(2, -0.5, 1, 15); }},
    {"lgammaf_negative_zeros",
     "a row for each zero of ln |gamma| from -2.46 to -3.96: a radius, the zero as head and tail, and for "
     "t within the radius ln |gamma(zero + t)| / t, relatively: coefficients of t^13 to t^0.",
     each_row(4, negative_zero_row)},
    {"sine_of_half_turns", "sin(pi r) / r for |r| <= 1/2, relatively: coefficients of r^14, r^12 to r^0.",
     sine_of_half_turns},
});

}  // namespace
}  // namespace tarn::tables
