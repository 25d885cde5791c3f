// The steps of the cube root and of its reciprocal, for kernels and callouts. x = +-2^(3q + rem - 126) m
// with rem in 0..2 and c the middle of the 32nd of [1, 2) that holds m; t = (m - c)/c. The root of
// 2^rem c is a pair in a table row, (1 + t)^(+-1/3) a short series, and the power of two goes into the
// exponent. No division: -1/c stands in the same row, and the exponent is divided by 3 with shifts and
// sums.
#pragma once

#include "frame/simd.hpp"

namespace tarn {

#include "tables/cube_root_rows.inc"
#include "tables/reciprocal_cube_root_rows.inc"

struct CubeRoot {
    static constexpr const auto& rows = cube_root_rows;
    static constexpr f32x4 c4 = splat_f32(0xBD288F47);  // -0.041152264922857285 = -10/243
    static constexpr f32x4 c3 = splat_f32(0x3D7CD6EA);  // 0.06172839552164078 = 5/81
    static constexpr f32x4 c2 = splat_f32(0xBDE38E39);  // -0.1111111119389534 = -1/9
    static constexpr f32x4 c1 = splat_f32(0x3EAAAAAB);  // 0.3333333432674408 = 1/3

    static TARN_INLINE i32x4 exponent(i32x4 q) { return q + splat(85); }  // of 2^(q - 42)
};

struct ReciprocalCubeRoot {
    static constexpr const auto& rows = reciprocal_cube_root_rows;
    static constexpr f32x4 c4 = splat_f32(0x3E137D5E);  // 0.14403292536735535 = 35/243
    static constexpr f32x4 c3 = splat_f32(0xBE30FCD7);  // -0.17283950746059418 = -14/81
    static constexpr f32x4 c2 = splat_f32(0x3E638E39);  // 0.2222222238779068 = 2/9
    static constexpr f32x4 c1 = splat_f32(0xBEAAAAAB);  // -0.3333333432674408 = -1/3

    static TARN_INLINE i32x4 exponent(i32x4 q) { return splat(169) - q; }  // of 2^(42 - q)
};

// The root of normal numbers of either sign by all terms of the series or, short, by its linear one.
// Special lanes read row 0, which keeps the load inside the table.
template <class Root, bool short_series = false> TARN_INLINE f32x4 cube_root_steps(f32x4 x, i32x4 special) {
    const i32x4 b = bits(x);
    const i32x4 sign_and_exponent = shift_right_logical(b, 23);
    const i32x4 sign = sign_and_exponent & splat(0x100);
    const i32x4 e = sign_and_exponent & splat(0xFF);
    const i32x4 e5 = (e << 2) + e;
    const i32x4 e85 = (e5 << 4) + e5;
    const i32x4 q = ((e85 << 4) + e5) >> 12;  // 1365 e / 4096
    const i32x4 rem = e - splat(1) - (q + q + q);

    const i32x4 row = ((rem << 5) + (shift_right_logical(b, 18) & splat(31))) & ~special;
    const auto [table_high, table_low, minus_reciprocal, padding] = gather_quads(Root::rows, row);
    const f32x4 minus_m = from_bits((b & splat(0x007FFFFF)) | splat_i32(0xBF800000));
    const f32x4 minus_c = from_bits((b & splat(0x007E0000)) | splat_i32(0xBF820000));
    const f32x4 t = (minus_m - minus_c) * minus_reciprocal;

    const f32x4 scale = from_bits((Root::exponent(q) | sign) << 23);
    const f32x4 high = table_high * scale, low = table_low * scale;
    const f32x4 series = short_series ? Root::c1 : horner(t, Root::c4, Root::c3, Root::c2, Root::c1);
    return (series * (t * high) + low) + high;
}

}  // namespace tarn
