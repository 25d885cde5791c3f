// Loops over functions of other libraries: each holds its call, the loads and the stores, and nothing else.
#pragma once

#include <cstddef>

namespace tarn::bench {

using Run = void (*)(void* address, const std::byte* const* in, std::byte* first, std::byte* second, std::size_t bytes);

// By the number of arguments; and of one argument with two results, sine and cosine.
struct Runs {
    Run of[3];
    Run pair;
};

// Defined in a file of its own each, which is compiled for the vectors of its size.
extern const Runs of_16_bytes_f32, of_16_bytes_f64, of_32_bytes_f32, of_32_bytes_f64;

namespace {

template <class V> V load(const std::byte* from) {
    V v;
    __builtin_memcpy(&v, from, sizeof v);
    return v;
}
template <class V> void store(std::byte* to, V v) { __builtin_memcpy(to, &v, sizeof v); }

template <class V> void run_1(void* address, const std::byte* const* in, std::byte* first, std::byte*, std::size_t bytes) {
    const auto f = reinterpret_cast<V (*)(V)>(address);
    for (std::size_t i = 0; i < bytes; i += sizeof(V)) store(first + i, f(load<V>(in[0] + i)));
}
template <class V> void run_2(void* address, const std::byte* const* in, std::byte* first, std::byte*, std::size_t bytes) {
    const auto f = reinterpret_cast<V (*)(V, V)>(address);
    for (std::size_t i = 0; i < bytes; i += sizeof(V)) store(first + i, f(load<V>(in[0] + i), load<V>(in[1] + i)));
}
template <class V> void run_3(void* address, const std::byte* const* in, std::byte* first, std::byte*, std::size_t bytes) {
    const auto f = reinterpret_cast<V (*)(V, V, V)>(address);
    for (std::size_t i = 0; i < bytes; i += sizeof(V))
        store(first + i, f(load<V>(in[0] + i), load<V>(in[1] + i), load<V>(in[2] + i)));
}
template <class V> void run_pair(void* address, const std::byte* const* in, std::byte* first, std::byte* second, std::size_t bytes) {
    struct Two { V first, second; };
    const auto f = reinterpret_cast<Two (*)(V)>(address);
    for (std::size_t i = 0; i < bytes; i += sizeof(V)) {
        const Two both = f(load<V>(in[0] + i));
        store(first + i, both.first), store(second + i, both.second);
    }
}
template <class V> constexpr Runs runs = {{run_1<V>, run_2<V>, run_3<V>}, run_pair<V>};

}  // namespace
}  // namespace tarn::bench
