// sinh x and cosh x from one reduction, |x| = n ln 2 + r with |r| <= 0.35: with S = sinh r and
// C = cosh r - 1 as short odd and even polynomials, and 2^(n-1) and 2^(-n-1) made in the exponent
// field, sinh x = cosh(n ln 2) S + sinh(n ln 2) C + sinh(n ln 2), and cosh x with the two exchanged.
// The native forms take both polynomials from one cubic exponential and ln 2 in one piece.
//
// Worst error of sinhf: 2.024 ulp at -0.383589804; native 1079.
// Worst error of coshf: 1.841 ulp at -8.00820446; native 427.3.
#include "callout/callouts.hpp"
#include "frame/exports.hpp"

namespace tarn::singles {
namespace {

constexpr float log2_e = f32(0x3FB8AA3B);    // 1.4426950216293335
constexpr float shifter = f32(0x4B400000);   // 12582912.0 = 1.5 * 2^23
constexpr std::int32_t half = 0x3F000000;    // 0.5
constexpr std::uint32_t bound = 0x42AEAC4E;  // 87.33653259277344

// S, C and the hyperbolic functions of n ln 2.
template <class V> struct Terms {
    V odd, even, sinh_n, cosh_n;
};

struct Full {
    static constexpr float ln2_head = f32(0x3F317200);  // 0.693145751953125
    static constexpr float ln2_tail = f32(0x35BFBE8E);  // 1.428606765330187e-06
    // |r| <= 0.35; fit not recorded.
    static constexpr float s3 = f32(0x3E2AAA57);        // 0.16666541993618011
    static constexpr float s5 = f32(0x3C091461);        // 0.008366675116121769
    static constexpr float c2 = f32(0x3F000000);        // 0.5
    static constexpr float c4 = f32(0x3D2AAA72);        // 0.04166645556688309
    static constexpr float c6 = f32(0x3AB6A8A3);        // 0.0013935755705460906

    template <class V> static TARN_INLINE V remainder(V a, V n) { return (a - n * ln2_head) - n * ln2_tail; }
    template <class V> static TARN_INLINE V odd(V r, V r2) { return r + r * r2 * (s3 + s5 * r2); }
    template <class V> static TARN_INLINE V even(V r2) { return r2 * (c2 + r2 * (c4 + c6 * r2)); }
};

struct Native {
    static constexpr float ln2 = f32(0x3F317218);  // 0.6931471824645996
    // |r| <= 0.35; fit not recorded.
    static constexpr float e1 = f32(0x3F7FFBC9);   // 0.9999356865882874
    static constexpr float e2 = f32(0x3EFFFB2F);   // 0.49996325373649597
    static constexpr float e3 = f32(0x3E2CCD2E);   // 0.16875144839286804
    static constexpr float e4 = f32(0x3D2CA395);   // 0.04214819148182869

    template <class V> static TARN_INLINE V remainder(V a, V n) { return a - n * ln2; }
    template <class V> static TARN_INLINE V odd(V r, V r2) { return r * (e1 + e3 * r2); }
    template <class V> static TARN_INLINE V even(V r2) { return r2 * (e2 + e4 * r2); }
};

template <class Form, class V> TARN_INLINE Terms<V> terms(V a) {
    const V shifted = a * log2_e + shifter;
    const V n = shifted - shifter;
    const BitsOf<V> exponent = bits(shifted) << 23;
    const V r = Form::remainder(a, n);
    const V r2 = r * r;
    const V plus = from_bits(half + exponent);   // 2^(n-1)
    const V minus = from_bits(half - exponent);  // 2^(-n-1)
    return {Form::odd(r, r2), Form::even(r2), plus - minus, plus + minus};
}

template <class Form> struct Sinhf : Kernel<float(float)> {
    static constexpr auto callout = callout::sinhf;
    template <class V> static TARN_INLINE auto fast(V x) {
        const auto [odd, even, sinh_n, cosh_n] = terms<Form>(abs(x));
        const V y = ((cosh_n * odd) + (sinh_n * even)) + sinh_n;
        return Flagged{or_bits(y, sign_bit(x)), magnitude_above(x, bound)};
    }
};

template <class Form> struct Coshf : Kernel<float(float)> {
    static constexpr auto callout = callout::coshf;
    template <class V> static TARN_INLINE auto fast(V x) {
        const auto [odd, even, sinh_n, cosh_n] = terms<Form>(abs(x));
        const V y = ((sinh_n * odd) + (cosh_n * even)) + cosh_n;
        return Flagged{y, magnitude_above(x, bound - 1)};
    }
};

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(unary, sinhf, full, tarn::singles::Sinhf<tarn::singles::Full>)
TARN_EXPORT(unary, sinhf, native, tarn::singles::Sinhf<tarn::singles::Native>)
TARN_EXPORT(unary, coshf, full, tarn::singles::Coshf<tarn::singles::Full>)
TARN_EXPORT(unary, coshf, native, tarn::singles::Coshf<tarn::singles::Native>)
