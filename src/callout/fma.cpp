// x y + z rounded once, in the direction of the x87 control word's rounding field, whatever MXCSR says.
//
// Single precision: the product is exact in double; the sum is made odd where it is not exact, which
// leaves a second rounding as good as the only one, and the x87 unit does that one in its own direction,
// with its own overflow and subnormals.
// Double precision: product and addend as 128-bit integers in one window, where they overlap exactly;
// what falls out below is kept as one sticky bit. The rounding is done on the integer.
#include "callout/format.hpp"

namespace tarn::callout {
namespace {

enum Direction : unsigned { to_nearest = 0, downward = 1, upward = 2, toward_zero = 3 };
TARN_INLINE Direction x87_direction() {
    std::uint16_t word;
    asm volatile("fnstcw %0" : "=m"(word));
    return static_cast<Direction>(word >> 10 & 3);
}

TARN_INLINE float x87_rounded(double x) {
    float result;
    asm volatile("fldl %1\n\tfstps %0" : "=m"(result) : "m"(x) : "st");
    return result;
}

// A sum that is exactly zero: of zeros of one sign that zero, else +0, but -0 when rounding down.
template <class Real> TARN_INLINE int zero_sum(Pattern<Real> sign_of_product, Pattern<Real> sign_of_z, Real* result) {
    if (sign_of_product == sign_of_z) return give(result, sign_of_z);
    return give(result, x87_direction() == downward ? sign_mask<Real> : 0);
}

using Wide = unsigned __int128;

// v / 2^n, its last bit set where bits were lost.
TARN_INLINE Wide shifted_right(Wide v, int n) {
    if (n > 127) return v != 0;
    return v >> n | ((v & ((Wide(1) << n) - 1)) != 0);
}

// top * 2^exponent, where the leading bit of top is bit 63 and the last one is sticky.
int round_to_double(std::uint64_t top, int exponent, std::uint64_t sign, double* result) {
    constexpr int dropped = 64 - 53;
    constexpr std::uint64_t mask = (1 << dropped) - 1;
    int field = exponent + 63 + bias<double>;
    const bool tiny = field < 1;
    if (tiny) {
        top = static_cast<std::uint64_t>(shifted_right(top, 1 - field));
        field = 1;
    }
    const Direction direction = x87_direction();
    std::uint64_t significand = top >> dropped;
    const std::uint64_t rest = top & mask;
    const bool away = direction == (sign ? downward : upward);
    const std::uint64_t round_up = direction == to_nearest ? (mask >> 1) + (significand & 1) : away ? mask : 0;
    significand += (rest + round_up) >> dropped;
    // The implicit bit, or a carry into it, counts into the exponent field.
    const std::uint64_t p = (static_cast<std::uint64_t>(field - 1) << 52) + significand;
    if (__builtin_expect(p >= infinity<double>, 0)) {
        opaque(overflowed());
        return give(result, (direction == to_nearest || away ? infinity<double> : infinity<double> - 1) | sign, overflow);
    }
    if (__builtin_expect(tiny && rest != 0, 0)) {
        opaque(underflowed());
        return give(result, p | sign, underflow);
    }
    return give(result, p | sign);
}

}  // namespace

template <> int fma(const float* x, const float* y, const float* z, float* result) {
    const double product = static_cast<double>(*x) * *y, addend = *z;
    const double sum = product + addend;
    if (__builtin_expect(not_finite(sum), 0)) {
        *result = static_cast<float>(sum);
        return ordinary;
    }
    if (__builtin_expect(sum == 0, 0)) return zero_sum(sign(*x) ^ sign(*y), sign(*z), result);
    const bool swap = magnitude(product) < magnitude(addend);
    const double larger = swap ? addend : product, smaller = swap ? product : addend;
    const double error = smaller - (sum - larger);
    const std::uint64_t inexact = error != 0;
    const std::uint64_t beyond = inexact & (pattern(sum) ^ pattern(error)) >> 63;  // |sum| is too large
    *result = x87_rounded(number<double>((pattern(sum) - beyond) | inexact));
    return ordinary;
}

template <> int fma(const double* x, const double* y, const double* z, double* result) {
    const auto sign_of_product = sign(*x) ^ sign(*y), sign_of_z = sign(*z);
    if (__builtin_expect(not_finite(*x) || not_finite(*y) || not_finite(*z), 0)) {
        *result = not_finite(*x) || not_finite(*y) ? *x * *y + *z : *z + *z;
        return ordinary;
    }
    auto a = as_held(*x), b = as_held(*y);
    const auto c = as_held(*z);
    if (__builtin_expect(a.integer == 0 || b.integer == 0, 0)) {
        if (c.integer == 0) return zero_sum(sign_of_product, sign_of_z, result);
        *result = *z;
        return ordinary;
    }
    if (__builtin_expect(((a.integer & b.integer) & implicit_bit<double>) == 0, 0)) a = normalised(*x), b = normalised(*y);

    // The window ends one bit below the product, so that a sticky bit is never the product's own, or so far
    // below z that the product is out of reach.
    constexpr int reach = 73;
    Wide product = static_cast<Wide>(a.integer) * (b.integer << 1), addend = c.integer;
    int exponent = a.exponent + b.exponent - 1;
    const int distance = c.exponent - exponent;
    if (__builtin_expect(distance < 0, 0)) {
        addend = shifted_right(addend, -distance);
    } else if (__builtin_expect(distance > reach, 0)) {
        addend <<= reach;
        product = shifted_right(product, distance - reach);
        exponent = c.exponent - reach;
    } else {
        addend <<= distance;
    }

    // Signs as masks, so that no branch follows the data.
    const Wide subtract = -static_cast<Wide>(sign_of_product != sign_of_z);
    const Wide signed_sum = product + (addend ^ subtract) - subtract;
    const Wide negative = static_cast<Wide>(static_cast<__int128>(signed_sum) >> 127);
    const Wide sum = (signed_sum ^ negative) - negative;
    const std::uint64_t sign = sign_of_product ^ (static_cast<std::uint64_t>(negative) & sign_mask<double>);
    const auto high = static_cast<std::uint64_t>(sum >> 64), low = static_cast<std::uint64_t>(sum);
    if (high == 0 && low == 0) return zero_sum(sign_of_product, sign_of_z, result);
    const int zeros = high != 0 ? __builtin_clzll(high) : 64 + __builtin_clzll(low);
    const Wide top = sum << zeros;
    return round_to_double(static_cast<std::uint64_t>(top >> 64) | (static_cast<std::uint64_t>(top) != 0),
                           exponent + 64 - zeros, sign, result);
}

}  // namespace tarn::callout
