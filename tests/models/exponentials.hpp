// Scalar models of the exponentials, of the hyperbolic functions and of the error functions, in both precisions.
#pragma once

#include "model.hpp"

namespace tarn::test::models {

#include "tables/erf_points.inc"
#include "tables/erfcf_points.inc"
#include "tables/erff_points.inc"
#include "tables/exp2_128ths.inc"
#include "tables/exp2_256ths.inc"
#include "tables/exp2f_512ths.inc"
#include "tables/exp2f_quadratic.inc"
#include "tables/exp_64th_fractions.inc"
#include "tables/exp_fine.inc"
#include "tables/exp_native.inc"
#include "tables/expm1f_native_heads.inc"
#include "tables/expm1f_pairs.inc"
#include "tables/sinh_pairs.inc"
#include "tables/tanhf_cubics.inc"

inline constexpr float shifter = 12582912.0f;            // 1.5 * 2^23
inline constexpr double shifter_52 = 6755399441055744.0;  // 1.5 * 2^52

inline bool exceeds(float x, std::uint32_t limit) { return as_signed(bits(magnitude(x))) > as_signed(limit); }

inline std::optional<float> expf(float x) {
    if (exceeds(x, 0x42AEAC4F)) return std::nullopt;
    const float scaled = x * f32(0x3FB8AA3B);
    const float shifted = scaled + shifter;
    const float n = shifted - shifter;
    float r = x - n * f32(0x3F317200);
    r = r - n * f32(0x35BFBE8E);
    const float p = horner(r, f32(0x3C07D9FE), f32(0x3D2B8392), f32(0x3E2AACAC), f32(0x3EFFFF34), f32(0x3F7FFFFE),
                           1.0f);
    return f32(bits(p) + (bits(shifted) << 23));
}

inline std::optional<float> expf_native(float x) {
    if (exceeds(x, 0x42AEAC4F)) return std::nullopt;
    const float t = x * f32(0x3FB8AA3B);
    const float shifted = t + shifter;
    const float r = t - (shifted - shifter);
    const float p = horner(r, f32(0x3D63582B), f32(0x3E77D66A), f32(0x3F317422), 1.0f);
    return f32(bits(p) + (bits(shifted) << 23));
}

inline std::optional<float> exp2f(float x) {
    if (exceeds(x, 0x42FC0000)) return std::nullopt;
    const float shifted = x + shifter;
    const float r = x - (shifted - shifter);
    const float p = horner(r, f32(0x39213C8C), f32(0x3AAF7A51), f32(0x3C1D962C), f32(0x3D6357CF), f32(0x3E75FDEF),
                           f32(0x3F317218), 1.0f);
    return f32(bits(p) + (bits(shifted) << 23));
}

// In 64ths, with a quadratic whose leading coefficient is the table's.
inline std::optional<float> exp2f_width_4(float x) {
    if (exceeds(x, 0x42F70000)) return std::nullopt;
    const float flushed = (bits(x) & 0x7F800000) == 0 ? 0.0f : x;
    const float shifted = x + 196608.0f;
    const float r = (196608.0f - shifted) + flushed;
    const float power = f32(((bits(shifted) + 0x1FC0) >> 6) << 23);
    float p = r + f32(0x4038AA68);
    p = p * r;
    p = p + f32(0x40853526);
    const float leading = exp2f_quadratic[bits(shifted) & 63] * power;
    return leading * p;
}

// In double precision and 256ths. From 126 on flags are all that is left to the steps.
inline std::optional<float> exp2f_width_1(float x) {
    if (bits(magnitude(x)) >= 0x42FC0000) return std::nullopt;
    if (bits(magnitude(x)) < 0x31800000) return x + 1.0f;
    const double wide = x;
    const double grid = f64(0x42B8000000000000);
    const double shifted = wide + grid;
    const auto n = static_cast<std::int32_t>(static_cast<std::uint32_t>(bits(shifted)));
    const double r = wide - (shifted - grid);
    const double p = horner(r, f64(0x3FCEBFBDFF82C58E), f64(0x3FE62E42FEFA72C5), 1.0);
    const double power = f64(bits(exp2_256ths[n & 255])
                             + (static_cast<std::uint64_t>(static_cast<std::int64_t>(n >> 8)) << 52));
    return static_cast<float>(power * p);
}

inline float exp2f_native_steps(float t) {
    const float shifted = t + shifter;
    const float r = t - (shifted - shifter);
    const float p = horner(r, f32(0x3D61FBCC), f32(0x3E786F13), f32(0x3F31798D), f32(0x3F7FFB49));
    return f32(bits(p) + (bits(shifted) << 23));
}
inline std::optional<float> exp2f_native(float x) {
    if (exceeds(x, 0x42FC0000)) return std::nullopt;
    return exp2f_native_steps(x);
}
inline std::optional<float> exp10f_native(float x) {
    if (exceeds(x, 0x4217B818)) return std::nullopt;
    return exp2f_native_steps(x * f32(0x40549A78));
}

inline std::optional<float> exp10f(float x) {
    if (exceeds(x, 0x4217B818)) return std::nullopt;
    const float scaled = x * f32(0x44D49A78);
    const float shifted = scaled + shifter;
    const float n = shifted - shifter;
    float r = x - n * f32(0x3A1A0000);
    r = r - n * f32(0x35026A14);
    const float row = exp2f_512ths[bits(shifted) & 0x1FF];
    const float q = r * f32(0x40135D8D) + f32(0x33F5FDEA);
    const float v = row * q + row;
    return f32(bits(v) + ((bits(shifted) & ~0x1FFu) << 14));
}

inline std::optional<float> expm1f(float x) {
    if (!(magnitude(x) <= f32(0x42AD496B))) return std::nullopt;
    const float n = __builtin_rintf(x * f32(0x42B8AA3B));
    float r = x - n * f32(0x3C318000);
    r = r - n * f32(0xB65E8083);
    const std::uint32_t shifted = bits(n + 1974208.0f);
    const std::uint32_t exponent = (shifted & 0x1FE00) << 14;
    const std::uint32_t* row = expm1f_pairs[(shifted & 0x1F8) / 8];
    const float head = f32(row[0] | exponent);
    const float tail = f32(row[1]) * f32(exponent);
    const float a = tail + (head - 1.0f);
    const float q = (f32(0x3E2AAABF) * r + f32(0x3F00000F)) * (r * r) + r;
    const float y = (a + 1.0f) * q + a;
    return f32(bits(y) | sign(x));
}

inline std::optional<float> expm1f_native(float x) {
    if (!(magnitude(x) <= f32(0x42AD496B))) return std::nullopt;
    const float n = __builtin_rintf(x * f32(0x4238AA3B));
    const float r = x - n * f32(0x3CB17218);
    const std::uint32_t shifted = bits(n + 3149792.0f);
    const float head = f32(expm1f_native_heads[(shifted & 0x7C) / 4] | ((shifted & 0x7F80) << 16));
    const float q = r * r * f32(0x3F00000F) + r;
    const float y = head * q + (head - 1.0f);
    return f32(bits(y) | sign(x));
}

// sinh r and cosh r - 1 of |x| = n ln 2 + r, and 2^(n-1) -+ 2^(-n-1).
struct HyperbolicParts {
    float sinh_r, cosh_r, difference, sum;
};
inline HyperbolicParts hyperbolic_parts(float x) {
    const float a = magnitude(x);
    const float shifted = a * f32(0x3FB8AA3B) + shifter;
    const float n = shifted - shifter;
    float r = a - n * f32(0x3F317200);
    r = r - n * f32(0x35BFBE8E);
    const float r2 = r * r;
    const float odd = f32(0x3E2AAA57) + f32(0x3C091461) * r2;
    const float even = 0.5f + r2 * (f32(0x3D2AAA72) + f32(0x3AB6A8A3) * r2);
    const float up = f32(0x3F000000 + (bits(shifted) << 23)), down = f32(0x3F000000 - (bits(shifted) << 23));
    return {r + r * r2 * odd, r2 * even, up - down, up + down};
}
inline std::optional<float> sinhf(float x) {
    if (exceeds(x, 0x42AEAC4E)) return std::nullopt;
    const HyperbolicParts h = hyperbolic_parts(x);
    const float y = (h.sum * h.sinh_r + h.difference * h.cosh_r) + h.difference;
    return f32(bits(y) | sign(x));
}
inline std::optional<float> coshf(float x) {
    if (exceeds(x, 0x42AEAC4D)) return std::nullopt;
    const HyperbolicParts h = hyperbolic_parts(x);
    return (h.difference * h.sinh_r + h.sum * h.cosh_r) + h.sum;
}

inline std::optional<float> tanhf(float x) {
    const std::int32_t cut = as_signed(bits(x) & 0x7FF80000);
    if (cut > 0x7F000000) return std::nullopt;
    const std::int32_t t = cut - 0x3CF80000;
    const double* c = tanhf_cubics[t <= 0 ? 0 : t > 0x04280000 ? 133 : t >> 19];
    const double a = magnitude(x);
    const double y = horner(a, c[3], c[2], c[1], c[0]);
    return f32(bits(static_cast<float>(y)) | sign(x));
}

inline std::optional<float> erff(float x) {
    if (x != x) return std::nullopt;
    const float a = magnitude(x);
    const float clamped = a < 3.9296875f ? a : 3.9296875f;
    const float grid = clamped + 65536.0f;
    const float d = grid - 65536.0f;
    const float* row = erff_points[bits(grid) - 0x47800000];
    const float h = clamped - d;
    const float squared = clamped > 0x1p-32f ? h : 0.0f;
    const float q = ((squared * squared) * f32(0xBEAAAADE) - d * h) * h + h;
    return f32(bits(row[0] + row[1] * q) | sign(x));
}

inline std::optional<float> erfcf(float x) {
    if (!(x < f32(0x4120DDFB))) return std::nullopt;
    const float a = magnitude(x) < 10.0625f ? magnitude(x) : 10.0625f;
    const float grid = a + 131072.0f;
    const float d = grid - 131072.0f;
    const float* row = erfcf_points[bits(grid) - 0x48000000];
    const float h = (a > 0x1p-48f ? a : 0x1p-48f) - d;
    const float u = d * h;
    const float in_u = u * horner(u, f32(0x3E08A7CA), f32(0xBEAACF22), f32(0x3F2AAAA6), f32(0xBF7FFFFC));
    const float p = in_u + h * h * (f32(0xBEAB4EDB) + f32(0x3F005B36) * u);
    const float f = row[0] - h * (row[1] + row[1] * p);
    return x < 0 ? (f - 0x1p49f) * -0x1p-48f : f * 0x1p-48f;
}

inline std::optional<double> exp(double x) {
    if (upper_magnitude(x) > 0x4086232A) return std::nullopt;
    const double shifted = x * f64(0x40971547652B82FE) + shifter_52;
    const double n = shifted - shifter_52;
    double r = x - n * f64(0x3F462E42FEC00000);
    r = r - n * f64(0x3D5D1CF79ABC9E3B);
    const double q = ((r + f64(0x4008000002503ECD)) * r + f64(0x4017FFFFFE3CA7B0)) * r + f64(0x4017FFFFFE3CA7AF);
    const double y = exp_fine[bits(shifted) & 1023] * q;
    return f64(bits(y) + ((bits(shifted) & ~std::uint64_t{1023}) << 42));
}

// In 64ths; from 704 on the scaling goes another way.
inline std::optional<double> exp_width_2(double x) {
    if (!(magnitude(x) < 704)) return std::nullopt;
    const double shifted = x * f64(0x40571547652B82FE) + shifter_52;
    const double n = shifted - shifter_52;
    double r = x - n * f64(0x3F862E42FEE00000);
    r = r - n * f64(0x3D8A39EF35793C76);
    const double r2 = r * r;
    const double even = r + r2 * (f64(0x3FDFFFFFFFFF62DC) + f64(0x3FA555594C77FF02) * r2);
    const double odd = 1.0 + r2 * r * (f64(0x3FC555555555E58E) + f64(0x3F81111001A21E3A) * r2);
    const double p = even + odd;
    const std::uint32_t low = static_cast<std::uint32_t>(bits(shifted));
    const std::uint64_t exponent = static_cast<std::uint64_t>((low + 0xFFC0) >> 6) << 52;
    return f64(exponent | exp_64th_fractions[low & 63]) * p;
}

inline std::optional<double> exp_native_form(double x) {
    if (upper_magnitude(x) > 0x4085D533) return std::nullopt;
    const double t = x * f64(0x40571547652B82FE);
    const double shifted = t + shifter_52;
    const double u = t - (shifted - shifter_52);
    const double q = (u + f64(0x4067154FB6857607)) * u + f64(0x40D0A6A6C7C54F24);
    const double power = f64(bits(exp_native[bits(shifted) & 63]) + ((bits(shifted) & ~std::uint64_t{63}) << 46));
    return q * power;
}

inline std::optional<double> exp2(double x) {
    if (upper_magnitude(x) > 0x408FEFFF) return std::nullopt;
    const double grid = f64(0x42C8000000000000);
    const double shifted = x + grid;
    const double r = x - (shifted - grid);
    const double row = exp2_128ths[bits(shifted) & 127];
    const double p = horner(r, f64(0x3F83B2AB5BB1268F), f64(0x3FAC6B09B180F045), f64(0x3FCEBFBDFF82CA48),
                            f64(0x3FE62E42FEFA3685));
    const double y = row + row * r * p;
    return f64(bits(y) + ((bits(shifted) & ~std::uint64_t{127}) << 45));
}

inline std::optional<double> exp10(double x) {
    if (upper_magnitude(x) > 0x40733A70) return std::nullopt;
    const double grid = f64(0x4338800000000000);
    const double shifted = x * f64(0x407A934F0979A371) + grid;
    const double n = shifted - grid;
    double r = x - n * f64(0x3F63441350A00000);
    r = r - n * f64(0xBD10C0219DC1DA99);
    const double row = exp2_128ths[bits(shifted) & 127];
    const double p = horner(r, f64(0x3FE144C03EFAFB54), f64(0x3FF2BD767584DB59), f64(0x4000470591CCEA8B),
                            f64(0x40053524C73CE8E3), f64(0x40026BB1BBB55516));
    const double y = row + row * r * p;
    return f64(bits(y) + ((bits(shifted) & ~std::uint64_t{127}) << 45));
}

inline std::optional<double> sinh(double x) {
    if (upper_magnitude(x) > 0x40861D99) return std::nullopt;
    const double a = magnitude(x);
    const double shifted = a * f64(0x40671547652B82FE) + shifter_52;
    const double n = shifted - shifter_52;
    double r = a - n * f64(0x3F762E42FEFA0000);
    r = r - n * f64(0x3D0CF79ABC9E3B3A);
    const double* row = sinh_pairs[bits(shifted) & 127];
    const std::uint64_t moved = (bits(shifted) & ~std::uint64_t{127}) << 45;
    const double up = f64(bits(row[1]) + moved), down = f64(bits(row[1]) - moved);
    const double raised = f64(bits(row[0]) + moved);
    const double sinh_u = (up - down) + raised;
    const double cosh_u = raised + (up + down);
    const double z = r * r;
    const double sinh_r = r + r * z * (f64(0x3FC55555555554AD) + f64(0x3F8111115712F425) * z);
    const double cosh_r = z * (f64(0x3FDFFFFFFFFFFDBD) + f64(0x3FA55555CF16D299) * z);
    const double y = (sinh_r * cosh_u + cosh_r * sinh_u) + sinh_u;
    return f64(bits(y) | sign(x));
}

inline std::optional<double> erf(double x) {
    if (x != x) return std::nullopt;
    const double a = magnitude(x);
    const double clamped = a < 5.9921875 ? a : 5.9921875;
    const double grid = f64(0x42C0000000000000);
    const double shifted = clamped + grid;
    const double c = shifted - grid;
    const double d = clamped - c;
    const double u = c * d;
    const double d2 = clamped > f64(0x2FF0000000000000) ? d * d : 0.0;
    const double* row = erf_points[bits(shifted) & 1023];
    const double value = f64(bits(row[0]) | sign(x)), offset = f64(bits(d) ^ sign(x));
    const double p1 = horner(u, f64(0xBFA6C16DB05BDEA5), f64(0x3FC1111235A363B1), f64(0xBFD55555555547F6),
                             f64(0x3FE5555555554B0C)) * (u * u) - u;
    const double p2 = horner(u, f64(0x3FCC71CA1C71EB57), f64(0xBFD9999C2BE2DDA8), f64(0x3FDFFFFFFFFFD4CD)) * u;
    const double p3 = (f64(0xBFC5555800001B4F) * u + f64(0x3FB9999E2BE2F122)) * d2 + f64(0xBFD5555555555555);
    const double p = (p2 + p3) * d2 + p1;
    const double g = row[1] * offset;
    return (p * g + g) + value;
}

}  // namespace tarn::test::models
