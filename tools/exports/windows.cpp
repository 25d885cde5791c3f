// What a caller on Windows x64 needs: the header, and the names for the linkers.
#include <cstdio>
#include <string>

#include "exports/outputs.hpp"
#include "exports/text.hpp"
#include "families/placement.hpp"

namespace tarn {
namespace {

// Lanes below a register travel in one: integers of width 1 and 32-bit lanes of width 2 have 16-byte types too.
std::string carried_type(Lane t, int width) {
    return width == 1 && !is_float(t) ? "tarn_" + std::string(stem(t)) + '1' : vector_type(t, width);
}

std::string declaration(const Family& f, int width, Variant v) {
    const Shape& s = f.shape;
    const std::string result = s.pair ? result_type(s, width) : carried_type(s.result, width);
    const std::string name = export_name(f.base, width, v);
    std::string text = result + " TARN_CALL " + name + '(';
    static const char* const names[] = {"x", "y", "z"};
    for (std::size_t i = 0; i < s.args.size(); i++) {
        const bool integer_second = i == 1 && s.args[i] == Lane::i32;
        text += (i ? ", " : "") + carried_type(s.args[i], width) + ' ' + (integer_second ? "n" : names[i]);
    }
    if (s.second != Lane::none && !s.pair) text += std::string(", ") + c_type(s.second) + "* second";
    return text + ") TARN_SYMBOL(" + name + ')' + (is_pure(f) ? " TARN_CONST;" : ";");
}

void types() {
    for (const Lane t : {Lane::f32, Lane::f64, Lane::i32, Lane::u32, Lane::i64, Lane::u64}) {
        const std::string name = "tarn_" + std::string(stem(t));
        const int per_block = 16 / bytes(t);
        const std::string block = name + std::to_string(per_block);
        const char* const microsofts = t == Lane::f32 ? "__m128" : t == Lane::f64 ? "__m128d" : "__m128i";
        std::printf("TARN_VECTOR(%s, %s, %s);\n", c_type(t), block.c_str(), microsofts);
        std::string same = is_float(t) ? "" : name + '1';
        for (const int width : {2, 3})
            if (width < per_block) same += (same.empty() ? "" : ", ") + name + std::to_string(width);
        if (!same.empty()) std::printf("typedef %s %s;\n", block.c_str(), same.c_str());
        for (const int width : {4, 8, 16})
            if (width > per_block)
                std::printf("typedef struct %s%d { %s block[%d]; } %s%d%s;\n", name.c_str(), width, block.c_str(),
                            width / per_block, name.c_str(), width, width == 4 ? (", " + name + '3').c_str() : "");
        std::puts("");
    }
    print_sincos_types();
}

}  // namespace

// The names that the linker looks for: where a compiler takes no label, __vectorcall adds the bytes of the arguments.
void windows_imports() {
    std::puts("; Generated from the table of families by tarn-exports.\nLIBRARY __ocl_tarn_k1.dll\nEXPORTS");
    for (const Family& f : families())
        for (const Variant v : all_variants)
            if (f.has(v))
                for (const int width : widths) {
                    const std::string name = export_name(f.base, width, v);
                    std::printf("    %s\n", name.c_str());
                    if (!is_vectorcall(f.shape, width)) continue;
                    int size = 0;
                    for (const Lane t : f.shape.args) size += width == 1 && is_float(t) ? 8 : 16 * blocks(t, width);
                    std::printf("    \"%s@@%d\" == %s\n", name.c_str(), size, name.c_str());
                }
}

void windows_header() {
    std::puts(R"(/* The functions of ocl_tarn_k1.h for callers on Windows x64: __ocl_tarn_k1.dll.
 *
 * Vectors travel in xmm0 to xmm3 and come back in xmm0 upwards, as __vectorcall has them. Functions that it places
 * otherwise are declared nowhere: a comment names them, and docs/abi.md says where their arguments travel. They are
 * for compilers, and for calls in assembly.
 *
 * A vector of up to 16 bytes is a 16-byte register: of tarn_float2 and tarn_int2 the lower two lanes count, of the
 * integers of width 1 the lowest. Longer ones are structs of 16-byte blocks, lane 0 first.
 *
 * For Clang and Microsoft's compiler; that of GCC has no __vectorcall. What each function computes, for what arguments,
 * and with what error is said in ocl_tarn_k1.h.
 *
 * Generated from the table of families by tarn-exports; edit the table. */
#ifndef OCL_TARN_K1_WINDOWS_H
#define OCL_TARN_K1_WINDOWS_H

#include <stdint.h>

#if defined(__clang__) && defined(__x86_64__) && defined(_WIN32)
#define TARN_VECTOR(lane, name, register) typedef lane name __attribute__((vector_size(16)))
#define TARN_CALL __attribute__((vectorcall))
/* The whole name: without the mark the compiler adds the arguments' size. */
#define TARN_SYMBOL(name) __asm__("\01" #name)
#elif defined(_MSC_VER) && defined(_M_X64)
#include <emmintrin.h>
#define TARN_VECTOR(lane, name, register) typedef register name
#define TARN_CALL __vectorcall
#define TARN_SYMBOL(name) /* the import library knows the decorated names */
#else
#error "these declarations are for Clang and Microsoft's compiler for Windows x64"
#endif

#if defined(TARN_FENV_ACCESS) || !defined(__clang__)
#define TARN_CONST /* calls stay where they are between changes of the floating-point environment */
#else
#define TARN_CONST __attribute__((const)) /* the result depends on nothing but the arguments */
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* Vectors --------------------------------------------------------------------------------------- */
)");
    types();
    std::string group;
    for (const Family& f : families()) {
        print_group(f, group);
        std::printf("\n/* %s: %s */\n", f.base.c_str(), f.formula.c_str());
        std::string by_name;
        for (const Variant v : all_variants)
            if (f.has(v))
                for (const int width : widths) {
                    if (is_vectorcall(f.shape, width)) std::puts(declaration(f, width, v).c_str());
                    else by_name += (by_name.empty() ? "" : ", ") + (f.base + std::to_string(width) + suffix(v));
                }
        if (!by_name.empty()) print_comment("By name: " + by_name + ".");
    }
    std::puts(R"(
#ifdef __cplusplus
}
#endif
#endif)");
}

}  // namespace tarn
