/* A call by name, as a runtime makes it: nothing of the module is known when this is built. */
#include <dlfcn.h>
#include <ocl_tarn_k1.h>
#include <stdio.h>

int main(int argc, char** argv) {
    void* module = dlopen(argc > 1 ? argv[1] : "__ocl_tarn_k1.so", RTLD_NOW);
    if (!module) return fprintf(stderr, "%s\n", dlerror()), 1;
    tarn_float8 (*exp2_of_8)(tarn_float8);
    *(void**)&exp2_of_8 = dlsym(module, "__ocl_tarn_k1_exp2f8");
    if (!exp2_of_8) return fprintf(stderr, "%s\n", dlerror()), 1;

    tarn_float8 x; /* two blocks of four lanes */
    for (int i = 0; i < 8; i++) x.block[i / 4][i % 4] = 0.5f * (float)i;
    const tarn_float8 y = exp2_of_8(x);
    for (int i = 0; i < 8; i++) printf("2^%g = %.9g\n", x.block[i / 4][i % 4], y.block[i / 4][i % 4]);
    return 0;
}
