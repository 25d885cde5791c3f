// arctan x and arctan(x)/pi: of min(|x|, 1) / max(|x|, 1), one division, subtracted from a quarter turn above 1,
// by an even polynomial of degree 38 (native: 18). No lane is special. In radians width 2 adds the leading 1 to
// the polynomial first; the other widths keep it out of the sum to the end, for less error.
//
// Worst errors in 3 million random inputs, all next to 1: atan 3.37 ulp (width 2: 4.51), atanpi 3.95; native
// 2.4e7 ulp.
#include "double/trig/arctangent.hpp"
#include "frame/exports.hpp"

namespace tarn {
namespace {

template <class Unit> struct ArctangentOf : Kernel<double(double)> {
    static TARN_INLINE auto fast(f64x2 x) { return arctangent::of<Unit>(x); }
};

using Atan = ArctangentOf<arctangent::FineRadians>;
using AtanOfTwo = ArctangentOf<arctangent::Radians>;
using AtanNative = ArctangentOf<arctangent::RadiansNative>;
using Atanpi = ArctangentOf<arctangent::HalfTurns>;
using AtanpiNative = ArctangentOf<arctangent::HalfTurnsNative>;
using AtanByWidth = ExceptAt<Atan, 2, AtanOfTwo>;

}  // namespace
}  // namespace tarn

TARN_EXPORT(unary, atan, full, tarn::AtanByWidth)
TARN_EXPORT(unary, atan, native, tarn::AtanNative)
TARN_EXPORT(unary, atanpi, full, tarn::Atanpi)
TARN_EXPORT(unary, atanpi, native, tarn::AtanpiNative)
