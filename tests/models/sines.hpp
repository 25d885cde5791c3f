// Scalar models of the sines and cosines in single precision, up to the limit of the fast path.
#pragma once

#include "model.hpp"

namespace tarn::test::models {

// The two accuracies: pi in four or three pieces, an odd polynomial of degree 9 or 5.
struct FullSine {
    static float minus_pi_tail(float r, float n) {
        r = r - n * single(0x34222000);
        return r - n * single(0x2CB4611A);
    }
    static float polynomial(float z) { return horner(z, single(0x362EDEF8), single(0xB94FB7FF), single(0x3C08876A), single(0xBE2AAAA6)); }
};
struct NativeSine {
    static float minus_pi_tail(float r, float n) { return r - n * single(0x34222169); }
    static float polynomial(float z) { return horner(z, single(0x3BFAE3C1), single(0xBE2A1DC5)); }
};

inline bool sine_is_fast(float x) { return magnitude(x) <= 10000.0f; }

inline float minus_pi_head(float x, float n) {
    const float r = x - n * single(0x40490000);
    return r - n * single(0x3A7DA000);
}
template <class Form> float sine_of_reduced(float r) {
    const float z = r * r;
    float q = Form::polynomial(z);
    q = q * z;
    q = q * r;
    return q + r;
}
inline float flipped(float x, std::uint32_t sign_bit) { return single(bits(x) ^ sign_bit); }

template <class Form> std::optional<float> sinf(float x) {
    if (!sine_is_fast(x)) return std::nullopt;
    const float a = magnitude(x);
    const float shifted = a * single(0x3EA2F983) + 12582912.0f;
    const float n = shifted - 12582912.0f;
    const float r = flipped(Form::minus_pi_tail(minus_pi_head(a, n), n), bits(shifted) << 31);
    return flipped(sine_of_reduced<Form>(r), sign(x));
}

template <class Form> std::optional<float> cosf(float x) {
    if (!sine_is_fast(x)) return std::nullopt;
    const float shifted = (x + single(0x3FC90FDB)) * single(0x3EA2F983) + 12582912.0f;
    const float m = (shifted - 12582912.0f) - 0.5f;
    const float r = flipped(Form::minus_pi_tail(minus_pi_head(x, m), m), bits(shifted) << 31);
    return sine_of_reduced<Form>(r);
}

template <class Form> std::optional<std::pair<float, float>> sincosf(float x) {
    if (!sine_is_fast(x)) return std::nullopt;
    const float a = magnitude(x);
    const float shifted = a * single(0x3EA2F983) + 12582912.0f;
    const std::uint32_t parity = bits(shifted) << 31;
    const float n = shifted - 12582912.0f;
    const float t = minus_pi_head(a, n);
    const std::uint32_t side = sign(t);
    const float m = n + single(0x3F000000 | side);
    const float of_sine = flipped(Form::minus_pi_tail(t, n), parity);
    const float of_cosine = flipped(Form::minus_pi_tail(minus_pi_head(a, m), m), 0x80000000 ^ side ^ parity);
    return std::pair(flipped(sine_of_reduced<Form>(of_sine), sign(x)), sine_of_reduced<Form>(of_cosine));
}

}  // namespace tarn::test::models
