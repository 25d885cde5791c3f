// The module as a file: its names, what it asks of its surroundings, its instructions.
#include <gtest/gtest.h>

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

TEST(ModuleFile, HoldsNothingBeyondSSE41) {
    // tzcnt is allowed: older processors run it as bsf, and gcc writes it where the two agree.
    // VEX and EVEX instructions begin with v; crc32 and pcmp?str? are SSE4.2. The control register of the
    // vector unit is not touched.
    const std::regex beyond(R"(^\s+[0-9a-f]+:\s+(v[a-z]|crc32|pcmp[ei]str|popcnt|lzcnt|andn |ldmxcsr|stmxcsr))");
    int instructions = 0;
    for (const auto& line : output("objdump -d --no-show-raw-insn " + path)) {
        instructions++;
        EXPECT_FALSE(std::regex_search(line, beyond)) << line;
    }
    EXPECT_GT(instructions, 1000);
}

// The instructions of a function up to its first return.
std::vector<std::string> hot_path(const std::string& name) {
    std::vector<std::string> lines;
    bool inside = false;
    for (const auto& line : output("objdump -d --no-show-raw-insn " + path)) {
        if (line.ends_with("<" + name + ">:")) inside = true;
        else if (inside) {
            const auto tab = line.rfind('\t');
            lines.push_back(tab == std::string::npos ? line : line.substr(tab + 1));
            if (lines.back().starts_with("ret")) break;
        }
    }
    return lines;
}

TEST(HotPath, OfExpIsStraightLineCode) {
#ifndef __clang__
    GTEST_SKIP() << "a property of the reference compiler's code";
#endif
    int jumps = 0, constants = 0;
    for (const auto& line : hot_path("__ocl_tarn_k1_expf4")) {
        jumps += line.starts_with('j');
        constants += line.find("(%rip)") != std::string::npos;
        EXPECT_FALSE(line.starts_with("call")) << line;
        EXPECT_EQ(line.find("%rsp"), std::string::npos) << line;
        EXPECT_FALSE(line.starts_with("movss") || line.starts_with("shufps") || line.starts_with("push")) << line;
    }
    EXPECT_EQ(jumps, 1);
    EXPECT_GE(constants, 12);
}

// Wide calls compute all their blocks before the one test of the mask, so that the blocks overlap.
TEST(HotPath, OfWideExpTestsOnce) {
    for (const char* name : {"__ocl_tarn_k1_expf8", "__ocl_tarn_k1_expf16"}) {
        int jumps = 0, products = 0;
        for (const auto& line : hot_path(name)) {
            jumps += line.starts_with('j');
            products += line.starts_with("mulps");
            EXPECT_FALSE(line.starts_with("call")) << line;
        }
        EXPECT_EQ(jumps, 1) << name;
        EXPECT_EQ(products, 8 * (std::string(name).ends_with("16") ? 4 : 2)) << name;
    }
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

// What is generated from the table and committed is what the table says.
TEST(Generated, FilesFollowTheTable) {
    const auto text = [](const std::vector<std::string>& lines) {
        std::string all;
        for (const auto& line : lines) all += line + '\n';
        return all;
    };
    const std::map<std::string, std::string> files = {{"header", "include/ocl_tarn_k1.h"}, {"map", "src/families/exports.map"}, {"accuracy", "docs/accuracy.md"}};
    for (const auto& [what, file] : files) {
        std::ifstream in(std::string(TARN_SOURCE_DIR) + '/' + file);
        const std::string present{std::istreambuf_iterator<char>(in), {}};
        EXPECT_EQ(present == text(output('"' + std::string(TARN_EXPORTS) + "\" " + what)), true) << file << ": run scripts/generate";
    }
}

}  // namespace
}  // namespace tarn::test
