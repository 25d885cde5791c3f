// The order of operations of every specified path, pinned: a digest of the result bits over a fixed run
// of inputs. Each was taken from a module that had been compared, input by input, with a plain scalar
// evaluation of the written steps; a change of one rounding anywhere changes it.
//
// Kernels that use the processor's own approximations have none: their bits differ between processors.
//   bits_test --gtest_filter=... prints the digest found beside the one expected.
#include <gtest/gtest.h>

#include "digest.hpp"
#include "ordinary/mark.hpp"

namespace tarn::test {
namespace {

struct Pinned {
    const char* name;  // an export
    std::uint64_t digest;
};

const Pinned pinned[] = {
#include "bits.def"
};

void PrintTo(const Pinned& p, std::ostream* out) { *out << p.name; }

class Bits : public testing::TestWithParam<Pinned> {};

TEST_P(Bits, AreThoseOfTheWrittenSteps) {
    Export e;
    ASSERT_TRUE(parse_export(GetParam().name, e)) << GetParam().name;
    const auto f = module().find(e);
    ASSERT_TRUE(f) << GetParam().name;
    EXPECT_EQ(hex(digest(*f)), hex(GetParam().digest)) << GetParam().name;
}

// A digest says little of a kernel whose lanes went elsewhere: to callouts, which leave a mark in a module made for that,
// or with a large lane down the other path. Families whose every lane is a callout's have no other way.
TEST_P(Bits, AreMostlyTheOrdinaryPaths) {
    static const Module marking(TARN_MARKING_MODULE);
    Export e;
    ASSERT_TRUE(parse_export(GetParam().name, e)) << GetParam().name;
    const Family& family = *e.family;
    if (family.base.find("gamma") != std::string::npos) GTEST_SKIP() << "every lane is the callout's";
    const auto args = run_of_inputs(family);
    const Function f = marking.find(e).value();
    Lanes result, second;
    f(args, result, &second);
    const auto large = [&](std::size_t i) { return !(std::fabs(value_of(args[0].type(), args[0].pattern(i))) <= family.switches_above); };
    std::size_t ordinary = 0;
    const auto width = static_cast<std::size_t>(e.width);
    for (std::size_t start = 0; start < result.size(); start += width) {
        bool switched = false;
        for (std::size_t i = start; i < start + width && family.switches_above != 0; i++) switched |= large(i);
        for (std::size_t i = start; i < start + width && !switched; i++)
            ordinary += result.pattern(i) != (bytes(result.type()) == 8 ? mark : mark & 0xFFFFFFFF);
    }
    EXPECT_GT(ordinary, result.size() / 2) << f.name();
}

INSTANTIATE_TEST_SUITE_P(Module, Bits, testing::ValuesIn(pinned), [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace tarn::test
