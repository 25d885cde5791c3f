// Rounding, sign and bit-level functions against the C library, which defines most of them alike; what
// OpenCL asks for beside it is said here.
#include <fenv.h>
#include <gtest/gtest.h>

#include "samples.hpp"

namespace tarn::test {
namespace {

template <class Real> using Pattern = std::conditional_t<sizeof(Real) == 4, std::uint32_t, std::uint64_t>;
template <class Real> constexpr Lane lane_of = sizeof(Real) == 4 ? Lane::f32 : Lane::f64;
template <class Real> Real real(std::uint64_t p) { return std::bit_cast<Real>(static_cast<Pattern<Real>>(p)); }
template <class Real> std::uint64_t pattern(Real x) { return std::bit_cast<Pattern<Real>>(x); }

template <class Real> class Lanewise : public testing::Test {
protected:
    // Arguments that touch every edge, and numbers of every size and near integers.
    static std::vector<std::uint64_t> arguments() {
        auto v = edges(lane_of<Real>);
        std::mt19937_64 random(30);
        for (int i = 0; i < 60000; i++) {
            v.push_back(random() & (sizeof(Real) == 4 ? 0xFFFFFFFF : ~0ull));
            const double x = std::ldexp(static_cast<double>(random() >> 11), static_cast<int>(random() % 60) - 55);
            for (const double y : {x, -x, std::floor(x) + 0.5, -std::floor(x) - 0.5, std::floor(x)}) v.push_back(pattern(static_cast<Real>(y)));
        }
        for (const double x : {0.49999997, 0x1.fffffffffffffp-2, 0x1p22, 0x1p23, 0x1p51, 0x1p52, -1e-10, -1e-40, 1e-320})
            for (int step = -2; step <= 2; step++) v.push_back(pattern(static_cast<Real>(x)) + static_cast<std::uint64_t>(step));
        return v;
    }

    static std::string base(const char* name) { return std::string(name) + (sizeof(Real) == 4 ? "f" : ""); }

    // Holds the export of width 4 against `truth`, which gives the result and may set the second one.
    template <class... A, class Truth>
    static void expect(const char* name, const std::vector<Lanes>& args, Truth truth) {
        const auto f = module().find(base(name), 4);
        ASSERT_TRUE(f) << name;
        Lanes result, second;
        (*f)(args, result, &second);
        for (std::size_t i = 0; i < result.size(); i++) {
            std::uint64_t other = 0;
            const std::uint64_t expected = truth(i, other);
            ASSERT_TRUE(same(result.type(), result.pattern(i), expected))
                << base(name) << '(' << lanes_text(args, i) << ") = " << hex(result.pattern(i)) << ", not " << hex(expected);
            if (second.size()) {
                ASSERT_TRUE(same(second.type(), second.pattern(i), other))
                    << base(name) << '(' << lanes_text(args, i) << ") stores " << hex(second.pattern(i)) << ", not " << hex(other);
            }
            // A NaN is never a signalling one, unless its bits alone were asked for.
            const bool nan = is_float(result.type()) && std::isnan(value_of(result.type(), expected));
            const bool bits_only = base(name) == base("fabs") || base(name) == base("copysign");
            if (nan && !bits_only) {
                ASSERT_TRUE(result.pattern(i) & (sizeof(Real) == 4 ? 0x00400000 : 0x0008000000000000))
                    << base(name) << '(' << lanes_text(args, i) << ") is a signalling NaN";
            }
        }
    }
    static std::vector<Lanes> one(const std::vector<std::uint64_t>& x) {
        std::vector<Lanes> args = {Lanes(lane_of<Real>, x.size())};
        for (std::size_t i = 0; i < x.size(); i++) args[0].set(i, x[i]);
        return args;
    }
    // All pairs of edges, and neighbours in the list with equal or opposite signs.
    static std::vector<Lanes> two() {
        const auto e = edges(lane_of<Real>), all = arguments();
        std::vector<std::pair<std::uint64_t, std::uint64_t>> pairs;
        for (const auto x : e)
            for (const auto y : e) pairs.emplace_back(x, y);
        for (std::size_t i = 0; i + 7 < all.size(); i++) pairs.emplace_back(all[i], all[i + 1 + i % 6]);
        std::vector<Lanes> args(2, Lanes(lane_of<Real>, pairs.size()));
        for (std::size_t i = 0; i < pairs.size(); i++) args[0].set(i, pairs[i].first), args[1].set(i, pairs[i].second);
        return args;
    }
    template <class Function> static void expect_unary(const char* name, Function f) {
        const auto args = one(arguments());
        expect(name, args, [&](std::size_t i, std::uint64_t&) {
            const auto r = f(real<Real>(args[0].pattern(i)));
            if constexpr (std::is_same_v<decltype(r), const int>) return std::uint64_t{static_cast<std::uint32_t>(r)};
            else return pattern(r);
        });
    }
    template <class Function> static void expect_second(const char* name, Function f) {
        const auto args = one(arguments());
        expect(name, args, [&](std::size_t i, std::uint64_t& second) { return pattern(f(real<Real>(args[0].pattern(i)), second)); });
    }
    template <class Function> static void expect_binary(const char* name, Function f) {
        const auto args = two();
        expect(name, args, [&](std::size_t i, std::uint64_t&) {
            return pattern(f(real<Real>(args[0].pattern(i)), real<Real>(args[1].pattern(i))));
        });
    }
};
using Precisions = testing::Types<float, double>;
TYPED_TEST_SUITE(Lanewise, Precisions);

TYPED_TEST(Lanewise, RoundsToIntegers) {
    using R = TypeParam;
    this->expect_unary("ceil", [](R x) { return std::ceil(x); });
    this->expect_unary("floor", [](R x) { return std::floor(x); });
    this->expect_unary("trunc", [](R x) { return std::trunc(x); });
    this->expect_unary("round", [](R x) { return std::round(x); });
}

TYPED_TEST(Lanewise, FollowsTheCallersRoundingMode) {
    using R = TypeParam;
    for (const int mode : {FE_TONEAREST, FE_DOWNWARD, FE_UPWARD, FE_TOWARDZERO}) {
        fesetround(mode);
        this->expect_unary("rint", [](R x) { return std::rint(x); });
        this->expect_unary("nearbyint", [](R x) { return std::nearbyint(x); });
        fesetround(FE_TONEAREST);
    }
    const auto args = this->one({pattern(R(2.5))});
    Lanes result;
    feclearexcept(FE_ALL_EXCEPT);
    (*module().find(this->base("nearbyint"), 1))(args, result);
    EXPECT_FALSE(fetestexcept(FE_INEXACT));
    (*module().find(this->base("rint"), 1))(args, result);
    EXPECT_TRUE(fetestexcept(FE_INEXACT));
}

TYPED_TEST(Lanewise, TouchesTheSignAlone) {
    using R = TypeParam;
    this->expect_unary("fabs", [](R x) { return std::fabs(x); });
    this->expect_binary("copysign", [](R x, R y) { return std::copysign(x, y); });
    // The bits of a NaN too, which the comparisons above take for one value.
    const std::uint64_t quiet = sizeof(R) == 4 ? 0x7FC00000 : 0x7FF8000000000000;
    Lanes codes(sizeof(R) == 4 ? Lane::u32 : Lane::u64, 4), result;
    for (std::size_t i = 0; i < 4; i++) codes.set(i, i * 0x1234);
    (*module().find(this->base("nan"), 4))({codes}, result);
    for (std::size_t i = 0; i < 4; i++) EXPECT_EQ(result.pattern(i), quiet | i * 0x1234);
    const std::uint64_t sign = sizeof(R) == 4 ? 0x80000000 : 0x8000000000000000;
    (*module().find(this->base("fabs"), 1))(this->one({sign | (quiet + 5)}), result);
    EXPECT_EQ(result.pattern(0), quiet + 5);
}

// One NaN is ignored, a signalling one too, which the C library may not do; two zeros give the second.
template <class R> R c_min(R x, R y) { return std::isnan(x) ? y : std::isnan(y) ? x : x < y ? x : y; }
template <class R> R c_max(R x, R y) { return std::isnan(x) ? y : std::isnan(y) ? x : x > y ? x : y; }

TYPED_TEST(Lanewise, ChoosesBySizeAndMagnitude) {
    using R = TypeParam;
    this->expect_binary("fmin", [](R x, R y) { return c_min(x, y); });
    this->expect_binary("fmax", [](R x, R y) { return c_max(x, y); });
    this->expect_binary("fdim", [](R x, R y) { return std::fdim(x, y); });
    // Between equal magnitudes the processor's maximum of (y, x) gives x for two zeros.
    this->expect_binary("maxmag", [](R x, R y) {
        return std::fabs(x) > std::fabs(y) ? x : std::fabs(y) > std::fabs(x) ? y : std::isnan(x) || std::isnan(y) ? c_max(x, y) : y > x ? y : x;
    });
    this->expect_binary("minmag", [](R x, R y) {
        return std::fabs(x) < std::fabs(y) ? x : std::fabs(y) < std::fabs(x) ? y : std::isnan(x) || std::isnan(y) ? c_min(x, y) : y < x ? y : x;
    });
}

TYPED_TEST(Lanewise, ReadsTheExponent) {
    using R = TypeParam;
    this->expect_second("frexp", [](R x, std::uint64_t& second) {
        int e = 0;
        const R m = std::isfinite(x) ? std::frexp(x, &e) : x;
        second = static_cast<std::uint32_t>(e);
        return m;
    });
    this->expect_unary("ilogb", [](R x) -> int {
        return x == 0 ? std::numeric_limits<int>::min() : !std::isfinite(x) ? std::numeric_limits<int>::max() : std::ilogb(x);
    });
    this->expect_unary("logb", [](R x) { return std::logb(x); });
}

TYPED_TEST(Lanewise, ScalesInOneRounding) {
    using R = TypeParam;
    const auto x = this->arguments();
    std::mt19937_64 random(31);
    std::vector<Lanes> args = {Lanes(lane_of<R>, 3 * x.size()), Lanes(Lane::i32, 3 * x.size())};
    constexpr std::int32_t ends[] = {0, 1, -1, 23, 24, 25, 52, 53, 54, 127, 200, -200, 255, 2047, 1000000, -1000000,
                                     std::numeric_limits<std::int32_t>::max(), std::numeric_limits<std::int32_t>::min()};
    for (std::size_t i = 0; i < args[0].size(); i++) {
        const std::uint64_t p = x[i % x.size()];
        args[0].set(i, p);
        std::int32_t n = ends[random() % std::size(ends)];
        if (i % 3 == 1) n = static_cast<std::int32_t>(random() % 4600) - 2300;
        // To the edges of the subnormals and of overflow.
        if (i % 3 == 2 && real<R>(p) != 0 && std::isfinite(real<R>(p)))
            n = (random() & 1 ? std::numeric_limits<R>::max_exponent : std::numeric_limits<R>::min_exponent - static_cast<int>(random() % 56)) -
                std::ilogb(real<R>(p)) + static_cast<int>(random() % 5) - 2;
        args[1].set(i, static_cast<std::uint32_t>(n));
    }
    this->expect("ldexp", args, [&](std::size_t i, std::uint64_t&) {
        return pattern(std::ldexp(real<R>(args[0].pattern(i)), static_cast<std::int32_t>(args[1].pattern(i))));
    });
}

TYPED_TEST(Lanewise, SplitsOffTheFraction) {
    using R = TypeParam;
    this->expect_second("modf", [](R x, std::uint64_t& second) {
        R whole;
        const R fraction = std::modf(x, &whole);
        second = pattern(whole);
        return fraction;
    });
    this->expect_second("fract", [](R x, std::uint64_t& second) {
        second = pattern(std::floor(x));
        if (x == 0 || std::isinf(x)) return std::copysign(R(0), x);
        const R below_one = R(1) - std::numeric_limits<R>::epsilon() / 2;
        return std::isnan(x) ? x : std::min(x - std::floor(x), below_one);
    });
}

TYPED_TEST(Lanewise, StepsToTheNeighbour) {
    this->expect_binary("nextafter", [](TypeParam x, TypeParam y) { return std::nextafter(x, y); });
}

}  // namespace
}  // namespace tarn::test
