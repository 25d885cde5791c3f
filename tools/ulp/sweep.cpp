#include "ulp/sweep.hpp"

#include <algorithm>
#include <atomic>
#include <bit>
#include <mutex>
#include <random>
#include <sstream>
#include <thread>

namespace tarn::ulp {
namespace {

double unit(std::mt19937_64& random) { return static_cast<double>(random() >> 11) * 0x1p-53; }

std::string text_of(const Found& b) {
    char text[96];
    std::snprintf(text, sizeof text, "%.6g", b.ulp);
    std::string line = text;
    for (const auto p : b.at) std::snprintf(text, sizeof text, " 0x%llx", static_cast<unsigned long long>(p)), line += text;
    return line;
}

}  // namespace

std::uint64_t Sweep::per_block() const {
    return std::clamp<std::uint64_t>(std::bit_floor(inputs / 2048), 1, 1 << 20);
}

std::string Sweep::title() const {
    std::ostringstream text;
    text << target.function.name() << (target.second ? " second" : "") << (exhaustive ? " all " : " samples ") << inputs;
    for (const Range& range : target.ranges) text << ' ' << range.low << ".." << range.high;
    return text.str();
}

std::vector<Lanes> Sweep::inputs_of(std::uint64_t block) const {
    const Shape& shape = target.shape();
    const std::uint64_t first = block * per_block(), count = std::min(per_block(), inputs - first);
    std::vector<Lanes> args;
    std::mt19937_64 random(block * 0x9E3779B97F4A7C15 + 1);
    for (std::size_t a = 0; a < shape.args.size(); a++) {
        const Lane type = shape.args[a];
        const auto [low, high] = target.ranges[a];
        args.emplace_back(type, count);
        // Half the blocks are even in value, where that can be, half in pattern, each a slice of the first argument.
        const std::uint64_t slices = a ? 1 : (blocks() + 1) / 2, slice = a ? 0 : block / 2;
        const double from = value_of(type, ordered(type, low)), to = value_of(type, ordered(type, high));
        const bool by_value = is_float(type) && block % 2 && std::isfinite(to - from);
        for (std::uint64_t i = 0; i < count; i++) {
            if (exhaustive) {
                args[a].set(i, ordered(type, low + first + i));
                continue;
            }
            const double share = (static_cast<double>(slice) + unit(random)) / static_cast<double>(slices);
            const auto part = static_cast<std::uint64_t>(share * 0x1p63);
            const auto step = static_cast<std::uint64_t>(static_cast<unsigned __int128>(high - low) * part >> 63);
            args[a].set(i, by_value ? pattern_of(type, from * (1 - share) + to * share) : ordered(type, low + step));
        }
    }
    return args;
}

Found Sweep::run(std::uint64_t block) const {
    const Shape& shape = target.shape();
    const Truth& truth = *truth_of(target.function.family());
    const auto args = inputs_of(block);
    const Lanes result = target.results(args);
    const bool quick = !target.second && target.type() == Lane::f32 && (truth.quick || truth.quick2);

    Found b;
    Point at(args.size());
    for (std::size_t i = 0; i < result.size(); i++) {
        for (std::size_t a = 0; a < args.size(); a++) at[a] = args[a].pattern(i);
        if (quick) {
            // The C library's double results are exact enough to pass over what cannot be the worst.
            const double x = value_of(shape.args[0], at[0]);
            const double near = truth.quick ? truth.quick(x) : truth.quick2(x, value_of(shape.args[1], at[1]));
            const float got = std::bit_cast<float>(static_cast<std::uint32_t>(result.pattern(i)));
            if (std::isnan(got) && std::isnan(near)) continue;
            if (got == near || (std::isinf(got) && std::fabs(near) >= 0x1p128 && got * near > 0)) continue;
            if (quick_error(got, near) <= b.ulp + 1e-6) continue;
        }
        const double error = ulp_error(target.type(), result.pattern(i), target.truth(at));
        if (error > b.ulp) b = {error, at};
    }
    return b;
}

Log::Log(const std::string& path, const std::string& title) {
    if (path.empty()) return;
    std::ifstream in(path);
    std::string line;
    if (std::getline(in, line)) {
        if (line != title) throw cli::Refused(path + " is the log of another sweep: " + line);
        while (std::getline(in, line)) {
            std::istringstream fields(line);
            std::uint64_t block;
            std::string worst;
            // A line cut short by a crash has no end mark and is computed again.
            if (!(fields >> block >> worst) || !line.ends_with(" .")) continue;
            Found b{std::strtod(worst.c_str(), nullptr), {}};
            for (std::string p; fields >> p && p != ".";) b.at.push_back(std::stoull(p, nullptr, 16));
            done[block] = b;
        }
        out_.open(path, std::ios::app);
        out_ << '\n';
    } else {
        out_.open(path);
        out_ << title << '\n';
    }
    if (!out_) throw cli::Refused("cannot write " + path);
}

void Log::add(std::uint64_t block, const Found& found) {
    done[block] = found;
    if (out_.is_open() && !(out_ << block << ' ' << text_of(found) << " .\n" << std::flush))
        throw cli::Refused("the log cannot be written");
}

Found Log::worst() const {
    Found top;
    for (const auto& [block, b] : done)
        if (b.ulp > top.ulp) top = b;
    return top;
}

bool run(const Sweep& sweep, Log& log, unsigned threads, const std::function<bool(double, double)>& report) {
    std::mutex mutex;
    std::atomic<std::uint64_t> next = 0;
    std::atomic<bool> go_on = true;
    std::exception_ptr failure;
    double worst = log.worst().ulp;
    const std::uint64_t blocks = sweep.blocks();
    const auto work = [&] {
        for (std::uint64_t block; go_on && (block = next++) < blocks;) {
            {
                const std::lock_guard lock(mutex);
                if (log.done.count(block)) continue;
            }
            const Found b = sweep.run(block);
            const std::lock_guard lock(mutex);
            try {
                log.add(block, b);
            } catch (...) {
                failure = std::current_exception(), go_on = false;
            }
            worst = std::max(worst, b.ulp);
            if (!report(static_cast<double>(log.done.size()) / static_cast<double>(blocks), worst)) go_on = false;
        }
    };
    std::vector<std::jthread> workers;
    for (unsigned t = 0; t < threads; t++) workers.emplace_back(work);
    workers.clear();
    if (failure) std::rethrow_exception(failure);
    return log.done.size() == blocks;
}

}  // namespace tarn::ulp
