// erf |x| by Taylor's series from the nearest point c of a grid of 128ths: with d = |x| - c, u = c d and the
// derivative D, erf(c) + D d (1 + P), P = -u + (2u^2 - d^2)/3 + ...; value and derivative come from a table.
// From 5.9921875 on the last row gives exactly 1. No lane is special. The native form keeps the terms
// that stand here.
//
// Worst error of erf: 2.545 ulp at 0.0039064221626352088; native 1.152e+06.
#include "frame/exports.hpp"

namespace tarn::doubles {
namespace {

#include "tables/erf_points.inc"

constexpr double largest = f64(0x4017F80000000000);  // 5.9921875 = 767/128
constexpr double shifter = f64(0x42C0000000000000);  // 2^45: rounds to 128ths
constexpr double tiny = f64(0x2FF0000000000000);     // 2^-256
// |d| <= 1/256; fit not recorded.
constexpr double third = f64(0xBFD5555555555555);    // -0.3333333333333333
constexpr double k4 = f64(0x3FE5555555554B0C);       // 0.6666666666663743

// u and the square of d, 0 where it would underflow; erf(c) and D d with the sign of x. The order of the
// minima matters: a NaN x leaves the clamp as the row's place, and comes back as the offset.
template <class V> struct Step {
    V u, d2, value, g;
};
template <class V> TARN_INLINE Step<V> step(V x) {
    const V a = abs(x);
    const V clamped = min(a, largest);
    const V shifted = clamped + shifter;
    const V c = shifted - shifter;
    const V d = clamped - c;
    const V squared = where(clamped > tiny, d);
    const auto [value, slope] = gather_columns(erf_points, bits(shifted) & 0x3FF);
    return {c * d, squared * squared, or_bits(value, sign_bit(x)), slope * xor_bits(min(d, a), sign_bit(x))};
}

struct Erf : Kernel<double(double)> {
    static constexpr int blocks_at_a_time = 2;
    static constexpr double k1 = f64(0xBFA6C16DB05BDEA5);  // -0.044444492128545655
    static constexpr double k2 = f64(0x3FC1111235A363B1);  // 0.13333346957258876
    static constexpr double k3 = f64(0xBFD55555555547F6);  // -0.3333333333331433
    static constexpr double m1 = f64(0x3FCC71CA1C71EB57);  // 0.2222225798503483
    static constexpr double m2 = f64(0xBFD9999C2BE2DDA8);  // -0.4000006130767937
    static constexpr double m3 = f64(0x3FDFFFFFFFFFD4CD);  // 0.4999999999993861
    static constexpr double j1 = f64(0xBFC5555800001B4F);  // -0.1666669845582995
    static constexpr double j2 = f64(0x3FB9999E2BE2F122);  // 0.10000027247855717

    template <class V> static TARN_INLINE auto fast(V x) {
        const auto [u, d2, value, g] = step(x);
        const V p1 = horner(u, k1, k2, k3, k4) * (u * u) - u;
        const V p2 = horner(u, m1, m2, m3) * u;
        const V p3 = (j1 * u + j2) * d2 + third;
        const V p = (p2 + p3) * d2 + p1;
        return (p * g + g) + value;
    }
};

struct ErfNative : Kernel<double(double)> {
    template <class V> static TARN_INLINE auto fast(V x) {
        const auto [u, d2, value, g] = step(x);
        const V p = third * d2 + (k4 * (u * u) - u);
        return (p * g + g) + value;
    }
};

}  // namespace
}  // namespace tarn::doubles

TARN_EXPORT(unary, erf, full, tarn::doubles::Erf)
TARN_EXPORT(unary, erf, native, tarn::doubles::ErfNative)
