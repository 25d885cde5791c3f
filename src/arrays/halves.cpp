// The vector functions for AVX without AVX2: registers of 32 bytes, whose halves go to the functions of SSE one after the
// other. Compiled for AVX, and nothing is shared with code of another level but those functions.
#include <immintrin.h>

#include <cstdint>

#include "arrays/loops.inc"

namespace {

template <class Lane> struct Registers {
    typedef Lane Half __attribute__((vector_size(16)));
    typedef Lane Whole __attribute__((vector_size(32)));
};
using Pointers = Registers<std::int64_t>::Half;  // AVX has integers of 16 bytes only

template <class Lane> typename Registers<Lane>::Half low(typename Registers<Lane>::Whole x) {
    return (typename Registers<Lane>::Half)_mm256_castps256_ps128((__m256)x);
}
template <class Lane> typename Registers<Lane>::Half high(typename Registers<Lane>::Whole x) {
    return (typename Registers<Lane>::Half)_mm256_extractf128_ps((__m256)x, 1);
}
template <class Lane> typename Registers<Lane>::Whole joined(typename Registers<Lane>::Half low, typename Registers<Lane>::Half high) {
    return (typename Registers<Lane>::Whole)_mm256_insertf128_ps(_mm256_castps128_ps256((__m128)low), (__m128)high, 1);
}

}  // namespace

#define TARN_HALF_OF(Lane) Registers<Lane>::Half
#define TARN_WHOLE_OF(Lane) Registers<Lane>::Whole
#define TARN_VISIBLE extern "C" [[gnu::visibility("default")]]

#define TARN_C_UNARY(name, Lane, half)                                                                     \
    extern "C" TARN_HALF_OF(Lane) half(TARN_HALF_OF(Lane) x);                                              \
    TARN_VISIBLE TARN_WHOLE_OF(Lane) name(TARN_WHOLE_OF(Lane) x) {                                         \
        const auto first = half(low<Lane>(x));                                                             \
        return joined<Lane>(first, half(high<Lane>(x)));                                                   \
    }
#define TARN_C_BINARY(name, Lane, half)                                                                    \
    extern "C" TARN_HALF_OF(Lane) half(TARN_HALF_OF(Lane) x, TARN_HALF_OF(Lane) y);                        \
    TARN_VISIBLE TARN_WHOLE_OF(Lane) name(TARN_WHOLE_OF(Lane) x, TARN_WHOLE_OF(Lane) y) {                  \
        const auto first = half(low<Lane>(x), low<Lane>(y));                                               \
        return joined<Lane>(first, half(high<Lane>(x), high<Lane>(y)));                                    \
    }

#define TARN_HALVES_UNARY_float(base, half) TARN_C_UNARY(_ZGVcN8v_##base, float, half)
#define TARN_HALVES_UNARY_double(base, half) TARN_C_UNARY(_ZGVcN4v_##base, double, half)
#define TARN_HALVES_BINARY_float(base, half) TARN_C_BINARY(_ZGVcN8vv_##base, float, half)
#define TARN_HALVES_BINARY_double(base, half) TARN_C_BINARY(_ZGVcN4vv_##base, double, half)
#define TARN_HALVES_SINCOS_float(base, half)                                                               \
    extern "C" void _ZGVbN4vl4l4_##base(TARN_HALF_OF(float) x, float* sine, float* cosine);                \
    TARN_VISIBLE void _ZGVcN8vl4l4_##base(TARN_WHOLE_OF(float) x, float* sine, float* cosine) {            \
        _ZGVbN4vl4l4_##base(low<float>(x), sine, cosine);                                                  \
        _ZGVbN4vl4l4_##base(high<float>(x), sine + 4, cosine + 4);                                         \
    }                                                                                                      \
    extern "C" void _ZGVbN4vvv_##base(TARN_HALF_OF(float) x, Pointers s0, Pointers s1, Pointers c0, Pointers c1); \
    TARN_VISIBLE void _ZGVcN8vvv_##base(TARN_WHOLE_OF(float) x, Pointers s0, Pointers s1, Pointers s2, Pointers s3, \
                                        Pointers c0, Pointers c1, Pointers c2, Pointers c3) {              \
        _ZGVbN4vvv_##base(low<float>(x), s0, s1, c0, c1);                                                  \
        _ZGVbN4vvv_##base(high<float>(x), s2, s3, c2, c3);                                                 \
    }
#define TARN_HALVES_SINCOS_double(base, half)                                                              \
    extern "C" void _ZGVbN2vl8l8_##base(TARN_HALF_OF(double) x, double* sine, double* cosine);             \
    TARN_VISIBLE void _ZGVcN4vl8l8_##base(TARN_WHOLE_OF(double) x, double* sine, double* cosine) {         \
        _ZGVbN2vl8l8_##base(low<double>(x), sine, cosine);                                                 \
        _ZGVbN2vl8l8_##base(high<double>(x), sine + 2, cosine + 2);                                        \
    }                                                                                                      \
    extern "C" void _ZGVbN2vvv_##base(TARN_HALF_OF(double) x, Pointers s, Pointers c);                     \
    TARN_VISIBLE void _ZGVcN4vvv_##base(TARN_WHOLE_OF(double) x, Pointers s0, Pointers s1, Pointers c0, Pointers c1) { \
        _ZGVbN2vvv_##base(low<double>(x), s0, c0);                                                         \
        _ZGVbN2vvv_##base(high<double>(x), s1, c1);                                                        \
    }

#define TARN_HALVES(SHAPE, base, Lane, half) TARN_HALVES_##SHAPE##_##Lane(base, half)
TARN_EACH_IN_LOOPS(TARN_HALVES)
