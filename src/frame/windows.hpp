// The exports on Windows x64, in the shapes of exports.hpp. Vectors travel in xmm0 to xmm3, which is `vectorcall`;
// what no longer fits whole into these travels by reference in a slot above the return address, and so does the pointer
// to a second result. Vectors of 128 bytes lie in memory, by pointers in the integer registers; so does a result of
// more than four registers.
#pragma once

#include "frame/kernel.hpp"

// The compiler's own, of the function that it stands in.
extern "C" void* _AddressOfReturnAddress();

namespace tarn::windows {

// A vector of at most 16 bytes travels as a register of it, but floating-point numbers as themselves.
template <class Lane, int width>
using Carried = std::conditional_t<in_blocks<Lane, width> || (width == 1 && std::is_floating_point_v<Lane>),
                                   Vec<Lane, width>, Vector<Lane, 16>>;

// Stands for what travels in a slot, and takes no part in a call: no type of a parameter says where that is.
template <int number> struct Slot {};

template <class Lane, int width> constexpr int registers = (sizeof(Vec<Lane, width>) + 15) / 16;
constexpr int argument_registers = 4;

template <class K, int width> struct Arguments {
    using Listed = ListedArgs<K>;
    template <class Lane> static constexpr int size = registers<Lane, width>;
    // What is left of the registers when these have been placed.
    template <class Lane> static constexpr bool in_register_after(int used) {
        return size<Lane> > argument_registers || used + size<Lane> <= argument_registers;
    }
    template <class Lane> static constexpr int used = size<Lane> > argument_registers ? 0 : size<Lane>;

    static constexpr bool second_fits() {
        return in_register_after<typename Listed::second>(used<typename Listed::first>);
    }
    static constexpr bool third_fits() {
        constexpr int both = used<typename Listed::first> + used<typename Listed::second>;
        return second_fits() && in_register_after<typename Listed::third>(both);
    }
    static constexpr bool first_in_memory = size<typename Listed::first> > argument_registers;
};

// A vector that has to take the next register, not the one of its place among the arguments: `vectorcall` places
// structs after all else.
template <class Lane> struct InNext {
    Vector<Lane, 16> block;
};

template <class K, int width> using Arg1 = Carried<typename ListedArgs<K>::first, width>;
template <class Lane, class First, int width>
using CarriedAfter = std::conditional_t<in_blocks<First, width> && !in_blocks<Lane, width>,
                                        InNext<Lane>, Carried<Lane, width>>;
template <class K, int width, class Listed = ListedArgs<K>>
using Arg2 = std::conditional_t<Arguments<K, width>::second_fits(),
                                CarriedAfter<typename Listed::second, typename Listed::first, width>, Slot<1>>;
// A vector's pointer takes every other slot.
template <class K, int width>
using Arg3 = std::conditional_t<Arguments<K, width>::third_fits(), Carried<typename ListedArgs<K>::third, width>,
                                Slot<Arguments<K, width>::second_fits() ? 1 : 3>>;
// The pointer to a second result.
template <class K, int width, int slot>
using Second = std::conditional_t<Arguments<K, width>::first_in_memory, SecondOf<K>*, Slot<slot>>;
template <class K, int width> using SecondAfter1 = Second<K, width, 1>;
template <class K, int width, bool by_reference = !Arguments<K, width>::second_fits()>
using SecondAfter2 = Second<K, width, by_reference ? 2 : 1>;

template <class K, int width> using ResultOf = Carried<typename Parts<typename K::Signature>::Result, width>;

// An argument as kernels take it. `return_address` is where it lies: slot 1 is the next word.
template <class Lane, int width, int number>
TARN_INLINE const Vec<Lane, width>& taken(Slot<number>, void* const* return_address) {
    return *static_cast<const Vec<Lane, width>*>(return_address[number]);
}
template <class Lane, int width> constexpr bool as_it_is = std::is_same_v<Carried<Lane, width>, Vec<Lane, width>>;
template <class Lane, int width> requires as_it_is<Lane, width>
TARN_INLINE const Vec<Lane, width>& taken(const Carried<Lane, width>& x, void* const*) { return x; }
template <class Lane, int width> requires(!as_it_is<Lane, width>)
TARN_INLINE Vec<Lane, width> taken(Carried<Lane, width> x, void* const*) {
    if constexpr (width == 1) return x[0];
    else return __builtin_shufflevector(x, x, 0, 1);
}
template <class Lane, int width>
TARN_INLINE const Vec<Lane, width>& taken(const InNext<Lane>& x, void* const*) { return x.block; }
template <class Lane, int number> TARN_INLINE Lane* second_at(Slot<number>, void* const* return_address) {
    return static_cast<Lane*>(return_address[number]);
}
template <class Lane> TARN_INLINE Lane* second_at(Lane* second, void* const*) { return second; }

// A result as it travels: lanes that it does not have are nobody's.
template <class Lane, int width> TARN_INLINE Carried<Lane, width> carried(const Vec<Lane, width>& v) {
    if constexpr (as_it_is<Lane, width>) return v;
    else if constexpr (width == 1) return Carried<Lane, width>{v};
    else return __builtin_shufflevector(v, v, 0, 1, -1, -1);
}
template <class K, int width, class Lane = typename Parts<typename K::Signature>::Result>
TARN_INLINE auto carried_of(const Vec<Lane, width>& v) { return carried<Lane, width>(v); }

// Two results returned.
template <class K, int width, class Pair, class... V> TARN_INLINE void run_both(Pair& pair, const V&... x) {
    using Lane = SecondOf<K>;
    if constexpr (in_memory<Lane, width>) {
        tarn::run_both<K, width>(pair.sine, pair.cosine, x...);
    } else {
        Vec<Lane, width> sine, cosine;
        tarn::run_both<K, width>(sine, cosine, x...);
        pair = {carried<Lane, width>(sine), carried<Lane, width>(cosine)};
    }
}

}  // namespace tarn::windows

#define TARN_RETURN_ADDRESS static_cast<void* const*>(_AddressOfReturnAddress())
#define TARN_TAKEN(argument, which, width, K)                                                                   \
    tarn::windows::taken<typename tarn::ListedArgs<K>::which, width>(argument, TARN_RETURN_ADDRESS)
#define TARN_SECOND(K) tarn::windows::second_at<tarn::SecondOf<K>>(second, TARN_RETURN_ADDRESS)
#define TARN_CARRIED(width, K, ...) tarn::windows::carried_of<K, width>(tarn::CallAt<K, width>::run(__VA_ARGS__))

#define TARN_SIGNATURE_unary(name, width, K)                                                                    \
    tarn::windows::ResultOf<K, width> __vectorcall name(tarn::windows::Arg1<K, width> x)
#define TARN_SIGNATURE_binary(name, width, K)                                                                   \
    tarn::windows::ResultOf<K, width> __vectorcall name(tarn::windows::Arg1<K, width> x,                        \
                                                        tarn::windows::Arg2<K, width> y)
#define TARN_SIGNATURE_ternary(name, width, K)                                                                  \
    tarn::windows::ResultOf<K, width> __vectorcall name(tarn::windows::Arg1<K, width> x,                        \
                                                        tarn::windows::Arg2<K, width> y,                        \
                                                        tarn::windows::Arg3<K, width> z)
#define TARN_SIGNATURE_unary_second(name, width, K)                                                             \
    tarn::windows::ResultOf<K, width> __vectorcall name(tarn::windows::Arg1<K, width> x,                        \
                                                        tarn::windows::SecondAfter1<K, width> second)
#define TARN_SIGNATURE_binary_second(name, width, K)                                                            \
    tarn::windows::ResultOf<K, width> __vectorcall name(tarn::windows::Arg1<K, width> x,                        \
                                                        tarn::windows::Arg2<K, width> y,                        \
                                                        tarn::windows::SecondAfter2<K, width> second)
#define TARN_SIGNATURE_unary_pair(name, width, K)                                                               \
    tarn::VecPair<tarn::SecondOf<K>, width> __vectorcall name(tarn::windows::Arg1<K, width> x)

#define TARN_BODY_unary(width, K) return TARN_CARRIED(width, K, TARN_TAKEN(x, first, width, K));
#define TARN_BODY_binary(width, K)                                                                              \
    return TARN_CARRIED(width, K, TARN_TAKEN(x, first, width, K), TARN_TAKEN(y, second, width, K));
#define TARN_BODY_ternary(width, K)                                                                             \
    return TARN_CARRIED(width, K, TARN_TAKEN(x, first, width, K), TARN_TAKEN(y, second, width, K),              \
                        TARN_TAKEN(z, third, width, K));
#define TARN_BODY_unary_second(width, K)                                                                        \
    return TARN_CARRIED(width, K, TARN_TAKEN(x, first, width, K), TARN_SECOND(K));
#define TARN_BODY_binary_second(width, K)                                                                       \
    return TARN_CARRIED(width, K, TARN_TAKEN(x, first, width, K), TARN_TAKEN(y, second, width, K), TARN_SECOND(K));
#define TARN_BODY_unary_pair(width, K)                                                                          \
    tarn::VecPair<tarn::SecondOf<K>, width> pair;                                                               \
    tarn::windows::run_both<K, width>(pair, TARN_TAKEN(x, first, width, K));                                    \
    return pair;

// The label is marked as the whole name: to others the compiler adds the arguments' size, as `vectorcall` has it.
#define TARN_LABEL(name) "\01" TARN_QUOTED(name)
#define TARN_EXPORT_WIDTH(shape, base, width, variant, Kernel)                                                  \
    TARN_EXPORT_NAMED(shape, TARN_NAME(base, width, TARN_SUFFIX_##variant), width, Kernel)
#define TARN_EXPORT_NAMED(shape, name, width, Kernel)                                                           \
    extern "C" TARN_SIGNATURE_##shape(name, width, Kernel) __asm__(TARN_LABEL(name));                           \
    extern "C" TARN_SIGNATURE_##shape(name, width, Kernel) { TARN_BODY_##shape(width, Kernel) }

#define TARN_EXPORT_WIDTH_SAME(base, width, variant, like)                                                      \
    TARN_EXPORT_NAMED_SAME(TARN_NAME(base, width, TARN_SUFFIX_##variant), TARN_NAME(base, width, TARN_SUFFIX_##like))
#define TARN_EXPORT_NAMED_SAME(name, same)                                                                      \
    extern "C" decltype(same) name __asm__(TARN_LABEL(name)) __attribute__((alias(TARN_LABEL(same))));
