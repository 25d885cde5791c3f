// The door of a kernel that leads to proofs: an export is a kernel whose operations can be written down.
#pragma once

#include <cstddef>
#include <tuple>

#include "proofs/traced.hpp"

// What a kernel says for callouts and loops has no reader here.
#pragma GCC diagnostic ignored "-Wunused-const-variable"

namespace tarn {

struct TracedKernel {
    const char* base;
    int width;
    void (*write_down)();
};
inline std::vector<TracedKernel> traced_kernels;

template <class K, class R, class... A> void write_down(R (*)(A...)) {
    // In the order in which they are written, which an argument list does not promise.
    std::tuple<Traced<A>...> arguments{Traced<A>::of("argument", {})...};
    const auto result = std::apply([](auto... x) { return K::fast(x...); }, arguments);
    Traced<R>::of("result", {result.value.number, result.special.number});
}

template <class K> struct Registered {
    template <int width> static void add(const char* base) {
        using Chosen = typename ChosenAt<K, width>::Kernel;
        const auto write = [] { write_down<Chosen>(static_cast<typename Chosen::Signature*>(nullptr)); };
        traced_kernels.push_back({base, width, write});
    }
    explicit Registered(const char* base) {
        add<1>(base);
        add<2>(base);
        add<16>(base);
    }
};

}  // namespace tarn

#define TARN_TRACED_full(base, Kernel) static const tarn::Registered<Kernel> TARN_PASTE(traced_, base, , )(#base);
#define TARN_TRACED_native(base, Kernel)
#define TARN_TRACED_half(base, Kernel)
#define TARN_EXPORT(shape, base, variant, Kernel) TARN_TRACED_##variant(base, Kernel)
#define TARN_EXPORT_SAME(base, variant, like)
