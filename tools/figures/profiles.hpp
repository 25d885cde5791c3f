// Profiles of errors as tarn-ulp --profile writes them, and what gnuplot draws of one.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "families/families.hpp"

namespace tarn {

// The largest error of a kernel in a bin.
struct BinError {
    Export kernel;
    int result;  // 1, or 2 for a second one
    double from, to, ulp;
    std::vector<std::uint64_t> at;  // where it is; nowhere, if there is none in ulp
    bool wrong;                     // a result is, by more than ulp can say
};
struct ErrorProfile {
    std::string how;
    std::vector<BinError> bins;
};
// Throws what is wrong with the file in a line.
ErrorProfile read_profile(const std::string& path);

std::string profile_figure(const ErrorProfile& profile);

}  // namespace tarn
