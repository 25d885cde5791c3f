// Every call that a C program makes, for the test of C callers.
#include <cstdio>
#include <set>
#include <string>

#include "exports/outputs.hpp"
#include "exports/text.hpp"

namespace tarn {
namespace {

// f and d for floating point, i and l for integers: what a C program needs to know of a lane.
std::string lane_letters(const std::vector<Lane>& lanes) {
    std::string text;
    for (const Lane t : lanes) text += is_float(t) ? (bytes(t) == 8 ? 'd' : 'f') : (bytes(t) == 8 ? 'l' : 'i');
    return text;
}

// A signature and its calls for a C program, which defines SIGNATURE_<arguments>[_SECOND] and FUNCTION. The widths
// of a form follow one another, width 1 first.
std::string signature(const Shape& s, int width) {
    std::string text = std::string(stem(s.result)) + (s.pair ? "_pair" : "");
    for (const Lane a : s.args) text += '_' + std::string(stem(a));
    if (s.second != Lane::none && !s.pair) text += "_to_" + std::string(stem(s.second));
    return text + "_x" + std::to_string(width);
}

}  // namespace

void calls() {
    std::set<std::string> seen;
    for (const Family& f : families()) {
        const Shape& s = f.shape;
        const bool pointer = s.second != Lane::none && !s.pair;
        for (const int width : widths) {
            const std::string id = signature(s, width);
            if (!seen.insert(id).second) continue;
            std::printf("SIGNATURE_%zu%s(%s, %d, %s", s.args.size(), pointer ? "_SECOND" : "", id.c_str(), width,
                        result_type(s, width).c_str());
            for (const Lane a : s.args) std::printf(", %s", vector_type(a, width).c_str());
            if (pointer) std::printf(", %s", c_type(s.second));
            std::printf(", \"%s\", \"%s\", \"%s\", %d)\n", lane_letters(s.args).c_str(), lane_letters({s.result}).c_str(),
                        lane_letters(s.second == Lane::none ? std::vector<Lane>{} : std::vector{s.second}).c_str(), s.pair);
        }
    }
    for (const Family& f : families())
        for (const Variant v : all_variants)
            if (f.has(v))
                for (const int width : widths) {
                    std::printf("FUNCTION(%s, %s", export_name(f.base, width, v).c_str(), signature(f.shape, width).c_str());
                    for (std::size_t a = 0; a < 3; a++) {
                        const Interval usual = a < f.usual.size() ? f.usual[a] : Interval{-10, 10};
                        std::printf(", %.17g, %.17g", usual.low, usual.high);
                    }
                    std::puts(")");
                }
}

}  // namespace tarn
