// Compiled for AVX2: nothing is included that other files would share.
#include "bench/peers.hpp"

namespace tarn::bench {

typedef float f32 __attribute__((vector_size(32)));
typedef double f64 __attribute__((vector_size(32)));

const Runs of_32_bytes_f32 = runs<f32>, of_32_bytes_f64 = runs<f64>;

}  // namespace tarn::bench
