// Minimax polynomials, for the tables whose rows are fitted.
#pragma once

#include <functional>
#include <vector>

#include "common/real.hpp"

namespace tarn::tables {

using Curve = std::function<Real(const Real&)>;

// The coefficients of x^p for each p of `powers` whose sum comes nearest to f on [low, high], the
// largest error relative to `scale` being least (Remez' exchange).
std::vector<Real> minimax(const Curve& f, const Curve& scale, const Real& low, const Real& high,
                          const std::vector<int>& powers);

}  // namespace tarn::tables
