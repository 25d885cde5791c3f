// asinh |x| = ln(1 + w) with a = |x|, w = a + a^2/(1 + (a^2 + 1)^(1/2)), and acosh x = ln(1 + w) with
// t = x - 1, w = t + (2t + t^2)^(1/2), or from 1.5 on t + (x^2 - 1)^(1/2): forms that lose nothing where
// the result is small. 1 + w = 2^k m with m in [0.71, 1.41]; what the sum lost is carried into f = m - 1,
// and with s = f/(2 + f), ln m = f - s (f - s^2 P(s^2)). Above 10^19 the square would leave the range, and
// ln x + ln 2 is the value. The native forms take roots and quotients from the processor's estimates.
//
// Worst error of asinhf: 1.886 ulp at 0.355718732; native 1482.
// Worst error of acoshf: 2.085 ulp at 1.02927911; native 4122.
#include "callout/callouts.hpp"
#include "frame/double_word.hpp"
#include "frame/exports.hpp"

namespace tarn::singles {
namespace {

constexpr float one = 1.0f;
constexpr float huge = f32(0x5F0AC723);      // 9.999999980506448e+18
constexpr float ln2_head = f32(0x3F310000);  // 0.69140625
constexpr float ln2_tail = f32(0x3AE42FF0);  // 0.0017409306019544601
// |s| <= 0.172; fit not recorded.
constexpr float p1 = f32(0x3F2AAABD);        // 0.6666677594184875
constexpr float p2 = f32(0x3ECCAF68);        // 0.39977574348449707
constexpr float p3 = f32(0x3E98F06F);        // 0.29870936274528503

struct Full {
    template <class V> static TARN_INLINE V root(V x) { return sqrt(x); }
    template <class V> static TARN_INLINE V quotient(V x, V y) { return x / y; }
    template <class V> static TARN_INLINE V p(V s2) { return horner(s2, p3, p2, p1); }
};
struct Native {
    template <class V> static TARN_INLINE V root(V x) { return x * rsqrt_estimate(x); }
    template <class V> static TARN_INLINE V quotient(V x, V y) { return x * reciprocal_estimate(y); }
    template <class V> static TARN_INLINE V p(V s2) { return horner(s2, p2, p1); }
};

// ln(1 + w), or ln x + ln 2 where x is huge.
template <class Form, class V> TARN_INLINE V log_of_sum(V w, V x) {
    const BitsOf<V> is_huge = x > huge;
    const auto [whole, lost] = fast_two_sum(max(one, w), min(one, w));
    const V sum = select(is_huge, x, whole);

    const BitsOf<V> k = shift_right_logical(bits(sum) + 0x004AFB10, 23) - 127;
    const BitsOf<V> exponent = k << 23;
    const V carried = where(~is_huge, lost * from_bits(bits(one) - exponent));
    const V f = (from_bits(bits(sum) - exponent) - one) + carried;
    const V s = Form::quotient(f, 2.0f + f);
    const V s2 = s * s;
    const V log_m = f - s * (f - s2 * Form::p(s2));
    const V n = to_f32(k - is_huge);
    return n * ln2_head + (n * ln2_tail + log_m);
}

template <class Form> struct Asinhf : Kernel<float(float)> {
    static constexpr auto callout = callout::asinhf;
    static constexpr std::int32_t tiny = 0x39800000;  // 2^-12: below it x is the value

    template <class V> static TARN_INLINE auto fast(V x) {
        const V a = abs(x);
        const V square = a * a;
        const V w = a + Form::quotient(square, one + Form::root(square + one));
        const V y = log_of_sum<Form>(w, a);
        return Flagged{or_bits(y, sign_bit(x)), (bits(a) < tiny) | not_finite(x)};
    }
};

template <class Form> struct Acoshf : Kernel<float(float)> {
    static constexpr auto callout = callout::acoshf;

    template <class V> static TARN_INLINE auto fast(V x) {
        const V t = x - one;
        const V square = select(x < 1.5f, (t + t) + t * t, x * x - one);
        const V y = log_of_sum<Form>(t + Form::root(square), x);
        return Flagged{y, ~(x > one) | not_finite(x)};
    }
};

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(unary, asinhf, full, tarn::singles::Asinhf<tarn::singles::Full>)
TARN_EXPORT(unary, asinhf, native, tarn::singles::Asinhf<tarn::singles::Native>)
TARN_EXPORT(unary, acoshf, full, tarn::singles::Acoshf<tarn::singles::Full>)
TARN_EXPORT(unary, acoshf, native, tarn::singles::Acoshf<tarn::singles::Native>)
