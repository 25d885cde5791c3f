// The steps of the cube root and of its reciprocal, for kernels and callouts. x = +-2^(3q + rem - 126) m
// with rem in 0..2 and c the middle of the 32nd of [1, 2) that holds m; t = (m - c)/c. The root of
// 2^rem c is a pair in a table row, (1 + t)^(+-1/3) a short series, and the power of two goes into the
// exponent. No division: -1/c stands in the same row, and the exponent is divided by 3 with shifts and
// sums.
#pragma once

#include "frame/simd.hpp"

namespace tarn::singles {

#include "tables/cube_root_rows.inc"
#include "tables/reciprocal_cube_root_rows.inc"

struct CubeRoot {
    static constexpr const auto& rows = cube_root_rows;
    static constexpr float c4 = f32(0xBD288F47);  // -0.041152264922857285 = -10/243
    static constexpr float c3 = f32(0x3D7CD6EA);  // 0.06172839552164078 = 5/81
    static constexpr float c2 = f32(0xBDE38E39);  // -0.1111111119389534 = -1/9
    static constexpr float c1 = f32(0x3EAAAAAB);  // 0.3333333432674408 = 1/3

    template <class V> static TARN_INLINE V series(V t) { return horner(t, c4, c3, c2, c1); }
    template <class I> static TARN_INLINE I exponent(I q) { return q + 85; }  // of 2^(q - 42)
};
struct CubeRootNative : CubeRoot {
    template <class V> static TARN_INLINE float series(V) { return c1; }
};

struct ReciprocalCubeRoot {
    static constexpr const auto& rows = reciprocal_cube_root_rows;
    static constexpr float c4 = f32(0x3E137D5E);  // 0.14403292536735535 = 35/243
    static constexpr float c3 = f32(0xBE30FCD7);  // -0.17283950746059418 = -14/81
    static constexpr float c2 = f32(0x3E638E39);  // 0.2222222238779068 = 2/9
    static constexpr float c1 = f32(0xBEAAAAAB);  // -0.3333333432674408 = -1/3

    template <class V> static TARN_INLINE V series(V t) { return horner(t, c4, c3, c2, c1); }
    template <class I> static TARN_INLINE I exponent(I q) { return 169 - q; }  // of 2^(42 - q)
};
struct ReciprocalCubeRootNative : ReciprocalCubeRoot {
    template <class V> static TARN_INLINE float series(V) { return c1; }
};

// The root of normal numbers of either sign. Special lanes read row 0, which keeps the load inside the table.
template <class Root, class V> TARN_INLINE V cube_root_steps(V x, BitsOf<V> special) {
    const BitsOf<V> b = bits(x);
    const BitsOf<V> sign_and_exponent = shift_right_logical(b, 23);
    const BitsOf<V> sign = sign_and_exponent & 0x100;
    const BitsOf<V> e = sign_and_exponent & 0xFF;
    const BitsOf<V> e5 = (e << 2) + e;
    const BitsOf<V> e85 = (e5 << 4) + e5;
    const BitsOf<V> q = ((e85 << 4) + e5) >> 12;  // 1365 e / 4096
    const BitsOf<V> rem = e - 1 - (q + q + q);

    const BitsOf<V> row = ((rem << 5) + (shift_right_logical(b, 18) & 31)) & ~special;
    const auto [table_high, table_low, minus_reciprocal, padding] = gather_quads(Root::rows, row);
    const V minus_m = from_bits((b & 0x007FFFFF) | i32(0xBF800000));
    const V minus_c = from_bits((b & 0x007E0000) | i32(0xBF820000));
    const V t = (minus_m - minus_c) * minus_reciprocal;

    const V scale = from_bits((Root::exponent(q) | sign) << 23);
    const V high = table_high * scale, low = table_low * scale;
    return (Root::series(t) * (t * high) + low) + high;
}

}  // namespace tarn::singles
