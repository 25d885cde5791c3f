// Arguments made to be hard, by a method for each: logarithms whose result is all that cancellation leaves, powers of
// numbers next to 1, powers and exponentials on both sides of the overflow and underflow lines.
#include <gtest/gtest.h>

#include "estimates.hpp"
#include "expect_ulp.hpp"

namespace tarn::test {
namespace {

using Rows = std::vector<std::vector<double>>;

// Both precisions of a family, each argument with its neighbours at some distances.
void expect_stated(const std::string& name, const Rows& rows, const std::vector<int>& steps) {
    for (const auto& base : {name, name + 'f'}) {
        const Family& family = *find_family(base);
        std::vector<Lanes> args;
        for (const Lane type : family.shape.args) args.emplace_back(type, rows.size() * steps.size());
        std::size_t i = 0;
        for (const auto& row : rows)
            for (const int step : steps) {
                for (std::size_t a = 0; a < args.size(); a++)
                    args[a].set(i, pattern_of(args[a].type(), row[a]) + (a == 0 ? static_cast<std::uint64_t>(step) : 0));
                i++;
            }
        std::vector<int> own = {16};
        for (const auto& [width, worst] : family.width_full) own.push_back(width);
        for (const int width : own) {
            const Function f = module().find({&family, width, Variant::full}).value();
            expect_ulp(f, args, limit_here(f));
        }
    }
}

// 1 +- 2^-j and everything within some steps of each: results down to 2^-52 of the terms they are made of.
TEST(HardCases, LogarithmsNextToOne) {
    Rows near_one, near_zero, above_one;
    for (int j = 1; j <= 52; j++)
        for (const double part : {1.0, 1.25, 1.4375, 1.8125}) {
            const double d = std::ldexp(part, -j);
            near_one.push_back({1 + d}), near_one.push_back({1 - d / 2}), above_one.push_back({1 + d});
            near_zero.push_back({d}), near_zero.push_back({-d / 2});
        }
    std::vector<int> steps;
    for (int step = -12; step <= 12; step++) steps.push_back(step);
    for (const char* name : {"log", "log2", "log10"}) expect_stated(name, near_one, steps);
    for (const char* name : {"log1p", "expm1", "atanh", "asinh", "tanh", "sinh"}) expect_stated(name, near_zero, steps);
    // Step by step from 1 on, where the root of x^2 - 1 begins.
    std::vector<int> upward;
    for (int step = 0; step <= 24; step++) upward.push_back(step);
    expect_stated("acosh", above_one, upward);
}

// Where x^y meets the largest number, the least normal and the least number of each format: y = line / log2 x, for x next
// to 1, next to powers of two and at random.
TEST(HardCases, PowersAtTheEndsOfTheRange) {
    Rows bases, powers;
    std::mt19937_64 random(15);
    for (int j = 1; j <= 40; j++) bases.push_back({1 + std::ldexp(1.0, -j)}), bases.push_back({1 - std::ldexp(1.0, -j)});
    for (int i = 0; i < 300; i++) bases.push_back({std::ldexp(static_cast<double>(random() >> 11), static_cast<int>(random() % 60) - 83)});
    for (const auto& base : bases) {
        const double bits = std::log2(base[0]);
        if (bits == 0) continue;
        for (const double line : {128.0, -126.0, -149.0, -150.0, 1024.0, -1022.0, -1074.0, -1075.0, 1e-3, 0.5})
            for (const double nudge : {1 - 0x1p-40, 1 - 0x1p-22, 1.0, 1 + 0x1p-22, 1 + 0x1p-40}) powers.push_back({base[0], line / bits * nudge});
    }
    for (const char* name : {"pow", "powr"}) expect_stated(name, powers, {-1, 0, 1});
}

// The last arguments that give a number, and the first that do not, stepped through; found by halving.
TEST(HardCases, ExponentialsAtTheEndsOfTheRange) {
    for (const auto& [name, per_bit] : {std::pair{"exp", std::log(2.0)}, {"exp2", 1.0}, {"exp10", std::log10(2.0)}}) {
        Rows rows;
        for (const double line : {128.0, -126.0, -149.0, -150.0, 1024.0, -1022.0, -1074.0, -1075.0}) rows.push_back({line * per_bit});
        std::vector<int> steps;
        for (int step = -300; step <= 300; step++) steps.push_back(step);
        expect_stated(name, rows, steps);
    }
}

// Quotients and roots halfway between two numbers, or as near to it as there are: the square of a number with its last
// bit set and its neighbours; the product of two numbers that rounds from next to the middle.
TEST(HardCases, RootsAndQuotientsNextToTheMiddle) {
    Rows squares, quotients;
    std::mt19937_64 random(16);
    for (int i = 0; i < 3000; i++) {
        // 25 and 54 bits: the middle of two floats, and of two doubles as far as their squares are doubles.
        for (const int bits : {25, 26}) {
            const double middle = std::ldexp(static_cast<double>((random() >> (64 - bits)) | 1 | (std::uint64_t{1} << (bits - 1))), 1 - bits);
            squares.push_back({middle * middle});
            const double divisor = std::ldexp(static_cast<double>(random() >> 40 | 1), -23);
            quotients.push_back({middle * divisor, divisor});
        }
    }
    expect_stated("sqrt", squares, {-1, 0, 1});
    expect_stated("rsqrt", squares, {-1, 0, 1});
    expect_stated("div", quotients, {-1, 0, 1});
}

}  // namespace
}  // namespace tarn::test
