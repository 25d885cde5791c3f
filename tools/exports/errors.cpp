// Errors and exceptions, in pages and in the kernels' comments.
#include <cstdio>
#include <fstream>
#include <string>

#include "exports/outputs.hpp"
#include "exports/text.hpp"

namespace tarn {
namespace {

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

// One table of every exception.
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

}  // namespace

void accuracy() {
    std::puts(R"(# Measured errors

The largest error found of every export that rounds, in units in the last place (ulp) of the exact result, and the
input patterns where it occurs. "All inputs" means all 2^32 of a single-precision argument, each result
compared with MPFR or with a double-precision value first and MPFR where that could decide: there it is the worst
error. A directed search (`tarn-ulp NAME --search SECONDS`) climbs from dense samples of every binade, table interval
and threshold; what it finds is no bound, and a longer one may find more. The tests hold every figure here as a limit.
Families that are not here give exact or correctly rounded results. [The functions' pages](functions/index.md) show the
largest error in bins of the argument.

"Proved at most" is a bound of the fast path, for all its arguments ([proofs](proofs.md)); where a form starts from the
processor's estimate of a reciprocal it holds for every estimate within the instruction's promise, which is wider than
what processors give. What is not on the fast path is not proved.

A bound in brackets is exceeded: those kernels keep their bits.
Written by `tarn-exports accuracy` from the table of families.
)");
    std::string group;
    for (const Family& f : families()) {
        if (f.full.ulp == 0) continue;
        if (f.group != group) {
            group = f.group;
            std::printf("\n## %s\n\n| function | form | OpenCL allows | largest found | proved at most | at | measured over |\n|---|---|---|---|---|---|---|\n",
                        group.c_str());
        }
        for (const auto& [form, allowed, worst, proved] : errors_of_forms(f))
            std::printf("| `%s` | %s | %s | %s | %s | `%s` | %s |\n", f.base.c_str(), form.c_str(), allowed.c_str(),
                        ulps(worst->ulp).c_str(), proved != 0 ? proved_text(proved).c_str() : "",
                        places(*worst, f.shape).c_str(), f.measured.c_str());
    }
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

int contract(const char* file) { return renewed(file, "exceptions", exceptions_table()); }

}  // namespace tarn
