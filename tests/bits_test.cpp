// The order of operations of every specified path, pinned: a digest of the result bits over a fixed run
// of inputs. Each was taken from a module that had been compared, input by input, with a plain scalar
// evaluation of the written steps; a change of one rounding anywhere changes it.
//
// Kernels that use the processor's own approximations have none: their bits differ between processors.
//   bits_test --gtest_filter=... prints the digest found beside the one expected.
#include <gtest/gtest.h>

#include "samples.hpp"

namespace tarn::test {
namespace {

struct Pinned {
    const char* name;  // an export
    std::uint64_t digest;
};

const Pinned pinned[] = {
#include "bits.def"
};

// Every part of the input space alike: patterns at even distances, and the usual interval at even steps.
std::vector<Lanes> run_of_inputs(const Family& f) {
    constexpr std::size_t count = 1 << 16;
    std::vector<Lanes> args;
    for (std::size_t a = 0; a < f.shape.args.size(); a++) {
        const Lane type = f.shape.args[a];
        Lanes lanes(type, count);
        std::uint64_t state = 0x9E3779B97F4A7C15 * (a + 1);
        for (std::size_t i = 0; i < count; i++) {
            state = state * 6364136223846793005 + 1442695040888963407;
            const std::uint64_t draw = state ^ state >> 29;
            if (i % 2 == 0 || a >= f.usual.size() || !is_float(type)) {
                lanes.set(i, draw & (bytes(type) == 8 ? ~0ull : 0xffffffff));
            } else {
                const auto [low, high] = f.usual[a];
                const double u = static_cast<double>(draw >> 11) * 0x1p-53;
                lanes.set(i, pattern_of(type, low + (high - low) * u));
            }
        }
        args.push_back(std::move(lanes));
    }
    return args;
}

std::uint64_t digest(const Function& f) {
    const auto args = run_of_inputs(f.family());
    Lanes result, second;
    f(args, result, &second);
    std::uint64_t h = 0xcbf29ce484222325;
    const auto add = [&](const Lanes& lanes) {
        for (std::size_t i = 0; i < lanes.size(); i++) {
            const bool nan = is_float(lanes.type()) && std::isnan(value_of(lanes.type(), lanes.pattern(i)));
            h = (h ^ (nan ? 1 : lanes.pattern(i))) * 0x100000001b3;
            h ^= h >> 32;
        }
    };
    add(result);
    add(second);
    return h;
}

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
