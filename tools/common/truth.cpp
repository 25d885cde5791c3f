#include "common/truth.hpp"

#include "common/module.hpp"

#include <bit>
#include <cmath>
#include <limits>
#include <map>

namespace tarn {
namespace {

// Every function is rounded correctly to these bits: far beyond any lane, and quick to compute.
[[maybe_unused]] const bool truth_precision = (Real::precision = 160, true);

template <auto f> void one(mpfr_t r, const Real* x) { f(r, x[0].value, MPFR_RNDN); }
template <auto f> void two(mpfr_t r, const Real* x) { f(r, x[0].value, x[1].value, MPFR_RNDN); }
template <auto f> void three(mpfr_t r, const Real* x) { f(r, x[0].value, x[1].value, x[2].value, MPFR_RNDN); }

void inverse(mpfr_t r, const Real* x) { mpfr_ui_div(r, 1, x[0].value, MPFR_RNDN); }
void reciprocal_root(mpfr_t r, const Real* x) {
    mpfr_rec_sqrt(r, x[0].value, MPFR_RNDN);
    if (mpfr_zero_p(x[0].value)) mpfr_set_inf(r, mpfr_signbit(x[0].value) ? -1 : 1);
}
void reciprocal_cube_root(mpfr_t r, const Real* x) {
    mpfr_cbrt(r, x[0].value, MPFR_RNDN);
    mpfr_ui_div(r, 1, r, MPFR_RNDN);
}
void log_gamma(mpfr_t r, const Real* x) {
    int sign;
    mpfr_lgamma(r, &sign, x[0].value, MPFR_RNDN);
}

// x^y for x >= 0: the indeterminate powers are NaN, and so is a negative base.
void power_of_positive(mpfr_t r, const Real* x) {
    const mpfr_t &b = x[0].value, &e = x[1].value;
    const bool one_base = mpfr_cmp_ui(b, 1) == 0 && !mpfr_nan_p(b);
    if (mpfr_nan_p(b) || mpfr_nan_p(e) || mpfr_sgn(b) < 0 || (mpfr_zero_p(b) && mpfr_zero_p(e)) ||
        (mpfr_inf_p(b) && mpfr_zero_p(e)) || (one_base && mpfr_inf_p(e))) {
        mpfr_set_nan(r);
    } else if (mpfr_zero_p(b)) {
        mpfr_sgn(e) < 0 ? mpfr_set_inf(r, 1) : mpfr_set_zero(r, 1);
    } else {
        mpfr_pow(r, b, e, MPFR_RNDN);
    }
}
void integer_root(mpfr_t r, const Real* x) { mpfr_rootn_si(r, x[0].value, mpfr_get_si(x[1].value, MPFR_RNDN), MPFR_RNDN); }

const std::map<std::string, Truth>& truths() {
    static const std::map<std::string, Truth> all = {
        {"exp", {one<mpfr_exp>, nullptr, std::exp}},
        {"exp2", {one<mpfr_exp2>, nullptr, std::exp2}},
        {"exp10", {one<mpfr_exp10>, nullptr, ::exp10}},
        {"expm1", {one<mpfr_expm1>, nullptr, std::expm1}},
        {"log", {one<mpfr_log>, nullptr, std::log}},
        {"log2", {one<mpfr_log2>, nullptr, std::log2}},
        {"log10", {one<mpfr_log10>, nullptr, std::log10}},
        {"log1p", {one<mpfr_log1p>, nullptr, std::log1p}},
        {"pow", {two<mpfr_pow>, nullptr, nullptr, std::pow}},
        {"powr", {power_of_positive}},
        {"pown", {two<mpfr_pow>}},
        {"rootn", {integer_root}},
        {"div", {two<mpfr_div>}},
        {"inv", {inverse, nullptr, [](double x) { return 1 / x; }}},
        {"sqrt", {one<mpfr_sqrt>, nullptr, std::sqrt}},
        {"rsqrt", {reciprocal_root, nullptr, [](double x) { return x == 0 ? 1 / x : 1 / std::sqrt(x); }}},
        {"cbrt", {one<mpfr_cbrt>, nullptr, std::cbrt}},
        {"rcbrt", {reciprocal_cube_root, nullptr, [](double x) { return 1 / std::cbrt(x); }}},
        {"hypot", {two<mpfr_hypot>, nullptr, nullptr, std::hypot}},
        {"sin", {one<mpfr_sin>, nullptr, std::sin}},
        {"cos", {one<mpfr_cos>, nullptr, std::cos}},
        {"sincos", {one<mpfr_sin>, one<mpfr_cos>, std::sin}},
        {"sincosreg", {one<mpfr_sin>, one<mpfr_cos>, std::sin}},
        {"tan", {one<mpfr_tan>, nullptr, std::tan}},
        {"sinpi", {one<mpfr_sinpi>}},
        {"cospi", {one<mpfr_cospi>}},
        {"tanpi", {one<mpfr_tanpi>}},
        {"asin", {one<mpfr_asin>, nullptr, std::asin}},
        {"acos", {one<mpfr_acos>, nullptr, std::acos}},
        {"atan", {one<mpfr_atan>, nullptr, std::atan}},
        {"atan2", {two<mpfr_atan2>, nullptr, nullptr, std::atan2}},
        {"asinpi", {one<mpfr_asinpi>}},
        {"acospi", {one<mpfr_acospi>}},
        {"atanpi", {one<mpfr_atanpi>}},
        {"atan2pi", {two<mpfr_atan2pi>}},
        {"sinh", {one<mpfr_sinh>, nullptr, std::sinh}},
        {"cosh", {one<mpfr_cosh>, nullptr, std::cosh}},
        {"tanh", {one<mpfr_tanh>, nullptr, std::tanh}},
        {"asinh", {one<mpfr_asinh>, nullptr, std::asinh}},
        {"acosh", {one<mpfr_acosh>, nullptr, std::acosh}},
        {"atanh", {one<mpfr_atanh>, nullptr, std::atanh}},
        {"erf", {one<mpfr_erf>, nullptr, std::erf}},
        {"erfc", {one<mpfr_erfc>, nullptr, std::erfc}},
        {"tgamma", {one<mpfr_gamma>, nullptr, std::tgamma}},
        {"lgamma", {log_gamma, nullptr, std::lgamma}},
        {"lgammar", {log_gamma, nullptr, std::lgamma}},
    };
    return all;
}

}  // namespace

const Truth* truth_of(const Family& f) {
    // A base of single precision is the double base with an f; erf and modf end in one of their own.
    const bool single = f.shape.args[0] == Lane::f32;
    const auto found = truths().find(single ? f.base.substr(0, f.base.size() - 1) : f.base);
    return found == truths().end() ? nullptr : &found->second;
}

Real exact(Lane type, std::uint64_t pattern) {
    Real r;
    switch (type) {
        case Lane::f32: mpfr_set_flt(r.value, std::bit_cast<float>(static_cast<std::uint32_t>(pattern)), MPFR_RNDN); break;
        case Lane::f64: mpfr_set_d(r.value, std::bit_cast<double>(pattern), MPFR_RNDN); break;
        case Lane::i32: mpfr_set_si(r.value, static_cast<std::int32_t>(pattern), MPFR_RNDN); break;
        case Lane::u32: mpfr_set_ui(r.value, static_cast<std::uint32_t>(pattern), MPFR_RNDN); break;
        case Lane::i64: mpfr_set_si(r.value, static_cast<std::int64_t>(pattern), MPFR_RNDN); break;
        case Lane::u64: mpfr_set_ui(r.value, pattern, MPFR_RNDN); break;
        case Lane::none: break;
    }
    return r;
}

double ulp_error(Lane type, std::uint64_t result, const Real& truth) {
    constexpr double never = std::numeric_limits<double>::infinity();
    const int digits = type == Lane::f32 ? 24 : 53;
    const mpfr_exp_t least = type == Lane::f32 ? -149 : -1074, top = type == Lane::f32 ? 128 : 1024;
    const double got = value_of(type, result);

    if (std::isnan(got) || mpfr_nan_p(truth.value)) return std::isnan(got) && mpfr_nan_p(truth.value) ? 0 : never;
    if (mpfr_inf_p(truth.value)) return std::isinf(got) && std::signbit(got) == (mpfr_signbit(truth.value) != 0) ? 0 : never;
    if (mpfr_zero_p(truth.value)) return got == 0 ? 0 : never;

    Real difference = got;
    if (std::isinf(got)) mpfr_set_si_2exp(difference.value, got > 0 ? 1 : -1, top, MPFR_RNDN);
    mpfr_exp_t unit = mpfr_get_exp(truth.value);
    if (unit > top) unit = top;
    unit -= digits;
    if (unit < least) unit = least;
    // A truth beyond the range counts as the power of two that an infinite result stands for.
    if (mpfr_get_exp(truth.value) > top) return std::isinf(got) && std::signbit(got) == (mpfr_signbit(truth.value) != 0) ? 0 : never;
    difference = difference - truth;
    mpfr_div_2si(difference.value, difference.value, unit, MPFR_RNDN);
    return std::fabs(difference.nearest());
}

double quick_error(float result, double truth) {
    if (!std::isfinite(truth) || !std::isfinite(result) || truth == 0)
        return std::numeric_limits<double>::quiet_NaN();
    const int exponent = std::max(std::ilogb(truth), -126);
    return std::fabs(std::ldexp(static_cast<double>(result) - truth, 23 - exponent));
}

}  // namespace tarn
