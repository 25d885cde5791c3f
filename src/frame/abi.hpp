// The calling convention: how the vectors of each width travel between the caller and a kernel.
// This file, exports.hpp and windows.hpp are the only ones that know it; a kernel sees blocks.
//
// System V x86-64: width 1 is a scalar, a vector of at most 16 bytes one register, a longer one a
// struct of 16-byte blocks in memory. A 32- or 64-byte vector type would change registers with the
// caller's own compiler flags; a struct does not. Windows x64: up to 64 bytes lie in registers
// (frame/windows.hpp).
#pragma once

#include <type_traits>

#include "frame/simd.hpp"
#ifdef _WIN32
#include "ocl_tarn_k1_windows.h"
#else
#include "ocl_tarn_k1.h"
#endif

namespace tarn {

// The vector of `width` lanes of one type, as the public header names it: but where that of Windows has 16 bytes for
// fewer, exactly its lanes.
template <class Lane, int width> struct VectorOf;

#define TARN_VECTORS(Lane, name)                                      \
    template <> struct VectorOf<Lane, 1> { using type = Lane; };      \
    template <> struct VectorOf<Lane, 2> { using type = Vector<Lane, 2 * sizeof(Lane)>; }; \
    template <> struct VectorOf<Lane, 3> { using type = name##3; };   \
    template <> struct VectorOf<Lane, 4> { using type = name##4; };   \
    template <> struct VectorOf<Lane, 8> { using type = name##8; };   \
    template <> struct VectorOf<Lane, 16> { using type = name##16; };
TARN_VECTORS(float, tarn_float)
TARN_VECTORS(double, tarn_double)
TARN_VECTORS(std::int32_t, tarn_int)
TARN_VECTORS(std::uint32_t, tarn_uint)
TARN_VECTORS(std::int64_t, tarn_long)
TARN_VECTORS(std::uint64_t, tarn_ulong)
#undef TARN_VECTORS

template <class Lane, int width> using Vec = typename VectorOf<Lane, width>::type;

// Two vectors returned together, sine first.
template <class Lane, int width> struct PairOf;

#define TARN_PAIRS(Lane, name)                                        \
    template <> struct PairOf<Lane, 1> { using type = name##1; };     \
    template <> struct PairOf<Lane, 2> { using type = name##2; };     \
    template <> struct PairOf<Lane, 3> { using type = name##3; };     \
    template <> struct PairOf<Lane, 4> { using type = name##4; };     \
    template <> struct PairOf<Lane, 8> { using type = name##8; };     \
    template <> struct PairOf<Lane, 16> { using type = name##16; };
TARN_PAIRS(float, tarn_sincos_float)
TARN_PAIRS(double, tarn_sincos_double)
#undef TARN_PAIRS

template <class Lane, int width> using VecPair = typename PairOf<Lane, width>::type;

// Whether such a vector is a struct of blocks, and whether it lies in memory.
template <class Lane, int width>
constexpr bool in_blocks = std::is_class_v<Vec<Lane, width>>;
#ifdef _WIN32
template <class Lane, int width>
constexpr bool in_memory = sizeof(Vec<Lane, width>) > 64;
#else
template <class Lane, int width>
constexpr bool in_memory = in_blocks<Lane, width>;
#endif

// How routines of the module take vectors from each other, where the platform's own way is through memory.
#ifdef _WIN32
#define TARN_IN_REGISTERS __vectorcall
#else
#define TARN_IN_REGISTERS
#endif

// The real lanes of a width, as a mask.
constexpr unsigned lane_mask(int width) { return (1u << width) - 1; }

// Lanes stored for a width: width 3 is carried as 4.
constexpr int stored_lanes(int width) { return width == 3 ? 4 : width; }

}  // namespace tarn
