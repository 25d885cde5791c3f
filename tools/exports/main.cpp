// Writes what follows from the table of families: headers, version scripts and their like on Windows, pages, the
// catalogue, what tests call; and pages and source files with what is generated in them renewed.
//   tarn-exports OUTPUT > FILE
//   tarn-exports OUTPUT PAGE > FILE
#include <cstdio>
#include <string>

#include "exports/outputs.hpp"
#include "families/families.hpp"

using namespace tarn;

namespace {

void names(const char* indent, const char* end) {
    for (const Family& f : families())
        for (const Variant v : all_variants)
            if (f.has(v))
                for (const int width : widths) std::printf("%s%s%s\n", indent, export_name(f.base, width, v).c_str(), end);
}

void map() {
    std::puts("/* Generated from the table of families by tarn-exports. */\n{\nglobal:");
    names("    ", ";");
    std::puts("local:\n    *;\n};");
}

void windows_exports() {
    std::puts("; Generated from the table of families by tarn-exports.\nLIBRARY __ocl_tarn_k1.dll\nEXPORTS");
    names("    ", "");
}

struct Output {
    const char* name;
    void (*write)();
};
constexpr Output outputs[] = {
    {"header", header}, {"opencl", opencl_header}, {"windows-header", windows_header}, {"arrays", arrays},
    {"simd-header", simd_header}, {"loops", loops}, {"map", map}, {"tarn-map", tarn_map},
    {"windows-exports", windows_exports}, {"windows-imports", windows_imports}, {"accuracy", accuracy},
    {"json", catalogue}, {"calls", calls}, {"names", [] { names("", ""); }},
};

struct Renewal {
    const char* name;
    int (*renew)(const char* file);
};
constexpr Renewal renewals[] = {
    {"comments", comments}, {"contract", contract}, {"abi", conventions}, {"mapping", mapping},
    {"speed", speed}, {"pages", pages},
};

}  // namespace

int main(int argc, char** argv) {
    const std::string what = argc > 1 ? argv[1] : "";
    for (const Output& output : outputs)
        if (argc == 2 && what == output.name) return output.write(), 0;
    for (const Renewal& renewal : renewals)
        if (argc == 3 && what == renewal.name) return renewal.renew(argv[2]);
    std::string usage = "usage: tarn-exports ";
    for (const Output& output : outputs) usage += std::string(&output == outputs ? "" : "|") + output.name;
    usage += ", or ";
    for (const Renewal& renewal : renewals) usage += std::string(&renewal == renewals ? "" : "|") + renewal.name;
    std::fprintf(stderr, "%s FILE\n", usage.c_str());
    return 2;
}
