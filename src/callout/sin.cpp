// Sine, cosine and tangent of any double from the exact reduction and the angle table; of the pi forms,
// whose reduction is exact by itself, from the same table. The kernels compute finite lanes themselves
// and send infinities only.
#include "callout/scalar.hpp"
#include "steps/double/angle_table.hpp"

namespace tarn::callout {
namespace {

using namespace doubles;

// What every function of an angle is at infinity (not a number, a domain error) and at a NaN.
int no_angle(double x, double* result) {
    *result = is_nan(x) ? x * x : opaque(x) * 0.0;
    return is_nan(x) ? ordinary : domain_error;
}

int give(double* result, double value) {
    *result = value;
    return ordinary;
}

double with_sign_of(double x, double magnitude) { return xor_bits(filled<f64x2>(magnitude), sign_bit(filled<f64x2>(x)))[0]; }

[[gnu::noinline]] Reduced<f64x2> reduced(double x) { return reduce_exactly<Turns>(filled<f64x2>(x)); }

// |x| half turns: x without whole turns, to the nearest 512th of a turn, exactly.
[[gnu::noinline]] Reduced<f64x2> reduced_half_turns(double x) {
    const double a = __builtin_fabs(x);
    const double turns = a < 0x1p53 ? __builtin_floor(a / 2) : a / 2;
    const f64x2 within = filled<f64x2>(a - 2 * turns);
    const f64x2 shifted = within + HalfTurns::shifter;
    const f64x2 s = within - (shifted - HalfTurns::shifter);
    return {bits(shifted) & Turns::row_mask, in_radians<HalfTurns>(s, f64x2{})};
}

// pi a for small a, which is its sine and tangent. The pieces of the product need room below: a is scaled
// up, but where the result is subnormal, and would be rounded twice, 3 a is exact.
constexpr double small_half_turns = 0x1p-500;
double pi_times(double a) {
    constexpr double least = f64(0x000517CC1B727221);      // 2^-1022 / pi
    constexpr double pi_less_3 = f64(0x3FC21FB54442D184);  // 0.14159265358979323
    if (a < least) return 3 * a + a * pi_less_3;
    return in_radians<HalfTurns>(filled<f64x2>(a * 0x1p200), f64x2{}).head[0] * 0x1p-200;
}

[[gnu::noinline]] Sum<f64x2> sine(const Reduced<f64x2>& angle) { return sine_from_table(angle); }
[[gnu::noinline]] Sum<f64x2> cosine(const Reduced<f64x2>& angle) { return cosine_from_table(angle); }

// (a + rest)/(b + rest) by a quotient of the heads and what its exact product with b leaves.
double quotient(const Sum<f64x2>& numerator, const Sum<f64x2>& denominator) {
    const double a = numerator.head[0], b = denominator.head[0];
    const double q = a / b;
    if (a == 0 || b == 0) return q;
    const auto upper = [](double v) { return f64(pattern(v) & 0xFFFFFFFFF8000000); };
    const double q_head = upper(q), q_tail = q - q_head, b_head = upper(b), b_tail = b - b_head;
    const double left = ((a - q_head * b_head) - (q_head * b_tail + q_tail * b_head)) - q_tail * b_tail;
    return q + ((left + numerator.rest[0]) - q * denominator.rest[0]) / denominator.rounded()[0];
}

}  // namespace

int sin(const double* x, double* result) {
    if (not_finite(*x)) return no_angle(*x, result);
    return give(result, with_sign_of(*x, sine(reduced(*x)).rounded()[0]));
}

int cos(const double* x, double* result) {
    if (not_finite(*x)) return no_angle(*x, result);
    return give(result, cosine(reduced(*x)).rounded()[0]);
}

int sincos(const double* x, double* sine, double* cosine) {
    const double value = *x;
    cos(&value, cosine);
    return sin(&value, sine);
}

int tan(const double* x, double* result) {
    if (not_finite(*x)) return no_angle(*x, result);
    const Reduced<f64x2> angle = reduced(*x);
    return give(result, with_sign_of(*x, quotient(sine(angle), cosine(angle))));
}

int sinpi(const double* x, double* result) {
    if (not_finite(*x)) return no_angle(*x, result);
    const double a = __builtin_fabs(*x);
    if (a < small_half_turns) return give(result, with_sign_of(*x, pi_times(a)));
    return give(result, with_sign_of(*x, sine(reduced_half_turns(*x)).rounded()[0]));
}

int cospi(const double* x, double* result) {
    if (not_finite(*x)) return no_angle(*x, result);
    return give(result, cosine(reduced_half_turns(*x)).rounded()[0]);
}

// At half-integers the quotient is an infinity: 1/0.
int tanpi(const double* x, double* result) {
    if (not_finite(*x)) return no_angle(*x, result);
    const double a = __builtin_fabs(*x);
    if (a < small_half_turns) return give(result, with_sign_of(*x, pi_times(a)));
    const Reduced<f64x2> angle = reduced_half_turns(*x);
    const Sum<f64x2> denominator = cosine(angle);
    give(result, with_sign_of(*x, quotient(sine(angle), denominator)));
    return denominator.head[0] == 0 ? pole : ordinary;
}

}  // namespace tarn::callout
