// The door of libtarn, for exports.hpp: each variant of a base is one function tarn_<base>[_native|_half] on arrays, by
// the kernel of width 16; and full forms that loops call are vector functions besides.
#pragma once

#define TARN_NO_SPANS
#include "arrays/loop.hpp"
#include "tarn.h"

namespace tarn {

template <class K> using ArrayOf = Array<typename ChosenAt<K, 16>::Kernel>;
template <class K> using ResultLane = typename Parts<typename K::Signature>::Result;

}  // namespace tarn

#include "arrays/vectors.hpp"

#define TARN_ARRAY_NAME(base, suffix) TARN_PASTE(tarn, _, base, suffix)

#define TARN_ARRAY_unary(name, K)                                                                \
    void name(std::size_t n, const tarn::Arg1<K, 1>* x, tarn::ResultLane<K>* r) { tarn::ArrayOf<K>::run(n, x, r); }
#define TARN_ARRAY_binary(name, K)                                                               \
    void name(std::size_t n, const tarn::Arg1<K, 1>* x, const tarn::Arg2<K, 1>* y,               \
              tarn::ResultLane<K>* r) {                                                          \
        tarn::ArrayOf<K>::run(n, x, y, r);                                                       \
    }
#define TARN_ARRAY_ternary(name, K)                                                              \
    void name(std::size_t n, const tarn::Arg1<K, 1>* x, const tarn::Arg2<K, 1>* y,               \
              const tarn::Arg3<K, 1>* z, tarn::ResultLane<K>* r) {                               \
        tarn::ArrayOf<K>::run(n, x, y, z, r);                                                    \
    }
#define TARN_ARRAY_unary_second(name, K)                                                         \
    void name(std::size_t n, const tarn::Arg1<K, 1>* x, tarn::ResultLane<K>* r, tarn::SecondOf<K>* second) { \
        tarn::ArrayOf<K>::run(n, x, r, second);                                                  \
    }
#define TARN_ARRAY_binary_second(name, K)                                                        \
    void name(std::size_t n, const tarn::Arg1<K, 1>* x, const tarn::Arg2<K, 1>* y, tarn::ResultLane<K>* r,   \
              tarn::SecondOf<K>* second) {                                                       \
        tarn::ArrayOf<K>::run(n, x, y, r, second);                                               \
    }
#define TARN_ARRAY_unary_pair(name, K) TARN_ARRAY_unary_second(name, K)

#ifdef TARN_ONLY_AVX2
#define TARN_EXPORT(shape, base, variant, Kernel) TARN_LOOPS_##variant(base, Kernel)
#define TARN_EXPORT_SAME(base, variant, like)
#else
#define TARN_EXPORT(shape, base, variant, Kernel)                                                \
    extern "C" [[gnu::visibility("default")]] TARN_ARRAY_##shape(TARN_ARRAY_NAME(base, TARN_SUFFIX_##variant), Kernel) \
    TARN_LOOPS_##variant(base, Kernel)

#define TARN_EXPORT_SAME(base, variant, like)                                                    \
    extern "C" [[gnu::visibility("default"), gnu::alias(TARN_QUOTED(                             \
        TARN_ARRAY_NAME(base, TARN_SUFFIX_##like)))]]                                            \
    decltype(TARN_ARRAY_NAME(base, TARN_SUFFIX_##like)) TARN_ARRAY_NAME(base, TARN_SUFFIX_##variant);
#endif
