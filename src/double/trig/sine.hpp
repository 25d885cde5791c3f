// What the fast paths of sine and cosine share: pi in pieces and the odd polynomials of the sine on
// [-pi/2, pi/2]. `Full` and `Native` say the same with more and with less.
#pragma once

#include "frame/simd.hpp"

namespace tarn::trig_f64 {

constexpr f64x2 pi = splat_f64(0x400921FB54442D18);       // 3.141592653589793
constexpr f64x2 inv_pi = splat_f64(0x3FD45F306DC9C883);   // 0.3183098861837907
constexpr f64x2 shifter = splat_f64(0x4338000000000000);  // 6755399441055744.0 = 1.5 * 2^52
constexpr f64x2 half = splat(0.5);

// The parity of the integer in a shifted sum, as a sign.
TARN_INLINE i64x2 parity_sign(f64x2 shifted) { return bits(shifted) << 63; }

// x - n pi for whole and for half n below 2^23, in two steps: `near` the exact products, `rest` what
// follows. Then the sine of r from r and r^2.
struct Full {
    static constexpr f64x2 pi_1 = splat_f64(0x400921FB40000000);  // 3.141592502593994
    static constexpr f64x2 pi_2 = splat_f64(0x3E84442D00000000);  // 1.5099578831723193e-07
    static constexpr f64x2 pi_3 = splat_f64(0x3D08469880000000);  // 1.078060505991553e-14
    static constexpr f64x2 pi_4 = splat_f64(0x3B88CC51701B839A);  // 6.564007085747001e-22

    static TARN_INLINE f64x2 near(f64x2 x, f64x2 n) { return (x - n * pi_1) - n * pi_2; }
    static TARN_INLINE f64x2 rest(f64x2 near, f64x2 n) { return (near - n * pi_3) - n * pi_4; }

    static TARN_INLINE f64x2 sine(f64x2 r, f64x2 z) {
        constexpr f64x2 c3 = splat_f64(0xBFC55555555554A8);   // -0.16666666666666186
        constexpr f64x2 c5 = splat_f64(0x3F8111111110A573);   // 0.008333333333285542
        constexpr f64x2 c7 = splat_f64(0xBF2A01A019A659DD);   // -0.00019841269825056256
        constexpr f64x2 c9 = splat_f64(0x3EC71DE3806ADD1A);   // 2.7557316600552628e-06
        constexpr f64x2 c11 = splat_f64(0xBE5AE6355AAA4A53);  // -2.505188027386288e-08
        constexpr f64x2 c13 = splat_f64(0x3DE60E6BEE01D83E);  // 1.6048095404959637e-10
        constexpr f64x2 c15 = splat_f64(0xBD69F1517E9F65F0);  // -7.373344533110665e-13
        return horner(z, c15, c13, c11, c9, c7, c5, c3) * z * r + r;
    }

    // The same with coefficients that give 1 at pi/2 rounded.
    static TARN_INLINE f64x2 cosine(f64x2 r, f64x2 z) {
        constexpr f64x2 c3 = splat_f64(0xBFC55555555554A7);   // -0.16666666666666183
        constexpr f64x2 c5 = splat_f64(0x3F8111111110A4A8);   // 0.00833333333328519
        constexpr f64x2 c7 = splat_f64(0xBF2A01A019A5B86D);   // -0.00019841269824944237
        constexpr f64x2 c9 = splat_f64(0x3EC71DE38030FEA0);   // 2.755731658449074e-06
        constexpr f64x2 c11 = splat_f64(0xBE5AE63546002231);  // -2.505187912674299e-08
        constexpr f64x2 c13 = splat_f64(0x3DE60E6857A2F220);  // 1.6048055576979365e-10
        constexpr f64x2 c15 = splat_f64(0xBD69F0D60811AAC8);  // -7.37280909726507e-13
        return horner(z, c15, c13, c11, c9, c7, c5, c3) * z * r + r;
    }
};
// Relative error of the polynomial 6.1e-9; the two heads of pi have 29 bits.
struct Native {
    static constexpr f64x2 pi_1 = splat_f64(0x400921FB54000000);  // 3.141592651605606
    static constexpr f64x2 pi_2 = splat_f64(0x3E210B4611000000);  // 1.9841871548575973e-09
    static constexpr f64x2 pi_3 = splat_f64(0x3C54C4C6628B80DC);  // 4.503483548312435e-18

    static TARN_INLINE f64x2 near(f64x2 x, f64x2 n) { return (x - n * pi_1) - n * pi_2; }
    static TARN_INLINE f64x2 rest(f64x2 near, f64x2 n) { return near - n * pi_3; }

    static TARN_INLINE f64x2 sine(f64x2 r, f64x2 z) {
        constexpr f64x2 c3 = splat_f64(0xBFC55554BC835325);  // -0.16666659550414767
        constexpr f64x2 c5 = splat_f64(0x3F8110ED3803079A);  // 0.008333066245885413
        constexpr f64x2 c7 = splat_f64(0xBF29F6FFEE70F111);  // -0.00019809602892618313
        constexpr f64x2 c9 = splat_f64(0x3EC5DBDF0C269C03);  // 2.605780623460547e-06
        return horner(z, c9, c7, c5, c3) * z * r + r;
    }
    static TARN_INLINE f64x2 cosine(f64x2 r, f64x2 z) { return sine(r, z); }
};

}  // namespace tarn::trig_f64
