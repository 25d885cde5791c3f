// What all conversions share: the rounding suffix as a kernel over a conversion, and the correction of a
// result that the processor rounded to nearest.
#pragma once

#include "frame/exports.hpp"

namespace tarn {

// A conversion has a signature in lanes and computes with each rounding by `to<mode>`: two lanes at a
// time where either side has 64 bits, or four where the pieces of four integers fit one block.
template <class Conversion, Rounding mode, class Signature = typename Conversion::Signature> struct Rounded;
template <class Conversion, Rounding mode, class To, class From>
struct Rounded<Conversion, mode, To(From)> : Kernel<To(From)> {
    static constexpr bool pieces = std::is_same_v<To, float> && std::is_integral_v<From>;
    static constexpr int lanes = !pieces && (sizeof(To) == 8 || sizeof(From) == 8) ? 2 : 4;
    template <class G> static TARN_INLINE auto fast(G x) { return Conversion::template to<mode>(x); }
};
template <class Conversion> struct Rte : Rounded<Conversion, Rounding::nearest> {};
template <class Conversion> struct Rtn : Rounded<Conversion, Rounding::down> {};
template <class Conversion> struct Rtp : Rounded<Conversion, Rounding::up> {};
template <class Conversion> struct Rtz : Rounded<Conversion, Rounding::zero> {};

// f is the exact value rounded to nearest; the masks say where it lies above or below. One unit of the
// bit pattern leads to the neighbour on the other side: up is away from zero, and -0 is the neighbour of
// the smallest negative number.
template <Rounding mode, Floats V> TARN_INLINE V redirected(V f, BitsOf<V> above, BitsOf<V> below) {
    using Mask = BitsOf<V>;
    const Mask negative = bits(f) >> (8 * sizeof(f[0]) - 1);
    const Mask away = negative | 1;  // one unit away from +0
    if constexpr (mode == Rounding::nearest) return f;
    else if constexpr (mode == Rounding::down) return from_bits(bits(f) - (away & above));
    else if constexpr (mode == Rounding::up) return from_bits(bits(f) + (away & below));
    else return from_bits(bits(f) + select(negative, below, above));  // a mask lane is -1
}

}  // namespace tarn

#define TARN_EXPORT_ROUNDINGS(name, suffix, ...)                              \
    TARN_EXPORT(unary, name##rte##suffix, full, tarn::Rte<__VA_ARGS__>)       \
    TARN_EXPORT(unary, name##rtn##suffix, full, tarn::Rtn<__VA_ARGS__>)       \
    TARN_EXPORT(unary, name##rtp##suffix, full, tarn::Rtp<__VA_ARGS__>)       \
    TARN_EXPORT(unary, name##rtz##suffix, full, tarn::Rtz<__VA_ARGS__>)
