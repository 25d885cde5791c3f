// sinh x and cosh x from one reduction, |x| = n ln 2 + r with |r| <= 0.35: with S = sinh r and
// C = cosh r - 1 as short odd and even polynomials, and 2^(n-1) and 2^(-n-1) made in the exponent
// field, sinh x = cosh(n ln 2) S + sinh(n ln 2) C + sinh(n ln 2), and cosh x with the two exchanged.
// The native forms take both polynomials from one cubic exponential and ln 2 in one piece.
//
// Worst error of sinhf: 2.024 ulp at -0.383589804; native 1079.
// Worst error of coshf: 1.841 ulp at -8.00820446; native 427.3.
#include "callout/callouts.hpp"
#include "frame/exports.hpp"

namespace tarn {
namespace {

constexpr f32x4 log2_e = splat_f32(0x3FB8AA3B);    // 1.4426950216293335
constexpr f32x4 shifter = splat_f32(0x4B400000);   // 12582912.0 = 1.5 * 2^23
constexpr i32x4 half = splat_i32(0x3F000000);      // 0.5
constexpr std::uint32_t bound = 0x42AEAC4E;        // 87.33653259277344

// S, C and the hyperbolic functions of n ln 2.
struct Parts {
    f32x4 odd, even, sinh_n, cosh_n;
};

struct FullParts {
    static constexpr f32x4 ln2_head = splat_f32(0x3F317200);  // 0.693145751953125
    static constexpr f32x4 ln2_tail = splat_f32(0x35BFBE8E);  // 1.428606765330187e-06
    static constexpr f32x4 s3 = splat_f32(0x3E2AAA57);        // 0.16666541993618011
    static constexpr f32x4 s5 = splat_f32(0x3C091461);        // 0.008366675116121769
    static constexpr f32x4 c2 = splat_f32(0x3F000000);        // 0.5
    static constexpr f32x4 c4 = splat_f32(0x3D2AAA72);        // 0.04166645556688309
    static constexpr f32x4 c6 = splat_f32(0x3AB6A8A3);        // 0.0013935755705460906

    static TARN_INLINE f32x4 remainder(f32x4 a, f32x4 n) { return (a - n * ln2_head) - n * ln2_tail; }
    static TARN_INLINE f32x4 odd(f32x4 r, f32x4 r2) { return r + r * r2 * (s3 + s5 * r2); }
    static TARN_INLINE f32x4 even(f32x4 r2) { return r2 * (c2 + r2 * (c4 + c6 * r2)); }
};

struct NativeParts {
    static constexpr f32x4 ln2 = splat_f32(0x3F317218);  // 0.6931471824645996
    static constexpr f32x4 e1 = splat_f32(0x3F7FFBC9);   // 0.9999356865882874
    static constexpr f32x4 e2 = splat_f32(0x3EFFFB2F);   // 0.49996325373649597
    static constexpr f32x4 e3 = splat_f32(0x3E2CCD2E);   // 0.16875144839286804
    static constexpr f32x4 e4 = splat_f32(0x3D2CA395);   // 0.04214819148182869

    static TARN_INLINE f32x4 remainder(f32x4 a, f32x4 n) { return a - n * ln2; }
    static TARN_INLINE f32x4 odd(f32x4 r, f32x4 r2) { return r * (e1 + e3 * r2); }
    static TARN_INLINE f32x4 even(f32x4 r2) { return r2 * (e2 + e4 * r2); }
};

template <class Form> TARN_INLINE Parts parts(f32x4 a) {
    const f32x4 shifted = a * log2_e + shifter;
    const f32x4 n = shifted - shifter;
    const i32x4 exponent = bits(shifted) << 23;
    const f32x4 r = Form::remainder(a, n);
    const f32x4 r2 = r * r;
    const f32x4 plus = from_bits(half + exponent);   // 2^(n-1)
    const f32x4 minus = from_bits(half - exponent);  // 2^(-n-1)
    return {Form::odd(r, r2), Form::even(r2), plus - minus, plus + minus};
}

template <class Form> struct Sinhf : Kernel<float(float)> {
    static constexpr auto callout = callout::sinhf;
    static TARN_INLINE auto fast(f32x4 x) {
        const auto [odd, even, sinh_n, cosh_n] = parts<Form>(abs(x));
        const f32x4 y = ((cosh_n * odd) + (sinh_n * even)) + sinh_n;
        return Flagged{or_bits(y, sign_bit(x)), magnitude_above(x, bound)};
    }
};

template <class Form> struct Coshf : Kernel<float(float)> {
    static constexpr auto callout = callout::coshf;
    static TARN_INLINE auto fast(f32x4 x) {
        const auto [odd, even, sinh_n, cosh_n] = parts<Form>(abs(x));
        const f32x4 y = ((sinh_n * odd) + (cosh_n * even)) + cosh_n;
        return Flagged{y, magnitude_above(x, bound - 1)};
    }
};

}  // namespace
}  // namespace tarn

TARN_EXPORT(unary, sinhf, full, tarn::Sinhf<tarn::FullParts>)
TARN_EXPORT(unary, sinhf, native, tarn::Sinhf<tarn::NativeParts>)
TARN_EXPORT(unary, coshf, full, tarn::Coshf<tarn::FullParts>)
TARN_EXPORT(unary, coshf, native, tarn::Coshf<tarn::NativeParts>)
