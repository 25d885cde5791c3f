// arcsin x and arccos x, in radians and over pi. Magnitudes from 1/2 on are folded: with w = (1 - |x|)/2 the
// angle of x is that of sqrt(w) doubled, away from the end of the range; so one odd polynomial on [0, 1/2],
// of degree 25 (native: 11) serves, in v = |x| or 2 sqrt(w) and z = x^2 or w. Magnitudes from 1 on are the
// callout's.
//
// Worst error of asin: 2.196 ulp at 0.50599914291049652; native 4.571e+07.
// Worst error of acos: 1.329 ulp at 0.60911405496058302; native 4.363e+07.
// Worst error of asinpi: 3.033 ulp at 0.53293550154721014; native 5.82e+07.
// Worst error of acospi: 1.928 ulp at 0.72451396314127747; native 4.125e+07.
#include "callout/callouts.hpp"
#include "frame/exports.hpp"

namespace tarn::doubles {
namespace {

constexpr double half = 0.5, one = 1.0;

// z times (arcsin(v) - v)/(v z).
struct Full {
    template <class V> static TARN_INLINE V rest(V z) {
        // 0 <= z <= 1/4; fit not recorded.
        constexpr double d0 = f64(0x3FC555555555529C);   // 0.1666666666666473
        constexpr double d1 = f64(0x3FB333333337E0DE);   // 0.07500000000425497
        constexpr double d2 = f64(0x3FA6DB6DB3B445F8);   // 0.04464285677580543
        constexpr double d3 = f64(0x3F9F1C72E13AD8BE);   // 0.030381960865917483
        constexpr double d4 = f64(0x3F96E89CEBDEFADD);   // 0.022371723076271322
        constexpr double d5 = f64(0x3F91C6DCF538AD2E);   // 0.01736016508782006
        constexpr double d6 = f64(0x3F8C6DBBCB88BD57);   // 0.013881175183171264
        constexpr double d7 = f64(0x3F88F8DC2AFCCAD6);   // 0.012193412839768863
        constexpr double d8 = f64(0x3F7A583395D45ED5);   // 0.006431771759956202
        constexpr double d9 = f64(0x3F943F44BFBC3BAE);   // 0.01977260036715805
        constexpr double d10 = f64(0xBF90FB17F7DBB0ED);  // -0.016582846167623556
        constexpr double d11 = f64(0x3FA07520C70EB909);  // 0.03214361600781685
        const V z2 = z * z, z4 = z2 * z2;
        const V upper = ((d10 + d11 * z) * z2 + (d8 + d9 * z)) * z4 + ((d6 + d7 * z) * z2 + (d4 + d5 * z));
        return z * ((upper * z2 + (d2 + d3 * z)) * z2 + (d0 + d1 * z));
    }
};
struct Native {
    template <class V> static TARN_INLINE V rest(V z) {
        // 0 <= z <= 1/4; fit not recorded.
        constexpr double n1 = f64(0x3FC5555C883A06DD);  // 0.1666675248307489
        constexpr double n2 = f64(0x3FB3301E456DEE8A);  // 0.074952976179640057
        constexpr double n3 = f64(0x3FA747E4B927AAE0);  // 0.045470378496096364
        constexpr double n4 = f64(0x3F98C282FEDE7F97);  // 0.024179503255822601
        constexpr double n5 = f64(0x3FA596D328057E09);  // 0.042166327128821797
        return ((n5 * z + n4) * (z * z) + (n3 * z + n2)) * (z * z) + n1 * z;
    }
};

// A unit's turns, the tails of their heads, and v (1 + rest) with a tail added.
struct InRadians {
    static constexpr double quarter = f64(0x3FF921FB54442D18);         // 1.5707963267948966 = pi/2
    static constexpr double quarter_tail = f64(0x3C91A62633145C07);    // 6.123233995736766e-17
    static constexpr double half_turn = f64(0x400921FB54442D18);       // 3.141592653589793 = pi
    static constexpr double half_turn_tail = f64(0x3CA1A62633145C07);  // 1.2246467991473532e-16

    template <class V> static TARN_INLINE V angle(V v, V rest) { return v + v * rest; }
    template <class V> static TARN_INLINE V angle(V v, V rest, V tail) { return v + (v * rest + tail); }
};
struct InHalfTurns {
    static constexpr double quarter = half, quarter_tail = 0.0;
    static constexpr double half_turn = one, half_turn_tail = 0.0;
    static constexpr double inv_pi = f64(0x3FD45F306DC9C883);       // 0.3183098861837907
    static constexpr double inv_pi_tail = f64(0xBC76B01EC5417056);  // -1.9678676675182486e-17

    template <class V> static TARN_INLINE V angle(V v, V rest) {
        return v * inv_pi + (v * inv_pi_tail + (v * rest) * inv_pi);
    }
    template <class V> static TARN_INLINE V angle(V v, V rest, V) { return angle(v, rest); }
};

// The folded lanes, their root, and z.
template <class V> struct Folded {
    BitsOf<V> upper;
    V root, z;
};
template <class V> TARN_INLINE Folded<V> fold(V a) {
    const V w = half - half * a;
    return {~(a < half), sqrt(w), min(a * a, w)};
}

constexpr int blocks_by_roots = 2;  // at a time: more only wait for each other's roots

template <class Form, class Unit, callout::UnaryDouble scalar> struct Arcsine : Kernel<double(double)> {
    static constexpr auto callout = scalar;
    static constexpr int blocks_at_a_time = blocks_by_roots;

    template <class V> static TARN_INLINE auto fast(V x) {
        const V a = abs(x);
        const auto [upper, root, z] = fold(a);
        const V v = select(upper, -2.0 * root, a);
        const V y = Unit::angle(v, Form::rest(z)) + where(upper, Unit::quarter);
        return Flagged{xor_bits(y, sign_bit(x)), a >= one};
    }
};

// From a quarter turn down, or where folded from 0 up or, for a negative x, from half a turn down.
template <class Form, class Unit, callout::UnaryDouble scalar> struct Arccosine : Kernel<double(double)> {
    static constexpr auto callout = scalar;
    static constexpr int blocks_at_a_time = blocks_by_roots;

    template <class V> static TARN_INLINE auto fast(V x) {
        const V a = abs(x);
        const auto [upper, root, z] = fold(a);
        const BitsOf<V> negative = bits(x) >> 63;
        const V start = select(upper, where(negative, Unit::half_turn), Unit::quarter);
        const V tail = select(upper, where(negative, Unit::half_turn_tail), Unit::quarter_tail);
        const V v = xor_bits(select(upper, root + root, a), sign_bit(x) ^ (~upper & sign_mask<V>));
        return Flagged{start + Unit::angle(v, Form::rest(z), tail), a >= one};
    }
};

using Asin = Arcsine<Full, InRadians, callout::asin>;
using AsinNative = Arcsine<Native, InRadians, callout::asin>;
using Acos = Arccosine<Full, InRadians, callout::acos>;
using AcosNative = Arccosine<Native, InRadians, callout::acos>;
using Asinpi = Arcsine<Full, InHalfTurns, callout::asinpi>;
using AsinpiNative = Arcsine<Native, InHalfTurns, callout::asinpi>;
using Acospi = Arccosine<Full, InHalfTurns, callout::acospi>;
using AcospiNative = Arccosine<Native, InHalfTurns, callout::acospi>;

}  // namespace
}  // namespace tarn::doubles

TARN_EXPORT(unary, asin, full, tarn::doubles::Asin)
TARN_EXPORT(unary, asin, native, tarn::doubles::AsinNative)
TARN_EXPORT(unary, acos, full, tarn::doubles::Acos)
TARN_EXPORT(unary, acos, native, tarn::doubles::AcosNative)
TARN_EXPORT(unary, asinpi, full, tarn::doubles::Asinpi)
TARN_EXPORT(unary, asinpi, native, tarn::doubles::AsinpiNative)
TARN_EXPORT(unary, acospi, full, tarn::doubles::Acospi)
TARN_EXPORT(unary, acospi, native, tarn::doubles::AcospiNative)
