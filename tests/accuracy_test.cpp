// Every family and variant against MPFR: no error above the worst that its row states, which in turn is within what
// OpenCL allows unless the row says otherwise, and the row's worst input has that error.
#include <gtest/gtest.h>

#include "estimates.hpp"
#include "expect_ulp.hpp"

namespace tarn::test {
namespace {

class Accuracy : public testing::TestWithParam<Member> {};

TEST_P(Accuracy, StaysWithinTheStatedWorst) {
    const Member& m = GetParam();
    const Family& family = *m.family;
    const std::size_t count = bytes(family.shape.args[0]) == 4 ? 60000 : 30000;
    std::vector<Lanes> args = samples(family, count);
    if (m.variant != Variant::full) args = in_native_domain(family, args);

    std::vector<int> own = {16};
    if (m.variant == Variant::full)
        for (const auto& [width, worst] : family.width_full) own.push_back(width);
    for (const int width : own) {
        const Function f = m.at(width);
        ASSERT_GT(family.worst(m.variant, width).ulp, 0) << f.name() << " has no measured worst error in its row";
        for (const auto& set : by_path(family, args)) expect_ulp(f, set, limit_here(f));
        // Lanes beside zeros, infinities and NaNs too, whichever way their block goes.
        if (family.shares_blocks) expect_ulp(f, args, limit_here(f));
    }
}

TEST_P(Accuracy, StatedWorstIsWithinWhatOpenCLAllows) {
    const Member& m = GetParam();
    const Family& family = *m.family;
    constexpr double half_allowed = 8192;
    for (const int width : widths) {
        const double stated = family.worst(m.variant, width).ulp;
        const auto& beyond = family.exceeds_bound;
        const bool exceeds = std::find(beyond.begin(), beyond.end(), width) != beyond.end();
        if (m.variant == Variant::half) { EXPECT_LE(stated, half_allowed); }
        // A width that is said to exceed the bound does.
        if (m.variant == Variant::full && family.allowed > 0) { EXPECT_EQ(stated > family.allowed, exceeds) << "width " << width << ": " << stated; }
    }
}

TEST_P(Accuracy, WorstIsWhereItIsStated) {
    const Member& m = GetParam();
    const Family& family = *m.family;
    for (const int width : widths) {
        const Function f = m.at(width);
        const Worst& worst = family.worst(m.variant, width);
        ASSERT_EQ(worst.at.size(), family.shape.args.size()) << m.name() << " has no worst input in its row";
        std::vector<Lanes> args;
        for (std::size_t a = 0; a < worst.at.size(); a++) {
            args.emplace_back(family.shape.args[a], 1);
            args.back().set(0, worst.at[a]);
        }
        const double error = expect_ulp(f, args, limit_here(f));
        if (m.variant == Variant::full && !starts_from_estimate(f)) { EXPECT_GE(error, worst.ulp * 0.999 - 0.001) << f.name(); }
    }
}

std::vector<Member> rounded_members() {
    auto all = members();
    std::erase_if(all, [](const Member& m) { return !truth_of(*m.family); });
    return all;
}
INSTANTIATE_TEST_SUITE_P(Module, Accuracy, testing::ValuesIn(rounded_members()), [](const auto& info) { return member_name(info); });

}  // namespace
}  // namespace tarn::test
