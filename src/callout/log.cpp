// The double-precision logarithms of special lanes. ln is a complete scalar function; to the other
// bases a subnormal x is scaled by 2^60 and takes the vector path's own steps.
#include "callout/log_family.hpp"
#include "steps/double/table_log.hpp"

namespace tarn::callout {

using namespace doubles;
namespace {

// The value of what is not positive and finite; `of` gives ln(x 2^moved) to its base for what is.
template <class Of> int give_log(double x, double* result, Of of) {
    if (not_finite(x) && (is_nan(x) || !has_sign(x))) return give(result, x * x);
    if (x == 0) return give(result, -infinity_from(0.0), pole);
    if (x < 0) return give(result, invalid(), domain_error);
    const bool subnormal = x < 0x1p-1022;
    return give(result, subnormal ? of(x * 0x1p60, -60) : of(x, 0));
}

double natural(double x, int moved) { return log_of(x, moved); }

template <class Base> double by_table(double x, int moved) {
    return table_log<Base>(filled<f64x2>(x), filled<f64x2>(static_cast<double>(moved)))[0];
}

}  // namespace

int log(const double* x, double* result) { return give_log(*x, result, natural); }
int log2(const double* x, double* result) { return give_log(*x, result, by_table<Base2>); }
int log10(const double* x, double* result) { return give_log(*x, result, by_table<Base10>); }

int log1p(const double* x, double* result) {
    if (is_above(*x, -1.0) && !not_finite(*x)) return give(result, log1p_of(*x));
    return give_log(*x + 1.0, result, natural);
}

}  // namespace tarn::callout
