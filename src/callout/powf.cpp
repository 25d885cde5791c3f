// Powers of one lane: |x|^y = e^(y ln |x|) in double precision, rounded once, after the special values
// (power_rules.hpp). An integer exponent is exact.
#include "callout/exp_family.hpp"
#include "callout/log_family.hpp"
#include "callout/power_rules.hpp"

namespace tarn::callout {
namespace {

// e^z with a sign.
int signed_exp(double exponent, bool negative, float* result) {
    if (exponent > 88.8) return give(result, negative ? -overflowed() : overflowed());
    if (exponent < -104.0) return give(result, negative ? -underflowed() : underflowed());
    exp_in_range(exponent, result);
    *result = signed_by(*result, negative);
    return ordinary;
}

}  // namespace

int powf(const float* x, const float* y, float* result) {
    return pow_rules(*x, *y, result, [&](float size, bool negative) {
        return signed_exp(static_cast<double>(*y) * log_of(size), negative, result);
    });
}

int powrf(const float* x, const float* y, float* result) {
    return powr_rules(*x, *y, result, [&](float size, bool negative) {
        return signed_exp(static_cast<double>(*y) * log_of(size), negative, result);
    });
}

int pownf(const float* x, const std::int32_t* n, float* result) {
    return pown_rules(*x, *n, result, [&](float size, bool negative) {
        return signed_exp(*n * log_of(size), negative, result);
    });
}

int rootnf(const float* x, const std::int32_t* n, float* result) {
    return rootn_rules(*x, *n, result, [&](float size, bool negative) {
        return signed_exp(log_of(size) / *n, negative, result);
    });
}

}  // namespace tarn::callout
