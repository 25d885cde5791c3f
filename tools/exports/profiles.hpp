// Profiles of errors as tarn-ulp --profile writes them.
#pragma once

#include <string>
#include <vector>

#include "families/families.hpp"

namespace tarn {

// The largest error of a kernel in a bin.
struct BinError {
    Export kernel;
    int result;  // 1, or 2 for a second one
    double from, to, ulp;
    bool found;  // there is an error in ulp at all
    std::string wrong;
};
struct ErrorProfile {
    std::string how;
    std::vector<BinError> bins;
};
// Throws what is wrong with the file in a line.
ErrorProfile read_profile(const std::string& path);

}  // namespace tarn
