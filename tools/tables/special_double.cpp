// Tables of the double-precision error and gamma functions.
#include "tables/fit.hpp"
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

// v as head and tail.
void add_pair(Row& row, const Real& v) {
    row.push_back(v.nearest());
    row.push_back((v - Real(v.nearest())).nearest());
}

// The polynomial nearest to f on [low, high], relatively to `scale`; lowest coefficient first.
std::vector<Real> polynomial(const Curve& f, const Curve& scale, const Real& low, const Real& high, int degree) {
    std::vector<int> powers;
    for (int p = 0; p <= degree; p++) powers.push_back(p);
    return minimax(f, scale, low, high, powers);
}
const Curve one = [](const Real&) { return Real(1); };

// The first `pairs` coefficients as head and tail, the others rounded.
Row coefficients(const std::vector<Real>& c, std::size_t pairs) {
    Row row;
    for (std::size_t i = 0; i < c.size(); i++) {
        if (i < pairs) add_pair(row, c[i]);
        else row.push_back(c[i].nearest());
    }
    return row;
}

// One coefficient a row.
std::vector<Row> column(const Row& row) {
    std::vector<Row> rows;
    for (const Cell& cell : row) rows.push_back({cell});
    return rows;
}

// ln of the middle of a 128th of [1, 2), less 1: by a reciprocal so short that its products with numbers
// of 21 bits have 32.
constexpr int short_reciprocal = -11;
constexpr int short_log = -26;
Row log_over_e_row(int i) {
    const double r = on_grid(Real(1) / (Real(1) + Real(2 * i + 1) / Real(256)), short_reciprocal);
    const Real value = -log(Real(r)) - Real(1);
    const double head = on_grid(value, short_log);
    return {r, head, (value - Real(head)).nearest()};
}

// (ln(1 + f) - f) / f^2 and (e^r - 1 - r) / r^2 for arguments up to `bound`.
std::vector<Row> log_polynomial(double bound, int degree) {
    const Curve f = [](const Real& f) {
        if (abs(f) < Real(0x1p-100)) return Real(-0.5);
        return (Real::apply(mpfr_log1p, f) - f) / (f * f);
    };
    return column(coefficients(polynomial(f, one, -bound, bound, degree), 0));
}
std::vector<Row> exp_polynomial(double bound, int degree) {
    const Curve f = [](const Real& r) {
        if (abs(r) < Real(0x1p-100)) return Real(0.5);
        return (Real::apply(mpfr_expm1, r) - r) / (r * r);
    };
    return column(coefficients(polynomial(f, one, -bound, bound, degree), 0));
}

Real log_gamma_of(const Real& x) {
    Real r;
    int sign;
    mpfr_lgamma(r.value, &sign, x.value, MPFR_RNDN);
    return r;
}

// What Stirling's formula leaves of ln gamma, times x, as a function of 1/x^2 for x from 8 on: 1/12, which is
// its first coefficient, as head and tail.
std::vector<Row> stirling_polynomial() {
    const Real first = Real(1) / Real(12);
    const Curve f = [&](const Real& w) {
        const Real x = Real(1) / sqrt(w);
        const Real formula = (x - Real(0.5)) * log(x) - x + log(Real(2) * Real::pi()) / Real(2);
        return ((log_gamma_of(x) - formula) * x - first) / w;
    };
    Row row;
    add_pair(row, first);
    for (const Real& c : polynomial(f, one, 0x1p-60, 0x1p-6, 6)) row.push_back(c.nearest());
    return column(row);
}

// sin(pi y) / (pi y) less 1, over y^2, as a function of y^2 for |y| up to 1/2: three coefficients as pairs.
std::vector<Row> sine_polynomial() {
    const Curve f = [](const Real& w) {
        const Real y = sqrt(w) * Real::pi();
        return (sin(y) / y - Real(1)) / w;
    };
    return column(coefficients(polynomial(f, one, 0x1p-60, 0.25, 8), 3));
}

// ln gamma over (x - 1)(x - 2), which takes its zeros out.
Real log_gamma_quotient(const Real& x) {
    const Real product = (x - Real(1)) * (x - Real(2));
    if (mpfr_zero_p(product.value)) return Real::apply(mpfr_digamma, x) / (Real(2) * x - Real(3));
    return log_gamma_of(x) / product;
}

// Sixteenth i of an octave from 1/2 on.
struct Sixteenth {
    explicit Sixteenth(int i) : half(std::ldexp(0.5, i / 16) / 32), middle((32 + 2 * (i % 16) + 1) * half) {}
    double half, middle;
};

// Its middle, and the polynomial around it, the first coefficient as head and tail.
Row log_gamma_row(int i) {
    const Sixteenth at(i);
    const Curve f = [&](const Real& t) { return log_gamma_quotient(Real(at.middle) + t); };
    Row row = {at.middle};
    for (const Cell& c : coefficients(polynomial(f, f, -at.half, at.half, 9), 1)) row.push_back(c);
    return row;
}

// The same for gamma: the heads of three coefficients, then their tails and the others.
Row gamma_row(int i) {
    const Sixteenth at(i);
    const Curve f = [&](const Real& t) { return Real::apply(mpfr_gamma, Real(at.middle) + t); };
    const std::vector<Real> c = polynomial(f, f, -at.half, at.half, 11);
    Row row = {at.middle, c[0].nearest(), c[1].nearest(), c[2].nearest()};
    for (std::size_t k = 0; k < c.size(); k++) row.push_back((k < 3 ? c[k] - Real(c[k].nearest()) : c[k]).nearest());
    return row;
}

// The zeros of ln |gamma| on the two sides of -3 to -16, and the one below -2, as their distances from the
// integer.
Real zero_beside(int n, int side) {
    Real factorial = 1;
    for (int k = 2; k <= n; k++) factorial = factorial * Real(k);
    const auto at = [&](const Real& distance) { return log_gamma_of(Real(-n) + Real(side) * distance); };
    Real positive = Real(0.25) / factorial, negative = n == 2 ? 0.55 : 0.36;
    for (int i = 0; i < 400; i++) {
        const Real middle = (positive + negative) / Real(2);
        (Real(0) < at(middle) ? positive : negative) = middle;
    }
    return Real(side) * positive;
}

// Around a zero at y of the pole -n: ln |gamma(-n + y + t)| = t G(t) - ln(1 + t/y).
Row negative_zero_row(int i) {
    const int n = (i + 1) / 2 + 2, side = i % 2 ? 1 : -1;
    const Real y = zero_beside(n, side), radius = abs(y) / Real(32);
    const Curve f = [&](const Real& t) {
        return (log_gamma_of(Real(-n) + y + t) + Real::apply(mpfr_log1p, t / y)) / t;
    };
    Row row;
    add_pair(row, y);
    for (const Cell& c : coefficients(polynomial(f, one, -radius, radius, 9), 1)) row.push_back(c);
    return row;
}

const Register special_double_tables({
    {"erf_points", "row k of 768, d = k/128: erf(d) and its derivative 2/sqrt(pi) e^(-d^2), rounded to nearest.",
     each_row(768, erf_row)},
    {"erfc_points", "row k of 3489, d = k/128: 2^64 erfc(d) and 2^64 2/sqrt(pi) e^(-d^2), rounded to nearest, and what the first "
     "rounding leaves.",
     each_row(3489, erfc_row)},
    {"gamma_log_rows",
     "row i of 128, c = 1 + (2i + 1)/256: r = 1/c rounded to a multiple of 2^-11, -ln r - 1 rounded to a multiple "
     "of 2^-26, and the rest of it.",
     each_row(128, log_over_e_row)},
    {"gamma_log", "(ln(1 + f) - f) / f^2 for |f| up to 1/256 + 1/2048, lowest coefficient first.",
     [] { return log_polynomial(0x1p-8 + 0x1p-11, 5); }},
    {"gamma_exp", "(e^r - 1 - r) / r^2 for |r| up to 1/128, lowest coefficient first.",
     [] { return exp_polynomial(0x1p-7, 5); }},
    {"gamma_stirling",
     "x (ln gamma x - (x - 1/2) ln x + x - ln(2 pi)/2) for x from 8 on as a polynomial in 1/x^2, lowest "
     "coefficient first and as head and tail.",
     stirling_polynomial},
    {"gamma_sine",
     "(sin(pi y) / (pi y) - 1) / y^2 for |y| up to 1/2 as a polynomial in y^2, lowest coefficient first, the first "
     "three as head and tail.",
     sine_polynomial},
    {"gamma_rows",
     "row i of 64, for a 16th of an octave from 1/2 on: its middle, and the polynomial of degree 11 in x - middle "
     "nearest to gamma x, relatively: the heads of its three lowest coefficients, their tails, and the other coefficients.",
     each_row(64, gamma_row)},
    {"lgamma_log1p", "(ln(1 + s) - s) / s^2 for |s| up to 1/32, lowest coefficient first.", [] { return log_polynomial(0x1p-5, 9); }},
    {"lgamma_rows",
     "row i of 112, for a 16th of an octave from 1/2 on: its middle, and the polynomial in x - middle nearest to "
     "ln gamma x / ((x - 1) (x - 2)), relatively: lowest coefficient first and as head and tail.",
     each_row(112, log_gamma_row)},
    {"lgamma_negative_zeros",
     "a row for each zero of ln |gamma| from -2.46 to -16, in the order below -2, above -3, below -3 ...: the distance y "
     "from the integer n as head and tail, and the polynomial in t nearest to (ln |gamma(n + y + t)| + ln(1 + t/y)) / t "
     "for |t| up to |y|/32, lowest coefficient first and as head and tail.",
     each_row(29, negative_zero_row)},
});

}  // namespace
}  // namespace tarn::tables
