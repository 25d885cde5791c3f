// Profiles of errors: what tarn-ulp measures against every input of a slice, and what docs/data holds against the rows.
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <map>

#include "commands.hpp"
#include "figures/profiles.hpp"
#include "samples.hpp"
#include "ulp/target.hpp"

namespace tarn::test {
namespace {

// The error of one point, alone in its call.
double error_at(const Module& module, const BinError& bin, const std::vector<std::uint64_t>& at) {
    return ulp::Target{module.find(bin.kernel).value(), bin.result == 2, {}}.error(at);
}

// Figures have four digits after the point, or six in all.
double digits(double ulp) { return std::max(6e-5, 6e-6 * ulp); }

// Slices with an edge between two bins, powers of two among the exact values, an overflow, an underflow, a threshold at
// which calls change their way, the end of a domain: every input of them by MPFR.
TEST(Profile, HasTheLargestErrorOfEveryBin) {
    const Module module;
    const std::string path = (std::filesystem::temp_directory_path() / ("profile-" + std::to_string(getpid()))).string();
    const struct { const char *base; double from, to; } slices[] = {
        {"sinf", 3.999, 4.001}, {"tanf", 1.999, 2.001}, {"tanf", 8255.5, 8256.5}, {"exp10f", -6e-8, -5.99e-8}, {"expf", 88.72, 88.7235},
        {"expf", -103.98, -103.96}, {"asinf", 0.99985, 1.0001}, {"logf", 0.9999, 1.0001}, {"sincosf", -1.5711, -1.5706}, {"cbrtf", 0.99995, 1.00005}};
    for (const auto& [base, from, to] : slices) {
        char ends[80];
        std::snprintf(ends, sizeof ends, " --from 0x%08x --to 0x%08x", static_cast<unsigned>(pattern_of(Lane::f32, from)), static_cast<unsigned>(pattern_of(Lane::f32, to)));
        output('"' + std::string(TARN_TOOLS_DIR) + "/tarn-ulp\" " + base + " --quiet --threads 2 --profile " + path + ends);
        const auto lines = read_profile(path).bins;
        std::map<std::string, int> seen;
        std::size_t inputs = 0;
        for (const BinError& line : lines) {
            const auto f = module.find(line.kernel);
            ASSERT_TRUE(f) << base;
            const std::string where = f->name() + " from " + std::to_string(line.from) + " to " + std::to_string(line.to);
            seen[f->name()]++;
            double worst = 0;
            float x = static_cast<float>(std::max(line.from, static_cast<double>(static_cast<float>(from))));
            for (; x < line.to && x <= static_cast<float>(to); x = std::nextafterf(x, INFINITY), inputs++)
                worst = std::max(worst, error_at(module, line, {std::bit_cast<std::uint32_t>(x)}));
            EXPECT_NEAR(line.ulp, worst, digits(worst)) << where;
            EXPECT_NEAR(line.ulp, error_at(module, line, line.at), digits(worst)) << where;
            EXPECT_FALSE(line.wrong) << where;
        }
        EXPECT_GT(inputs, 500u) << base;
        EXPECT_GE(seen.size(), 2u) << base << ": full and native";
    }
    std::filesystem::remove(path);
}

// Nothing in docs/data is above its row, all inputs give the row's figure itself, and every input named there still gives
// the error that stands beside it.
TEST(ProfileData, AgreesWithTheRows) {
    const Module module;
    const std::filesystem::path directory = TARN_SOURCE_DIR "/docs/data/errors";
    std::size_t files = 0;
    for (const Family& f : families()) {
        if (f.full.ulp == 0 || f.allowed == 0 || !truth_of(f)) continue;
        files++;
        const bool swept = f.shape.args.size() == 1 && f.shape.args[0] == Lane::f32;
        const auto lines = read_profile(directory / (f.base + ".tsv")).bins;
        std::map<std::pair<Variant, int>, double> largest;
        for (const BinError& line : lines) {
            ASSERT_EQ(line.kernel.family, &f) << f.base;
            const auto& [family, width, v] = line.kernel;
            const std::string name = export_name(f.base, width, v);
            EXPECT_FALSE(line.wrong) << name << " from " << line.from << " to " << line.to;
            double& most = largest[{v, width}];
            most = std::max(most, line.ulp);
            // The processor's estimates are its maker's.
            if (std::find(f.estimates.begin(), f.estimates.end(), v) != f.estimates.end()) continue;
            ASSERT_FALSE(line.at.empty()) << name << " from " << line.from;
            const double x = value_of(f.shape.args[0], line.at[0]);
            // Ends are written in as few digits as name them in their precision.
            const bool single = f.shape.args[0] == Lane::f32;
            const double from = single ? static_cast<float>(line.from) : line.from, to = single ? static_cast<float>(line.to) : line.to;
            EXPECT_TRUE(from <= x && x <= to) << name << ' ' << x;
            EXPECT_NEAR(line.ulp, error_at(module, line, line.at), digits(line.ulp)) << name << " at " << x;
        }
        for (const auto& [kernel, ulp] : largest) {
            const auto& [v, width] = kernel;
            const double stated = f.worst(v, width).ulp;
            const std::string name = export_name(f.base, width, v);
            EXPECT_LE(ulp, stated * 1.001) << name;
            const bool estimates = std::find(f.estimates.begin(), f.estimates.end(), v) != f.estimates.end();
            if (swept && !estimates) {
                EXPECT_GE(ulp, stated * 0.999) << name;
            }
        }
        EXPECT_EQ(largest.size(), 1 + f.width_full.size() + f.has(Variant::native) + (f.half_worst.ulp != 0)) << f.base;
    }
    EXPECT_EQ(static_cast<std::size_t>(std::count_if(std::filesystem::directory_iterator(directory), {}, [](const auto& file) { return file.path().extension() == ".tsv"; })), files);
}

}  // namespace
}  // namespace tarn::test
