// Sine, cosine and tangent of any float, in double precision, rounded once. The kernels compute finite lanes
// themselves and send infinities and NaNs.
#include "callout/angle.hpp"

namespace tarn::callout {

int sinf(const float* x, float* result) {
    if (not_finite(*x)) return no_angle(*x, result);
    return give(result, *x == 0 ? *x : from_table(sine_64ths, reduced(*x)));
}

int cosf(const float* x, float* result) {
    if (not_finite(*x)) return no_angle(*x, result);
    return give(result, from_table(cosine_64ths, reduced(*x)));
}

int sincosf(const float* x, float* sine, float* cosine) {
    const float value = *x;
    if (not_finite(value)) {
        no_angle(value, cosine);
        return no_angle(value, sine);
    }
    const Angle angle = reduced(value);
    give(cosine, from_table(cosine_64ths, angle));
    return give(sine, value == 0 ? value : from_table(sine_64ths, angle));
}

int tanf(const float* x, float* result) {
    if (not_finite(*x)) return no_angle(*x, result);
    if (*x == 0) return give(result, *x);
    const Angle angle = reduced(*x);
    return give(result, from_table(sine_64ths, angle) / from_table(cosine_64ths, angle));
}

// The kernels of the pi forms reduce every finite angle exactly; no other lane comes here.
int sinpif(const float* x, float* result) { return no_angle(*x, result); }
int cospif(const float* x, float* result) { return no_angle(*x, result); }
int tanpif(const float* x, float* result) { return no_angle(*x, result); }

}  // namespace tarn::callout
