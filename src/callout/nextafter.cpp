// The neighbour of x toward y: one step of the bit pattern, up where y is farther from zero on the same
// side, else down. From zero the step is to the smallest subnormal on the side of y.
#include "callout/format.hpp"

namespace tarn::callout {

template <class Real> int nextafter(const Real* x, const Real* y, Real* result) {
    if (is_nan(*x) || is_nan(*y)) {
        *result = *x + *y;
        return ordinary;
    }
    if (*x == *y) {
        *result = *y;
        return ordinary;
    }
    if (magnitude(*x) == 0) return give(result, sign(*y) | 1, underflow);
    const bool up = sign(*x) == sign(*y) && magnitude(*x) <= magnitude(*y);
    const auto step = up ? pattern(*x) + 1 : pattern(*x) - 1;
    const int field = exponent_field(number<Real>(step));
    return give(result, step, field == 0 ? underflow : field == Format<Real>::field_max ? overflow : ordinary);
}

template int nextafter(const float*, const float*, float*);
template int nextafter(const double*, const double*, double*);

}  // namespace tarn::callout
