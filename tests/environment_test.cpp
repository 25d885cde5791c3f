// Kernels leave the floating-point environment as they found it, raise the flags that IEEE asks for, and
// stand whatever rounding mode or flush-to-zero they are called in.
#include <fenv.h>
#include <gtest/gtest.h>
#include <pmmintrin.h>
#include <xmmintrin.h>

#include <sstream>

#include "expect_ulp.hpp"

namespace tarn::test {
namespace {

// The two control words, put back at the end.
class Controls {
public:
    Controls() : mxcsr_(_mm_getcsr()) { __asm__ volatile("fnstcw %0" : "=m"(x87_)); }
    ~Controls() {
        _mm_setcsr(mxcsr_);
        __asm__ volatile("fldcw %0" : : "m"(x87_));
    }
    static unsigned mxcsr() { return _mm_getcsr() & ~static_cast<unsigned>(_MM_EXCEPT_MASK); }
    static unsigned short x87() {
        unsigned short word;
        __asm__ volatile("fnstcw %0" : "=m"(word));
        return word;
    }

private:
    unsigned mxcsr_;
    unsigned short x87_;
};

class Environment : public testing::TestWithParam<Member> {};

TEST_P(Environment, ControlWordsComeBack) {
    const Member& m = GetParam();
    const auto args = samples(*m.family, 500, 6);
    const Controls restored;
    for (const int width : widths) {
        // Unusual settings, so that a kernel which loads the usual ones is seen.
        _mm_setcsr((restored.mxcsr() | _MM_ROUND_UP) & ~static_cast<unsigned>(_MM_EXCEPT_MASK));
        const unsigned short down = 0x067F;
        __asm__ volatile("fldcw %0" : : "m"(down));
        const unsigned before = Controls::mxcsr();
        Lanes result, second;
        m.at(width)(args, result, &second);
        EXPECT_EQ(Controls::mxcsr(), before) << m.at(width).name();
        EXPECT_EQ(Controls::x87(), down) << m.at(width).name();
    }
}

// Whatever computes in the x87 unit loads its own settings: a caller's shorter precision changes no bit. The
// fused multiply-add alone follows the caller's rounding.
TEST_P(Environment, X87SettingsChangeNoBit) {
    const Member& m = GetParam();
    if (m.family->base == "fma" || m.family->base == "fmaf") GTEST_SKIP() << "rounds as the x87 control word says";
    const auto args = samples(*m.family, 2000, 9);
    const Function f = m.at(4);
    Lanes usual, found, second, second_found;
    f(args, usual, &second);
    {
        const Controls restored;
        const unsigned short down_to_24_bits = 0x047F;
        __asm__ volatile("fldcw %0" : : "m"(down_to_24_bits));
        f(args, found, &second_found);
    }
    for (std::size_t i = 0; i < usual.size(); i++) {
        ASSERT_TRUE(same(usual.type(), found.pattern(i), usual.pattern(i)))
            << f.name() << '(' << lanes_text(args, i) << ") = " << hex(found.pattern(i)) << ", not " << hex(usual.pattern(i));
    }
}

// A finite argument with a finite, defined value gives no NaN in any mode.
TEST_P(Environment, NoNaNFromTheMode) {
    const Member& m = GetParam();
    const Truth* truth = truth_of(*m.family);
    if (!truth || !is_float(m.family->shape.result)) GTEST_SKIP() << "exact: tested against integer arithmetic";
    std::vector<Lanes> args = samples(*m.family, 2000, 7);
    const Function f = m.at(4);
    Lanes nearest, second;
    f(args, nearest, &second);
    const unsigned modes[] = {_MM_ROUND_DOWN, _MM_ROUND_UP, _MM_ROUND_TOWARD_ZERO,
                              _MM_FLUSH_ZERO_ON | _MM_DENORMALS_ZERO_ON};
    for (const unsigned mode : modes) {
        Lanes result;
        {
            const Controls restored;
            _mm_setcsr((_mm_getcsr() & ~static_cast<unsigned>(_MM_ROUND_MASK)) | mode);
            f(args, result, &second);
        }
        for (std::size_t i = 0; i < result.size(); i++) {
            bool normal = true;
            for (const Lanes& arg : args)
                if (is_float(arg.type())) {
                    const double v = value_of(arg.type(), arg.pattern(i));
                    normal &= arg.type() == Lane::f32 ? std::isnormal(static_cast<float>(v)) : std::isnormal(v);
                }
            const double got = value_of(result.type(), result.pattern(i)), was = value_of(nearest.type(), nearest.pattern(i));
            if (!normal || std::isnan(was)) continue;
            ASSERT_FALSE(std::isnan(got)) << f.name() << '(' << lanes_text(args, i) << ") in mode " << std::hex << mode;
        }
    }
}

bool listed(const char* names, const std::string& base) {
    std::istringstream list(names);
    for (std::string name; list >> name;)
        if (name == base) return true;
    return false;
}

// What full forms keep of their accuracy in the other rounding modes, over the usual interval: largest errors found, in
// ulp, rounded up. Reductions that add and take away a large constant lose the most.
const struct {
    const char* families;
    double limit;
} directed[] = {
    {"tgamma tgammaf lgamma lgammaf lgammar lgammarf sqrt div invf inv rsqrt log1p acosh asinh atanh tanh log1pf divf", 1.0001},
    {"cbrt cbrtf rcbrt rcbrtf log2 sqrtf rsqrtf", 1.1},
    {"asinhf tanhf exp10 rootn pow powf pown powr acoshf logf hypotf hypot expm1 acos acosf log", 2.5},
    {"asin log10f atanhf log10 erff expm1f sinh log2f acospi asinf acospif asinpif atanpif", 5},
    {"atan2pif atanf atan2f asinpi", 7},
    {"erf cosh erfcf exp10f", 20},
    {"exp exp2 exp2f atan atan2 atanpi atan2pi sinhf coshf", 400},
    {"expf powrf rootnf pownf", 2500},
    {"erfc", 10000},
    {"sinf cosf sincosf sincosregf tanf sinpif cospif tanpif", 1e8},
    {"sin cos sincos sincosreg tan sinpi cospi tanpi", 5e12},
};

TEST_P(Environment, OtherRoundingModesKeepALimit) {
    const Member& m = GetParam();
    const Family& family = *m.family;
    if (m.variant != Variant::full || !truth_of(family)) GTEST_SKIP() << "full forms with rounding errors";
    double limit = 0;
    for (const auto& group : directed)
        if (listed(group.families, family.base)) limit = group.limit;
    ASSERT_GT(limit, 0) << family.base << " has no limit";
    std::mt19937_64 random(17);
    std::vector<Lanes> args;
    for (std::size_t a = 0; a < family.shape.args.size(); a++) {
        args.emplace_back(family.shape.args[a], 500);
        for (std::size_t i = 0; i < args[a].size(); i++) args[a].set(i, random_lane(family, a, true, random));
    }
    for (const unsigned mode : {_MM_ROUND_DOWN, _MM_ROUND_UP, _MM_ROUND_TOWARD_ZERO}) {
        Lanes result, second;
        const Function f = m.at(16);
        {
            const Controls restored;
            _mm_setcsr((_mm_getcsr() & ~static_cast<unsigned>(_MM_ROUND_MASK)) | mode);
            f(args, result, &second);
        }
        expect_ulp(f.name(), family, args, result, second, limit);
    }
}

bool normal_or_not_finite(Lane type, std::uint64_t pattern) {
    const double v = value_of(type, pattern);
    return !is_float(type) || v == 0 || !std::isfinite(v) || (type == Lane::f32 ? std::isnormal(static_cast<float>(v)) : std::isnormal(v));
}
// Flushing to zero changes nothing where neither an argument nor the result is subnormal, but where a step between is.
TEST_P(Environment, FlushingLeavesNormalNumbersAlone) {
    const Member& m = GetParam();
    const Family& family = *m.family;
    if (m.variant != Variant::full) GTEST_SKIP() << "full forms";
    // An intermediate number is subnormal, or the result is subnormal before it is rounded to the least normal one.
    constexpr const char* between = "sqrtf rsqrtf divf atan2f asinpi atanpi atan2pi ldexpf fmodf remainderf remquof fmod remainder remquo mad madf fma fmaf";
    if (listed(between, family.base)) GTEST_SKIP() << "subnormal steps";
    const auto args = samples(family, 2000, 7);
    const Function f = m.at(4);
    Lanes usual, flushed, second;
    f(args, usual, &second);
    {
        const Controls restored;
        _mm_setcsr(_mm_getcsr() | _MM_FLUSH_ZERO_ON | _MM_DENORMALS_ZERO_ON);
        f(args, flushed, &second);
    }
    for (std::size_t i = 0; i < usual.size(); i++) {
        bool normal = normal_or_not_finite(usual.type(), usual.pattern(i));
        for (const Lanes& arg : args) normal &= normal_or_not_finite(arg.type(), arg.pattern(i));
        if (!normal) continue;
        ASSERT_TRUE(same(usual.type(), flushed.pattern(i), usual.pattern(i)))
            << f.name() << '(' << lanes_text(args, i) << ") = " << hex(flushed.pattern(i)) << ", not " << hex(usual.pattern(i));
    }
}

// With DAZ a subnormal argument is a zero of its sign. A few may give the argument itself back, as they do with a zero.
TEST_P(Environment, SubnormalsAreZerosWithDaz) {
    const Member& m = GetParam();
    const Family& family = *m.family;
    if (m.variant != Variant::full || !truth_of(family) || family.shape.args.size() != 1) GTEST_SKIP() << "full forms of one argument";
    const bool comes_back = listed("asinh asinhf atanh atanhf cbrt cbrtf", family.base);
    const Lane type = family.shape.args[0];
    const std::uint64_t sign = type == Lane::f32 ? 0x80000000 : 0x8000000000000000, top = type == Lane::f32 ? 0x7FFFFF : 0xFFFFFFFFFFFFF;
    Lanes subnormal(type, 16), zero(type, 16), got, wanted, second;
    for (std::size_t i = 0; i < 16; i++) {
        const std::uint64_t p[] = {1, top, top / 3, top - 5};
        subnormal.set(i, p[i % 4] | (i & 4 ? sign : 0)), zero.set(i, i & 4 ? sign : 0);
    }
    for (const int width : widths) {
        const Function f = m.at(width);
        f({zero}, wanted, &second);
        const Controls restored;
        _mm_setcsr(_mm_getcsr() | _MM_FLUSH_ZERO_ON | _MM_DENORMALS_ZERO_ON);
        f({subnormal}, got, &second);
        for (std::size_t i = 0; i < 16; i++)
            EXPECT_TRUE(same(type, got.pattern(i), wanted.pattern(i)) || (comes_back && got.pattern(i) == subnormal.pattern(i)))
                << f.name() << '(' << hex(subnormal.pattern(i)) << ") = " << hex(got.pattern(i)) << ", not " << hex(wanted.pattern(i));
    }
}

// Overflow and underflow are real events. (A special lane may raise more on the fast path, before its
// callout: flags are a promise that an event is seen, not that none is seen twice.)
TEST_P(Environment, FlagsTellWhatHappened) {
    const Member& m = GetParam();
    const Family& family = *m.family;
    const Truth* truth = truth_of(family);
    if (!truth || m.variant != Variant::full || family.shape.args.size() != 1 || family.allowed < 1 || bytes(family.shape.result) != bytes(family.shape.args[0]))
        GTEST_SKIP() << "full forms of one argument with rounding errors";
    const Lane type = family.shape.result;
    const auto args = samples(family, 300, 8);
    const Function f = m.at(1);
    for (std::size_t i = 0; i < args[0].size(); i++) {
        const std::vector<Lanes> lane = where(args, [&](std::size_t k) { return k == i; });
        const double x = value_of(type, args[0].pattern(i));
        Lanes result, second;
        feclearexcept(FE_ALL_EXCEPT);
        f(lane, result, &second);
        const int flags = fetestexcept(FE_ALL_EXCEPT);
        const double y = value_of(type, result.pattern(0));
        const std::string what = f.name() + '(' + lanes_text(lane, 0) + ')';
        Real t, argument = exact(type, args[0].pattern(i));
        truth->first(t.value, &argument);
        if (std::isinf(y) && std::isfinite(x) && mpfr_number_p(t.value)) { EXPECT_TRUE(flags & FE_OVERFLOW) << what; }
        if (y == 0 && !mpfr_zero_p(t.value)) { EXPECT_TRUE(flags & FE_UNDERFLOW) << what; }
    }
}

INSTANTIATE_TEST_SUITE_P(Module, Environment, testing::ValuesIn(members()), [](const auto& info) { return member_name(info); });

}  // namespace
}  // namespace tarn::test
