// Measured times: the file in the tree, what tables make of times, and how two files are compared.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>

#include "figures/differences.hpp"
#include "figures/times.hpp"

namespace tarn::test {
namespace {

const std::string header = "kind\trow\tbuild\twhat\tns\n";

Times read(const std::string& lines, const std::string& first = header) {
    const std::string file = testing::TempDir() + "times.tsv";
    std::ofstream(file) << first << lines;
    return Times::read(file);
}

bool has(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

// Of every family all that the tables and plots show.
TEST(TimesInTheTree, AreComplete) {
    const Times times = Times::read(TARN_SOURCE_DIR "/docs/data/speed.tsv");
    for (const Family& f : families())
        for (const std::string& row : {f.base, f.base + ", large x"}) {
            if (row != f.base && f.switches_above == 0) continue;
            for (const char* build : builds) {
                const TimedRow *call = times.find("call", row, build), *array = times.find("array", row, build);
                ASSERT_TRUE(call && array) << row << ' ' << build;
                for (const int width : widths)
                    EXPECT_TRUE(std::isfinite(call->at(timed(width)))) << row << ' ' << build << ' ' << width;
                for (const char* what : {"w16", "array", "copy", "few/call"})
                    EXPECT_TRUE(std::isfinite(array->at(what))) << row << ' ' << build << ' ' << what;
            }
        }
    // A peer's function that is not found would be missing from all rows without a sound.
    for (const char* build : builds)
        for (const char* peer : {"SLEEF u10", "libmvec"}) {
            int count = 0;
            for (const TimedRow& row : times.rows("call", build)) count += row.times.contains(peer);
            EXPECT_GT(count, 40) << peer << ' ' << build;
        }
}

TEST(TimesFile, ThatIsWrongIsRefusedByItsLine) {
    const std::string good = "call\texpf\tplain\tw4\t1.5\n";
    EXPECT_EQ(read(good).find("call", "expf", "plain")->at("w4"), 1.5);
    for (const std::string bad :
         {"call\texpf\tplain\tw4\n", "call\texpf\tplain\tw4\t1\t2\n", "cal\texpf\tplain\tw4\t1\n",
          "call\texpg\tplain\tw4\t1\n", "call\texpf\tv4\tw4\t1\n", "call\texpf\tplain\tw5\t1\n",
          "call\texpf\tplain\tarray\t1\n", "array\texpf\tplain\tw4\t1\n", "call\texpf\tplain\tw8\t-1\n",
          "call\texpf\tplain\tw8\tnan\n", "call\texpf\tplain\tw8\t1x\n", "call\texpf\tplain\tw8\t\n",
          "call\texpf\tplain\tw4\t2\n"}) {
        try {
            read(good + bad);
            ADD_FAILURE() << "taken: " << bad;
        } catch (const std::runtime_error& error) {
            EXPECT_TRUE(has(error.what(), "line 3 ")) << bad << error.what();
        }
    }
    EXPECT_THROW(read(good, "kind\trow\n"), std::runtime_error);
    EXPECT_THROW(Times::read("/nowhere"), std::runtime_error);
}

TEST(Times, AreWrittenAsTheyAreRead) {
    const Times times = Times::read(TARN_SOURCE_DIR "/docs/data/speed.tsv");
    const std::string text = times.text();
    EXPECT_EQ(read(text.substr(header.size())).text(), text);
    EXPECT_EQ(times.rows("call").size(), read(text.substr(header.size())).rows("call").size());
}

std::string row(const std::string& kind, const std::string& name, const std::string& build,
                const std::vector<std::pair<std::string, double>>& times) {
    std::ostringstream lines;
    for (const auto& [what, ns] : times)
        lines << kind << '\t' << name << '\t' << build << '\t' << what << '\t' << ns << '\n';
    return lines.str();
}

const std::string rows =
    row("call", "expf", "plain", {{"w1", 4}, {"w4", 1}, {"w16", 2}, {"SLEEF u10", 3}, {"libmvec", 0.8}}) +
    row("call", "expf", "v3", {{"w16", 0.5}, {"libmvec", 0.75}}) +
    row("call", "fabsf", "plain", {{"w16", 0.2}}) + row("call", "fabsf", "v3", {{"w16", 0.2}}) +
    row("call", "sinf, large x", "plain", {{"w16", 1}, {"libm", 0.1}}) +
    row("call", "sinf, large x", "v3", {{"w16", 0.01}}) +
    row("array", "expf", "plain", {{"w16", 2}, {"array", 1}, {"SLEEF", 4}, {"few/call", 1.5}}) +
    row("array", "fabsf", "plain", {{"w16", 2}, {"array", 4}});

TEST(Tables, SayWhoIsAheadByHowMuch) {
    const std::string page = speed_page(read(rows), "Conditions.");
    const std::string unbroken = std::regex_replace(page, std::regex("\n  "), " ");
    for (const char* part : {
             // Best width, best peer with its name, their ratios, the gain at width 16.
             "| `expf` | 1.000 | 0.500 | 0.800 libmvec | 0.750 libmvec | 0.80 | 1.50 | 4.00 |\n",
             "| `fabsf` | 0.200 | 0.200 | - | - | - | - | 1.00 |\n",
             // Arrays: to width 16, SLEEF and libmvec.
             "| `expf` | 2.000 | 1.000 | - | 4.000 | - | 2.00 | 4.00 | - | 1.50 |\n",
             // Large arguments are in no list and in no mean: sqrt(4 * 1) is that of gains, sqrt(2 * 0.5) of arrays.
             "Behind the best of them: `expf` 0.80.\n", "Behind the best of them: none.\n",
             "4.00, the geometric mean over the 1 families", "2.00 over all 2.\n",
             "plain: 1.00 times as fast as calls of width 16, 4.00 as SLEEF (1 functions), - as libmvec (0)"})
        EXPECT_TRUE(has(unbroken, part)) << part << " in\n" << page;
    // Rows stand in their groups.
    EXPECT_LT(page.find("### Exponentials"), page.find("`expf` | 1.000"));
    EXPECT_LT(page.find("`expf` | 1.000"), page.find("### Rounding"));
    EXPECT_LT(page.find("### Rounding"), page.find("`fabsf` | 0.200"));
}

TEST(Differences, AreThoseBeyondAFifthTheWorstFirst) {
    const Times published = read(rows);
    const std::string same = differences(published, published);
    EXPECT_TRUE(has(same, "best peer's time over ours: none of 4 differ")) << same;
    EXPECT_TRUE(has(same, "time, ns an element: none of 8 differ")) << same;

    // The peer slower by half; expf twice as fast on arrays, 1.19 times as slow in v3; fabsf missing, atanf new.
    const Times here = read(row("call", "expf", "plain", {{"w4", 1}, {"libmvec", 1.2}}) +
                            row("call", "expf", "v3", {{"w16", 0.595}, {"libmvec", 0.75}}) +
                            row("array", "expf", "plain", {{"array", 0.5}, {"SLEEF", 4}}) +
                            row("call", "atanf", "plain", {{"w4", 1}}));
    const std::string text = differences(here, published);
    std::size_t last = 0;
    for (const char* part : {"best peer's time over ours: 2 of 3 differ by more than 20 %",
                             "  expf                    plain   array        8.000      4.000            2.00\n",
                             "  expf                    plain   call         1.200      0.800            1.50\n",
                             "time, ns an element: 1 of 3 differ by more than 20 %",
                             "  expf                    plain   array        0.500      1.000            0.50\n",
                             "only here: 1 rows\n", "not timed here: 5 rows\n"}) {
        const std::size_t at = text.find(part, last);
        ASSERT_NE(at, std::string::npos) << part << " in\n" << text;
        last = at;
    }
    EXPECT_FALSE(has(text, "0.595"));
    EXPECT_TRUE(has(differences(here, published, 0.15), "0.595"));
    const std::string worst = differences(here, published, 0.2, 1);
    EXPECT_TRUE(has(worst, "8.000") && has(worst, "  and 1 more\n") && !has(worst, "1.200")) << worst;
}

}  // namespace
}  // namespace tarn::test
