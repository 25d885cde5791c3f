// The callouts of sine, cosine and tangent on finite arguments. Their kernels send infinities and NaNs
// only, so that no export reaches the scalar reductions: they are linked in.
#include <gtest/gtest.h>

#include "callout/callouts.hpp"
#include "expect_ulp.hpp"

namespace tarn::test {
namespace {

float from_pattern(std::uint64_t p) { return std::bit_cast<float>(static_cast<std::uint32_t>(p)); }

// The bounds between the reductions with their neighbours; arguments next to a multiple of pi/4 and the
// first where the octant must come from an exact sum; random ones of every size.
std::vector<float> finite_arguments() {
    std::vector<float> v = {0x1p-149f, 0x1p-126f, 0x1.fffffep127f, 0x1.006a02p30f, 0x1.040306p21f};
    for (const float bound : {0x1p17f, 0x1p23f, 0x1p30f, 0x1p55f, 0x1p80f, 0x1p105f})
        for (int i = -200; i <= 200; i++) v.push_back(from_pattern(std::bit_cast<std::uint32_t>(bound) + static_cast<std::uint32_t>(i)));
    for (int n = 1; n < 4000; n++) v.push_back(static_cast<float>(n * 0.78539816339744831));
    std::mt19937_64 random(9);
    while (v.size() < 12000)
        if (const float x = from_pattern(random() & 0x7FFFFFFF); std::isfinite(x)) v.push_back(x);
    for (std::size_t i = v.size(); i-- > 0;) v.push_back(-v[i]);
    return v;
}

void expect_rounded_once(const char* base, const std::vector<float>& arguments, const std::vector<float>& results) {
    std::vector<Lanes> both(2, Lanes(Lane::f32, results.size()));
    for (std::size_t i = 0; i < results.size(); i++)
        both[0].set(i, std::bit_cast<std::uint32_t>(arguments[i])), both[1].set(i, std::bit_cast<std::uint32_t>(results[i]));
    expect_ulp(base, *find_family(base), {both[0]}, both[1], {}, 0.50001);
}

TEST(TrigCallouts, FiniteArgumentsAreRoundedOnce) {
    const auto x = finite_arguments();
    std::vector<float> sine(x.size()), cosine(x.size()), tangent(x.size());
    for (std::size_t i = 0; i < x.size(); i++) {
        float s, c;
        EXPECT_EQ(callout::sinf(&x[i], &sine[i]) | callout::cosf(&x[i], &cosine[i]) | callout::tanf(&x[i], &tangent[i]) |
                      callout::sincosf(&x[i], &s, &c),
                  callout::ordinary);
        ASSERT_TRUE(s == sine[i] && c == cosine[i]) << x[i];
    }
    expect_rounded_once("sinf", x, sine);
    expect_rounded_once("cosf", x, cosine);
    expect_rounded_once("tanf", x, tangent);
}

TEST(TrigCallouts, ZerosKeepTheirSignAndInfinitiesAreDomainErrors) {
    const float zero = -0.0f, infinity = INFINITY;
    float s, c;
    callout::sinf(&zero, &s), callout::tanf(&zero, &c);
    EXPECT_TRUE(s == 0 && std::signbit(s) && c == 0 && std::signbit(c));
    callout::sincosf(&zero, &s, &c);
    EXPECT_TRUE(s == 0 && std::signbit(s) && c == 1);
    EXPECT_EQ(callout::sincosf(&infinity, &s, &c), callout::domain_error);
    EXPECT_TRUE(std::isnan(s) && std::isnan(c));
}

}  // namespace
}  // namespace tarn::test
