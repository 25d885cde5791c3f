/* Four functions on Windows x64. Three are declared; the fourth takes the pointer to its second result in the stack
 * slot above the return address, which no declaration can say: it is called by name.
 *
 *     clang --target=x86_64-w64-mingw32 -O2 -Iinclude -c call_windows.c
 *     x86_64-w64-mingw32-gcc call_windows.o __ocl_tarn_k1.lib -o call_windows.exe */
#include <ocl_tarn_k1_windows.h>
#include <stdio.h>

static tarn_float4 sincosf4(tarn_float4 x, tarn_float4* cosine) {
    register tarn_float4 sine __asm__("xmm0") = x;
    __asm__("subq $40, %%rsp\n\t"
            "movq %[cosine], (%%rsp)\n\t"
            "callq __ocl_tarn_k1_sincosf4\n\t"
            "addq $40, %%rsp"
            : "+x"(sine)
            : [cosine] "r"(cosine)
            : "rax", "rcx", "rdx", "r8", "r9", "r10", "r11", "xmm1", "xmm2", "xmm3", "xmm4", "xmm5", "cc", "memory");
    return sine;
}

int main(void) {
    const tarn_float4 x = {0.0f, 1.0f, -2.5f, 10.0f}, n = {0.5f, 1.0f, 2.0f, 3.0f};
    const tarn_float4 exponential = __ocl_tarn_k1_expf4(x), power = __ocl_tarn_k1_powf4(n, x);
    tarn_float4 cosine;
    const tarn_float4 sine = sincosf4(x, &cosine);
    for (int i = 0; i < 4; i++)
        printf("%g: exp %.9g, sin %.9g, cos %.9g, %g^x %.9g\n", x[i], exponential[i], sine[i], cosine[i], n[i],
               power[i]);

    tarn_double16 wide;
    for (int i = 0; i < 16; i++) wide.block[i / 2][i % 2] = i - 8;
    wide = __ocl_tarn_k1_exp16(wide);
    for (int i = 0; i < 16; i++) printf("exp(%d) = %.17g\n", i - 8, wide.block[i / 2][i % 2]);
    return 0;
}
