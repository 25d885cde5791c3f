// Results held against MPFR: the one loop of all tests that do so. Special values and the signs of zeros and
// infinities are part of the truth.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>

#include "common/truth.hpp"
#include "samples.hpp"

namespace tarn::test {

// The largest error of a family's results; one above the limit fails, the first few with their arguments.
inline double expect_ulp(const std::string& name, const Family& family, const std::vector<Lanes>& args, const Lanes& result,
                         const Lanes& second, double limit) {
    const Truth& truth = *truth_of(family);
    std::vector<Real> x(args.size());
    Real t;
    int failures = 0;
    double worst = 0;
    const auto check = [&](Truth::Of of, const Lanes& got, std::size_t i) {
        of(t.value, x.data());
        const double error = ulp_error(got.type(), got.pattern(i), t);
        worst = std::max(worst, error);
        const bool zero_sign = mpfr_zero_p(t.value) && !mpfr_signbit(t.value) != !std::signbit(value_of(got.type(), got.pattern(i)));
        if ((error > limit || zero_sign) && failures++ < 5)
            ADD_FAILURE() << name << '(' << lanes_text(args, i) << ") = " << hex(got.pattern(i)) << ", error " << error
                          << " ulp, limit " << limit << (zero_sign ? ", wrong sign of zero" : "");
    };
    for (std::size_t i = 0; i < result.size(); i++) {
        for (std::size_t a = 0; a < args.size(); a++) x[a] = exact(args[a].type(), args[a].pattern(i));
        check(truth.first, result, i);
        if (truth.second) check(truth.second, second, i);
    }
    if (failures > 5) ADD_FAILURE() << name << ": " << failures << " errors above " << limit << ", the largest " << worst << " ulp";
    return worst;
}

inline double expect_ulp(const Function& f, const std::vector<Lanes>& args, double limit) {
    Lanes result, second;
    f(args, result, &second);
    return expect_ulp(f.name(), f.family(), args, result, second, limit);
}

}  // namespace tarn::test
