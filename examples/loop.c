/* A plain loop that the compiler makes calls of libtarn's vector functions of:
 *     gcc -O3 -fno-math-errno loop.c -ltarn -lm      (with -mavx2 twice as many lanes a call)
 * It says how long an element takes, and the bits of some results. */
#include <stdint.h>
#include <stdio.h>
#include <string.h>
#include <tarn_simd.h>
#include <time.h>

#ifndef FUNCTION
#define FUNCTION expf
#endif

enum { n = 1024 };

__attribute__((noinline)) void map(const float* restrict x, float* restrict y, int count) {
    for (int i = 0; i < count; i++) y[i] = FUNCTION(x[i]);
}

static double now(void) {
    struct timespec t;
    clock_gettime(CLOCK_MONOTONIC, &t);
    return (double)t.tv_sec * 1e9 + (double)t.tv_nsec;
}

int main(void) {
    static float x[n], y[n];
    for (int i = 0; i < n; i++) x[i] = 0.004f * (float)(i + 1);
    double least = 1e30;
    for (int round = 0; round < 300; round++) {
        const double start = now();
        map(x, y, n);
        const double time = now() - start;
        if (time < least) least = time;
    }
    fprintf(stderr, "%.3f\n", least / n);
    for (int i = 0; i < n; i++) {
        uint32_t bits;
        memcpy(&bits, &y[i], sizeof bits);
        printf("%.9g %08x\n", (double)x[i], (unsigned)bits);
    }
    return 0;
}
