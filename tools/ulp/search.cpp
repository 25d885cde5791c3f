// Every sample is one of a line: some thousands of neighbours of a point along one argument, so near to it
// that a polynomial through a few exact values gives all exact values between. Errors cost a few nanoseconds
// that way, and MPFR confirms what is kept.
//
// Lines are laid at random in every binade, in the usual interval, next to the family's thresholds and next to
// the ends and the middles of every interval that a table or a reduction may have (multiples of the family's
// period over a power of two, of a product or a quotient of two arguments as well). The best hundred places
// are then climbed from: lines of every length around them and a step aside from them.
#include "ulp/search.hpp"

#include <algorithm>
#include <array>
#include <atomic>
#include <bit>
#include <chrono>
#include <map>
#include <mutex>
#include <numbers>
#include <random>
#include <thread>

namespace tarn::ulp {
namespace {

using Random = std::mt19937_64;

double unit(Random& random) { return static_cast<double>(random() >> 11) * 0x1p-53; }
std::uint64_t below(Random& random, std::uint64_t n) {
    return static_cast<std::uint64_t>(static_cast<unsigned __int128>(random()) * n >> 64);
}
// A size of any magnitude up to 2^bits.
std::uint64_t any_size(Random& random, unsigned bits) { return random() >> (64 - 1 - below(random, bits)); }
double either_sign(Random& random, double v) { return random() & 1 ? v : -v; }

// What the truth does along a line: through five exact values by Newton's divided differences, as an exact
// value in two parts and a small change, so that double precision is enough for thousandths of a unit.
class Neighbourhood {
public:
    Neighbourhood(const Target& target, const Point& at, std::size_t axis) : target_(target), at_(at), axis_(axis) {}

    // False where the truth is not finite or too far from a polynomial between the orders low and high.
    bool fit(std::uint64_t low, std::uint64_t middle, std::uint64_t high, double tolerance) {
        const Lane type = target_.shape().args[axis_];
        const auto part = [&](double share) { return low + static_cast<std::uint64_t>(share * static_cast<double>(high - low)); };
        const std::array<std::uint64_t, count> nodes = {middle, part(0.02), part(0.98), part(0.21), part(0.79)};
        origin_ = value_of(type, ordered(type, middle));
        std::array<Real, count> v;
        for (std::size_t i = 0; i < count; i++) {
            t_[i] = value_of(type, ordered(type, nodes[i])) - origin_;
            v[i] = truth(nodes[i]);
            if (!mpfr_number_p(v[i].value) || mpfr_zero_p(v[i].value)) return false;
            for (std::size_t j = 0; j < i; j++)
                if (t_[i] == t_[j]) return false;
        }
        head_ = v[0].nearest();
        if (!std::isfinite(head_)) return false;
        per_unit_ = per_unit(head_);
        one_unit_ = std::isfinite(per_unit_) && std::all_of(v.begin(), v.end(), [&](const Real& r) { return per_unit(r.nearest()) == per_unit_; });
        tail_ = (v[0] - Real(head_)).nearest();
        for (std::size_t k = 1; k < count; k++) {
            for (std::size_t i = count; i-- > k;) v[i] = (v[i] - v[i - 1]) / (Real(t_[i]) - Real(t_[i - k]));
            c_[k] = v[k].nearest();
        }
        for (const double share : {0.36, 0.91}) {
            const std::uint64_t between = part(share);
            const double t = value_of(type, ordered(type, between)) - origin_;
            const Real exactly = truth(between);
            if (!mpfr_number_p(exactly.value)) return false;
            const double off = ((exactly - Real(head_)) - Real(tail_ + change(t))).nearest();
            if (!(std::fabs(off * per_unit(exactly.nearest())) < tolerance)) return false;
        }
        return true;
    }

    double origin() const { return origin_; }
    // The unit is the same all along most lines.
    template <bool one_unit> double error(double t, double got) const {
        const double rest = tail_ + change(t);
        const double off = std::fabs((got - head_) - rest);
        return off * (one_unit ? per_unit_ : per_unit(head_ + rest));
    }
    bool one_unit() const { return one_unit_; }

private:
    static constexpr std::size_t count = 5;

    Real truth(std::uint64_t order) const {
        Point at = at_;
        at[axis_] = ordered(target_.shape().args[axis_], order);
        return target_.truth(at);
    }
    double change(double t) const {
        return t * (c_[1] + (t - t_[1]) * (c_[2] + (t - t_[2]) * (c_[3] + (t - t_[3]) * c_[4])));
    }
    // Units in the last place in one, by the exponent field.
    double per_unit(double v) const {
        const bool single = target_.type() == Lane::f32;
        const auto field = static_cast<std::int64_t>(std::bit_cast<std::uint64_t>(v) >> 52 & 0x7ff) - 1023;
        const std::int64_t k = single ? 23 - std::max<std::int64_t>(field, -126) : 52 - std::max<std::int64_t>(field, -1022);
        // In two factors, since a subnormal unit's reciprocal is beyond the range.
        return std::bit_cast<double>(static_cast<std::uint64_t>(1023 + k / 2) << 52) *
               std::bit_cast<double>(static_cast<std::uint64_t>(1023 + k - k / 2) << 52);
    }

    const Target& target_;
    Point at_;
    std::size_t axis_;
    double origin_ = 0, head_ = 0, tail_ = 0, per_unit_ = 0;
    bool one_unit_ = false;
    std::array<double, count> t_{}, c_{};
};

// The distance at which a family's reduced argument, its zeros or its poles come back; 0 where none does.
double period_of(const Family& f) {
    static const std::map<std::string, double> periods = {
        {"exp", std::numbers::ln2}, {"expm1", std::numbers::ln2}, {"sinh", std::numbers::ln2},
        {"cosh", std::numbers::ln2}, {"tanh", std::numbers::ln2}, {"exp10", 0.30102999566398120}, {"exp2", 1},
        {"sin", std::numbers::pi / 2}, {"cos", std::numbers::pi / 2}, {"sincos", std::numbers::pi / 2},
        {"sincosreg", std::numbers::pi / 2}, {"tan", std::numbers::pi / 2}, {"sinpi", 0.5}, {"cospi", 0.5},
        {"tanpi", 0.5}, {"tgamma", 1}, {"lgamma", 1}, {"lgammar", 1}};
    const auto found = periods.find(f.shape.args[0] == Lane::f32 ? f.base.substr(0, f.base.size() - 1) : f.base);
    return found == periods.end() ? 0 : found->second;
}
bool is_power(const Family& f) { return f.base.starts_with("pow"); }

class Climber {
public:
    Climber(const Target& target, double seconds, std::uint64_t seed)
        : target_(target), family_(target.function.family()), shape_(target.shape()), seed_(seed), seconds_(seconds),
          period_(period_of(family_)), grid_(period_ == 0 ? 1 : period_) {
        for (std::size_t a = 0; a < shape_.args.size(); a++) special_.push_back(edges(a));
    }

    SearchResult run(unsigned threads, const Report& report) {
        std::vector<std::jthread> others;
        for (unsigned t = 1; t < threads; t++) others.emplace_back([this, t, threads] { work(t, threads, nullptr); });
        work(0, threads, &report);
        others.clear();
        return so_far();
    }

private:
    struct Line {
        Point at;
        std::size_t axis;
        unsigned reach;       // it goes 2^reach patterns to either side
        bool long_stay;       // sampled for as long as the exact values took
    };

    double elapsed() const { return std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count(); }

    SearchResult so_far() {
        const std::lock_guard lock(mutex_);
        return {largest_, wrong_, evaluations_, still_};
    }

    void work(unsigned thread, unsigned threads, const Report* report) {
        Random random(seed_ * 0x9E3779B97F4A7C15 + thread);
        const auto corners = all_corners();
        for (std::size_t i = thread; i < corners.size() && elapsed() < seconds_; i += threads) one(corners[i]);
        double reported = 0;
        for (std::uint64_t round = 0;; round++) {
            const double now = elapsed();
            if (now >= seconds_ || stopped_) return;
            {
                const std::lock_guard lock(mutex_);
                // Still: nothing found in three quarters of at least twenty seconds.
                if (now > 20 && gained_at_ < now / 4) still_ = true;
                if (still_) return;
            }
            if (report && now > reported + 0.2) {
                reported = now;
                if (!(*report)(now / seconds_, so_far())) stopped_ = true;
            }
            Line next;
            if (round % 4 == 0 || !climb(next, random, round % 2 ? 2 : 6)) next = fresh(random);
            walk(next, random);
        }
    }

    // Evaluates along a line; a truth too wild for a polynomial is taken in smaller steps, at last one by one.
    void walk(Line line, Random& random) {
        const Lane type = shape_.args[line.axis];
        if (!is_float(type) || !inside(line.at)) return one(line.at);
        Neighbourhood near(target_, line.at, line.axis);
        const std::uint64_t middle = order_of(type, line.at[line.axis]);
        const Range range = one_path(line);
        for (;;) {
            if (line.reach < 4) {
                for (const int step : {-1, 0, 1}) {
                    Point at = line.at;
                    at[line.axis] = ordered(type, middle + static_cast<std::uint64_t>(step));
                    if (inside(at)) one(at);
                }
                return;
            }
            const std::uint64_t reach = 1ull << line.reach;
            const std::uint64_t low = middle - range.low < reach ? range.low : middle - reach;
            const std::uint64_t high = range.high - middle < reach ? range.high : middle + reach;
            const double before = elapsed();
            if (near.fit(low, middle, high, tolerance_)) {
                const double fitted = elapsed();
                do sample(line, near, low, high, random);
                while (line.long_stay && high - low > 64 * samples && elapsed() - fitted < 2 * (fitted - before));
                return;
            }
            line.reach = line.reach > 10 ? line.reach - 6 : 0;
        }
    }

    void sample(const Line& line, const Neighbourhood& near, std::uint64_t low, std::uint64_t high, Random& random) {
        const Lane type = shape_.args[line.axis];
        const std::size_t n = samples;
        thread_local std::vector<Lanes> args;  // kept from line to line
        args.resize(shape_.args.size());
        for (std::size_t a = 0; a < args.size(); a++) {
            if (args[a].size() != n || args[a].type() != shape_.args[a]) args[a] = Lanes(shape_.args[a], n);
            if (a != line.axis)
                for (std::size_t i = 0; i < n; i++) args[a].set(i, line.at[a]);
        }
        // Short lines are sampled whole.
        const std::uint64_t span = high - low + 1;
        Lanes& moving = args[line.axis];
        std::uint64_t turn = random();
        for (std::size_t i = 0; i < n; i++) {
            turn += 0x9E3779B97F4A7C15;  // fractions of the golden section: spread evenly, and cheap
            const auto spread = static_cast<std::uint64_t>(static_cast<unsigned __int128>(turn) * span >> 64);
            const std::uint64_t pattern = ordered(type, low + (span <= n ? i % span : spread));
            moving.set(i, pattern);
        }
        const Lanes got = target_.results(args);
        evaluations_ += n;
        const auto worst = type == Lane::f64 ? near.one_unit() ? worst_of<double, true> : worst_of<double, false>
                                             : near.one_unit() ? worst_of<float, true> : worst_of<float, false>;
        const auto [error, i, usual] = worst(near, moving, got);
        Point at = line.at;
        at[line.axis] = moving.pattern(i);
        if (!(error <= floor_)) one(at);
        if (std::isfinite(usual) && span > 64 * n) {
            const std::lock_guard lock(mutex_);
            usual_.add(place_of(at), {usual, at});
        }
    }

    // The largest, and the mean of the parts' largest: that says what to expect there, not what luck had.
    struct LineWorst {
        double error;
        std::size_t where;
        double usual;
    };
    template <class T, bool one_unit>
    static LineWorst worst_of(const Neighbourhood& near, const Lanes& x, const Lanes& got) {
        const T* at = reinterpret_cast<const T*>(x.data());
        const T* result = reinterpret_cast<const T*>(got.data());
        LineWorst line = {-1, 0, 0};
        double worst = -1;
        std::size_t where = 0;
        constexpr std::size_t some = 8, parts = 16;  // of some the largest is looked for only when it is ahead
        for (std::size_t i = 0; i < samples; i += some) {
            if (i % (samples / parts) == 0) worst = -1;
            double errors[some];
            for (std::size_t j = 0; j < some; j++) {
                errors[j] = near.error<one_unit>(static_cast<double>(at[i + j]) - near.origin(), static_cast<double>(result[i + j]));
            }
            bool ahead = false;
            for (std::size_t j = 0; j < some; j++) ahead |= !(errors[j] <= worst);
            for (std::size_t j = 0; ahead && j < some; j++)
                if (!(errors[j] <= worst)) worst = std::isnan(errors[j]) ? INFINITY : errors[j], where = i + j;
            if ((i + some) % (samples / parts)) continue;
            line.usual += worst / parts;
            if (worst > line.error) line.error = worst, line.where = where;
        }
        return line;
    }

    // One point by MPFR, kept where it is among the best.
    void one(const Point& at) {
        if (!inside(at)) return;
        const double error = target_.error(at);
        evaluations_++;
        const std::lock_guard lock(mutex_);
        if (std::isinf(error)) {
            if (wrong_.at.empty()) wrong_ = {error, at};
            return;
        }
        if (error > largest_.ulp) {
            if (error > largest_.ulp * 1.001) gained_at_ = elapsed();
            largest_ = {error, at};
            tolerance_ = std::max(0x1p-9, error * 0x1p-10);
        }
        if (!(error > 0)) return;
        best_.add(place_of(at), {error, at});
        if (best_.ranks.size() == places) floor_ = best_.ranks.back().second.ulp;
    }

    // The best places and the best point of each. A place is a point up to what its leading bits leave open: a
    // thirty-second of a binade.
    struct Ranking {
        std::vector<std::pair<Point, Found>> ranks;
        void add(const Point& place, const Found& found) {
            if (!(found.ulp > 0)) return;
            auto same = std::find_if(ranks.begin(), ranks.end(), [&](const auto& r) { return r.first == place; });
            if (same == ranks.end() && ranks.size() < places) same = ranks.insert(same, {place, {0, {}}});
            else if (same == ranks.end()) --same;
            if (found.ulp <= same->second.ulp) return;
            *same = {place, found};
            for (; same != ranks.begin() && (same - 1)->second.ulp < same->second.ulp; --same) std::swap(*same, *(same - 1));
        }
        const Point& pick(double share) const { return ranks[static_cast<std::size_t>(share * static_cast<double>(ranks.size()))].second.at; }
    };
    Point place_of(const Point& at) const {
        Point place;
        for (std::size_t a = 0; a < at.size(); a++) {
            const Lane type = shape_.args[a];
            place.push_back(type == Lane::f64 ? at[a] >> 47 : type == Lane::f32 ? at[a] >> 18 : at[a]);
        }
        return place;
    }

    // From one of the best, the better the likelier: the same place, or a step aside.
    bool climb(Line& line, Random& random, double greed) {
        {
            const std::lock_guard lock(mutex_);
            const Ranking& ranking = random() & 1 && !usual_.ranks.empty() ? usual_ : best_;
            if (ranking.ranks.empty()) return false;
            line.at = ranking.pick(std::pow(unit(random), greed));
        }
        line.axis = below(random, shape_.args.size());
        if (!is_float(shape_.args[line.axis])) {
            if (random() & 1) line.at[line.axis] = step_aside(line.axis, line.at[line.axis], random);
            line.axis = 0;
        }
        // The shortest are sampled whole, and never again from the same place.
        const unsigned shortest = 12, most = shape_.args[line.axis] == Lane::f32 ? 15 : 44;
        line.reach = shortest + static_cast<unsigned>(below(random, most - shortest + 1));
        line.long_stay = true;
        const auto value = [&](std::size_t a) { return value_of(shape_.args[a], line.at[a]); };
        const auto put = [&](std::size_t a, double v) { line.at[a] = pattern_of(shape_.args[a], v); };
        switch (below(random, 8)) {
            case 0: case 1: {
                // As many periods aside, or tables' intervals, or mirrored at a multiple of half the period.
                const double step = random() & 1 ? grid_ : grid_ / std::exp2(below(random, 11));
                const double aside = either_sign(random, step * static_cast<double>(any_size(random, random() & 1 ? 4 : 20)));
                put(line.axis, random() & 1 ? aside + value(line.axis) : aside - value(line.axis));
                break;
            }
            case 2: {
                // The same significands, or the same quotient.
                const int by = static_cast<int>(below(random, 9)) - 4;
                const bool together = random() & 1;
                for (std::size_t a = 0; a < line.at.size(); a++)
                    if (is_float(shape_.args[a]) && (together || a == line.axis)) put(a, std::ldexp(value(a), by));
                break;
            }
            case 3: {
                const std::size_t other = line.at.size() - 1 - line.axis;
                line.at[other] = step_aside(other, line.at[other], random);
                break;
            }
            case 4: case 5:
                if (line.at.size() > 1 && is_float(shape_.args[1])) {
                    const double by = 1 + either_sign(random, std::exp2(-1 - 20 * unit(random)));
                    if (is_power(family_)) {
                        // Another base near by, and the exponent that gives the same power.
                        const double x = value(0), t = value(1) * std::log(std::fabs(x));
                        put(0, 1 + (x - 1) * by), put(1, t / std::log(std::fabs(value(0))));
                    } else {
                        // Both by one factor, so that the quotient stays and its rounding does not.
                        put(0, value(0) * by), put(1, value(1) * by);
                    }
                }
                break;
            default: break;
        }
        line.reach = std::min(line.reach, longest(line));
        return true;
    }

    std::uint64_t step_aside(std::size_t a, std::uint64_t pattern, Random& random) {
        const Lane type = shape_.args[a];
        const std::uint64_t step = any_size(random, is_float(type) ? (type == Lane::f64 ? 53 : 24) : 12);
        return ordered(type, order_of(type, pattern) + (random() & 1 ? step : 0 - step));
    }

    Line fresh(Random& random) {
        Line line{{}, 0, 0, false};
        for (std::size_t a = 0; a < shape_.args.size(); a++) line.at.push_back(draw(a, random));
        if (shape_.args.size() > 1) relate(line.at, random);
        line.axis = is_float(shape_.args.back()) ? below(random, shape_.args.size()) : 0;
        line.reach = longest(line);
        return line;
    }

    // A ten-thousandth of the value, and within the period.
    unsigned longest(const Line& line) const {
        const int longest = shape_.args[line.axis] == Lane::f32 ? 15 : 39;
        if (period_ == 0) return static_cast<unsigned>(longest);
        const double periods = std::fabs(value_of(shape_.args[line.axis], line.at[line.axis])) / period_;
        const int beyond = periods > 0 && std::isfinite(periods) ? std::ilogb(periods) - 4 : 0;
        return static_cast<unsigned>(std::clamp(longest - std::max(beyond, 0), 4, longest));
    }

    // A multiple of the period over a power of two, or the middle between two, and a little more or less.
    double on_a_grid(Random& random, double from, double to) {
        const double step = grid_ / std::exp2(below(random, 11));
        const double k = std::floor((from + unit(random) * (to - from)) / step);
        return (k + 0.5 * static_cast<double>(random() & 1) + either_sign(random, std::exp2(-60 * unit(random)))) * step;
    }

    // What lies outside of what is searched is drawn anew from within, by the pattern or by the value.
    std::uint64_t draw(std::size_t a, Random& random) {
        const Lane type = shape_.args[a];
        const Range& range = target_.ranges[a];
        const std::uint64_t pattern = draw_anywhere(a, random);
        if (!is_float(type) || range.has(order_of(type, pattern))) return pattern;
        const double low = value_of(type, ordered(type, range.low)), high = value_of(type, ordered(type, range.high));
        if (random() & 1 && std::isfinite(high - low)) return pattern_of(type, low + unit(random) * (high - low));
        return ordered(type, range.low + (range.high - range.low == ~0ull ? random() : below(random, range.high - range.low + 1)));
    }
    std::uint64_t draw_anywhere(std::size_t a, Random& random) {
        const Lane type = shape_.args[a];
        if (!is_float(type)) {
            const std::uint64_t n = any_size(random, 31);
            return (random() & 1 ? n : 0 - n) & all_ones(type);
        }
        const Interval usual = a < family_.usual.size() ? family_.usual[a] : Interval{-10, 10};
        switch (below(random, 8)) {
            case 0: case 1: return pattern_of(type, usual.low + unit(random) * (usual.high - usual.low));
            case 2: return pattern_of(type, on_a_grid(random, usual.low, usual.high));
            case 3: {
                // As far out as the grid means anything.
                const double far = std::exp2(30 * unit(random));
                return pattern_of(type, on_a_grid(random, -far, far));
            }
            case 4: {
                const auto& from = special_[a];
                const std::uint64_t step = any_size(random, type == Lane::f64 ? 52 : 23);
                return ordered(type, order_of(type, from[below(random, from.size())]) + (random() & 1 ? step : 0 - step));
            }
            case 5: return random() & 3 ? pattern_of(type, 1 + either_sign(random, std::exp2(-(type == Lane::f64 ? 53 : 24) * unit(random))))
                                        : subnormal(type, random);
            default: return in_a_binade(a, random);
        }
    }
    static std::uint64_t subnormal(Lane type, Random& random) {
        return any_size(random, type == Lane::f64 ? 52 : 23) | (random() & 1 ? sign_of(type) : 0);
    }

    // Every binade in turn, then those that are ahead of three others.
    std::uint64_t in_a_binade(std::size_t a, Random& random) {
        const Lane type = shape_.args[a];
        const unsigned digits = type == Lane::f64 ? 52 : 23;
        const std::uint64_t binades = (all_ones(type) >> digits) + 1;
        const std::uint64_t rest = random() & ((1ull << digits) - 1);
        return (turn_++ % binades) << digits | rest;
    }

    // Two arguments that belong together: a quotient, or a power within the range.
    void relate(Point& at, Random& random) {
        const Lane type = shape_.args[0], other = shape_.args[1];
        if (random() % 4 == 0) return;
        const double top = type == Lane::f64 ? 1075 : 150;
        if (is_power(family_)) {
            const double log2 = std::log2(std::fabs(value_of(type, at[0])));
            if (!std::isfinite(log2) || log2 == 0) return;
            double t = on_a_grid(random, -top, top);
            if (random() & 1) t = top * (2 * unit(random) - 1);
            // A power of a negative base is one by an integer.
            const double y = value_of(type, at[0]) < 0 ? std::nearbyint(t / log2) : t / log2;
            if (is_float(other) || std::fabs(y) < 0x1p31) at[1] = pattern_of(other, is_float(other) ? y : std::nearbyint(y));
        } else if (is_float(other)) {
            double q = on_a_grid(random, -2, 2);
            if (random() % 4 == 0) q = either_sign(random, std::exp2(-60 * unit(random)));
            const double x = value_of(type, at[0]);
            if (random() & 1) at[1] = pattern_of(type, x / q);
            else at[1] = at[0], at[0] = pattern_of(type, x * q);
        } else if (random() & 1) {
            at[1] = static_cast<std::uint64_t>(random() % 200 - 100) & all_ones(other);
        }
    }

    // One large lane would send the whole call down the other path.
    Range one_path(const Line& line) const {
        Range range = target_.ranges[line.axis];
        if (family_.switches_above == 0) return range;
        const Lane type = shape_.args[0];
        const std::uint64_t top = order_of(type, pattern_of(type, family_.switches_above));
        const std::uint64_t bottom = order_of(type, pattern_of(type, -family_.switches_above));
        const std::uint64_t order = order_of(type, line.at[0]);
        if (order > top) range.low = std::max(range.low, top + 1);
        else if (order < bottom) range.high = std::min(range.high, bottom - 1);
        else range = {std::max(range.low, bottom), std::min(range.high, top)};
        return range;
    }
    bool inside(const Point& at) const {
        for (std::size_t a = 0; a < at.size(); a++)
            if (!target_.ranges[a].has(order_of(shape_.args[a], at[a]))) return false;
        return true;
    }

    // Thresholds with their neighbours and the ends of the format; for integers small ones and the ends.
    std::vector<std::uint64_t> edges(std::size_t a) const {
        const Lane type = shape_.args[a];
        std::vector<std::uint64_t> v;
        if (!is_float(type)) {
            for (std::uint64_t n = 0; n < 12; n++) v.push_back(n), v.push_back((0 - n) & all_ones(type));
            for (const std::uint64_t n : {sign_of(type), sign_of(type) - 1, std::uint64_t{1000}}) v.push_back(n);
            return v;
        }
        const std::uint64_t least_normal = type == Lane::f64 ? 1ull << 52 : 1ull << 23;
        const std::uint64_t inf = type == Lane::f64 ? 0x7FF0000000000000 : 0x7F800000;
        std::vector<std::uint64_t> from = family_.thresholds;
        from.insert(from.end(), {2, least_normal, inf - 2});
        for (const double x : {0.5, 1.0, 2.0, 3.0, grid_, grid_ / 2}) from.push_back(pattern_of(type, x));
        for (const std::uint64_t p : from)
            for (const std::uint64_t q : {p - 2, p - 1, p, p + 1, p + 2}) v.push_back(q), v.push_back(q | sign_of(type));
        return v;
    }
    std::vector<Point> all_corners() const {
        std::vector<Point> points;
        const auto add = [&](const tarn::Worst& known) {
            if (known.at.size() == shape_.args.size()) points.push_back(known.at);
        };
        add(family_.worst(target_.function.variant(), target_.function.width())), add(family_.full);
        for (const std::uint64_t p : special_[0]) {
            if (special_.size() == 1) points.push_back({p});
            else for (const std::uint64_t q : special_[1]) points.push_back({p, q});
        }
        return points;
    }

    static constexpr std::size_t places = 100, samples = 8192;

    const Target& target_;
    const Family& family_;
    const Shape& shape_;
    const std::uint64_t seed_;
    const double seconds_, period_, grid_;
    const std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
    std::vector<std::vector<std::uint64_t>> special_;

    std::atomic<std::uint64_t> evaluations_ = 0, turn_ = 0;
    std::atomic<double> floor_ = 0, tolerance_ = 0x1p-9;
    std::atomic<bool> stopped_ = false;
    std::mutex mutex_;
    Ranking best_, usual_;
    Found largest_, wrong_;
    double gained_at_ = 0;
    bool still_ = false;
};

}  // namespace

SearchResult search(const Target& target, double seconds, unsigned threads, std::uint64_t seed, const Report& report) {
    return Climber(target, seconds, seed).run(threads, report);
}

}  // namespace tarn::ulp
