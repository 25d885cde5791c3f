// The directed search for the largest error of an export.
#pragma once

#include <functional>

#include "ulp/target.hpp"

namespace tarn::ulp {

struct SearchResult {
    Found largest;              // of the finite errors
    Found wrong;                // an infinite one: a NaN, an infinity or a zero that should not be, or the reverse
    std::uint64_t evaluations;  // lanes that the export computed
    bool still;                 // the maximum had stood still; else the time was up
};

// Searches for at most `seconds`; `report` is called now and then from one thread, and ends it by false.
using Report = std::function<bool(double share, const SearchResult& so_far)>;
SearchResult search(const Target& target, double seconds, unsigned threads, std::uint64_t seed, const Report& report);

}  // namespace tarn::ulp
