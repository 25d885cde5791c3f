// What the callouts of the single-precision logarithms and powers share.
#pragma once

#include "callout/scalar.hpp"

namespace tarn::callout {

// ln(X 2^moved) of a positive normal double, to about one unit of double precision.
double log_of(double X, int moved = 0);

// ln(1 + X) of a finite X above -1, to about one unit of double precision.
double log1p_of(double X);

}  // namespace tarn::callout
