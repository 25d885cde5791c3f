#include "bench/peers.hpp"

namespace tarn::bench {

typedef float f32 __attribute__((vector_size(16)));
typedef double f64 __attribute__((vector_size(16)));

const Runs of_16_bytes_f32 = runs<f32>, of_16_bytes_f64 = runs<f64>;

}  // namespace tarn::bench
