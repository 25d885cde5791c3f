// Division and roots. The quotients are the processor's; the square roots are taken in double precision, where
// every single is a normal number, and rounded once; a cube root is the kernels' own after scaling.
#include "callout/scalar.hpp"
#include "steps/float/cube_root.hpp"

namespace tarn::callout {
namespace {

template <class Root> float cube_root_of_normal(float x) { return singles::cube_root_steps<Root>(filled<f32x4>(x), i32x4{})[0]; }

}  // namespace

int divf(const float* x, const float* y, float* result) {
    *result = *x / *y;
    return *y == 0 ? pole : ordinary;
}

int invf(const float* x, float* result) {
    *result = 1.0f / *x;
    return *x == 0 ? pole : ordinary;
}

int sqrtf(const float* x, float* result) {
    if (is_below(*x, 0)) return give(result, invalid(), domain_error);
    return give(result, __builtin_sqrt(*x));
}

int rsqrtf(const float* x, float* result) {
    if (is_below(*x, 0)) return give(result, invalid(), domain_error);
    if (*x == 0) return give(result, infinity_from(*x), pole);
    return give(result, 1.0 / __builtin_sqrt(*x));
}

int cbrtf(const float* x, float* result) {
    if (*x == 0) *result = *x;
    else if (not_finite(*x)) *result = *x + *x;
    else if (is_subnormal(*x)) *result = cube_root_of_normal<singles::CubeRoot>(*x * 0x1p126f) * 0x1p-42f;
    else *result = cube_root_of_normal<singles::CubeRoot>(*x);
    return ordinary;
}

int rcbrtf(const float* x, float* result) {
    if (*x == 0) return give(result, infinity_from(*x), pole);
    if (not_finite(*x)) *result = 1.0f / *x;
    else if (is_subnormal(*x)) *result = cube_root_of_normal<singles::ReciprocalCubeRoot>(*x * 0x1p126f) * 0x1p42f;
    else *result = cube_root_of_normal<singles::ReciprocalCubeRoot>(*x);
    return ordinary;
}

// The squares are exact in double precision.
int hypotf(const float* x, const float* y, float* result) {
    if ((pattern(*x) & 0x7FFFFFFF) == 0x7F800000) return give(result, *x * *x);
    if ((pattern(*y) & 0x7FFFFFFF) == 0x7F800000) return give(result, *y * *y);
    const double X = *x, Y = *y;
    return give(result, __builtin_sqrt(X * X + Y * Y));
}

}  // namespace tarn::callout
