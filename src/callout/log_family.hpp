// What the callouts of the single-precision logarithms and powers share.
#pragma once

#include "callout/scalar.hpp"

namespace tarn::callout {

// ln(X 2^moved) + tail of a positive normal double, rounded once where the tail is small beside the logarithm.
double log_of(double X, int moved = 0, double tail = 0);

// ln(1 + X) of a finite X above -1, rounded once.
double log1p_of(double X);

}  // namespace tarn::callout
