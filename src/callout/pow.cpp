// Powers of one lane in double precision: after the special values (power_rules.hpp) |x|^y by the kernels'
// own steps, so that both agree where they meet; subnormal x are scaled to normal ones, and results at the
// ends of the range take their power of two in two steps.
#include "callout/power_rules.hpp"
#include "steps/double/pair_power.hpp"

namespace tarn::callout {

using namespace doubles;
namespace {

// log2 of a positive finite number.
HeadTail<f64x2> log2_of(double x) {
    if (x >= 0x1p-1022) return log2_pair(filled<f64x2>(x));
    const f64x2 shift = filled<f64x2>(200.0);
    const auto [head, tail] = log2_pair(filled<f64x2>(x * 0x1p200));
    const f64x2 shifted = head - shift;
    return {shifted, ((head - shifted) - shift) + tail};
}

// 2^z with a sign. The squares that overflow or vanish raise their flags.
int signed_exp2(const HeadTail<f64x2>& z, bool negative, double* result) {
    const double exponent = z.head[0];
    if (exponent > 1025) return give(result, negative ? -overflowed() : overflowed());
    if (exponent < -1080) return give(result, negative ? -underflowed() : underflowed());
    const auto [row, r, q, shifted] = exp2_parts(z);
    const double power = exp2_sum(row, r, q)[0];
    const int whole = static_cast<std::int32_t>(bits(shifted)[0]) >> 7, half = whole / 2;
    return give(result, signed_by(power, negative) * power_of_two(half) * power_of_two(whole - half));
}

}  // namespace

int pow(const double* x, const double* y, double* result) {
    return pow_rules(*x, *y, result, [&](double size, bool negative) {
        return signed_exp2(log2_of_power(log2_of(size), filled<f64x2>(*y)), negative, result);
    });
}

int powr(const double* x, const double* y, double* result) {
    return powr_rules(*x, *y, result, [&](double size, bool negative) {
        return signed_exp2(log2_of_power(log2_of(size), filled<f64x2>(*y)), negative, result);
    });
}

int pown(const double* x, const std::int32_t* n, double* result) {
    return pown_rules(*x, *n, result, [&](double size, bool negative) {
        return signed_exp2(log2_of_power(log2_of(size), filled<f64x2>(static_cast<double>(*n))), negative, result);
    });
}

int rootn(const double* x, const std::int32_t* n, double* result) {
    return rootn_rules(*x, *n, result, [&](double size, bool negative) {
        return signed_exp2(log2_of_root(log2_of(size), filled<f64x2>(static_cast<double>(*n))), negative, result);
    });
}

}  // namespace tarn::callout
