// Powers of one lane: |x|^y = e^(y ln |x|) in double precision, rounded once, after the special values
// in the order in which they take precedence. An integer exponent is exact. Worst error 0.50 ulp.
#include "callout/exp_family.hpp"
#include "callout/log_family.hpp"

namespace tarn::callout {
namespace {

constexpr float infinity = __builtin_inff();

bool is_infinite(float x) { return (pattern(x) & 0x7FFFFFFF) == 0x7F800000; }
bool is_negative(float x) { return pattern(x) >> 31 != 0; }
float magnitude(float x) { return f32(pattern(x) & 0x7FFFFFFF); }
float with_sign(float x, bool negative) { return negative ? -x : x; }

enum Parity { not_an_integer, odd, even };

// The parity of a finite or infinite y; infinities count as even.
Parity parity(float y) {
    const int exponent = static_cast<int>(pattern(y) >> 23 & 0xFF) - 127;
    if (exponent < 0) return y == 0 ? even : not_an_integer;
    if (exponent > 23) return even;
    const std::uint32_t significand = (pattern(y) & 0x007FFFFF) | 0x00800000;
    if ((significand << (exponent + 8) << 1) != 0) return not_an_integer;
    return (significand >> (23 - exponent) & 1) != 0 ? odd : even;
}

int nan_of(float* result) { return give(result, invalid(), domain_error); }

int plain(float* result, float value) {
    *result = value;
    return ordinary;
}

// A zero or infinity as the magnitude of a zero x to a positive or negative power.
int power_of_zero(bool positive_exponent, bool negative, float* result) {
    if (positive_exponent) return plain(result, with_sign(0.0f, negative));
    return give(result, infinity_from(negative ? -0.0 : 0.0), domain_error);
}
int power_of_infinity(bool positive_exponent, bool negative, float* result) {
    return plain(result, with_sign(positive_exponent ? infinity : 0.0f, negative));
}

// e^(y ln |x|) with a sign, for finite x other than zero.
int signed_exp(double exponent, bool negative, float* result) {
    if (exponent > 88.8) return give(result, negative ? -overflowed() : overflowed());
    if (exponent < -104.0) return give(result, negative ? -underflowed() : underflowed());
    exp_in_range(exponent, result);
    *result = with_sign(*result, negative);
    return ordinary;
}

// A magnitude to an infinite power; 1 is decided before.
int to_infinite_power(float x, float y, float* result) {
    return plain(result, (x > 1) == (y > 0) ? infinity : 0.0f);
}

}  // namespace

int powf(const float* px, const float* py, float* result) {
    const float x = *px, y = *py, size = magnitude(x);
    if (x == 1 || y == 0) return plain(result, 1.0f);
    if (is_nan(x) || is_nan(y)) return plain(result, x + y);
    const Parity kind = parity(y);
    const bool negative = is_negative(x) && kind == odd;
    if (x == 0) return power_of_zero(y > 0, negative, result);
    if (x == -1 && kind != not_an_integer) return plain(result, with_sign(1.0f, negative));
    if (is_infinite(x)) return power_of_infinity(y > 0, negative, result);
    if (is_infinite(y)) return to_infinite_power(size, y, result);
    if (x < 0 && kind == not_an_integer) return nan_of(result);
    return signed_exp(static_cast<double>(y) * log_of(size), negative, result);
}

int powrf(const float* px, const float* py, float* result) {
    const float x = *px, y = *py;
    if (is_nan(x) || is_nan(y)) return plain(result, x + y);
    if (x < 0) return nan_of(result);
    if (x == 0) return y == 0 ? nan_of(result) : power_of_zero(y > 0, false, result);
    if (is_infinite(x)) return y == 0 ? nan_of(result) : power_of_infinity(y > 0, false, result);
    if (is_infinite(y)) return x == 1 ? nan_of(result) : to_infinite_power(x, y, result);
    return signed_exp(static_cast<double>(y) * log_of(x), false, result);
}

int pownf(const float* px, const std::int32_t* pn, float* result) {
    const float x = *px;
    const std::int32_t n = *pn;
    if (x == 1 || n == 0) return plain(result, 1.0f);
    if (is_nan(x)) return plain(result, x + x);
    const bool negative = is_negative(x) && (n & 1) != 0;
    if (x == 0) return power_of_zero(n > 0, negative, result);
    if (is_infinite(x)) return power_of_infinity(n > 0, negative, result);
    return signed_exp(n * log_of(magnitude(x)), negative, result);
}

int rootnf(const float* px, const std::int32_t* pn, float* result) {
    const float x = *px;
    const std::int32_t n = *pn;
    if (n == 0) return nan_of(result);
    if (is_nan(x)) return plain(result, x + x);
    const bool is_odd = (n & 1) != 0, negative = is_negative(x) && is_odd;
    if (x == 0) return power_of_zero(n > 0, negative, result);
    if (x < 0 && !is_odd) return nan_of(result);
    if (is_infinite(x)) return power_of_infinity(n > 0, negative, result);
    return signed_exp(log_of(magnitude(x)) / n, negative, result);
}

}  // namespace tarn::callout
