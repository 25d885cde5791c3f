// fabs and copysign, which touch the sign bit alone, and nan, which makes a quiet NaN of a payload.
// Exact for every bit pattern; no flag is raised, not even by a signalling NaN.
#include "frame/exports.hpp"
#include "lanewise/format.hpp"

namespace tarn {
namespace {

template <class Lane> struct Fabs : Kernel<Lane(Lane)> {
    template <class V> static TARN_INLINE auto fast(V x) { return abs(x); }
};

template <class Lane> struct CopySign : Kernel<Lane(Lane, Lane)> {
    template <class V> static TARN_INLINE auto fast(V x, V y) { return or_bits(abs(x), sign_bit(y)); }
};

struct Nanf : Kernel<float(std::uint32_t)> {
    template <class U> static TARN_INLINE auto fast(U payload) { return from_bits((BitsOf<U>)payload | 0x7FC00000); }
};
struct Nan : Kernel<double(std::uint64_t)> {
    template <class U> static TARN_INLINE auto fast(U payload) {
        return from_bits((BitsOf<U>)payload | 0x7FF8000000000000);
    }
};

}  // namespace
}  // namespace tarn

TARN_EXPORT_BOTH(unary, fabs, tarn::Fabs)
TARN_EXPORT_BOTH(binary, copysign, tarn::CopySign)
TARN_EXPORT(unary, nanf, full, tarn::Nanf)
TARN_EXPORT(unary, nan, full, tarn::Nan)
