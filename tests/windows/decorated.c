/* Calls as Microsoft's compiler makes them, by decorated names and its own vector types. 0 where all are right. */
#include <ocl_tarn_k1_windows.h>

#ifdef __clang__
#error "this is for the declarations that other compilers see"
#endif

int main(void) {
    const tarn_float4 two = _mm_set1_ps(2.0f), three = _mm_set1_ps(3.0f);
    const tarn_float8 twos = {{two, two}}, threes = {{three, three}};
    tarn_double16 wide;
    for (int i = 0; i < 8; i++) wide.block[i] = _mm_set1_pd(0.0);

    const tarn_float8 eights = __ocl_tarn_k1_powf8(twos, threes);
    const tarn_double16 ones = __ocl_tarn_k1_cos16(wide);
    const tarn_int16 exponents = __ocl_tarn_k1_ilogb16(ones);
    const tarn_sincos_float4 both = __ocl_tarn_k1_sincosregf4(_mm_setzero_ps());
    int wrong = 0;
    if (__ocl_tarn_k1_ldexpf1(1.5f, _mm_cvtsi32_si128(3)) != 12.0f) wrong |= 1;
    if (_mm_movemask_ps(_mm_cmpeq_ps(eights.block[1], _mm_set1_ps(8.0f))) != 15) wrong |= 2;
    if (_mm_movemask_pd(_mm_cmpeq_pd(ones.block[7], _mm_set1_pd(1.0))) != 3) wrong |= 4;
    if (_mm_movemask_ps(_mm_cmpeq_ps(both.cosine, _mm_set1_ps(1.0f))) != 15) wrong |= 8;
    if (_mm_movemask_epi8(_mm_cmpeq_epi32(exponents.block[3], _mm_setzero_si128())) != 0xFFFF) wrong |= 16;
    return wrong;
}
