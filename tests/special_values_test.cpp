// Special values and the exceptions that belong to them: one table for all families, held in both precisions, every
// form and width, in every lane between ordinary ones.
#include <gtest/gtest.h>
#include <xmmintrin.h>

#include <cfenv>
#include <sstream>

#include "samples.hpp"

namespace tarn::test {
namespace {

constexpr double inf = std::numeric_limits<double>::infinity(), nan = std::numeric_limits<double>::quiet_NaN();
// These stand for the same of either precision.
constexpr double largest = std::numeric_limits<double>::max(), least = std::numeric_limits<double>::denorm_min();

enum Raises : int {
    exact = 0,
    rounded = FE_INEXACT,
    invalid = FE_INVALID,
    pole = FE_DIVBYZERO,
    overflow = FE_OVERFLOW | FE_INEXACT,
    underflow = FE_UNDERFLOW | FE_INEXACT,
    any = FE_ALL_EXCEPT,
};

struct Case {
    const char* families;  // without the f of single precision
    std::vector<double> args;
    double result;
    int raises;
};
const Case cases[] = {
#include "special_values.def"
};

std::uint64_t pattern_in(Lane type, double v) {
    if (type == Lane::f32 && std::fabs(v) == largest) return pattern_of(type, std::copysign(static_cast<double>(std::numeric_limits<float>::max()), v));
    if (type == Lane::f32 && std::fabs(v) == least) return pattern_of(type, std::copysign(static_cast<double>(std::numeric_limits<float>::denorm_min()), v));
    return pattern_of(type, v);
}
bool signalling(Lane type, std::uint64_t p) {
    const std::uint64_t quiet = type == Lane::f32 ? 0x00400000 : 0x0008000000000000;
    return is_float(type) && std::isnan(value_of(type, p)) && (p & quiet) == 0;
}

std::vector<const Case*> cases_of(const Family& f) {
    std::vector<const Case*> found;
    for (const Case& c : cases) {
        std::istringstream names(c.families);
        for (std::string name; names >> name;)
            if (f.base == (f.shape.args[0] == Lane::f32 ? name + 'f' : name)) found.push_back(&c);
    }
    return found;
}

struct Called {
    Lanes result;
    int raised;
};
// One call, without a stop between the flags and it.
Called call(const Function& f, const std::vector<Lanes>& lanes) {
    const Shape& shape = f.family().shape;
    const std::size_t stored = f.width() == 3 ? 4 : static_cast<std::size_t>(f.width());
    Called c{Lanes(shape.result, stored), 0};
    Lanes second(shape.second, stored);
    const std::byte* pointers[3] = {};
    for (std::size_t a = 0; a < lanes.size(); a++) pointers[a] = lanes[a].data();
    std::feclearexcept(FE_ALL_EXCEPT);
    f.batch()(f.address(), pointers, c.result.data(), second.data(), 1);
    c.raised = std::fetestexcept(FE_ALL_EXCEPT);
    return c;
}

std::string names_of(int raised) {
    std::string text;
    for (const auto& [flag, name] : {std::pair{FE_INVALID, "invalid"}, {FE_DIVBYZERO, "divide"}, {FE_OVERFLOW, "overflow"}, {FE_UNDERFLOW, "underflow"}, {FE_INEXACT, "inexact"}})
        if (raised & flag) text += std::string(text.empty() ? "" : " ") + name;
    return text.empty() ? "nothing" : text;
}

class SpecialValue : public testing::TestWithParam<Member> {
protected:
    // All lanes alike, and lane 3 of width 3 a signalling NaN.
    static std::vector<Lanes> splat(const Family& f, int width, const std::vector<std::uint64_t>& args) {
        const std::size_t stored = width == 3 ? 4 : static_cast<std::size_t>(width);
        std::vector<Lanes> lanes;
        for (std::size_t a = 0; a < args.size(); a++) {
            lanes.emplace_back(f.shape.args[a], stored);
            for (std::size_t i = 0; i < stored; i++) lanes[a].set(i, args[a]);
            if (width == 3 && is_float(f.shape.args[a])) lanes[a].set(3, f.shape.args[a] == Lane::f32 ? 0x7F800001 : 0x7FF0000000000001);
        }
        return lanes;
    }
    static std::vector<std::uint64_t> patterns(const Family& f, const Case& c) {
        std::vector<std::uint64_t> p;
        for (std::size_t a = 0; a < c.args.size(); a++) p.push_back(pattern_in(f.shape.args[a], c.args[a]));
        return p;
    }
    static bool right(const Family& f, const Case& c, std::uint64_t got) {
        return same(f.shape.result, got, pattern_in(f.shape.result, c.result)) && !signalling(f.shape.result, got);
    }
    // In the middle of the usual interval, or 1.
    static std::vector<std::uint64_t> ordinary(const Family& f) {
        std::vector<std::uint64_t> p;
        for (std::size_t a = 0; a < f.shape.args.size(); a++) {
            const auto [low, high] = a < f.usual.size() ? f.usual[a] : Interval{1, 1};
            p.push_back(pattern_of(f.shape.args[a], low * 0.375 + high * 0.625));
        }
        return p;
    }
};

TEST_P(SpecialValue, InEveryLane) {
    const Family& f = *GetParam().family;
    for (const Case* c : cases_of(f)) {
        const auto special = patterns(f, *c);
        for (const int width : widths) {
            const Function function = GetParam().at(width);
            for (int position = 0; position < width; position++) {
                auto lanes = splat(f, width, ordinary(f));
                for (std::size_t a = 0; a < special.size(); a++) lanes[a].set(static_cast<std::size_t>(position), special[a]);
                const Called got = call(function, lanes);
                const auto lane = got.result.pattern(static_cast<std::size_t>(position));
                EXPECT_TRUE(right(f, *c, lane)) << function.name() << '(' << lanes_text(lanes, static_cast<std::size_t>(position)) << ") in lane " << position << " = " << hex(lane);
                const int wanted = c->raises & ~FE_INEXACT;
                // A pole that tanpif writes as bits.
                const bool written = f.base == "tanpif" && c->raises == pole;
                if (c->raises != any && !written) { EXPECT_EQ(got.raised & wanted, wanted) << function.name() << '(' << lanes_text(lanes, static_cast<std::size_t>(position)) << ") in lane " << position << " raises " << names_of(got.raised); }
            }
        }
    }
}

// Kernels compute their special lanes along with the others, and those may raise what that computation raises. These
// families raise nothing but what belongs to the result.
const char* const raise_nothing_else[] = {
#include "quiet_families.def"
};

TEST_P(SpecialValue, RaisesNothingElse) {
    const Family& f = *GetParam().family;
    if (std::find(std::begin(raise_nothing_else), std::end(raise_nothing_else), f.base) == std::end(raise_nothing_else)) GTEST_SKIP() << "may raise more";
    for (const Case* c : cases_of(f)) {
        if (c->raises == any) continue;
        for (const int width : {4, 8, 16}) {
            const Function function = GetParam().at(width);
            const auto lanes = splat(f, width, patterns(f, *c));
            const Called got = call(function, lanes);
            const int allowed = c->raises == exact ? 0 : c->raises | FE_INEXACT;
            EXPECT_EQ(names_of(got.raised & ~allowed), "nothing") << function.name() << '(' << lanes_text(lanes, 0) << ')';
        }
    }
}

std::vector<Member> with_cases() {
    auto all = members();
    std::erase_if(all, [](const Member& m) { return m.variant != Variant::full || cases_of(*m.family).empty(); });
    return all;
}
INSTANTIATE_TEST_SUITE_P(Module, SpecialValue, testing::ValuesIn(with_cases()), [](const auto& info) { return member_name(info); });

TEST(SpecialValues, NameFamiliesThatExist) {
    for (const Case& c : cases) {
        std::istringstream names(c.families);
        for (std::string name; names >> name;)
            for (const auto& base : {name, name + 'f'}) {
                const Family* f = find_family(base);
                ASSERT_TRUE(f) << base;
                EXPECT_EQ(f->shape.args.size(), c.args.size()) << base;
            }
    }
}

}  // namespace
}  // namespace tarn::test
