// Writes what follows from the table of families: the public headers, the version script and its like on Windows, the
// pages of measured errors, of exceptions, of the calling conventions and of OpenCL's built-ins, the catalogue, the
// calls of the C callers' test; and a source file with its worst errors renewed.
//   tarn-exports header|opencl|windows-header|windows-exports|windows-imports|map|names|accuracy|calls|json > FILE
//   tarn-exports contract docs/contract.md > FILE, and so for abi and mapping
#include <cstdio>
#include <cstring>

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

}  // namespace

int main(int argc, char** argv) {
    if (argc == 2 && !std::strcmp(argv[1], "header")) header();
    else if (argc == 2 && !std::strcmp(argv[1], "windows-header")) windows_header();
    else if (argc == 2 && !std::strcmp(argv[1], "windows-imports")) windows_imports();
    else if (argc == 2 && !std::strcmp(argv[1], "names")) names("", "");
    else if (argc == 2 && !std::strcmp(argv[1], "accuracy")) accuracy();
    else if (argc == 2 && !std::strcmp(argv[1], "calls")) calls();
    else if (argc == 2 && !std::strcmp(argv[1], "opencl")) opencl_header();
    else if (argc == 2 && !std::strcmp(argv[1], "json")) catalogue();
    else if (argc == 3 && !std::strcmp(argv[1], "comments")) return comments(argv[2]);
    else if (argc == 3 && !std::strcmp(argv[1], "contract")) return contract(argv[2]);
    else if (argc == 3 && !std::strcmp(argv[1], "mapping")) return mapping(argv[2]);
    else if (argc == 3 && !std::strcmp(argv[1], "abi")) return conventions(argv[2]);
    else if (argc == 2 && !std::strcmp(argv[1], "map")) {
        std::puts("/* Generated from the table of families by tarn-exports. */\n{\nglobal:");
        names("    ", ";");
        std::puts("local:\n    *;\n};");
    } else if (argc == 2 && !std::strcmp(argv[1], "windows-exports")) {
        std::puts("; Generated from the table of families by tarn-exports.\nLIBRARY __ocl_tarn_k1.dll\nEXPORTS");
        names("    ", "");
    } else {
        std::fputs("usage: tarn-exports header|opencl|windows-header|windows-exports|windows-imports|map|names|accuracy|calls|json,\n"
                   "       or comments|contract|abi|mapping FILE\n", stderr);
        return 2;
    }
}
