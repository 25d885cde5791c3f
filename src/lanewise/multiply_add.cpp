// x y + z: mad rounds the product and then the sum; fma rounds once, for which every lane goes to the
// callout.
#include "callout/callouts.hpp"
#include "frame/exports.hpp"
#include "lanewise/format.hpp"

namespace tarn {
namespace {

template <class Lane> struct Mad : Kernel<Lane(Lane, Lane, Lane)> {
    static TARN_INLINE auto fast(Block<Lane> x, Block<Lane> y, Block<Lane> z) { return (x * y) + z; }
};

template <class Lane> struct Fma : Kernel<Lane(Lane, Lane, Lane)> {
    static constexpr auto callout = callout::fma<Lane>;
};

}  // namespace
}  // namespace tarn

TARN_EXPORT_BOTH(ternary, mad, tarn::Mad)
TARN_EXPORT_BOTH(ternary, fma, tarn::Fma)
