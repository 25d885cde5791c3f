// Figures as gnuplot reads them: tab-separated, "-" where there is none, blocks apart by two empty lines.
#pragma once

#include <string>

#include "figures/times.hpp"

namespace tarn {

// All families with an error in rows of a base, single and double precision beside each other, under their groups: the
// largest error found, the proved bound, and an error beyond OpenCL's bound, each over that bound.
std::string errors_figure();
// Likewise how far plain calls are ahead of the best 128-bit peer, v3's and v3's arrays of the best 256-bit one.
std::string peers_figure(const Times& times);
// A group's rows side by side, in panels of three blocks: places, names and times on arrays; lines through the times of
// all widths; bars at those of the best peer. Each plain and v3.
std::string group_figure(const Times& times, const std::string& group);

}  // namespace tarn
