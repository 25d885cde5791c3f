// The kernels that start from the processor's estimates, on estimates that any processor may give: built once more
// with two of our own in the place of the instructions. That settles what no single machine can: the order of
// operations, by digests that hold everywhere, and a limit of the error that holds everywhere.
#include "estimates.hpp"

#include <gtest/gtest.h>

#include <set>

#include "commands.hpp"
#include "digest.hpp"
#include "expect_ulp.hpp"

namespace tarn::test {
namespace {

const Module& rounded() {
    static const Module m(TARN_ROUNDED_MODULE);
    return m;
}
const Module& worst() {
    static const Module m(TARN_WORST_MODULE);
    return m;
}

// What is found before the kernels' own header is what they were built with: 1/x and x^(-1/2) in their native forms
// are the estimates themselves.
TEST(InjectedEstimates, AreAsGoodAsTheyShouldBe) {
    for (const char* base : {"invf", "rsqrtf"}) {
        Lanes args(Lane::f32, 1 << 16), near, far;
        for (std::size_t i = 0; i < args.size(); i++) args.set(i, 0x3F800000 + i * 256);  // 1 to 4
        rounded().find(base, 16, Variant::native).value()({args}, near);
        worst().find(base, 16, Variant::native).value()({args}, far);
        int up = 0;
        for (std::size_t i = 0; i < args.size(); i++) {
            const double x = value_of(Lane::f32, args.pattern(i)), exact = std::string(base) == "invf" ? 1 / x : 1 / std::sqrt(x);
            const double error = value_of(Lane::f32, far.pattern(i)) / exact - 1;
            ASSERT_EQ(near.pattern(i) & 0xFFF, 0u) << base << ' ' << x;
            ASSERT_LE(std::fabs(value_of(Lane::f32, near.pattern(i)) / exact - 1), 0x1p-12) << base << ' ' << x;
            ASSERT_TRUE(std::fabs(error) <= 0x1.8p-12 && std::fabs(error) > 0x1.7fp-12) << base << ' ' << x << ' ' << error;
            up += error > 0;
        }
        EXPECT_NEAR(up, 1 << 15, 1 << 12) << base;
    }
}

TEST(Estimating, ListsEveryExportThatHasAnEstimate) {
    std::set<std::string> found;
    std::string function;
    for (const auto& line : output("objdump -d --no-show-raw-insn '" + Module::built_path() + "'")) {
        if (line.ends_with(">:")) function = line.substr(line.find('<') + 1, line.size() - line.find('<') - 3);
        else if (line.find("\trcp") != std::string::npos || line.find("\trsqrt") != std::string::npos) found.insert(function);
    }
    int exports = 0;
    for (const auto& name : found) {
        Export e;
        if (!parse_export(name, e)) continue;
        exports++;
        EXPECT_TRUE(starts_from_estimate(module().find(e).value())) << name;
    }
    EXPECT_GT(exports, 100);
}

class EstimatingKernel : public testing::TestWithParam<Estimating> {
protected:
    Function in(const Module& m) const {
        Export e;
        EXPECT_TRUE(parse_export(GetParam().name, e)) << GetParam().name;
        return m.find(e).value();
    }
};


TEST_P(EstimatingKernel, HasTheBitsOfTheWrittenSteps) {
    EXPECT_EQ(hex(digest(in(rounded()))), hex(GetParam().digest)) << GetParam().name;
}

TEST_P(EstimatingKernel, KeepsItsLimitOnAnyProcessor) {
    const Function f = in(worst());
    const Family& family = f.family();
    auto args = samples(family, 40000, 11);
    // Next to 2^126 the worst estimate of a reciprocal is a zero, and so is a native angle or quotient from it.
    const auto vanishes = [&](const Lanes& arg, std::size_t i) {
        const double v = std::fabs(value_of(arg.type(), arg.pattern(i)));
        return is_float(arg.type()) && v > 8.5e37 && v <= 0x1p126;
    };
    if (f.variant() != Variant::full) {
        args = in_native_domain(family, args);
        args = where(args, [&](std::size_t i) { return std::none_of(args.begin(), args.end(), [&](const Lanes& arg) { return vanishes(arg, i); }); });
    }
    for (const auto& set : by_path(family, args)) expect_ulp(f, set, GetParam().limit);
}

INSTANTIATE_TEST_SUITE_P(Module, EstimatingKernel, testing::ValuesIn(estimating), [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace tarn::test
