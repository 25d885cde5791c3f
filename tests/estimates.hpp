// The processor's own approximations of 1/x and x^(-1/2): the bits of rcpps and rsqrtps differ between processors, and
// with them the results of the kernels that start from one. estimates.def lists those.
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>
#include <ostream>
#include <xmmintrin.h>

#include "samples.hpp"

namespace tarn::test {

// Whether this processor's are those that the stated worst errors were measured with: a digest over every
// significand at two exponents, which is all there is to them.
inline bool estimates_as_measured() {
    static const bool same = [] {
        std::uint64_t digest = 0xcbf29ce484222325;
        for (std::uint32_t pattern = 0x3F800000; pattern < 0x40800000; pattern += 4) {
            float x[4], y[2][4];
            for (std::uint32_t i = 0; i < 4; i++) x[i] = std::bit_cast<float>(pattern + i);
            _mm_storeu_ps(y[0], _mm_rcp_ps(_mm_loadu_ps(x)));
            _mm_storeu_ps(y[1], _mm_rsqrt_ps(_mm_loadu_ps(x)));
            std::uint64_t words[4];
            std::memcpy(words, y, sizeof words);
            for (const std::uint64_t w : words) digest = (digest ^ w) * 0x100000001b3;
        }
        return digest == 0xf21a18b5e988a325;
    }();
    return same;
}

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

// The largest error that an export may show on this processor. Rows state four digits.
inline double limit_here(const Function& f) {
    const double stated = f.family().worst(f.variant(), f.width()).ulp * 1.0005 + 1e-6;
    const Estimating* e = estimates_as_measured() ? nullptr : starts_from_estimate(f);
    return e ? std::max(stated, e->limit) : stated;
}

}  // namespace tarn::test
