#pragma once

#include <cstdint>
#include <string>

#include "figures/times.hpp"

namespace tarn {

// A table of where times here and published ones differ by more than a fifth (or another part), worst first: ratios to
// the best peer, then times of the best width and of arrays, at most so many of each; and how many rows only one of them
// has.
std::string differences(const Times& here, const Times& published, double part = 0.2, std::size_t most = SIZE_MAX);

}  // namespace tarn
