// The doubles that are hardest to reduce: random arguments never come near a multiple of pi/2 and hide a
// reduction that keeps too few bits. In each binade they are the denominators of the continued fraction
// of 2^e 2/pi.
#include <gtest/gtest.h>

#include "expect_ulp.hpp"

namespace tarn::test {
namespace {

std::vector<double> hard_angles() {
    const auto usual = Real::precision;
    Real::precision = 1400;
    std::vector<double> angles;
    for (int e = -60; e <= 971; e++) {
        Real rest = exp2(Real(e)) * Real(2) / Real::pi();
        double before = 1, denominator = 0;
        for (int i = 0; i < 60; i++) {
            const Real whole = floor(rest);
            const double next = whole.nearest() * denominator + before;
            if (!(next < 0x1p53)) break;
            before = denominator, denominator = next;
            for (double multiple = denominator; multiple > 0 && multiple < 0x1p53 && multiple <= 3 * denominator; multiple += denominator)
                angles.push_back(std::ldexp(multiple, e));
            rest = Real(1) / (rest - whole);
        }
    }
    Real::precision = usual;
    return angles;
}

TEST(HardAngles, AreReducedAsExactlyAsAnyOther) {
    const auto angles = hard_angles();
    ASSERT_GT(angles.size(), 50000u);
    for (const char* base : {"sin", "cos", "sincos", "tan"}) {
        const Family& family = *find_family(base);
        const auto f = module().find({&family, 16, Variant::full});
        ASSERT_TRUE(f) << base;
        Lanes all(Lane::f64, angles.size());
        for (std::size_t i = 0; i < angles.size(); i++) all.set(i, std::bit_cast<std::uint64_t>(angles[i]));
        for (const auto& args : by_path(family, {all})) expect_ulp(*f, args, family.full.ulp * 1.0005);
    }
}

}  // namespace
}  // namespace tarn::test
