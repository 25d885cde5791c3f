// Powers in single precision with split numbers: ln x as a pair of floats, its exact product with the
// exponent, and e^z with the product's tail added to the reduced argument.
//
// ln x: x = 2^k m, m rounded to 7 fraction bits names a row i; R, 1/(1 + i/128) in ten significant
// bits, makes u = mh R - 1 and v = ml R exact for the two halves of m, r = u + v is below 2^-7, and
// ln x = k ln 2 - ln R + ln(1 + r) with a quartic. From row 54 on k is one higher, so that it is 0 on
// both sides of 1.
#pragma once

#include "frame/kernel.hpp"

namespace tarn {

#include "tables/powrf_logs.inc"

// A number as the sum of two.
struct Split {
    f32x4 head, tail;
};

// The sum of a larger and a smaller number, and its rounding error.
TARN_INLINE Split ordered_sum(f32x4 larger, f32x4 smaller) {
    const f32x4 sum = larger + smaller;
    return {sum, smaller - (sum - larger)};
}

// The upper 12 bits of a number and the rest, so that the products of halves are exact.
TARN_INLINE Split halves(f32x4 x) {
    const f32x4 scaled = x * splat(4097.0f);
    const f32x4 head = scaled - (scaled - x);
    return {head, x - head};
}

// a b, and what rounding it lost.
TARN_INLINE Split exact_product(f32x4 a, const Split& a_halves, f32x4 b, const Split& b_halves) {
    const auto& [ah, al] = a_halves;
    const auto& [bh, bl] = b_halves;
    const f32x4 product = a * b;
    return {product, (((ah * bh - product) + ah * bl) + al * bh) + al * bl};
}

TARN_INLINE Split split_log(f32x4 x) {
    const f32x4 ln2_head = splat_f32(0x3F317000);  // 0.693115234375
    const f32x4 ln2_tail = splat_f32(0x3805FDF4);  // 3.194618329871446e-05
    const f32x4 c4 = splat(-0.25f);
    const f32x4 c3 = splat_f32(0x3EAAAAAB);  // 0.3333333432674408
    const f32x4 c2 = splat(-0.5f);
    const i32x4 switch_row = splat((128 - 54) << 16);

    const i32x4 rounded = bits(x) + splat(0x8000);
    const i32x4 row = (rounded >> 16) & splat(127);
    const f32x4 k = to_float(((rounded + switch_row) >> 23) - splat(127));
    const f32x4 m = from_bits(bits(x) - (rounded & splat_i32(0x7F800000)) + splat_i32(0x3F800000));
    const auto [reciprocal, table_head, table_tail, padding] = gather_quads(powrf_logs, row);

    const f32x4 mh = from_bits(bits(m) & splat_i32(0x7FFFC000));
    const f32x4 u = mh * reciprocal - splat(1.0f);
    const auto [r, r_tail] = ordered_sum(u, (m - mh) * reciprocal);
    const f32x4 p = horner(r, c4, c3, c2) * (r * r);
    const auto [sum, sum_tail] = ordered_sum(k * ln2_head + table_head, r);
    return ordered_sum(sum, (r_tail + sum_tail) + ((k * ln2_tail + table_tail) + p));
}

// The degree-5 polynomials of e^r, r in [-0.35, 0.35].
struct RealExponentExp {
    static constexpr f32x4 a5 = splat_f32(0x3C07D9FE);  // 0.008291719481348991
    static constexpr f32x4 a4 = splat_f32(0x3D2B8392);  // 0.041873522102832794
    static constexpr f32x4 a3 = splat_f32(0x3E2AACAC);  // 0.16667431592941284
    static constexpr f32x4 a2 = splat_f32(0x3EFFFF34);  // 0.4999939203262329
    static constexpr f32x4 a1 = splat_f32(0x3F7FFFFE);  // 0.9999998807907104
    static constexpr std::uint32_t bound = 0x42819F00;  // 64.810546875
};
struct IntegerExponentExp {
    static constexpr f32x4 a5 = splat_f32(0x3C0950EF);  // 0.008381112478673458
    static constexpr f32x4 a4 = splat_f32(0x3D2BB1B6);  // 0.04191752523183823
    static constexpr f32x4 a3 = splat_f32(0x3E2AA9C6);  // 0.16666325926780701
    static constexpr f32x4 a2 = splat_f32(0x3EFFFE85);  // 0.4999887049198151
    static constexpr f32x4 a1 = splat_f32(0x3F800001);  // 1.0000001192092896
    static constexpr std::uint32_t bound = 0x42AE9A00;  // 87.30078125
};

// x^y from ln x and a y in two parts, with its halves. An infinite or NaN y, and one too large to be halved, leaves
// an infinity or NaN in the exponent, which is tested as an integer.
template <class Exp>
TARN_INLINE Flagged<f32x4, i32x4> split_power(f32x4 x, const Split& log, f32x4 y, const Split& y_halves, f32x4 y_tail) {
    const f32x4 log2_e = splat_f32(0x3FB8AA3B);    // 1.4426950216293335
    const f32x4 shifter = splat_f32(0x4B400000);   // 12582912.0 = 1.5 * 2^23
    const f32x4 ln2_head = splat_f32(0x3F317200);  // 0.693145751953125
    const f32x4 ln2_tail = splat_f32(0x35BFBE8E);  // 1.428606765330187e-06

    const auto [z, rounding] = exact_product(log.head, halves(log.head), y, y_halves);
    const f32x4 z_tail = rounding + (log.tail * y + log.head * y_tail);

    const f32x4 shifted = z * log2_e + shifter;
    const f32x4 n = shifted - shifter;
    const f32x4 r = ((z - n * ln2_head) - n * ln2_tail) + z_tail;
    const f32x4 p = horner(r, Exp::a5, Exp::a4, Exp::a3, Exp::a2, Exp::a1, splat(1.0f));
    return {from_bits(bits(p) + (bits(shifted) << 23)),
            not_positive_normal(x) | magnitude_above(z + z_tail, Exp::bound)};
}

}  // namespace tarn
