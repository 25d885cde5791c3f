#include "vectors/calls.hpp"

namespace tarn::vectors {

const Calls avx_f32 = calls_of<float, 32, 16>(), avx_f64 = calls_of<double, 32, 16>();
const Calls avx2_f32 = calls_of<float, 32, 32>(), avx2_f64 = calls_of<double, 32, 32>();

}  // namespace tarn::vectors
