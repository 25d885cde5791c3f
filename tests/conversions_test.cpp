// Conversions against exact integer arithmetic: a number is an integer times a power of two, rounded in
// the direction of the suffix by shifting it, and clamped as the suffix says.
#include <gtest/gtest.h>

#include "samples.hpp"

namespace tarn::test {
namespace {

using Wide = __int128;

enum class Direction { nearest, down, up, zero };
constexpr Direction directions[] = {Direction::nearest, Direction::down, Direction::up, Direction::zero};
constexpr const char* mode_names[] = {"rte", "rtn", "rtp", "rtz"};

struct Format {
    int precision, least_exponent;  // of the last bit of the smallest numbers
    std::uint64_t infinity, sign;
};
const Format& format(Lane type) {
    static constexpr Format single{24, -149, 0x7F800000, 0x80000000};
    static constexpr Format twice{53, -1074, 0x7FF0000000000000, 0x8000000000000000};
    return type == Lane::f32 ? single : twice;
}

struct Number {
    bool negative, nan, infinite;
    Wide integer;
    int exponent;
};
Number number(Lane type, std::uint64_t p) {
    if (!is_float(type)) {
        const Wide v = type == Lane::i32 ? Wide(static_cast<std::int32_t>(p)) : type == Lane::i64 ? Wide(static_cast<std::int64_t>(p)) : Wide(p);
        return {v < 0, false, false, v < 0 ? -v : v, 0};
    }
    const Format& f = format(type);
    const std::uint64_t magnitude = p & ~f.sign, hidden = std::uint64_t{1} << (f.precision - 1);
    const int field = static_cast<int>(magnitude >> (f.precision - 1));
    const Wide integer = field == 0 ? magnitude : (magnitude & (hidden - 1)) | hidden;
    return {(p & f.sign) != 0, magnitude > f.infinity, magnitude == f.infinity, integer, (field == 0 ? 1 : field) - 1 + f.least_exponent};
}

// |x| in units of 2^unit, rounded in the direction of x; large values are all alike.
Wide rounded(const Number& x, int unit, Direction d) {
    const int shift = x.exponent - unit;
    if (x.integer == 0) return 0;
    if (shift >= 0) return shift > 70 ? Wide(1) << 100 : x.integer << shift;
    const int drop = -shift > 100 ? 100 : -shift;
    const Wide whole = x.integer >> drop, rest = x.integer - (whole << drop), half = Wide(1) << (drop - 1);
    const bool up = d == Direction::nearest ? rest > half || (rest == half && (whole & 1))
                    : rest != 0 && d == (x.negative ? Direction::down : Direction::up);
    return whole + up;
}

std::uint64_t to_integer(const Number& x, Lane to, Direction d, bool saturate) {
    const bool wide = bytes(to) == 8, is_signed = to == Lane::i32 || to == Lane::i64;
    const std::uint64_t all = wide ? ~0ull : 0xFFFFFFFF, top = wide ? 0x8000000000000000 : 0x80000000;
    if (x.nan) {
        if (!saturate) return top;
        return to == Lane::u32 && !x.negative ? all : 0;
    }
    const Wide magnitude = x.infinite ? Wide(1) << 100 : rounded(x, 0, d);
    const Wide value = x.negative && (saturate || to != Lane::u32) ? -magnitude : magnitude;  // u32 drops the sign
    const Wide low = is_signed ? -Wide(top) : 0, high = is_signed ? Wide(top) - 1 : Wide(all);
    if (value >= low && value <= high) return static_cast<std::uint64_t>(value) & all;
    if (!saturate) return top;
    return static_cast<std::uint64_t>(value < low ? low : high) & all;
}

std::uint64_t to_floating(const Number& x, Lane to, Direction d) {
    const Format& f = format(to);
    const std::uint64_t sign = x.negative ? f.sign : 0;
    if (x.nan) return f.infinity + 1;
    if (x.infinite) return f.infinity | sign;
    if (x.integer == 0) return sign;
    int length = 0;
    for (Wide v = x.integer; v != 0; v >>= 1) length++;
    const int unit = std::max(f.least_exponent, x.exponent + length - f.precision);
    const Wide significand = rounded(x, unit, d);
    // Counting from the subnormals on, a carry included.
    Wide p = significand + (Wide(unit - f.least_exponent) << (f.precision - 1));
    const bool away = d == Direction::nearest || d == (x.negative ? Direction::down : Direction::up);
    if (p >= Wide(f.infinity)) p = away ? f.infinity : f.infinity - 1;
    return static_cast<std::uint64_t>(p) | sign;
}

std::vector<std::uint64_t> inputs(Lane from) {
    auto v = edges(from);
    std::mt19937_64 random(20);
    if (is_float(from)) {
        const auto around = [&](double x) {
            for (const double signed_x : {x, -x})
                for (std::int64_t step = -3; step <= 3; step++) v.push_back(pattern_of(from, signed_x) + static_cast<std::uint64_t>(step));
        };
        for (int e = -3; e <= 65; e++)
            for (const double offset : {-1.5, -1.0, -0.5, 0.0, 0.5, 1.0, 1.5}) around(std::ldexp(1.0, e) + offset);
        for (const double x : {0x1p-150, 0x1.8p-150, 0x1p-149, 0x1.8p-149, 0x1p-126, 0x1.fffffep127, 0x1.ffffffp127, 0x1p128, 1e-50}) around(x);
        for (int i = 0; i < 150000; i++) {
            const double scale = std::ldexp(1.0, static_cast<int>(random() % 68) - 2);
            const double x = static_cast<double>(random() >> 11) * 0x1p-53 * scale;
            v.push_back(pattern_of(from, random() & 1 ? x : -x));
            v.push_back(pattern_of(from, std::floor(x) + 0.5));
            v.push_back(random() & (from == Lane::f32 ? 0xFFFFFFFF : ~0ull));
            // In the range of the other format, subnormals included, and its ties.
            if (from == Lane::f64) v.push_back((random() % 280 + 873) << 52 | random() >> 12);
            if (from == Lane::f64) v.push_back(((random() % 255 + 896) << 52 | random() >> 12) & ~0x0FFFFFFFull);
        }
    } else {
        const int size = 8 * bytes(from);
        const std::uint64_t mask = size == 64 ? ~0ull : 0xFFFFFFFF;
        for (int e = 0; e < size; e++)
            for (std::uint64_t offset = 0; offset < 5; offset++) {
                const std::uint64_t x = (std::uint64_t{1} << e) + offset - 2;
                v.push_back(x & mask), v.push_back(-x & mask);
            }
        for (int i = 0; i < 150000; i++) {
            // Every length; ties and their neighbours.
            const std::uint64_t x = random() >> (random() % 64);
            v.push_back(x & mask);
            const int length = 64 - std::countl_zero(x);
            for (const int precision : {24, 53})
                if (length > precision) {
                    const int drop = length - precision;
                    const std::uint64_t tie = (x >> drop << drop) | std::uint64_t{1} << (drop - 1);
                    for (const std::uint64_t near : {tie, tie - 1, tie + 1}) v.push_back(near & mask), v.push_back(-near & mask);
                }
        }
    }
    return v;
}

class Conversion : public testing::TestWithParam<Member> {};

TEST_P(Conversion, RoundsTheExactNumber) {
    const Family& f = *GetParam().family;
    const Lane from = f.shape.args[0], to = f.shape.result;
    const bool saturate = f.base.find("nosat") == std::string::npos;
    Direction d{};
    for (int i = 0; i < 4; i++)
        if (f.base.find(mode_names[i]) != std::string::npos) d = directions[i];
    const auto patterns = inputs(from);
    std::vector<Lanes> args = {Lanes(from, patterns.size())};
    for (std::size_t i = 0; i < patterns.size(); i++) args[0].set(i, patterns[i]);
    Lanes result;
    GetParam().at(4)(args, result);
    for (std::size_t i = 0; i < patterns.size(); i++) {
        const Number x = number(from, args[0].pattern(i));
        const std::uint64_t truth = is_float(to) ? to_floating(x, to, d) : to_integer(x, to, d, saturate);
        ASSERT_TRUE(same(to, result.pattern(i), truth))
            << f.base << '(' << lanes_text(args, i) << ") = " << hex(result.pattern(i)) << ", not " << hex(truth);
    }
}

std::vector<Member> conversions() {
    auto all = members();
    std::erase_if(all, [](const Member& m) { return !m.family->base.starts_with("cvt"); });
    return all;
}
INSTANTIATE_TEST_SUITE_P(Module, Conversion, testing::ValuesIn(conversions()), [](const auto& info) { return member_name(info); });

TEST(Conversions, AreAHundred) { EXPECT_EQ(conversions().size(), 100u); }

}  // namespace
}  // namespace tarn::test
