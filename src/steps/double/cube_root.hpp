// The steps of the cube root and of its reciprocal, for kernels and callouts. x = +-2^(3 (q - 341) + rem) m
// with rem in 0..2 and c the middle of the 32nd of [1, 2) that holds m; t = (m - c)/c, below 1/65. The root of
// 2^rem c is a pair in a table row, (1 + t)^(+-1/3) a polynomial, and the power of two goes into the exponent. No
// division: -1/c stands in the same row, and the exponent is divided by 3 with shifts and sums.
#pragma once

#include "frame/simd.hpp"

namespace tarn::doubles {

#include "tables/cube_root_pairs.inc"
#include "tables/reciprocal_cube_root_pairs.inc"

// |t| < 1/65; fit not recorded.
struct CubeRoot {
    static constexpr bool has_tail = true;  // of the pair
    static constexpr const auto& rows = cube_root_pairs;
    static constexpr double c7 = f64(0x3F93770EFD478A60);  // 0.019008859833670733
    static constexpr double c6 = f64(0xBF980AC5B080C379);  // -0.023478592775237204
    static constexpr double c5 = f64(0x3F9EE7111CB121B7);  // 0.030178325058189261
    static constexpr double c4 = f64(0xBFA511E8CC07433C);  // -0.041152262597853512
    static constexpr double c3 = f64(0x3FAF9ADD3C0CD586);  // 0.061728395061815752
    static constexpr double c2 = f64(0xBFBC71C71C71CD94);  // -0.11111111111113409
    static constexpr double c1 = f64(0x3FD5555555555555);  // 0.33333333333333331

    template <class V> static TARN_INLINE V series(V t) { return horner(t, c7, c6, c5, c4, c3, c2, c1); }
    template <class I> static TARN_INLINE I exponent(I q) { return q + (1023 - 341); }
};
struct CubeRootNative : CubeRoot {
    static constexpr bool has_tail = false;
    static constexpr double n3 = f64(0x3FAF9C3A717169CE);  // 0.06173880228807925
    static constexpr double n2 = f64(0xBFBC7241B3FB1497);  // -0.11111841816007693
    static constexpr double n1 = f64(0x3FD5555554AEC3A1);  // 0.33333333272735827

    template <class V> static TARN_INLINE V series(V t) { return horner(t, n3, n2, n1); }
};

struct ReciprocalCubeRoot {
    static constexpr bool has_tail = true;
    static constexpr const auto& rows = reciprocal_cube_root_pairs;
    static constexpr double c8 = f64(0x3FB791C7B3DDAFDF);  // 0.092068177616681166
    static constexpr double c7 = f64(0xBFB9B5E1E002E081);  // -0.10043155402206773
    static constexpr double c6 = f64(0x3FBC67C9DE2219A1);  // 0.11095868752645412
    static constexpr double c5 = f64(0xBFBFF4C325EA7955);  // -0.12482852626496783
    static constexpr double c4 = f64(0x3FC26FABB85D0023);  // 0.14403292181123203
    static constexpr double c3 = f64(0xBFC61F9ADD3C346E);  // -0.17283950617312221
    static constexpr double c2 = f64(0x3FCC71C71C71C71C);  // 0.22222222222222221
    static constexpr double c1 = f64(0xBFD5555555555555);  // -0.33333333333333331

    template <class V> static TARN_INLINE V series(V t) { return horner(t, c8, c7, c6, c5, c4, c3, c2, c1); }
    template <class I> static TARN_INLINE I exponent(I q) { return (1023 + 341) - q; }
};
struct ReciprocalCubeRootNative : ReciprocalCubeRoot {
    static constexpr bool has_tail = false;
    static constexpr double n3 = f64(0xBFC6209CEAE70631);  // -0.1728702685341417
    static constexpr double n2 = f64(0x3FCC729DA8400E25);  // 0.22224779811232157
    static constexpr double n1 = f64(0xBFD555555434E218);  // -0.33333333228395778

    template <class V> static TARN_INLINE V series(V t) { return horner(t, n3, n2, n1); }
};

// The root of normal numbers of either sign. Anything else gives anything, from rows that exist.
template <class Root, class V> TARN_INLINE V cube_root_steps(V x) {
    const BitsOf<V> b = bits(x);
    const BitsOf<V> sign_and_exponent = shift_right_logical(b, 52);
    const BitsOf<V> sign = sign_and_exponent & 0x800;
    const BitsOf<V> e = sign_and_exponent & 0x7FF;
    const BitsOf<V> e5 = (e << 2) + e;
    const BitsOf<V> e85 = (e5 << 4) + e5;
    const BitsOf<V> q = shift_right_logical((e85 << 4) + (e5 + e), 12);  // 1366 e / 4096
    const BitsOf<V> rem = e - (q + q + q);

    const BitsOf<V> row = (rem << 5) + (shift_right_logical(b, 47) & 31);
    const V minus_m = from_bits((b & 0x000FFFFFFFFFFFFF) | i64(0xBFF0000000000000));
    const V minus_c = from_bits((b & 0x000F800000000000) | i64(0xBFF0400000000000));
    const V scale = from_bits((Root::exponent(q) | sign) << 52);
    const auto [table_high, minus_reciprocal] = gather_columns(Root::rows, row);
    const V t = (minus_m - minus_c) * minus_reciprocal;
    const V high = table_high * scale;
    const V rest = Root::series(t) * (t * high);
    if constexpr (Root::has_tail) return (rest + gather_columns<2>(Root::rows, row).first * scale) + high;
    else return rest + high;
}

}  // namespace tarn::doubles
