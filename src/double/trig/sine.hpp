// What the fast paths of sine and cosine share: pi in pieces and the odd polynomials of the sine on
// [-pi/2, pi/2]. `Full` and `Native` say the same with more and with less.
#pragma once

#include "frame/simd.hpp"

namespace tarn::doubles::sine {

constexpr double pi = f64(0x400921FB54442D18);       // 3.141592653589793
constexpr double inv_pi = f64(0x3FD45F306DC9C883);   // 0.3183098861837907
constexpr double shifter = f64(0x4338000000000000);  // 6755399441055744.0 = 1.5 * 2^52
constexpr double half = 0.5;

// The parity of the integer in a shifted sum, as a sign.
template <class V> TARN_INLINE BitsOf<V> parity_sign(V shifted) { return bits(shifted) << 63; }

// x - n pi for whole and for half n below 2^23, in two steps: `near` the exact products, `rest` what
// follows. Then the sine of r from r and r^2. |r| <= pi/2; fit not recorded.
struct Full {
    static constexpr double pi_1 = f64(0x400921FB40000000);  // 3.141592502593994
    static constexpr double pi_2 = f64(0x3E84442D00000000);  // 1.5099578831723193e-07
    static constexpr double pi_3 = f64(0x3D08469880000000);  // 1.078060505991553e-14
    static constexpr double pi_4 = f64(0x3B88CC51701B839A);  // 6.564007085747001e-22

    template <class V> static TARN_INLINE V near(V x, V n) { return (x - n * pi_1) - n * pi_2; }
    template <class V> static TARN_INLINE V rest(V near, V n) { return (near - n * pi_3) - n * pi_4; }

    template <class V> static TARN_INLINE V sine(V r, V z) {
        constexpr double c3 = f64(0xBFC55555555554A8);   // -0.16666666666666186
        constexpr double c5 = f64(0x3F8111111110A573);   // 0.008333333333285542
        constexpr double c7 = f64(0xBF2A01A019A659DD);   // -0.00019841269825056256
        constexpr double c9 = f64(0x3EC71DE3806ADD1A);   // 2.7557316600552628e-06
        constexpr double c11 = f64(0xBE5AE6355AAA4A53);  // -2.505188027386288e-08
        constexpr double c13 = f64(0x3DE60E6BEE01D83E);  // 1.6048095404959637e-10
        constexpr double c15 = f64(0xBD69F1517E9F65F0);  // -7.373344533110665e-13
        return horner(z, c15, c13, c11, c9, c7, c5, c3) * z * r + r;
    }

    // The same with coefficients that give 1 at pi/2 rounded.
    template <class V> static TARN_INLINE V cosine(V r, V z) {
        constexpr double c3 = f64(0xBFC55555555554A7);   // -0.16666666666666183
        constexpr double c5 = f64(0x3F8111111110A4A8);   // 0.00833333333328519
        constexpr double c7 = f64(0xBF2A01A019A5B86D);   // -0.00019841269824944237
        constexpr double c9 = f64(0x3EC71DE38030FEA0);   // 2.755731658449074e-06
        constexpr double c11 = f64(0xBE5AE63546002231);  // -2.505187912674299e-08
        constexpr double c13 = f64(0x3DE60E6857A2F220);  // 1.6048055576979365e-10
        constexpr double c15 = f64(0xBD69F0D60811AAC8);  // -7.37280909726507e-13
        return horner(z, c15, c13, c11, c9, c7, c5, c3) * z * r + r;
    }
};
// Relative error of the polynomial 6.1e-9; the two heads of pi have 29 bits.
struct Native {
    static constexpr double pi_1 = f64(0x400921FB54000000);  // 3.141592651605606
    static constexpr double pi_2 = f64(0x3E210B4611000000);  // 1.9841871548575973e-09
    static constexpr double pi_3 = f64(0x3C54C4C6628B80DC);  // 4.503483548312435e-18

    template <class V> static TARN_INLINE V near(V x, V n) { return (x - n * pi_1) - n * pi_2; }
    template <class V> static TARN_INLINE V rest(V near, V n) { return near - n * pi_3; }

    template <class V> static TARN_INLINE V sine(V r, V z) {
        constexpr double c3 = f64(0xBFC55554BC835325);  // -0.16666659550414767
        constexpr double c5 = f64(0x3F8110ED3803079A);  // 0.008333066245885413
        constexpr double c7 = f64(0xBF29F6FFEE70F111);  // -0.00019809602892618313
        constexpr double c9 = f64(0x3EC5DBDF0C269C03);  // 2.605780623460547e-06
        return horner(z, c9, c7, c5, c3) * z * r + r;
    }
    template <class V> static TARN_INLINE V cosine(V r, V z) { return sine(r, z); }
};

}  // namespace tarn::doubles::sine
