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

// Groups of a step: four, or in groups of two lanes as many as make 16 elements, unless the kernel computes its wide
// calls in parts. Measured: with fewer the processor waits, with more it spills.
constexpr int groups_in_flight(int lanes, bool in_parts) { return lanes < 4 && !in_parts ? 16 / lanes : 4; }

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

template <class V> TARN_INLINE V all_lanes(V group) {
    if constexpr (requires { group.low; }) return {opaque(group.low), opaque(group.high)};
    else return opaque(group);
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

// The first n lanes of a group, at least one: the others are copies of the last, so that they raise no flag of their
// own. Nothing beyond is read, and nothing goes through memory, where a long load would wait for short stores.
template <int lanes, int bytes, int first = 0, class Lane>
TARN_INLINE Group<Lane, lanes, bytes> loaded_few(const Lane* from, int n) {
    constexpr int size = lanes * sizeof(Lane);
    if constexpr (size > bytes) {
        return {loaded_few<lanes / 2, bytes, first>(from, n), loaded_few<lanes / 2, bytes, first + lanes / 2>(from, n)};
    } else {
        const auto lane = [&](int i) __attribute__((always_inline)) {
            Lane l;
            __builtin_memcpy(&l, from + (first + i < n ? first + i : n - 1), sizeof l);
            return l;
        };
        const auto vector = [&]<int... i>(std::integer_sequence<int, i...>) __attribute__((always_inline)) {
            return Vector<Lane, int(sizeof...(i) * sizeof(Lane))>{lane(i % lanes)...};
        };
        constexpr int count = (size == 8 ? 16 : size) / sizeof(Lane);
        // Opaque, as is what comes of it: the compiler would compute lanes that are not stored from whatever it finds.
        const auto v = opaque(vector(std::make_integer_sequence<int, count>{}));
        if constexpr (sizeof v == bytes) return v;
#ifdef __AVX2__
        else return in_low_half(v);
#endif
    }
}

// Fewer lanes than a group has, without a loop that a compiler would make a call of.
template <int below, class Lane> TARN_INLINE void copy_few(Lane* to, const Lane* from, int n) {
    if constexpr (below > 1) {
        constexpr int half = below / 2;
        if (n & half) {
            __builtin_memcpy(to, from, half * sizeof(Lane));
            to += half, from += half;
        }
        copy_few<half>(to, from, n);
    }
}

// As many lanes in memory.
template <class Lane, int count> struct Room { alignas(32) Lane lane[count]; };

// Vectors one after the other.
template <class V, int n> struct Row { V of[n]; };
template <class V> struct Row<V, 0> {};

// Where a step finds its arguments and leaves its results: whole groups, or the first n lanes of one, not all.
struct Whole {
    template <int lanes, int bytes, class Lane> static TARN_INLINE auto load(const Lane* from) {
        return loaded<lanes, bytes>(from);
    }
    template <int lanes, class Lane, class V> static TARN_INLINE void store(Lane* to, V group) {
        put<lanes>(to, group);
    }
    static TARN_INLINE unsigned real() { return ~0u; }
};
struct Few {
    int n;
    template <int lanes, int bytes, class Lane> TARN_INLINE auto load(const Lane* from) const {
        return loaded_few<lanes, bytes>(from, n);
    }
    template <int lanes, class Lane, class V> TARN_INLINE void store(Lane* to, V group) const {
        Room<Lane, lanes> all;
        put<lanes>(all.lane, all_lanes(group));
        copy_few<lanes>(to, all.lane, n);
    }
    TARN_INLINE unsigned real() const { return lane_mask(n); }
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
            // Two groups side by side where both are called for. Pairs stand in fixed places: a place computed from the
            // flags would wait for them, where a branch does not.
            for (std::uint64_t left = special; left != 0; left >>= 2 * lanes) {
                const unsigned first = left & lane_mask(lanes), next = left >> lanes & lane_mask(lanes);
                if (first != 0 && next != 0) by_long_path<2>(next << lanes | first, x..., value, second...);
                else if (first != 0) by_long_path<1>(first, x..., value, second...);
                else if (next != 0) by_long_path<1>(next, x + lanes..., value + lanes, second + lanes...);
                ((x += 2 * lanes), ...);
                value += 2 * lanes;
                ((second += 2 * lanes), ...);
            }
        } else if constexpr (requires { &K::finish; }) {
            constexpr int few = K::lanes;
            while (special != 0) {
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
    // Not inline: merged with each other, two groups would be computed one after the other.
    template <int count>
    [[gnu::noinline, gnu::cold]] static void by_long_path(unsigned flags, const A*... x, R* value, S*... second) {
        over<typename K::long_path>(std::make_integer_sequence<int, count>{}, flags, x..., value, second...);
    }
    template <class L, int... i>
    static TARN_INLINE void over(std::integer_sequence<int, i...>, unsigned flags, const A*... x, R* value,
                                 S*... second) {
        static_assert(L::lanes == K::lanes && L::blocks_at_a_time > 1);
        const auto at = [&](int g) __attribute__((always_inline)) {
            return L::fast(loaded<lanes, bytes>(x + g * lanes)...);
        };
        const decltype(at(0)) group[] = {at(i)...};
        (take<R>(i, flags, value_of(group[i]), value), ...);
        const auto take_seconds = [&](int g, const auto& from) __attribute__((always_inline)) {
            if constexpr (sizeof...(S) != 0) (take<S>(g, flags, from.second, second), ...);
        };
        (take_seconds(i, group[i]), ...);
        if constexpr (requires { group[0].special; })
            if (const unsigned beyond = flags & ((flags_of<lanes>(group[i].special) << (i * lanes)) | ...))
                Settled<L, bytes>::run(beyond, x..., value, second...);
    }
    // The flagged lanes of group g.
    template <class Lane, class V> static TARN_INLINE void take(int g, unsigned flags, V from, Lane* to) {
        to += g * lanes;
        flags = flags >> (g * lanes) & lane_mask(lanes);
        if (flags == lane_mask(lanes)) return put<lanes>(to, from);
        const auto mask = mask_of<V>(flags, std::make_integer_sequence<int, lanes>{});
        put<lanes>(to, select(mask, from, loaded<lanes, bytes>(to)));
    }
    template <class V, int... i>
    static TARN_INLINE BitsOf<V> mask_of(unsigned flags, std::integer_sequence<int, i...>) {
        using Bit = LaneOf<BitsOf<V>>;
        const BitsOf<V> bit = {(Bit{1} << i)...};
        return (bit & static_cast<Bit>(flags)) == bit;
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
    static constexpr int groups = groups_in_flight(lanes, K::lanes * K::blocks_at_a_time < 16);
    static constexpr int chunk = groups * lanes;
    static_assert(K::lanes > 1 && chunk <= 32);

    static TARN_INLINE void run(std::size_t n, const A*... x, R* r, S*... s) {
        if constexpr (requires { K::lane_by_lane; }) {
            // A callout has read its arguments before it writes: a result may lie where an argument lies.
            for (std::size_t i = 0; i < n; i++) K::callout(x + i..., r + i, s + i...);
        } else {
            const unsigned always = always_special();
            for (; n >= chunk; n -= chunk) {
                over(Whole(), std::make_integer_sequence<int, groups>{}, x..., r, s..., always);
                ((x += chunk), ...);
                r += chunk;
                ((s += chunk), ...);
            }
            if (n != 0) rest(static_cast<int>(n), x..., r, s..., always);
#ifdef __AVX2__
            // The compiler does not see that they were in use where all instructions on 32 bytes take them from memory.
            clear_upper_halves();
#endif
        }
    }

    // One element, as the arrays' last is computed.
    static TARN_INLINE R element(A... x) {
        R result;
        if constexpr (requires { K::lane_by_lane; }) K::callout(&x..., &result);
        else rest(1, &x..., &result, always_special());
        return result;
    }

private:
    static TARN_INLINE unsigned always_special() {
        if constexpr (requires { &K::every_lane_special; }) return K::every_lane_special() ? ~0u : 0;
        else return 0;
    }

    // Fewer elements than a step of the loop takes.
    [[gnu::noinline]] static void rest(int n, const A*... x, R* r, S*... s, unsigned always) {
        if (n < lanes) over(Few{n}, std::integer_sequence<int, 0>{}, x..., r, s..., always);
        else by_groups(n, copied(Whole(), x + (n - lanes))..., x..., r, s..., always);
    }
    // The last group begins in the one before: from a copy, since results may lie where the arguments were.
    static TARN_INLINE void by_groups(int n, const Room<A, lanes>&... last, const A*... x, R* r, S*... s,
                                      unsigned always) {
        for (; n >= lanes; n -= lanes) {
            over(Whole(), std::integer_sequence<int, 0>{}, x..., r, s..., always);
            ((x += lanes), ...);
            r += lanes;
            ((s += lanes), ...);
        }
        const int back = lanes - n;
        if (n != 0) over(Whole(), std::integer_sequence<int, 0>{}, last.lane..., r - back, s - back..., always);
    }
    template <class Place, class Lane> static TARN_INLINE Room<Lane, lanes> copied(Place place, const Lane* from) {
        Room<Lane, lanes> all;
        put<lanes>(all.lane, place.template load<lanes, bytes>(from));
        return all;
    }

    // Arguments are read before results are written: they may lie in the same place.
    template <class Place, int... i>
    static TARN_INLINE void over(Place place, std::integer_sequence<int, i...>, const A*... x, R* r, S*... s,
                                 unsigned always) {
        constexpr int count = sizeof...(i);
        const auto at = [&](int g) __attribute__((always_inline)) {
            return K::fast(place.template load<lanes, bytes>(x + g * lanes)...);
        };
        const decltype(at(0)) group[] = {at(i)...};
        const auto first = as_stored<R>(value_of(group[i])...);
        const auto second = [&]() __attribute__((always_inline)) {
            if constexpr (sizeof...(S) != 0) return as_stored<S...>(group[i].second...);
            else return Row<R, 0>();
        }();
        if constexpr (requires { group[0].special; }) {
            if (__builtin_expect((flags_of<lanes>((group[i].special | ...)) | always) != 0, 0)) {
                const unsigned special = ((flags_of<lanes>(group[i].special) << (i * lanes)) | ...) | always;
                Room<R, count * lanes> value;
                store_all<count>(Whole(), value.lane, first);
                const unsigned real = special & place.real() & ~0u >> (32 - count * lanes);
                return settle<count>(place, real, second, x..., r, s..., value.lane, Room<S, count * lanes>()...);
            }
        }
        store_all<count>(place, r, first);
        (store_all<count>(place, s, second), ...);
    }
    // Half blocks are joined to whole ones before anything else uses them: one shuffle does what would take three.
    template <class Lane, class V, class... More> static TARN_INLINE auto as_stored(V first, More... more) {
        constexpr int count = 1 + sizeof...(More);
        const Row<V, count> row = {{first, more...}};
        if constexpr (count == 1 || lanes * sizeof(Lane) >= 16) {
            return row;
        } else {
            Row<V, count / 2> joined;
            for (int k = 0; k < count / 2; k++) joined.of[k] = join_halves(row.of[2 * k], row.of[2 * k + 1]);
            return joined;
        }
    }
    template <int count, class Place, class Lane, class V, int n>
    static TARN_INLINE void store_all(Place place, Lane* to, const Row<V, n>& row) {
        constexpr int each = count / n * lanes;
        for (int k = 0; k < n; k++) place.template store<each>(to + k * each, row.of[k]);
    }

    template <int count, class Place, class Second>
    static TARN_INLINE void settle(Place place, unsigned special, const Second& second, const A*... x, R* r, S*... s,
                                   R* value, Room<S, count * lanes>&&... room) {
        (store_all<count>(Whole(), room.lane, second), ...);
        if constexpr (std::is_same_v<Place, Few>) settle_few(special, copied(place, x)..., value, room.lane...);
        else Settled<K, bytes>::run(special, x..., value, room.lane...);
        give<count>(place, r, value);
        (give<count>(place, s, room.lane), ...);
    }
    static TARN_INLINE void settle_few(unsigned special, const Room<A, lanes>&... x, R* value, S*... second) {
        Settled<K, bytes>::run(special, x.lane..., value, second...);
    }
    template <int count, class Place, class Lane>
    static TARN_INLINE void give(Place place, Lane* to, const Lane* from) {
        for (int g = 0; g < count; g++)
            place.template store<lanes>(to + g * lanes, loaded<lanes, bytes>(from + g * lanes));
    }
};

}  // namespace
}  // namespace tarn
