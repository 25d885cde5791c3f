// The callouts as what they are, complete scalar functions: the kernels only ask them about the lanes
// they cannot do, which leaves most of their arguments unseen by the tests of the exports.
#include "callout/callouts.hpp"

#include <gtest/gtest.h>

#include <functional>
#include <tuple>

#include "expect_ulp.hpp"

namespace tarn::test {
namespace {

using namespace tarn::callout;

// Any callout, on lane i of its arguments; the result is a pattern.
struct Scalar {
    const char* base;
    std::function<std::uint64_t(const std::vector<Lanes>&, std::size_t)> call;
    double limit;
};
void PrintTo(const Scalar& s, std::ostream* out) { *out << s.base; }

template <class T> T lane_as(const Lanes& lanes, std::size_t i) {
    T value;
    std::memcpy(&value, lanes.data() + i * sizeof value, sizeof value);
    return value;
}

// Single precision is computed in double and rounded once.
constexpr double once = 0.5 + 1e-6;

template <class R, class... X> struct Wrapped {
    static Scalar scalar(const char* base, int (*f)(const X*..., R*), double limit = once) {
        const auto call = [f]<std::size_t... a>(const std::vector<Lanes>& args, std::size_t i, std::index_sequence<a...>) {
            const std::tuple<X...> x = {lane_as<X>(args[a], i)...};
            R result = 0;
            f(&std::get<a>(x)..., &result);
            std::uint64_t pattern = 0;
            std::memcpy(&pattern, &result, sizeof result);
            return pattern;
        };
        return {base, [call](const auto& args, std::size_t i) { return call(args, i, std::index_sequence_for<X...>{}); },
                limit};
    }
};
Scalar unary(const char* base, UnaryFloat* f, double limit = once) { return Wrapped<float, float>::scalar(base, f, limit); }
Scalar unary(const char* base, UnaryDouble* f, double limit) { return Wrapped<double, double>::scalar(base, f, limit); }
Scalar binary(const char* base, BinaryFloat* f) { return Wrapped<float, float, float>::scalar(base, f); }
Scalar binary(const char* base, BinaryDouble* f, double limit) {
    return Wrapped<double, double, double>::scalar(base, f, limit);
}
Scalar with_n(const char* base, FloatAndInt* f) { return Wrapped<float, float, std::int32_t>::scalar(base, f); }
Scalar with_n(const char* base, DoubleAndInt* f, double limit) {
    return Wrapped<double, double, std::int32_t>::scalar(base, f, limit);
}

const Scalar scalars[] = {
    unary("expf", &expf), unary("exp2f", &exp2f), unary("exp10f", &exp10f),
    unary("logf", &logf), unary("log2f", &log2f), unary("log10f", &log10f), unary("log1pf", &log1pf),
    unary("invf", &invf), unary("sqrtf", &sqrtf), unary("rsqrtf", &rsqrtf),
    unary("cbrtf", &cbrtf, 0.5119), unary("rcbrtf", &rcbrtf, 0.5144),
    unary("tgammaf", &tgammaf), unary("lgammaf", &lgammaf),
    binary("divf", &divf), binary("hypotf", &hypotf), binary("powf", &powf), binary("powrf", &powrf),
    with_n("pownf", &pownf), with_n("rootnf", &rootnf),
    unary("exp", &exp, 0.52), unary("exp2", &exp2, 0.76), unary("exp10", &exp10, 0.52),
    unary("log", &log, 0.503), unary("log2", &log2, 2.09), unary("log10", &log10, 2.09), unary("log1p", &log1p, 0.503),
    unary("sin", &sin, 0.52), unary("cos", &cos, 0.52), unary("tan", &tan, 0.52),
    unary("tgamma", &tgamma, 0.529), unary("lgamma", &lgamma, 0.689),
    unary("sinpi", &sinpi, 0.52), unary("cospi", &cospi, 0.52), unary("tanpi", &tanpi, 0.52),
    unary("asin", &asin, 0.53), unary("acos", &acos, 0.53), unary("asinpi", &asinpi, 0.751), unary("acospi", &acospi, 0.53),
    binary("atan2", &atan2, 1.99), binary("atan2pi", &atan2pi, 2.32),
    unary("sinh", &sinh, 0.72), unary("cosh", &cosh, 0.52), unary("tanh", &tanh, 0.59),
    unary("asinh", &asinh, 0.51), unary("acosh", &acosh, 0.51), unary("atanh", &atanh, 0.51),
    unary("erfc", &erfc, 1.3),
    binary("pow", &pow, 1.62), binary("powr", &powr, 1.62), with_n("pown", &pown, 1.62), with_n("rootn", &rootn, 1.0),
    unary("cbrt", &cbrt, 0.52), unary("rcbrt", &rcbrt, 0.52), unary("rsqrt", &rsqrt, 0.501), unary("inv", &inv, once),
    binary("div", &div, once), binary("hypot", &hypot, 1.18),
};

class Callout : public testing::TestWithParam<Scalar> {};

TEST_P(Callout, IsCompleteAndRoundedOnce) {
    const Scalar& scalar = GetParam();
    const Family& family = *find_family(scalar.base);
    const auto args = samples(family, bytes(family.shape.result) == 4 ? 40000 : 10000, 7);
    Lanes results(family.shape.result, args[0].size());
    for (std::size_t i = 0; i < results.size(); i++) results.set(i, scalar.call(args, i));
    expect_ulp(scalar.base, family, args, results, {}, scalar.limit);
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
    EXPECT_EQ(of(&tgammaf, -0.0f), pole);
    EXPECT_EQ(of(&tgammaf, -inf), domain_error);
    EXPECT_EQ(of(&tgammaf, -60.5f), underflow);
    EXPECT_EQ(of(&lgammaf, -3), pole);
    EXPECT_EQ(of(&lgammaf, 1e37f), overflow);
    EXPECT_EQ(of(&expf, 89), overflow);
    EXPECT_EQ(of(&expf, -100), underflow);
}

TEST(CalloutStatus, NamesWhatHappenedInDoublePrecision) {
    constexpr double inf = std::numeric_limits<double>::infinity(), nan = std::numeric_limits<double>::quiet_NaN();
    const struct {
        UnaryDouble* f;
        double x;
        Status status;
    } unary_cases[] = {
        {&exp, 710, overflow}, {&exp, -746, underflow}, {&exp2, 1024, overflow}, {&exp10, -324, underflow}, {&exp, inf, ordinary},
        {&log, -0.0, pole}, {&log2, -1, domain_error}, {&log10, -inf, domain_error}, {&log, inf, ordinary}, {&log1p, -1, pole},
        {&asin, 1, ordinary}, {&asin, 0x1.0000000000001p0, domain_error}, {&acos, -inf, domain_error}, {&asin, nan, ordinary},
        {&sinh, 0x1.633ce8fb9f87ep9, overflow}, {&sinh, 0x1.633ce8fb9f87dp9, ordinary}, {&cosh, -711, overflow},
        {&acosh, 0.5, domain_error}, {&acosh, 1, ordinary}, {&atanh, -1, pole}, {&atanh, 2, domain_error}, {&atanh, nan, ordinary},
        {&erfc, 27, underflow}, {&erfc, -28, ordinary}, {&inv, -0.0, pole}, {&inv, 2, ordinary}, {&rsqrt, 0, pole}, {&rsqrt, -1, domain_error}, {&rcbrt, 0, pole},
    };
    double result;
    for (const auto& [f, x, status] : unary_cases) EXPECT_EQ(f(&x, &result), status) << x;

    const struct {
        BinaryDouble* f;
        double x, y;
        Status status;
    } binary_cases[] = {
        {&pow, -8, 1.0 / 3, domain_error}, {&pow, -0.0, -3, domain_error}, {&pow, -2, 3, ordinary}, {&pow, -1, inf, ordinary},
        {&powr, -2, 2, domain_error}, {&div, 1, 0, pole}, {&div, 1, 0x1p-1074, ordinary}, {&atan2, 0, 0, ordinary},
    };
    for (const auto& [f, x, y, status] : binary_cases) EXPECT_EQ(f(&x, &y, &result), status) << x << ", " << y;
}

}  // namespace
}  // namespace tarn::test
