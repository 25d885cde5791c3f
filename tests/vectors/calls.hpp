// Loops over vector functions, one call a register: compiled for each kind of register in a file of its own.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>

namespace tarn::vectors {

struct Calls {
    using Run = void (*)(void* address, const std::byte* const* in, std::byte* first, std::byte* second, std::size_t bytes);
    Run unary, binary;
    Run pair;     // two results to consecutive lanes
    Run scatter;  // the same through a pointer for each lane
};
extern const Calls sse_f32, sse_f64, avx_f32, avx_f64, avx2_f32, avx2_f64;

namespace {

template <class V> V load(const void* from) {
    V v;
    __builtin_memcpy(&v, from, sizeof v);
    return v;
}
template <class V> void store(std::byte* to, V v) { __builtin_memcpy(to, &v, sizeof v); }

// Vectors of lanes, and of pointers to them: AVX has those in registers of 16 bytes.
template <class Lane, class V, class P> struct Loops {
    static constexpr std::size_t lanes = sizeof(V) / sizeof(Lane), registers = lanes * sizeof(void*) / sizeof(P);

    static void unary(void* address, const std::byte* const* in, std::byte* first, std::byte*, std::size_t bytes) {
        for (std::size_t i = 0; i < bytes; i += sizeof(V)) store(first + i, reinterpret_cast<V (*)(V)>(address)(load<V>(in[0] + i)));
    }
    static void binary(void* address, const std::byte* const* in, std::byte* first, std::byte*, std::size_t bytes) {
        for (std::size_t i = 0; i < bytes; i += sizeof(V))
            store(first + i, reinterpret_cast<V (*)(V, V)>(address)(load<V>(in[0] + i), load<V>(in[1] + i)));
    }
    static void pair(void* address, const std::byte* const* in, std::byte* first, std::byte* second, std::size_t bytes) {
        for (std::size_t i = 0; i < bytes; i += sizeof(V))
            reinterpret_cast<void (*)(V, Lane*, Lane*)>(address)(load<V>(in[0] + i), reinterpret_cast<Lane*>(first + i),
                                                                 reinterpret_cast<Lane*>(second + i));
    }
    // Lanes of a register go to places of any order.
    static void scatter(void* address, const std::byte* const* in, std::byte* first, std::byte* second, std::size_t bytes) {
        for (std::size_t i = 0; i < bytes; i += sizeof(V)) {
            Lane results[2][lanes];
            Lane* to[2][lanes];
            for (std::size_t k = 0; k < lanes; k++) to[0][k] = &results[0][lanes - 1 - k], to[1][k] = &results[1][k ^ 1];
            call(address, load<V>(in[0] + i), to[0], to[1], std::make_index_sequence<registers>{});
            for (std::size_t k = 0; k < lanes; k++) {
                __builtin_memcpy(first + i + k * sizeof(Lane), to[0][k], sizeof(Lane));
                __builtin_memcpy(second + i + k * sizeof(Lane), to[1][k], sizeof(Lane));
            }
        }
    }
    template <std::size_t> using Pointers = P;
    template <std::size_t... r> static void call(void* address, V x, Lane** sines, Lane** cosines, std::index_sequence<r...>) {
        constexpr std::size_t per_register = sizeof(P) / sizeof(void*);
        reinterpret_cast<void (*)(V, Pointers<r>..., Pointers<r>...)>(address)(x, load<P>(sines + r * per_register)...,
                                                                               load<P>(cosines + r * per_register)...);
    }
    static constexpr Calls calls = {unary, binary, pair, scatter};
};

template <class Lane, int bytes> struct Register { typedef Lane type __attribute__((vector_size(bytes))); };
template <class Lane, int bytes, int pointer_bytes> constexpr Calls calls_of() {
    return Loops<Lane, typename Register<Lane, bytes>::type, typename Register<std::int64_t, pointer_bytes>::type>::calls;
}

}  // namespace
}  // namespace tarn::vectors
