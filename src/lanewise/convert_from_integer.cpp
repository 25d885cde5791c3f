// Integers to floating point, 32 conversions. An integer is cut into pieces that the format holds, each
// made by OR-ing it into the significand of a power of two and taking that power off again. Their sum is
// rounded to nearest, and its exact error sends the directed roundings to the neighbour. Zero gives +0.
#include "lanewise/conversion.hpp"

namespace tarn {
namespace {

template <class Signature> struct Converted;

// The piece at the foot of the significand of `power`, as a number.
TARN_INLINE f32x4 piece(i32x4 v, std::uint32_t power) { return from_bits(v | splat_i32(power)) - splat_f32(power); }
TARN_INLINE f64x2 piece(i64x2 v, std::uint64_t power) { return from_bits(v | splat_i64(power)) - splat_f64(power); }

// high + low for |high| >= |low|, or high = 0.
template <Rounding mode, class V> TARN_INLINE V sum(V high, V low) {
    const V f = high + low;
    const V taken = f - high;  // of low, exactly
    return redirected<mode>(f, taken > low, taken < low);
}

// 32-bit to single ------------------------------------------------------------------------------

template <> struct Converted<float(std::uint32_t)> {
    using Signature = float(std::uint32_t);
    template <Rounding mode> static TARN_INLINE f32x4 to(u32x4 v) {
        const f32x4 low = piece((i32x4)v & splat(0x7FFFFF), 0x4B000000);     // 2^23
        const f32x4 high = piece(shift_right_logical((i32x4)v, 23), 0x56800000);  // 2^46
        return sum<mode>(high, low);
    }
};

// The processor converts signed integers; the error is the difference of integers, which may wrap when
// the result is 2^31.
template <> struct Converted<float(std::int32_t)> {
    using Signature = float(std::int32_t);
    template <Rounding mode> static TARN_INLINE f32x4 to(i32x4 v) {
        const f32x4 f = to_f32(v);
        const i32x4 error = (i32x4)((u32x4)v - (u32x4)to_i32(f));
        return redirected<mode>(f, error < 0, error > 0);
    }
};

// 64-bit to single ------------------------------------------------------------------------------

// Three pieces of 18, 23 and 23 bits. The error of high + middle is a multiple of 2^23 and low is less,
// so that low can turn the sum only where high + middle is exact, or was a tie that went down: there
// the odd neighbour is taken for the sum. The directed roundings need the sign of the whole error alone.
template <Rounding mode> TARN_INLINE f32x4 from_magnitude(i64x2 first, i64x2 second, i32x4 sign) {
    const i32x4 foot = (i32x4)_mm_shuffle_ps((__m128)first, (__m128)second, _MM_SHUFFLE(2, 0, 2, 0));
    const i32x4 head = upper_words(first, second);
    const f32x4 low = piece(foot & splat(0x7FFFFF), 0x4B000000);                                                // 2^23
    const f32x4 middle = piece((shift_right_logical(foot, 23) | head << 9) & splat(0x7FFFFF), 0x56800000);  // 2^46
    const f32x4 high = piece(shift_right_logical(head, 14), 0x62000000);                                      // 2^69
    const f32x4 s = high + middle;
    const f32x4 e = middle - (s - high);
    if constexpr (mode == Rounding::nearest) {
        const f32x4 half_unit = from_bits((bits(s) & splat(0x7F800000)) - splat(0x0C000000));
        const i32x4 tie_down = (e == half_unit) & (low > 0.0f);
        return or_bits(from_bits(bits(s) | (tie_down & 1)) + low, sign);
    } else {
        const f32x4 f = s + low;
        const f32x4 error = xor_bits(e + (low - (f - s)), sign);
        return redirected<mode>(or_bits(f, sign), error < 0.0f, error > 0.0f);
    }
}

template <> struct Converted<float(std::uint64_t)> {
    using Signature = float(std::uint64_t);
    template <Rounding mode> static TARN_INLINE f32x4 to(Quad<std::uint64_t> v) {
        return from_magnitude<mode>((i64x2)v.low, (i64x2)v.high, splat(0));
    }
};
template <> struct Converted<float(std::int64_t)> {
    using Signature = float(std::int64_t);
    template <Rounding mode> static TARN_INLINE f32x4 to(Quad<std::int64_t> v) {
        const auto magnitude = [](i64x2 x) __attribute__((always_inline)) {
            const u64x2 negative = (u64x2)(x >> 63);
            return (i64x2)(((u64x2)x ^ negative) - negative);
        };
        return from_magnitude<mode>(magnitude(v.low), magnitude(v.high), upper_words(v.low, v.high) & sign_mask_f32);
    }
};

// To double -------------------------------------------------------------------------------------
// 32 bits fit, so that every rounding gives the same.

template <> struct Converted<double(std::int32_t)> {
    using Signature = double(std::int32_t);
    template <Rounding> static TARN_INLINE f64x2 to(i32x4 v) { return to_f64(v); }
};
template <> struct Converted<double(std::uint32_t)> {
    using Signature = double(std::uint32_t);
    template <Rounding> static TARN_INLINE f64x2 to(u32x4 v) {
        return piece(widen_unsigned((i32x4)v), 0x4330000000000000);  // 2^52
    }
};

template <> struct Converted<double(std::uint64_t)> {
    using Signature = double(std::uint64_t);
    template <Rounding mode> static TARN_INLINE f64x2 to(u64x2 v) {
        const f64x2 low = piece((i64x2)(v & 0xFFFFFFFF), 0x4330000000000000);  // 2^52
        const f64x2 high = piece((i64x2)(v >> 32), 0x4530000000000000);        // 2^84
        return sum<mode>(high, low);
    }
};
// The sign bit turned over counts 2^63 more, which is taken off with the power of two.
template <> struct Converted<double(std::int64_t)> {
    using Signature = double(std::int64_t);
    template <Rounding mode> static TARN_INLINE f64x2 to(i64x2 v) {
        const f64x2 low = piece(v & 0xFFFFFFFF, 0x4330000000000000);  // 2^52
        const i64x2 shifted = shift_right_logical(v, 32) ^ splat_i64(0x4530000080000000);
        const f64x2 high = from_bits(shifted) - splat_f64(0x4530000080000000);  // 2^84 + 2^63
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
