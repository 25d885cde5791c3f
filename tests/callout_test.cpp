// The callouts as what they are, complete scalar functions: the kernels only ask them about the lanes
// they cannot do, which leaves most of their arguments unseen by the tests of the exports.
#include "callout/callouts.hpp"

#include <gtest/gtest.h>

#include <variant>

#include "common/truth.hpp"
#include "samples.hpp"

namespace tarn::test {
namespace {

using namespace tarn::callout;

float single(const Lanes& lanes, std::size_t i) { return std::bit_cast<float>(static_cast<std::uint32_t>(lanes.pattern(i))); }

// Any callout on lane i of its arguments.
struct Scalar {
    const char* base;
    std::variant<UnaryFloat*, BinaryFloat*, FloatAndInt*> function;
    double limit = 0.5 + 1e-6;  // computed in double precision and rounded once

    float operator()(const std::vector<Lanes>& args, std::size_t i) const {
        const float x = single(args[0], i);
        float result = 0;
        if (const auto* unary = std::get_if<UnaryFloat*>(&function)) {
            (*unary)(&x, &result);
        } else if (const auto* binary = std::get_if<BinaryFloat*>(&function)) {
            const float y = single(args[1], i);
            (*binary)(&x, &y, &result);
        } else {
            const auto n = static_cast<std::int32_t>(args[1].pattern(i));
            std::get<FloatAndInt*>(function)(&x, &n, &result);
        }
        return result;
    }
};
void PrintTo(const Scalar& s, std::ostream* out) { *out << s.base; }

const Scalar scalars[] = {
    {"expf", &expf},     {"exp2f", &exp2f},   {"exp10f", &exp10f},
    {"logf", &logf},     {"log2f", &log2f},   {"log10f", &log10f},       {"log1pf", &log1pf},
    {"divf", &divf},     {"invf", &invf},     {"sqrtf", &sqrtf},         {"rsqrtf", &rsqrtf},
    {"hypotf", &hypotf}, {"cbrtf", &cbrtf, 0.5119}, {"rcbrtf", &rcbrtf, 0.5144},
    {"powf", &powf},     {"powrf", &powrf},   {"pownf", &pownf},         {"rootnf", &rootnf},
};

class Callout : public testing::TestWithParam<Scalar> {};

TEST_P(Callout, IsCompleteAndRoundedOnce) {
    const Scalar& scalar = GetParam();
    const Family& family = *find_family(scalar.base);
    const Truth& truth = *truth_of(family);
    const auto args = samples(family, 40000, 7);
    std::vector<Real> x(args.size());
    Real t;
    int failures = 0;
    for (std::size_t i = 0; i < args[0].size() && failures < 5; i++) {
        for (std::size_t a = 0; a < args.size(); a++) x[a] = exact(family.shape.args[a], args[a].pattern(i));
        truth.first(t.value, x.data());
        const float result = scalar(args, i);
        const double error = ulp_error(Lane::f32, std::bit_cast<std::uint32_t>(result), t);
        const bool zero_sign = mpfr_zero_p(t.value) && !mpfr_signbit(t.value) != !std::signbit(result);
        if (error > scalar.limit || zero_sign)
            failures++, ADD_FAILURE() << lanes_text(args, i) << " gives " << result << ", error " << error << " ulp";
    }
}

INSTANTIATE_TEST_SUITE_P(Module, Callout, testing::ValuesIn(scalars), [](const auto& info) { return std::string(info.param.base); });

// What a scalar caller learns beside the result.
TEST(CalloutStatus, NamesWhatHappened) {
    float result;
    const auto of = [&](UnaryFloat* f, float x) { return f(&x, &result); };
    const auto of2 = [&](BinaryFloat* f, float x, float y) { return f(&x, &y, &result); };
    constexpr float inf = std::numeric_limits<float>::infinity();
    for (UnaryFloat* f : {&logf, &log2f, &log10f}) {
        EXPECT_EQ(of(f, 2), ordinary);
        EXPECT_EQ(of(f, inf), ordinary);
        EXPECT_EQ(of(f, -0.0f), pole);
        EXPECT_EQ(of(f, -1), domain_error);
        EXPECT_EQ(of(f, -inf), domain_error);
    }
    EXPECT_EQ(of(&log1pf, -1), pole);
    EXPECT_EQ(of(&log1pf, -2), domain_error);
    EXPECT_EQ(of(&sqrtf, -1), domain_error);
    EXPECT_EQ(of(&sqrtf, -0.0f), ordinary);
    EXPECT_EQ(of(&rsqrtf, -inf), domain_error);
    EXPECT_EQ(of(&rsqrtf, -0.0f), pole);
    EXPECT_EQ(of(&rcbrtf, -0.0f), pole);
    EXPECT_EQ(of(&invf, 0), pole);
    EXPECT_EQ(of2(&divf, 1, 0), pole);
    EXPECT_EQ(of2(&powf, -2, 0.5f), domain_error);
    EXPECT_EQ(of2(&powf, 0, -1), domain_error);
    EXPECT_EQ(of2(&powrf, -2, 2), domain_error);
    EXPECT_EQ(of2(&powf, -2, 3), ordinary);
    EXPECT_EQ(of(&expf, 89), overflow);
    EXPECT_EQ(of(&expf, -100), underflow);
}

}  // namespace
}  // namespace tarn::test
