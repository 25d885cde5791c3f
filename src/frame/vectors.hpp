// Vectors of the language, by lane and size, and what follows from their types.
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

#define TARN_INLINE __attribute__((always_inline)) inline

namespace tarn {

template <class Lane, int bytes> struct VectorOfBytes { typedef Lane type __attribute__((vector_size(bytes))); };
template <class Lane, int bytes> using Vector = typename VectorOfBytes<Lane, bytes>::type;

using f32x4 = Vector<float, 16>;
using f64x2 = Vector<double, 16>;
using i32x4 = Vector<std::int32_t, 16>;
using u32x4 = Vector<std::uint32_t, 16>;
using i64x2 = Vector<std::int64_t, 16>;
using u64x2 = Vector<std::uint64_t, 16>;

template <class V> using LaneOf = std::remove_cvref_t<decltype(std::declval<V&>()[0])>;
// A class that proofs put in the place of a vector.
template <class V> inline constexpr bool stands_for_vector = false;
template <class V> concept Vectors = !std::is_arithmetic_v<V> && (!std::is_class_v<V> || stands_for_vector<V>) &&
                                     !std::is_pointer_v<V> && requires(V v) { v[0]; v + v; };
template <class V> constexpr int lane_count = sizeof(V) / sizeof(LaneOf<V>);

template <class V> concept Floats = Vectors<V> && std::is_floating_point_v<LaneOf<V>>;
template <class V> concept Integers = Vectors<V> && std::is_integral_v<LaneOf<V>>;
template <class V> concept Singles = Floats<V> && sizeof(LaneOf<V>) == 4;
template <class V> concept Doubles = Floats<V> && sizeof(LaneOf<V>) == 8;
template <class V> concept Words = Integers<V> && sizeof(LaneOf<V>) == 4;
template <class V> concept LongWords = Integers<V> && sizeof(LaneOf<V>) == 8;

// As many bytes as V, in other lanes.
template <class V, class Lane> using Like = Vector<Lane, int(sizeof(V))>;

// Integers as wide as the lanes of V: its bit patterns, and the masks that its comparisons give.
template <class V> using BitsOf = Like<V, std::conditional_t<sizeof(LaneOf<V>) == 4, std::int32_t, std::int64_t>>;
template <class V> using Unsigned = Like<V, std::make_unsigned_t<LaneOf<BitsOf<V>>>>;

template <class V> using WordsOf = Like<V, std::int32_t>;

// Every lane the same.
template <Vectors V> constexpr V filled(LaneOf<V> lane) {
    return [&]<int... i>(std::integer_sequence<int, i...>) {
        return V{((void)i, lane)...};
    }(std::make_integer_sequence<int, lane_count<V>>{});
}
template <Vectors V> constexpr V filled(V v) { return v; }

// A vector or one lane of it, as the second operand of an operation on V.
template <Vectors V> struct OperandOf {
    V value;
    TARN_INLINE OperandOf(V v) : value(v) {}
    TARN_INLINE OperandOf(LaneOf<V> lane) : value(filled<V>(lane)) {}
};
template <class V> using Operand = OperandOf<std::type_identity_t<V>>;

// The vector among two operands.
template <class A, class B> struct EitherVectorOf { using type = A; };
template <class A, Vectors B> requires(!Vectors<A>) struct EitherVectorOf<A, B> { using type = B; };
template <class A, class B> using EitherVector = typename EitherVectorOf<A, B>::type;

// The same, or where both are single lanes the vector of such lanes that a mask goes with.
template <class M, class A, class B> struct BesideOf { using type = EitherVector<A, B>; };
template <class M, class A, class B> requires(!Vectors<A> && !Vectors<B>) struct BesideOf<M, A, B> { using type = Like<M, A>; };
template <class M, class A, class B> using Beside = typename BesideOf<M, A, B>::type;

// Bit patterns of single lanes.
constexpr float f32(std::uint32_t pattern) { return __builtin_bit_cast(float, pattern); }
constexpr double f64(std::uint64_t pattern) { return __builtin_bit_cast(double, pattern); }
constexpr std::int32_t i32(std::uint32_t pattern) { return static_cast<std::int32_t>(pattern); }
constexpr std::int64_t i64(std::uint64_t pattern) { return static_cast<std::int64_t>(pattern); }
constexpr std::int32_t bits(float x) { return __builtin_bit_cast(std::int32_t, x); }
constexpr std::int64_t bits(double x) { return __builtin_bit_cast(std::int64_t, x); }

enum class Rounding {
    nearest = 0x0,
    down = 0x1,
    up = 0x2,
    zero = 0x3,
    current = 0x4,        // the caller's rounding mode
    current_quiet = 0xC,  // the same, never inexact
};

// Columns of a table's rows, a vector each.
template <class V> struct Columns2 {
    V first, second;
};
template <class V> struct Columns4 {
    V first, second, third, fourth;
};

}  // namespace tarn
