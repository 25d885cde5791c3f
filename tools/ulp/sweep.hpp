// All inputs between two ends, or random ones.
//
// The inputs are cut into blocks, a slice of the first argument each. Every block's worst error is appended to the
// log as it is found, so that a sweep that was stopped goes on where it was, and the plot is drawn from the log.
#pragma once

#include <fstream>
#include <functional>
#include <map>

#include "ulp/target.hpp"

namespace tarn::ulp {

struct Sweep {
    Target target;
    bool exhaustive;
    std::uint64_t inputs;

    // A few thousand blocks, so that a plot has as many points, none of them longer than a moment.
    std::uint64_t per_block() const;
    std::uint64_t blocks() const { return (inputs + per_block() - 1) / per_block(); }
    Found run(std::uint64_t block) const;
    std::string title() const;

private:
    std::vector<Lanes> inputs_of(std::uint64_t block) const;
};

// A first line that says what was swept, then "block worst inputs...".
class Log {
public:
    Log(const std::string& path, const std::string& title);
    void add(std::uint64_t block, const Found& found);
    Found worst() const;
    std::map<std::uint64_t, Found> done;

private:
    std::ofstream out_;
};

// Runs the blocks that the log has not; after each `report` is called, and ends the sweep where it is false.
bool run(const Sweep& sweep, Log& log, unsigned threads, const std::function<bool(double share, double worst)>& report);

}  // namespace tarn::ulp
