#include "common/module.hpp"

#include <dlfcn.h>

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <tuple>

#include "frame/abi.hpp"

namespace tarn {
namespace {

template <class... T> struct List {};

// Calls through the C signature that the public header gives a shape at a width.
template <int width, class R, class Second, bool pair, class... A> struct Caller {
    // A reference, so that a vector in memory is copied once, to where the callee expects it.
    template <class T> static const Vec<T, width>& load(const std::byte* from, std::size_t call) {
        return reinterpret_cast<const Vec<T, width>*>(from)[call];
    }

    // Where a result goes: initialised by the call itself, a vector in memory is written there at once.
    static Vec<R, width>& store(std::byte* to, std::size_t call) { return reinterpret_cast<Vec<R, width>*>(to)[call]; }

    template <std::size_t... i>
    static void calls(void* address, const std::byte* const* args, std::byte* result, std::byte* second,
                      std::size_t count, std::index_sequence<i...>) {
        for (std::size_t call = 0; call < count; call++) {
            if constexpr (pair) {
                using F = VecPair<R, width> (*)(Vec<A, width>...);
                const auto both = reinterpret_cast<F>(address)(load<A>(args[i], call)...);
                std::memcpy(result + call * sizeof both.sine, &both.sine, sizeof both.sine);
                std::memcpy(second + call * sizeof both.cosine, &both.cosine, sizeof both.cosine);
            } else if constexpr (std::is_void_v<Second>) {
                using F = Vec<R, width> (*)(Vec<A, width>...);
                new (&store(result, call)) Vec<R, width>(reinterpret_cast<F>(address)(load<A>(args[i], call)...));
            } else {
                using F = Vec<R, width> (*)(Vec<A, width>..., Second*);
                new (&store(result, call)) Vec<R, width>(reinterpret_cast<F>(address)(
                    load<A>(args[i], call)...,
                    reinterpret_cast<Second*>(second + call * stored_lanes(width) * sizeof(Second))));
            }
        }
    }

    static void batch(void* address, const std::byte* const* args, std::byte* result, std::byte* second,
                      std::size_t count) {
        calls(address, args, result, second, count, std::index_sequence_for<A...>{});
    }
};

template <class R, class Second, bool pair, class... A> Function::Batch at_width(int width) {
    switch (width) {
        case 1: return Caller<1, R, Second, pair, A...>::batch;
        case 2: return Caller<2, R, Second, pair, A...>::batch;
        case 3: return Caller<3, R, Second, pair, A...>::batch;
        case 4: return Caller<4, R, Second, pair, A...>::batch;
        case 8: return Caller<8, R, Second, pair, A...>::batch;
        default: return Caller<16, R, Second, pair, A...>::batch;
    }
}

// The shapes that one precision has.
template <class T, class Code> Function::Batch of_precision(const Shape& s, int width) {
    constexpr Lane t = sizeof(T) == 4 ? Lane::f32 : Lane::f64;
    constexpr Lane code = sizeof(T) == 4 ? Lane::u32 : Lane::u64;
    if (s == unary(t)) return at_width<T, void, false, T>(width);
    if (s == binary(t)) return at_width<T, void, false, T, T>(width);
    if (s == ternary(t)) return at_width<T, void, false, T, T, T>(width);
    if (s == with_integer(t)) return at_width<T, void, false, T, std::int32_t>(width);
    if (s == second(t, t)) return at_width<T, T, false, T>(width);
    if (s == second(t, Lane::i32)) return at_width<T, std::int32_t, false, T>(width);
    if (s == binary_second(t, Lane::i32)) return at_width<T, std::int32_t, false, T, T>(width);
    if (s == returned_pair(t)) return at_width<T, T, true, T>(width);
    if (s == converts(t, Lane::i32)) return at_width<std::int32_t, void, false, T>(width);
    if (s == converts(t, Lane::u32)) return at_width<std::uint32_t, void, false, T>(width);
    if (s == converts(t, Lane::i64)) return at_width<std::int64_t, void, false, T>(width);
    if (s == converts(t, Lane::u64)) return at_width<std::uint64_t, void, false, T>(width);
    if (s == converts(Lane::i32, t)) return at_width<T, void, false, std::int32_t>(width);
    if (s == converts(Lane::u32, t)) return at_width<T, void, false, std::uint32_t>(width);
    if (s == converts(Lane::i64, t)) return at_width<T, void, false, std::int64_t>(width);
    if (s == converts(Lane::u64, t)) return at_width<T, void, false, std::uint64_t>(width);
    if (s == converts(code, t)) return at_width<T, void, false, Code>(width);
    return nullptr;
}

Function::Batch batch_for(const Shape& s, int width) {
    if (s == converts(Lane::f64, Lane::f32)) return at_width<float, void, false, double>(width);
    if (auto b = of_precision<float, std::uint32_t>(s, width)) return b;
    return of_precision<double, std::uint64_t>(s, width);
}

}  // namespace

double value_of(Lane type, std::uint64_t pattern) {
    switch (type) {
        case Lane::f32: return std::bit_cast<float>(static_cast<std::uint32_t>(pattern));
        case Lane::f64: return std::bit_cast<double>(pattern);
        case Lane::i32: return static_cast<std::int32_t>(pattern);
        case Lane::u32: return static_cast<std::uint32_t>(pattern);
        case Lane::i64: return static_cast<double>(static_cast<std::int64_t>(pattern));
        case Lane::u64: return static_cast<double>(pattern);
        case Lane::none: break;
    }
    return 0;
}

std::uint64_t pattern_of(Lane type, double value) {
    switch (type) {
        case Lane::f32: return std::bit_cast<std::uint32_t>(static_cast<float>(value));
        case Lane::f64: return std::bit_cast<std::uint64_t>(value);
        case Lane::i32: return static_cast<std::uint32_t>(static_cast<std::int32_t>(value));
        case Lane::u32: return static_cast<std::uint32_t>(value);
        case Lane::i64: return static_cast<std::uint64_t>(static_cast<std::int64_t>(value));
        case Lane::u64: return static_cast<std::uint64_t>(value);
        case Lane::none: break;
    }
    return 0;
}

void Function::operator()(const std::vector<Lanes>& args, Lanes& result, Lanes* second) const {
    const std::size_t n = args.front().size();
    const std::size_t width = static_cast<std::size_t>(of_.width);
    const std::size_t stored = static_cast<std::size_t>(stored_lanes(of_.width));
    const Shape& shape = of_.family->shape;
    const std::size_t calls = (n + width - 1) / width;
    const std::byte* pointers[3] = {};

    // Whole calls of a width that carries nothing else lie in memory as they are passed.
    if (stored == width && n % width == 0) {
        for (std::size_t a = 0; a < args.size(); a++) pointers[a] = args[a].data();
        result = Lanes(shape.result, n);
        Lanes seconds(shape.second, shape.second == Lane::none ? 0 : n);
        batch_(address_, pointers, result.data(), seconds.data(), calls);
        if (second) *second = std::move(seconds);
        return;
    }

    // The vectors as memory holds them: what a width carries beyond its lanes is hostile.
    std::vector<Lanes> packed;
    for (std::size_t a = 0; a < args.size(); a++) {
        const std::uint64_t poison = is_float(shape.args[a]) ? pattern_of(shape.args[a], __builtin_nan("")) : ~0ull;
        Lanes p(shape.args[a], calls * stored);
        for (std::size_t c = 0; c < calls; c++)
            for (std::size_t i = 0; i < stored; i++)
                p.set(c * stored + i, i < width ? args[a].pattern(std::min(c * width + i, n - 1)) : poison);
        packed.push_back(std::move(p));
    }
    Lanes r(shape.result, calls * stored), s(shape.second, calls * stored);
    for (std::size_t a = 0; a < packed.size(); a++) pointers[a] = packed[a].data();
    batch_(address_, pointers, r.data(), s.data(), calls);

    result = Lanes(shape.result, n);
    for (std::size_t i = 0; i < n; i++) result.set(i, r.pattern(i / width * stored + i % width));
    if (second && shape.second != Lane::none) {
        *second = Lanes(shape.second, n);
        for (std::size_t i = 0; i < n; i++) second->set(i, s.pattern(i / width * stored + i % width));
    }
}

Module::Module(const std::string& path) : handle_(dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL)) {
    if (!handle_) throw std::runtime_error(std::string("cannot load the module: ") + dlerror());
}

std::string library_path(const char* variable, const std::filesystem::path& built) {
    if (const char* other = std::getenv(variable); other && *other) return other;
    std::error_code none;
    const std::string program = std::filesystem::read_symlink("/proc/self/exe", none).string();
    return program.starts_with(TARN_BUILD_DIRECTORY "/") ? built.string() : built.filename().string();
}

std::string Module::built_path() { return library_path("TARN_MODULE", TARN_MODULE_PATH); }

std::optional<Function> Module::find(const Export& e) const {
    Function f;
    f.of_ = e;
    f.address_ = dlsym(handle_, f.name().c_str());
    if (!f.address_) return std::nullopt;
    f.batch_ = batch_for(e.family->shape, e.width);
    return f;
}

std::optional<Function> Module::find(const std::string& base, int width, Variant v) const {
    const Family* f = find_family(base);
    return f ? find({f, width, v}) : std::nullopt;
}

}  // namespace tarn
