#include <algorithm>
#include <cmath>
#include <cstdio>

#include "figures/times.hpp"

namespace tarn {
namespace {

const std::string v3_name = "x86-64-v3";
const std::vector<std::string> peers_of_calls = {"SLEEF u10", "SLEEF u35", "libmvec", "libm"};

const TimedRow* of_build(const std::vector<TimedRow>& rows, const TimedRow& row, const std::string& build) {
    for (const TimedRow& other : rows)
        if (other.name == row.name && other.build == build) return &other;
    return nullptr;
}

// The plain module's time over the other's at width 16.
double gain(const TimedRow& plain, const TimedRow* v3) { return v3 ? plain.at("w16") / v3->at("w16") : INFINITY; }

struct ArrayMeans {
    GeometricMean calls, sleef, mvec;
    explicit ArrayMeans(const std::vector<TimedRow>& rows) {
        for (const TimedRow& row : rows) {
            if (row.large()) continue;
            calls.add(row.at("w16") / row.at("array"));
            sleef.add(row.at("SLEEF") / row.at("array"));
            mvec.add(row.at("libmvec") / row.at("array"));
        }
    }
    std::string text() const {
        return decimals(calls.value(), 2) + " times as fast as calls of width 16, " + decimals(sleef.value(), 2) +
               " as SLEEF (" + std::to_string(sleef.count()) + " functions), " + decimals(mvec.value(), 2) +
               " as libmvec (" + std::to_string(mvec.count()) + ")";
    }
};

const std::vector<std::string> array_columns = {"width 16", "array",  "copy",     "SLEEF",   "libmvec",
                                                "to w16",   "SLEEF/", "libmvec/", "few/call"};

std::vector<std::string> array_cells(const TimedRow& row) {
    std::vector<std::string> cells;
    for (const char* what : {"w16", "array", "copy", "SLEEF", "libmvec"}) cells.push_back(decimals(row.at(what), 3));
    for (const char* what : {"w16", "SLEEF", "libmvec"}) cells.push_back(decimals(row.at(what) / row.at("array"), 2));
    cells.push_back(decimals(row.at("few/call"), 2));
    return cells;
}

std::string line(const std::vector<std::string>& cells) {
    std::string text = "|";
    for (const auto& cell : cells) text += ' ' + cell + " |";
    return text + '\n';
}
std::string rule(std::size_t columns) {
    std::string text = "|";
    for (std::size_t i = 0; i < columns; i++) text += "---|";
    return text + '\n';
}

std::string calls_table(const std::vector<TimedRow>& rows) {
    std::string text =
        line({"function", "plain", "v3", "best 128-bit peer", "best 256-bit peer", "plain ahead", "v3 ahead", "gain"}) +
        rule(8);
    for (const TimedRow& row : rows) {
        if (row.build != "plain") continue;
        const TimedRow none{row.name, "v3", {}}, *found = of_build(rows, row, "v3"), &wide = found ? *found : none;
        const auto peer = [](const TimedRow& r) {
            const auto [name, ns] = r.best_peer();
            return std::isfinite(ns) ? decimals(ns, 3) + ' ' + name : "-";
        };
        text +=
            line({code(row.name), decimals(row.best(), 3), decimals(wide.best(), 3), peer(row), peer(wide),
                  decimals(row.ahead(), 2), found ? decimals(wide.ahead(), 2) : "-", decimals(gain(row, found), 2)});
    }
    return text;
}

std::string arrays_table(const std::vector<TimedRow>& rows, const std::string& build) {
    std::vector<std::string> head = {code(build == "v3" ? v3_name : build)};
    head.insert(head.end(), array_columns.begin(), array_columns.end());
    std::string text = line(head) + rule(head.size());
    for (const TimedRow& row : rows) {
        std::vector<std::string> cells = array_cells(row);
        cells.insert(cells.begin(), code(row.name));
        text += line(cells);
    }
    return text;
}

// Rows behind the best peer of the size of their vectors, the furthest first.
std::string behind(std::vector<TimedRow> rows) {
    std::erase_if(rows, [](const TimedRow& row) { return row.large() || !(row.ahead() < 1); });
    std::stable_sort(rows.begin(), rows.end(),
                     [](const TimedRow& a, const TimedRow& b) { return a.ahead() < b.ahead(); });
    std::string text;
    for (const TimedRow& row : rows)
        text += (text.empty() ? "" : ", ") + code(row.name) + ' ' + decimals(row.ahead(), 2);
    return text.empty() ? "none" : text;
}

// An item of a list, in lines.
std::string item(const std::string& text) {
    constexpr std::size_t limit = 118;
    std::string lines = "- ";
    for (std::size_t from = 0; from < text.size();) {
        const std::size_t to = text.size() - from <= limit ? text.size() : text.rfind(' ', from + limit);
        lines += (from ? "  " : "") + text.substr(from, to - from) + '\n';
        from = to + 1;
    }
    return lines;
}

}  // namespace

std::string code(const std::string& text) { return '`' + text + '`'; }
std::string right(const std::string& text, std::size_t width) {
    return std::string(width - std::min(width, text.size()), ' ') + text;
}
std::string left(const std::string& text, std::size_t width) {
    return text + std::string(width - std::min(width, text.size()), ' ');
}

std::string calls_text(const std::vector<TimedRow>& rows) {
    std::string text =
        "nanoseconds an element; ratio: the best peer's time over ours at our best width\n" + left("", 22);
    for (const int w : widths) text += right(timed(w), 8);
    for (const auto& peer : peers_of_calls) text += right(peer, 11);
    text += right("ratio", 8) + '\n';
    for (const TimedRow& row : rows) {
        text += left(row.build == "plain" ? row.name : "  " + v3_name, 22);
        for (const int w : widths) text += right(decimals(row.at(timed(w)), 3), 8);
        for (const auto& peer : peers_of_calls) text += right(decimals(row.at(peer), 3), 11);
        text += right(decimals(row.ahead(), 2), 8) + '\n';
    }
    return text;
}

std::string arrays_text(const std::vector<TimedRow>& rows) {
    std::string text;
    for (const std::string build : builds) {
        std::vector<TimedRow> some;
        for (const TimedRow& row : rows)
            if (row.build == build) some.push_back(row);
        if (some.empty()) continue;
        text += left(build == "v3" ? v3_name : build, 22);
        for (const auto& column : array_columns) text += right(column, 9);
        text += '\n';
        for (const TimedRow& row : some) {
            text += left(row.name, 22);
            for (const auto& cell : array_cells(row)) text += right(cell, 9);
            text += '\n';
        }
        text += "Geometric means: " + ArrayMeans(some).text() + ".\n";
    }
    return text;
}

std::string speed_page(const Times& times, const std::string& conditions) {
    const auto plain = times.rows("call", "plain");
    std::string text = '\n' + conditions + "\n\n";
    for (const std::string build : builds) {
        const auto rows = times.rows("call", build);
        if (!rows.empty())
            text += item("Calls, " +
                         std::string(build == "v3" ? "x86-64-v3 beside 256-bit peers"
                                                   : "plain beside 128-bit and scalar peers") +
                         ". Behind the best of them: " + behind(rows) + '.');
    }
    GeometricMean computing, all;
    for (const TimedRow& row : plain) {
        if (row.large()) continue;
        const double g = gain(row, times.find("call", row.name, "v3"));
        all.add(g);
        if (row.family().full.ulp != 0) computing.add(g);
    }
    std::string gains;
    if (computing.count())
        gains += decimals(computing.value(), 2) + ", the geometric mean over the " + std::to_string(computing.count()) +
                 " families of [accuracy.md](accuracy.md), which compute with errors; ";
    if (all.count())
        text += item("Gain of the module for x86-64-v3 at width 16: " + gains + decimals(all.value(), 2) +
                     " over all " + std::to_string(all.count()) + '.');
    for (const std::string kind : {"array", "memory"})
        for (const std::string build : builds) {
            const auto rows = times.rows(kind, build);
            if (!rows.empty())
                text += item(std::string(kind == "array" ? "Arrays" : "Arrays of megabytes") + ", " +
                             (build == "v3" ? v3_name : build) + ": " + ArrayMeans(rows).text() +
                             ", in the geometric mean.");
        }

    for (const auto& group : times.groups()) {
        text += "\n### " + group + "\n\n![" + group +
                ": times a width and on arrays, and of the best peers](plots/speed_" + slug(group) + ".svg)\n";
        const auto rows = times.rows("call", {}, group);
        if (!rows.empty()) text += '\n' + calls_table(rows);
        for (const std::string build : builds) {
            const auto arrays = times.rows("array", build, group);
            if (!arrays.empty()) text += '\n' + arrays_table(arrays, build);
        }
        if (!rows.empty()) text += "\n```\n" + calls_text(rows) + "```\n";
    }
    if (!times.rows("memory").empty())
        text +=
            "\n### Arrays of 64 MB of floats or 128 MB of doubles\n\nMemory is the limit of the cheap functions "
            "there.\n";
    for (const std::string build : builds) {
        const auto rows = times.rows("memory", build);
        if (!rows.empty()) text += '\n' + arrays_table(rows, build);
    }
    return text + '\n';
}

}  // namespace tarn
