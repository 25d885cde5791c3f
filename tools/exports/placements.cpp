// The page of the calling conventions: where the arguments and results of each signature travel.
#include <string>
#include <vector>

#include "exports/outputs.hpp"
#include "exports/text.hpp"
#include "families/placement.hpp"

namespace tarn {
namespace {

// Signed or not, integers travel alike.
Lane signless(Lane t) { return t == Lane::u32 ? Lane::i32 : t == Lane::u64 ? Lane::i64 : t; }
Shape signless(Shape s) {
    for (Lane& t : s.args) t = signless(t);
    s.result = signless(s.result), s.second = signless(s.second);
    return s;
}

const char* lane_name(Lane t) {
    return t == Lane::f32 ? "float" : t == Lane::f64 ? "double" : bytes(t) == 8 ? "64-bit integer" : "32-bit integer";
}

std::string signature(const Shape& s) {
    std::string text;
    for (const Lane t : s.args) text += (text.empty() ? "" : ", ") + std::string(lane_name(t));
    text += std::string(" to ") + lane_name(s.result);
    if (s.pair) return text + ", twice";
    return s.second == Lane::none ? text : text + ", and " + lane_name(s.second) + " by a pointer";
}

// The arguments in order, the pointer to a second result, the result.
std::string placed(const Shape& s, int width, Convention convention) {
    const Placement p = placement(s, width, convention);
    std::string text;
    for (std::size_t i = 0; i < p.args.size(); i++)
        text += (i ? "; " : "") + argument_text(p.args[i], s.args[i], convention);
    if (p.second.where != Place::Where::nowhere) text += "; pointer: " + place_text(p.second, convention);
    return text + " | " + result_text(p.result, s.result, convention);
}

std::string row(const std::string& of, const std::string& widths, const std::string& cells) {
    return "| " + of + " | " + widths + " | " + cells + " |\n";
}

std::string table() {
    std::vector<Shape> shapes;
    for (const Family& f : families()) {
        const Shape s = signless(f.shape);
        if (std::find(shapes.begin(), shapes.end(), s) == shapes.end()) shapes.push_back(s);
    }
    std::string text = "\n| arguments and result | width | System V: arguments | result "
                       "| Windows x64: arguments | result | declared |\n"
                       "|---|---|---|---|---|---|---|\n";
    for (const Shape& s : shapes) {
        std::string of = signature(s), before, numbers;
        for (const int width : widths) {
            const std::string cells = placed(s, width, Convention::system_v) + " | " +
                                      placed(s, width, Convention::windows) + " | " +
                                      (is_vectorcall(s, width) ? "yes" : "by name");
            if (cells == before) {
                numbers += ", " + std::to_string(width);
                continue;
            }
            if (!before.empty()) text += row(of, numbers, before), of.clear();
            before = cells, numbers = std::to_string(width);
        }
        text += row(of, numbers, before);
    }
    text += "\nWith more than one argument or result:\n\n| arguments and result | functions |\n|---|---|\n";
    for (const Shape& s : shapes) {
        if (s.args.size() == 1 && s.second == Lane::none) continue;
        std::string names;
        for (const Family& f : families())
            if (signless(f.shape) == s) names += (names.empty() ? "`" : ", `") + f.base + '`';
        text += "| " + signature(s) + " | " + names + " |\n";
    }
    return text + '\n';
}

}  // namespace

int conventions(const char* file) { return renewed(file, "placement", table()); }

}  // namespace tarn
