// What OpenCL C 3.0 allows of single precision beyond the full profile's bounds, which stand in the families' rows: in the
// embedded profile, and under -cl-fast-relaxed-math; and whether native forms keep to the latter.
#pragma once

#include <optional>
#include <string>

#include "families/families.hpp"

namespace tarn {

// Rules of relaxed math; x is the argument.
enum class Rule {
    as_full,      // OpenCL names no other
    ulps,         // `limit` ulp, of what is not written as another expression
    absolute,     // `limit` off at most, on [-pi, pi], or for functions of half turns on [-1, 1]
    exponential,  // 3 + floor(|2x|) ulp
    logarithm,    // 2^-21 off at most on [0.5, 2], else 3 ulp
};

struct Allowance {
    double embedded = 0;  // in ulp; 0: as in the full profile
    Rule rule = Rule::as_full;
    double limit = 0;
    // The largest part of a rule that is not in ulp alone which every 17th float of its domain found for the native
    // form; above 1 that form does not keep it.
    double native_part = 0;
};

// By the name in OpenCL C; of tarn_divide and tarn_recip, those of the operators.
Allowance allowance(const std::string& name);

// Whether the native form of a single-precision family is allowed under relaxed math.
bool native_keeps_relaxed(const Family& f, const std::string& name);

}  // namespace tarn
