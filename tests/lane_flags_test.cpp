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

TEST_P(LaneFlags, AreThoseOfTheLanesAlone) {
    const Member& m = GetParam();
    const Family& family = *m.family;
    const Function wide = m.at(4);
    const auto args = by_path(family, samples(family, 3000, 21))[0];
    const auto vector = [&](std::size_t from, std::size_t step, std::size_t lanes, std::uint64_t last) {
        std::vector<Lanes> v;
        for (const Lanes& arg : args) {
            v.emplace_back(arg.type(), 4);
            for (std::size_t i = 0; i < 4; i++) v.back().set(i, i < lanes ? arg.pattern((from + i * step) % arg.size()) : last);
        }
        return v;
    };
    for (const int width : {1, 2, 3}) {
        if (m.variant == Variant::full && std::any_of(family.width_full.begin(), family.width_full.end(), [&](const auto& own) { return own.first == width; })) continue;
        const Function f = m.at(width);
        int failures = 0;
        for (std::size_t i = 0; i < args[0].size(); i += 3) {
            const auto n = static_cast<std::size_t>(width);
            // Whatever width 3 carries, an all-ones NaN or a one that would be invalid.
            const int narrow = raised_by(f, vector(i, 1, n, i % 2 ? ~0ull : bytes(args[0].type()) == 4 ? 0x7F800001 : 0x7FF0000000000001));
            int alone = 0;
            for (std::size_t l = 0; l < n; l++) alone |= raised_by(wide, vector(i + l, 0, 4, 0));
            if (narrow == alone) continue;
            if (failures++ < 2) ADD_FAILURE() << f.name() << '(' << lanes_text(vector(i, 1, n, 0), 0) << ", ...) raises " << std::hex << narrow << ", its lanes " << alone;
        }
        if (failures > 2) ADD_FAILURE() << f.name() << ": " << failures << " calls";
    }
}

INSTANTIATE_TEST_SUITE_P(Module, LaneFlags, testing::ValuesIn(members()), [](const auto& info) { return member_name(info); });

}  // namespace
}  // namespace tarn::test
