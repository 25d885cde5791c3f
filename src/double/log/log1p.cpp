// ln(1 + x). The sum is held exactly as s + c, s cut to 43 bits, so that r = s R 2^e - 1 is exact with the
// R of table_log.hpp; R' = r + c R 2^e, and a polynomial of degree 5, the table and k ln 2 as heads and
// tails are summed with their rounding errors. The native form rounds the sum, with degree 3.
//
// Worst error of log1p: 0.7449 ulp at -0.00097440066835482314; native 2.095e+06.
#include "callout/callouts.hpp"
#include "frame/double_word.hpp"
#include "frame/exports.hpp"
#include "steps/double/table_log.hpp"

namespace tarn::doubles {
namespace {

#include "tables/log1p_rows.inc"

constexpr double one = 1.0;
constexpr double ln2_head = f64(0x3FE62E42FEFA0000);  // 0.6931471805582987
constexpr double ln2_tail = f64(0x3D7CF79ABC9E0000);  // 1.6465949582866463e-12
constexpr double tiny = f64(0x3E00000000000000);      // 2^-31: the sum needs no cut

template <class V> TARN_INLINE BitsOf<V> outside(V x) {
    return (x < f64(0xBFEFFFFFFFFFFFFF)) |   // -0.9999999999999999
           ~(x <= f64(0x7F3FFFFFFFFFF000));  // 8.77779851006591e+304
}

// s, of 43 bits.
template <class V> TARN_INLINE V cut(V sum, V x) { return and_bits(sum, (abs(x) < tiny) | i64(0xFFFFFFFFFFFFFC00)); }

// The reduced sum: s R 2^e - 1 and c R 2^e, with R's row and the exponent that goes with it.
template <class V> struct ReducedSum {
    V r, el, k;
    BitsOf<V> row;
};
template <class V> TARN_INLINE ReducedSum<V> reduced(V s, V c) {
    const Like<V, float> R = rounded_reciprocal(significand_1024th(s));
    const V scale = widen_low(R) * from_bits(0x7F40000000000000 - (bits(s) & 0x7FF0000000000000));
    return {s * scale - one, c * scale, exponent_for(s, R), row_of_reciprocal(R)};
}

struct Log1p : Kernel<double(double)> {
    static constexpr auto callout = callout::log1p;

    template <class V> static TARN_INLINE auto fast(V x) {
        const V s = cut(one + x, x);
        const V c = (max(one, x) - s) + min(one, x);
        const auto [r, el, k, row] = reduced(s, c);
        const auto [table_head, table_tail] = gather_columns(log1p_rows, row);
        const auto [sum, sum_tail] = fast_two_sum(r, el);
        const V sum2 = sum * sum;
        const V p = sum2 * ((BaseE::c2 + BaseE::c3 * sum) + sum2 * (BaseE::c4 + BaseE::c5 * sum));
        const auto [y, y_tail] = fast_two_sum(k * ln2_head + table_head, sum);
        const V result = (((k * ln2_tail + table_tail) + y_tail) + (p + sum_tail)) + y;
        return Flagged{or_bits(result, sign_bit(x)), outside(x)};
    }
};

struct Log1pNative : Kernel<double(double)> {
    static constexpr auto callout = callout::log1p;

    template <class V> static TARN_INLINE auto fast(V x) {
        const V s = cut(one + x, x);
        const auto [r, el, k, row] = reduced(s, (max(one, x) - s) + min(one, x));
        const V sum = r + el;
        const V p = sum + sum * sum * (BaseE::c2 + BaseE::c3 * sum);
        const V result = (p + gather(log_rows, row)) + BaseE::exponent(k);
        return Flagged{or_bits(result, sign_bit(x)), outside(x)};
    }
};

}  // namespace
}  // namespace tarn::doubles

TARN_EXPORT(unary, log1p, full, tarn::doubles::Log1p)
TARN_EXPORT(unary, log1p, native, tarn::doubles::Log1pNative)
