// The vocabulary of the kernels, lane by lane against the language's own scalars: every name that stands for an
// instruction, at every size of vector that the level has. Compiled once for each level.
#include "frame/double_word.hpp"
#include "frame/simd.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>

namespace tarn::test {
namespace {

template <class V> constexpr int lanes_of = lane_count<V>;

std::mt19937_64 source(7);

// Any pattern, or a value from where conversions and comparisons change.
template <class Lane> Lane any() {
    const std::uint64_t draw = source();
    if constexpr (std::is_floating_point_v<Lane>) {
        constexpr Lane inf = std::numeric_limits<Lane>::infinity(), nan = std::numeric_limits<Lane>::quiet_NaN();
        const Lane known[] = {0, -Lane(0), 1, Lane(-1.5), Lane(0.5), Lane(2.5), inf, -inf, nan, std::numeric_limits<Lane>::denorm_min(),
                              std::numeric_limits<Lane>::min(), std::numeric_limits<Lane>::max(), Lane(0x1p31), Lane(-0x1p31), Lane(0x1p63)};
        if (draw % 3 == 0) return known[draw / 3 % std::size(known)];
        if (draw % 3 == 1) return static_cast<Lane>(static_cast<double>(static_cast<std::int64_t>(draw)) * 0x1p-50);
    }
    Lane lane;
    std::memcpy(&lane, &draw, sizeof lane);
    return lane;
}
template <class V> V any_vector() {
    V v;
    for (int i = 0; i < lanes_of<V>; i++) v[i] = any<LaneOf<V>>();
    return v;
}

// The same pattern; one NaN is as good as another.
template <class Lane> testing::AssertionResult alike(Lane a, Lane b) {
    if constexpr (std::is_floating_point_v<Lane>)
        if (a != a && b != b) return testing::AssertionSuccess();
    if (std::memcmp(&a, &b, sizeof a) == 0) return testing::AssertionSuccess();
    return testing::AssertionFailure() << +a << " and " << +b;
}

// f(lanes...) in each lane of what the vocabulary gave for the vectors.
template <class R, class F, class... V> void expect_lanes(const R& got, F f, const V&... x) {
    for (int i = 0; i < lanes_of<R>; i++) EXPECT_TRUE(alike<LaneOf<R>>(got[i], static_cast<LaneOf<R>>(f(x[i]...)))) << "lane " << i;
}

template <class V> class OfFloats : public testing::Test {};
#ifdef __AVX2__
using FloatVectors = testing::Types<f32x4, f64x2, f32x8, f64x4>;
using SingleVectors = testing::Types<f32x4, f32x8>;
using DoubleVectors = testing::Types<f64x2, f64x4>;
#else
using FloatVectors = testing::Types<f32x4, f64x2>;
using SingleVectors = testing::Types<f32x4>;
using DoubleVectors = testing::Types<f64x2>;
#endif
TYPED_TEST_SUITE(OfFloats, FloatVectors);

constexpr int rounds = 2000;

TYPED_TEST(OfFloats, ChoiceAndSign) {
    using V = TypeParam;
    using Lane = LaneOf<V>;
    for (int round = 0; round < rounds; round++) {
        const V x = any_vector<V>(), y = any_vector<V>();
        const BitsOf<V> mask = any_vector<BitsOf<V>>(), whole = x < y;
        expect_lanes(select(mask, x, y), [](auto m, Lane a, Lane b) { return m < 0 ? a : b; }, mask, x, y);
        expect_lanes(select(mask, Lane(3), y), [](auto m, Lane b) { return m < 0 ? Lane(3) : b; }, mask, y);
        expect_lanes(select(whole, bits(x), bits(y)), [](auto m, auto a, auto b) { return m ? a : b; }, whole, bits(x), bits(y));
        expect_lanes(where(whole, x), [](auto m, Lane a) { return m ? a : Lane(0); }, whole, x);
        expect_lanes(where(whole, Lane(-2)), [](auto m) { return m ? Lane(-2) : Lane(0); }, whole);
        // The second operand where either is a NaN or both are zeros.
        expect_lanes(min(x, y), [](Lane a, Lane b) { return a < b ? a : b; }, x, y);
        expect_lanes(max(x, y), [](Lane a, Lane b) { return a > b ? a : b; }, x, y);
        expect_lanes(min(x, Lane(1)), [](Lane a) { return a < 1 ? a : Lane(1); }, x);
        expect_lanes(max(Lane(0), x), [](Lane a) { return Lane(0) > a ? Lane(0) : a; }, x);
        expect_lanes(abs(x), [](Lane a) { return std::fabs(a); }, x);
        expect_lanes(negated(x), [](Lane a) { return -a; }, x);
        expect_lanes(or_bits(abs(x), sign_bit(y)), [](Lane a, Lane b) { return std::copysign(a, b); }, x, y);
        expect_lanes(xor_bits(x, sign_bit(y)), [](Lane a, Lane b) { return std::signbit(b) ? -a : a; }, x, y);
    }
}

TYPED_TEST(OfFloats, RoundingAndRoots) {
    using V = TypeParam;
    using Lane = LaneOf<V>;
    for (int i = 0; i < rounds; i++) {
        const V x = any_vector<V>();
        expect_lanes(round<Rounding::nearest>(x), [](Lane a) { return std::nearbyint(a); }, x);
        expect_lanes(round<Rounding::current_quiet>(x), [](Lane a) { return std::nearbyint(a); }, x);
        expect_lanes(round<Rounding::down>(x), [](Lane a) { return std::floor(a); }, x);
        expect_lanes(round<Rounding::up>(x), [](Lane a) { return std::ceil(a); }, x);
        expect_lanes(round<Rounding::zero>(x), [](Lane a) { return std::trunc(a); }, x);
        expect_lanes(sqrt(x), [](Lane a) { return std::sqrt(a); }, x);
    }
}

TYPED_TEST(OfFloats, SpecialLaneTests) {
    using V = TypeParam;
    using Lane = LaneOf<V>;
    const auto flagged = [](auto mask, int i) {  // by the sign of the lane, which a test of upper words leaves there
        std::int64_t wide[sizeof mask / 8];
        std::int32_t narrow[sizeof mask / 4];
        std::memcpy(wide, &mask, sizeof mask), std::memcpy(narrow, &mask, sizeof mask);
        return sizeof(Lane) == 8 ? wide[i] < 0 : narrow[i] < 0;
    };
    for (int round = 0; round < rounds; round++) {
        const V x = any_vector<V>();
        const auto finite = not_finite(x), normal = not_positive_normal(x);
        const BitsOf<V> within = not_within(x, Lane(100)), below = x < 1;
        for (int i = 0; i < lanes_of<V>; i++) {
            EXPECT_EQ(flagged(finite, i), !std::isfinite(x[i])) << x[i];
            EXPECT_EQ(flagged(normal, i), !(std::isnormal(x[i]) && x[i] > 0)) << x[i];
            EXPECT_EQ(flagged(within, i), !(std::fabs(x[i]) <= 100)) << x[i];
        }
        unsigned expected = 0;
        for (int i = 0; i < lanes_of<V>; i++) expected |= static_cast<unsigned>(x[i] < 1) << i;
        EXPECT_EQ(gathered(below), expected);
    }
}

TYPED_TEST(OfFloats, Integers) {
    using V = TypeParam;
    using I = BitsOf<V>;
    using Lane = LaneOf<I>;
    using Plain = std::make_unsigned_t<Lane>;
    for (int round = 0; round < rounds; round++) {
        const I a = any_vector<I>(), b = any_vector<I>();
        const int count = static_cast<int>(source() % (8 * sizeof(Lane)));
        expect_lanes(shift_right_logical(a, count), [&](Lane v) { return static_cast<Lane>(static_cast<Plain>(v) >> count); }, a);
        expect_lanes(wrapping_sum(a, b), [](Lane v, Lane w) { return static_cast<Lane>(static_cast<Plain>(v) + static_cast<Plain>(w)); }, a, b);
        expect_lanes(wrapping_difference(a, b), [](Lane v, Lane w) { return static_cast<Lane>(static_cast<Plain>(v) - static_cast<Plain>(w)); }, a, b);
        expect_lanes(for_each_lane(a, [](auto v) { return v ^ 1; }), [](Lane v) { return v ^ 1; }, a);
    }
}

template <class V> class OfSingles : public testing::Test {};
TYPED_TEST_SUITE(OfSingles, SingleVectors);

TYPED_TEST(OfSingles, ConversionsAndWords) {
    using V = TypeParam;
    using I = BitsOf<V>;
    using U = Unsigned<V>;
    constexpr int half = lanes_of<V> / 2;
    for (int round = 0; round < rounds; round++) {
        const V x = any_vector<V>();
        const I v = any_vector<I>(), w = any_vector<I>();
        expect_lanes(to_f32(v), [](std::int32_t n) { return static_cast<float>(n); }, v);
        expect_lanes(to_i32(x), [](float a) { return a >= -0x1p31f && a < 0x1p31f ? static_cast<std::int32_t>(a) : INT32_MIN; }, x);
        const auto low = widen_low(x), high = widen_high(x);
        for (int i = 0; i < half; i++) {
            EXPECT_TRUE(alike<double>(low[i], x[i]));
            EXPECT_TRUE(alike<double>(high[i], x[half + i]));
            EXPECT_EQ(to_f64(v)[i], v[i]);
            EXPECT_EQ(to_f64_high(v)[i], v[half + i]);
            EXPECT_EQ(to_i64(v)[i], v[i]);
            EXPECT_EQ(widen_unsigned(v)[i], static_cast<std::int64_t>(static_cast<std::uint32_t>(v[i])));
            EXPECT_EQ(as_high_words(v)[i], static_cast<std::int64_t>(static_cast<std::uint64_t>(static_cast<std::uint32_t>(v[i])) << 32));
        }
        const U a = (U)v, b = (U)w;
        expect_lanes(multiply_halves(a, b), [](std::uint32_t p, std::uint32_t q) {
            const std::uint32_t low_product = (p & 0xFFFF) * (q & 0xFFFF) >> 16, high_product = (p >> 16) * (q >> 16) >> 16;
            return low_product | high_product << 16;
        }, a, b);
        expect_lanes(difference_from_zero(v, w), [](std::int32_t p, std::int32_t q) {
            const auto less = [](std::uint32_t m, std::uint32_t n) { return m > n ? m - n : 0; };
            const auto m = static_cast<std::uint32_t>(p), n = static_cast<std::uint32_t>(q);
            return static_cast<std::int32_t>(less(m & 0xFFFF, n & 0xFFFF) | less(m >> 16, n >> 16) << 16);
        }, v, w);
        expect_lanes(min(v, w), [](auto p, auto q) { return std::min(p, q); }, v, w);
        expect_lanes(max(v, w), [](auto p, auto q) { return std::max(p, q); }, v, w);
    }
}

TYPED_TEST(OfSingles, TableRows) {
    using V = TypeParam;
    constexpr int rows_of_table = 37;
    static float singles[rows_of_table][8];
    static double doubles[rows_of_table][5];
    static float column[rows_of_table];
    static double long_column[rows_of_table];
    for (int r = 0; r < rows_of_table; r++) {
        for (int c = 0; c < 8; c++) singles[r][c] = static_cast<float>(100 * r + c);
        for (int c = 0; c < 5; c++) doubles[r][c] = 100 * r + c;
        column[r] = static_cast<float>(r), long_column[r] = r;
    }
    constexpr int half = lanes_of<V> / 2;
    for (int round = 0; round < rounds; round++) {
        BitsOf<V> row;
        for (int i = 0; i < lanes_of<V>; i++) row[i] = static_cast<std::int32_t>(source() % rows_of_table);
        expect_lanes(gather(column, row), [](int r) { return r; }, row);
        const auto pair = gather_pairs<3>(singles, row);
        const auto quad = gather_quads<4>(singles, row);
        expect_lanes(pair.first, [](int r) { return 100 * r + 3; }, row);
        expect_lanes(pair.second, [](int r) { return 100 * r + 4; }, row);
        expect_lanes(quad.first, [](int r) { return 100 * r + 4; }, row);
        expect_lanes(quad.second, [](int r) { return 100 * r + 5; }, row);
        expect_lanes(quad.third, [](int r) { return 100 * r + 6; }, row);
        expect_lanes(quad.fourth, [](int r) { return 100 * r + 7; }, row);
        const auto low = gather_columns_low<2>(doubles, row), high = gather_columns_high<2>(doubles, row);
        for (int i = 0; i < half; i++) {
            EXPECT_EQ(low.first[i], 100 * row[i] + 2);
            EXPECT_EQ(low.second[i], 100 * row[i] + 3);
            EXPECT_EQ(high.first[i], 100 * row[half + i] + 2);
            EXPECT_EQ(high.second[i], 100 * row[half + i] + 3);
            EXPECT_EQ(gather_low(long_column, row)[i], row[i]);
            EXPECT_EQ(gather_high(long_column, row)[i], row[half + i]);
        }
    }
}

template <class V> class OfDoubles : public testing::Test {};
TYPED_TEST_SUITE(OfDoubles, DoubleVectors);

TYPED_TEST(OfDoubles, ConversionsAndWords) {
    using V = TypeParam;
    using I = BitsOf<V>;
    using U = Unsigned<V>;
    constexpr int n = lanes_of<V>;
    const auto word = [](std::int64_t lane, int which) { return static_cast<std::int32_t>(static_cast<std::uint64_t>(lane) >> (32 * which)); };
    for (int round = 0; round < rounds; round++) {
        const V x = any_vector<V>(), y = any_vector<V>();
        const I v = any_vector<I>(), w = any_vector<I>();
        const auto both = narrow(x, y), one = narrow(x);
        for (int i = 0; i < n; i++) {
            EXPECT_TRUE(alike<float>(both[i], static_cast<float>(x[i])));
            EXPECT_TRUE(alike<float>(both[n + i], static_cast<float>(y[i])));
            EXPECT_TRUE(alike<float>(one[i], static_cast<float>(x[i])));
            EXPECT_EQ(one[n + i], 0);  // nothing that could raise a flag
            EXPECT_EQ(low_words(v)[i], word(v[i], 0));
            EXPECT_EQ(high_words(v)[i], word(v[i], 1));
            EXPECT_EQ(lower_words(v, w)[i], word(v[i], 0));
            EXPECT_EQ(lower_words(v, w)[n + i], word(w[i], 0));
            EXPECT_EQ(upper_words(v, w)[i], word(v[i], 1));
            EXPECT_EQ(upper_words(v, w)[n + i], word(w[i], 1));
            EXPECT_EQ(static_cast<std::int32_t>(woven_low_words((U)v, (U)w)[2 * i]), word(v[i], 0));
            EXPECT_EQ(static_cast<std::int32_t>(woven_low_words((U)v, (U)w)[2 * i + 1]), word(w[i], 0));
            EXPECT_EQ(static_cast<std::int32_t>(woven_high_words((U)v, (U)w)[2 * i]), word(v[i], 1));
            EXPECT_EQ(static_cast<std::int32_t>(woven_high_words((U)v, (U)w)[2 * i + 1]), word(w[i], 1));
            EXPECT_EQ(to_i32(x)[i], x[i] > -0x1p31 - 1 && x[i] < 0x1p31 ? static_cast<std::int32_t>(x[i]) : INT32_MIN);
            EXPECT_EQ(to_i64(x)[i], x[i] >= -0x1p63 && x[i] < 0x1p63 ? static_cast<std::int64_t>(x[i]) : INT64_MIN);
        }
        expect_lanes(multiply_words((U)v, (U)w), [](std::uint64_t p, std::uint64_t q) { return (p & 0xFFFFFFFF) * (q & 0xFFFFFFFF); }, (U)v, (U)w);
    }
}

TYPED_TEST(OfDoubles, TableRows) {
    using V = TypeParam;
    static double table[19][3], column[19];
    for (int r = 0; r < 19; r++) {
        for (int c = 0; c < 3; c++) table[r][c] = 10 * r + c;
        column[r] = r;
    }
    for (int round = 0; round < rounds; round++) {
        BitsOf<V> row;
        for (int i = 0; i < lanes_of<V>; i++) row[i] = static_cast<std::int64_t>(source() % 19);
        const auto two = gather_columns<1>(table, row);
        expect_lanes(two.first, [](std::int64_t r) { return 10 * r + 1; }, row);
        expect_lanes(two.second, [](std::int64_t r) { return 10 * r + 2; }, row);
        expect_lanes(gather(column, row), [](std::int64_t r) { return r; }, row);
    }
}

// Heads and tails are exact: held against sums and products in twice the precision.
TYPED_TEST(OfDoubles, HeadsAndTails) {
    using V = TypeParam;
    const auto value = [](double scale) { return (static_cast<double>(source() >> 11) * 0x1p-53 - 0.5) * scale; };
    for (int round = 0; round < rounds; round++) {
        V x, y;
        for (int i = 0; i < lanes_of<V>; i++) x[i] = value(0x1p60), y[i] = value(std::ldexp(1.0, static_cast<int>(source() % 50) + 10));
        const auto sum = two_sum(x, y), ordered = fast_two_sum(max(abs(x), abs(y)), min(abs(x), abs(y))), product = two_product(x, y);
        const auto split = short_split(x);
        for (int i = 0; i < lanes_of<V>; i++) {
            const __float128 p = x[i], q = y[i], larger = std::fmax(std::fabs(x[i]), std::fabs(y[i])), smaller = std::fmin(std::fabs(x[i]), std::fabs(y[i]));
            EXPECT_EQ(sum.head[i], x[i] + y[i]);
            EXPECT_TRUE(p + q - sum.head[i] == sum.tail[i]);
            EXPECT_TRUE(larger + smaller - ordered.head[i] == ordered.tail[i]);
            EXPECT_EQ(product.head[i], x[i] * y[i]);
            EXPECT_TRUE(p * q - product.head[i] == product.tail[i]);
            EXPECT_EQ(split.head[i] + split.tail[i], x[i]);
            EXPECT_TRUE(static_cast<__float128>(split.head[i]) * split.head[i] == split.head[i] * split.head[i]);
        }
    }
}
TYPED_TEST(OfSingles, HeadsAndTails) {
    using V = TypeParam;
    const auto value = [](double scale) { return static_cast<float>((static_cast<double>(source() >> 40) * 0x1p-24 - 0.5) * scale); };
    for (int round = 0; round < rounds; round++) {
        V x, y;
        for (int i = 0; i < lanes_of<V>; i++) x[i] = value(0x1p20), y[i] = value(std::ldexp(1.0, static_cast<int>(source() % 40) - 10));
        const auto x_split = veltkamp_split(x), y_split = veltkamp_split(y), product = two_product(x, x_split, y, y_split), sum = two_sum(x, y);
        for (int i = 0; i < lanes_of<V>; i++) {
            EXPECT_EQ(x_split.head[i] + x_split.tail[i], x[i]);
            EXPECT_EQ(static_cast<double>(x_split.head[i]) * y_split.head[i], static_cast<double>(x_split.head[i] * y_split.head[i]));
            EXPECT_EQ(static_cast<double>(x[i]) * y[i], static_cast<double>(product.head[i]) + product.tail[i]);
            EXPECT_EQ(static_cast<double>(x[i]) + y[i], static_cast<double>(sum.head[i]) + sum.tail[i]);
        }
    }
}

}  // namespace
}  // namespace tarn::test
