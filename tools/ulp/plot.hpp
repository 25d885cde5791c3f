// The error over the first argument as a picture, by gnuplot.
#pragma once

#include "ulp/sweep.hpp"

namespace tarn::ulp {

// Refuses what could not be drawn, before a sweep has been made for it.
void expect_plot(const std::string& path);

void plot(const std::string& path, const Sweep& sweep, const Log& log);

}  // namespace tarn::ulp
