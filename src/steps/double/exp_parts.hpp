// What the double-precision exponentials and powers share: 2^(n/2^k) with the row n mod 2^k from a table and the
// rest of n in the exponent field.
#pragma once

#include "frame/simd.hpp"

namespace tarn::doubles {

#include "tables/exp2_128ths.inc"

// 2^(j/128), j in the low bits of a shifted sum.
template <class V> TARN_INLINE V exp2_128th(V shifted) { return gather(exp2_128ths, bits(shifted) & 127); }

// y times 2^(n >> index_bits), n in the low bits of a shifted sum; wrapping makes a negative n subtract.
template <int index_bits, class V> TARN_INLINE V raised(V y, V shifted) {
    const BitsOf<V> whole = bits(shifted) & ~i64((1 << index_bits) - 1);
    return from_bits(bits(y) + (whole << (52 - index_bits)));
}

}  // namespace tarn::doubles
