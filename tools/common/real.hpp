// A number of any precision: MPFR with the language's operators.
#pragma once

#include <mpfr.h>

namespace tarn {

class Real {
public:
    static inline mpfr_prec_t precision = 320;

    Real(double v = 0) { mpfr_init2(value, precision), mpfr_set_d(value, v, MPFR_RNDN); }
    Real(const Real& other) { mpfr_init2(value, mpfr_get_prec(other.value)), mpfr_set(value, other.value, MPFR_RNDN); }
    Real& operator=(const Real& other) {
        if (this != &other) mpfr_set_prec(value, mpfr_get_prec(other.value)), mpfr_set(value, other.value, MPFR_RNDN);
        return *this;
    }
    ~Real() { mpfr_clear(value); }

    static Real pi() {
        Real r;
        mpfr_const_pi(r.value, MPFR_RNDN);
        return r;
    }
    static Real ln2() {
        Real r;
        mpfr_const_log2(r.value, MPFR_RNDN);
        return r;
    }

    double nearest() const { return mpfr_get_d(value, MPFR_RNDN); }
    double toward_zero() const { return mpfr_get_d(value, MPFR_RNDZ); }
    float nearest_float() const { return mpfr_get_flt(value, MPFR_RNDN); }
    float float_toward_zero() const { return mpfr_get_flt(value, MPFR_RNDZ); }

    friend Real operator+(const Real& x, const Real& y) { return apply(mpfr_add, x, y); }
    friend Real operator-(const Real& x, const Real& y) { return apply(mpfr_sub, x, y); }
    friend Real operator*(const Real& x, const Real& y) { return apply(mpfr_mul, x, y); }
    friend Real operator/(const Real& x, const Real& y) { return apply(mpfr_div, x, y); }
    friend Real operator-(const Real& x) { return apply(mpfr_neg, x); }
    friend bool operator<(const Real& x, const Real& y) { return mpfr_less_p(x.value, y.value) != 0; }
    friend Real pow(const Real& x, const Real& y) { return apply(mpfr_pow, x, y); }
    friend Real exp(const Real& x) { return apply(mpfr_exp, x); }
    friend Real exp2(const Real& x) { return apply(mpfr_exp2, x); }
    friend Real log(const Real& x) { return apply(mpfr_log, x); }
    friend Real log2(const Real& x) { return apply(mpfr_log2, x); }
    friend Real sin(const Real& x) { return apply(mpfr_sin, x); }
    friend Real cos(const Real& x) { return apply(mpfr_cos, x); }
    friend Real tan(const Real& x) { return apply(mpfr_tan, x); }
    friend Real abs(const Real& x) { return apply(mpfr_abs, x); }
    friend Real sqrt(const Real& x) { return apply(mpfr_sqrt, x); }
    friend Real cbrt(const Real& x) { return apply(mpfr_cbrt, x); }
    friend Real erf(const Real& x) { return apply(mpfr_erf, x); }
    friend Real erfc(const Real& x) { return apply(mpfr_erfc, x); }
    friend Real floor(const Real& x) {
        Real r;
        mpfr_floor(r.value, x.value);
        return r;
    }

    // Any of MPFR's functions, rounded to nearest in the current precision.
    template <class F, class... X> static Real apply(F f, const X&... x) {
        Real r;
        f(r.value, x.value..., MPFR_RNDN);
        return r;
    }

    mpfr_t value;
};

}  // namespace tarn
