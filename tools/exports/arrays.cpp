// The header of the functions on arrays.
#include <cstdio>
#include <string>

#include "exports/outputs.hpp"
#include "exports/text.hpp"

namespace tarn {
namespace {

struct Parameter {
    Lane type;
    const char* name;
    bool result;
};

std::vector<Parameter> parameters(const Family& f) {
    const Shape& s = f.shape;
    static const char* const names[] = {"x", "y", "z"};
    std::vector<Parameter> all;
    for (std::size_t i = 0; i < s.args.size(); i++) all.push_back({s.args[i], i == 1 && s.args[i] == Lane::i32 ? "k" : names[i], false});
    const bool sine = f.base.starts_with("sincos");
    all.push_back({s.result, sine ? "sine" : "r", true});
    if (s.second != Lane::none) all.push_back({s.second, sine ? "cosine" : "second", true});
    return all;
}

std::string declaration(const Family& f, Variant v) {
    std::string text = "void " + array_name(f.base, v) + "(size_t n";
    for (const auto& [type, name, result] : parameters(f)) text += std::string(result ? ", " : ", const ") + c_type(type) + "* " + name;
    return text + ");";
}

// Both precisions of a function are one overloaded name.
void span_overload(const Family& f, Variant v) {
    const std::string name = name_of_both(f) + suffix(v);
    std::string spans, pointers, lengths;
    for (const auto& [type, parameter, result] : parameters(f)) {
        spans += std::string(spans.empty() ? "" : ", ") + "std::span<" + (result ? "" : "const ") + c_type(type) + "> " + parameter;
        pointers += std::string(", ") + parameter + ".data()";
        if (*parameter != 'x') lengths += std::string(", ") + parameter + ".size()";
    }
    std::printf("inline void %s(%s) {\n    detail::same_length(\"%s\", x.size()%s);\n    %s(x.size()%s);\n}\n", name.c_str(), spans.c_str(),
                name.c_str(), lengths.c_str(), array_name(f.base, v).c_str(), pointers.c_str());
}

}  // namespace

void arrays() {
    std::puts(R"(/* Vector math on arrays: the OpenCL C built-in functions in single and double precision, for x86-64 with SSE4.1.
 *
 *     void tarn_<base>[_native|_half](size_t n, const T* x, ..., T* r)
 *
 * computes n elements. A base that ends in f is single precision (but erf and modf are double). Without a suffix a
 * function keeps the OpenCL error bound; _native is fast and only as accurate as its comment says; _half lies between.
 *
 * An element's bits depend on that element alone: not on n, not on its place, not on its neighbours. They are those of
 * the same function of __ocl_tarn_k1.so at width 16, of a vector that holds this element in every lane.
 *
 * Any n and any alignment will do. A result may be exactly an argument whose elements have its size, to compute in
 * place; any other overlap is undefined, and so are two results in one place. Pointers are not looked at when n is 0.
 * Nothing is allocated and no state is held: functions may be called from any thread and signal handler. What
 * docs/contract.md says of rounding modes, subnormals and flags holds for every element.
 *
 * In C++20 each function is also an overload on spans, tarn::exp(std::span<const float>, std::span<float>), of one
 * name for both precisions. Lengths that differ throw std::invalid_argument, or where exceptions are off end the
 * program with a line on the standard error output; nothing is computed.
 *
 * Errors are in units in the last place (ulp) of the exact result.
 *
 * Generated from the table of families by tarn-exports; edit the table. */
#ifndef TARN_H
#define TARN_H
)");
    print_version();
    std::puts(R"(
#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif
#ifdef __GNUC__
#pragma GCC visibility push(default)
#endif)");
    std::string group;
    for (const Family& f : families()) {
        print_group(f, group);
        std::puts("");
        print_comment(description(f, Of::elements));
        for (const Variant v : all_variants)
            if (f.has(v)) std::puts(declaration(f, v).c_str());
    }
    std::puts(R"(
#ifdef __GNUC__
#pragma GCC visibility pop
#endif
#ifdef __cplusplus
}
#endif

#if defined(__cplusplus) && __cplusplus >= 202002L && !defined(TARN_NO_SPANS)
#include <cstdio>
#include <cstdlib>
#include <span>
#include <stdexcept>
#include <string>

namespace tarn {
namespace detail {

[[noreturn]] inline void lengths_differ(const char* function) {
    const std::string line = std::string("tarn::") + function + ": the lengths of its spans differ";
#ifdef __cpp_exceptions
    throw std::invalid_argument(line);
#else
    std::fprintf(stderr, "%s\n", line.c_str());
    std::abort();
#endif
}
template <class... Sizes> void same_length(const char* function, std::size_t n, Sizes... sizes) {
    if (((sizes != n) || ...)) [[unlikely]] lengths_differ(function);
}

}  // namespace detail
)");
    for (const Family& f : families())
        for (const Variant v : all_variants)
            if (f.has(v)) span_overload(f, v);
    std::puts(R"(
}  // namespace tarn
#endif
#endif)");
}

}  // namespace tarn
