// What the double-precision logarithms share. x = 2^E m: with R/1024 near 1/m, an integer R from the
// processor's reciprocal estimate, r = m R - 1 is below 2^-8 and exact but for one rounding; ln x is
// ln(1 + r) - ln R, and a table holds the latter for R as 512/R up to 724 and 1024/R above, so that the
// exponent term vanishes on both sides of 1.
#pragma once

#include "frame/simd.hpp"

namespace tarn {

#include "tables/log10_rows.inc"
#include "tables/log2_rows.inc"
#include "tables/log_rows.inc"


TARN_INLINE f64x2 significand_1024th(f64x2 x) {
    return from_bits((bits(x) & splat_i64(0x000FFFFFFFFFFFFF)) | splat_i64(0x3F50000000000000));
}

// R in single precision, where the estimate is made; four lanes, of which two count.
TARN_INLINE f32x4 rounded_reciprocal(f64x2 m) {
    return round<Rounding::nearest>(reciprocal_estimate(narrow(m)));
}

TARN_INLINE i64x2 row_of_reciprocal(f32x4 R) {
    return widen_unsigned((bits(R) - splat_i32(0x44000000)) >> 14);
}

// The biased exponent of x less 1023, or less 1022 where the table's lower half stands.
TARN_INLINE f64x2 exponent_for(f64x2 x, f32x4 R) {
    const i32x4 E = shift_right_logical(high_words(bits(x)), 20);
    return to_f64(E - splat(1022) + (bits(R) > splat_i32(0x44350000)));
}

// m R - 1, the product exact in two halves.
TARN_INLINE f64x2 reduced_exactly(f64x2 m, f64x2 R) {
    const f64x2 m_head = from_bits(bits(m) & splat_i64(0xFFFFFFFFFC000000));
    return (m_head * R - splat(1.0)) + (m - m_head) * R;
}

struct BaseE {
    static constexpr const double* rows = log_rows;
    static constexpr f64x2 c2 = splat_f64(0xBFDFFFFFFFFFF81F);   // -0.49999999999988803
    static constexpr f64x2 c3 = splat_f64(0x3FD55555555543C5);   // 0.33333333333308374
    static constexpr f64x2 c4 = splat_f64(0xBFD0000148058EE1);   // -0.2500003054940248
    static constexpr f64x2 c5 = splat_f64(0x3FC9999CACDB4D0A);   // 0.2000003665949424
    static constexpr f64x2 ln2 = splat_f64(0x3FE62E42FEFA39EF);  // 0.6931471805599453
    static TARN_INLINE f64x2 first(f64x2 r) { return r; }
    static TARN_INLINE f64x2 exponent(f64x2 k) { return k * ln2; }
};
struct Base2 {
    static constexpr const double* rows = log2_rows;
    static constexpr f64x2 c1 = splat_f64(0x3FF71547652B82FE);  // 1.4426950408889634
    static constexpr f64x2 c2 = splat_f64(0xBFE71547652B7CF8);  // -0.7213475204443105
    static constexpr f64x2 c3 = splat_f64(0x3FDEC709DC39E926);  // 0.48089834696260636
    static constexpr f64x2 c4 = splat_f64(0xBFD715494C3E7C9B);  // -0.3606742138453655
    static constexpr f64x2 c5 = splat_f64(0x3FD2776E996DA1D2);  // 0.2885395525286444
    static TARN_INLINE f64x2 first(f64x2 r) { return c1 * r; }
    static TARN_INLINE f64x2 exponent(f64x2 k) { return k; }
};
struct Base10 {
    static constexpr const double* rows = log10_rows;
    static constexpr f64x2 c1 = splat_f64(0x3FDBCB7B1526E50E);       // 0.4342944819032518
    static constexpr f64x2 c2 = splat_f64(0xBFCBCB7B1526DE36);       // -0.21714724095157728
    static constexpr f64x2 c3 = splat_f64(0x3FC287A7636F341E);       // 0.14476482730097556
    static constexpr f64x2 c4 = splat_f64(0xBFBBCB7D4EFBE80B);       // -0.10857375315018218
    static constexpr f64x2 c5 = splat_f64(0x3FB63C65231FBD16);       // 0.08685905559081095
    static constexpr f64x2 log10_2 = splat_f64(0x3FD34413509F79FF);  // 0.3010299956639812
    static TARN_INLINE f64x2 first(f64x2 r) { return c1 * r; }
    static TARN_INLINE f64x2 exponent(f64x2 k) { return k * log10_2; }
};

// The logarithm to a base whose coefficients `Base` has: c1 r + r^2 ((c2 + c3 r) + r^2 (c4 + c5 r)), the
// table and the exponent.
template <class Base> TARN_INLINE f64x2 table_log(f64x2 x, f64x2 exponent_moved) {
    const f64x2 m = significand_1024th(x);
    const f32x4 R = rounded_reciprocal(m);
    const f64x2 r = reduced_exactly(m, widen_low(R));
    const f64x2 r2 = r * r;
    const f64x2 poly = Base::first(r) + r2 * ((Base::c2 + Base::c3 * r) + r2 * (Base::c4 + Base::c5 * r));
    return (poly + gather(Base::rows, row_of_reciprocal(R))) + Base::exponent(exponent_for(x, R) + exponent_moved);
}

// The same with two terms less and an unsplit product.
template <class Base> TARN_INLINE f64x2 native_table_log(f64x2 x) {
    const f64x2 m = significand_1024th(x);
    const f32x4 R = rounded_reciprocal(m);
    const f64x2 r = m * widen_low(R) - splat(1.0);
    const f64x2 poly = Base::first(r) + r * r * (Base::c2 + Base::c3 * r);
    return (poly + gather(Base::rows, row_of_reciprocal(R))) + Base::exponent(exponent_for(x, R));
}

}  // namespace tarn
