// The processor's own approximations of 1/x and x^(-1/2): the bits of rcpps and rsqrtps differ between
// processors, and with them the errors of the kernels that start from one.
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>
#include <xmmintrin.h>

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

}  // namespace tarn::test
