// Every family and variant against MPFR: no error above the worst that its row states, which in turn is
// within what OpenCL allows, and the row's worst input has that error. Special values and the signs of
// zeros and infinities are part of the truth.
#include <gtest/gtest.h>

#include "common/truth.hpp"
#include "estimates.hpp"
#include "samples.hpp"

namespace tarn::test {
namespace {

// Rows state four digits, measured with one processor's approximations.
double at_most(double stated) { return stated * (estimates_as_measured() ? 1.0005 : 1.1) + 1e-6; }

class Accuracy : public testing::TestWithParam<Member> {
protected:
    // Errors over some inputs, second results included.
    void expect_within(const Function& f, const std::vector<Lanes>& args, double limit) {
        const Truth& truth = *truth_of(f.family());
        const Shape& shape = f.family().shape;
        Lanes result, second;
        f(args, result, &second);
        std::vector<Real> x(args.size());
        Real t;
        int failures = 0;
        const auto check = [&](Truth::Of of, const Lanes& got, std::size_t i) {
            of(t.value, x.data());
            const double error = ulp_error(got.type(), got.pattern(i), t);
            const bool zero_sign = mpfr_zero_p(t.value) && !mpfr_signbit(t.value) != !std::signbit(value_of(got.type(), got.pattern(i)));
            if ((error > limit || zero_sign) && failures++ < 5)
                ADD_FAILURE() << f.name() << '(' << lanes_text(args, i) << ") = " << hex(got.pattern(i)) << ", error "
                              << error << " ulp, limit " << limit << (zero_sign ? ", wrong sign of zero" : "");
        };
        for (std::size_t i = 0; i < result.size(); i++) {
            for (std::size_t a = 0; a < args.size(); a++) x[a] = exact(shape.args[a], args[a].pattern(i));
            check(truth.first, result, i);
            if (truth.second) check(truth.second, second, i);
        }
    }

    std::vector<Lanes> in_native_domain(const std::vector<Lanes>& args) {
        const Family& f = *GetParam().family;
        return where(args, [&](std::size_t i) {
            for (std::size_t a = 0; a < f.native_domain.size(); a++) {
                const double v = value_of(args[a].type(), args[a].pattern(i));
                if (!(v >= f.native_domain[a].low && v <= f.native_domain[a].high)) return false;
            }
            return true;
        });
    }
};

TEST_P(Accuracy, StaysWithinTheStatedWorst) {
    const Member& m = GetParam();
    const Family& family = *m.family;
    if (!truth_of(family)) GTEST_SKIP() << "exact: tested against integer arithmetic";
    const std::size_t count = bytes(family.shape.args[0]) == 4 ? 60000 : 30000;
    std::vector<Lanes> args = samples(family, count);
    if (m.variant != Variant::full) args = in_native_domain(args);

    std::vector<int> own = {16};
    if (m.variant == Variant::full)
        for (const auto& [width, worst] : family.width_full) own.push_back(width);
    for (const int width : own) {
        const double stated = family.worst(m.variant, width).ulp;
        ASSERT_GT(stated, 0) << m.name() << " has no measured worst error in its row";
        if (m.variant == Variant::full && family.allowed > 0) { EXPECT_LE(stated, family.allowed); }
        for (const auto& set : by_path(family, args)) expect_within(m.at(width), set, at_most(stated));
    }
}

TEST_P(Accuracy, WorstIsWhereItIsStated) {
    const Member& m = GetParam();
    const Family& family = *m.family;
    const Truth* truth = truth_of(family);
    if (!truth) GTEST_SKIP() << "exact: tested against integer arithmetic";
    for (const int width : widths) {
        const Worst& worst = family.worst(m.variant, width);
        ASSERT_EQ(worst.at.size(), family.shape.args.size()) << m.name() << " has no worst input in its row";
        std::vector<Lanes> args;
        std::vector<Real> x;
        for (std::size_t a = 0; a < worst.at.size(); a++) {
            args.emplace_back(family.shape.args[a], 1);
            args.back().set(0, worst.at[a]);
            x.push_back(exact(family.shape.args[a], worst.at[a]));
        }
        Lanes result, second;
        m.at(width)(args, result, &second);
        Real t;
        truth->first(t.value, x.data());
        double error = ulp_error(result.type(), result.pattern(0), t);
        if (truth->second) {
            truth->second(t.value, x.data());
            error = std::max(error, ulp_error(second.type(), second.pattern(0), t));
        }
        EXPECT_LE(error, at_most(worst.ulp)) << m.at(width).name();
        if (m.variant == Variant::full && estimates_as_measured()) {
            EXPECT_GE(error, worst.ulp * 0.999 - 0.001) << m.at(width).name();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Module, Accuracy, testing::ValuesIn(members()), [](const auto& info) { return member_name(info); });

}  // namespace
}  // namespace tarn::test
