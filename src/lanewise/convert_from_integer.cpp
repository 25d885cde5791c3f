// Integers to floating point, 32 conversions. An integer is cut into pieces that the format holds, each
// made by OR-ing it into the significand of a power of two and taking that power off again. Their sum is
// rounded to nearest, and its exact error sends the directed roundings to the neighbour. Zero gives +0.
#include "frame/double_word.hpp"
#include "lanewise/conversion.hpp"

namespace tarn {
namespace {

template <class Signature> struct Converted;

// The piece at the foot of the significand of `power`, as a number.
template <Words I> TARN_INLINE auto piece(I v, std::uint32_t power) {
    return from_bits((BitsOf<I>)v | i32(power)) - f32(power);
}
template <LongWords I> TARN_INLINE auto piece(I v, std::uint64_t power) {
    return from_bits((BitsOf<I>)v | i64(power)) - f64(power);
}

// high + low for |high| >= |low|, or high = 0.
template <Rounding mode, class V> TARN_INLINE V sum(V high, V low) {
    const V f = high + low;
    const V taken = f - high;  // of low, exactly
    return redirected<mode>(f, taken > low, taken < low);
}

// 32-bit to single ------------------------------------------------------------------------------

template <> struct Converted<float(std::uint32_t)> {
    using Signature = float(std::uint32_t);
    template <Rounding mode, Words U> static TARN_INLINE auto to(U v) {
        const auto low = piece(v & 0x7FFFFF, 0x4B000000);  // 2^23
        const auto high = piece(v >> 23, 0x56800000);      // 2^46
        return sum<mode>(high, low);
    }
};

// The processor converts signed integers; the error is the difference of integers, which may wrap when
// the result is 2^31.
template <> struct Converted<float(std::int32_t)> {
    using Signature = float(std::int32_t);
    template <Rounding mode, Words I> static TARN_INLINE auto to(I v) {
        const Like<I, float> f = to_f32(v);
        const I error = wrapping_difference(v, to_i32(f));
        return redirected<mode>(f, error < 0, error > 0);
    }
};

// 64-bit to single ------------------------------------------------------------------------------

// Three pieces of 18, 23 and 23 bits. The error of high + middle is a multiple of 2^23 and low is less,
// so that low can turn the sum only where high + middle is exact, or was a tie that went down: there
// the odd neighbour is taken for the sum. The directed roundings need the sign of the whole error alone.
template <Rounding mode, LongWords L> TARN_INLINE auto from_magnitude(L first, L second, WordsOf<L> sign) {
    using V = Like<L, float>;
    const WordsOf<L> foot = lower_words(first, second), head = upper_words(first, second);
    const V low = piece(foot & 0x7FFFFF, 0x4B000000);                                            // 2^23
    const V middle = piece((shift_right_logical(foot, 23) | head << 9) & 0x7FFFFF, 0x56800000);  // 2^46
    const V high = piece(shift_right_logical(head, 14), 0x62000000);                             // 2^69
    const auto [s, e] = fast_two_sum(high, middle);
    if constexpr (mode == Rounding::nearest) {
        const V half_unit = from_bits((bits(s) & 0x7F800000) - 0x0C000000);
        const BitsOf<V> tie_down = (e == half_unit) & (low > 0.0f);
        return or_bits(or_bits(s, tie_down & 1) + low, sign);
    } else {
        const V f = s + low;
        const V error = xor_bits(e + (low - (f - s)), sign);
        return redirected<mode>(or_bits(f, sign), error < 0.0f, error > 0.0f);
    }
}

template <> struct Converted<float(std::uint64_t)> {
    using Signature = float(std::uint64_t);
    template <Rounding mode, LongWords U> static TARN_INLINE auto to(Twice<U> v) {
        return from_magnitude<mode>((BitsOf<U>)v.low, (BitsOf<U>)v.high, WordsOf<U>{});
    }
};
template <> struct Converted<float(std::int64_t)> {
    using Signature = float(std::int64_t);
    template <Rounding mode, LongWords I> static TARN_INLINE auto to(Twice<I> v) {
        const auto magnitude = [](I x) __attribute__((always_inline)) {
            return wrapping_difference(x ^ x >> 63, x >> 63);
        };
        const auto sign = upper_words(v.low, v.high) & sign_mask<WordsOf<I>>;
        return from_magnitude<mode>(magnitude(v.low), magnitude(v.high), sign);
    }
};

// To double -------------------------------------------------------------------------------------
// 32 bits fit, so that every rounding gives the same.

template <> struct Converted<double(std::int32_t)> {
    using Signature = double(std::int32_t);
    template <Rounding, Words I> static TARN_INLINE auto to(I v) { return to_f64(v); }
};
template <> struct Converted<double(std::uint32_t)> {
    using Signature = double(std::uint32_t);
    template <Rounding, Words U> static TARN_INLINE auto to(U v) {
        return piece(widen_unsigned((BitsOf<U>)v), 0x4330000000000000);  // 2^52
    }
};

template <> struct Converted<double(std::uint64_t)> {
    using Signature = double(std::uint64_t);
    template <Rounding mode, LongWords U> static TARN_INLINE auto to(U v) {
        const auto low = piece(v & 0xFFFFFFFF, 0x4330000000000000);  // 2^52
        const auto high = piece(v >> 32, 0x4530000000000000);        // 2^84
        return sum<mode>(high, low);
    }
};
// The sign bit turned over counts 2^63 more, which is taken off with the power of two.
template <> struct Converted<double(std::int64_t)> {
    using Signature = double(std::int64_t);
    template <Rounding mode, LongWords I> static TARN_INLINE auto to(I v) {
        const auto low = piece(v & 0xFFFFFFFF, 0x4330000000000000);  // 2^52
        const auto shifted = shift_right_logical(v, 32) ^ 0x4530000080000000;
        const auto high = from_bits(shifted) - f64(0x4530000080000000);  // 2^84 + 2^63
        return sum<mode>(high, low);
    }
};

}  // namespace
}  // namespace tarn

TARN_EXPORT_ROUNDINGS(cvti32tofp, f, tarn::Converted<float(std::int32_t)>)
TARN_EXPORT_ROUNDINGS(cvtu32tofp, f, tarn::Converted<float(std::uint32_t)>)
TARN_EXPORT_ROUNDINGS(cvti64tofp, f, tarn::Converted<float(std::int64_t)>)
TARN_EXPORT_ROUNDINGS(cvtu64tofp, f, tarn::Converted<float(std::uint64_t)>)
TARN_EXPORT_ROUNDINGS(cvti32tofp, , tarn::Converted<double(std::int32_t)>)
TARN_EXPORT_ROUNDINGS(cvtu32tofp, , tarn::Converted<double(std::uint32_t)>)
TARN_EXPORT_ROUNDINGS(cvti64tofp, , tarn::Converted<double(std::int64_t)>)
TARN_EXPORT_ROUNDINGS(cvtu64tofp, , tarn::Converted<double(std::uint64_t)>)
