// asinh |x| = ln(1 + w) with a = |x|, w = a + a^2/(1 + (a^2 + 1)^(1/2)), and acosh x = ln(1 + w) with
// t = x - 1, w = t + (2t + t^2)^(1/2), or from 1.5 on t + (x^2 - 1)^(1/2): forms that lose nothing where
// the result is small. 1 + w = 2^k m with m in [0.71, 1.41]; what the sum lost is carried into f = m - 1,
// and with s = f/(2 + f), ln m = f - s (f - s^2 P(s^2)). Above 10^19 the square would leave the range, and
// ln x + ln 2 is the value. The native forms take roots and quotients from the processor's estimates.
//
// Worst error of asinhf: 1.886 ulp at 0.355718732; native 1238.
// Worst error of acoshf: 2.085 ulp at 1.02927911; native 3878.
#include "callout/callouts.hpp"
#include "frame/exports.hpp"

namespace tarn {
namespace {

constexpr f32x4 one = splat(1.0f), two = splat(2.0f);
constexpr f32x4 huge = splat_f32(0x5F0AC723);      // 9.999999980506448e+18
constexpr f32x4 ln2_head = splat_f32(0x3F310000);  // 0.69140625
constexpr f32x4 ln2_tail = splat_f32(0x3AE42FF0);  // 0.0017409306019544601
constexpr f32x4 p1 = splat_f32(0x3F2AAABD);        // 0.6666677594184875
constexpr f32x4 p2 = splat_f32(0x3ECCAF68);        // 0.39977574348449707
constexpr f32x4 p3 = splat_f32(0x3E98F06F);        // 0.29870936274528503

struct Full {
    static TARN_INLINE f32x4 root(f32x4 x) { return sqrt(x); }
    static TARN_INLINE f32x4 quotient(f32x4 x, f32x4 y) { return x / y; }
    static TARN_INLINE f32x4 p(f32x4 s2) { return horner(s2, p3, p2, p1); }
};
struct Native {
    static TARN_INLINE f32x4 root(f32x4 x) { return x * rsqrt_estimate(x); }
    static TARN_INLINE f32x4 quotient(f32x4 x, f32x4 y) { return x * reciprocal_estimate(y); }
    static TARN_INLINE f32x4 p(f32x4 s2) { return horner(s2, p2, p1); }
};

// ln(1 + w), or ln x + ln 2 where x is huge.
template <class Form> TARN_INLINE f32x4 log_of_sum(f32x4 w, f32x4 x) {
    const i32x4 is_huge = x > huge;
    const f32x4 larger = max(one, w), smaller = min(one, w);
    const f32x4 whole = larger + smaller;
    const f32x4 lost = smaller - (whole - larger);
    const f32x4 sum = select(is_huge, x, whole);

    const i32x4 k = shift_right_logical(bits(sum) + splat_i32(0x004AFB10), 23) - splat(127);
    const i32x4 exponent = k << 23;
    const f32x4 carried = where(~is_huge, lost * from_bits(bits(one) - exponent));
    const f32x4 f = (from_bits(bits(sum) - exponent) - one) + carried;
    const f32x4 s = Form::quotient(f, two + f);
    const f32x4 s2 = s * s;
    const f32x4 log_m = f - s * (f - s2 * Form::p(s2));
    const f32x4 n = to_f32(k - is_huge);
    return n * ln2_head + (n * ln2_tail + log_m);
}

template <class Form> struct Asinhf : Kernel<float(float)> {
    static constexpr auto callout = callout::asinhf;
    static constexpr i32x4 tiny = splat_i32(0x39800000);  // 2^-12: below it x is the value

    static TARN_INLINE auto fast(f32x4 x) {
        const f32x4 a = abs(x);
        const f32x4 square = a * a;
        const f32x4 w = a + Form::quotient(square, one + Form::root(square + one));
        const f32x4 y = log_of_sum<Form>(w, a);
        return Flagged{or_bits(y, sign_bit(x)), (bits(a) < tiny) | not_finite(x)};
    }
};

template <class Form> struct Acoshf : Kernel<float(float)> {
    static constexpr auto callout = callout::acoshf;
    template <class Lane> static constexpr Lane last_lane = 2;

    static TARN_INLINE auto fast(f32x4 x) {
        const f32x4 t = x - one;
        const f32x4 square = select(x < splat(1.5f), (t + t) + t * t, x * x - one);
        const f32x4 y = log_of_sum<Form>(t + Form::root(square), x);
        return Flagged{y, (i32x4)_mm_cmpngt_ps(x, one) | not_finite(x)};
    }
};

}  // namespace
}  // namespace tarn

TARN_EXPORT(unary, asinhf, full, tarn::Asinhf<tarn::Full>)
TARN_EXPORT(unary, asinhf, native, tarn::Asinhf<tarn::Native>)
TARN_EXPORT(unary, acoshf, full, tarn::Acoshf<tarn::Full>)
TARN_EXPORT(unary, acoshf, native, tarn::Acoshf<tarn::Native>)
