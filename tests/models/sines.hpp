// Scalar models of the circular functions, up to the limit of the short reduction.
#pragma once

#include "model.hpp"

namespace tarn::test::models {

// The two accuracies: pi in four or three pieces, an odd polynomial of degree 9 or 5.
struct FullSine {
    static float minus_pi_tail(float r, float n) {
        r = r - n * f32(0x34222000);
        return r - n * f32(0x2CB4611A);
    }
    static float polynomial(float z) {
        return horner(z, f32(0x362EDEF8), f32(0xB94FB7FF), f32(0x3C08876A), f32(0xBE2AAAA6));
    }
};
struct NativeSine {
    static float minus_pi_tail(float r, float n) { return r - n * f32(0x34222169); }
    static float polynomial(float z) { return horner(z, f32(0x3BFAE3C1), f32(0xBE2A1DC5)); }
};

inline bool sine_is_fast(float x) { return magnitude(x) <= 10000.0f; }

inline float minus_pi_head(float x, float n) {
    const float r = x - n * f32(0x40490000);
    return r - n * f32(0x3A7DA000);
}
template <class Form> float sine_of_reduced(float r) {
    const float z = r * r;
    float q = Form::polynomial(z);
    q = q * z;
    q = q * r;
    return q + r;
}
inline float flipped(float x, std::uint32_t sign_bit) { return f32(bits(x) ^ sign_bit); }

template <class Form> std::optional<float> sinf(float x) {
    if (!sine_is_fast(x)) return std::nullopt;
    const float a = magnitude(x);
    const float shifted = a * f32(0x3EA2F983) + 12582912.0f;
    const float n = shifted - 12582912.0f;
    const float r = flipped(Form::minus_pi_tail(minus_pi_head(a, n), n), bits(shifted) << 31);
    return flipped(sine_of_reduced<Form>(r), sign(x));
}

template <class Form> std::optional<float> cosf(float x) {
    if (!sine_is_fast(x)) return std::nullopt;
    const float shifted = (x + f32(0x3FC90FDB)) * f32(0x3EA2F983) + 12582912.0f;
    const float m = (shifted - 12582912.0f) - 0.5f;
    const float r = flipped(Form::minus_pi_tail(minus_pi_head(x, m), m), bits(shifted) << 31);
    return sine_of_reduced<Form>(r);
}

template <class Form> std::optional<std::pair<float, float>> sincosf(float x) {
    if (!sine_is_fast(x)) return std::nullopt;
    const float a = magnitude(x);
    const float shifted = a * f32(0x3EA2F983) + 12582912.0f;
    const std::uint32_t parity = bits(shifted) << 31;
    const float n = shifted - 12582912.0f;
    const float t = minus_pi_head(a, n);
    const std::uint32_t side = sign(t);
    const float m = n + f32(0x3F000000 | side);
    const float of_sine = flipped(Form::minus_pi_tail(t, n), parity);
    const float of_cosine = flipped(Form::minus_pi_tail(minus_pi_head(a, m), m), 0x80000000 ^ side ^ parity);
    return std::pair(flipped(sine_of_reduced<Form>(of_sine), sign(x)), sine_of_reduced<Form>(of_cosine));
}

inline std::optional<float> tanf(float x) {
    if (!(magnitude(x) <= 8256.0f)) return std::nullopt;
    const float a = magnitude(x);
    const float shifted = a * f32(0x3F22F983) + 12582912.0f;
    const float n = shifted - 12582912.0f;
    float r = a - n * f32(0x3FC90000);
    r = r - n * f32(0x39FD8000);
    r = r - n * f32(0x34A88000);
    r = r - n * f32(0x2E85A309);
    const float z = r * r;
    const float q = (f32(0xBDC433B8) * z + 1.0f) * r;
    const float p = (f32(0x3C1F3375) * z + f32(0xBEDBB7AF)) * z + 1.0f;
    const bool odd = bits(shifted) & 1;
    return flipped(odd ? p / q : q / p, sign(x) ^ (bits(shifted) << 31));
}

inline std::optional<float> sinpif(float x) {
    const float a = magnitude(x);
    if (!(a <= 0x1p22f)) return std::nullopt;
    const float shifted = a + 12582912.0f;
    const float r = (a - (shifted - 12582912.0f)) * f32(0x40490FDB);
    return flipped(sine_of_reduced<FullSine>(flipped(r, bits(shifted) << 31)), sign(x));
}
inline std::optional<float> cospif(float x) {
    const float a = magnitude(x);
    if (!(a <= 0x1p22f)) return std::nullopt;
    const float shifted = (a + 0.5f) + 12582912.0f;
    const float m = (shifted - 12582912.0f) - 0.5f;
    const float r = (a - m) * f32(0x40490FDB);
    return sine_of_reduced<FullSine>(flipped(r, bits(shifted) << 31));
}

inline double flipped(double x, std::uint64_t sign_bit) { return f64(bits(x) ^ sign_bit); }
inline double less_four_pieces(double x, double n, double first, double second, double third, double fourth) {
    double r = x - n * first;
    r = r - n * second;
    r = r - n * third;
    return r - n * fourth;
}
inline double less_multiple_of_pi(double x, double n) {
    return less_four_pieces(x, n, f64(0x400921FB40000000), f64(0x3E84442D00000000), f64(0x3D08469880000000),
                            f64(0x3B88CC51701B839A));
}
inline double sine_of_reduced(double r, const std::uint64_t (&c)[7]) {
    const double z = r * r;
    const double q = horner(z, f64(c[6]), f64(c[5]), f64(c[4]), f64(c[3]), f64(c[2]), f64(c[1]), f64(c[0])) * z;
    return q * r + r;
}
// The second set gives 1 at pi/2 rounded.
inline constexpr std::uint64_t sine_terms[] = {
    0xBFC55555555554A8, 0x3F8111111110A573, 0xBF2A01A019A659DD, 0x3EC71DE3806ADD1A,
    0xBE5AE6355AAA4A53, 0x3DE60E6BEE01D83E, 0xBD69F1517E9F65F0};
inline constexpr std::uint64_t cosine_terms[] = {
    0xBFC55555555554A7, 0x3F8111111110A4A8, 0xBF2A01A019A5B86D, 0x3EC71DE38030FEA0,
    0xBE5AE63546002231, 0x3DE60E6857A2F220, 0xBD69F0D60811AAC8};

inline std::optional<double> sin(double x) {
    const double a = magnitude(x);
    if (!(a <= 0x1p24)) return std::nullopt;
    const double shifted = a * f64(0x3FD45F306DC9C883) + f64(0x4338000000000000);
    const double n = shifted - f64(0x4338000000000000);
    const double r = flipped(less_multiple_of_pi(a, n), bits(shifted) << 63);
    return flipped(sine_of_reduced(r, sine_terms), sign(x));
}

inline std::optional<double> cos(double x) {
    const double v = x + f64(0x3FF921FB54442D18);
    if (!(magnitude(v) <= 0x1p23)) return std::nullopt;
    const double shifted = v * f64(0x3FD45F306DC9C883) + f64(0x4338000000000000);
    const double n = (shifted - f64(0x4338000000000000)) - 0.5;
    const double r = flipped(less_multiple_of_pi(x, n), bits(shifted) << 63);
    return sine_of_reduced(r, cosine_terms);
}

inline std::optional<double> tan(double x) {
    const double a = magnitude(x);
    if (!(a <= 128000)) return std::nullopt;
    const double shifted = a * f64(0x3FE45F306DC9C883) + f64(0x4338000000000000);
    const double n = shifted - f64(0x4338000000000000);
    const double r = less_four_pieces(a, n, f64(0x3FF921FB40000000), f64(0x3E74442D00000000),
                                      f64(0x3CF8469880000000), f64(0x3B78CC51701B839A));
    const double z = r * r;
    const double p = r * horner(z, f64(0xBEDF637DEA7C0B2C), f64(0x3F66FC6FE2982A7B), f64(0xBFC06B97BF03648A), 1.0);
    const double q = horner(z, f64(0xBF2B525B10D0A168), f64(0x3F97E7B68D9A55F3), f64(0xBFDD8B2134D70767), 1.0);
    const bool odd = bits(shifted) & 1;
    return flipped(odd ? q / p : p / q, sign(x) ^ (bits(shifted) << 63));
}

inline std::optional<double> sinpi(double x) {
    const double a = magnitude(x);
    if (!(a <= 0x1p51)) return std::nullopt;
    const double shifted = a + f64(0x4338000000000000);
    const double f = a - (shifted - f64(0x4338000000000000));
    const double r = flipped(f * f64(0x400921FB54442D18), bits(shifted) << 63);
    return flipped(sine_of_reduced(r, cosine_terms), sign(x));
}

}  // namespace tarn::test::models
