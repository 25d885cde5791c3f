// Powers in single precision with split numbers: ln x as a pair of floats, its exact product with the
// exponent, and e^z with the product's tail added to the reduced argument.
//
// ln x: x = 2^k m, m rounded to 7 fraction bits names a row i; R, 1/(1 + i/128) in ten significant
// bits, makes u = mh R - 1 and v = ml R exact for the two halves of m, r = u + v is below 2^-7, and
// ln x = k ln 2 - ln R + ln(1 + r) with a quartic. From row 54 on k is one higher, so that it is 0 on
// both sides of 1.
#pragma once

#include "frame/double_word.hpp"
#include "frame/kernel.hpp"

namespace tarn::singles {

#include "tables/powrf_logs.inc"

template <class V> TARN_INLINE HeadTail<V> split_log(V x) {
    constexpr float ln2_head = f32(0x3F317000);  // 0.693115234375
    constexpr float ln2_tail = f32(0x3805FDF4);  // 3.194618329871446e-05
    constexpr float c4 = -0.25f;
    constexpr float c3 = f32(0x3EAAAAAB);  // 0.3333333432674408
    constexpr float c2 = -0.5f;
    constexpr std::int32_t switch_row = (128 - 54) << 16;

    const BitsOf<V> rounded = bits(x) + 0x8000;
    const BitsOf<V> row = (rounded >> 16) & 127;
    const V k = to_f32(((rounded + switch_row) >> 23) - 127);
    const V m = from_bits(bits(x) - (rounded & 0x7F800000) + 0x3F800000);
    const auto [reciprocal, table_head, table_tail, padding] = gather_quads(powrf_logs, row);

    const V mh = and_bits(m, 0x7FFFC000);
    const V u = mh * reciprocal - 1.0f;
    const auto [r, r_tail] = fast_two_sum(u, (m - mh) * reciprocal);
    const V p = horner(r, c4, c3, c2) * (r * r);
    const auto [sum, sum_tail] = fast_two_sum(k * ln2_head + table_head, r);
    return fast_two_sum(sum, (r_tail + sum_tail) + ((k * ln2_tail + table_tail) + p));
}

// The degree-5 polynomials of e^r. |r| <= 0.35; fit not recorded.
struct RealExponentExp {
    static constexpr float a5 = f32(0x3C07D9FE);        // 0.008291719481348991
    static constexpr float a4 = f32(0x3D2B8392);        // 0.041873522102832794
    static constexpr float a3 = f32(0x3E2AACAC);        // 0.16667431592941284
    static constexpr float a2 = f32(0x3EFFFF34);        // 0.4999939203262329
    static constexpr float a1 = f32(0x3F7FFFFE);        // 0.9999998807907104
    static constexpr std::uint32_t bound = 0x42819F00;  // 64.810546875
};
struct IntegerExponentExp {
    static constexpr float a5 = f32(0x3C0950EF);        // 0.008381112478673458
    static constexpr float a4 = f32(0x3D2BB1B6);        // 0.04191752523183823
    static constexpr float a3 = f32(0x3E2AA9C6);        // 0.16666325926780701
    static constexpr float a2 = f32(0x3EFFFE85);        // 0.4999887049198151
    static constexpr float a1 = f32(0x3F800001);        // 1.0000001192092896
    static constexpr std::uint32_t bound = 0x42AE9A00;  // 87.30078125
};

// x^y from ln x and a y in two parts, with its split. An infinite or NaN y, and one too large to be split, leaves
// an infinity or NaN in the exponent, which is tested as an integer.
template <class Exp, class V>
TARN_INLINE Flagged<V, BitsOf<V>> split_power(V x, const HeadTail<V>& log, V y, const HeadTail<V>& y_split, V y_tail) {
    constexpr float log2_e = f32(0x3FB8AA3B);    // 1.4426950216293335
    constexpr float shifter = f32(0x4B400000);   // 12582912.0 = 1.5 * 2^23
    constexpr float ln2_head = f32(0x3F317200);  // 0.693145751953125
    constexpr float ln2_tail = f32(0x35BFBE8E);  // 1.428606765330187e-06

    const auto [z, rounding] = two_product(log.head, veltkamp_split(log.head), y, y_split);
    const V z_tail = rounding + (log.tail * y + log.head * y_tail);

    const V shifted = z * log2_e + shifter;
    const V n = shifted - shifter;
    const V r = ((z - n * ln2_head) - n * ln2_tail) + z_tail;
    const V p = horner(r, Exp::a5, Exp::a4, Exp::a3, Exp::a2, Exp::a1, 1.0f);
    return {from_bits(bits(p) + (bits(shifted) << 23)),
            not_positive_normal(x) | magnitude_above(z + z_tail, Exp::bound)};
}

}  // namespace tarn::singles
