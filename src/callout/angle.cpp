// The reduction has three branches. Below 2^17 the split of pi/32 alone is enough. Below 2^30 an even
// number of octants is subtracted first, in pieces of pi/4 whose products are exact, the rounding
// errors of the subtractions kept. From there on x is multiplied exactly by as many chunks of 4/pi as
// matter, with the multiples of 8 octants removed.
#include "callout/angle.hpp"
#include "frame/double_word.hpp"

namespace tarn::callout {
namespace {

#include "tables/two_over_pi_25.inc"

using Pair = HeadTail<double>;

TARN_INLINE Pair add(Pair a, double b) {
    const auto [s, error] = two_sum(a.head, b);
    return two_sum(s, error + a.tail);
}

constexpr double octants_per_radian = f64(0x3FF45F306DC9C883);  // 1.2732395447351628 = 4/pi

// pi/4 in pieces, for up to 2^24 and up to 2^31 octants.
constexpr double four_pieces[] = {f64(0x3FE921FB54000000),   // 0.7853981629014015
                                  f64(0x3E010B4612000000),   // 4.960467904491228e-10
                                  f64(0xBC2676733C000000),   // -6.088525906594782e-19
                                  f64(0x3A61701B839A2520)};  // 1.7607799325916e-27
constexpr double five_pieces[] = {f64(0x3FE921FA00000000),   // 0.7853975296020508
                                  f64(0x3EA5444300000000),   // 6.337954800983425e-07
                                  f64(0xBD373DCA00000000),   // -8.256991011063031e-14
                                  f64(0xBBF3B39A00000000),   // -6.675151087907452e-20
                                  f64(0x3A845C06E0E68948)};  // 8.223128468162129e-27

// pi/4 for the fraction of an octant.
constexpr double quarter_pi_hi = f64(0x3FE921FB40000000);  // 0.7853981256484985
constexpr double quarter_pi_lo = f64(0x3E64442D18469899);  // 3.774894977445941e-08
constexpr double splitter = f64(0x4198000000000000);       // 100663296.0 = 1.5 * 2^26

constexpr double shifter = f64(0x4338000000000000);           // 6755399441055744.0 = 1.5 * 2^52
constexpr double steps_per_radian = f64(0x40245F306DC9C883);  // 10.185916357881302 = 32/pi
constexpr double step_1 = f64(0x3FB921FB54400000);            // 0.09817477042088285: pi/32 in pieces
constexpr double step_2 = f64(0x3D90B4611A600000);            // 3.798187816439979e-12
constexpr double step_3 = f64(0x3B63198A2E037073);            // 1.2639164054974691e-22

// Quadrants, and the angle within [-pi/4, pi/4] of the last one.
struct Quadrants {
    std::int64_t count;
    Pair rest;
};

// 2^17 <= a < 2^30.
template <std::size_t count> Quadrants by_pieces(double a, const double (&pieces)[count]) {
    auto n = static_cast<std::int64_t>(a * octants_per_radian);
    n += n & 1;
    Pair r = {a, 0};
    for (const double piece : pieces) r = add(r, -(static_cast<double>(n) * piece));
    return {n / 2, r};
}

// a >= 2^30, of 24 significant bits, so that a product with a chunk is exact.
Quadrants by_chunks(double a) {
    const int exponent = static_cast<int>(pattern(a) >> 52);
    const double* chunk = two_over_pi_25 + ((exponent - 1052) * 83886 >> 21);
    Pair octants = {0, 0};
    for (int i = 0; i < 9; i++) {
        const double product = a * 0x1p-200 * chunk[i];
        octants = add(octants, product - 8 * __builtin_floor(product / 8));
    }
    double n = __builtin_floor(octants.head);
    if (octants.head == n && octants.tail < 0) n -= 1;
    auto whole = static_cast<std::int64_t>(n);
    whole += whole & 1;
    const Pair f = two_sum(octants.head - static_cast<double>(whole), octants.tail);

    const double f_hi = (f.head + f.head * splitter) - f.head * splitter;
    const double f_lo = (f.head - f_hi) + f.tail;
    const double product = f_hi * quarter_pi_hi;
    return {whole / 2, two_sum(product, quarter_pi_hi * f_lo + (f_lo + f_hi) * quarter_pi_lo)};
}

}  // namespace

Angle reduced(float x) {
    const double X = x, a = __builtin_fabs(X);
    Quadrants q = {0, {a, 0}};
    if (a >= 0x1p30) q = by_chunks(a);
    else if (a >= 0x1p23) q = by_pieces(a, five_pieces);
    else if (a >= 0x1p17) q = by_pieces(a, four_pieces);
    const double sign = X < 0 ? -1.0 : 1.0;
    const double r_hi = q.rest.head * sign, r_lo = q.rest.tail * sign;

    const double shifted = r_hi * steps_per_radian + shifter;
    const double k = shifted - shifter;
    const double r = (r_hi - k * step_1) - k * step_2;
    const double tail = ((((r_hi - k * step_1) - r) - k * step_2) - k * step_3) + r_lo;
    const auto quadrants = static_cast<std::uint32_t>(X < 0 ? -q.count : q.count);
    return {(16 * quadrants + static_cast<std::uint32_t>(pattern(shifted))) & 63, r, tail};
}

double from_table(const double (*table)[4], const Angle& angle) {
    constexpr double sine_3 = f64(0xBFC5555555555555);    // -0.16666666666666666
    constexpr double sine_5 = f64(0x3F81111111111111);    // 0.008333333333333333
    constexpr double sine_7 = f64(0xBF2A01A01A01A01A);    // -0.0001984126984126984
    constexpr double sine_9 = f64(0x3EC71DE3A556C734);    // 2.7557319223985893e-06
    constexpr double cosine_2 = f64(0xBFE0000000000000);  // -0.5
    constexpr double cosine_4 = f64(0x3FA5555555555555);  // 0.041666666666666664
    constexpr double cosine_6 = f64(0xBF56C16C16C16C17);  // -0.001388888888888889
    constexpr double cosine_8 = f64(0x3EFA01A01A01A01A);  // 2.48015873015873e-05

    const auto [c_lo, s_hi, s_lo, c_hi] = table[angle.j];
    const double t = angle.r, z = t * t;
    const double u = s_hi + c_hi * t;
    const double u_error = (s_hi - u) + c_hi * t;
    const double v = u + c_lo * t;
    const double v_error = (u - v) + c_lo * t;
    const double slope = (c_lo + c_hi) - t * s_hi;
    const double sine_part = horner(z, sine_9, sine_7, sine_5, sine_3) * z * t * (c_lo + c_hi);
    const double cosine_part = horner(z, cosine_8, cosine_6, cosine_4, cosine_2) * z * s_hi;
    return v + ((((angle.tail * slope + s_lo) + u_error) + v_error) + sine_part + cosine_part);
}

}  // namespace tarn::callout
