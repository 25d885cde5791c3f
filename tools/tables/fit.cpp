#include "tables/fit.hpp"

#include <cmath>

namespace tarn::tables {
namespace {

Real power(const Real& x, int p) {
    Real r;
    mpfr_pow_si(r.value, x.value, p, MPFR_RNDN);
    return r;
}

// Gauss' elimination with pivots; the rows hold the right side last.
std::vector<Real> solve(std::vector<std::vector<Real>> rows) {
    const std::size_t n = rows.size();
    for (std::size_t c = 0; c < n; c++) {
        std::size_t pivot = c;
        for (std::size_t r = c + 1; r < n; r++)
            if (abs(rows[pivot][c]) < abs(rows[r][c])) pivot = r;
        std::swap(rows[c], rows[pivot]);
        for (std::size_t r = 0; r < n; r++) {
            if (r == c) continue;
            const Real factor = rows[r][c] / rows[c][c];
            for (std::size_t k = c; k <= n; k++) rows[r][k] = rows[r][k] - factor * rows[c][k];
        }
    }
    std::vector<Real> x;
    for (std::size_t r = 0; r < n; r++) x.push_back(rows[r][n] / rows[r][r]);
    return x;
}

}  // namespace

std::vector<Real> minimax(const Curve& f, const Curve& scale, const Real& low, const Real& high,
                          const std::vector<int>& powers) {
    const std::size_t n = powers.size();
    constexpr int samples = 400;
    const Real width = high - low, middle = (high + low) / Real(2);

    // The curve once at points that lie closer at the ends, where the error turns faster.
    std::vector<Real> x, value, unit;
    for (int i = 0; i <= samples; i++) {
        x.push_back(middle - width / Real(2) * Real(std::cos(M_PI * i / samples)));
        value.push_back(f(x.back()));
        unit.push_back(scale(x.back()));
    }

    // Start from the extrema of a Chebyshev polynomial, exchange until the references stay.
    std::vector<std::size_t> reference;
    for (std::size_t i = 0; i <= n; i++)
        reference.push_back(i * samples / n);
    std::vector<Real> coefficients;
    for (int round = 0; round < 50; round++) {
        std::vector<std::vector<Real>> rows;
        for (std::size_t i = 0; i <= n; i++) {
            const std::size_t at = reference[i];
            rows.emplace_back();
            for (const int p : powers) rows.back().push_back(power(x[at], p));
            rows.back().push_back(i % 2 ? -unit[at] : unit[at]);
            rows.back().push_back(value[at]);
        }
        coefficients = solve(rows);
        coefficients.pop_back();

        std::vector<Real> error;
        for (int i = 0; i <= samples; i++) {
            Real p = 0;
            for (std::size_t k = 0; k < n; k++) p = p + coefficients[k] * power(x[static_cast<std::size_t>(i)], powers[k]);
            error.push_back((p - value[static_cast<std::size_t>(i)]) / unit[static_cast<std::size_t>(i)]);
        }
        // The largest error in each run of one sign.
        std::vector<std::size_t> next;
        for (std::size_t i = 0; i < error.size(); i++) {
            const bool positive = Real(0) < error[i];
            if (next.empty() || positive != (Real(0) < error[next.back()])) next.push_back(i);
            else if (abs(error[next.back()]) < abs(error[i])) next.back() = i;
        }
        while (next.size() > n + 1) {
            if (abs(error[next.front()]) < abs(error[next.back()])) next.erase(next.begin());
            else next.pop_back();
        }
        if (next.size() < n + 1 || next == reference) break;
        reference = next;
    }
    return coefficients;
}

}  // namespace tarn::tables
