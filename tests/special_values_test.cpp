// Special values and the exceptions that belong to them: one table for all families, held in both precisions, every
// form and width, in every lane between ordinary ones.
#include <gtest/gtest.h>
#include <xmmintrin.h>

#include <cfenv>
#include <iterator>
#include <sstream>

#include "samples.hpp"

namespace tarn::test {
namespace {

constexpr double inf = std::numeric_limits<double>::infinity(), nan = std::numeric_limits<double>::quiet_NaN();
constexpr double snan = std::numeric_limits<double>::signaling_NaN();
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

bool signalling(Lane type, std::uint64_t p) {
    const std::uint64_t quiet = type == Lane::f32 ? 0x00400000 : 0x0008000000000000;
    return is_float(type) && std::isnan(value_of(type, p)) && (p & quiet) == 0;
}
std::uint64_t pattern_in(Lane type, double v) {
    const std::uint64_t p = pattern_of(Lane::f64, v);
    if (signalling(Lane::f64, p)) return type == Lane::f32 ? 0x7FA00000 : p;
    using Single = std::numeric_limits<float>;
    if (type == Lane::f32 && std::fabs(v) == largest) v = std::copysign(static_cast<double>(Single::max()), v);
    if (type == Lane::f32 && std::fabs(v) == least) v = std::copysign(static_cast<double>(Single::denorm_min()), v);
    return pattern_of(type, v);
}

// Whether a form keeps to it: native and half forms have their own errors, and beyond their domain any value.
bool promised(const Member& m, const Case& c) {
    if (m.variant == Variant::full) return true;
    const auto& domain = m.family->native_domain;
    for (std::size_t a = 0; a < domain.size(); a++)
        if (!(c.args[a] >= domain[a].low && c.args[a] <= domain[a].high)) return false;
    return !std::isfinite(c.result) || c.result == 0;
}
std::vector<std::string> listed(const char* families) {
    std::istringstream names(families);
    return {std::istream_iterator<std::string>(names), {}};
}
std::vector<const Case*> cases_of(const Member& m) {
    const std::string suffix = m.family->shape.args[0] == Lane::f32 ? "f" : "";
    std::vector<const Case*> found;
    for (const Case& c : cases)
        for (const auto& name : listed(c.families))
            if (m.family->base == name + suffix && promised(m, c)) found.push_back(&c);
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
    for (const auto& [flag, name] : {std::pair{FE_INVALID, "invalid"}, {FE_DIVBYZERO, "divide"},
                                     {FE_OVERFLOW, "overflow"}, {FE_UNDERFLOW, "underflow"}, {FE_INEXACT, "inexact"}})
        if (raised & flag) text += std::string(text.empty() ? "" : " ") + name;
    return text.empty() ? "nothing" : text;
}

// All lanes alike, and lane 3 of width 3 a signalling NaN.
std::vector<Lanes> splat(const Family& f, int width, const std::vector<std::uint64_t>& args) {
    const std::size_t stored = width == 3 ? 4 : static_cast<std::size_t>(width);
    std::vector<Lanes> lanes;
    for (std::size_t a = 0; a < args.size(); a++) {
        lanes.emplace_back(f.shape.args[a], stored);
        for (std::size_t i = 0; i < stored; i++) lanes[a].set(i, args[a]);
        if (width == 3 && is_float(f.shape.args[a])) lanes[a].set(3, pattern_in(f.shape.args[a], snan));
    }
    return lanes;
}
std::vector<std::uint64_t> patterns(const Family& f, const Case& c) {
    std::vector<std::uint64_t> p;
    for (std::size_t a = 0; a < c.args.size(); a++) p.push_back(pattern_in(f.shape.args[a], c.args[a]));
    return p;
}
bool right(const Family& f, const Case& c, std::uint64_t got) {
    return same(f.shape.result, got, pattern_in(f.shape.result, c.result)) && !signalling(f.shape.result, got);
}
// In the middle of the usual interval, or 1.
std::vector<std::uint64_t> ordinary(const Family& f) {
    std::vector<std::uint64_t> p;
    for (std::size_t a = 0; a < f.shape.args.size(); a++) {
        const auto [low, high] = a < f.usual.size() ? f.usual[a] : Interval{1, 1};
        p.push_back(pattern_of(f.shape.args[a], low * 0.375 + high * 0.625));
    }
    return p;
}

class SpecialValue : public testing::TestWithParam<Member> {};

bool has_nan(const Case& c) {
    return std::any_of(c.args.begin(), c.args.end(), [](double arg) { return std::isnan(arg); });
}

// What may be raised: inexact by anything, and underflow where the square of a tiny argument vanishes.
int deserved(const Case& c) {
    const bool tiny = std::any_of(c.args.begin(), c.args.end(),
                                  [](double arg) { return arg != 0 && std::fabs(arg) <= 1e-30; });
    return c.raises | FE_INEXACT | (tiny ? FE_UNDERFLOW : 0);
}

// Exceptions that a result deserves and a form does not raise: a pole that tanpif writes as bits, and a signalling NaN
// that goes into an estimate of the processor's, which raises nothing.
bool is_silent(const Member& m, const Case& c) {
    const auto& estimates = m.family->estimates;
    const bool estimates_first = std::find(estimates.begin(), estimates.end(), m.variant) != estimates.end();
    return (m.family->base == "tanpif" && c.raises == pole) ||
           (m.variant != Variant::full && estimates_first && has_nan(c));
}

TEST_P(SpecialValue, InEveryLane) {
    const Family& f = *GetParam().family;
    for (const Case* c : cases_of(GetParam())) {
        const auto special = patterns(f, *c);
        const int wanted = c->raises == any || is_silent(GetParam(), *c) ? 0 : c->raises & ~FE_INEXACT;
        for (const int width : widths) {
            const Function function = GetParam().at(width);
            // There a NaN comes back as it went.
            const bool gives_nan_back = function.name() == "__ocl_tarn_k1_exp2f4";
            for (std::size_t position = 0; position < static_cast<std::size_t>(width); position++) {
                auto lanes = splat(f, width, ordinary(f));
                for (std::size_t a = 0; a < special.size(); a++) lanes[a].set(position, special[a]);
                const Called got = call(function, lanes);
                const auto lane = got.result.pattern(position);
                const std::string text = function.name() + '(' + lanes_text(lanes, position) + ") in lane " +
                                         std::to_string(position);
                EXPECT_TRUE(right(f, *c, lane) || (gives_nan_back && lane == special[0])) << text << " = " << hex(lane);
                EXPECT_EQ(names_of(wanted & ~got.raised), "nothing") << text << " does not raise it";
            }
        }
    }
}

// Kernels compute their special lanes along with the others before they replace them, and ask for ranges with
// comparisons that raise invalid for any NaN: what these families may raise beside what the result deserves. Inexact
// is not looked at.
struct Spurious {
    const char* families;
    int at_nan, elsewhere;
};
const Spurious all_spurious[] = {
#include "spurious_exceptions.def"
};
Spurious spurious_of(const Family& f) {
    for (const Spurious& s : all_spurious)
        for (const auto& name : listed(s.families))
            if (name == f.base) return s;
    return {"", 0, 0};
}

TEST_P(SpecialValue, RaisesNothingElse) {
    const Family& f = *GetParam().family;
    const Spurious spurious = spurious_of(f);
    for (const Case* c : cases_of(GetParam())) {
        const int allowed = deserved(*c) | (has_nan(*c) ? spurious.at_nan : spurious.elsewhere);
        for (const int width : widths) {
            const Function function = GetParam().at(width);
            const auto lanes = splat(f, width, patterns(f, *c));
            const Called got = call(function, lanes);
            EXPECT_EQ(names_of(got.raised & ~allowed), "nothing")
                << function.name() << '(' << lanes_text(lanes, 0) << ')';
        }
    }
}

std::vector<Member> with_cases() {
    auto all = members();
    std::erase_if(all, [](const Member& m) { return cases_of(m).empty(); });
    return all;
}
INSTANTIATE_TEST_SUITE_P(Module, SpecialValue, testing::ValuesIn(with_cases()),
                         [](const auto& info) { return member_name(info); });

// A list that has become too long tells callers less than is true.
TEST(SpecialValues, StillRaiseWhatIsSpurious) {
    for (const Spurious& s : all_spurious)
        for (const auto& name : listed(s.families)) {
            const Family* f = find_family(name);
            ASSERT_TRUE(f) << name;
            if (name == "fma") continue;  // nothing, where the processor fuses
            int at_nan = 0, elsewhere = 0;
            for (const Member& m : with_cases()) {
                if (m.family != f) continue;
                for (const Case* c : cases_of(m))
                    for (const int width : widths) {
                        const Called got = call(m.at(width), splat(*f, width, patterns(*f, *c)));
                        (has_nan(*c) ? at_nan : elsewhere) |= got.raised & ~deserved(*c);
                    }
            }
            EXPECT_EQ(names_of(s.at_nan & ~at_nan), "nothing") << name << " of a NaN";
            EXPECT_EQ(names_of(s.elsewhere & ~elsewhere), "nothing") << name;
        }
}

TEST(SpecialValues, NameFamiliesThatExist) {
    for (const Case& c : cases) {
        for (const auto& name : listed(c.families))
            for (const auto& base : {name, name + 'f'}) {
                const Family* f = find_family(base);
                ASSERT_TRUE(f) << base;
                EXPECT_EQ(f->shape.args.size(), c.args.size()) << base;
            }
    }
}

}  // namespace
}  // namespace tarn::test
