#include "vectors/calls.hpp"

namespace tarn::vectors {

const Calls sse_f32 = calls_of<float, 16, 16>(), sse_f64 = calls_of<double, 16, 16>();

}  // namespace tarn::vectors
