// Scalar models of the logarithms, powers and cube roots in single precision.
#pragma once

#include "model.hpp"

namespace tarn::test::models {

#include "tables/cube_root_rows.inc"
#include "tables/powrf_logs.inc"
#include "tables/reciprocal_cube_root_rows.inc"

inline bool positive_normal(float x) { return x >= 0x1p-126f && x <= 0x1.fffffep127f; }

// x = 2^k (1 + r), the mantissa between 2/3 and 4/3.
struct Decomposed {
    float k, r;
};
inline Decomposed decompose(float x) {
    const std::uint32_t t = bits(x) - 0x3F2AAAAB;
    return {static_cast<float>(as_signed(t) >> 23), f32((t & 0x007FFFFF) + 0x3F2AAAAB) - 1.0f};
}

inline std::optional<float> logf(float x) {
    if (!positive_normal(x)) return std::nullopt;
    const auto [k, r] = decompose(x);
    const float q = horner(r, f32(0xBE0402C8), f32(0x3E0F335D), f32(0xBDF9889E), f32(0x3E0F6B8C), f32(0xBE2ACEE6),
                           f32(0x3E4CE814), f32(0xBE7FFF78), f32(0x3EAAAA83), -0.5f);
    const float p = q * r * r + r;
    return k * f32(0x3F317200) + (k * f32(0x35BFBE8E) + p);
}
inline std::optional<float> logf_half(float x) {
    if (!positive_normal(x)) return std::nullopt;
    const auto [k, r] = decompose(x);
    const float q = horner(r, f32(0xBE1B6A22), f32(0x3E2DB86B), f32(0xBE289358), f32(0x3E4AFB81), f32(0xBE80061D),
                           f32(0x3EAAAEE7), -0.5f);
    const float p = q * r * r + r;
    return k * f32(0x3F317218) + p;
}
inline std::optional<float> logf_native(float x) {
    if (!positive_normal(x)) return std::nullopt;
    const auto [k, r] = decompose(x);
    const float q = horner(r, f32(0xBE89233C), f32(0x3EB4A830), -0.5f);
    const float p = q * r * r + r;
    return k * f32(0x3F317218) + p;
}

// Nine coefficients, the lowest first, in pairs by r^2.
inline float in_pairs(float r, const std::uint32_t (&p)[9]) {
    const float r2 = r * r;
    float a = f32(p[8]) * r + f32(p[7]);
    a = a * r2 + (f32(p[6]) * r + f32(p[5]));
    a = a * r2 + (f32(p[4]) * r + f32(p[3]));
    a = a * r2 + (f32(p[2]) * r + f32(p[1]));
    a = a * r + f32(p[0]);
    return a * r;
}
inline std::optional<float> log2f(float x) {
    if (!positive_normal(x)) return std::nullopt;
    const auto [k, r] = decompose(x);
    const float p = in_pairs(r, {0x3FB8AA3B, 0xBF38AA2B, 0x3EF637C0, 0xBEB8B969, 0x3E93DD07, 0xBE727824, 0x3E4D660B,
                                 0xBE638E14, 0x3E554012});
    return p + k;
}
inline std::optional<float> log10f(float x) {
    if (!positive_normal(x)) return std::nullopt;
    const auto [k, r] = decompose(x);
    const float p = in_pairs(r, {0x3EDE5BD9, 0xBE5E5BC5, 0x3E143CE5, 0xBDDE6E20, 0x3DB20B96, 0xBD91FB27, 0x3D775317,
                                 0xBD890073, 0x3D8063B4});
    return k * f32(0x3E9A2100) + (k * f32(0xB64AF600) + p);
}
inline std::optional<float> log2f_native(float x) {
    if (!positive_normal(x)) return std::nullopt;
    const auto [k, r] = decompose(x);
    return k + r * horner(r, f32(0x3EAAE01B), f32(0xBECB686C), f32(0x3EF4FA41), f32(0xBF38658A), f32(0x3FB8AAED));
}
inline std::optional<float> log10f_native(float x) {
    if (!positive_normal(x)) return std::nullopt;
    const auto [k, r] = decompose(x);
    return k * f32(0x3E9A209B) + r * horner(r, f32(0x3DCDC127), f32(0xBDF4ED71), f32(0x3E137DBE), f32(0xBE5E0922),
                                            f32(0x3EDE5CAE));
}

// A rounded result and what the rounding took. Sums and products are exact in the way that needs no condition: what
// the kernels' splitting leaves has to be the same.
struct Rounded {
    float head, tail;
};
inline Rounded sum_of(float a, float b) {
    const float s = a + b, b_part = s - a, a_part = s - b_part;
    return {s, (a - a_part) + (b - b_part)};
}
inline Rounded product_of(float a, float b) {
    const double exact = static_cast<double>(a) * b;
    const float head = static_cast<float>(exact);
    return {head, static_cast<float>(exact - head)};
}

inline Rounded split_log(float x) {
    const std::uint32_t rounded = bits(x) + 0x8000;
    const std::uint32_t row = (rounded >> 16) & 127;
    const float k = static_cast<float>(static_cast<int>(rounded >> 23) - 127 + (row >= 54 ? 1 : 0));
    const float m = f32(bits(x) - (rounded & 0x7F800000) + 0x3F800000);
    const float reciprocal = powrf_logs[row][0];
    const float m_head = f32(bits(m) & 0x7FFFC000), m_tail = m - m_head;
    const float u = m_head * reciprocal - 1.0f, v = m_tail * reciprocal;
    const Rounded r = sum_of(u, v);
    const float p = horner(r.head, -0.25f, f32(0x3EAAAAAB), -0.5f) * (r.head * r.head);
    const Rounded sum = sum_of(k * f32(0x3F317000) + powrf_logs[row][1], r.head);
    const float rest = k * f32(0x3805FDF4) + powrf_logs[row][2];
    return sum_of(sum.head, (r.tail + sum.tail) + (rest + p));
}

// x^(y + y_tail); the coefficients from the highest on. The largest base may go either way.
inline std::optional<float> split_power(float x, float y, float y_tail, const std::uint32_t (&a)[5],
                                        std::uint32_t bound) {
    if (!positive_normal(x) || x == 0x1.fffffep127f || !(magnitude(y) < __builtin_inff())) return std::nullopt;
    const Rounded log = split_log(x);
    const Rounded z = product_of(log.head, y);
    const float z_tail = z.tail + (log.tail * y + log.head * y_tail);
    if (as_signed(bits(magnitude(z.head + z_tail))) > as_signed(bound)) return std::nullopt;
    const float shifted = z.head * f32(0x3FB8AA3B) + 12582912.0f;
    const float n = shifted - 12582912.0f;
    float r = z.head - n * f32(0x3F317200);
    r = r - n * f32(0x35BFBE8E);
    r = r + z_tail;
    const float p = horner(r, f32(a[0]), f32(a[1]), f32(a[2]), f32(a[3]), f32(a[4]), 1.0f);
    return f32(bits(p) + (bits(shifted) << 23));
}
inline std::optional<float> powrf(float x, float y) {
    return split_power(x, y, 0.0f, {0x3C07D9FE, 0x3D2B8392, 0x3E2AACAC, 0x3EFFFF34, 0x3F7FFFFE}, 0x42819F00);
}
inline std::optional<float> integer_power(float x, float y, float y_tail) {
    return split_power(x, y, y_tail, {0x3C0950EF, 0x3D2BB1B6, 0x3E2AA9C6, 0x3EFFFE85, 0x3F800001}, 0x42AE9A00);
}
inline std::optional<float> pownf(float x, std::int32_t n) {
    const float y = static_cast<float>(n);
    return integer_power(x, y, static_cast<float>(static_cast<double>(n) - y));
}
inline std::optional<float> rootnf(float x, std::int32_t n) {
    if (n == 0) return std::nullopt;
    const float divisor = static_cast<float>(n);
    const float y = 1.0f / divisor;
    const double remainder = 1.0 - static_cast<double>(y) * divisor;
    return integer_power(x, y, static_cast<float>(remainder) * y);
}

// The native powers: y ln x unsplit, and a cubic of the highest coefficients first.
inline std::optional<float> native_power(float x, float y, const std::uint32_t (&c)[3]) {
    if (!positive_normal(x) || x == 0x1.fffffep127f || !(magnitude(y) < __builtin_inff())) return std::nullopt;
    const auto [k, r] = decompose(x);
    const float q = horner(r, f32(0x3E2B350C), f32(0xBE424B46), f32(0x3E4B62C0), f32(0xBE7F0F0F), f32(0x3EAAAD03),
                           -0.5f);
    const float p = q * r * r + r;
    const float log = k * f32(0x3F317200) + (k * f32(0x35BFBE8E) + p);
    const float z = log * y;
    if (as_signed(bits(magnitude(z))) > 0x42AE9A00) return std::nullopt;
    const float shifted = z * f32(0x3FB8AA3B) + 12582912.0f;
    const float rest = z - (shifted - 12582912.0f) * f32(0x3F317218);
    const float power = horner(rest, f32(c[0]), f32(c[1]), f32(c[2]), 1.0f);
    return f32(bits(power) + (bits(shifted) << 23));
}
inline std::optional<float> powrf_native(float x, float y) {
    return native_power(x, y, {0x3E2963AC, 0x3F00F2D6, 0x3F8003DE});
}
inline std::optional<float> pownf_native(float x, std::int32_t n) {
    return native_power(x, static_cast<float>(n), {0x3E2C359F, 0x3F014935, 0x3F7FFB0D});
}
inline std::optional<float> rootnf_native(float x, std::int32_t n) {
    return native_power(x, 1.0f / static_cast<float>(n), {0x3E2C359F, 0x3F014935, 0x3F7FFB0D});
}

// The third part q of the exponent, what is left of it, and t, the relative distance from the interval's middle.
struct CubeRootParts {
    std::uint32_t q, row, sign;
    float t;
};
inline std::optional<CubeRootParts> cube_root_parts(float x) {
    if (!positive_normal(magnitude(x))) return std::nullopt;
    const std::uint32_t b = bits(x), j = (b >> 18) & 31, exponent = (b >> 23) & 0xFF;
    const float minus_m = f32((b & 0x007FFFFF) | 0xBF800000), minus_c = f32((b & 0x007E0000) | 0xBF820000);
    const std::uint32_t q = (1365 * exponent) >> 12;
    const std::uint32_t row = 32 * (exponent - 1 - 3 * q) + j;
    return CubeRootParts{q, row, (b >> 23) & 0x100, (minus_m - minus_c) * cube_root_rows[row][2]};
}
inline float scaled_row(const float* row, float scale, float t, float series, float first) {
    const float head = row[0] * scale, tail = row[1] * scale;
    const float g = t * head;
    const float p = (series + first) * g;
    return (p + tail) + head;
}
inline std::optional<float> cbrtf(float x) {
    const auto parts = cube_root_parts(x);
    if (!parts) return std::nullopt;
    const float t = parts->t;
    const float series = horner(t, f32(0xBD288F47), f32(0x3D7CD6EA), f32(0xBDE38E39)) * t;
    return scaled_row(cube_root_rows[parts->row], f32(((parts->q + 85) | parts->sign) << 23), t, series,
                      f32(0x3EAAAAAB));
}
inline std::optional<float> cbrtf_native(float x) {
    const auto parts = cube_root_parts(x);
    if (!parts) return std::nullopt;
    return scaled_row(cube_root_rows[parts->row], f32(((parts->q + 85) | parts->sign) << 23), parts->t, 0.0f,
                      f32(0x3EAAAAAB));
}
inline std::optional<float> rcbrtf(float x) {
    const auto parts = cube_root_parts(x);
    if (!parts) return std::nullopt;
    const float t = parts->t;
    const float series = horner(t, f32(0x3E137D5E), f32(0xBE30FCD7), f32(0x3E638E39)) * t;
    return scaled_row(reciprocal_cube_root_rows[parts->row], f32(((169 - parts->q) | parts->sign) << 23), t, series,
                      f32(0xBEAAAAAB));
}
inline std::optional<float> rcbrtf_native(float x) {
    const auto parts = cube_root_parts(x);
    if (!parts) return std::nullopt;
    return scaled_row(reciprocal_cube_root_rows[parts->row], f32(((169 - parts->q) | parts->sign) << 23), parts->t,
                      0.0f, f32(0xBEAAAAAB));
}

}  // namespace tarn::test::models
