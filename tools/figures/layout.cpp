#include "figures/layout.hpp"

#include <algorithm>
#include <cmath>
#include <functional>

#include "exports/opencl.hpp"
#include "exports/text.hpp"

namespace tarn {
namespace {

std::string line(const std::vector<std::string>& cells) {
    std::string text;
    for (const auto& cell : cells) text += (text.empty() ? "" : "\t") + cell;
    return text + '\n';
}

using Values = std::vector<double>;

// Rows downwards, a line of a group above its own.
std::string overview(std::size_t count, const std::function<Values(const Family&)>& values_of) {
    std::string groups, rows, group;
    int y = 0;
    std::vector<std::string> done;
    for (const Family& first : families()) {
        const std::string base = name_of_both(first);
        if (std::find(done.begin(), done.end(), base) != done.end()) continue;
        done.push_back(base);
        Values values;
        bool any = false;
        for (const Lane type : {Lane::f32, Lane::f64}) {
            Values of(count, INFINITY);
            for (const Family& f : families())
                if (f.group == first.group && precision(f) == type && name_of_both(f) == base) of = values_of(f);
            for (const double v : of) any |= std::isfinite(v);
            values.insert(values.end(), of.begin(), of.end());
        }
        if (!any) continue;
        if (first.group != group) {
            group = first.group;
            groups += std::to_string(y++) + '\t' + group + '\n';
        }
        rows += std::to_string(y++) + '\t' + base;
        for (const double v : values) rows += '\t' + decimals(v, 4);
        rows += '\n';
    }
    return groups + "\n\n" + rows;
}

}  // namespace

std::string errors_figure() {
    return overview(3, [](const Family& f) {
        Values values(3, INFINITY);
        if (f.full.ulp == 0 || f.allowed == left_open) return values;
        const double allowed = f.allowed == 0 ? 0.5 : f.allowed;
        double found = 0, proved = 0;
        for (const int width : widths) {
            found = std::max(found, f.worst(Variant::full, width).ulp);
            proved = std::max(proved, f.proved_at(width));
        }
        (found > allowed ? values[2] : values[0]) = found / allowed;
        if (proved != 0) values[1] = proved / allowed;
        return values;
    });
}

std::string peers_figure(const Times& times) {
    return overview(3, [&](const Family& f) {
        Values values;
        for (const auto& [kind, build] : {std::pair{"call", "plain"}, {"call", "v3"}, {"array", "v3"}}) {
            const TimedRow* row = times.find(kind, f.base, build);
            values.push_back(row ? row->ahead() : INFINITY);
        }
        return values;
    });
}

std::string group_figure(const Times& times, const std::string& group) {
    constexpr std::size_t most = 26;  // rows of a panel
    std::string text;
    for (const Lane type : {Lane::f32, Lane::f64}) {
        std::vector<std::string> names;
        for (const Family& f : families())
            if (f.group == group && precision(f) == type &&
                (times.find("call", f.base, "plain") || times.find("array", f.base, "plain")))
                names.push_back(f.base);
        const std::size_t panels = (names.size() + most - 1) / most;
        for (std::size_t panel = 0, i = 0; panel < panels; panel++) {
            std::string rows, calls, bars;
            const std::size_t end = names.size() * (panel + 1) / panels;
            for (int slot = 0; i < end; i++, slot++) {
                const auto time = [&](const char* kind, const char* build) {
                    const TimedRow* row = times.find(kind, names[i], build);
                    return row ? *row : TimedRow{names[i], build, {}};
                };
                const TimedRow plain = time("call", "plain"), v3 = time("call", "v3");
                rows += line({std::to_string(slot), names[i], decimals(time("array", "plain").at("array"), 3),
                              decimals(time("array", "v3").at("array"), 3)});
                double x = slot - 0.42;
                for (const int width : widths) {
                    const std::string what = timed(width);
                    calls += line({decimals(x += 0.1, 2), decimals(plain.at(what), 3), decimals(v3.at(what), 3)});
                }
                for (const double side : {-0.42, 0.42})
                    bars += line({decimals(slot + side, 2), decimals(plain.best_peer().second, 3),
                                  decimals(v3.best_peer().second, 3)});
                calls += '\n', bars += '\n';
            }
            text += (text.empty() ? "" : "\n\n") + rows + "\n\n" + calls + "\n" + bars;
        }
    }
    return text;
}

}  // namespace tarn
