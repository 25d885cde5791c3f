// In the rounding modes that are not to nearest a full form loses no more than its row states: the largest error
// found over these very arguments, ordinary ones from the usual interval.
#include <gtest/gtest.h>
#include <xmmintrin.h>

#include "common/truth.hpp"
#include "samples.hpp"

namespace tarn::test {
namespace {

class Directed : public testing::TestWithParam<std::string> {};

// Of each width that has a kernel of its own, in all three modes.
TEST_P(Directed, ErrorsStayWithinWhatTheRowStates) {
    const Family& family = *find_family(GetParam());
    const Truth& truth = *truth_of(family);
    constexpr std::size_t count = 5000;
    std::mt19937_64 random(12);
    std::vector<Lanes> args;
    for (std::size_t a = 0; a < family.shape.args.size(); a++) args.emplace_back(family.shape.args[a], count);
    for (std::size_t i = 0; i < count; i++)
        for (std::size_t a = 0; a < args.size(); a++) args[a].set(i, random_lane(family, a, true, random));

    std::vector<int> own = {16};
    for (const auto& [width, worst] : family.width_full) own.push_back(width);
    struct Run {
        const char* mode;
        int width;
        Lanes result, second;
    };
    std::vector<Run> runs;
    for (const auto& [name, mode] : {std::pair{"down", _MM_ROUND_DOWN}, {"up", _MM_ROUND_UP}, {"toward zero", _MM_ROUND_TOWARD_ZERO}})
        for (const int width : own) {
            runs.push_back({name, width, {}, {}});
            const Function f = module().find(family.base, width).value();
            const unsigned usual = _mm_getcsr();
            _mm_setcsr((usual & ~static_cast<unsigned>(_MM_ROUND_MASK)) | static_cast<unsigned>(mode));
            f(args, runs.back().result, &runs.back().second);
            _mm_setcsr(usual);
        }

    double largest = 0;
    std::string where;
    std::vector<Real> x(args.size());
    Real t;
    for (std::size_t i = 0; i < count; i++) {
        for (std::size_t a = 0; a < args.size(); a++) x[a] = exact(args[a].type(), args[a].pattern(i));
        for (const Truth::Of of : {truth.first, truth.second}) {
            if (!of) continue;
            of(t.value, x.data());
            for (const Run& run : runs) {
                const Lanes& got = of == truth.first ? run.result : run.second;
                const double error = ulp_error(got.type(), got.pattern(i), t);
                if (error > largest) {
                    largest = error;
                    where = std::string("rounding ") + run.mode + ", width " + std::to_string(run.width) + ": " + lanes_text(args, i);
                }
            }
        }
    }
    // Four digits are stated; where a family starts from estimates, another processor's may do worse.
    const double slack = family.estimates.empty() ? 1.0005 : 1.2;
    EXPECT_LE(largest, family.directed * slack + 1e-6) << family.base << ' ' << where;
}

std::vector<std::string> rounding_families() {
    std::vector<std::string> all;
    for (const Family& f : families())
        if (f.full.ulp != 0 && truth_of(f)) all.push_back(f.base);
    return all;
}

INSTANTIATE_TEST_SUITE_P(Module, Directed, testing::ValuesIn(rounding_families()), [](const auto& info) { return info.param; });

}  // namespace
}  // namespace tarn::test
