// Scalar models: the written steps of a kernel's fast path, one lane and one rounding at a time. A model has no value
// for a lane that the steps send elsewhere.
#pragma once

#include <bit>
#include <cstdint>
#include <optional>
#include <type_traits>
#include <utility>

namespace tarn::test::models {

inline std::uint32_t bits(float x) { return std::bit_cast<std::uint32_t>(x); }
inline std::uint64_t bits(double x) { return std::bit_cast<std::uint64_t>(x); }
inline float f32(std::uint32_t b) { return std::bit_cast<float>(b); }
inline double f64(std::uint64_t b) { return std::bit_cast<double>(b); }
inline std::int32_t as_signed(std::uint32_t b) { return static_cast<std::int32_t>(b); }

inline float magnitude(float x) { return f32(bits(x) & 0x7FFFFFFF); }
inline double magnitude(double x) { return f64(bits(x) & 0x7FFFFFFFFFFFFFFF); }
inline std::uint32_t sign(float x) { return bits(x) & 0x80000000; }
inline std::uint64_t sign(double x) { return bits(x) & 0x8000000000000000; }
inline std::uint32_t upper_magnitude(double x) { return static_cast<std::uint32_t>(bits(magnitude(x)) >> 32); }

// Every coefficient from the highest on takes one product and one sum.
template <class T> T horner(T, T last) { return last; }
template <class T, class... Rest> T horner(T r, T highest, T next, Rest... rest) {
    const T product = highest * r;
    return horner(r, product + next, rest...);
}

struct Outcome {
    std::uint64_t first, second = 0;
    Outcome(float y) : first(bits(y)) {}
    Outcome(double y) : first(bits(y)) {}
    Outcome(std::pair<float, float> y) : first(bits(y.first)), second(bits(y.second)) {}
};
template <class T> T from_pattern(std::uint64_t p) {
    if constexpr (sizeof(T) == 8) return std::bit_cast<T>(p);
    else return std::bit_cast<T>(static_cast<std::uint32_t>(p));
}
template <class R, class... A> std::optional<Outcome> apply(std::optional<R> (*steps)(A...),
                                                            const std::uint64_t* patterns) {
    return [&]<std::size_t... I>(std::index_sequence<I...>) -> std::optional<Outcome> {
        const std::optional<R> y = steps(from_pattern<A>(patterns[I])...);
        if (!y) return std::nullopt;
        return Outcome(*y);
    }(std::index_sequence_for<A...>());
}

using Evaluate = std::optional<Outcome> (*)(const std::uint64_t* patterns);
template <auto Steps> std::optional<Outcome> evaluate(const std::uint64_t* patterns) { return apply(Steps, patterns); }

}  // namespace tarn::test::models
