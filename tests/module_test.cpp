// The module as a file: its names, what it asks of its surroundings, its instructions.
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>

#include "commands.hpp"
#include "samples.hpp"

namespace tarn::test {
namespace {

const std::string path = '"' + Module::built_path() + '"';

// Whether the module is the one for x86-64-v3, as its note tells loaders.
bool of_v3() {
    for (const auto& line : output("readelf -nW " + path))
        if (line.find("x86-64-v3") != std::string::npos) return true;
    return false;
}

TEST(ModuleFile, ExportsExactlyTheTable) {
    std::set<std::string> stated;
    for (const Family& f : families())
        for (const Variant v : all_variants)
            if (f.has(v))
                for (const int width : widths) stated.insert(export_name(f.base, width, v));
    EXPECT_EQ(stated.size(), 2064u);

    std::set<std::string> present;
    for (const auto& line : output("nm -D --defined-only " + path)) present.insert(line.substr(line.rfind(' ') + 1));
    for (const auto& name : present) EXPECT_TRUE(stated.count(name)) << name << " is exported and in no row";
    for (const auto& name : stated) EXPECT_TRUE(present.count(name)) << name << " is in the table and not exported";
}

TEST(ModuleFile, NeedsNothing) {
    EXPECT_TRUE(output("nm -D --undefined-only " + path).empty());
    for (const auto& line : output("readelf -d " + path)) {
        for (const char* tag : {"(NEEDED)", "(INIT)", "(INIT_ARRAY)", "(FINI)", "(FINI_ARRAY)", "(REL", "(JMPREL)", "(TEXTREL)"})
            EXPECT_EQ(line.find(tag), std::string::npos) << line;
    }
    for (const auto& line : output("readelf -SW " + path))
        for (const char* section : {" .data", " .bss", " .tdata", " .tbss", " .init", " .ctors", " .got"})
            EXPECT_EQ(line.find(section), std::string::npos) << line;
}

TEST(ModuleFile, HoldsNothingBeyondItsLevel) {
    // SSE4.1: tzcnt is allowed, older processors run it as bsf, and gcc writes it where the two agree. VEX and EVEX
    // instructions begin with v; crc32 and pcmp?str? are SSE4.2.
    // x86-64-v3: what only EVEX encodes, and what came later in VEX.
    // The control register of the vector unit is not touched in either.
    const std::regex beyond(
        of_v3() ? R"(%zmm|%[xy]mm(1[6-9]|2\d|3[01])\b|%k[0-7]|\s(vpdp|vpmadd52|vaes|vpclmul|vgf2p8|vsha|vsm[34]|ad[co]x|v?ldmxcsr|v?stmxcsr))"
                : R"(^\s+[0-9a-f]+:\s+(v[a-z]|crc32|pcmp[ei]str|popcnt|lzcnt|andn |ldmxcsr|stmxcsr))");
    int instructions = 0;
    for (const auto& line : output("objdump -d --no-show-raw-insn " + path)) {
        instructions++;
        EXPECT_FALSE(std::regex_search(line, beyond)) << line;
    }
    EXPECT_GT(instructions, 1000);
}

// The instructions of each export up to its first return.
const std::map<std::string, std::vector<std::string>>& hot_paths() {
    static const auto all = [] {
        std::map<std::string, std::vector<std::string>> paths;
        std::vector<std::string>* inside = nullptr;
        for (const auto& line : output("objdump -d --no-show-raw-insn " + path)) {
            if (line.ends_with(">:")) {
                const std::string name = line.substr(line.find('<') + 1, line.size() - line.find('<') - 3);
                inside = name.starts_with("__ocl_tarn_k1_") ? &paths[name] : nullptr;
            } else if (inside) {
                const auto tab = line.rfind('\t');
                inside->push_back(tab == std::string::npos ? line : line.substr(tab + 1));
                if (inside->back().starts_with("ret")) inside = nullptr;
            }
        }
        return paths;
    }();
    return all;
}

TEST(HotPath, OfExpIsStraightLineCode) {
#ifndef __clang__
    GTEST_SKIP() << "a property of the reference compiler's code";
#endif
    int jumps = 0, constants = 0;
    for (const auto& line : hot_paths().at("__ocl_tarn_k1_expf4")) {
        jumps += line.starts_with('j');
        constants += line.find("(%rip)") != std::string::npos;
        EXPECT_FALSE(line.starts_with("call")) << line;
        EXPECT_EQ(line.find("%rsp"), std::string::npos) << line;
        const std::string operation = line.substr(line.starts_with('v'));
        EXPECT_FALSE(operation.starts_with("movss") || operation.starts_with("shufps") || operation.starts_with("push")) << line;
    }
    EXPECT_EQ(jumps, 1);
    EXPECT_GE(constants, 12);
}

// Wide calls compute all their blocks before the one test of the mask, so that the blocks overlap.
TEST(HotPath, OfWideExpTestsOnce) {
    const int lanes = of_v3() ? 8 : 4;
    for (const int width : {8, 16}) {
        const std::string name = export_name("expf", width, Variant::full);
        int jumps = 0, products = 0;
        for (const auto& line : hot_paths().at(name)) {
            jumps += line.starts_with('j');
            products += line.starts_with(lanes == 8 ? "vmulps" : "mulps");
            EXPECT_FALSE(line.starts_with("call")) << line;
        }
        EXPECT_EQ(jumps, 1) << name;
        EXPECT_EQ(products, 8 * width / lanes) << name;
    }
}

// Callers write the vectors of wide calls in pieces of 16 bytes, and a longer load waits for the last of them.
TEST(HotPath, LoadsArgumentsInHalves) {
    if (!of_v3()) GTEST_SKIP() << "has no longer vectors";
    // Conversions, broadcasts and insertions read 16 bytes or fewer.
    const std::regex longer(R"(^v(?!cvt|pmov[sz]x|broadcast|pbroadcast|insert)\S+\s+(?:\$\w+,)?(?:0x([0-9a-f]+))?\(%rsp\),%ymm.*)"), frame(R"(^sub\s+\$0x([0-9a-f]+),%rsp)");
    std::size_t halves = 0;
    for (const auto& [name, lines] : hot_paths()) {
        unsigned long own = 8;  // the return address
        for (const auto& line : lines) {
            std::smatch found;
            if (line.starts_with("push")) {
                own += 8;
            } else if (std::regex_search(line, found, frame)) {
                own += std::stoul(found[1], nullptr, 16);
            } else if (line.starts_with("vinsertf128") || line.starts_with("vinserti128")) {
                halves++;
            } else if (std::regex_match(line, found, longer)) {
                EXPECT_LT(found[1].length() ? std::stoul(found[1], nullptr, 16) : 0, own) << name << ": " << line;
            }
        }
    }
    EXPECT_GT(halves, 500u);
}

TEST(Names, AreTakenApartByTheTable) {
    Export e;
    ASSERT_TRUE(parse_export("exp22", e));
    EXPECT_EQ(e.family->base + ' ' + std::to_string(e.width), "exp2 2");
    ASSERT_TRUE(parse_export("exp2", e));
    EXPECT_EQ(e.family->base + ' ' + std::to_string(e.width), "exp 2");
    ASSERT_TRUE(parse_export("__ocl_tarn_k1_erf16_native", e));
    EXPECT_EQ(e.family->base, "erf");
    ASSERT_TRUE(parse_export("log1p1", e));
    EXPECT_EQ(e.family->base, "log1p");
    for (const char* wrong : {"expf", "expf5", "exp4_half", "fmaf4_native", "", "__ocl_tarn_k1_"}) EXPECT_FALSE(parse_export(wrong, e)) << wrong;
    for (const Family& f : families())
        for (const Variant v : all_variants)
            if (f.has(v))
                for (const int width : widths) {
                    ASSERT_TRUE(parse_export(export_name(f.base, width, v), e));
                    ASSERT_TRUE(e.family == &f && e.width == width && e.variant == v) << export_name(f.base, width, v);
                }
}

TEST(ProvedBounds, AreNotBelowTheLargestErrorFound) {
    int proved = 0;
    for (const Family& f : families())
        for (const int width : widths) {
            const double bound = f.proved_at(width);
            if (bound == 0) continue;
            proved++;
            EXPECT_GE(bound, f.worst(Variant::full, width).ulp) << f.base << " at width " << width;
        }
    EXPECT_GT(proved, 0);
}

// What is generated from the table and committed is what the table says.
TEST(Generated, FilesFollowTheTable) {
    const auto text = [](const std::vector<std::string>& lines) {
        std::string all;
        for (const auto& line : lines) all += line + '\n';
        return all;
    };
    const std::map<std::string, std::string> files = {
        {"header", "include/ocl_tarn_k1.h"}, {"map", "src/families/exports.map"}, {"accuracy", "docs/accuracy.md"},
        {"windows-header", "include/ocl_tarn_k1_windows.h"}, {"windows-exports", "src/families/exports.def"},
        {"windows-imports", "src/families/imports.def"}, {"abi", "docs/abi.md"}, {"contract", "docs/contract.md"}, {"speed", "docs/speed.md"},
        {"opencl", "include/ocl_tarn_k1.cl.h"}, {"mapping", "docs/opencl.md"}, {"arrays", "include/tarn.h"},
        {"simd-header", "include/tarn_simd.h"}, {"loops", "src/arrays/loops.inc"}, {"tarn-map", "src/families/tarn.map"}};
    for (const auto& [what, file] : files) {
        const std::string path = std::string(TARN_SOURCE_DIR) + '/' + file;
        std::ifstream in(path);
        const std::string present{std::istreambuf_iterator<char>(in), {}};
        // Those that keep what is not generated in them read themselves.
        const std::string of = what == "abi" || what == "contract" || what == "mapping" || what == "speed" ? " \"" + path + '"' : "";
        EXPECT_EQ(present == text(output('"' + std::string(TARN_EXPORTS) + "\" " + what + of)), true) << file << ": run scripts/generate";
    }
}

// So are the pages of the functions, which show what docs/data holds too; no other page lies there.
TEST(Generated, PagesFollowTheTableAndTheData) {
    namespace fs = std::filesystem;
    const fs::path docs = TARN_SOURCE_DIR "/docs", work = fs::temp_directory_path() / ("pages-" + std::to_string(getpid()));
    fs::create_directories(work / "functions");
    fs::create_directory_symlink(docs / "data", work / "data");
    output('"' + std::string(TARN_EXPORTS) + "\" pages " + (work / "functions").string());
    const auto texts = [](const fs::path& directory) {
        std::map<std::string, std::string> all;
        for (const auto& file : fs::directory_iterator(directory)) {
            if (file.path().extension() != ".md") continue;
            std::ifstream in(file.path());
            all[file.path().filename()] = {std::istreambuf_iterator<char>(in), {}};
        }
        return all;
    };
    const auto made = texts(work / "functions"), present = texts(docs / "functions");
    fs::remove_all(work);
    std::set<std::string> groups;
    for (const Family& f : families()) groups.insert(f.group);
    EXPECT_EQ(made.size(), groups.size() + 1) << "a page a group, and their list";
    for (const auto& [name, text] : made) {
        ASSERT_TRUE(present.count(name)) << name << ": run scripts/generate";
        EXPECT_TRUE(present.at(name) == text) << name << ": run scripts/generate";
    }
    EXPECT_EQ(present.size(), made.size());
    for (const Family& f : families()) {
        const auto page = std::find_if(made.begin(), made.end(), [&](const auto& p) { return p.first != "index.md" && p.second.find('`' + f.base + '`') != std::string::npos; });
        EXPECT_TRUE(page != made.end()) << f.base;
    }
}

}  // namespace
}  // namespace tarn::test
