// A family's errors over its first argument: the largest of every kernel in each of about a hundred bins.
//
// One argument of single precision is swept whole. The family's double form gives exact values near enough to pass
// over what cannot be the largest of its bin, for all kernels at once; what remains is measured against MPFR. All other
// families are searched, bin by bin.
#pragma once

#include <functional>

#include "ulp/target.hpp"

namespace tarn::ulp {

// The inputs from `low` to `high`, as numbers of the order. `from` and `to` are for people: to is not in it.
struct Bin {
    Range orders;
    double from, to;
};
// By the family's axis, as far as they are within the range.
std::vector<Bin> bins_of(const Family& family, const Range& range);

// Of a kernel in a bin: the largest finite error, and an input whose error is none in ulp.
struct BinFound {
    Found largest, wrong;
};
struct Profile {
    std::vector<Bin> bins;
    std::vector<std::vector<BinFound>> of_target;
    std::uint64_t measured = 0;  // by MPFR
    bool complete = false;
};

bool swept_whole(const Family& family);
// The targets are kernels of one family; `near` is its double form, of width 16.
using ProfileReport = std::function<bool(double share)>;
Profile sweep_bins(const std::vector<Target>& targets, const Function& near, const Range& range, unsigned threads, const ProfileReport& report);
Profile search_bins(const std::vector<Target>& targets, const Range& range, double seconds_each, unsigned threads, const ProfileReport& report);

// One line a kernel, result and bin that has an error, after a comment on how it was measured.
void write_profile(const std::string& path, const std::vector<Target>& targets, const Profile& profile, const std::string& how);

}  // namespace tarn::ulp
