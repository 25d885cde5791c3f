// What sweeps and searches share: the result that is measured, its error at a point, and the order of points.
#pragma once

#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

#include "common/cli.hpp"
#include "common/truth.hpp"

namespace tarn::ulp {

// One pattern an argument.
using Point = std::vector<std::uint64_t>;

// Patterns in the order of the numbers they stand for: -NaN, -inf, ..., -0, +0, ..., +inf, NaN. Integers
// are in order from the least.
inline std::uint64_t sign_of(Lane type) { return 1ull << (bytes(type) * 8 - 1); }
inline std::uint64_t all_ones(Lane type) { return bytes(type) == 8 ? ~0ull : 0xffffffff; }
inline std::uint64_t ordered(Lane type, std::uint64_t i) {
    return i & sign_of(type) || !is_float(type) ? i ^ sign_of(type) : all_ones(type) ^ i;
}
inline std::uint64_t order_of(Lane type, std::uint64_t pattern) {
    return pattern & sign_of(type) && is_float(type) ? all_ones(type) ^ pattern : pattern ^ sign_of(type);
}

// The ends of an argument, as numbers of the order.
struct Range {
    std::uint64_t low, high;
    bool has(std::uint64_t order) const { return low <= order && order <= high; }
};

// An error and where it is.
struct Found {
    double ulp = 0;
    Point at;
};

// One result of an export.
struct Target {
    Function function;
    bool second = false;
    std::vector<Range> ranges;

    const Shape& shape() const { return function.family().shape; }
    Lane type() const { return second ? shape().second : shape().result; }
    Truth::Of exactly() const {
        const Truth* truth = truth_of(function.family());
        return !truth ? nullptr : second ? truth->second : truth->first;
    }
    Real truth(const Point& at) const {
        std::vector<Real> x;
        for (std::size_t a = 0; a < at.size(); a++) x.push_back(exact(shape().args[a], at[a]));
        Real t;
        exactly()(t.value, x.data());
        return t;
    }
    Lanes results(const std::vector<Lanes>& args) const {
        Lanes first, other;
        function(args, first, &other);
        return second ? other : first;
    }
    // The point in every lane of one call.
    double error(const Point& at) const {
        std::vector<Lanes> args;
        for (std::size_t a = 0; a < at.size(); a++) args.emplace_back(shape().args[a], 1), args[a].set(0, at[a]);
        return ulp_error(type(), results(args).pattern(0), truth(at));
    }
};

}  // namespace tarn::ulp
