// Remainders against integers doubled one bit at a time, and fma against MPFR in every direction that the
// x87 control word can name. All exact or rounded once.
#include <gtest/gtest.h>
#include <xmmintrin.h>

#include "common/real.hpp"
#include "samples.hpp"

namespace tarn::test {
namespace {

template <class Real> using Pattern = std::conditional_t<sizeof(Real) == 4, std::uint32_t, std::uint64_t>;
template <class Real> constexpr Lane lane_of = sizeof(Real) == 4 ? Lane::f32 : Lane::f64;
template <class R> R real(std::uint64_t p) { return std::bit_cast<R>(static_cast<Pattern<R>>(p)); }
template <class R> std::uint64_t pattern(R x) { return std::bit_cast<Pattern<R>>(x); }

template <class R> class Exact : public testing::Test {
protected:
    static constexpr int precision = std::numeric_limits<R>::digits;
    static constexpr int highest = std::numeric_limits<R>::max_exponent;  // of the infinities
    static constexpr int lowest = std::numeric_limits<R>::min_exponent - precision;
    static std::string base(const char* name) { return std::string(name) + (sizeof(R) == 4 ? "f" : ""); }
    std::mt19937_64 random{40};

    R any() { return real<R>(random()); }
    // With about this exponent, and few or many bits.
    R near(int exponent) {
        const std::uint64_t significand = random() >> (random() % 3 ? 11 : 11 + random() % 53);
        const R x = static_cast<R>(std::ldexp(static_cast<R>(significand), exponent - 53));
        return random() & 1 ? x : -x;
    }
    int exponent() { return lowest + static_cast<int>(random() % static_cast<unsigned>(highest - lowest)); }

    static std::vector<Lanes> lanes(const std::vector<std::vector<R>>& rows) {
        std::vector<Lanes> args(rows[0].size(), Lanes(lane_of<R>, rows.size()));
        for (std::size_t i = 0; i < rows.size(); i++)
            for (std::size_t a = 0; a < rows[i].size(); a++) args[a].set(i, pattern(rows[i][a]));
        return args;
    }
};
using Precisions = testing::Types<float, double>;
TYPED_TEST_SUITE(Exact, Precisions);

struct Quotient {
    bool exists;
    double toward_zero, nearest;  // remainders
    int low_bits;                 // of the nearest quotient's magnitude, 7 of them
};

// Bit by bit: |x| = a 2^e against |y| = b 2^f.
template <class R> Quotient divide(R x, R y) {
    if (std::isnan(x) || std::isnan(y) || std::isinf(x) || y == 0) return {false, 0, 0, 0};
    if (std::isinf(y) || x == 0) return {true, static_cast<double>(x), static_cast<double>(x), 0};
    int e, f;
    auto a = static_cast<std::uint64_t>(std::ldexp(std::frexp(std::fabs(static_cast<double>(x)), &e), 53));
    auto b = static_cast<std::uint64_t>(std::ldexp(std::frexp(std::fabs(static_cast<double>(y)), &f), 53));
    if (e < f - 1) return {true, static_cast<double>(x), static_cast<double>(x), 0};
    std::uint64_t quotient = 0;
    int unit = f - 53;
    if (e < f) {
        b <<= 1, unit = e - 53;
    } else {
        quotient = a / b, a %= b;
        for (int i = e; i > f; i--) {
            a <<= 1, quotient <<= 1;
            if (a >= b) a -= b, quotient++;
        }
    }
    const double sign = std::signbit(x) ? -1 : 1;
    const double zero = sign * std::ldexp(static_cast<double>(a), unit);
    const bool up = 2 * a > b || (2 * a == b && quotient % 2 == 1);
    const double nearest = up ? -sign * std::ldexp(static_cast<double>(b - a), unit) : zero;
    return {true, zero, nearest, static_cast<int>((quotient + up) % 128)};
}

TYPED_TEST(Exact, Remainders) {
    using R = TypeParam;
    std::vector<std::vector<R>> rows;
    for (const auto x : edges(lane_of<R>))
        for (const auto y : edges(lane_of<R>)) rows.push_back({real<R>(x), real<R>(y)});
    for (int i = 0; i < 100000; i++) rows.push_back({this->any(), this->any()});
    for (int i = 0; i < 300000; i++) {
        // The gaps of the fast path and a little more, at every place in the range; x near multiples of y/2.
        const int e = this->exponent();
        const R y = this->near(e), x = this->near(e + static_cast<int>(this->random() % 34) - 3);
        rows.push_back({x, y});
        const R half_steps = static_cast<R>(static_cast<std::int64_t>(this->random() % 4096) - 2048) / 2;
        const R near = half_steps * y;
        for (const R neighbour : {near, std::nextafter(near, R(0)), std::nextafter(near, 2 * near)}) rows.push_back({neighbour, y});
    }
    const auto args = this->lanes(rows);
    Lanes truncated, nearest, with_quotient, quotient;
    (*module().find(this->base("fmod"), 4))(args, truncated);
    (*module().find(this->base("remainder"), 4))(args, nearest);
    (*module().find(this->base("remquo"), 4))(args, with_quotient, &quotient);
    for (std::size_t i = 0; i < rows.size(); i++) {
        const Quotient q = divide(rows[i][0], rows[i][1]);
        const std::uint64_t nan = pattern(std::numeric_limits<R>::quiet_NaN());
        const auto expected = [&](double r) { return q.exists ? pattern(static_cast<R>(r)) : nan; };
        // A zero remainder has the sign of x.
        const double signed_nearest = q.nearest == 0 ? std::copysign(0.0, static_cast<double>(rows[i][0])) : q.nearest;
        ASSERT_TRUE(same(lane_of<R>, truncated.pattern(i), expected(q.toward_zero))) << "fmod(" << lanes_text(args, i) << ") = " << hex(truncated.pattern(i));
        ASSERT_TRUE(same(lane_of<R>, nearest.pattern(i), expected(signed_nearest))) << "remainder(" << lanes_text(args, i) << ") = " << hex(nearest.pattern(i));
        ASSERT_TRUE(same(lane_of<R>, with_quotient.pattern(i), nearest.pattern(i))) << "remquo(" << lanes_text(args, i) << ')';
        const auto n = static_cast<std::int32_t>(quotient.pattern(i));
        const bool negative = std::signbit(rows[i][0]) != std::signbit(rows[i][1]);
        ASSERT_TRUE(std::abs(n) % 128 == q.low_bits && (n == 0 || (n < 0) == negative)) << "remquo(" << lanes_text(args, i) << ") stores " << n;
    }
}

// The x87 rounding field, put back at the end.
class X87Direction {
public:
    explicit X87Direction(unsigned field) {
        __asm__ volatile("fnstcw %0" : "=m"(before_));
        const auto word = static_cast<unsigned short>((before_ & ~0xC00u) | field << 10);
        __asm__ volatile("fldcw %0" : : "m"(word));
    }
    ~X87Direction() { __asm__ volatile("fldcw %0" : : "m"(before_)); }

private:
    unsigned short before_;
};

template <class R> R fused(R x, R y, R z, mpfr_rnd_t direction) {
    constexpr int precision = std::numeric_limits<R>::digits;
    mpfr_t a, b, c, r;
    mpfr_inits2(precision, a, b, c, r, nullptr);
    mpfr_set_d(a, static_cast<double>(x), MPFR_RNDN);
    mpfr_set_d(b, static_cast<double>(y), MPFR_RNDN);
    mpfr_set_d(c, static_cast<double>(z), MPFR_RNDN);
    const mpfr_exp_t least = mpfr_get_emin(), largest = mpfr_get_emax();
    mpfr_set_emin(std::numeric_limits<R>::min_exponent - precision + 1);
    mpfr_set_emax(std::numeric_limits<R>::max_exponent);
    const int inexact = mpfr_fma(r, a, b, c, direction);
    mpfr_subnormalize(r, inexact, direction);
    const double result = mpfr_get_d(r, MPFR_RNDN);
    mpfr_set_emin(least);
    mpfr_set_emax(largest);
    mpfr_clears(a, b, c, r, nullptr);
    return static_cast<R>(result);
}

TYPED_TEST(Exact, FusedMultiplyAdd) {
    using R = TypeParam;
    std::vector<std::vector<R>> rows;
    const auto e = edges(lane_of<R>);
    for (const auto x : e)
        for (const auto y : e)
            for (int i = 0; i < 8; i++) rows.push_back({real<R>(x), real<R>(y), real<R>(e[this->random() % e.size()])});
    for (int i = 0; i < 50000; i++) rows.push_back({this->any(), this->any(), this->any()});
    for (int i = 0; i < 100000; i++) {
        // The addend at every distance from the product, its near cancellations and its ties; products
        // and sums across both ends of the range.
        const int total = i % 4 ? static_cast<int>(this->random() % 120) - 60 : this->exponent();
        const int first = total / 2 + static_cast<int>(this->random() % 20) - 10;
        const R x = this->near(first), y = this->near(total - first), product = x * y;
        rows.push_back({x, y, this->near(total + static_cast<int>(this->random() % 240) - 120)});
        rows.push_back({x, y, -product});
        rows.push_back({x, y, -std::nextafter(product, R(0))});
        rows.push_back({x, y, std::ldexp(product, -this->precision)});
        rows.push_back({x, y, std::ldexp(this->near(0), std::ilogb(product) + this->precision)});
    }
    const auto args = this->lanes(rows);
    // MXCSR has no say: it is set to each direction in turn.
    const mpfr_rnd_t directions[] = {MPFR_RNDN, MPFR_RNDD, MPFR_RNDU, MPFR_RNDZ};
    for (unsigned field = 0; field < 4; field++) {
        for (unsigned sse = 0; sse < 4; sse++) {
            if (field != 0 && sse != 0 && sse != 3 - field) continue;
            Lanes result;
            {
                const X87Direction x87(field);
                const unsigned mxcsr = _mm_getcsr();
                _mm_setcsr((mxcsr & ~static_cast<unsigned>(_MM_ROUND_MASK)) | sse << 13);
                (*module().find(this->base("fma"), 4))(args, result);
                _mm_setcsr(mxcsr);
            }
            for (std::size_t i = 0; i < rows.size(); i += sse == 0 ? 1 : 5) {
                const R truth = fused(rows[i][0], rows[i][1], rows[i][2], directions[field]);
                ASSERT_TRUE(same(lane_of<R>, result.pattern(i), pattern(truth)))
                    << this->base("fma") << '(' << lanes_text(args, i) << ") = " << hex(result.pattern(i)) << ", not " << hex(pattern(truth))
                    << ", x87 direction " << field << ", MXCSR " << sse;
            }
        }
    }
}

TYPED_TEST(Exact, MadRoundsTwice) {
    using R = TypeParam;
    std::vector<std::vector<R>> rows;
    for (int i = 0; i < 20000; i++) {
        const R x = this->near(0), y = this->near(0);
        rows.push_back({x, y, -(x * y)});
        rows.push_back({x, y, this->near(0)});
    }
    const auto args = this->lanes(rows);
    Lanes result;
    (*module().find(this->base("mad"), 4))(args, result);
    for (std::size_t i = 0; i < rows.size(); i++) {
        volatile R product = rows[i][0] * rows[i][1];
        ASSERT_EQ(real<R>(result.pattern(i)), product + rows[i][2]) << lanes_text(args, i);
    }
}

}  // namespace
}  // namespace tarn::test
