// Scalar trigonometry in double precision: any finite float as a 64th of a turn and a remainder, and
// sine and cosine around that point from the tables.
#pragma once

#include "callout/scalar.hpp"

namespace tarn::callout {

#include "tables/cosine_64ths.inc"
#include "tables/sine_64ths.inc"

// The angle j pi/32 + (r + tail).
struct Angle {
    std::uint32_t j;
    double r, tail;
};
Angle reduced(float x);

// The function of a table of 64ths at the angle, for rounding to single precision.
double from_table(const double (*table)[4], const Angle& angle);

// What every function of an angle is at infinity (not a number, a domain error) and at a NaN.
TARN_INLINE int no_angle(float x, float* result) {
    *result = is_nan(x) ? x * x : opaque(x) * 0.0f;
    return is_nan(x) ? ordinary : domain_error;
}

}  // namespace tarn::callout
