// What mathematics says of functions and of pairs of them, bit for bit: of every form and width, over the whole range
// of its arguments. A fault that a function shares with the model it is compared with still shows here.
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <set>

#include "exports/text.hpp"
#include "samples.hpp"

namespace tarn::test {
namespace {

std::uint64_t sign_of(Lane type) { return 1ull << (8 * bytes(type) - 1); }

std::vector<Lanes> with_first_negated(std::vector<Lanes> args) {
    for (std::size_t i = 0; i < args[0].size(); i++) args[0].set(i, args[0].pattern(i) ^ sign_of(args[0].type()));
    return args;
}

// Another function of the same precision and form.
Function other(const Member& m, int width, const std::string& base) {
    return module().find(m.family->shape.args[0] == Lane::f32 ? base + 'f' : base, width, m.variant).value();
}

// Each function against each width: `expected` says what lane i is by the relation.
class Relations : public testing::TestWithParam<Member> {
protected:
    const Family& family() const { return *GetParam().family; }
    bool is_one_of(const std::set<std::string>& bases) const { return bases.contains(name_of_both(family())); }

    // At every width and on either path of a call.
    void everywhere(const std::function<void(int width, const std::vector<Lanes>& args)>& check) const {
        for (const auto& args : by_path(family(), samples(family(), 10000, 21)))
            for (const int width : widths) check(width, args);
    }
    static void expect_equal(const Function& f, const std::vector<Lanes>& args, const Lanes& got, const Lanes& expected,
                             std::uint64_t flipped = 0) {
        for (std::size_t i = 0; i < args[0].size(); i++)
            ASSERT_TRUE(same(got.type(), got.pattern(i), expected.pattern(i) ^ flipped))
                << f.name() << '(' << lanes_text(args, i) << ") gives " << hex(expected.pattern(i))
                << " and by the relation " << hex(got.pattern(i) ^ flipped);
    }
};

// Left out are the native cosf, which moves its angle by a quarter of a turn first, and tanpif, where a negative angle
// takes a row of the table that is not the other's mirrored.
TEST_P(Relations, OddAndEven) {
    if (family().base == "tanpif" || (family().base == "cosf" && GetParam().variant != Variant::full)) return;
    const bool odd = is_one_of({"sin",   "tan",  "sinpi", "tanpi", "asin",  "atan", "asinpi",    "atanpi", "sinh",
                                "tanh",  "asinh", "atanh", "erf",   "cbrt",  "rcbrt", "inv",      "trunc",  "rint",
                                "round", "nearbyint", "atan2", "atan2pi", "fmod", "remainder", "modf"});
    const bool even = is_one_of({"cos", "cospi", "cosh", "fabs", "hypot", "ilogb", "logb"});
    if (!odd && !even) return;
    const Lane type = family().shape.result;
    everywhere([&](int width, const std::vector<Lanes>& args) {
        const Function f = GetParam().at(width);
        Lanes plain, negated, second, negated_second;
        f(args, plain, &second);
        f(with_first_negated(args), negated, &negated_second);
        expect_equal(f, args, negated, plain, odd ? sign_of(type) : 0);
    });
}

TEST_P(Relations, ArgumentsThatMayBeExchanged) {
    if (!is_one_of({"hypot"})) return;
    everywhere([&](int width, const std::vector<Lanes>& args) {
        const Function f = GetParam().at(width);
        Lanes here, there;
        f(args, here);
        f({args[1], args[0]}, there);
        expect_equal(f, args, there, here);
    });
}

TEST_P(Relations, ResultsKeepTheirRange) {
    struct Limits {
        double low, high;
    };
    constexpr double pi = 0x1.921fb54442d18p+1, inf = std::numeric_limits<double>::infinity();
    static const std::map<std::string, Limits> all = {
        {"exp", {0, inf}}, {"exp2", {0, inf}}, {"exp10", {0, inf}}, {"expm1", {-1, inf}}, {"powr", {0, inf}},
        {"sqrt", {-0.0, inf}}, {"hypot", {0, inf}}, {"sin", {-1, 1}}, {"cos", {-1, 1}}, {"sinpi", {-1, 1}},
        {"cospi", {-1, 1}}, {"asin", {-pi / 2, pi / 2}}, {"acos", {0, pi}}, {"atan", {-pi / 2, pi / 2}},
        {"atan2", {-pi, pi}},
        {"asinpi", {-0.5, 0.5}}, {"acospi", {0, 1}}, {"atanpi", {-0.5, 0.5}}, {"atan2pi", {-1, 1}}, {"cosh", {1, inf}},
        {"tanh", {-1, 1}}, {"acosh", {0, inf}}, {"erf", {-1, 1}}, {"erfc", {0, 2}}};
    const auto found = all.find(name_of_both(family()));
    if (found == all.end() || GetParam().variant != Variant::full) return;
    const Lane type = family().shape.result;
    everywhere([&](int width, const std::vector<Lanes>& args) {
        const Function f = GetParam().at(width);
        Lanes result;
        f(args, result);
        for (std::size_t i = 0; i < result.size(); i++) {
            const double y = value_of(type, result.pattern(i));
            // Ends are rounded to the type: half pi in single precision is above the number.
            const double low = value_of(type, pattern_of(type, found->second.low));
            const double high = value_of(type, pattern_of(type, found->second.high));
            ASSERT_FALSE(y < low || y > high)
                << f.name() << '(' << lanes_text(args, i) << ") = " << y;
        }
    });
}

// In single precision; the native forms and those in double reduce their angle once, another way.
TEST_P(Relations, SineAndCosineTogetherAreThemselves) {
    if ((family().base != "sincosf" && family().base != "sincosregf") || GetParam().variant != Variant::full) return;
    everywhere([&](int width, const std::vector<Lanes>& args) {
        const Function f = GetParam().at(width);
        Lanes sine, cosine, alone;
        f(args, sine, &cosine);
        other(GetParam(), width, "sin")(args, alone);
        expect_equal(f, args, alone, sine);
        other(GetParam(), width, "cos")(args, alone);
        expect_equal(f, args, alone, cosine);
    });
}

// x = integral part + fraction, significand 2^exponent, quotient y + remainder.
TEST_P(Relations, PartsMakeTheWhole) {
    if (!is_one_of({"modf", "frexp", "remquo"})) return;
    const Lane type = family().shape.args[0];
    everywhere([&](int width, const std::vector<Lanes>& args) {
        const Function f = GetParam().at(width);
        Lanes first, second, whole;
        f(args, first, &second);
        if (is_one_of({"frexp"})) {
            other(GetParam(), width, "ldexp")({first, second}, whole);
            for (std::size_t i = 0; i < whole.size(); i++)
                ASSERT_TRUE(same(type, whole.pattern(i), args[0].pattern(i)))
                    << f.name() << '(' << lanes_text(args, i) << ')';
        } else if (is_one_of({"remquo"})) {
            other(GetParam(), width, "remainder")(args, whole);
            expect_equal(f, args, whole, first);
        } else {
            for (std::size_t i = 0; i < first.size(); i++) {
                const double x = value_of(type, args[0].pattern(i));
                const double fraction = value_of(type, first.pattern(i)), integral = value_of(type, second.pattern(i));
                if (!std::isfinite(x)) continue;
                ASSERT_TRUE(integral == std::trunc(x) && fraction == x - integral) << f.name() << '(' << x << ')';
                ASSERT_TRUE(std::signbit(fraction) == std::signbit(x) && std::signbit(integral) == std::signbit(x))
                    << f.name() << '(' << x << ')';
            }
        }
    });
}

INSTANTIATE_TEST_SUITE_P(Families, Relations, testing::ValuesIn(members()),
                         [](const auto& info) { return info.param.name(); });

// Conversions to integers: up is down of the negated, towards zero is the one of them that is nearer to it, and where
// the value fits saturation changes nothing.
class Directions : public testing::TestWithParam<std::string> {};

TEST_P(Directions, MirrorEachOther) {
    const std::string base = GetParam();
    const bool single = base.ends_with('f');
    const std::string stem = base.substr(0, base.size() - (single ? 1 : 0));
    for (const int width : widths) {
        const auto at = [&](const std::string& direction, const std::string& saturation) {
            return module().find(stem + direction + saturation + (single ? "f" : ""), width).value();
        };
        const Family& family = at("rtn", "sat").family();
        const auto args = samples(family, 20000, 22), mirrored = with_first_negated(args);
        const Lane type = family.shape.result;
        const int bits = 8 * bytes(type);
        const double top = std::ldexp(1, bits - 1);
        Lanes down, up, zero, nearest, up_of_mirrored, loose;
        at("rtn", "sat")(args, down), at("rtp", "sat")(args, up);
        at("rtz", "sat")(args, zero), at("rte", "sat")(args, nearest);
        at("rtp", "sat")(mirrored, up_of_mirrored), at("rtn", "nosat")(args, loose);
        for (std::size_t i = 0; i < down.size(); i++) {
            const double x = value_of(args[0].type(), args[0].pattern(i));
            if (!(std::fabs(x) < top - 1)) continue;
            const auto number = [&](const Lanes& l) -> std::int64_t {
                return bits == 64 ? static_cast<std::int64_t>(l.pattern(i)) : static_cast<std::int32_t>(l.pattern(i));
            };
            ASSERT_EQ(number(down), -number(up_of_mirrored)) << base << '(' << x << ')';
            ASSERT_EQ(number(zero), x < 0 ? number(up) : number(down)) << base << '(' << x << ')';
            ASSERT_TRUE(number(nearest) == number(down) || number(nearest) == number(up)) << base << '(' << x << ')';
            ASSERT_EQ(number(loose), number(down)) << base << '(' << x << ')';
            ASSERT_LE(number(up) - number(down), 1) << base << '(' << x << ')';
        }
    }
}

INSTANTIATE_TEST_SUITE_P(ToIntegers, Directions,
                         testing::Values("cvtfptoi32", "cvtfptoi64", "cvtfptoi32f", "cvtfptoi64f"),
                         [](const auto& info) { return info.param; });

}  // namespace
}  // namespace tarn::test
