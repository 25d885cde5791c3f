// The vocabulary of the kernels: vectors of any number of lanes with the language's own operators, and a name for
// each thing that operators cannot say.
//
// A kernel is a template over its vector and says nothing of the vector's size. Its constants are single lanes: an
// operator takes a lane beside a vector, and so does every function here. The instructions behind the names are in
// simd128.hpp for vectors of 16 bytes and in simd256.hpp for vectors of 32, and in estimates.hpp.
#pragma once

#include "frame/estimates.hpp"
#include "frame/simd128.hpp"
#ifdef __AVX2__
#include "frame/simd256.hpp"
#endif

namespace tarn {

// The largest vectors that one instruction takes.
#ifdef __AVX2__
inline constexpr int native_bytes = 32;
#else
inline constexpr int native_bytes = 16;
#endif

// Bit patterns -----------------------------------------------------------------------------------

template <Floats V> TARN_INLINE BitsOf<V> bits(V x) { return (BitsOf<V>)x; }
template <Words V> TARN_INLINE Like<V, float> from_bits(V pattern) { return (Like<V, float>)pattern; }
template <LongWords V> TARN_INLINE Like<V, double> from_bits(V pattern) { return (Like<V, double>)pattern; }

// The 32-bit words of any lanes, the lower one of a double first.
template <Vectors V> TARN_INLINE WordsOf<V> words(V v) { return (WordsOf<V>)v; }

// A shift that fills with zeros; `>>` on signed lanes repeats the sign.
template <Integers V> TARN_INLINE V shift_right_logical(V v, int count) { return (V)((Unsigned<V>)v >> count); }

// A sum or difference that may wrap round; `+` and `-` on signed lanes must not.
template <Integers V> TARN_INLINE V wrapping_sum(V v, Operand<V> w) { return (V)((Unsigned<V>)v + (Unsigned<V>)w.value); }
template <Integers V> TARN_INLINE V wrapping_difference(V v, Operand<V> w) { return (V)((Unsigned<V>)v - (Unsigned<V>)w.value); }

// Sign and magnitude -----------------------------------------------------------------------------

// Minus zero's pattern, for lanes like those of V.
template <Vectors V> constexpr auto sign_mask = sizeof(LaneOf<V>) == 4 ? LaneOf<BitsOf<V>>(i32(0x80000000))
                                                                       : LaneOf<BitsOf<V>>(i64(0x8000000000000000));

template <Floats V> TARN_INLINE BitsOf<V> sign_bit(V x) { return bits(x) & sign_mask<V>; }
template <Floats V> TARN_INLINE V abs(V x) { return from_bits(bits(x) & ~sign_mask<V>); }
template <Floats V> TARN_INLINE V or_bits(V x, Operand<BitsOf<V>> pattern) { return from_bits(bits(x) | pattern.value); }
template <Floats V> TARN_INLINE V xor_bits(V x, Operand<BitsOf<V>> pattern) { return from_bits(bits(x) ^ pattern.value); }
template <Floats V> TARN_INLINE V and_bits(V x, Operand<BitsOf<V>> pattern) { return from_bits(bits(x) & pattern.value); }
template <class Lane, Integers I> requires std::is_floating_point_v<Lane> TARN_INLINE auto or_bits(Lane x, I pattern) {
    return or_bits(filled<Like<I, Lane>>(x), pattern);
}
template <Floats V> TARN_INLINE V negated(V x) { return xor_bits(x, sign_mask<V>); }

// Choice -----------------------------------------------------------------------------------------

// Lane by lane: `yes` where the sign of the mask lane is set, else `no`; either may be a single lane. Between
// integers the mask lanes are all ones or all zeros.
template <Integers M, class A, class B> TARN_INLINE auto select(M mask, A yes, B no) {
    using V = Beside<M, A, B>;
    return blended(mask, filled<V>(yes), filled<V>(no));
}

// The value where the mask lane is all ones, else +0.
template <Integers M, class A> TARN_INLINE auto where(M mask, A x) {
    using V = Beside<M, A, A>;
    return (V)((M)filled<V>(x) & mask);
}

// The processor's minimum and maximum: the second operand comes back when either is a NaN or both
// are zeros, so the order of the operands is part of the result.
template <class A, class B> requires Vectors<A> || Vectors<B> TARN_INLINE auto min(A x, B y) {
    using V = EitherVector<A, B>;
    return smaller(filled<V>(x), filled<V>(y));
}
template <class A, class B> requires Vectors<A> || Vectors<B> TARN_INLINE auto max(A x, B y) {
    using V = EitherVector<A, B>;
    return larger(filled<V>(x), filled<V>(y));
}

// Polynomials ------------------------------------------------------------------------------------

// Horner's rule, highest coefficient first: ((c0*x + c1)*x + c2)*x + ... A coefficient may be one lane.
template <class V> TARN_INLINE V horner(V, V sum) { return sum; }
template <class V, class C, class D, class... More> TARN_INLINE V horner(V x, C leading, D next, More... more) {
    return horner(x, V(leading * x + next), more...);
}

// Lanes one by one -------------------------------------------------------------------------------

// A vector of f(index[0]), f(index[1]), ...
template <Vectors I, class F> TARN_INLINE auto for_each_lane(I index, F f) {
    using Lane = decltype(f(index[0]));
    return [&]<int... i>(std::integer_sequence<int, i...>) __attribute__((always_inline)) {
        return Vector<Lane, int(sizeof...(i) * sizeof(Lane))>{f(index[i])...};
    }(std::make_integer_sequence<int, lane_count<I>>{});
}

// Special-lane tests -----------------------------------------------------------------------------
// A mask lane of a double counts by its sign, so that tests of the upper word alone serve; the lower words of
// such a mask mean nothing.

// Bit pattern of |x| above the bound; infinities and NaNs are above every finite bound.
template <Singles V> TARN_INLINE BitsOf<V> magnitude_above(V x, std::uint32_t bound) { return bits(abs(x)) > i32(bound); }

// Infinities and NaNs.
template <Singles V> TARN_INLINE BitsOf<V> not_finite(V x) { return magnitude_above(x, 0x7F7FFFFF); }
template <Doubles V> TARN_INLINE WordsOf<V> not_finite(V x) { return words(abs(x)) > 0x7FEFFFFF; }

// The upper word of |x| above the bound, in the upper words of the mask.
template <Doubles V> TARN_INLINE WordsOf<V> upper_magnitude_above(V x, std::uint32_t bound) { return words(abs(x)) > i32(bound); }

// |x| within the bound turned round, so that a NaN is not within.
template <Floats V> TARN_INLINE BitsOf<V> not_within(V x, LaneOf<V> bound) { return ~(abs(x) <= bound); }

// Anything but a positive normal finite number, in one wrapping sum: zeros, subnormals, negative numbers,
// infinities and NaNs.
template <Singles V> TARN_INLINE BitsOf<V> not_positive_normal(V x) {
    return wrapping_sum(bits(x), 0x00800000) < 0x01000000;
}
// The same in double precision, in the upper words of the mask; and anything below a bound, given as an upper
// word, in the place of what is not normal.
template <Doubles V> TARN_INLINE WordsOf<V> below_or_not_finite(V x, std::uint32_t bound) {
    return wrapping_sum(words(x), 0x00100000) < i32(bound + 0x00100000);
}
template <Doubles V> TARN_INLINE WordsOf<V> not_positive_normal(V x) { return below_or_not_finite(x, 0x00100000); }

// Floating-point flags ---------------------------------------------------------------------------

// The value as one the compiler cannot see through: operations on it are carried out when the
// program runs, in the caller's floating-point environment, and raise their flags there.
template <class T> requires Vectors<T> || std::is_floating_point_v<T> TARN_INLINE T opaque(T x) {
    asm volatile("" : "+x"(x));
    return x;
}
TARN_INLINE std::uint64_t opaque(std::uint64_t v) {
    asm volatile("" : "+r"(v));
    return v;
}

}  // namespace tarn
