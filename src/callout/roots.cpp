// Division and roots in double precision. The quotients are the processor's; the others are the kernels' own steps
// after scaling by a power of two whose root is one.
#include "callout/scalar.hpp"
#include "steps/double/corrected_rsqrt.hpp"
#include "steps/double/cube_root.hpp"

namespace tarn::callout {

using namespace doubles;
namespace {

template <class Root> double cube_root_of_normal(double x) { return cube_root_steps<Root>(filled<f64x2>(x))[0]; }

bool is_subnormal_or_zero(double x) { return pattern(x) << 1 >> 53 == 0; }
double size_of(double x) { return f64(pattern(x) << 1 >> 1); }
bool is_infinite(double x) { return pattern(x) << 1 == 0xFFE0000000000000; }

}  // namespace

int div(const double* x, const double* y, double* result) {
    *result = *x / *y;
    return *y == 0 ? pole : ordinary;
}

int inv(const double* x, double* result) {
    *result = 1.0 / *x;
    return *x == 0 ? pole : ordinary;
}

int rsqrt(const double* x, double* result) {
    if (is_below(*x, 0)) return give(result, invalid(), domain_error);
    if (*x == 0) return give(result, infinity_from(*x), pole);
    if (not_finite(*x)) return give(result, 1.0 / *x);
    if (*x < 0x1p-900) return give(result, corrected_rsqrt(filled<f64x2>(*x * 0x1p600))[0] * 0x1p300);
    return give(result, corrected_rsqrt(filled<f64x2>(*x))[0]);
}

int cbrt(const double* x, double* result) {
    if (*x == 0) return give(result, *x);
    if (not_finite(*x)) return give(result, *x + *x);
    if (is_subnormal_or_zero(*x)) return give(result, cube_root_of_normal<CubeRoot>(*x * 0x1p54) * 0x1p-18);
    return give(result, cube_root_of_normal<CubeRoot>(*x));
}

int rcbrt(const double* x, double* result) {
    if (*x == 0) return give(result, infinity_from(*x), pole);
    if (not_finite(*x)) return give(result, 1.0 / *x);
    if (is_subnormal_or_zero(*x)) return give(result, cube_root_of_normal<ReciprocalCubeRoot>(*x * 0x1p54) * 0x1p18);
    return give(result, cube_root_of_normal<ReciprocalCubeRoot>(*x));
}

int hypot(const double* px, const double* py, double* result) {
    const double x = size_of(*px), y = size_of(*py), larger = pattern(x) > pattern(y) ? x : y;
    if (is_infinite(x) || is_infinite(y)) return give(result, __builtin_inf());
    if (is_nan(*px) || is_nan(*py)) return give(result, *px + *py);
    if (larger == 0) return give(result, 0.0);
    const double scale = larger > 0x1p500 ? 0x1p-600 : larger < 0x1p-400 ? 0x1p600 : 1.0;
    const double X = x * scale, Y = y * scale;
    return give(result, __builtin_sqrt(X * X + Y * Y) * (1.0 / scale));
}

}  // namespace tarn::callout
