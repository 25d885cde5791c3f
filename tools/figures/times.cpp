#include "figures/times.hpp"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <limits>
#include <set>
#include <sstream>
#include <stdexcept>

namespace tarn {
namespace {

const std::string header = "kind\trow\tbuild\twhat\tns", large_arguments = ", large x";
constexpr double none = std::numeric_limits<double>::infinity();

const std::vector<std::string> peers = {"SLEEF u10", "SLEEF u35", "SLEEF", "libmvec", "libm"};

bool is_one_of(const std::string& text, const std::vector<std::string>& all) {
    return std::find(all.begin(), all.end(), text) != all.end();
}

// What of a kind can have been timed.
bool is_known(const std::string& kind, const std::string& what) {
    for (const int width : widths)
        if (what == timed(width)) return kind == "call" || width == 16;
    return is_one_of(what, peers) || (kind != "call" && is_one_of(what, {"array", "copy", "few/call"}));
}

}  // namespace

const Family* family_of(const std::string& row) {
    std::string base = row.substr(0, row.find(large_arguments));
    for (const Variant v : {Variant::native, Variant::half})
        if (base.ends_with(suffix(v))) base.resize(base.size() - std::string(suffix(v)).size());
    return find_family(base);
}

std::string timed(int width) {
    std::string what = "w";
    what += std::to_string(width);
    return what;
}

std::string slug(const std::string& group) {
    std::string text;
    for (const char c : group)
        if (std::isalnum(static_cast<unsigned char>(c)))
            text += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        else if (!text.empty() && text.back() != '_')
            text += '_';
    return text;
}

std::string decimals(double v, int digits) {
    char text[32];
    std::snprintf(text, sizeof text, "%.*f", digits, v);
    return std::isfinite(v) ? text : "-";
}

void GeometricMean::add(double ratio) {
    if (std::isfinite(ratio)) logs_ += std::log(ratio), count_++;
}
double GeometricMean::value() const { return count_ ? std::exp(logs_ / count_) : none; }

const Family& TimedRow::family() const { return *family_of(name); }
bool TimedRow::large() const { return name.ends_with(large_arguments); }
double TimedRow::at(const std::string& what) const {
    const auto found = times.find(what);
    return found == times.end() ? none : found->second;
}
double TimedRow::best() const {
    if (times.contains("array")) return at("array");
    double least = none;
    for (const int width : widths) least = std::min(least, at(timed(width)));
    return least;
}
std::pair<std::string, double> TimedRow::best_peer() const {
    std::pair<std::string, double> best{"", none};
    for (const auto& peer : peers)
        if (at(peer) < best.second) best = {peer, at(peer)};
    return best;
}

Times Times::read(const std::string& file) {
    const auto wrong = [&](const std::string& what) { return std::runtime_error(file + ": " + what); };
    std::ifstream in(file);
    std::string line;
    if (!in || !std::getline(in, line)) throw wrong("cannot be read");
    if (line != header) throw wrong("its first line is not that of measured times");
    Times times;
    for (int number = 2; std::getline(in, line); number++) {
        std::vector<std::string> fields;
        std::istringstream split(line);
        for (std::string field; std::getline(split, field, '\t');) fields.push_back(field);
        const auto bad = [&](const std::string& what) { return wrong("line " + std::to_string(number) + " " + what); };
        if (fields.size() != 5) throw bad("does not have five fields");
        const auto& [kind, row, build, what, ns] = std::tie(fields[0], fields[1], fields[2], fields[3], fields[4]);
        if (!is_one_of(kind, {"call", "array", "memory"})) throw bad("has no kind '" + kind + "' that there is");
        if (!family_of(row)) throw bad("is of no family: '" + row + "'");
        if (!is_one_of(build, {builds[0], builds[1]})) throw bad("is of no build: '" + build + "'");
        if (!is_known(kind, what)) throw bad("times what is not known: '" + what + "'");
        char* end = nullptr;
        const double value = std::strtod(ns.c_str(), &end);
        if (ns.empty() || *end || !std::isfinite(value) || value <= 0) throw bad("has no time: '" + ns + "'");
        const TimedRow* before = times.find(kind, row, build);
        if (before && before->times.contains(what)) throw bad("is there twice");
        times.add(kind, row, build, what, value);
    }
    return times;
}

std::string Times::text() const {
    std::string text = header + '\n';
    for (const auto& [kind, rows] : kinds_)
        for (const TimedRow& row : rows)
            for (const auto& [what, ns] : row.times) {
                char value[32];
                std::snprintf(value, sizeof value, "%.4g", ns);
                text += kind + '\t' + row.name + '\t' + row.build + '\t' + what + '\t' + value + '\n';
            }
    return text;
}

void Times::add(const std::string& kind, const std::string& row, const std::string& build, const std::string& what,
                double ns) {
    auto& rows = kinds_[kind];
    auto at =
        std::find_if(rows.rbegin(), rows.rend(), [&](const TimedRow& r) { return r.name == row && r.build == build; });
    if (at != rows.rend())
        at->times[what] = ns;
    else
        rows.push_back({row, build, {{what, ns}}});
}

std::vector<TimedRow> Times::rows(const std::string& kind, const std::string& build, const std::string& group) const {
    std::vector<TimedRow> some;
    const auto all = kinds_.find(kind);
    if (all == kinds_.end()) return some;
    for (const TimedRow& row : all->second)
        if ((build.empty() || row.build == build) && (group.empty() || row.family().group == group))
            some.push_back(row);
    return some;
}

std::vector<std::string> Times::groups() const {
    std::vector<std::string> groups;
    for (const auto& [kind, rows] : kinds_)
        for (const TimedRow& row : rows)
            if (!is_one_of(row.family().group, groups)) groups.push_back(row.family().group);
    return groups;
}

const TimedRow* Times::find(const std::string& kind, const std::string& row, const std::string& build) const {
    const auto rows = kinds_.find(kind);
    if (rows == kinds_.end()) return nullptr;
    for (auto r = rows->second.rbegin(); r != rows->second.rend(); ++r)
        if (r->name == row && r->build == build) return &*r;
    return nullptr;
}

}  // namespace tarn
