// What the double-precision logarithms share. x = 2^E m: with R/1024 near 1/m, an integer R from the
// processor's reciprocal estimate, r = m R - 1 is below 2^-8 and exact but for one rounding; ln x is
// ln(1 + r) - ln R, and a table holds the latter for R as 512/R up to 724 and 1024/R above, so that the
// exponent term vanishes on both sides of 1.
#pragma once

#include "frame/simd.hpp"

namespace tarn::doubles {

#include "tables/log10_rows.inc"
#include "tables/log2_rows.inc"
#include "tables/log_rows.inc"

template <class V> TARN_INLINE V significand_1024th(V x) {
    return from_bits((bits(x) & 0x000FFFFFFFFFFFFF) | 0x3F50000000000000);
}

// R in single precision, where the estimate is made, in the low half of a vector.
template <class V> TARN_INLINE Like<V, float> rounded_reciprocal(V m) {
    return round<Rounding::nearest>(reciprocal_estimate(narrow(m)));
}

template <Singles S> TARN_INLINE auto row_of_reciprocal(S R) {
    return widen_unsigned((bits(R) - 0x44000000) >> 14);
}

// The biased exponent of x less 1023, or less 1022 where the table's lower half stands.
template <class V> TARN_INLINE V exponent_for(V x, Like<V, float> R) {
    const WordsOf<V> E = shift_right_logical(high_words(bits(x)), 20);
    return to_f64(E - 1022 + (bits(R) > 0x44350000));
}

// m R - 1, the product exact in two halves.
template <class V> TARN_INLINE V reduced_exactly(V m, V R) {
    const V m_head = and_bits(m, i64(0xFFFFFFFFFC000000));
    return (m_head * R - 1.0) + (m - m_head) * R;
}

// |r| < 2^-8; fit not recorded.
struct BaseE {
    static constexpr const auto& rows = log_rows;
    static constexpr double c2 = f64(0xBFDFFFFFFFFFF81F);   // -0.49999999999988803
    static constexpr double c3 = f64(0x3FD55555555543C5);   // 0.33333333333308374
    static constexpr double c4 = f64(0xBFD0000148058EE1);   // -0.2500003054940248
    static constexpr double c5 = f64(0x3FC9999CACDB4D0A);   // 0.2000003665949424
    static constexpr double ln2 = f64(0x3FE62E42FEFA39EF);  // 0.6931471805599453
    template <class V> static TARN_INLINE V first(V r) { return r; }
    template <class V> static TARN_INLINE V exponent(V k) { return k * ln2; }
};
struct Base2 {
    static constexpr const auto& rows = log2_rows;
    static constexpr double c1 = f64(0x3FF71547652B82FE);  // 1.4426950408889634
    static constexpr double c2 = f64(0xBFE71547652B7CF8);  // -0.7213475204443105
    static constexpr double c3 = f64(0x3FDEC709DC39E926);  // 0.48089834696260636
    static constexpr double c4 = f64(0xBFD715494C3E7C9B);  // -0.3606742138453655
    static constexpr double c5 = f64(0x3FD2776E996DA1D2);  // 0.2885395525286444
    template <class V> static TARN_INLINE V first(V r) { return c1 * r; }
    template <class V> static TARN_INLINE V exponent(V k) { return k; }
};
struct Base10 {
    static constexpr const auto& rows = log10_rows;
    static constexpr double c1 = f64(0x3FDBCB7B1526E50E);       // 0.4342944819032518
    static constexpr double c2 = f64(0xBFCBCB7B1526DE36);       // -0.21714724095157728
    static constexpr double c3 = f64(0x3FC287A7636F341E);       // 0.14476482730097556
    static constexpr double c4 = f64(0xBFBBCB7D4EFBE80B);       // -0.10857375315018218
    static constexpr double c5 = f64(0x3FB63C65231FBD16);       // 0.08685905559081095
    static constexpr double log10_2 = f64(0x3FD34413509F79FF);  // 0.3010299956639812
    template <class V> static TARN_INLINE V first(V r) { return c1 * r; }
    template <class V> static TARN_INLINE V exponent(V k) { return k * log10_2; }
};

// The logarithm to a base whose coefficients `Base` has: c1 r + r^2 ((c2 + c3 r) + r^2 (c4 + c5 r)), the
// table and the exponent.
template <class Base, class V> TARN_INLINE V table_log(V x, V exponent_moved) {
    const V m = significand_1024th(x);
    const Like<V, float> R = rounded_reciprocal(m);
    const V r = reduced_exactly(m, widen_low(R));
    const V r2 = r * r;
    const V poly = Base::first(r) + r2 * ((Base::c2 + Base::c3 * r) + r2 * (Base::c4 + Base::c5 * r));
    return (poly + gather(Base::rows, row_of_reciprocal(R))) + Base::exponent(exponent_for(x, R) + exponent_moved);
}

// The same with two terms less and an unsplit product.
template <class Base, class V> TARN_INLINE V native_table_log(V x) {
    const V m = significand_1024th(x);
    const Like<V, float> R = rounded_reciprocal(m);
    const V r = m * widen_low(R) - 1.0;
    const V poly = Base::first(r) + r * r * (Base::c2 + Base::c3 * r);
    return (poly + gather(Base::rows, row_of_reciprocal(R))) + Base::exponent(exponent_for(x, R));
}

}  // namespace tarn::doubles
