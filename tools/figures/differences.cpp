#include "figures/differences.hpp"

#include <algorithm>
#include <cmath>
#include <span>
#include <vector>

namespace tarn {
namespace {

struct Difference {
    std::string name, build, what;
    double here, published;
    double ratio() const { return here / published; }
    double size() const { return std::fabs(std::log(ratio())); }
};

}  // namespace

std::string differences(const Times& here, const Times& published, double part, std::size_t most) {
    std::vector<Difference> ratios, times;
    int only_here = 0, only_published = 0;
    for (const std::string kind : {"call", "array", "memory"}) {
        for (const TimedRow& row : here.rows(kind)) {
            const TimedRow* other = published.find(kind, row.name, row.build);
            if (!other) {
                only_here++;
                continue;
            }
            times.push_back({row.name, row.build, kind, row.best(), other->best()});
            ratios.push_back({row.name, row.build, kind, row.ahead(), other->ahead()});
        }
        for (const TimedRow& row : published.rows(kind)) only_published += !here.find(kind, row.name, row.build);
    }

    std::string text;
    for (auto* all : {&ratios, &times}) {
        const bool of_times = all == &times;
        std::erase_if(*all, [](const Difference& d) { return !std::isfinite(d.here) || !std::isfinite(d.published); });
        GeometricMean mean;
        for (const Difference& d : *all) mean.add(d.ratio());
        const std::size_t compared = all->size();
        std::erase_if(*all, [&](const Difference& d) { return d.size() <= std::log(1 + part); });
        std::stable_sort(all->begin(), all->end(),
                         [](const Difference& a, const Difference& b) { return a.size() > b.size(); });

        const std::string subject = of_times ? "time, ns an element" : "best peer's time over ours";
        if (compared == 0) {
            text += subject + ": nothing to compare\n";
            continue;
        }
        const std::string sums = (all->empty() ? "none" : std::to_string(all->size())) + " of " +
                                 std::to_string(compared) + " differ by more than " + decimals(part * 100, 0) +
                                 " %; here over published is " + decimals(mean.value(), 2) + " in the geometric mean";
        text += subject + ": " + sums + '\n';
        if (all->empty()) continue;
        text += "  " + left("row", 24) + left("build", 8) + left("kind", 8) +
                right("here", 10) + right("published", 11) + right("here/published", 16) + '\n';
        const std::size_t shown = std::min(most, all->size());
        for (const Difference& d : std::span(*all).first(shown))
            text += "  " + left(d.name, 24) + left(d.build, 8) + left(d.what, 8) +
                    right(decimals(d.here, 3), 10) + right(decimals(d.published, 3), 11) +
                    right(decimals(d.ratio(), 2), 16) + '\n';
        if (shown < all->size()) text += "  and " + std::to_string(all->size() - shown) + " more\n";
        text += '\n';
    }
    if (only_here) text += "only here: " + std::to_string(only_here) + " rows\n";
    if (only_published) text += "not timed here: " + std::to_string(only_published) + " rows\n";
    return text;
}

}  // namespace tarn
