// The frame of every kernel. A kernel says what it computes on one group of lanes, of whatever size; the frame
// prepares the lanes of each width, chooses the size, runs the groups, gathers the special-lane mask and returns at once when it
// is empty: ordinary arguments cause no call. What happens to special lanes is the kernel's kind:
//
//   fast gives a plain value                     no lane is special
//   fast gives Flagged, callout                  flagged lanes go to the callout, in lane order
//   fast gives Flagged, long_path                any flagged lane sends the whole call to the kernel that
//                                                long_path names, whose own special lanes count from there
//   fast gives Flagged, finish                   every group with a flagged lane is finished by the kernel
//   callout alone                                every lane goes to the callout
//
// long_path is an alias: a struct of that name would find itself under it.
// A kernel that declares `every_lane_special` asks it once a call whether all lanes are special, whatever
// `fast` says. One that declares `blocks_at_a_time` computes its wide calls so many blocks after so many, not all
// at once.
// `fast` takes and gives groups of any size, `finish` groups of 16 bytes. A callout is scalar and takes one pointer for
// each operand, inputs first: int(const A*..., R*), or int(const A*..., R*, S*) with a second result.
#pragma once

#include <utility>

#include "frame/lanes.hpp"

namespace tarn {

// The two results of a kernel, in its signature: Both<float, std::int32_t>(float).
template <class First, class Second> struct Both;

// What `fast` gives beside a plain group.
template <class V, class Mask> struct Flagged {
    V value;
    Mask special;
};
template <class V, class S> struct Pair {
    V value;
    S second;
};
template <class V, class S, class Mask> struct FlaggedPair {
    V value;
    S second;
    Mask special;
};
template <class V, class M> Flagged(V, M) -> Flagged<V, M>;
template <class V, class S> Pair(V, S) -> Pair<V, S>;
template <class V, class S, class M> FlaggedPair(V, S, M) -> FlaggedPair<V, S, M>;

// Base of every kernel: its signature in lanes, and what it may replace.
template <class Result, class... Args> struct Kernel;
template <class Result, class... Args> struct Kernel<Result(Args...)> {
    using Signature = Result(Args...);

    // Lanes to a group where blocks have 16 bytes: two where any lane is a double, else four.
    static constexpr int lanes = (std::is_same_v<Result, double> || ... || std::is_same_v<Args, double>) ? 2 : 4;

    // Blocks of a wide call that are computed side by side. Fewer than all where more would wait for one
    // divider, or for registers.
    static constexpr int blocks_at_a_time = 8;
};
template <class First, class Second, class... Args>
struct Kernel<Both<First, Second>(Args...)> : Kernel<First(Args...)> {
    using Signature = Both<First, Second>(Args...);
};

// A family whose callout computes every lane.
template <class Signature, auto scalar> struct EveryLane : Kernel<Signature> {
    static constexpr auto callout = scalar;
    static constexpr bool lane_by_lane = true;
};

// A signature taken apart; `Seconds` is a list of one type or none.
template <class...> struct Types;
template <class Signature> struct Parts;
template <class R, class... A> struct Parts<R(A...)> {
    using Result = R;
    using Seconds = Types<>;
    using Args = Types<A...>;
};
template <class R, class S, class... A> struct Parts<Both<R, S>(A...)> {
    using Result = R;
    using Seconds = Types<S>;
    using Args = Types<A...>;
};

// Special lanes ----------------------------------------------------------------------------------

// A vector as an array of lanes: where it lies, if it lies in memory already; else spilled to a
// scratch block aligned to 64 bytes.
template <class Lane, int width, bool spill = !in_memory<Lane, width>> class LaneArray {
public:
    explicit LaneArray(const Vec<Lane, width>& v) { __builtin_memcpy(scratch, &v, sizeof v); }
    Lane* at(int i) { return scratch + i; }
    Vec<Lane, width> reload() const {
        Vec<Lane, width> v;
        __builtin_memcpy(&v, scratch, sizeof v);
        return v;
    }

private:
    alignas(64) Lane scratch[stored_lanes(width)];
};
template <class Lane, int width> class LaneArray<Lane, width, false> {
public:
    explicit LaneArray(Vec<Lane, width>& v) : vector(v) {}
    explicit LaneArray(const Vec<Lane, width>& v) : vector(const_cast<Vec<Lane, width>&>(v)) {}
    Lane* at(int i) { return reinterpret_cast<Lane*>(&vector) + i; }
    Vec<Lane, width>& reload() const { return vector; }

private:
    Vec<Lane, width>& vector;
};

// How the cold routines take a vector: in the register it is in, or where it lies.
template <class Lane, int width>
using Passed = std::conditional_t<in_memory<Lane, width>, const Vec<Lane, width>&, Vec<Lane, width>>;
template <class Lane, int width>
using Updated = std::conditional_t<in_memory<Lane, width>, Vec<Lane, width>&, Vec<Lane, width>>;

// The cold routine, one for each signature and width, shared by all families that have them: the
// callout on every flagged lane in ascending order. The callout's status is for scalar callers; a
// vector has nowhere to put it.
template <int width, class R, class Seconds, class Args> struct SpecialLanes;
template <int width, class R, class... S, class... A>
struct SpecialLanes<width, R, Types<S...>, Types<A...>> {
    using Callout = int(const A*..., R*, S*...);

    [[gnu::noinline, gnu::cold]] static Updated<R, width> TARN_IN_REGISTERS
    run(Updated<R, width> fast, Passed<A, width>... x, unsigned special, Callout* callout, S*... second) {
        LaneArray<R, width> result(fast);
        visit(special, callout, result, LaneArray<A, width>(x)..., second...);
        return result.reload();
    }

    static TARN_INLINE void visit(unsigned special, Callout* callout, LaneArray<R, width>& result,
                                  LaneArray<A, width>&&... x, S*... second) {
        for (; special != 0; special &= special - 1) {
            const int i = __builtin_ctz(special);
            callout(x.at(i)..., result.at(i), second + i...);
        }
    }
};

// One call ---------------------------------------------------------------------------------------

template <class K, int width, class R = typename Parts<typename K::Signature>::Result,
          class Seconds = typename Parts<typename K::Signature>::Seconds,
          class Args = typename Parts<typename K::Signature>::Args>
struct Call;

// The whole call computed by another kernel, one copy for all that switch to it.
template <class K, int width, class R = typename Parts<typename K::Signature>::Result,
          class Seconds = typename Parts<typename K::Signature>::Seconds,
          class Args = typename Parts<typename K::Signature>::Args>
struct Switched;
template <class K, int width, class R, class... S, class... A>
struct Switched<K, width, R, Types<S...>, Types<A...>> {
    [[gnu::noinline, gnu::cold]] static Updated<R, width> TARN_IN_REGISTERS
    run(Updated<R, width> fast, Passed<A, width>... x, S*... second) {
        return fast = Call<K, width>::run(x..., second...);
    }
};

template <class K, int width, class R, class... S, class... A>
struct Call<K, width, R, Types<S...>, Types<A...>> {
    // Blocks of 32 bytes where the lanes of a call fill them.
    static constexpr bool wide_blocks = native_bytes == 32 && K::lanes > 1 && stored_lanes(width) >= 2 * K::lanes;
    static constexpr int bytes = wide_blocks ? 32 : 16;
    static constexpr int lanes = wide_blocks ? 2 * K::lanes : K::lanes;
    static constexpr int count = stored_lanes(width) > lanes ? stored_lanes(width) / lanes : 1;
    static constexpr int at_a_time = K::blocks_at_a_time * lanes;
    using Result = Vec<R, width>;
    using Special = SpecialLanes<width, R, Types<S...>, Types<A...>>;

    static TARN_INLINE Result run(const Vec<A, width>&... x, S*... second)
        requires(!in_memory<R, width>)
    {
        Result result;
        const unsigned special = evaluate(result, x..., second...) | always_special();
        if (__builtin_expect(special != 0, 0)) return settle(result, x..., special, second...);
        return result;
    }

    // A vector in memory is brought up to date where it is: the hot path has nothing to save.
    static TARN_INLINE Result run(const Vec<A, width>&... x, S*... second)
        requires(in_memory<R, width>)
    {
        Result result;
        const unsigned special = evaluate(result, x..., second...) | always_special();
        if (__builtin_expect(special != 0, 0)) settle(result, x..., special, second...);
        return result;
    }

    // Two results returned, which lie in registers: memory is for special lanes alone.
    static TARN_INLINE void run_both(Result& first, Result& second, const Vec<A, width>&... x)
        requires(!in_memory<R, width>)
    {
        const unsigned special = evaluate(first, x..., reinterpret_cast<S*>(&second)...) | always_special();
        if (__builtin_expect(special != 0, 0)) {
            Result settled = second;
            first = settle(first, x..., special, reinterpret_cast<S*>(&settled)...);
            second = settled;
        }
    }

    // Computes all lanes; the special ones are the result.
    static TARN_INLINE unsigned evaluate(Result& result, const Vec<A, width>&... x, S*... second) {
        if constexpr (!requires { K::lane_by_lane; } && lanes > 1 && stored_lanes(width) > at_a_time) {
            return in_parts<at_a_time>(result, x..., second...);
        } else if constexpr (!requires { K::lane_by_lane; }) {
            return over(std::make_integer_sequence<int, count>{}, result, x..., second...);
        } else {
            if constexpr (!in_memory<R, width>) result = Result{};  // the lane that width 3 does not call for
            LaneArray<R, width> lanes_of_result(result);
            Special::visit(lane_mask(width), K::callout, lanes_of_result, LaneArray<A, width>(x)..., second...);
            result = lanes_of_result.reload();
            return 0;
        }
    }

private:
    template <class Lane> static TARN_INLINE auto argument(const Vec<Lane, width>& x, int i) {
        return group<lanes, bytes, Lane, width>(x, i);
    }

    static TARN_INLINE unsigned always_special() {
        if constexpr (requires { &K::every_lane_special; }) return K::every_lane_special() ? lane_mask(width) : 0;
        else return 0;
    }

    // As calls of a narrower width, one after the other. The loop's end is opaque because the compiler would
    // unroll it and mix what it is to keep apart.
    template <int part> static TARN_INLINE unsigned in_parts(Result& result, const Vec<A, width>&... x, S*... second) {
        unsigned special = 0;
        for (std::uint64_t i = 0, parts = opaque(std::uint64_t{stored_lanes(width) / part}); i < parts; i++)
            special |= Call<K, part>::evaluate(reinterpret_cast<Vec<R, part>*>(&result)[i],
                                               reinterpret_cast<const Vec<A, part>*>(&x)[i]..., second + i * part...)
                       << i * part;
        return special;
    }

    template <int... i>
    static TARN_INLINE unsigned over(std::integer_sequence<int, i...>, Result& result, const Vec<A, width>&... x,
                                     S*... second) {
        const auto run_group = [&](int g) __attribute__((always_inline)) { return K::fast(argument<A>(x, g)...); };
        const decltype(run_group(0)) groups[] = {run_group(i)...};
        const Group<R, lanes, bytes> values[] = {all_lanes(value_of(groups[i]))...};
        result = vector_of<lanes, bytes, R, width>(values);
        (store(second, groups), ...);
        if constexpr (requires { groups[0].special; }) {
            static_assert(requires { typename K::long_path; } || requires { &K::finish; } || requires { K::callout; },
                          "a kernel that flags special lanes says what becomes of them: callout, long_path or finish");
            const decltype(groups[0].special) masks[] = {groups[i].special...};
            return special_bits<lanes>(masks) & lane_mask(width < 4 ? width : 16);
        } else {
            return 0;
        }
    }

    // What becomes of a call with special lanes.
    static TARN_INLINE Updated<R, width> settle(Updated<R, width> fast, const Vec<A, width>&... x, unsigned special,
                                                S*... second) {
        if constexpr (requires { typename K::long_path; }) return Switched<typename K::long_path, width>::run(fast, x..., second...);
        else if constexpr (requires { &K::finish; }) return finished(fast, x..., special);
        else if constexpr (requires { K::callout; }) return Special::run(fast, x..., special, K::callout, second...);
        else return fast;
    }

    [[gnu::noinline, gnu::cold]] static Updated<R, width> TARN_IN_REGISTERS
    finished(Updated<R, width> fast, Passed<A, width>... x, unsigned special) {
        constexpr int few = K::lanes, groups = stored_lanes(width) > few ? stored_lanes(width) / few : 1;
        Group<R, few, 16> values[groups];
        for (int i = 0; i < groups; i++) {
            const unsigned flags = special >> (i * few) & lane_mask(few);
            values[i] = group<few, 16, R, width>(fast, i);
            if (flags != 0) values[i] = K::finish(group<few, 16, A, width>(x, i)..., values[i], flags);
        }
        const Result result = vector_of<few, 16, R, width>(values);
        if constexpr (in_memory<R, width>) return fast = result;
        else return result;
    }

    // All lanes are computed, to the last operation, whatever becomes of them: for a lane that a short vector does not
    // have the compiler would take anything, whose flags are nobody's; and with another path to go some compilers
    // would compute nothing, and raise less than others do.
    template <class G> static TARN_INLINE G all_lanes(G g) {
        constexpr bool may_be_dropped = requires { typename K::long_path; } && !in_memory<R, width>;
        if constexpr (Floats<G>)
            if constexpr (lane_count<G> > stored_lanes(width) || may_be_dropped) return opaque(g);
        return g;
    }

    template <class G> static TARN_INLINE auto value_of(const G& g) {
        if constexpr (requires { g.value; }) return g.value;
        else return g;
    }

    // The second results, block by block, wherever the pointer points.
    template <class Lane, class G> static TARN_INLINE void store(Lane* to, const G (&groups)[count]) {
        Group<Lane, lanes, bytes> seconds[count];
        for (int g = 0; g < count; g++) seconds[g] = all_lanes(groups[g].second);
        const auto v = vector_of<lanes, bytes, Lane, width>(seconds);
        if constexpr (in_blocks<Lane, width>) {
            for (const auto& block : v.block) {
                __builtin_memcpy(to, &block, sizeof block);
                to += sizeof block / sizeof(Lane);
            }
        } else {
            __builtin_memcpy(to, &v, sizeof v);
        }
    }
};

// For `finish`: the flagged lanes of a group through a scalar function that is known where it is called.
template <class V, class Scalar>
TARN_INLINE V finish_lanes(Scalar scalar, V x, V value, unsigned flags) {
    for (int i = 0; flags >> i != 0; i++)
        if (flags >> i & 1) {
            const auto lane = x[i];
            auto result = lane;
            scalar(&lane, &result);
            value[i] = result;
        }
    return value;
}

// Two results, filled where the caller holds them.
template <class K, int width, class R, class... V> TARN_INLINE void run_both(R& first, R& second, const V&... x) {
    using Lane = typename Parts<typename K::Signature>::Result;
    if constexpr (in_memory<Lane, width>) first = Call<K, width>::run(x..., reinterpret_cast<Lane*>(&second));
    else Call<K, width>::run_both(first, second, x...);
}

}  // namespace tarn
