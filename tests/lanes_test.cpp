// A lane's result depends on that lane alone: not on its neighbours, its position, the width, or what
// width 3 carries in lane 3; and nothing is written beyond the lanes of a width.
#include <gtest/gtest.h>

#include "samples.hpp"

namespace tarn::test {
namespace {

bool own_kernel(const Member& m, int width) {
    if (m.variant != Variant::full) return false;
    for (const auto& [w, worst] : m.family->width_full)
        if (w == width) return true;
    return false;
}

class LaneIndependence : public testing::TestWithParam<Member> {};

// Rotating the inputs by one lane gives every lane another position and other neighbours. In width 1 it
// has none.
TEST_P(LaneIndependence, NeighboursAndPositionDoNotMatter) {
    const Member& m = GetParam();
    for (const auto& args : by_path(*m.family, samples(*m.family, 20000, 2))) {
        const std::size_t n = args[0].size();
        for (const int width : widths) {
            const Function f = m.at(width);
            const Results here(f, args);
            std::vector<Lanes> moved;
            for (const Lanes& arg : args) {
                moved.emplace_back(arg.type(), n);
                for (std::size_t i = 0; i < n; i++) moved.back().set((i + 1) % n, arg.pattern(i));
            }
            const Results there(f, moved);
            for (std::size_t i = 0; i < n; i++) {
                const std::string difference = here.difference(i, there, (i + 1) % n);
                ASSERT_EQ(difference, "") << f.name() << '(' << lanes_text(args, i) << ")";
            }
        }
    }
}

TEST_P(LaneIndependence, WidthsGiveTheSameBits) {
    const Member& m = GetParam();
    for (const auto& args : by_path(*m.family, samples(*m.family, 20000, 3))) {
        const Results wide(m.at(16), args);
        for (const int width : widths) {
            if (own_kernel(m, width)) continue;
            const Results narrow(m.at(width), args);
            for (std::size_t i = 0; i < args[0].size(); i++) {
                const std::string difference = narrow.difference(i, wide, i);
                ASSERT_EQ(difference, "") << m.at(width).name() << '(' << lanes_text(args, i) << ") against width 16";
            }
        }
    }
}

// Special values one at a time in every position, between ordinary lanes.
TEST_P(LaneIndependence, OneSpecialLaneChangesOnlyItself) {
    const Member& m = GetParam();
    const Family& family = *m.family;
    if (family.switches_above != 0 || family.shares_blocks) GTEST_SKIP() << "tested with its paths";
    std::mt19937_64 random(4);
    for (const int width : widths) {
        const Function f = m.at(width);
        for (const auto special : structured(family, 0)) {
            for (int position = 0; position < width; position++) {
                std::vector<Lanes> args, plain;
                for (std::size_t a = 0; a < family.shape.args.size(); a++) {
                    args.emplace_back(family.shape.args[a], static_cast<std::size_t>(width));
                    for (int i = 0; i < width; i++) args[a].set(static_cast<std::size_t>(i), random_lane(family, a, true, random));
                }
                plain = args;
                args[0].set(static_cast<std::size_t>(position), special);
                const Results with(f, args), without(f, plain);
                for (int i = 0; i < width; i++) {
                    if (i == position) continue;
                    const auto lane = static_cast<std::size_t>(i);
                    ASSERT_EQ(with.difference(lane, without, lane), "")
                        << f.name() << " lane " << i << " beside " << hex(special) << " in lane " << position;
                }
            }
        }
    }
}

TEST_P(LaneIndependence, SecondResultEndsWithItsLanes) {
    const Member& m = GetParam();
    const Shape& shape = m.family->shape;
    if (shape.second == Lane::none || shape.pair) GTEST_SKIP() << "one result, or both returned";
    for (const int width : widths) {
        const Function f = m.at(width);
        const std::size_t stored = width == 3 ? 4 : static_cast<std::size_t>(width);
        const std::size_t size = stored * static_cast<std::size_t>(bytes(shape.second));
        for (const auto special : structured(*m.family, 0)) {
            // An odd address, with guards before and after.
            constexpr std::size_t guard = 33;
            std::vector<std::byte> memory(size + 2 * guard, std::byte{0xA5}), result(stored * 8);
            Lanes input(shape.args[0], stored);
            for (std::size_t i = 0; i < stored; i++) input.set(i, special);
            const std::byte* pointers[] = {input.data(), input.data()};
            f.batch()(f.address(), pointers, result.data(), memory.data() + guard, 1);
            for (std::size_t i = 0; i < memory.size(); i++) {
                if (i >= guard && i < guard + size) continue;
                ASSERT_EQ(memory[i], std::byte{0xA5}) << f.name() << " byte " << static_cast<long>(i) - static_cast<long>(guard);
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Module, LaneIndependence, testing::ValuesIn(members()), [](const auto& info) { return member_name(info); });

class PathSwitch : public testing::TestWithParam<Member> {};

// One large lane sends a whole call down the other path: each lane then gives what it gives beside any
// other large lane.
TEST_P(PathSwitch, AnyLargeLaneSwitchesTheWholeCall) {
    const Member& m = GetParam();
    const Family& family = *m.family;
    if (family.switches_above == 0) GTEST_SKIP() << "one path";
    const Lane type = family.shape.args[0];
    for (const int width : {2, 3, 4, 8, 16}) {
        const Function f = m.at(width);
        const auto ordinary = by_path(family, samples(family, 2000, 5))[0];
        const auto beside = [&](double large, std::size_t i, int position) {
            std::vector<Lanes> args = {Lanes(type, static_cast<std::size_t>(width))};
            for (int l = 0; l < width; l++)
                args[0].set(static_cast<std::size_t>(l), l == position ? pattern_of(type, large) : ordinary[0].pattern(i));
            return Results(f, args);
        };
        for (std::size_t i = 0; i < ordinary[0].size(); i += 7) {
            const Results a = beside(family.switches_above * 2, i, 0);
            const Results b = beside(family.switches_above * 1e20, i, width - 1);
            ASSERT_EQ(a.difference(1, b, width > 2 ? 1 : 0), "") << f.name() << '(' << lanes_text(ordinary, i) << ')';
        }
    }
}

// The exact limit does not switch, its neighbour does, whatever lane it is in; a zero or a NaN beside it stays what it
// is (of the zero's sign nothing is said there), and does not switch by itself.
TEST_P(PathSwitch, TheNeighbourOfTheLimitSwitchesFromAnyLane) {
    const Member& m = GetParam();
    const Family& family = *m.family;
    if (family.switches_above == 0) GTEST_SKIP() << "one path";
    if (family.base == "cos") GTEST_SKIP() << "its limit is one of |x + pi/2|";
    const Lane type = family.shape.args[0];
    const std::uint64_t limit = pattern_of(type, family.switches_above), sign = type == Lane::f32 ? 0x80000000 : 0x8000000000000000;
    const std::uint64_t nan = pattern_of(type, __builtin_nan("")), ordinary = pattern_of(type, 1.8125);
    for (const int width : {2, 3, 4, 8, 16}) {
        const Function f = m.at(width);
        const auto lanes_with = [&](std::uint64_t fill, std::uint64_t one, int position) {
            std::vector<Lanes> args = {Lanes(type, static_cast<std::size_t>(width))};
            for (int l = 0; l < width; l++) args[0].set(static_cast<std::size_t>(l), l == position ? one : fill);
            return args;
        };
        for (int position = 0; position < width; position++) {
            const auto other = static_cast<std::size_t>(position == 0 ? 1 : 0), here = static_cast<std::size_t>(position);
            for (const std::uint64_t s : {std::uint64_t{0}, sign}) {
                const Results plain(f, lanes_with(ordinary, ordinary, 0));
                const Results at_limit(f, lanes_with(ordinary, limit | s, position));
                EXPECT_EQ(at_limit.difference(other, plain, other), "") << f.name() << " beside the limit in lane " << position;
                const Results alone(f, lanes_with((limit + 1) | s, (limit + 1) | s, 0));
                const Results beside(f, lanes_with(ordinary, (limit + 1) | s, position));
                EXPECT_EQ(beside.difference(here, alone, here), "")
                    << f.name() << ": the neighbour of the limit in lane " << position;
                const Results zero(f, lanes_with(s, limit + 1, position));
                const Results not_a_number(f, lanes_with(nan, limit + 1, position));
                const Results zeros(f, lanes_with(s, s, 0));
                if (value_of(type, zeros.first.pattern(0)) == 0) {
                    EXPECT_EQ(value_of(type, zero.first.pattern(other)), 0)
                        << f.name() << " of a zero beside a large lane " << position;
                }
                EXPECT_TRUE(std::isnan(value_of(type, not_a_number.first.pattern(other))))
                    << f.name() << " of a NaN beside a large lane " << position;
                EXPECT_EQ(not_a_number.difference(here, Results(f, lanes_with(limit + 1, limit + 1, 0)), here), "")
                    << f.name() << " beside a NaN in lane " << position;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Module, PathSwitch, testing::ValuesIn(members()), [](const auto& info) { return member_name(info); });

}  // namespace
}  // namespace tarn::test
