// What docs/data holds, as the pages show it: profiles of errors by tarn-ulp --profile, times by tarn-bench.
#pragma once

#include <map>
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

// Nanoseconds by kind (call, array), row, build and what was timed. No file is no times.
using Times = std::map<std::string, std::string>;
std::string time_key(const std::string& kind, const std::string& row, const std::string& build, const std::string& what);
Times read_times(const std::string& path);

}  // namespace tarn
