/* Whole arrays from C, linked with libtarn: any length, any alignment, in place too. */
#include <stdio.h>
#include <tarn.h>

int main(void) {
    float x[] = {0.0f, 1.0f, -2.5f, 10.0f, 0.5f}, y[5];
    const size_t n = sizeof x / sizeof *x;
    tarn_expf(n, x, y);
    for (size_t i = 0; i < n; i++) printf("exp(%g) = %.9g\n", x[i], y[i]);
    tarn_logf(n, y, y);
    for (size_t i = 0; i < n; i++) printf("and back: %.9g\n", y[i]);
    return 0;
}
