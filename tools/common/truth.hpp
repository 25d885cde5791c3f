// What a family's results ought to be: MPFR, and the error of a result against it.
#pragma once

#include <cstdint>
#include <vector>

#include "common/real.hpp"
#include "families/families.hpp"

namespace tarn {

// The exact results of a family: from exact arguments, to more bits than any lane holds.
struct Truth {
    using Of = void (*)(mpfr_t result, const Real* args);
    Of first = nullptr;
    Of second = nullptr;                    // of a family with two floating results
    double (*quick)(double) = nullptr;      // the C library in double: near enough to find candidates
    double (*quick2)(double, double) = nullptr;
};

// Null for families whose truth is integer arithmetic, tested where they are.
const Truth* truth_of(const Family& f);

// The arguments of lane i as exact numbers.
Real exact(Lane type, std::uint64_t pattern);

// |result - truth| in units in the last place of the truth; infinite where one is a NaN and the other
// is not, or where the truth is an exact zero or infinity and the result is another value. A result
// beyond the largest finite one counts as the power of two there.
double ulp_error(Lane type, std::uint64_t result, const Real& truth);

// The same against a truth in double precision, for single-precision results; NaN where it cannot tell.
double quick_error(float result, double truth);

}  // namespace tarn
