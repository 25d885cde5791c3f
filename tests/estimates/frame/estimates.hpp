// Found before the kernels' own header of this name: estimates as a processor might give them. Either rounded
// exactly to 12 bits, or as far off as the instructions may be, up or down by a hash of the argument.
#pragma once

#include "frame/simd128.hpp"
#ifdef __AVX2__
#include "frame/simd256.hpp"
#endif

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
template <Singles V, class Function> inline V estimates_of(V x, Function exact) {
    constexpr std::uint32_t infinity = 0x7F800000;
    V results;
    for (int i = 0; i < lane_count<V>; i++) {
        const auto argument = static_cast<std::uint32_t>(bits(x[i])), sign = argument & 0x80000000, magnitude = argument ^ sign;
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

template <Singles V> inline V reciprocal_estimate(V x) {
    return estimates_of(x, [](double v) { return 1 / v; });
}
template <Singles V> inline V rsqrt_estimate(V x) {
    return estimates_of(x, [](double v) { return 1 / sqrt(f64x2{v, v})[0]; });
}

}  // namespace tarn
