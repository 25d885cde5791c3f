// gamma and ln |gamma| where they are hardest: next to the poles, where one ulp of x is a large part of the result,
// next to the zeros of the logarithm, where all that Stirling's formula and the reflection give cancels, and at both
// ends of the range; and the sign of gamma.
#include <gtest/gtest.h>

#include "expect_ulp.hpp"

namespace tarn::test {
namespace {

Real log_gamma(const Real& x) {
    Real r;
    int sign;
    mpfr_lgamma(r.value, &sign, x.value, MPFR_RNDN);
    return r;
}

// The point where ln |gamma| changes its sign between a pole, where it is positive, and `negative`.
double zero_between(double pole, double negative) {
    double positive = pole + (negative - pole) * 0x1p-100;
    for (int i = 0; i < 200; i++) {
        const double middle = (positive + negative) / 2;
        (Real(0) < log_gamma(middle) ? positive : negative) = middle;
    }
    return negative;
}

// x and its neighbours, as far as `reach` steps.
void add_around(std::vector<std::uint64_t>& v, Lane type, double x, int reach) {
    const std::uint64_t p = pattern_of(type, x);
    for (int k = -reach; k <= reach; k++) v.push_back(p + static_cast<std::uint64_t>(k));
}

class Gamma : public testing::TestWithParam<const char*> {};

TEST_P(Gamma, KeepsItsErrorNextToPolesAndZeros) {
    const Family& family = *find_family(GetParam());
    const Lane type = family.shape.result;
    std::vector<std::uint64_t> patterns;
    for (int n = 1; n <= 190; n++) {
        add_around(patterns, type, -n, 12);
        for (int j = 2; j < 40; j += 3)
            for (const double side : {-1.0, 1.0}) add_around(patterns, type, -n + side * std::ldexp(1, -j), 1);
        add_around(patterns, type, -n + 0.5, 3);
        // Below -2.46 ln |gamma| is negative but next to the poles: on both sides of each, one zero.
        for (const double side : {-0.6, -0.36, 0.36}) {
            const double inside = -n + side;
            if (n <= 30 && log_gamma(inside) < Real(0)) add_around(patterns, type, zero_between(-n, inside), 40);
        }
    }
    for (const double x : {1.0, 2.0}) add_around(patterns, type, x, 200);
    for (const double x : {0x1p-20, 0.5, 8.0, 64.0, 35.0401, 171.6243769563027}) add_around(patterns, type, x, 20);

    Lanes args(type, patterns.size()), result, second;
    for (std::size_t i = 0; i < patterns.size(); i++) args.set(i, patterns[i]);
    const Function f = module().find({&family, 4, Variant::full}).value();
    expect_ulp(f, {args}, family.full.ulp * 1.0005 + 1e-6);
    f({args}, result, &second);
    // Between the poles the sign alternates; at them it is positive.
    for (std::size_t i = 0; i < second.size(); i++) {
        const double v = value_of(type, args.pattern(i));
        const bool negative = v < 0 && v != std::floor(v) && std::fmod(std::floor(v), 2) != 0;
        ASSERT_EQ(static_cast<std::int32_t>(second.pattern(i)), negative ? -1 : 1) << "the sign at " << hex(args.pattern(i));
    }
}

INSTANTIATE_TEST_SUITE_P(Module, Gamma, testing::Values("tgamma", "tgammaf", "lgamma", "lgammaf", "lgammar", "lgammarf"),
                         [](const auto& info) { return std::string(info.param); });

TEST(GammaSign, IsOneAtPolesAndThatOfZero) {
    constexpr double inf = std::numeric_limits<double>::infinity();
    for (const char* base : {"lgammar", "lgammarf"}) {
        const Family& family = *find_family(base);
        const Lane type = family.shape.result;
        const struct {
            double x;
            int sign;
        } cases[] = {{0.0, 1}, {-0.0, -1}, {-1, 1}, {-2, 1}, {inf, 1}, {-inf, 1}, {1e30, 1}, {-1e30, 1}};
        Lanes args(type, std::size(cases)), result, second;
        for (std::size_t i = 0; i < std::size(cases); i++) args.set(i, pattern_of(type, cases[i].x));
        (*module().find({&family, 16, Variant::full}))({args}, result, &second);
        for (std::size_t i = 0; i < std::size(cases); i++) {
            EXPECT_EQ(value_of(type, result.pattern(i)) == inf, cases[i].x != 1e30) << base << ' ' << cases[i].x;
            EXPECT_EQ(static_cast<std::int32_t>(second.pattern(i)), cases[i].sign) << base << ' ' << cases[i].x;
        }
    }
}

}  // namespace
}  // namespace tarn::test
