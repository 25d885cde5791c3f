// A page for every group of functions: what they are, how they are computed, how large their errors are and how long they take.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <limits>
#include <sstream>
#include <stdexcept>

#include "exports/outputs.hpp"
#include "exports/text.hpp"
#include "figures/profiles.hpp"
#include "figures/times.hpp"

namespace tarn {
namespace {

using Families = std::vector<const Family*>;

std::string in_cell(std::string text) {
    for (std::size_t i = 0; (i = text.find('|', i)) != std::string::npos; i += 2) text.insert(i, 1, '\\');
    return text;
}
std::string sentence(const std::string& text) { return text.empty() || text.ends_with('.') ? text : text + '.'; }

std::string joined(const std::vector<std::string>& parts) {
    std::string text;
    for (const auto& part : parts)
        if (!part.empty()) text += (text.empty() ? "" : " ") + part;
    return text;
}

bool has_errors(const Family& f) { return f.full.ulp != 0; }

// What the families of a section say alike is said once, before what each says for itself.
std::string said(const Families& families, const std::function<std::string(const Family&)>& of) {
    const bool alike = std::all_of(families.begin(), families.end(), [&](const Family* f) { return of(*f) == of(*families[0]); });
    if (alike) return of(*families[0]).empty() ? "" : of(*families[0]) + '\n';
    std::string text;
    for (const Family* f : families)
        if (!of(*f).empty()) text += "- " + code(f->base) + ": " + of(*f) + '\n';
    return text;
}

std::string what_it_is(const Family& f) {
    return joined({sentence(f.formula), f.domain.empty() ? "" : "Domain: " + f.domain + '.', f.special.empty() ? "" : "Special values: " + sentence(f.special)});
}

std::string errors_table(const Families& families) {
    std::string text = "| function | form | OpenCL allows | largest error found, ulp | proved at most |\n|---|---|---|---|---|\n";
    for (const Family* f : families)
        for (const auto& [form, allowed, worst, proved] : errors_of_forms(*f))
            text += "| " + code(f->base) + " | " + form + " | " + allowed + " | " + ulps(worst->ulp) + " | " +
                    (proved != 0 ? proved_text(proved) : "") + " |\n";
    std::string measured;
    for (const Family* f : families) measured += (measured.empty() ? "\nMeasured: " : "; ") + code(f->base) + ' ' + f->measured;
    return text + measured + ".\n";
}

// Empty where nothing was timed.
std::string times_table(const Families& families, const Times& times) {
    const std::string large = ", large x";
    std::string lines;
    for (const Family* f : families)
        for (const std::string& row : {f->base, f->base + large})
            for (const char* build : builds) {
                const TimedRow *calls = times.find("call", row, build), *arrays = times.find("array", row, build);
                if (!calls && !arrays) continue;
                const bool is_large = row != f->base;
                lines += "| " + code(f->base) + (is_large ? large : "") + " | " + build;
                const auto cell = [&](const TimedRow* of, const std::string& what) {
                    const double ns = of ? of->at(what) : std::numeric_limits<double>::infinity();
                    lines += " | " + (std::isfinite(ns) ? decimals(ns, 2) : "");
                };
                for (const int width : widths) cell(calls, 'w' + std::to_string(width));
                cell(arrays, "array");
                lines += " |\n";
            }
    if (lines.empty()) return "";
    std::string head = "| ns an element | build";
    std::string rule = "|---|---";
    for (const int width : widths) head += " | " + std::to_string(width), rule += "|---";
    return head + " | arrays |\n" + rule + "|---|\n" + lines;
}

struct Data {
    std::filesystem::path errors;
    Times times;
};

std::string pictures(const Families& families, const Data& data) {
    std::string text;
    for (const Family* f : families) {
        const auto file = data.errors / (f->base + ".tsv");
        if (!std::filesystem::exists(file)) continue;
        const ErrorProfile profile = read_profile(file);
        if (profile.bins[0].kernel.family != f) throw std::runtime_error(file.string() + ": the profile of another family");
        text += "\n![The largest error of " + f->base + " in each bin of its argument, beside what OpenCL allows](" + f->base + ".svg)\n\n" + code(f->base) + ": " + profile.how + '\n';
    }
    return text;
}

std::string exceptions_of(const Family& f) { return joined(exceptions(f)); }

std::string how_it_is(const Family& f) {
    const std::string exceptional = exceptions_of(f);
    return joined({f.computed, exceptional.empty() ? "" : "Exceptions: " + exceptional});
}

// The single and the double form of a function stand together.
std::vector<Families> sections(const Families& group) {
    std::vector<Families> all;
    for (const Family* f : group) {
        if (!all.empty() && all.back().back()->base == f->base + 'f') all.back().push_back(f);
        else all.push_back({f});
    }
    return all;
}

std::string page_with_errors(const Families& group, const Data& data) {
    std::string text =
        "Errors are in units in the last place of the exact result ([what is measured](../accuracy.md)). A bound in brackets is\n"
        "exceeded; what is proved is [proved](../proofs.md) of the fast path. Times are of the module, by width, and of libtarn on\n"
        "arrays, on the machine and under the conditions of [speed.md](../speed.md). Pictures show the largest error in each bin\n"
        "of the first argument; the bins at both ends have all that is farther out. What a directed search found is no bound.\n";
    for (const Families& section : sections(group)) {
        std::string heading;
        for (const Family* f : section) heading += (heading.empty() ? "" : ", ") + code(f->base);
        text += "\n## " + heading + "\n\n" + said(section, what_it_is) + '\n' + said(section, how_it_is);
        Families rounding;
        std::copy_if(section.begin(), section.end(), std::back_inserter(rounding), [](const Family* f) { return has_errors(*f); });
        if (!rounding.empty()) text += '\n' + errors_table(rounding);
        const std::string timed = times_table(section, data.times);
        if (!timed.empty()) text += '\n' + timed;
        text += pictures(section, data);
    }
    return text;
}

std::string exact_page(const Families& group, const Data& data) {
    std::string text = "| function | result | special values | exceptions |\n|---|---|---|---|\n";
    for (const Family* f : group) {
        std::string special = sentence(f->special);
        if (!f->domain.empty() && !f->domain.starts_with("every")) special = "Domain: " + f->domain + ". " + special;
        text += "| " + code(f->base) + " | " + in_cell(f->formula) + " | " + in_cell(special) + " | " + in_cell(exceptions_of(*f)) + " |\n";
    }
    const auto count = std::count_if(group.begin(), group.end(), [](const Family* f) { return rounds_once(*f); });
    std::string others;
    for (const Family* f : group)
        if (!rounds_once(*f)) others += (others.empty() ? "" : ", ") + code(f->base);
    std::string intro = count == static_cast<std::ptrdiff_t>(group.size()) ? "Every result is exact, or rounded once." : "Every result is exact, or rounded once, but for " + others + ".";
    intro += " Times are of the module, by width, and of libtarn on arrays, on the\nmachine and under the conditions of [speed.md](../speed.md).\n\n";
    std::string how;
    for (std::size_t i = 0; i < group.size(); i++) {
        if (group[i]->computed.empty() || (i > 0 && group[i]->computed == group[i - 1]->computed)) continue;
        std::vector<std::string> names;
        for (std::size_t j = i; j < group.size() && group[j]->computed == group[i]->computed; j++) names.push_back(code(group[j]->base));
        // Of long runs of one kind the first and the last.
        how += "- " + (names.size() > 12 ? names.front() + " ... " + names.back() : listed(names)) + ": " + group[i]->computed + '\n';
    }
    const std::string timed = times_table(group, data.times);
    return intro + (how.empty() ? "" : how + '\n') + text + (timed.empty() ? "" : '\n' + timed);
}

void write(const std::filesystem::path& file, const std::string& text) {
    std::ofstream out(file);
    if (!(out << text).flush()) throw std::runtime_error("cannot write " + file.string());
}

}  // namespace

int pages(const char* directory) try {
    const std::filesystem::path to = directory;
    if (!std::filesystem::is_directory(to)) throw std::runtime_error(to.string() + " is no directory");
    // The data lie beside the pages.
    const auto from = std::filesystem::canonical(to).parent_path() / "data";
    Data data{from / "errors", {}};
    if (std::filesystem::exists(from / "speed.tsv")) data.times = Times::read(from / "speed.tsv");
    std::vector<std::pair<std::string, Families>> groups;
    for (const Family& f : families()) {
        if (groups.empty() || groups.back().first != f.group) groups.push_back({f.group, {}});
        groups.back().second.push_back(&f);
    }
    std::string index = "# Functions\n\nA page for each group, written by `tarn-exports pages` from the table of families and from what was measured\n"
                        "([errors](../data/errors), [times](../data/speed.tsv)).\n\n| group | functions |\n|---|---|\n";
    for (const auto& [group, members] : groups) {
        const std::string name = slug(group) + ".md";
        const bool errors = std::any_of(members.begin(), members.end(), [](const Family* f) { return has_errors(*f); });
        write(to / name, "# " + group + "\n\n" + (errors ? page_with_errors(members, data) : exact_page(members, data)));
        index += "| [" + group + "](" + name + ") | ";
        if (members.size() > 50) index += std::to_string(members.size()) + " of them |\n";
        else {
            std::vector<std::string> names;
            for (const Family* f : members) names.push_back(code(f->base));
            index += listed(names) + " |\n";
        }
    }
    write(to / "index.md", index);
    return 0;
} catch (const std::exception& error) {
    return std::fprintf(stderr, "tarn-exports: %s\n", error.what()), 2;
}

}  // namespace tarn
