// The vector functions that compilers call from loops: names and registers of the Vector Function ABI for x86-64. b is
// SSE's, d AVX2's with registers of 32 bytes; c, AVX's, is in halves.cpp. Each is the kernel of the width that has as
// many lanes, and as on arrays a lane's bits depend on that lane alone.
#pragma once

#include "arrays/loop.hpp"

namespace tarn {
namespace {

template <class K, int bytes, class R = typename Parts<typename K::Signature>::Result,
          class Seconds = typename Parts<typename K::Signature>::Seconds,
          class Args = typename Parts<typename K::Signature>::Args>
struct OneVector;
template <class K, int bytes, class R, class... S, class... A>
struct OneVector<K, bytes, R, Types<S...>, Types<A...>> {
    static constexpr int lanes = bytes / sizeof(R);
    static_assert(K::lanes == 16 / sizeof(R), "a register is a group");
    using V = Vector<R, bytes>;

    static TARN_INLINE V run(Vector<A, bytes>... x) {
        if constexpr (requires { K::lane_by_lane; }) {
            return settled(lane_mask(lanes), x..., V{});
        } else {
            const auto group = K::fast(x...);
            if constexpr (requires { group.special; })
                if (const unsigned special = flags_of<lanes>(group.special); __builtin_expect(special != 0, 0))
                    return settled(special, x..., group.value);
            return value_of(group);
        }
    }

    // Two results to where they belong.
    static TARN_INLINE void run_pair(Vector<A, bytes>... x, R* first, S*... second) {
        const auto group = K::fast(x...);
        put<lanes>(first, group.value);
        (put<lanes>(second, group.second), ...);
        if (const unsigned special = flags_of<lanes>(group.special); __builtin_expect(special != 0, 0))
            settle_pair(special, x..., first, second...);
    }

private:
    [[gnu::noinline, gnu::cold]] static V settled(unsigned special, Vector<A, bytes>... x, V value) {
        Room<R, lanes> result;
        put<lanes>(result.lane, value);
        settle(special, spilled<A>(x)..., result.lane);
        return loaded<lanes, bytes>(result.lane);
    }
    template <class Lane> static TARN_INLINE Room<Lane, lanes> spilled(Vector<Lane, bytes> v) {
        Room<Lane, lanes> all;
        put<lanes>(all.lane, v);
        return all;
    }
    static TARN_INLINE void settle(unsigned special, const Room<A, lanes>&... x, R* value, S*... second) {
        Settled<K, bytes>::run(special, x.lane..., value, second...);
    }
    [[gnu::noinline, gnu::cold]] static void settle_pair(unsigned special, Vector<A, bytes>... x, R* first, S*... second) {
        settle(special, spilled<A>(x)..., first, second...);
    }
};

// The kernel of the width that has so many lanes, on a register of so many bytes.
template <class K, int lanes, int bytes> using InLoop = OneVector<typename ChosenAt<K, lanes>::Kernel, bytes>;

// Through a pointer for each lane.
template <class K, int lanes, class Lane, int bytes, class... Pointers>
TARN_INLINE void scatter_pair(Vector<Lane, bytes> x, const Pointers&... to) {
    Room<Lane, lanes> result[2];
    InLoop<K, lanes, bytes>::run_pair(x, result[0].lane, result[1].lane);
    Lane* pointer[2 * lanes];
    Lane** at = pointer;
    ((__builtin_memcpy(at, &to, sizeof to), at += sizeof to / sizeof(Lane*)), ...);
    for (int i = 0; i < lanes; i++) __builtin_memcpy(pointer[i], &result[0].lane[i], sizeof(Lane));
    for (int i = 0; i < lanes; i++) __builtin_memcpy(pointer[lanes + i], &result[1].lane[i], sizeof(Lane));
}

}  // namespace
}  // namespace tarn

// What the macros of loops.inc, one a base, are made of.
#define TARN_LOOPS_full(base, K) TARN_LOOPS_##base(K)
#define TARN_LOOPS_native(base, K)
#define TARN_LOOPS_half(base, K)

#define TARN_VECTOR_UNARY(name, Lane, lanes, bytes, K)                                                     \
    tarn::Vector<Lane, bytes> name(tarn::Vector<Lane, bytes> x) { return tarn::InLoop<K, lanes, bytes>::run(x); }
#define TARN_VECTOR_BINARY(name, Lane, lanes, bytes, K)                                                    \
    tarn::Vector<Lane, bytes> name(tarn::Vector<Lane, bytes> x, tarn::Vector<Lane, bytes> y) {             \
        return tarn::InLoop<K, lanes, bytes>::run(x, y);                                                   \
    }
#define TARN_VECTOR_SINCOS(name, Lane, lanes, bytes, K)                                                    \
    void name(tarn::Vector<Lane, bytes> x, Lane* sine, Lane* cosine) {                                     \
        tarn::InLoop<K, lanes, bytes>::run_pair(x, sine, cosine);                                          \
    }
// Pointers to floats fill two registers.
#define TARN_SCATTER_float(name, lanes, bytes, K)                                                          \
    void name(tarn::Vector<float, bytes> x, tarn::Vector<std::int64_t, bytes> sine0,                       \
              tarn::Vector<std::int64_t, bytes> sine1, tarn::Vector<std::int64_t, bytes> cosine0,          \
              tarn::Vector<std::int64_t, bytes> cosine1) {                                                 \
        tarn::scatter_pair<K, lanes, float, bytes>(x, sine0, sine1, cosine0, cosine1);                     \
    }
#define TARN_SCATTER_double(name, lanes, bytes, K)                                                         \
    void name(tarn::Vector<double, bytes> x, tarn::Vector<std::int64_t, bytes> sine,                       \
              tarn::Vector<std::int64_t, bytes> cosine) {                                                  \
        tarn::scatter_pair<K, lanes, double, bytes>(x, sine, cosine);                                      \
    }

#define TARN_ELEMENT_FUNCTION_UNARY(name, Lane, K)                                                         \
    Lane name(Lane x) { return tarn::ArrayOf<K>::element(x); }
#define TARN_ELEMENT_FUNCTION_BINARY(name, Lane, K)                                                        \
    Lane name(Lane x, Lane y) { return tarn::ArrayOf<K>::element(x, y); }

// Each at the levels that this translation unit is compiled for.
#define TARN_VISIBLE(...) extern "C" [[gnu::visibility("default")]] __VA_ARGS__
#ifdef TARN_ONLY_AVX2
#define TARN_OF_SSE(...)
#define TARN_HALF_UNARY(base, Lane, K)
#define TARN_HALF_BINARY(base, Lane, K)
#define TARN_ELEMENT_UNARY(base, Lane, K)
#define TARN_ELEMENT_BINARY(base, Lane, K)
#else
#define TARN_OF_SSE(...) TARN_VISIBLE(__VA_ARGS__)
#define TARN_HALF(SHAPE, base, Lane, K)                                                                    \
    extern "C" [[gnu::visibility("hidden")]] TARN_VECTOR_##SHAPE(tarn_half_##base, Lane, 32 / sizeof(Lane), 16, K)
#define TARN_HALF_UNARY(base, Lane, K) TARN_HALF(UNARY, base, Lane, K)
#define TARN_HALF_BINARY(base, Lane, K) TARN_HALF(BINARY, base, Lane, K)
#define TARN_ELEMENT_UNARY(base, Lane, K) TARN_VISIBLE(TARN_ELEMENT_FUNCTION_UNARY(base, Lane, K))
#define TARN_ELEMENT_BINARY(base, Lane, K) TARN_VISIBLE(TARN_ELEMENT_FUNCTION_BINARY(base, Lane, K))
#endif
#ifdef __AVX2__
#define TARN_OF_AVX2(...) TARN_VISIBLE(__VA_ARGS__)
#else
#define TARN_OF_AVX2(...)
#endif

#define TARN_LOOPS_UNARY(base, Lane, K) TARN_LOOPS_UNARY_##Lane(base, K)
#define TARN_LOOPS_UNARY_float(base, K)                                                                    \
    TARN_OF_SSE(TARN_VECTOR_UNARY(_ZGVbN4v_##base, float, 4, 16, K))                                       \
    TARN_OF_AVX2(TARN_VECTOR_UNARY(_ZGVdN8v_##base, float, 8, 32, K))
#define TARN_LOOPS_UNARY_double(base, K)                                                                   \
    TARN_OF_SSE(TARN_VECTOR_UNARY(_ZGVbN2v_##base, double, 2, 16, K))                                      \
    TARN_OF_AVX2(TARN_VECTOR_UNARY(_ZGVdN4v_##base, double, 4, 32, K))
#define TARN_LOOPS_BINARY(base, Lane, K) TARN_LOOPS_BINARY_##Lane(base, K)
#define TARN_LOOPS_BINARY_float(base, K)                                                                   \
    TARN_OF_SSE(TARN_VECTOR_BINARY(_ZGVbN4vv_##base, float, 4, 16, K))                                     \
    TARN_OF_AVX2(TARN_VECTOR_BINARY(_ZGVdN8vv_##base, float, 8, 32, K))
#define TARN_LOOPS_BINARY_double(base, K)                                                                  \
    TARN_OF_SSE(TARN_VECTOR_BINARY(_ZGVbN2vv_##base, double, 2, 16, K))                                    \
    TARN_OF_AVX2(TARN_VECTOR_BINARY(_ZGVdN4vv_##base, double, 4, 32, K))
#define TARN_LOOPS_SINCOS(base, Lane, K) TARN_LOOPS_SINCOS_##Lane(base, K)
#define TARN_LOOPS_SINCOS_float(base, K)                                                                   \
    TARN_OF_SSE(TARN_VECTOR_SINCOS(_ZGVbN4vl4l4_##base, float, 4, 16, K))                                  \
    TARN_OF_SSE(TARN_SCATTER_float(_ZGVbN4vvv_##base, 4, 16, K))                                           \
    TARN_OF_AVX2(TARN_VECTOR_SINCOS(_ZGVdN8vl4l4_##base, float, 8, 32, K))                                 \
    TARN_OF_AVX2(TARN_SCATTER_float(_ZGVdN8vvv_##base, 8, 32, K))
#define TARN_LOOPS_SINCOS_double(base, K)                                                                  \
    TARN_OF_SSE(TARN_VECTOR_SINCOS(_ZGVbN2vl8l8_##base, double, 2, 16, K))                                 \
    TARN_OF_SSE(TARN_SCATTER_double(_ZGVbN2vvv_##base, 2, 16, K))                                          \
    TARN_OF_AVX2(TARN_VECTOR_SINCOS(_ZGVdN4vl8l8_##base, double, 4, 32, K))                                \
    TARN_OF_AVX2(TARN_SCATTER_double(_ZGVdN4vvv_##base, 4, 32, K))

#include "arrays/loops.inc"
