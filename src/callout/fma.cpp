// x y + z rounded once, in the direction of the x87 control word's rounding field, whatever MXCSR says.
//
// Single precision: the product is exact in double; the sum is made odd where it is not exact, which
// leaves a second rounding as good as the only one, and the x87 unit does that one in its own direction,
// with its own overflow and subnormals.
// Double precision: product and addend as 128-bit integers in one window, where they overlap exactly;
// what falls out below is kept as one sticky bit. The rounding is done on the integer.
#include "callout/format.hpp"
#include "frame/directions.hpp"

namespace tarn::callout {
namespace {

TARN_INLINE void store_x87_rounded(double x, float* result) {
    asm volatile("fldl %1\n\tfstps %0" : "=m"(*result) : "m"(x) : "st");
}

// A sum that is exactly zero: of zeros of one sign that zero, else +0, but -0 when rounding down.
template <class Real> TARN_INLINE int zero_sum(Pattern<Real> sign_of_product, Pattern<Real> sign_of_z, Real* result) {
    if (sign_of_product == sign_of_z) return give(result, sign_of_z);
    return give(result, x87_direction() == Direction::down ? sign_mask<Real> : 0);
}

using Wide = unsigned __int128;

// v / 2^n, its last bit set where bits were lost.
TARN_INLINE Wide shifted_right(Wide v, int n) {
    if (n > 127) return v != 0;
    return v >> n | ((v & ((Wide(1) << n) - 1)) != 0);
}

// What is added to the bits to be dropped, so that a carry rounds up.
constexpr int dropped = 64 - 53;
constexpr std::uint64_t dropped_mask = (1 << dropped) - 1;
TARN_INLINE std::uint64_t round_up(std::uint64_t top, std::uint64_t sign, Direction direction) {
    if (__builtin_expect(direction == Direction::nearest, 1)) return (dropped_mask >> 1) + (top >> dropped & 1);
    return direction == (sign ? Direction::down : Direction::up) ? dropped_mask : 0;
}

// top * 2^exponent, below the normal numbers; the last bit of top is sticky.
[[gnu::noinline, gnu::cold]] int round_subnormal(std::uint64_t top, int exponent, std::uint64_t sign, double* result) {
    top = static_cast<std::uint64_t>(shifted_right(top, lowest_exponent<double> - exponent - dropped));
    if ((top & dropped_mask) != 0) opaque(underflowed());
    return give(result, (top + round_up(top, sign, x87_direction())) >> dropped | sign,
                (top & dropped_mask) != 0 ? underflow : ordinary);
}

[[gnu::noinline, gnu::cold]] int round_overflow(std::uint64_t sign, double* result) {
    opaque(overflowed());
    const Direction direction = x87_direction();
    const bool away = direction == Direction::nearest || direction == (sign ? Direction::down : Direction::up);
    return give(result, (away ? infinity<double> : infinity<double> - 1) | sign, overflow);
}

// (product -+ addend) * 2^exponent, rounded once; both are below 2^126.
TARN_INLINE int round_sum(Wide product, Wide addend, int exponent, std::uint64_t sign_of_product,
                          std::uint64_t sign_of_z, double* result) {
    // Signs as masks, so that no branch follows the data.
    const auto subtract = static_cast<Wide>(static_cast<__int128>(static_cast<std::int64_t>(sign_of_product ^ sign_of_z) >> 63));
    const Wide signed_sum = product + ((addend ^ subtract) - subtract);
    const auto negative = static_cast<Wide>(static_cast<__int128>(signed_sum) >> 127);
    const Wide sum = (signed_sum ^ negative) - negative;
    const std::uint64_t sign = sign_of_product ^ (static_cast<std::uint64_t>(negative) & sign_mask<double>);

    auto high = static_cast<std::uint64_t>(sum >> 64), low = static_cast<std::uint64_t>(sum);
    if (__builtin_expect(high == 0, 0)) {
        if (low == 0) return zero_sum(sign_of_product, sign_of_z, result);
        high = low, low = 0, exponent -= 64;
    }
    const int zeros = __builtin_clzll(high);
    const std::uint64_t top = high << zeros | low >> 1 >> (63 - zeros) | (low << zeros != 0);
    const int field = exponent + 64 - zeros + 63 + bias<double>;
    if (__builtin_expect(field < 1, 0)) return round_subnormal(top, exponent + 64 - zeros, sign, result);
    const std::uint64_t up = ((top & dropped_mask) + round_up(top, sign, x87_direction())) >> dropped;
    // The implicit bit, and a carry into the next, count into the exponent field.
    const std::uint64_t p = (static_cast<std::uint64_t>(field - 1) << 52) + (top >> dropped) + up;
    if (__builtin_expect(p >= infinity<double>, 0)) return round_overflow(sign, result);
    return give(result, p | sign);
}

// Through a whole register: the scalar conversion would wait for what its register held before.
TARN_INLINE double widened(float x) { return widen_low(f32x4{x, 0, 0, 0})[0]; }

// A boundary of rounding to single precision, be it a single or the middle of two, ends in 28 zeros in
// double. A sum elsewhere lies on the same side of every boundary as the exact one.
[[gnu::noinline, gnu::cold]] int round_boundary(double product, double addend, std::uint32_t sign_of_product,
                                                std::uint32_t sign_of_z, float* result) {
    const double sum = product + addend;
    if (not_finite(sum)) {
        *result = static_cast<float>(sum);
        return ordinary;
    }
    if (sum == 0) return zero_sum(sign_of_product, sign_of_z, result);
    const bool swap = magnitude(product) < magnitude(addend);
    const double larger = swap ? addend : product, smaller = swap ? product : addend;
    const double error = smaller - (sum - larger);
    const std::uint64_t inexact = error != 0;
    const std::uint64_t beyond = inexact & (pattern(sum) ^ pattern(error)) >> 63;  // |sum| is too large
    store_x87_rounded(number<double>((pattern(sum) - beyond) | inexact), result);
    return ordinary;
}

}  // namespace

template <> int fma(const float* x, const float* y, const float* z, float* result) {
    const double product = widened(*x) * widened(*y), addend = widened(*z);
    const double sum = product + addend;
    if (__builtin_expect((pattern(sum) & 0x0FFFFFFF) == 0, 0))
        return round_boundary(product, addend, sign(*x) ^ sign(*y), sign(*z), result);
    store_x87_rounded(sum, result);
    return ordinary;
}

template <> int fma(const double* px, const double* py, const double* pz, double* result) {
    const double x = *px, y = *py, z = *pz;
    if (not_finite(x) || not_finite(y) || not_finite(z)) {
        *result = not_finite(x) || not_finite(y) ? x * y + z : z + z;
        return ordinary;
    }
    const auto sign_of_product = sign(x) ^ sign(y);
    if (magnitude(x) == 0 || magnitude(y) == 0) {
        if (magnitude(z) == 0) return zero_sum(sign_of_product, sign(z), result);
        *result = z;
        return ordinary;
    }
    const auto a = normalised(x), b = normalised(y), c = as_held(z);
    // The window ends one bit below the product, so that a sticky bit is never the product's own, or so
    // far below z that the product is out of reach.
    constexpr int reach = 73;
    Wide product = static_cast<Wide>(a.integer) * (b.integer << 1), addend = c.integer;
    int exponent = a.exponent + b.exponent - 1;
    const int distance = c.exponent - exponent;
    if (distance < 0) {
        addend = shifted_right(addend, -distance);
    } else if (distance <= reach) {
        addend <<= distance;
    } else {
        addend <<= reach;
        product = shifted_right(product, distance - reach);
        exponent = c.exponent - reach;
    }
    return round_sum(product, addend, exponent, sign_of_product, sign(z), result);
}

}  // namespace tarn::callout
