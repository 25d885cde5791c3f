// A call raises what its lanes raise, each for itself: the lanes that widths 1, 2 and 3 carry beside theirs raise
// nothing.
#include <gtest/gtest.h>

#include <cfenv>

#include "samples.hpp"

namespace tarn::test {
namespace {

class LaneFlags : public testing::TestWithParam<Member> {};

int raised_by(const Function& f, const std::vector<Lanes>& lanes) {
    const std::size_t stored = f.width() == 3 ? 4 : static_cast<std::size_t>(f.width());
    const Shape& shape = f.family().shape;
    Lanes result(shape.result, stored), second(shape.second, stored);
    const std::byte* pointers[3] = {};
    for (std::size_t a = 0; a < lanes.size(); a++) pointers[a] = lanes[a].data();
    std::feclearexcept(FE_ALL_EXCEPT);
    f.batch()(f.address(), pointers, result.data(), second.data(), 1);
    return std::fetestexcept(FE_ALL_EXCEPT);
}

// `lanes` lanes from `from` on, wrapping round, in a vector of 4; the others hold `rest`.
std::vector<Lanes> vector_of(const std::vector<Lanes>& args, std::size_t from, std::size_t lanes, std::uint64_t rest) {
    std::vector<Lanes> v;
    for (const Lanes& arg : args) {
        v.emplace_back(arg.type(), 4);
        for (std::size_t i = 0; i < 4; i++) v.back().set(i, i < lanes ? arg.pattern((from + i) % arg.size()) : rest);
    }
    return v;
}

TEST_P(LaneFlags, AreThoseOfTheLanesAlone) {
    const Member& m = GetParam();
    const Family& family = *m.family;
    const Function wide = m.at(4);
    const auto args = by_path(family, samples(family, 3000, 21))[0];
    // Whatever width 3 carries: NaNs, the second one signalling.
    const std::uint64_t carried[] = {~0ull, bytes(args[0].type()) == 4 ? 0x7F800001ull : 0x7FF0000000000001ull};
    for (const int width : {1, 2, 3}) {
        const bool has_own_kernel = std::any_of(family.width_full.begin(), family.width_full.end(),
                                                [&](const auto& own) { return own.first == width || own.first == 4; });
        if (m.variant == Variant::full && has_own_kernel) continue;
        const Function f = m.at(width);
        const auto lanes = static_cast<std::size_t>(width);
        int failures = 0;
        for (std::size_t i = 0; i < args[0].size(); i += 3) {
            const auto together = vector_of(args, i, lanes, carried[i % 2]);
            const int raised = raised_by(f, together);
            int alone = 0;
            for (std::size_t l = 0; l < lanes; l++) {
                auto four = vector_of(args, i + l, 1, 0);
                for (Lanes& arg : four)
                    for (std::size_t k = 1; k < 4; k++) arg.set(k, arg.pattern(0));
                alone |= raised_by(wide, four);
            }
            if (raised != alone && failures++ < 2)
                ADD_FAILURE() << f.name() << '(' << lanes_text(together, 0) << ", ...) raises " << std::hex << raised
                              << ", its lanes " << alone;
        }
        EXPECT_LE(failures, 2) << f.name() << ": " << failures << " calls";
    }
}

INSTANTIATE_TEST_SUITE_P(Module, LaneFlags, testing::ValuesIn(members()),
                         [](const auto& info) { return member_name(info); });

}  // namespace
}  // namespace tarn::test
