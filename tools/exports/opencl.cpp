// The header for OpenCL C, and the names that OpenCL C has for what the module exports.
#include "exports/opencl.hpp"

#include <algorithm>
#include <array>
#include <cstdio>
#include <map>
#include <set>

#include "exports/outputs.hpp"
#include "exports/text.hpp"
#include "families/placement.hpp"

namespace tarn {
namespace {

constexpr std::array half_or_native_in_opencl = {"cos",   "divide", "exp",   "exp2",  "exp10", "log",  "log2",
                                                 "log10", "powr",   "recip", "rsqrt", "sin",   "sqrt", "tan"};

bool is_conversion(const Family& f) { return f.group == "Conversions"; }

// "_sat_rtz" of a conversion.
std::string tail(const Family& f) {
    std::string mode;
    for (const char* m : {"rte", "rtn", "rtp", "rtz"})
        if (f.base.find(m) != std::string::npos) mode = std::string("_") + m;
    const bool sat = f.base.find("sat") != std::string::npos && f.base.find("nosat") == std::string::npos;
    return (sat ? "_sat" : "") + mode;
}

// The name without what says the precision, as OpenCL C spells it.
std::string spelled(const Family& f) {
    const std::string plain = precision(f) == Lane::f32 ? f.base.substr(0, f.base.size() - 1) : f.base;
    static const std::map<std::string, std::string> others = {
        {"div", "divide"}, {"inv", "recip"}, {"lgammar", "lgamma_r"}};
    const auto other = others.find(plain);
    return other == others.end() ? plain : other->second;
}

std::string in_form(const std::string& name, Variant v) {
    return (v == Variant::full ? "" : suffix(v) + 1 + std::string("_")) + name;
}

// A conversion's names have the width within: what stands before it, or for width 1 the whole name.
std::string key(const Family& f, Variant v) {
    return is_conversion(f) ? "convert_" + std::string(stem(f.shape.result)) + tail(f) : in_form(spelled(f), v);
}

bool in_opencl(const Family& f, Variant v) {
    if (is_conversion(f)) return true;
    const std::string name = spelled(f);
    if (v != Variant::full)  // of single precision alone
        return precision(f) == Lane::f32 && std::find(half_or_native_in_opencl.begin(), half_or_native_in_opencl.end(),
                                                      name) != half_or_native_in_opencl.end();
    static const std::set<std::string> ours = {"divide", "recip", "rcbrt", "nearbyint", "sincosreg"};
    return !ours.contains(name);
}

constexpr Lane lane_types[] = {Lane::f32, Lane::f64, Lane::i32, Lane::u32, Lane::i64, Lane::u64};

std::string lanes(const char* type, int width) { return type + (width == 1 ? "" : std::to_string(width)); }

// How vectors travel: those of up to 16 bytes as they are, width 3 in the storage of width 4, longer ones in structs.
void carriers(Lane t) {
    const char* type = stem(t);
    const int per_block = 16 / bytes(t);
    for (const int width : widths) {
        const std::string v = lanes(type, width), suffix = std::string(type) + std::to_string(width);
        const int stored = width == 3 ? 4 : width, blocks = tarn::blocks(t, width);
        const std::string inside = lanes(type, stored), block = lanes(type, per_block);
        if (blocks == 1) {
            std::printf("typedef %s tarn_c_%s;\n", inside.c_str(), suffix.c_str());
            const bool cast = width == 3;
            std::printf("#define tarn_pack_%s(x) %s\n#define tarn_lanes_%s(c) %s\n", suffix.c_str(),
                        cast ? ("as_" + inside + "(x)").c_str() : "(x)", suffix.c_str(),
                        cast ? ("as_" + v + "(c)").c_str() : "(c)");
            continue;
        }
        std::printf("typedef struct { %s block[%d]; } tarn_c_%s;\n", block.c_str(), blocks, suffix.c_str());
        if (width == 3) {
            // The lanes of width 4, whose carrier is another type of the same content.
            std::printf("TARN_INLINE tarn_c_%s tarn_pack_%s(%s x) { tarn_c_%s c = {{x.s01, x.s22}}; return c; }\n",
                        suffix.c_str(), suffix.c_str(), v.c_str(), suffix.c_str());
            std::printf("TARN_INLINE %s tarn_lanes_%s(tarn_c_%s c) { return (%s)(c.block[0], c.block[1].x); }\n",
                        v.c_str(), suffix.c_str(), suffix.c_str(), v.c_str());
            continue;
        }
        std::string pieces, whole;
        for (int b = 0; b < blocks; b++) {
            std::string picked = "s";
            for (int i = 0; i < per_block; i++) picked += "0123456789abcdef"[b * per_block + i];
            pieces += (b ? ", x." : "x.") + picked;
            whole += (b ? ", c.block[" : "c.block[") + std::to_string(b) + ']';
        }
        std::printf("TARN_INLINE tarn_c_%s tarn_pack_%s(%s x) {\n    tarn_c_%s c = {{%s}}; return c; }\n", suffix.c_str(),
                    suffix.c_str(), v.c_str(), suffix.c_str(), pieces.c_str());
        std::printf("TARN_INLINE %s tarn_lanes_%s(tarn_c_%s c) {\n    return (%s)(%s); }\n", v.c_str(), suffix.c_str(),
                    suffix.c_str(), v.c_str(), whole.c_str());
    }
}

constexpr const char* preamble =
    R"(/* Vector math in OpenCL C: built-in functions of a kernel that includes this are the module's, __ocl_tarn_k1.
 *
 *     #include <ocl_tarn_k1.cl.h>
 *     kernel void k(global float4* x) { size_t i = get_global_id(0); x[i] = pow(sin(x[i]), 2.5f); }
 *
 * sin(x), pow(x, y), native_exp(x), half_log(x), convert_int4_sat_rtz(x), sincos(x, &c) and the others, of every
 * width and in both precisions, then mean tarn_sin(x) and so on: those names are always there, and every export
 * has one. OpenCL C has no name for tarn_divide, tarn_recip, tarn_rcbrt, tarn_nearbyint, tarn_sincosreg, and for
 * most of tarn_native_acos and its like. Conversions without a rounding mode (convert_int4, convert_int4_sat) stay
 * the runtime's.
 *
 * Macros, as options of the build (-D NAME) or before the header:
 *   TARN_ONLY           only what TARN_USE_<name> asks for, as in -D TARN_ONLY -D TARN_USE_sin -D TARN_USE_native_exp;
 *                       of a conversion the name of width 1 (TARN_USE_convert_int_sat_rtz). Programs build faster
 *                       with less, and functions of a few instructions are better left to the runtime.
 *   TARN_PREFIXED_ONLY  OpenCL's own names stay the runtime's: sin(x) beside tarn_sin(x).
 *
 * For runtimes on x86-64 that compile kernels with clang in the process that runs them. The module has to be in
 * the process's global scope before a kernel runs: dlopen("__ocl_tarn_k1.so", RTLD_NOW | RTLD_GLOBAL), or linked.
 * Each function here stands for a jump to its export; that jump is a definition, so that a runtime which resolves
 * nothing but its own built-ins takes it, and is bound when the kernel's code is loaded. Second results may be
 * written to any address space.
 *
 * Generated from the table of families by tarn-exports; edit the table. */
#ifndef OCL_TARN_K1_CL_H
#define OCL_TARN_K1_CL_H

#if !defined(__x86_64__) || !defined(__clang__)
#error "this header is for OpenCL runtimes that compile for x86-64 with clang"
#endif
#ifdef cl_khr_fp64
#pragma OPENCL EXTENSION cl_khr_fp64 : enable
#endif

#define TARN_INLINE static inline __attribute__((always_inline))
#define TARN_OVERLOAD static inline __attribute__((always_inline, overloadable))
#define TARN_JUMP static inline __attribute__((naked))
#define TARN_PURE static inline __attribute__((naked, const))

/* Vectors as C passes them: a vector beyond 16 bytes would change its registers with the target. ------- */
)";

constexpr const char* shapes = R"(
/* A function at one width: the jump, and the overload over it. E is the export's name without width and form, N the
 * width, V the width as types are spelled (nothing for 1). ------------------------------------------- */
#define TARN_TO(E, N, F) { __asm__("jmp " #E #N #F "@PLT"); }
#define TARN_1(NAME, E, F, N, V, R, A) \
    TARN_PURE tarn_c_##R##N tarn_to##E##N##F(tarn_c_##A##N x) TARN_TO(E, N, F) \
    TARN_OVERLOAD R##V NAME(A##V x) { return tarn_lanes_##R##N(tarn_to##E##N##F(tarn_pack_##A##N(x))); }
#define TARN_2(NAME, E, F, N, V, R, A, B) \
    TARN_PURE tarn_c_##R##N tarn_to##E##N##F(tarn_c_##A##N x, tarn_c_##B##N y) TARN_TO(E, N, F) \
    TARN_OVERLOAD R##V NAME(A##V x, B##V y) { \
        return tarn_lanes_##R##N(tarn_to##E##N##F(tarn_pack_##A##N(x), tarn_pack_##B##N(y))); }
#define TARN_3(NAME, E, F, N, V, R, A, B, C) \
    TARN_PURE tarn_c_##R##N tarn_to##E##N##F(tarn_c_##A##N x, tarn_c_##B##N y, tarn_c_##C##N z) TARN_TO(E, N, F) \
    TARN_OVERLOAD R##V NAME(A##V x, B##V y, C##V z) { \
        return tarn_lanes_##R##N(tarn_to##E##N##F(tarn_pack_##A##N(x), tarn_pack_##B##N(y), tarn_pack_##C##N(z))); }
/* Both results returned. */
#define TARN_PAIR(NAME, E, F, N, V, R, A) \
    TARN_PURE tarn_both_##R##N tarn_to##E##N##F(tarn_c_##A##N x) TARN_TO(E, N, F) \
    TARN_OVERLOAD tarn_sincos_##R##N NAME(A##V x) { \
        const tarn_both_##R##N both = tarn_to##E##N##F(tarn_pack_##A##N(x)); \
        const tarn_sincos_##R##N r = {tarn_lanes_##R##N(both.sine), tarn_lanes_##R##N(both.cosine)}; \
        return r; }
/* A second result goes to a carrier first: width 3 is written with four lanes, and other address spaces have other
 * pointers. */
#define TARN_SECOND_1(SPACE, NAME, E, F, N, V, R, A, S) \
    TARN_OVERLOAD R##V NAME(A##V x, SPACE S##V* second) { \
        tarn_c_##S##N s; \
        const R##V r = tarn_lanes_##R##N(tarn_to##E##N##F(tarn_pack_##A##N(x), &s)); \
        *second = tarn_lanes_##S##N(s); \
        return r; }
#define TARN_SECOND_2(SPACE, NAME, E, F, N, V, R, A, B, S) \
    TARN_OVERLOAD R##V NAME(A##V x, B##V y, SPACE S##V* second) { \
        tarn_c_##S##N s; \
        const R##V r = tarn_lanes_##R##N(tarn_to##E##N##F(tarn_pack_##A##N(x), tarn_pack_##B##N(y), &s)); \
        *second = tarn_lanes_##S##N(s); \
        return r; }
#if defined(__opencl_c_generic_address_space) || __OPENCL_C_VERSION__ == 200
#define TARN_EVERY_SPACE(M, ...) M(__global, __VA_ARGS__) M(__local, __VA_ARGS__) M(__private, __VA_ARGS__) \
    M(__generic, __VA_ARGS__)
#else
#define TARN_EVERY_SPACE(M, ...) M(__global, __VA_ARGS__) M(__local, __VA_ARGS__) M(__private, __VA_ARGS__)
#endif
#define TARN_1_SECOND(NAME, E, F, N, V, R, A, S) \
    TARN_JUMP tarn_c_##R##N tarn_to##E##N##F(tarn_c_##A##N x, __private tarn_c_##S##N* second) TARN_TO(E, N, F) \
    TARN_EVERY_SPACE(TARN_SECOND_1, NAME, E, F, N, V, R, A, S)
#define TARN_2_SECOND(NAME, E, F, N, V, R, A, B, S) \
    TARN_JUMP tarn_c_##R##N tarn_to##E##N##F(tarn_c_##A##N x, tarn_c_##B##N y, __private tarn_c_##S##N* second) \
        TARN_TO(E, N, F) \
    TARN_EVERY_SPACE(TARN_SECOND_2, NAME, E, F, N, V, R, A, B, S)
/* OpenCL C has these also with a scalar beside a vector. */
#define TARN_SCALAR(NAME, V, T, B) TARN_OVERLOAD T##V NAME(T##V x, B y) { return NAME(x, (B##V)(y)); }
#define TARN_WITH_SCALAR(NAME, T, B) TARN_SCALAR(NAME, 2, T, B) TARN_SCALAR(NAME, 3, T, B) TARN_SCALAR(NAME, 4, T, B) \
    TARN_SCALAR(NAME, 8, T, B) TARN_SCALAR(NAME, 16, T, B)
/* Every width. */
#define TARN_ALL(M, NAME, E, F, ...) M(NAME, E, F, 1, , __VA_ARGS__) M(NAME, E, F, 2, 2, __VA_ARGS__) \
    M(NAME, E, F, 3, 3, __VA_ARGS__) M(NAME, E, F, 4, 4, __VA_ARGS__) M(NAME, E, F, 8, 8, __VA_ARGS__) \
    M(NAME, E, F, 16, 16, __VA_ARGS__)
#define TARN_CONVERT(R, TAIL, E, A) \
    TARN_1(tarn_convert_##R##TAIL, E, , 1, , R, A) TARN_1(tarn_convert_##R##2##TAIL, E, , 2, 2, R, A) \
    TARN_1(tarn_convert_##R##3##TAIL, E, , 3, 3, R, A) TARN_1(tarn_convert_##R##4##TAIL, E, , 4, 4, R, A) \
    TARN_1(tarn_convert_##R##8##TAIL, E, , 8, 8, R, A) TARN_1(tarn_convert_##R##16##TAIL, E, , 16, 16, R, A)
/* Sources that the module has no conversion for keep the runtime's. */
#define TARN_KEEP_1(R, TAIL, V, A) \
    TARN_OVERLOAD R##V tarn_convert_##R##V##TAIL(A##V x) { return convert_##R##V##TAIL(x); }
#define TARN_KEEP(R, TAIL, A) TARN_KEEP_1(R, TAIL, , A) TARN_KEEP_1(R, TAIL, 2, A) TARN_KEEP_1(R, TAIL, 3, A) \
    TARN_KEEP_1(R, TAIL, 4, A) TARN_KEEP_1(R, TAIL, 8, A) TARN_KEEP_1(R, TAIL, 16, A)
)";

bool has_double(const Shape& s) {
    const auto is = [](Lane t) { return t == Lane::f64; };
    return is(s.result) || is(s.second) || std::any_of(s.args.begin(), s.args.end(), is);
}

std::string definition(const Family& f, Variant v) {
    const Shape& s = f.shape;
    const std::string symbol = "__ocl_tarn_k1_" + f.base;
    if (is_conversion(f))
        return "TARN_CONVERT(" + std::string(stem(s.result)) + ", " + tail(f) + ", " + symbol + ", " + stem(s.args[0]) +
               ")";
    std::string text = "TARN_ALL(TARN_";
    text += s.pair ? "PAIR" : std::to_string(s.args.size()) + (s.second == Lane::none ? "" : "_SECOND");
    text += ", tarn_" + key(f, v) + ", " + symbol + ", " + suffix(v) + ", " + stem(s.result);
    for (const Lane a : s.args) text += std::string(", ") + stem(a);
    if (s.second != Lane::none && !s.pair) text += std::string(", ") + stem(s.second);
    text += ')';
    const std::string name = spelled(f);
    if (v == Variant::full && (name == "fmin" || name == "fmax" || name == "ldexp"))
        text += " TARN_WITH_SCALAR(tarn_" + name + ", " + stem(s.result) + ", " + stem(s.args[1]) + ")";
    return text;
}

}  // namespace

Lane precision(const Family& f) {
    const Shape& s = f.shape;
    // A double made a float is named as what it is made of.
    return s.args[0] == Lane::f64 || s.result == Lane::f64 ? Lane::f64 : Lane::f32;
}

std::string builtin(const Family& f, int width, Variant v) {
    return in_opencl(f, v) ? header_name(f, width, v).substr(5) : "";
}

std::string header_name(const Family& f, int width, Variant v) {
    if (is_conversion(f)) return "tarn_convert_" + lanes(stem(f.shape.result), width) + tail(f);
    return "tarn_" + key(f, v);
}

void opencl_header() {
    std::fputs(preamble, stdout);
    for (const Lane t : lane_types) {
        if (t == Lane::f64) std::puts("#ifdef cl_khr_fp64");
        carriers(t);
        if (t == Lane::f64) std::puts("#endif");
    }
    std::puts("/* Sine and cosine together, as a function returns them and as they travel. */");
    for (const Lane t : {Lane::f32, Lane::f64}) {
        if (t == Lane::f64) std::puts("#ifdef cl_khr_fp64");
        for (const int width : widths)
            std::printf(
                "typedef struct { %s sine, cosine; } tarn_sincos_%s%d;\n"
                "typedef struct { tarn_c_%s%d sine, cosine; } tarn_both_%s%d;\n",
                lanes(stem(t), width).c_str(), stem(t), width, stem(t), width, stem(t), width);
        if (t == Lane::f64) std::puts("#endif");
    }
    std::fputs(shapes, stdout);

    // What serves one name together, in the table's order of names.
    std::vector<std::string> order;
    std::map<std::string, std::vector<std::pair<const Family*, Variant>>> by_name;
    for (const Family& f : families())
        for (const Variant v : all_variants)
            if (f.has(v)) {
                auto& members = by_name[key(f, v)];
                if (members.empty()) order.push_back(key(f, v));
                members.push_back({&f, v});
            }

    std::string group;
    for (const auto& name : order) {
        const auto& members = by_name[name];
        const Family& first = *members[0].first;
        print_group(first, group);
        std::printf("#if !defined(TARN_ONLY) || defined(TARN_USE_%s)\n", name.c_str());
        bool doubles = false;
        const auto within = [&](bool wanted) {
            if (wanted != doubles) std::puts(wanted ? "#ifdef cl_khr_fp64" : "#endif");
            doubles = wanted;
        };
        for (const auto& [f, v] : members) {
            within(has_double(f->shape));
            std::puts(definition(*f, v).c_str());
        }
        within(false);
        if (is_conversion(first)) {
            // Every type of number that no member takes.
            const Lane to = first.shape.result;
            for (const char* from :
                 {"char", "uchar", "short", "ushort", "int", "uint", "long", "ulong", "float", "double"}) {
                if (std::any_of(members.begin(), members.end(),
                                [&](const auto& m) { return from == std::string(stem(m.first->shape.args[0])); }))
                    continue;
                within(to == Lane::f64 || std::string(from) == "double");
                std::printf("TARN_KEEP(%s, %s, %s)\n", stem(to), tail(first).c_str(), from);
            }
            within(false);
        }
        std::puts("#endif");
    }

    std::puts(
        "\n/* OpenCL's own names, once everything that asks the runtime's is defined. ------------------------- */\n"
        "#ifndef TARN_PREFIXED_ONLY");
    for (const auto& name : order) {
        const auto& [f, v] = by_name[name][0];
        if (!in_opencl(*f, v)) continue;
        std::printf("#if !defined(TARN_ONLY) || defined(TARN_USE_%s)\n", name.c_str());
        std::vector<std::string> names;
        for (const int width : widths) {
            const std::string own = builtin(*f, width, v);
            if (names.empty() || names.back() != own) names.push_back(own);
        }
        const bool doubles = is_conversion(*f) && f->shape.result == Lane::f64;
        if (doubles) std::puts("#ifdef cl_khr_fp64");
        for (const auto& own : names)
            std::printf("#undef %s\n#define %s tarn_%s\n", own.c_str(), own.c_str(), own.c_str());
        if (doubles) std::puts("#endif");
        std::puts("#endif");
    }
    std::puts("#endif\n#endif");
}

}  // namespace tarn
