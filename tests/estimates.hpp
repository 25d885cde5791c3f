// The processor's own approximations of 1/x and x^(-1/2): the bits of rcpps and rsqrtps differ between processors, and
// with them the results of the kernels that start from one. estimates.def lists those.
#pragma once

#include <cstdint>
#include <ostream>

#include "samples.hpp"

namespace tarn::test {

// A kernel that starts from an estimate.
struct Estimating {
    const char* name;      // an export
    std::uint64_t digest;  // of its results, as in bits_test, with estimates rounded exactly to 12 bits
    double limit;          // no error above this, in ulp, with the worst estimates that an instruction may give
};
inline void PrintTo(const Estimating& e, std::ostream* out) { *out << e.name; }
inline constexpr Estimating estimating[] = {
#include "estimates.def"
};
inline const Estimating* starts_from_estimate(const Function& f) {
    for (const Estimating& e : estimating) {
        Export known;
        parse_export(e.name, known);
        // A half form without a line is its native form.
        if (known.family == &f.family() && (known.variant == f.variant() || (f.variant() == Variant::half && known.variant == Variant::native)))
            return &e;
    }
    return nullptr;
}

// The largest error that an export may show on any processor. Rows state four digits.
inline double limit_here(const Function& f) {
    const double stated = f.family().worst(f.variant(), f.width()).ulp * 1.0005 + 1e-6;
    const Estimating* e = starts_from_estimate(f);
    return e ? std::max(stated, e->limit) : stated;
}

}  // namespace tarn::test
