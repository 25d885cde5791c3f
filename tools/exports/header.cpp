// The public header.
#include <cstdio>
#include <string>

#include "exports/outputs.hpp"
#include "exports/text.hpp"

namespace tarn {
namespace {

std::string declaration(const Family& f, int width, Variant v) {
    const Shape& s = f.shape;
    std::string text = result_type(s, width);
    text += ' ' + export_name(f.base, width, v) + '(';
    static const char* const names[] = {"x", "y", "z"};
    for (std::size_t i = 0; i < s.args.size(); i++) {
        const bool integer_second = i == 1 && s.args[i] == Lane::i32;
        text += (i ? ", " : "") + vector_type(s.args[i], width) + ' ' + (integer_second ? "n" : names[i]);
    }
    if (s.second != Lane::none && !s.pair) text += std::string(", ") + c_type(s.second) + "* second";
    text += ')';
    return text + (is_pure(f) ? " TARN_CONST;" : ";");
}

}  // namespace

void header() {
    std::puts(R"(/* Vector math: the OpenCL C built-in functions on vectors of 1, 2, 3, 4, 8 and 16 lanes, in single and
 * double precision, for x86-64 with SSE4.1.
 *
 *     __ocl_tarn_k1_<base><width>[_native|_half]
 *
 * A base that ends in f is single precision (but erf and modf are double). Without a suffix a function keeps
 * the OpenCL error bound; _native is fast and only as accurate as its comment says; _half lies between.
 * Functions hold no state, change no control register and may be called from any thread and signal handler.
 *
 * A lane has the same bits at every width and beside any neighbours, but where a function's comment says
 * otherwise. Errors and special values hold while the processor rounds to nearest and subnormals are on. In
 * other rounding modes errors grow, some to percents (docs/contract.md has the figures); with FTZ subnormal
 * results are zeros, with DAZ subnormal arguments are (logf(1e-40) is -inf). Conversions to floating point named rte
 * round as the processor does. Overflow, underflow, invalid and division by zero are raised where they occur;
 * others may be raised besides. Functions are declared const, so that a compiler may merge, move and drop their
 * calls: define TARN_FENV_ACCESS before the header if you change the rounding mode or look at flags.
 *
 * Vectors travel as in the System V ABI: up to 16 bytes in one register, longer ones as a struct of 16-byte
 * blocks, lane 0 first. Width 3 is stored as width 4: what its lane 3 holds is ignored, and undefined in
 * a result. A second result goes through a pointer to its lanes, as many as the width stores (four for
 * width 3), at any alignment.
 *
 * Errors are in units in the last place (ulp) of the exact result.
 *
 * Generated from the table of families by tarn-exports; edit the table. */
#ifndef OCL_TARN_K1_H
#define OCL_TARN_K1_H
)");
    print_version();
    std::puts(R"(
#include <stdint.h>

#ifdef _WIN32
#error "Windows x64 has a header of its own: ocl_tarn_k1_windows.h"
#endif
#if !defined(__x86_64__) || !(defined(__GNUC__) || defined(__clang__))
#error "this library is for x86-64, and its vector types are those of GCC and Clang"
#endif

#ifdef TARN_FENV_ACCESS
#define TARN_CONST /* calls stay where they are between changes of the floating-point environment */
#else
#define TARN_CONST __attribute__((const)) /* the result depends on nothing but the arguments */
#endif

#ifdef __cplusplus
extern "C" {
#endif
#pragma GCC visibility push(default)

/* Vectors --------------------------------------------------------------------------------------- */
)");
    // Width 4 stands before width 3, which is another name for it, and blocks before structs of them.
    for (const Lane t : {Lane::f32, Lane::f64, Lane::i32, Lane::u32, Lane::i64, Lane::u64}) {
        const std::string name = "tarn_" + std::string(stem(t));
        const int per_block = 16 / bytes(t);
        for (const int width : {2, 4, 3, 8, 16}) {
            const std::string type = name + std::to_string(width);
            if (width == 3) std::printf("typedef %s4 %s;\n", name.c_str(), type.c_str());
            else if (width <= per_block)
                std::printf("typedef %s %s __attribute__((vector_size(%d)));\n", c_type(t), type.c_str(), width * bytes(t));
            else
                std::printf("typedef struct %s { %s%d block[%d]; } %s;\n", type.c_str(), name.c_str(), per_block,
                            width / per_block, type.c_str());
        }
        std::puts("");
    }
    print_sincos_types();

    std::string group;
    for (const Family& f : families()) {
        print_group(f, group);
        std::puts("");
        print_comment(description(f));
        for (const Variant v : all_variants)
            if (f.has(v))
                for (const int width : widths) std::puts(declaration(f, width, v).c_str());
    }
    std::puts(R"(
#pragma GCC visibility pop
#ifdef __cplusplus
}
#endif
#endif)");
}

}  // namespace tarn
