// Found before the kernels' own header of this name: estimates as a processor might give them. Either rounded
// exactly to 12 bits, or as far off as the instructions may be, up or down by a hash of the argument.
#pragma once

#include "frame/simd.hpp"

namespace tarn {

// The value that stands for `exact`, which is within 2^-51 of it.
inline double estimate_of(double exact, std::uint32_t argument) {
    const auto rounded = [](double v, int dropped, std::int64_t half) {
        return f64((static_cast<std::uint64_t>(bits(v)) + static_cast<std::uint64_t>(half)) >> dropped << dropped);
    };
    if constexpr (!TARN_WORST_ESTIMATES) return rounded(exact, 41, std::int64_t{1} << 40);
    // To a float on the side of the exact value.
    constexpr double error = 0x1.7ffffffffffp-12;
    if (argument * 0x9E3779B9u >> 31) return rounded(exact * (1 + error), 29, 0);
    return rounded(exact * (1 - error), 29, (1 << 29) - 1);
}

// As the instructions do: subnormal arguments and results are zeros, NaNs become quiet.
template <class Function> inline f32x4 estimates_of(f32x4 x, Function exact) {
    constexpr std::uint32_t infinity = 0x7F800000;
    f32x4 results;
    for (int i = 0; i < 4; i++) {
        const auto argument = static_cast<std::uint32_t>(bits(x)[i]), sign = argument & 0x80000000, magnitude = argument ^ sign;
        std::uint32_t result = sign;  // of infinities
        if (magnitude > infinity) result = argument | 0x00400000;
        else if (magnitude < 0x00800000) result = sign | infinity;
        else if (const double value = exact(f32(argument)); value != value) result = 0xFFC00000;
        else if (magnitude != infinity) {
            const double estimate = estimate_of(value, argument);
            if (estimate >= 0x1p-126 || estimate <= -0x1p-126) result = static_cast<std::uint32_t>(bits(static_cast<float>(estimate)));
        }
        results[i] = f32(result);
    }
    return results;
}

inline f32x4 reciprocal_estimate(f32x4 x) {
    return estimates_of(x, [](double v) { return 1 / v; });
}
inline f32x4 rsqrt_estimate(f32x4 x) {
    return estimates_of(x, [](double v) { return 1 / _mm_cvtsd_f64(sqrt(splat(v))); });
}

}  // namespace tarn
