/* A call from C, linked with the module. */
#include <ocl_tarn_k1.h>
#include <stdio.h>

int main(void) {
    const tarn_float4 x = {0.0f, 1.0f, -2.5f, 10.0f};
    const tarn_float4 y = __ocl_tarn_k1_expf4(x);
    for (int i = 0; i < 4; i++) printf("exp(%g) = %.9g\n", x[i], y[i]);
    return 0;
}
