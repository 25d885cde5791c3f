// The bits of an export in one number: over a fixed run of inputs, the same for all time.
#pragma once

#include "samples.hpp"

namespace tarn::test {

// Of every four calls of 16 lanes three have all lanes in the usual interval, integers too, so that their calls are
// ordinary ones from end to end; the fourth takes any patterns.
inline std::vector<Lanes> run_of_inputs(const Family& f) {
    constexpr std::size_t count = 1 << 16;
    std::vector<Lanes> args;
    for (std::size_t a = 0; a < f.shape.args.size(); a++) {
        const Lane type = f.shape.args[a];
        Lanes lanes(type, count);
        std::uint64_t state = 0x9E3779B97F4A7C15 * (a + 1);
        for (std::size_t i = 0; i < count; i++) {
            state = state * 6364136223846793005 + 1442695040888963407;
            const std::uint64_t draw = state ^ state >> 29;
            if (i / widest % 4 == 3 || a >= f.usual.size()) {
                lanes.set(i, draw & (bytes(type) == 8 ? ~0ull : 0xffffffff));
            } else {
                const auto [low, high] = f.usual[a];
                const double u = static_cast<double>(draw >> 11) * 0x1p-53;
                lanes.set(i, pattern_of(type, low + (high - low) * u));
            }
        }
        args.push_back(std::move(lanes));
    }
    return args;
}

// NaNs are one value.
inline std::uint64_t digest(const Function& f) {
    const auto args = run_of_inputs(f.family());
    Lanes result, second;
    f(args, result, &second);
    std::uint64_t h = 0xcbf29ce484222325;
    const auto add = [&](const Lanes& lanes) {
        for (std::size_t i = 0; i < lanes.size(); i++) {
            const bool nan = is_float(lanes.type()) && std::isnan(value_of(lanes.type(), lanes.pattern(i)));
            h = (h ^ (nan ? 1 : lanes.pattern(i))) * 0x100000001b3;
            h ^= h >> 32;
        }
    };
    add(result);
    add(second);
    return h;
}

}  // namespace tarn::test
