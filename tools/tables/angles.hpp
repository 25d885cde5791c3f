// Table angles: parts of a turn.
#pragma once

#include "common/real.hpp"

namespace tarn::tables {

// Sine and cosine of j/n of a turn, exact at the quarters.
inline Real sine_of(int j, int n) {
    j %= n;
    if (4 * j % n == 0) return Real(j == n / 4 ? 1 : j == 3 * n / 4 ? -1 : 0);
    return sin(Real(2 * j) * Real::pi() / Real(n));
}
inline Real cosine_of(int j, int n) { return sine_of(j + n / 4, n); }

}  // namespace tarn::tables
