// Writes what follows from the table of families: the public header, the version script, the pages of measured
// errors and of exceptions, the calls of the C callers' test; and a source file with its worst errors renewed.
//   tarn-exports header|map|names|accuracy|calls > FILE
//   tarn-exports contract docs/contract.md > FILE
//   tarn-exports comments SOURCE > FILE
#include <bit>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <set>
#include <string>

#include "families/families.hpp"

using namespace tarn;

namespace {

const char* c_type(Lane t) {
    switch (t) {
        case Lane::f32: return "float";
        case Lane::f64: return "double";
        case Lane::i32: return "int32_t";
        case Lane::u32: return "uint32_t";
        case Lane::i64: return "int64_t";
        case Lane::u64: return "uint64_t";
        case Lane::none: break;
    }
    return "void";
}

const char* stem(Lane t) {
    switch (t) {
        case Lane::f32: return "float";
        case Lane::f64: return "double";
        case Lane::i32: return "int";
        case Lane::u32: return "uint";
        case Lane::i64: return "long";
        case Lane::u64: return "ulong";
        case Lane::none: break;
    }
    return "void";
}

std::string vector_type(Lane t, int width) {
    return width == 1 ? c_type(t) : "tarn_" + std::string(stem(t)) + std::to_string(width);
}

std::string result_type(const Shape& s, int width) {
    return s.pair ? "tarn_sincos_" + std::string(stem(s.result)) + std::to_string(width) : vector_type(s.result, width);
}

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
    // A pointer is written through; these read the rounding mode or the x87 control word.
    const bool pure = (s.second == Lane::none || s.pair) && !f.base.starts_with("rint") &&
                      !f.base.starts_with("nearbyint") && f.base != "fmaf" && f.base != "fma";
    return text + (pure ? " TARN_CONST;" : ";");
}

std::string ulps(double u) {
    char text[32];
    std::snprintf(text, sizeof text, "%.4g", u);
    return text;
}

// "a", "a and b", "a, b and c".
std::string listed(const std::vector<std::string>& words) {
    std::string text;
    for (std::size_t i = 0; i < words.size(); i++) text += (i == 0 ? "" : i + 1 == words.size() ? " and " : ", ") + words[i];
    return text;
}

std::string listed(const std::vector<int>& numbers) {
    std::vector<std::string> words;
    for (const int n : numbers) words.push_back(std::to_string(n));
    return listed(words);
}

std::string widths_text(const std::vector<int>& numbers) {
    if (numbers.size() == std::size(widths)) return "at every width";
    return (numbers.size() == 1 ? "at width " : "at widths ") + listed(numbers);
}

std::string forms(const std::vector<Variant>& variants) {
    std::vector<std::string> words;
    for (const Variant v : variants) words.push_back(v == Variant::full ? "full" : suffix(v) + 1);
    return listed(words);
}

std::string magnitude(double limit) {
    char text[32];
    std::snprintf(text, sizeof text, "%.0f", limit);
    return text;
}

// Where a result depends on more than its own lane, or surprises: a sentence each, of the header and the contract.
std::vector<std::string> exceptions(const Family& f) {
    std::vector<std::string> all;
    if (!f.width_full.empty()) {
        std::vector<int> own;
        for (const auto& [width, worst] : f.width_full) own.push_back(width);
        all.push_back((own.size() > 1 ? "Widths " : "Width ") + listed(own) + (own.size() > 1 ? " have kernels" : " has a kernel") +
                      " of " + (own.size() > 1 ? "their" : "its") + " own (full).");
    }
    if (f.switches_above != 0)
        all.push_back("One lane beyond |x| = " + magnitude(f.switches_above) + " sends the whole call down another path.");
    if (f.shares_blocks) all.push_back("A special lane makes its 16-byte block more exact (full).");
    if (!f.estimates.empty())
        all.push_back("Last bits may differ between processor makers (" + forms(f.estimates) + ").");
    if (!f.native_domain.empty()) {
        static const char* const names[] = {"x", "y"};
        std::vector<std::string> parts;
        for (std::size_t a = 0; a < f.native_domain.size(); a++) {
            char text[64];
            std::snprintf(text, sizeof text, "%s from %g to %g", names[a], f.native_domain[a].low, f.native_domain[a].high);
            parts.push_back(text);
        }
        all.push_back("Native keeps its error for " + listed(parts) + ".");
    }
    if (!f.also.empty()) all.push_back(f.also);
    return all;
}

// An argument for people: a pattern as the number it is.
std::string number(Lane type, std::uint64_t pattern) {
    char text[32];
    if (type == Lane::f32) std::snprintf(text, sizeof text, "%.9g", static_cast<double>(std::bit_cast<float>(static_cast<std::uint32_t>(pattern))));
    else if (type == Lane::f64) std::snprintf(text, sizeof text, "%.17g", std::bit_cast<double>(pattern));
    else std::snprintf(text, sizeof text, "%d", static_cast<std::int32_t>(pattern));
    return text;
}

std::string error_line(const Family& f) {
    if (f.full.ulp == 0) return f.allowed == 0 && f.formula.find("twice") == std::string::npos ? "Exact, or rounded once." : "";
    // Of all inputs one is the worst; of others, one is the worst that was found.
    const bool settled = f.measured.starts_with("all") || f.measured.starts_with("every");
    std::string text = (settled ? "Worst error " : "Largest error found ") + ulps(f.full.ulp) + " ulp";
    for (const auto& [width, own] : f.width_full) text += ", width " + std::to_string(width) + " " + ulps(own.ulp);
    if (f.allowed > 0) {
        text += " (OpenCL allows " + ulps(f.allowed);
        if (!f.exceeds_bound.empty()) text += ", exceeded " + widths_text(f.exceeds_bound);
        text += ')';
    }
    if (f.native_worst.ulp != 0) text += f.half_worst.ulp != 0 ? "; native " : f.has(Variant::half) ? "; native and half " : "; native ";
    if (f.native_worst.ulp != 0) text += ulps(f.native_worst.ulp);
    if (f.half_worst.ulp != 0) text += ", half " + ulps(f.half_worst.ulp);
    if (!f.measured.empty()) text += (settled ? "; measured over " : "; by ") + f.measured;
    return text + '.';
}

// Breaks a comment into lines of at most `limit` characters.
void comment(const std::string& text, std::size_t limit) {
    std::string line = "/*";
    std::size_t at = 0;
    while (at < text.size()) {
        std::size_t end = text.find(' ', at);
        if (end == std::string::npos) end = text.size();
        if (line.size() + 1 + (end - at) > limit) {
            std::puts(line.c_str());
            line = "  ";
        }
        line += ' ' + text.substr(at, end - at);
        at = end + 1;
    }
    std::puts((line + " */").c_str());
}

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

#include <stdint.h>

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
    std::puts("/* Sine and cosine together. */");
    for (const Lane t : {Lane::f32, Lane::f64})
        for (const int width : widths)
            std::printf("typedef struct tarn_sincos_%s%d { %s sine, cosine; } tarn_sincos_%s%d;\n", stem(t), width,
                        vector_type(t, width).c_str(), stem(t), width);

    std::string group;
    for (const Family& f : families()) {
        if (f.group != group) {
            group = f.group;
            std::string rule = "/* " + group + ' ';
            rule.resize(100, '-');
            std::printf("\n%s */\n", rule.c_str());
        }
        std::puts("");
        std::string text = f.base + ": " + f.formula + ".";
        if (!f.domain.empty()) text += " Domain: " + f.domain + ".";
        if (!f.special.empty()) text += " Special values: " + f.special;
        const std::string error = error_line(f);
        if (!error.empty()) text += ' ' + error;
        for (const auto& sentence : exceptions(f)) text += ' ' + sentence;
        comment(text, 108);
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

void names(const char* indent, const char* end) {
    for (const Family& f : families())
        for (const Variant v : all_variants)
            if (f.has(v))
                for (const int width : widths) std::printf("%s%s%s\n", indent, export_name(f.base, width, v).c_str(), end);
}

// f and d for floating point, i and l for integers: what a C program needs to know of a lane.
std::string lane_letters(const std::vector<Lane>& lanes) {
    std::string text;
    for (const Lane t : lanes) text += is_float(t) ? (bytes(t) == 8 ? 'd' : 'f') : (bytes(t) == 8 ? 'l' : 'i');
    return text;
}

// A signature and its calls for a C program, which defines SIGNATURE_<arguments>[_SECOND] and FUNCTION. The widths
// of a form follow one another, width 1 first.
std::string signature(const Shape& s, int width) {
    std::string text = std::string(stem(s.result)) + (s.pair ? "_pair" : "");
    for (const Lane a : s.args) text += '_' + std::string(stem(a));
    if (s.second != Lane::none && !s.pair) text += "_to_" + std::string(stem(s.second));
    return text + "_x" + std::to_string(width);
}

void calls() {
    std::set<std::string> seen;
    for (const Family& f : families()) {
        const Shape& s = f.shape;
        const bool pointer = s.second != Lane::none && !s.pair;
        for (const int width : widths) {
            const std::string id = signature(s, width);
            if (!seen.insert(id).second) continue;
            std::printf("SIGNATURE_%zu%s(%s, %d, %s", s.args.size(), pointer ? "_SECOND" : "", id.c_str(), width,
                        result_type(s, width).c_str());
            for (const Lane a : s.args) std::printf(", %s", vector_type(a, width).c_str());
            if (pointer) std::printf(", %s", c_type(s.second));
            std::printf(", \"%s\", \"%s\", \"%s\", %d)\n", lane_letters(s.args).c_str(), lane_letters({s.result}).c_str(),
                        lane_letters(s.second == Lane::none ? std::vector<Lane>{} : std::vector{s.second}).c_str(), s.pair);
        }
    }
    for (const Family& f : families())
        for (const Variant v : all_variants)
            if (f.has(v))
                for (const int width : widths) {
                    std::printf("FUNCTION(%s, %s", export_name(f.base, width, v).c_str(), signature(f.shape, width).c_str());
                    for (std::size_t a = 0; a < 3; a++) {
                        const Interval usual = a < f.usual.size() ? f.usual[a] : Interval{-10, 10};
                        std::printf(", %.17g, %.17g", usual.low, usual.high);
                    }
                    std::puts(")");
                }
}

std::string places(const Worst& worst, const Shape& shape) {
    std::string text;
    for (std::size_t a = 0; a < worst.at.size(); a++) {
        char pattern[32];
        std::snprintf(pattern, sizeof pattern, "%s0x%0*llx", a ? ", " : "", bytes(shape.args[a]) * 2,
                      static_cast<unsigned long long>(worst.at[a]));
        text += pattern;
    }
    return text;
}

void accuracy() {
    std::puts(R"(# Measured errors

The largest error found of every export that rounds, in units in the last place (ulp) of the exact result, and the
input patterns where it occurs. "All inputs" means all 2^32 of a single-precision argument, each result
compared with MPFR or with a double-precision value first and MPFR where that could decide: there it is the worst
error. A directed search (`tarn-ulp NAME --search SECONDS`) climbs from dense samples of every binade, table interval
and threshold; what it finds is no bound, and a longer one may find more. The tests hold every figure here as a limit.
Families that are not here give exact or correctly rounded results.

A bound in brackets is exceeded: those kernels keep their bits. `half` is `native` where it has no line of its own.
Written by `tarn-exports accuracy` from the table of families.
)");
    std::string group;
    for (const Family& f : families()) {
        if (f.full.ulp == 0) continue;
        if (f.group != group) {
            group = f.group;
            std::printf("\n## %s\n\n| function | form | OpenCL allows | largest found | at | measured over |\n|---|---|---|---|---|---|\n",
                        group.c_str());
        }
        const std::string allowed = f.allowed > 0 ? ulps(f.allowed) : f.allowed == 0 ? "0.5" : "open";
        const auto line = [&](const std::string& form, const std::string& bound, const Worst& worst) {
            if (worst.ulp != 0)
                std::printf("| `%s` | %s | %s | %s | `%s` | %s |\n", f.base.c_str(), form.c_str(), bound.c_str(),
                            ulps(worst.ulp).c_str(), places(worst, f.shape).c_str(), f.measured.c_str());
        };
        line("full", allowed, f.full);
        for (const auto& [width, worst] : f.width_full)
            line("full, width " + std::to_string(width), f.exceeds(width) ? '(' + allowed + ')' : allowed, worst);
        line("native", "open", f.native_worst);
        line("half", "8192", f.half_worst);
    }
}

// One table of every exception, in the place of what the page holds between its two marks.
constexpr const char* mark_begin = "<!-- generated: exceptions -->";
constexpr const char* mark_end = "<!-- end -->";

std::string exceptions_table() {
    std::string text = "\n| function | what differs |\n|---|---|\n";
    for (const Family& f : families()) {
        std::string cell;
        for (const auto& sentence : exceptions(f)) cell += (cell.empty() ? "" : " ") + sentence;
        for (std::size_t i = 0; (i = cell.find('|', i)) != std::string::npos; i += 2) cell.insert(i, 1, '\\');
        if (!cell.empty()) text += "| `" + f.base + "` | " + cell + " |\n";
    }
    text += "\nBeyond what OpenCL allows, on purpose, since their order of operations is part of their bits:";
    const char* separator = " ";
    for (const Family& f : families()) {
        if (f.exceeds_bound.empty()) continue;
        text += separator + ('`' + f.base + "` " + widths_text(f.exceeds_bound)) + " (" +
                ulps(f.worst(Variant::full, f.exceeds_bound[0]).ulp) + " ulp of " + ulps(f.allowed) + ")";
        separator = ", ";
    }
    text += ".\n\nThe largest error of a full form that 5000 arguments from its usual interval gave in each of the three\n"
            "other rounding modes, in ulp:\n\n| function | largest found |\n|---|---|\n";
    for (const Family& f : families())
        if (f.directed != 0) text += "| `" + f.base + "` | " + ulps(f.directed) + " |\n";
    return text + '\n';
}

std::string worst_in_words(const Family& f) {
    std::string text = ulps(f.full.ulp) + " ulp";
    if (!f.full.at.empty()) {
        std::string at;
        for (std::size_t a = 0; a < f.full.at.size(); a++) at += (a ? ", " : "") + number(f.shape.args[a], f.full.at[a]);
        text += " at " + (f.full.at.size() > 1 ? '(' + at + ')' : at);
    }
    for (const auto& [width, own] : f.width_full) text += ", width " + std::to_string(width) + ' ' + ulps(own.ulp);
    if (f.native_worst.ulp != 0) text += std::string("; native ") + (f.has(Variant::half) && f.half_worst.ulp == 0 ? "and half " : "") + ulps(f.native_worst.ulp);
    if (f.half_worst.ulp != 0) text += ", half " + ulps(f.half_worst.ulp);
    return text + '.';
}

// A line that begins "// Worst error of NAME: " says what the row of that family says.
int comments(const char* file) {
    std::ifstream in(file);
    if (!in) return std::fprintf(stderr, "tarn-exports: cannot read %s\n", file), 2;
    const std::string begin = "// Worst error of ";
    for (std::string line; std::getline(in, line);) {
        if (line.starts_with(begin)) {
            const std::string base = line.substr(begin.size(), line.find(':') - begin.size());
            const Family* f = find_family(base);
            if (!f || f->full.ulp == 0)
                return std::fprintf(stderr, "tarn-exports: %s: no family %s has a worst error\n", file, base.c_str()), 2;
            line = begin + base + ": " + worst_in_words(*f);
        }
        std::puts(line.c_str());
    }
    return 0;
}

int contract(const char* file) {
    std::ifstream in(file);
    if (!in) return std::fprintf(stderr, "tarn-exports: cannot read %s\n", file), 2;
    bool inside = false, seen = false;
    for (std::string line; std::getline(in, line);) {
        if (line == mark_end) inside = false;
        if (!inside) std::puts(line.c_str());
        if (line == mark_begin) {
            inside = seen = true;
            std::fputs(exceptions_table().c_str(), stdout);
        }
    }
    if (!seen || inside) return std::fprintf(stderr, "tarn-exports: %s lacks its marks\n", file), 2;
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc == 2 && !std::strcmp(argv[1], "header")) header();
    else if (argc == 2 && !std::strcmp(argv[1], "names")) names("", "");
    else if (argc == 2 && !std::strcmp(argv[1], "accuracy")) accuracy();
    else if (argc == 2 && !std::strcmp(argv[1], "calls")) calls();
    else if (argc == 3 && !std::strcmp(argv[1], "comments")) return comments(argv[2]);
    else if (argc == 3 && !std::strcmp(argv[1], "contract")) return contract(argv[2]);
    else if (argc == 2 && !std::strcmp(argv[1], "map")) {
        std::puts("/* Generated from the table of families by tarn-exports. */\n{\nglobal:");
        names("    ", ";");
        std::puts("local:\n    *;\n};");
    } else {
        std::fputs("usage: tarn-exports header|map|names|accuracy|calls, or comments|contract FILE\n", stderr);
        return 2;
    }
}
