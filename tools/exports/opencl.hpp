// The OpenCL C built-in that an export serves.
#pragma once

#include <string>

#include "families/families.hpp"

namespace tarn {

// Its name in OpenCL C, or empty where OpenCL C has none.
std::string builtin(const Family& f, int width, Variant v);

// Its name in ocl_tarn_k1.cl.h, which has one for every export.
std::string header_name(const Family& f, int width, Variant v);

// The precision of what it computes, which is that of its argument where its result is an integer.
Lane precision(const Family& f);

}  // namespace tarn
