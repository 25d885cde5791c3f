// The exported names. TARN_EXPORT(shape, base, variant, Kernel) defines a kernel's six widths; a family
// with a width of its own names it by ExceptAt; TARN_EXPORT_SAME names an export whose kernel another
// variant already is.
//
// What an export is, its door says: the module's six widths below, or with TARN_ARRAYS the functions on arrays of
// arrays/door.hpp.
//
// Shapes: unary, binary, ternary; unary_second, binary_second (a second result through a pointer);
// unary_pair (two results returned). The public header declares every export, so that a shape that
// differs from the table of families does not compile.
#pragma once

#include "frame/kernel.hpp"

namespace tarn {

template <class K, int width> using ResultOf = Vec<typename Parts<typename K::Signature>::Result, width>;

template <class Seconds> struct OnlyOne;
template <class S> struct OnlyOne<Types<S>> { using type = S; };
template <class K> using SecondOf = typename OnlyOne<typename Parts<typename K::Signature>::Seconds>::type;

template <class Args> struct Listed;
template <class A, class B, class C> struct Listed<Types<A, B, C>> { using first = A; using second = B; using third = C; };
template <class A, class B> struct Listed<Types<A, B>> { using first = A; using second = B; };
template <class A> struct Listed<Types<A>> { using first = A; };
template <class K> using ListedArgs = Listed<typename Parts<typename K::Signature>::Args>;
template <class K, int width> using Arg1 = Vec<typename ListedArgs<K>::first, width>;
template <class K, int width> using Arg2 = Vec<typename ListedArgs<K>::second, width>;
template <class K, int width> using Arg3 = Vec<typename ListedArgs<K>::third, width>;

// A kernel for every width but one.
template <class Usual, int own_width, class Own> struct ExceptAt;

template <class K, int width> struct ChosenAt { using Kernel = K; };
template <class Usual, class Own, int width> struct ChosenAt<ExceptAt<Usual, width, Own>, width> { using Kernel = Own; };
template <class Usual, int own_width, class Own, int width>
struct ChosenAt<ExceptAt<Usual, own_width, Own>, width> : ChosenAt<Usual, width> {};
template <class Usual, int own_width, class Own> struct ExceptAt {
    using Signature = typename Usual::Signature;
    static_assert(Own::lanes > 0, "a kernel, whether this door leads to that width or not");
};
template <class K, int width> using CallAt = Call<typename ChosenAt<K, width>::Kernel, width>;

}  // namespace tarn

#define TARN_SUFFIX_full
#define TARN_SUFFIX_native _native
#define TARN_SUFFIX_half _half
#define TARN_PASTE(a, b, c, d) a##b##c##d
#define TARN_NAME(base, width, suffix) TARN_PASTE(__ocl_tarn_k1_, base, width, suffix)
#define TARN_TEXT(name) #name
#define TARN_QUOTED(name) TARN_TEXT(name)

#if defined TARN_TRACED
#include "proofs/door.hpp"
#elif defined TARN_ARRAYS
#include "arrays/door.hpp"
#else

#ifdef _WIN32
#include "frame/windows.hpp"
#else
#define TARN_SHAPE_unary(name, width, K)                                                     \
    tarn::ResultOf<K, width> name(tarn::Arg1<K, width> x) { return tarn::CallAt<K, width>::run(x); }
#define TARN_SHAPE_binary(name, width, K)                                                    \
    tarn::ResultOf<K, width> name(tarn::Arg1<K, width> x, tarn::Arg2<K, width> y) {          \
        return tarn::CallAt<K, width>::run(x, y);                                              \
    }
#define TARN_SHAPE_ternary(name, width, K)                                                   \
    tarn::ResultOf<K, width> name(tarn::Arg1<K, width> x, tarn::Arg2<K, width> y,            \
                                  tarn::Arg3<K, width> z) {                                  \
        return tarn::CallAt<K, width>::run(x, y, z);                                           \
    }
#define TARN_SHAPE_unary_second(name, width, K)                                              \
    tarn::ResultOf<K, width> name(tarn::Arg1<K, width> x, tarn::SecondOf<K>* second) {       \
        return tarn::CallAt<K, width>::run(x, second);                                         \
    }
#define TARN_SHAPE_binary_second(name, width, K)                                             \
    tarn::ResultOf<K, width> name(tarn::Arg1<K, width> x, tarn::Arg2<K, width> y,            \
                                  tarn::SecondOf<K>* second) {                               \
        return tarn::CallAt<K, width>::run(x, y, second);                                      \
    }
#define TARN_SHAPE_unary_pair(name, width, K)                                                \
    tarn::VecPair<tarn::SecondOf<K>, width> name(tarn::Arg1<K, width> x) {                   \
        tarn::VecPair<tarn::SecondOf<K>, width> pair;                                        \
        tarn::run_both<K, width>(pair.sine, pair.cosine, x);                                 \
        return pair;                                                                         \
    }

#define TARN_EXPORT_WIDTH(shape, base, width, variant, Kernel)                                \
    extern "C" [[gnu::visibility("default")]] TARN_SHAPE_##shape(                            \
        TARN_NAME(base, width, TARN_SUFFIX_##variant), width, Kernel)

#define TARN_EXPORT_WIDTH_SAME(base, width, variant, like)                                   \
    extern "C" [[gnu::visibility("default"), gnu::alias(TARN_QUOTED(                         \
        TARN_NAME(base, width, TARN_SUFFIX_##like)))]]                                       \
    decltype(TARN_NAME(base, width, TARN_SUFFIX_##like)) TARN_NAME(base, width, TARN_SUFFIX_##variant);
#endif

#define TARN_EXPORT(shape, base, variant, Kernel)                                            \
    TARN_EXPORT_WIDTH(shape, base, 1, variant, Kernel)                                  \
    TARN_EXPORT_WIDTH(shape, base, 2, variant, Kernel)                                  \
    TARN_EXPORT_WIDTH(shape, base, 3, variant, Kernel)                                  \
    TARN_EXPORT_WIDTH(shape, base, 4, variant, Kernel)                                  \
    TARN_EXPORT_WIDTH(shape, base, 8, variant, Kernel)                                  \
    TARN_EXPORT_WIDTH(shape, base, 16, variant, Kernel)

#define TARN_EXPORT_SAME(base, variant, like)                                                \
    TARN_EXPORT_WIDTH_SAME(base, 1, variant, like)                                           \
    TARN_EXPORT_WIDTH_SAME(base, 2, variant, like)                                           \
    TARN_EXPORT_WIDTH_SAME(base, 3, variant, like)                                           \
    TARN_EXPORT_WIDTH_SAME(base, 4, variant, like)                                           \
    TARN_EXPORT_WIDTH_SAME(base, 8, variant, like)                                           \
    TARN_EXPORT_WIDTH_SAME(base, 16, variant, like)

#endif
