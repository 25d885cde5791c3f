#include "ulp/profile.hpp"

#include <algorithm>
#include <atomic>
#include <bit>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <mutex>
#include <thread>

#include "ulp/search.hpp"

namespace tarn::ulp {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

// What the double form may be off, and rounding here, in units of single precision, with room.
constexpr double slack = 1e-6;

std::vector<double> edges_of(const Family& family) {
    const Axis& axis = family.axis;
    constexpr int a_side = 47, linear = 96;
    std::vector<double> edges = {-infinity};
    if (axis.scale == Scale::linear) {
        for (int k = 0; k <= linear; k++) edges.push_back(axis.low + k * (axis.high - axis.low) / linear);
    } else {
        // Whole binades, so many that the bins are no more than a_side a side.
        const auto [low, high] = family.binades();
        const int from = static_cast<int>(std::floor(low)), to = static_cast<int>(std::floor(high));
        const int step = (to - from + a_side - 1) / a_side;
        std::vector<double> side;
        for (int k = from; k < to; k += step) side.push_back(std::ldexp(1, k));
        side.push_back(std::ldexp(1, to));
        for (auto v = side.rbegin(); v != side.rend(); ++v) edges.push_back(-*v);
        edges.push_back(0);
        edges.insert(edges.end(), side.begin(), side.end());
    }
    // Binades may reach the ends already.
    if (edges.back() != infinity) edges.push_back(infinity);
    if (edges[1] == -infinity) edges.erase(edges.begin());
    return edges;
}

// What follows are loops for the vectors of the processor at hand. Consecutive inputs of the order, and the same in double.
[[gnu::target_clones("avx512f", "avx2", "default")]]
void consecutive(std::uint64_t low, std::uint32_t* narrow, double* wide, std::size_t n) {
    for (std::size_t i = 0; i < n; i++) {
        const std::uint32_t order = static_cast<std::uint32_t>(low) + static_cast<std::uint32_t>(i);
        narrow[i] = order ^ (order >> 31 ? 0x80000000 : 0xffffffff);
        wide[i] = static_cast<double>(std::bit_cast<float>(narrow[i]));
    }
}

// Errors of results against candidates for the exact values, both in registers side by side: no branches, no calls. A
// candidate within a few of its own units above a power of two may stand for an exact value below it, where the unit is
// half as long, and is taken for one. Infinite where only one of the two is a NaN, or the exact value is beyond the range
// and the result is not.
[[gnu::target_clones("avx512f", "avx2", "default")]]
void errors(const float* results, const double* candidates, double* errors, std::size_t n) {
    for (std::size_t i = 0; i < n; i++) {
        const double truth = candidates[i], size = std::fabs(truth);
        double got = static_cast<double>(results[i]);
        double within = size > 0x1.0000000001p-126 ? size : 0x1.0000000001p-126;
        within = within < 0x1.8p127 ? within : 0x1.8p127;
        const std::uint64_t exponent = (std::bit_cast<std::uint64_t>(within) - 8) & 0x7ff0000000000000;
        const double per_unit = std::bit_cast<double>((std::uint64_t{2 * 1023 + 23} << 52) - exponent);
        // An infinite result stands for the power of two beyond the largest number.
        const double near = got > 0x1p128 ? 0x1p128 : got < -0x1p128 ? -0x1p128 : got;
        double error = std::fabs(near - truth) * per_unit;
        error = size > 0x1.0000000001p128 ? (near == (truth > 0 ? 0x1p128 : -0x1p128) ? 0 : infinity) : error;
        const bool no_result = got != got, no_truth = truth != truth;
        error = no_result == no_truth ? error : infinity;
        errors[i] = (no_result & no_truth) ? 0 : error;
    }
}

[[gnu::target_clones("avx512f", "avx2", "default")]]
double largest_of(const double* errors, std::size_t n) {
    constexpr std::size_t lanes = 8;
    double most[lanes] = {};
    std::size_t i = 0;
    for (; i + lanes <= n; i += lanes)
        for (std::size_t j = 0; j < lanes; j++) most[j] = errors[i + j] > most[j] ? errors[i + j] : most[j];
    for (; i < n; i++) most[0] = std::max(most[0], errors[i]);
    return *std::max_element(most, most + lanes);
}

void take(BinFound& best, const BinFound& other) {
    if (other.largest.ulp > best.largest.ulp) best.largest = other.largest;
    if (best.wrong.at.empty()) best.wrong = other.wrong;
}

class Sweeper {
public:
    Sweeper(const std::vector<Target>& targets, const Function& near, Profile& profile)
        : targets_(targets), near_(near), profile_(profile), found_(profile.of_target) {}

    void run(std::size_t bin, Range orders) {
        for (std::uint64_t low = orders.low;; low += block) {
            const std::uint64_t high = orders.high - low < block ? orders.high : low + block - 1;
            inputs(low, high);
            near_(wide_, exact_[0], &exact_[1]);
            for (std::size_t t = 0; t < targets_.size(); t++) one_block(t, bin, low, high);
            if (high == orders.high) return;
        }
    }

    // Into what all threads found.
    void merge() const {
        for (std::size_t t = 0; t < targets_.size(); t++)
            for (std::size_t b = 0; b < profile_.bins.size(); b++) take(profile_.of_target[t][b], found_[t][b]);
        profile_.measured += measured_;
    }

private:
    static constexpr std::size_t block = 1 << 14;

    void inputs(std::uint64_t low, std::uint64_t high) {
        const std::size_t n = high - low + 1;
        if (errors_.size() != n) x_[0] = Lanes(Lane::f32, n), wide_[0] = Lanes(Lane::f64, n), errors_.resize(n);
        consecutive(low, reinterpret_cast<std::uint32_t*>(x_[0].data()), reinterpret_cast<double*>(wide_[0].data()), n);
    }

    void one_block(std::size_t t, std::size_t bin, std::uint64_t low, std::uint64_t high) {
        const Target& target = targets_[t];
        const Range& range = target.ranges[0];
        if (low > range.high || high < range.low) return;
        target.function(x_, results_[0], &results_[1]);
        const Lanes& result = results_[target.second];
        const Lanes& exact = exact_[target.second];
        const auto* near = reinterpret_cast<const double*>(exact.data());
        const std::size_t n = errors_.size();
        errors(reinterpret_cast<const float*>(result.data()), near, errors_.data(), n);
        for (std::uint64_t at = low; at < range.low; at++) errors_[at - low] = 0;
        for (std::uint64_t at = high; at > range.high; at--) errors_[at - low] = 0;

        BinFound& best = found_[t][bin];
        for (;;) {
            const double largest = largest_of(errors_.data(), n);
            if (largest <= best.largest.ulp + slack && largest != 0 && !best.largest.at.empty()) return;
            if (largest == 0) return;
            const std::size_t i = static_cast<std::size_t>(std::find(errors_.begin(), errors_.end(), largest) - errors_.begin());
            // One wrong result says all of its bin that the profile shows.
            if (std::isinf(largest) && !best.wrong.at.empty()) {
                std::replace(errors_.begin(), errors_.end(), infinity, 0.0);
                continue;
            }
            const Point at = {x_[0].pattern(i)};
            const double error = target.error(at);
            measured_++;
            if (std::isinf(error)) best.wrong = {error, at};
            else if (error > best.largest.ulp) best.largest = {error, at};
            if (largest - error <= slack) return;
            // Not what the candidate made of it: the like of it in this block are passed over.
            const std::uint64_t like = result.pattern(i), truth = exact.pattern(i);
            for (std::size_t j = 0; j < n; j++)
                if (errors_[j] == largest && result.pattern(j) == like && exact.pattern(j) == truth) errors_[j] = std::isinf(error) ? 0 : error;
        }
    }

    const std::vector<Target>& targets_;
    const Function& near_;
    Profile& profile_;
    std::vector<std::vector<BinFound>> found_;
    std::vector<Lanes> x_ = std::vector<Lanes>(1), wide_ = x_;
    Lanes exact_[2], results_[2];
    std::vector<double> errors_;
    std::uint64_t measured_ = 0;
};

Profile empty_profile(const std::vector<Target>& targets, const Range& range) {
    Profile profile;
    profile.bins = bins_of(targets[0].function.family(), range);
    profile.of_target.assign(targets.size(), std::vector<BinFound>(profile.bins.size()));
    return profile;
}

// Whether a bin has a value at all: at its ends, and between them.
bool has_value(const Target& target, const Range& orders) {
    for (const std::uint64_t order : {orders.low, orders.high, orders.low + (orders.high - orders.low) / 2})
        if (!mpfr_nan_p(target.truth({ordered(target.shape().args[0], order)}).value)) return true;
    return false;
}

std::string shortest(Lane type, double v) {
    char text[40];
    const auto end = type == Lane::f32 ? std::to_chars(text, text + sizeof text, static_cast<float>(v)) : std::to_chars(text, text + sizeof text, v);
    return {text, end.ptr};
}

std::string patterns(const Target& target, const Point& at) {
    std::string line;
    for (std::size_t a = 0; a < at.size(); a++) {
        char text[24];
        std::snprintf(text, sizeof text, "%s0x%0*llx", a ? " " : "", bytes(target.shape().args[a]) * 2, static_cast<unsigned long long>(at[a]));
        line += text;
    }
    return line;
}

}  // namespace

std::vector<Bin> bins_of(const Family& family, const Range& range) {
    const Lane type = family.shape.args[0];
    const std::vector<double> edges = edges_of(family);
    std::vector<Bin> bins;
    for (std::size_t k = 0; k + 1 < edges.size(); k++) {
        const bool last = k + 2 == edges.size();
        const std::uint64_t low = order_of(type, pattern_of(type, edges[k])), high = order_of(type, pattern_of(type, edges[k + 1])) - !last;
        if (high < low || high < range.low || low > range.high) continue;
        bins.push_back({{std::max(low, range.low), std::min(high, range.high)}, edges[k], edges[k + 1]});
    }
    return bins;
}

bool swept_whole(const Family& family) { return family.shape.args.size() == 1 && family.shape.args[0] == Lane::f32; }

Profile sweep_bins(const std::vector<Target>& targets, const Function& near, const Range& range, unsigned threads, const ProfileReport& report) {
    Profile profile = empty_profile(targets, range);
    struct Part {
        std::size_t bin;
        Range orders;
    };
    constexpr std::uint64_t most = 1 << 20;
    std::vector<Part> parts;
    for (std::size_t b = 0; b < profile.bins.size(); b++)
        for (std::uint64_t low = profile.bins[b].orders.low; low <= profile.bins[b].orders.high; low += most)
            parts.push_back({b, {low, std::min(low + most - 1, profile.bins[b].orders.high)}});
    std::vector<Sweeper> sweepers(threads, Sweeper(targets, near, profile));
    std::atomic<std::size_t> next = 0;
    std::atomic<bool> go_on = true;
    std::mutex mutex;
    const auto work = [&](Sweeper& sweeper) {
        for (std::size_t part; go_on && (part = next++) < parts.size();) {
            sweeper.run(parts[part].bin, parts[part].orders);
            const std::lock_guard lock(mutex);
            if (!report(static_cast<double>(part + 1) / static_cast<double>(parts.size()))) go_on = false;
        }
    };
    std::vector<std::jthread> workers;
    for (Sweeper& sweeper : sweepers) workers.emplace_back([&] { work(sweeper); });
    workers.clear();
    for (const Sweeper& sweeper : sweepers) sweeper.merge();
    profile.complete = go_on;
    return profile;
}

Profile search_bins(const std::vector<Target>& targets, const Range& range, double seconds_each, unsigned threads, const ProfileReport& report) {
    Profile profile = empty_profile(targets, range);
    const std::size_t bins = profile.bins.size();
    for (std::size_t t = 0; t < targets.size(); t++)
        for (std::size_t b = 0; b < bins; b++) {
            Target part = targets[t];
            const Range& orders = profile.bins[b].orders;
            part.ranges[0] = {std::max(part.ranges[0].low, orders.low), std::min(part.ranges[0].high, orders.high)};
            if (part.ranges[0].low > part.ranges[0].high || (part.ranges.size() == 1 && !has_value(part, part.ranges[0]))) continue;
            bool go_on = true;
            const SearchResult found = search(part, seconds_each, threads, 1, [&](double, const SearchResult&) { return go_on; });
            profile.of_target[t][b] = {found.largest, found.wrong};
            profile.measured += found.evaluations;
            if (!report(static_cast<double>(t * bins + b + 1) / static_cast<double>(targets.size() * bins))) return profile;
        }
    profile.complete = true;
    return profile;
}

void write_profile(const std::string& path, const std::vector<Target>& targets, const Profile& profile, const std::string& how) {
    // Under another name first: a file of that name is always whole.
    const std::string part = path + ".part";
    std::ofstream out(part);
    out << "# " << targets[0].function.family().base << ": the largest error of each kernel in each bin of the first argument, in ulp.\n# " << how
        << "\nkernel\tresult\tfrom\tto\tulp\tat\twrong\n";
    for (std::size_t t = 0; t < targets.size(); t++) {
        const Target& target = targets[t];
        const Lane type = target.shape().args[0];
        for (std::size_t b = 0; b < profile.bins.size(); b++) {
            const auto& [largest, wrong] = profile.of_target[t][b];
            if (largest.at.empty() && wrong.at.empty()) continue;
            char error[32];
            std::snprintf(error, sizeof error, largest.ulp < 1e5 ? "%.4f" : "%.6g", largest.ulp);
            const std::string name = target.function.name();
            out << name.substr(name.find("_k1_") + 4) << '\t' << (target.second ? 2 : 1) << '\t' << shortest(type, profile.bins[b].from) << '\t'
                << shortest(type, profile.bins[b].to) << '\t' << error << '\t' << patterns(target, largest.at) << '\t' << patterns(target, wrong.at) << '\n';
        }
    }
    if (!out.flush()) throw cli::Refused("cannot write " + path);
    out.close();
    std::error_code failed;
    std::filesystem::rename(part, path, failed);
    if (failed) throw cli::Refused("cannot write " + path);
}

}  // namespace tarn::ulp
