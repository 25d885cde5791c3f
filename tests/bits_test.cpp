// The order of operations of every specified path, pinned: a digest of the result bits over a fixed run
// of inputs. Each was taken from a module that had been compared, input by input, with a plain scalar
// evaluation of the written steps; a change of one rounding anywhere changes it.
//
// Kernels that use the processor's own approximations have none: their bits differ between processors.
//   bits_test --gtest_filter=... prints the digest found beside the one expected.
#include <gtest/gtest.h>

#include "digest.hpp"

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

INSTANTIATE_TEST_SUITE_P(Module, Bits, testing::ValuesIn(pinned), [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace tarn::test
