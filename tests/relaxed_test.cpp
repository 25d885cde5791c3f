// Which native forms keep what OpenCL allows under relaxed math, where that is not a number of ulp alone: the page for
// makers of runtimes says so of each.
#include <gtest/gtest.h>

#include <numbers>

#include "exports/allowances.hpp"
#include "exports/opencl.hpp"
#include "samples.hpp"

namespace tarn::test {
namespace {

// The part of its rule that a result uses up.
double part(const Allowance& a, float x, double exact, double result) {
    const double off = std::fabs(result - exact);
    if (a.rule == Rule::absolute) return off / a.limit;
    if (a.rule == Rule::logarithm && x >= 0.5f && x <= 2) return off / 0x1p-21;
    const double unit = std::ldexp(1, std::max(std::ilogb(exact) - 23, -149));
    return off / unit / (a.rule == Rule::logarithm ? 3 : 3 + std::floor(std::fabs(2.0 * x)));
}

TEST(RelaxedMath, NativeFormsUseThePartThatThePageSays) {
    using Exact = double (*)(double);
    constexpr double pi = std::numbers::pi;
    const Exact sine = std::sin, cosine = std::cos;
    const Exact sine_of_half_turns = [](double x) { return std::sin(std::numbers::pi * x); };
    const Exact cosine_of_half_turns = [](double x) { return std::cos(std::numbers::pi * x); };
    const struct {
        const char* base;
        Exact result, second;
        double low, high;
    } cases[] = {{"sinf", sine, nullptr, -pi, pi},
                 {"cosf", cosine, nullptr, -pi, pi},
                 {"sincosf", sine, cosine, -pi, pi},
                 {"sincosregf", sine, cosine, -pi, pi},
                 {"sinpif", sine_of_half_turns, nullptr, -1, 1},
                 {"cospif", cosine_of_half_turns, nullptr, -1, 1},
                 // Where results are normal numbers.
                 {"expf", std::exp, nullptr, -87, 88},
                 {"exp2f", std::exp2, nullptr, -126, 127},
                 {"logf", std::log, nullptr, 0x1p-126, 0x1p127},
                 {"log2f", std::log2, nullptr, 0x1p-126, 0x1p127}};
    for (const auto& [base, exact, exact_second, low, high] : cases) {
        const Family& f = *find_family(base);
        const std::string name = header_name(f, 1, Variant::full).substr(5);
        const Allowance a = allowance(name);
        ASSERT_NE(a.native_part, 0) << base;
        std::vector<float> inputs;
        for (std::uint64_t p = 0; p < 1ull << 32; p += 997)
            if (const float x = std::bit_cast<float>(static_cast<std::uint32_t>(p)); x >= low && x <= high)
                inputs.push_back(x);
        std::vector<Lanes> args{Lanes(Lane::f32, inputs.size())};
        for (std::size_t i = 0; i < inputs.size(); i++) args[0].set(i, std::bit_cast<std::uint32_t>(inputs[i]));
        Lanes result, second;
        module().find({&f, 16, Variant::native}).value()(args, result, exact_second ? &second : nullptr);
        double worst = 0;
        for (std::size_t i = 0; i < inputs.size(); i++) {
            worst = std::max(worst, part(a, inputs[i], exact(inputs[i]), value_of(Lane::f32, result.pattern(i))));
            if (exact_second)
                worst = std::max(worst,
                                 part(a, inputs[i], exact_second(inputs[i]), value_of(Lane::f32, second.pattern(i))));
        }
        EXPECT_LE(worst, a.native_part) << base;
        EXPECT_EQ(worst <= 1, native_keeps_relaxed(f, name)) << base << ": " << worst;
    }
}

}  // namespace
}  // namespace tarn::test
