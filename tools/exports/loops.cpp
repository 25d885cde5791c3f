// What makes loops of gcc and clang call libtarn: the names of its vector functions as macros for its doors, the header
// that declares the scalar functions with them, and the version script of the library.
#include <cstdio>
#include <string>

#include "exports/outputs.hpp"
#include "exports/text.hpp"

namespace tarn {
namespace {

// Without the letter of single precision.
bool is_one_of(const std::string& name, std::initializer_list<const char*> names) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

// Loops call what maps one or two numbers to one, and sincos. Quotients are C's operator, and div a function of C's own.
bool is_sincos(const Family& f) { return name_of_both(f) == "sincos"; }
bool in_loops(const Family& f) {
    const Lane t = f.shape.result;
    return is_sincos(f) || (is_float(t) && (f.shape == unary(t) || f.shape == binary(t)) && !is_one_of(name_of_both(f), {"div", "inv"}));
}
// Functions that C has none of: a loop's last elements want them too.
bool is_missing_in_c(const Family& f) {
    return is_one_of(name_of_both(f), {"sinpi", "cospi", "tanpi", "asinpi", "acospi", "atanpi", "atan2pi", "rsqrt", "rcbrt", "powr",
                                  "maxmag", "minmag"});
}
// The lanes of a register of 16 bytes, and whether the kernel of that width is its own.
int lanes_of_block(const Family& f) { return 16 / bytes(f.shape.result); }
bool own_kernel(const Family& f) {
    for (const auto& [width, worst] : f.width_full)
        if (width == lanes_of_block(f)) return true;
    return false;
}

template <class F> void each_in_loops(F call) {
    for (const Family& f : families())
        if (in_loops(f)) call(f);
}

std::vector<std::string> vector_names(const Family& f) {
    std::vector<std::string> all;
    const auto add = [&](char registers, int lanes, const std::string& parameters) {
        all.push_back(std::string("_ZGV") + registers + 'N' + std::to_string(lanes) + parameters + '_' + f.base);
    };
    const int few = lanes_of_block(f);
    const std::string stride = 'l' + std::to_string(bytes(f.shape.result));
    for (const auto& [registers, lanes] : {std::pair{'b', few}, {'c', 2 * few}, {'d', 2 * few}}) {
        if (is_sincos(f)) add(registers, lanes, 'v' + stride + stride), add(registers, lanes, "vvv");
        else add(registers, lanes, std::string(f.shape.args.size(), 'v'));
    }
    return all;
}

}  // namespace

// For the doors: TARN_LOOPS_<base>(Kernel), empty for what no loop calls; and all vector functions in a list.
void loops() {
    std::puts("// Generated from the table of families by tarn-exports.");
    for (const Family& f : families()) {
        std::printf("#define TARN_LOOPS_%s(K)", f.base.c_str());
        if (in_loops(f)) {
            std::printf(" TARN_LOOPS_%s(%s, %s, K)", is_sincos(f) ? "SINCOS" : f.shape.args.size() == 1 ? "UNARY" : "BINARY", f.base.c_str(),
                        c_type(f.shape.result));
            if (own_kernel(f)) std::printf(" TARN_HALF_%s(%s, %s, K)", f.shape.args.size() == 1 ? "UNARY" : "BINARY", f.base.c_str(), c_type(f.shape.result));
            if (is_missing_in_c(f))
                std::printf(" TARN_ELEMENT_%s(%s, %s, K)", f.shape.args.size() == 1 ? "UNARY" : "BINARY", f.base.c_str(), c_type(f.shape.result));
        }
        std::puts("");
    }
    std::puts("\n// Shape, base, lane, and the function on half a register.\n#define TARN_EACH_IN_LOOPS(F) \\");
    each_in_loops([](const Family& f) {
        const std::string half = own_kernel(f) ? "tarn_half_" + f.base
                                               : "_ZGVbN" + std::to_string(lanes_of_block(f)) + std::string(f.shape.args.size(), 'v') + '_' + f.base;
        if (is_sincos(f)) std::printf("    F(SINCOS, %s, %s, ) \\\n", f.base.c_str(), c_type(f.shape.result));
        else std::printf("    F(%s, %s, %s, %s) \\\n", f.shape.args.size() == 1 ? "UNARY" : "BINARY", f.base.c_str(), c_type(f.shape.result), half.c_str());
    });
    std::puts("");
}

void simd_header() {
    std::puts(R"(/* Scalar functions that gcc's loops call in vectors, from libtarn: with this header in the place of <math.h>,
 *
 *     for (int i = 0; i < n; i++) y[i] = tgammaf(x[i]);      gcc -O3 -fno-math-errno loop.c -ltarn -lm
 *
 * calls _ZGVbN4v_tgammaf, with -mavx2 _ZGVdN8v_tgammaf, and the scalar function for what is left over. -ltarn stands
 * before -lm, which brings the C library's own vector functions. For AVX-512 there are no functions here:
 * -mprefer-vector-width=256 keeps gcc at those of AVX2. clang takes the names it knows with -fveclib=libmvec.
 *
 * Those that C lacks (sinpi, rsqrt, powr, ...) libtarn has as scalar functions too. Vector functions set no errno and no
 * signgam. Results are those of the same function of __ocl_tarn_k1.so at the width of the register; the scalar
 * function of the C library, which computes a loop's last elements, has results of its own.
 *
 * Generated from the table of families by tarn-exports; edit the table. */
#ifndef TARN_SIMD_H
#define TARN_SIMD_H

#include <math.h>

#if defined(__GNUC__) && !defined(__clang__) && defined(__x86_64__)
#define TARN_SIMD __attribute__((simd("notinbranch")))
#else
#define TARN_SIMD
#endif
#define TARN_PURE __attribute__((const))
/* lgamma stores a sign besides; where errno does not matter, that does not either. */
#ifdef __NO_MATH_ERRNO__
#define TARN_PURE_WITHOUT_ERRNO __attribute__((const))
#else
#define TARN_PURE_WITHOUT_ERRNO
#endif
#ifdef __cplusplus
#define TARN_NOEXCEPT noexcept
extern "C" {
#else
#define TARN_NOEXCEPT
#endif
)");
    each_in_loops([](const Family& f) {
        const std::string t = c_type(f.shape.result);
        std::printf("TARN_SIMD %s %s(%s x", is_sincos(f) ? "void" : t.c_str(), f.base.c_str(), t.c_str());
        if (is_sincos(f)) std::printf(", %s* sine, %s* cosine", t.c_str(), t.c_str());
        else if (f.shape.args.size() == 2) std::printf(", %s y", t.c_str());
        std::printf(") TARN_NOEXCEPT%s;\n", is_missing_in_c(f) ? " TARN_PURE" : name_of_both(f) == "lgamma" ? " TARN_PURE_WITHOUT_ERRNO" : "");
    });
    std::puts(R"(
#ifdef __cplusplus
}
#endif
#endif)");
}

namespace {

std::vector<std::string> tarn_library_names() {
    std::vector<std::string> all;
    for (const Family& f : families())
        for (const Variant v : all_variants)
            if (f.has(v)) all.push_back(array_name(f.base, v));
    each_in_loops([&](const Family& f) {
        for (const auto& name : vector_names(f)) all.push_back(name);
        if (is_missing_in_c(f)) all.push_back(f.base);
    });
    return all;
}

}  // namespace

void tarn_map() {
    std::puts("/* Generated from the table of families by tarn-exports. */\nTARN_1 {\nglobal:");
    for (const auto& name : tarn_library_names()) std::printf("    %s;\n", name.c_str());
    std::puts("local:\n    *;\n};");
}

}  // namespace tarn
