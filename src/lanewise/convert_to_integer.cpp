// Floating point to integers, 64 conversions: x is rounded to an integral value by the round instruction,
// so that the conversion after it is exact. `sat` clamps to the integer's range; `nosat` leaves the
// processor's answer for what has no value, the lowest integer. 64-bit integers are made from double
// precision, which holds every single.
#include "lanewise/conversion.hpp"

namespace tarn {
namespace {

constexpr double two_63 = 0x1p63;
constexpr double two_64 = 0x1p64;

// In the low 32 bits of each lane, for an integral r in [0, 2^32).
template <Doubles V> TARN_INLINE BitsOf<V> low_bits(V r) { return bits(r + 0x1p52); }

template <class Signature> struct Clamped;
template <class Signature> struct Indefinite;

// Signed 32-bit ---------------------------------------------------------------------------------

template <class Real> struct Indefinite<std::int32_t(Real)> {
    using Signature = std::int32_t(Real);
    template <Rounding mode, Floats V> static TARN_INLINE auto to(V x) { return to_i32(round<mode>(x)); }
};

// The lowest integer is right below the range; above it, its complement is.
template <> struct Clamped<std::int32_t(float)> {
    using Signature = std::int32_t(float);
    template <Rounding mode, Floats V> static TARN_INLINE auto to(V x) {
        const auto r = round<mode>(x);
        return (to_i32(r) ^ (r >= 0x1p31f)) & (r == r);
    }
};
template <> struct Clamped<std::int32_t(double)> {
    using Signature = std::int32_t(double);
    template <Rounding mode, Floats V> static TARN_INLINE auto to(V x) {
        const auto r = round<mode>(x);
        return to_i32(min(where(r == r, r), 0x1p31 - 1));
    }
};

// Unsigned 32-bit -------------------------------------------------------------------------------
// The sign decides, not the value: without saturation it is dropped from r; with it a set sign gives 0,
// even a NaN's.

// r in [2^31, 2^32) has its leading bit at bit 31; elsewhere the processor's conversion stands.
template <Singles V> TARN_INLINE BitsOf<V> to_u32(V r) {
    const auto top_half = (bits(r) & 0x7F800000) == 0x4F000000;
    return select(top_half, bits(r) << 8 | i32(0x80000000), to_i32(r));
}

template <> struct Indefinite<std::uint32_t(float)> {
    using Signature = std::uint32_t(float);
    template <Rounding mode, Floats V> static TARN_INLINE auto to(V x) {
        return (Unsigned<V>)to_u32(abs(round<mode>(x)));
    }
};
template <> struct Clamped<std::uint32_t(float)> {
    using Signature = std::uint32_t(float);
    template <Rounding mode, Floats V> static TARN_INLINE auto to(V x) {
        const auto r = round<mode>(x);
        const auto above = bits(r) > 0x4F7FFFFF;  // from 2^32 on
        const auto negative = bits(r) >> 31;
        return (Unsigned<V>)((to_u32(r) | above) & ~negative);
    }
};

template <> struct Indefinite<std::uint32_t(double)> {
    using Signature = std::uint32_t(double);
    template <Rounding mode, Floats V> static TARN_INLINE auto to(V x) {
        const auto r = abs(round<mode>(x));
        // Opaque: the compiler would take the low words of all three, not of what is chosen.
        return (Like<V, std::uint32_t>)low_words(opaque(select(r < 0x1p32, low_bits(r), std::int64_t{0x80000000})));
    }
};
template <> struct Clamped<std::uint32_t(double)> {
    using Signature = std::uint32_t(double);
    template <Rounding mode, Floats V> static TARN_INLINE auto to(V x) {
        const auto r = round<mode>(x);
        const auto clamped = from_bits(low_bits(min(r, 0x1p32 - 1)));        // a NaN too
        const auto result = low_words(bits(select(bits(r), 0.0, clamped)));  // by the sign bit
        return (Like<V, std::uint32_t>)result;
    }
};

// 64-bit ----------------------------------------------------------------------------------------

// An integral r in [0, 2^64): the upper half of the range is converted less 2^63.
template <Doubles V> TARN_INLINE BitsOf<V> to_u64(V r) {
    const auto top_half = r >= two_63;
    return to_i64(r - where(top_half, two_63)) ^ (top_half & sign_mask<V>);
}

template <Doubles V> TARN_INLINE V in_double(V x) { return x; }
template <Singles V> TARN_INLINE auto in_double(V x) { return widen_low(x); }

template <class Real> struct Indefinite<std::int64_t(Real)> {
    using Signature = std::int64_t(Real);
    template <Rounding mode, Floats V> static TARN_INLINE auto to(V x) { return to_i64(round<mode>(in_double(x))); }
};
template <class Real> struct Clamped<std::int64_t(Real)> {
    using Signature = std::int64_t(Real);
    template <Rounding mode, Floats V> static TARN_INLINE auto to(V x) {
        const auto r = round<mode>(in_double(x));
        return (to_i64(r) ^ (r >= two_63)) & (r == r);
    }
};

template <class Real> struct Indefinite<std::uint64_t(Real)> {
    using Signature = std::uint64_t(Real);
    template <Rounding mode, Floats V> static TARN_INLINE auto to(V x) {
        const auto r = round<mode>(in_double(x));
        using R = decltype(r);
        return (Unsigned<R>)select((r >= 0.0) & (r < two_64), to_u64(r), sign_mask<R>);
    }
};
template <class Real> struct Clamped<std::uint64_t(Real)> {
    using Signature = std::uint64_t(Real);
    template <Rounding mode, Floats V> static TARN_INLINE auto to(V x) {
        const auto r = round<mode>(in_double(x));
        return (Unsigned<decltype(r)>)((to_u64(r) & (r >= 0.0)) | (r >= two_64));
    }
};

}  // namespace
}  // namespace tarn

using std::int32_t, std::uint32_t, std::int64_t, std::uint64_t;

TARN_EXPORT_ROUNDINGS(cvtfptoi32, satf, tarn::Clamped<int32_t(float)>)
TARN_EXPORT_ROUNDINGS(cvtfptou32, satf, tarn::Clamped<uint32_t(float)>)
TARN_EXPORT_ROUNDINGS(cvtfptoi64, satf, tarn::Clamped<int64_t(float)>)
TARN_EXPORT_ROUNDINGS(cvtfptou64, satf, tarn::Clamped<uint64_t(float)>)
TARN_EXPORT_ROUNDINGS(cvtfptoi32, sat, tarn::Clamped<int32_t(double)>)
TARN_EXPORT_ROUNDINGS(cvtfptou32, sat, tarn::Clamped<uint32_t(double)>)
TARN_EXPORT_ROUNDINGS(cvtfptoi64, sat, tarn::Clamped<int64_t(double)>)
TARN_EXPORT_ROUNDINGS(cvtfptou64, sat, tarn::Clamped<uint64_t(double)>)
TARN_EXPORT_ROUNDINGS(cvtfptoi32, nosatf, tarn::Indefinite<int32_t(float)>)
TARN_EXPORT_ROUNDINGS(cvtfptou32, nosatf, tarn::Indefinite<uint32_t(float)>)
TARN_EXPORT_ROUNDINGS(cvtfptoi64, nosatf, tarn::Indefinite<int64_t(float)>)
TARN_EXPORT_ROUNDINGS(cvtfptou64, nosatf, tarn::Indefinite<uint64_t(float)>)
TARN_EXPORT_ROUNDINGS(cvtfptoi32, nosat, tarn::Indefinite<int32_t(double)>)
TARN_EXPORT_ROUNDINGS(cvtfptou32, nosat, tarn::Indefinite<uint32_t(double)>)
TARN_EXPORT_ROUNDINGS(cvtfptoi64, nosat, tarn::Indefinite<int64_t(double)>)
TARN_EXPORT_ROUNDINGS(cvtfptou64, nosat, tarn::Indefinite<uint64_t(double)>)
