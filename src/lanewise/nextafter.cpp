// The neighbour of x toward y, exact: one step of the bit pattern, up where y is farther from zero on the same
// side, else down. A zero takes the sign of y first, so that its step is to the smallest subnormal on that side.
//
// Patterns are compared, not numbers: subnormals count where the caller has switched them off too. As in C, a
// step to an infinity raises overflow, one to zero or a subnormal underflow, both with inexact.
#include "frame/exports.hpp"
#include "lanewise/format.hpp"

namespace tarn {
namespace {

// The value is not used, the flags of its operations are.
template <class V> TARN_INLINE void raise_flags_of(V v) { asm volatile("" : : "x"(v)); }

template <class Lane> struct NextAfter : Kernel<Lane(Lane, Lane)> {
    template <class V> static TARN_INLINE auto fast(V x, V y) {
        const auto from = bits(select(bits(abs(x)) == 0, from_bits(sign_bit(y)), x)), to = bits(y);
        const auto nan = (x != x) | (y != y), moves = ~(nan | (from == to));
        // In the sign bit: the signs differ, or y is nearer to zero.
        const auto toward_zero = (from ^ to) | (bits(abs(y)) - bits(abs(x)));
        const auto step = toward_zero >> (8 * sizeof(Lane) - 1) | 1;
        const auto result = from + (moves & step);

        constexpr auto exponent = Format<Lane>::exponent_mask;
        const auto field = result & exponent;
        const auto edge = where(moves & ((field == 0) | (field == exponent)), from_bits(from | 1));
        raise_flags_of(edge * edge);

        // A NaN has the exponent's bits set already, and half of them reaches to the quiet bit.
        const auto quiet = or_bits(select(x != x, x, y), exponent >> 1);
        return select(nan, quiet, from_bits(result));
    }
};

}  // namespace
}  // namespace tarn

TARN_EXPORT_BOTH(binary, nextafter, tarn::NextAfter)
