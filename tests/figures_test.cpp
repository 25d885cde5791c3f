// Measured times: the file in the tree, what tables make of times, and how two files are compared.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>

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
                for (const int width : widths) EXPECT_TRUE(std::isfinite(call->at(timed(width)))) << row << ' ' << build << ' ' << width;
                for (const char* what : {"w16", "array", "copy", "few/call"}) EXPECT_TRUE(std::isfinite(array->at(what))) << row << ' ' << build << ' ' << what;
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
    for (const std::string bad : {"call\texpf\tplain\tw4\n", "call\texpf\tplain\tw4\t1\t2\n", "cal\texpf\tplain\tw4\t1\n", "call\texpg\tplain\tw4\t1\n",
                                  "call\texpf\tv4\tw4\t1\n", "call\texpf\tplain\tw5\t1\n", "call\texpf\tplain\tarray\t1\n", "array\texpf\tplain\tw4\t1\n",
                                  "call\texpf\tplain\tw8\t-1\n", "call\texpf\tplain\tw8\tnan\n", "call\texpf\tplain\tw8\t1x\n", "call\texpf\tplain\tw8\t\n", "call\texpf\tplain\tw4\t2\n"}) {
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

const std::string two_rows =
    "call\texpf\tplain\tw1\t4\ncall\texpf\tplain\tw4\t1\ncall\texpf\tplain\tw16\t2\ncall\texpf\tplain\tSLEEF u10\t3\ncall\texpf\tplain\tlibmvec\t0.8\n"
    "call\texpf\tv3\tw16\t0.5\ncall\texpf\tv3\tlibmvec\t0.75\n"
    "call\tfabsf\tplain\tw16\t0.2\ncall\tfabsf\tv3\tw16\t0.2\n"
    "call\tsinf, large x\tplain\tw16\t1\ncall\tsinf, large x\tplain\tlibm\t0.1\ncall\tsinf, large x\tv3\tw16\t0.01\n"
    "array\texpf\tplain\tw16\t2\narray\texpf\tplain\tarray\t1\narray\texpf\tplain\tSLEEF\t4\narray\texpf\tplain\tfew/call\t1.5\n"
    "array\tfabsf\tplain\tw16\t2\narray\tfabsf\tplain\tarray\t4\n";

TEST(Tables, SayWhoIsAheadByHowMuch) {
    const Times times = read(two_rows);
    const std::string page = speed_page(times, "Conditions.");
    // Best width, best peer with its name, their ratios, the gain at width 16.
    EXPECT_TRUE(has(page, "| `expf` | 1.000 | 0.500 | 0.800 libmvec | 0.750 libmvec | 0.80 | 1.50 | 4.00 |\n")) << page;
    EXPECT_TRUE(has(page, "| `fabsf` | 0.200 | 0.200 | - | - | - | - | 1.00 |\n")) << page;
    // Arrays: to width 16, SLEEF and libmvec.
    EXPECT_TRUE(has(page, "| `expf` | 2.000 | 1.000 | - | 4.000 | - | 2.00 | 4.00 | - | 1.50 |\n")) << page;
    // Large arguments are in no mean and no list: sqrt(4 * 1), sqrt(2 * 0.5).
    EXPECT_TRUE(has(page, "Behind the best of them: `expf` 0.80.\n")) << page;
    EXPECT_TRUE(has(page, "Behind the best of them: none.\n")) << page;
    EXPECT_TRUE(has(page, "4.00, the geometric mean over the 1 families")) << page;
    EXPECT_TRUE(has(page, "2.00\n  over all 2.") || has(page, "2.00 over\n  all 2.") || has(page, "2.00 over all\n  2.") || has(page, "2.00 over all 2.")) << page;
    EXPECT_TRUE(has(page, "plain: 1.00 times as fast as calls of width 16, 4.00 as SLEEF (1 functions), - as libmvec (0)")) << page;
    // Rows stand in their groups.
    EXPECT_LT(page.find("### Exponentials"), page.find("`expf` | 1.000"));
    EXPECT_LT(page.find("`expf` | 1.000"), page.find("### Rounding"));
    EXPECT_LT(page.find("### Rounding"), page.find("`fabsf` | 0.200"));
}

TEST(Differences, AreThoseBeyondAFifthTheWorstFirst) {
    const Times published = read(two_rows);
    EXPECT_TRUE(has(differences(published, published), "best peer's time over ours: none of 4 differ")) << differences(published, published);
    EXPECT_TRUE(has(differences(published, published), "time, ns an element: none of 8 differ")) << differences(published, published);

    // The peer a third slower; expf twice as fast on arrays, 1.19 times as slow in v3's calls; fabsf missing, atanf new.
    const Times here = read(
        "call\texpf\tplain\tw4\t1\ncall\texpf\tplain\tlibmvec\t1.2\ncall\texpf\tv3\tw16\t0.595\ncall\texpf\tv3\tlibmvec\t0.75\n"
        "array\texpf\tplain\tarray\t0.5\narray\texpf\tplain\tSLEEF\t4\ncall\tatanf\tplain\tw4\t1\n");
    const std::string text = differences(here, published);
    const auto at = [&](const std::string& part) {
        EXPECT_TRUE(has(text, part)) << part << " in\n" << text;
        return text.find(part);
    };
    const auto ratios = at("best peer's time over ours: 2 of 3 differ by more than 20 %");
    const auto array = at("  expf                    plain   array        8.000      4.000            2.00\n");
    const auto call = at("  expf                    plain   call         1.200      0.800            1.50\n");
    const auto times = at("time, ns an element: 1 of 3 differ by more than 20 %");
    at("  expf                    plain   array        0.500      1.000            0.50\n");
    at("only here: 1 rows\n");
    at("not timed here: 5 rows\n");
    EXPECT_LT(ratios, array);
    EXPECT_LT(array, call);
    EXPECT_LT(call, times);
    EXPECT_FALSE(has(text, "0.595"));
    EXPECT_TRUE(has(differences(here, published, 0.15), "0.595"));
}

}  // namespace
}  // namespace tarn::test
