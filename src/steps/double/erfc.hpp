// The steps of erfc x below 27.25, for kernels and callouts: the row, the series after the leading 1, and the sum.
#pragma once

#include "frame/simd.hpp"

namespace tarn::doubles {

#include "tables/erfc_points.inc"

struct ErfcSeries {
    // Of the value, whose rounding would show where the result is an octave below.
    static constexpr bool has_tail = true;

    template <class V> static TARN_INLINE V series(V u, V d2) {
        // |d| <= 1/256; fit not recorded.
        constexpr double p0 = f64(0x3FE5555555555537);  // 0.6666666666666633
        constexpr double p1 = f64(0xBFD5555555555504);  // -0.33333333333332882
        constexpr double p2 = f64(0x3FC11111111645DF);  // 0.13333333334280348
        constexpr double p3 = f64(0xBFA6C16C16CAF76E);  // -0.04444444444878469
        constexpr double p4 = f64(0x3F8A019F8B1D2E82);  // 0.012698408539697729
        constexpr double p5 = f64(0xBF6A019F7810CFBB);  // -0.0031746019963296546
        constexpr double p6 = f64(0x3F4722CA903BD766);  // 0.00070605173865943556
        constexpr double p7 = f64(0xBF2282657966CC64);  // -0.00014121521662744101
        constexpr double q0 = f64(0xBFD5555555554A9F);  // -0.3333333333331811
        constexpr double q1 = f64(0x3FE0000000386453);  // 0.50000000041030501
        constexpr double q2 = f64(0xBFD9999999F568B0);  // -0.40000000033399896
        constexpr double q3 = f64(0x3FCC71C4B157E2CD);  // 0.2222219339307884
        constexpr double q4 = f64(0xBFB861840CE5C81E);  // -0.095237973355125821
        constexpr double q5 = f64(0x3FA117B40CA1CE09);  // 0.033383966962812713
        constexpr double q6 = f64(0xBF8441EA7160BACC);  // -0.0098913493967222252
        constexpr double r0 = f64(0x3FB999999999999A);  // 0.1
        constexpr double r1 = f64(0xBFC5555555555555);  // -0.16666666666666666
        constexpr double r2 = f64(0x3FC2492492492492);  // 0.14285714285714285
        constexpr double r3 = f64(0xBFB5555555555555);  // -0.08333333333333333
        constexpr double r4 = f64(0x3FA2F684BDA12F68);  // 0.037037037037037035
        const V in_u = horner(u, p7, p6, p5, p4, p3, p2, p1, p0) * (u * u) - u;
        const V in_d = horner(u, q6, q5, q4, q3, q2, q1, q0) + horner(u, r4, r3, r2, r1, r0) * d2;
        return in_d * d2 + in_u;
    }
};

// A NaN may give anything.
template <class Form, class V> TARN_INLINE V erfc_steps(V x) {
    constexpr double largest = 27.25;
    constexpr double shifter = f64(0x42C0000000000000);   // 2^45: rounds to 128ths
    constexpr double smallest = f64(0x3BF0000000000000);  // 2^-64
    constexpr double unscale = f64(0x3BF0000000000000);   // 2^-64
    constexpr double two = f64(0xC400000000000000);       // -2^65
    const V a = min(abs(x), largest);
    const V shifted = a + shifter;
    const V c = shifted - shifter;
    const V d = max(a, smallest) - c;
    const BitsOf<V> row = bits(shifted) & 0xFFF;
    const auto [value, slope] = gather_columns(erfc_points, row);
    const V g = slope * d;
    const V step = g + g * Form::series(c * d, d * d);
    const V scaled = value - (Form::has_tail ? step - gather_columns<1>(erfc_points, row).second : step);
    const auto negative = x < 0.0;
    const V sum = scaled + where(negative, two);
    return sum * or_bits(unscale, negative & sign_mask<V>);
}

}  // namespace tarn::doubles
