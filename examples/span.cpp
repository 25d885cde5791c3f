// From C++: a function of whole arrays from one of sixteen lanes, the rest taken one by one.
#include <ocl_tarn_k1.h>

#include <cstdio>
#include <cstring>
#include <span>
#include <vector>

void exponentials(std::span<const float> x, std::span<float> y) {
    std::size_t i = 0;
    for (; i + 16 <= x.size(); i += 16) {
        tarn_float16 v;
        std::memcpy(&v, &x[i], sizeof v);
        v = __ocl_tarn_k1_expf16(v);
        std::memcpy(&y[i], &v, sizeof v);
    }
    for (; i < x.size(); i++) y[i] = __ocl_tarn_k1_expf1(x[i]);  // the same bits as in a vector
}

int main() {
    std::vector<float> x(100), y(100);
    for (std::size_t i = 0; i < x.size(); i++) x[i] = 0.1f * static_cast<float>(i);
    exponentials(x, y);
    std::printf("exp(%g) = %.9g, exp(%g) = %.9g\n", x[10], y[10], x[99], y[99]);
}
