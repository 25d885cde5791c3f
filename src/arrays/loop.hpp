// A kernel in a loop over arrays. An element's bits depend on that element alone: flagged lanes leave the others of
// their group as they are, and the elements at the end go through the same steps, in a group filled up with copies of
// the last one.
//
// Everything here is internal to its translation unit, so that the linker never merges the code of two instruction
// levels.
#pragma once

#include <cstddef>

#include "frame/kernel.hpp"

namespace tarn {
namespace {

// Groups of vectors in flight: measured; fewer where a kernel wants fewer.
#ifndef TARN_IN_FLIGHT
#define TARN_IN_FLIGHT 4
#endif
inline constexpr int groups_in_flight = TARN_IN_FLIGHT;

// A group from consecutive lanes at any address. One that fills half a block of 16 bytes is there twice, so that no
// lane computes what nobody asked for.
template <int lanes, int bytes, class Lane> TARN_INLINE Group<Lane, lanes, bytes> loaded(const Lane* from) {
    constexpr int size = lanes * sizeof(Lane);
    if constexpr (size == bytes) {
        Vector<Lane, bytes> v;
        __builtin_memcpy(&v, from, bytes);
        return v;
    } else if constexpr (size > bytes) {
        return {loaded<lanes / 2, bytes>(from), loaded<lanes / 2, bytes>(from + lanes / 2)};
    } else if constexpr (bytes == 16) {
        std::int64_t both;
        __builtin_memcpy(&both, from, sizeof both);
        return (Vector<Lane, 16>)i64x2{both, both};
    } else {
#ifdef __AVX2__
        return in_low_half(loaded<lanes, 16>(from));
#endif
    }
}

template <int lanes, class Lane, class V> TARN_INLINE void put(Lane* to, V group) {
    constexpr int size = lanes * sizeof(Lane);
    if constexpr (requires { group.low; }) {
        put<lanes / 2>(to, group.low);
        put<lanes / 2>(to + lanes / 2, group.high);
    } else {
        __builtin_memcpy(to, &group, size);
    }
}

// Fewer lanes than a group has, without a loop that a compiler would make a call of.
template <int below, class Lane> TARN_INLINE void copy_few(Lane* to, const Lane* from, std::size_t n) {
    if constexpr (below > 1) {
        constexpr int half = below / 2;
        if (n & half) {
            __builtin_memcpy(to, from, half * sizeof(Lane));
            to += half, from += half;
        }
        copy_few<half>(to, from, n);
    }
}

template <class Lane, int lanes> struct Padded {
    alignas(32) Lane lane[lanes];

    TARN_INLINE Padded(const Lane* from, std::size_t n) {
        Lane last;
        __builtin_memcpy(&last, from + (n - 1), sizeof last);
        constexpr int per_block = 16 / sizeof(Lane);
        for (int i = 0; i < lanes; i += per_block) {
            const auto block = filled<Vector<Lane, 16>>(last);
            __builtin_memcpy(lane + i, &block, lanes < per_block ? lanes * sizeof last : 16);
        }
        copy_few<lanes>(lane, from, n);
    }
};

// Flagged lanes ------------------------------------------------------------------------------------

template <class G> TARN_INLINE auto value_of(const G& g) {
    if constexpr (requires { g.value; }) return g.value;
    else return g;
}

// A mask for `gathered`; a kernel marks a special lane by the sign of its 32- or 64-bit mask lane.
template <int lanes, class Mask> TARN_INLINE unsigned flags_of(Mask mask) {
    return gathered((Like<Mask, std::conditional_t<sizeof(Mask) / lanes == 8, std::int64_t, std::int32_t>>)mask);
}

template <class K, int bytes, class R = typename Parts<typename K::Signature>::Result,
          class Seconds = typename Parts<typename K::Signature>::Seconds,
          class Args = typename Parts<typename K::Signature>::Args>
struct Settled;
template <class K, int bytes, class R, class... S, class... A>
struct Settled<K, bytes, R, Types<S...>, Types<A...>> {
    static constexpr int lanes = K::lanes * (bytes / 16);

    // Gives the flagged lanes among `value` and `second` what becomes of special lanes of this kernel; touches no
    // other.
    [[gnu::noinline, gnu::cold]] static void run(unsigned special, const A*... x, R* value, S*... second) {
        if constexpr (requires { typename K::long_path; }) {
            for (; special != 0;) {
                const int first = __builtin_ctz(special) / lanes * lanes;
                const unsigned here = special >> first & lane_mask(lanes);
                by_long_path(here, x + first..., value + first, second + first...);
                special &= ~(here << first);
            }
        } else if constexpr (requires { &K::finish; }) {
            constexpr int few = K::lanes;
            for (; special != 0;) {
                const int first = __builtin_ctz(special) / few * few;
                const unsigned here = special >> first & lane_mask(few);
                const auto group = K::finish(loaded<few, 16>(x + first)..., loaded<few, 16>(value + first), here);
                for (int i = 0; i < few; i++)
                    if (here >> i & 1) value[first + i] = group[i];
                special &= ~(here << first);
            }
        } else {
            for (; special != 0; special &= special - 1) {
                const int i = __builtin_ctz(special);
                K::callout(x + i..., value + i, second + i...);
            }
        }
    }

private:
    static TARN_INLINE void by_long_path(unsigned flags, const A*... x, R* value, S*... second) {
        using L = typename K::long_path;
        static_assert(L::lanes == K::lanes && L::blocks_at_a_time > 0, "group by group, as few as there are");
        const auto group = L::fast(loaded<lanes, bytes>(x)...);
        alignas(32) R value_of_long[lanes];
        put<lanes>(value_of_long, value_of(group));
        for (int i = 0; i < lanes; i++)
            if (flags >> i & 1) value[i] = value_of_long[i];
        (take_second<S>(flags, group, second), ...);
        if constexpr (requires { group.special; })
            if (const unsigned beyond = flags_of<lanes>(group.special) & flags) Settled<L, bytes>::run(beyond, x..., value, second...);
    }
    template <class Second, class G> static TARN_INLINE void take_second(unsigned flags, const G& group, Second* second) {
        alignas(32) Second from[lanes];
        put<lanes>(from, group.second);
        for (int i = 0; i < lanes; i++)
            if (flags >> i & 1) second[i] = from[i];
    }
};

// The loop -----------------------------------------------------------------------------------------

template <class K, class R = typename Parts<typename K::Signature>::Result,
          class Seconds = typename Parts<typename K::Signature>::Seconds,
          class Args = typename Parts<typename K::Signature>::Args>
struct Array;
template <class K, class R, class... S, class... A>
struct Array<K, R, Types<S...>, Types<A...>> {
    static constexpr int bytes = native_bytes;
    static constexpr int lanes = K::lanes * (bytes / 16);
    static constexpr int groups = K::blocks_at_a_time < groups_in_flight ? K::blocks_at_a_time : groups_in_flight;
    static constexpr int chunk = groups * lanes;
    static_assert(K::lanes > 1 && chunk <= 32);

    static TARN_INLINE void run(std::size_t n, const A*... x, R* r, S*... s) {
        if constexpr (requires { K::lane_by_lane; }) {
            for (std::size_t i = 0; i < n; i++) lane(x[i]..., r + i, s + i...);
        } else {
            const unsigned always = always_special();
            for (; n >= chunk; n -= chunk) {
                step<groups>(x..., r, s..., always, ~0u);
                ((x += chunk), ...);
                r += chunk;
                ((s += chunk), ...);
            }
            if (n != 0) rest(n, x..., r, s..., always);
        }
    }

private:
    template <class Second, int count> struct Beside { alignas(32) Second lane[count * lanes]; };

    // A result may lie where an argument lies.
    static TARN_INLINE void lane(A... x, R* r, S*... s) {
        R result;
        K::callout(&x..., &result, s...);
        *r = result;
    }

    static TARN_INLINE unsigned always_special() {
        if constexpr (requires { &K::every_lane_special; }) return K::every_lane_special() ? ~0u : 0;
        else return 0;
    }

    // Fewer elements than a step of the loop takes.
    [[gnu::noinline]] static void rest(std::size_t n, const A*... x, R* r, S*... s, unsigned always) {
        for (; n >= lanes; n -= lanes) {
            one(x..., r, s..., always, ~0u);
            ((x += lanes), ...);
            r += lanes;
            ((s += lanes), ...);
        }
        if (n != 0) last(n, Padded<A, lanes>(x, n)..., r, s..., always);
    }
    static TARN_INLINE void last(std::size_t n, const Padded<A, lanes>&... x, R* r, S*... s, unsigned always) {
        alignas(32) R value[lanes];
        last_with(n, x..., r, s..., value, Beside<S, 1>()..., always);
    }
        static TARN_INLINE void last_with(std::size_t n, const Padded<A, lanes>&... x, R* r, S*... s, R* value, Beside<S, 1>&&... second,
                                 unsigned always) {
        one(x.lane..., value, second.lane..., always, (1u << n) - 1);
        copy_few<lanes>(r, value, n);
        (copy_few<lanes>(s, second.lane, n), ...);
    }
    [[gnu::noinline]] static void one(const A*... x, R* r, S*... s, unsigned always, unsigned real) {
        step<1>(x..., r, s..., always, real);
    }

    // Arguments are read before results are written: they may lie in the same place.
    template <int count> static TARN_INLINE void step(const A*... x, R* r, S*... s, unsigned always, unsigned real) {
        over<count>(std::make_integer_sequence<int, count>{}, x..., r, s..., always, real);
    }
    template <int count, int... i>
    static TARN_INLINE void over(std::integer_sequence<int, i...>, const A*... x, R* r, S*... s, unsigned always, unsigned real) {
        const auto at = [&](int g) __attribute__((always_inline)) { return K::fast(loaded<lanes, bytes>(x + g * lanes)...); };
        const decltype(at(0)) group[] = {at(i)...};
        if constexpr (requires { group[0].special; }) {
            const auto any = (group[i].special | ...);
            if (__builtin_expect((flags_of<lanes>(any) | always) != 0, 0)) {
                const unsigned special = ((flags_of<lanes>(group[i].special) << (i * lanes)) | ...) | always;
                alignas(32) R value[count * lanes];
                (put<lanes>(value + i * lanes, value_of(group[i])), ...);
                settle<count>(special & real & (~0u >> (32 - count * lanes)), group, x..., r, s..., value, Beside<S, count>()...);
                return;
            }
        }
        (put<lanes>(r + i * lanes, value_of(group[i])), ...);
        (put_second<count>(s, group), ...);
    }
    template <int count, class Second, class G> static TARN_INLINE void put_second(Second* to, const G (&group)[count]) {
        for (int g = 0; g < count; g++) put<lanes>(to + g * lanes, group[g].second);
    }

    template <int count, class G>
    static TARN_INLINE void settle(unsigned special, const G (&group)[count], const A*... x, R* r, S*... s, R* value,
                                   Beside<S, count>&&... second) {
        (put_second<count>(second.lane, group), ...);
        Settled<K, bytes>::run(special, x..., value, second.lane...);
        for (int g = 0; g < count; g++) put<lanes>(r + g * lanes, loaded<lanes, bytes>(value + g * lanes));
        (copy_second<count>(s, second.lane), ...);
    }
    template <int count, class Second> static TARN_INLINE void copy_second(Second* to, const Second* from) {
        for (int g = 0; g < count; g++) put<lanes>(to + g * lanes, loaded<lanes, bytes>(from + g * lanes));
    }
};

}  // namespace
}  // namespace tarn
