// erfc |x| by Taylor's series from the nearest point c of a grid of 128ths: with d = |x| - c, u = c d and the
// derivative D, erfc(c) - D d (1 + P), P a polynomial in u and d^2. Value, with a tail, and derivative come from a
// table, scaled by 2^64: all is computed above the subnormals, and the last multiplication is the only rounding
// into them. For negative x the same sum is turned into 2 - erfc |x| before that. Lanes from 27.25 on, where
// nothing is left, and NaNs are the callout's. The native form has no tail, and 7 coefficients in P for 20.
//
// Worst error of erfc: 1.333 ulp at 25.683579412408275; native 3.981e+06.
#include "callout/callouts.hpp"
#include "frame/exports.hpp"
#include "steps/double/erfc.hpp"

namespace tarn::doubles {
namespace {

struct Native {
    static constexpr bool has_tail = false;

    template <class V> static TARN_INLINE V series(V u, V d2) {
        // |d| <= 1/256; fit not recorded.
        constexpr double p0 = f64(0x3FE55554E6CBD17A);  // 0.66666646077514646
        constexpr double p1 = f64(0xBFD55554783D5B8F);  // -0.33333312742382132
        constexpr double p2 = f64(0x3FC115CE85E922DC);  // 0.13347798861129589
        constexpr double p3 = f64(0xBFA6C888510AE081);  // -0.044498691456682067
        constexpr double q0 = f64(0xBFD555485F4C215C);  // -0.33333024317155036
        constexpr double q1 = f64(0x3FE00F90DCD82EF6);  // 0.50190013059315564
        constexpr double q2 = f64(0xBFD9AFD532D1112E);  // -0.40135698282780907
        return horner(u, q2, q1, q0) * d2 + (horner(u, p3, p2, p1, p0) * (u * u) - u);
    }
};

template <class Form> struct Complement : Kernel<double(double)> {
    static constexpr auto callout = callout::erfc;
    template <class V> static TARN_INLINE auto fast(V x) { return Flagged{erfc_steps<Form>(x), ~(x < 27.25)}; }
};

using Erfc = Complement<ErfcSeries>;
using ErfcNative = Complement<Native>;

}  // namespace
}  // namespace tarn::doubles

TARN_EXPORT(unary, erfc, full, tarn::doubles::Erfc)
TARN_EXPORT(unary, erfc, native, tarn::doubles::ErfcNative)
