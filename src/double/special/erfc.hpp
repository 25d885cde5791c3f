// The steps of erfc x for x below 27.25, for kernels and callouts: the row, the series after the leading 1, and the sum.
#pragma once

#include "frame/simd.hpp"

namespace tarn {

#include "tables/erfc_points.inc"

struct ErfcSeries {
    static constexpr bool has_tail = true;  // of the value, whose rounding would show where the result is an octave below

    static TARN_INLINE f64x2 series(f64x2 u, f64x2 d2) {
        constexpr f64x2 p0 = splat_f64(0x3FE5555555555537);  // 0.6666666666666633
        constexpr f64x2 p1 = splat_f64(0xBFD5555555555504);  // -0.33333333333332882
        constexpr f64x2 p2 = splat_f64(0x3FC11111111645DF);  // 0.13333333334280348
        constexpr f64x2 p3 = splat_f64(0xBFA6C16C16CAF76E);  // -0.04444444444878469
        constexpr f64x2 p4 = splat_f64(0x3F8A019F8B1D2E82);  // 0.012698408539697729
        constexpr f64x2 p5 = splat_f64(0xBF6A019F7810CFBB);  // -0.0031746019963296546
        constexpr f64x2 p6 = splat_f64(0x3F4722CA903BD766);  // 0.00070605173865943556
        constexpr f64x2 p7 = splat_f64(0xBF2282657966CC64);  // -0.00014121521662744101
        constexpr f64x2 q0 = splat_f64(0xBFD5555555554A9F);  // -0.3333333333331811
        constexpr f64x2 q1 = splat_f64(0x3FE0000000386453);  // 0.50000000041030501
        constexpr f64x2 q2 = splat_f64(0xBFD9999999F568B0);  // -0.40000000033399896
        constexpr f64x2 q3 = splat_f64(0x3FCC71C4B157E2CD);  // 0.2222219339307884
        constexpr f64x2 q4 = splat_f64(0xBFB861840CE5C81E);  // -0.095237973355125821
        constexpr f64x2 q5 = splat_f64(0x3FA117B40CA1CE09);  // 0.033383966962812713
        constexpr f64x2 q6 = splat_f64(0xBF8441EA7160BACC);  // -0.0098913493967222252
        constexpr f64x2 r0 = splat_f64(0x3FB999999999999A);  // 0.1
        constexpr f64x2 r1 = splat_f64(0xBFC5555555555555);  // -0.16666666666666666
        constexpr f64x2 r2 = splat_f64(0x3FC2492492492492);  // 0.14285714285714285
        constexpr f64x2 r3 = splat_f64(0xBFB5555555555555);  // -0.08333333333333333
        constexpr f64x2 r4 = splat_f64(0x3FA2F684BDA12F68);  // 0.037037037037037035
        const f64x2 in_u = horner(u, p7, p6, p5, p4, p3, p2, p1, p0) * (u * u) - u;
        const f64x2 in_d = horner(u, q6, q5, q4, q3, q2, q1, q0) + horner(u, r4, r3, r2, r1, r0) * d2;
        return in_d * d2 + in_u;
    }
};

// A NaN may give anything.
template <class Form> TARN_INLINE f64x2 erfc_steps(f64x2 x) {
    const f64x2 largest = splat(27.25);
    const f64x2 shifter = splat_f64(0x42C0000000000000);   // 2^45: rounds to 128ths
    const f64x2 smallest = splat_f64(0x3BF0000000000000);  // 2^-64
    const f64x2 unscale = splat_f64(0x3BF0000000000000);   // 2^-64
    const f64x2 two = splat_f64(0xC400000000000000);       // -2^65
    const f64x2 a = min(abs(x), largest);
    const f64x2 shifted = a + shifter;
    const f64x2 c = shifted - shifter;
    const f64x2 d = max(a, smallest) - c;
    const i64x2 row = bits(shifted) & splat_i64(0xFFF);
    const auto [value, slope] = gather_columns(erfc_points, row);
    const f64x2 g = slope * d;
    const f64x2 step = g + g * Form::series(c * d, d * d);
    const f64x2 scaled = value - (Form::has_tail ? step - gather_columns<1>(erfc_points, row).second : step);
    const i64x2 negative = (i64x2)(x < splat(0.0));
    const f64x2 sum = scaled + where(negative, two);
    return sum * or_bits(unscale, negative & sign_mask_f64);
}

}  // namespace tarn
