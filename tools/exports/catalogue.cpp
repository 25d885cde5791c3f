// The catalogue of the exports, for programs: JSON by docs/exports.schema.json.
#include <cmath>
#include <cstdio>
#include <string>

#include "exports/opencl.hpp"
#include "exports/outputs.hpp"
#include "exports/text.hpp"
#include "families/placement.hpp"

namespace tarn {
namespace {

std::string quoted(const std::string& text) {
    std::string json = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') json += '\\';
        json += c;
    }
    return json + '"';
}

std::string or_null(const std::string& text) { return text.empty() ? "null" : quoted(text); }

std::string number(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%.9g", value);
    return text;
}

template <class Range, class Text>
std::string array(const Range& values, Text text) {
    std::string json = "[";
    for (const auto& value : values) json += (json.size() > 1 ? ", " : "") + text(value);
    return json + ']';
}

// Of width 3 four lanes are stored.
std::string vector(Lane t, int width) {
    if (t == Lane::none) return "null";
    return "{\"lane\": " + quoted(stem(t)) + ", \"lanes\": " + std::to_string(width) +
           ", \"bytes\": " + std::to_string((width == 3 ? 4 : width) * bytes(t)) + '}';
}

std::string place(const Place& p, Lane t, Convention convention, bool is_result) {
    static const char* const names[] = {"nowhere", "xmm", "integer", "stack"};
    return "{\"in\": " + quoted(names[static_cast<int>(p.where)]) + ", \"first\": " + std::to_string(p.first) +
           ", \"count\": " + std::to_string(p.count) + ", \"by_reference\": " + (p.by_reference ? "true" : "false") +
           ", \"text\": " + quoted(is_result ? result_text(p, t, convention) : argument_text(p, t, convention)) + '}';
}

std::string travels(const Shape& s, int width, Convention convention) {
    const Placement p = placement(s, width, convention);
    std::string arguments;
    for (std::size_t a = 0; a < s.args.size(); a++)
        arguments += (a ? ", " : "") + place(p.args[a], s.args[a], convention, false);
    return "{\"arguments\": [" + arguments + "], \"result\": " + place(p.result, s.result, convention, true) +
           ", \"second\": " +
           (p.second.where == Place::Where::nowhere ? "null" : place(p.second, s.second, convention, false)) + '}';
}

std::string error(const Family& f, int width, Variant v) {
    const Worst& worst = f.worst(v, width);
    if (rounds_once(f)) return R"({"ulp": 0.5, "at": [], "measured": null, "proved": null})";
    if (worst.ulp == 0) return "null";
    std::size_t a = 0;
    return "{\"ulp\": " + number(worst.ulp) + ", \"at\": " +
           array(worst.at,
                 [&](std::uint64_t pattern) {
                     char text[32];
                     std::snprintf(text, sizeof text, "\"0x%0*llx\"", bytes(f.shape.args[a++]) * 2,
                                   static_cast<unsigned long long>(pattern));
                     return std::string(text);
                 }) +
           ", \"measured\": " + or_null(f.measured) +
           ", \"proved\": " + (v == Variant::full && f.proved_at(width) != 0 ? proved_text(f.proved_at(width)) : "null") + '}';
}

// What OpenCL allows of the built-in that this form serves; null where it leaves the error open.
std::string bound(const Family& f, Variant v) {
    if (v == Variant::half) return "8192";
    if (v == Variant::native) return "null";
    return rounds_once(f) ? "0.5" : f.allowed > 0 ? number(f.allowed) : "null";
}

// LLVM's string for a vector that travels as its own vector type does: in one register.
std::string vector_functions(const Family& f, int width, Variant v) {
    const Shape& s = f.shape;
    bool plain = width > 1 && width != 3 && s.second == Lane::none && width * bytes(s.result) <= 16;
    for (const Lane a : s.args) plain = plain && width * bytes(a) <= 16;
    if (!plain) return "[]";
    const std::string lanes = "_ZGV_LLVM_N" + std::to_string(width) + std::string(s.args.size(), 'v') + '_';
    const std::string target = '(' + export_name(f.base, width, v) + ')';
    // The C library has other functions of these names.
    const bool named = v == Variant::full && f.group != "Conversions" && f.base != "div" && !f.base.starts_with("nan");
    return '[' + (named ? quoted(lanes + f.base + target) + ", " : "") +
           quoted(lanes + export_name(f.base, 1, v) + target) + "]";
}

}  // namespace

void catalogue() {
    std::printf("{\n\"module\": \"__ocl_tarn_k1\",\n\"version\": \"%s\",\n\"exports\": [", TARN_VERSION);
    const char* separator = "\n";
    for (const Family& f : families())
        for (const Variant v : all_variants)
            if (f.has(v))
                for (const int width : widths) {
                    const Shape& s = f.shape;
                    std::printf(
                        "%s{\"symbol\": \"%s\", \"base\": \"%s\", \"precision\": \"%s\", \"width\": %d, \"variant\": \"%s\",\n",
                        separator, export_name(f.base, width, v).c_str(), f.base.c_str(), stem(precision(f)), width,
                        v == Variant::full ? "full" : suffix(v) + 1);
                    std::printf(" \"opencl\": %s, \"opencl_header\": %s, \"group\": %s,\n",
                                or_null(builtin(f, width, v)).c_str(), quoted(header_name(f, width, v)).c_str(),
                                quoted(f.group).c_str());
                    std::printf(" \"arguments\": %s, \"result\": %s, \"second\": %s, \"second_is\": %s,\n",
                                array(s.args, [&](Lane a) { return vector(a, width); }).c_str(),
                                vector(s.result, width).c_str(), vector(s.second, width).c_str(),
                                s.second == Lane::none ? "null"
                                : s.pair               ? "\"returned\""
                                                       : "\"written\"");
                    std::printf(" \"system_v\": %s,\n \"windows\": %s,\n",
                                travels(s, width, Convention::system_v).c_str(),
                                travels(s, width, Convention::windows).c_str());
                    std::printf(" \"pure\": %s, \"error\": %s, \"opencl_bound\": %s, \"exceeds_opencl_bound\": %s,\n",
                                is_pure(f) ? "true" : "false", error(f, width, v).c_str(), bound(f, v).c_str(),
                                v == Variant::full && f.exceeds(width) ? "true" : "false");
                    std::printf(" \"formula\": %s, \"domain\": %s, \"special_values\": %s, \"exceptions\": %s,\n",
                                quoted(f.formula).c_str(), or_null(f.domain).c_str(), or_null(f.special).c_str(),
                                array(exceptions(f), quoted).c_str());
                    std::printf(" \"array_exceptions\": %s,\n", array(exceptions(f, Of::elements), quoted).c_str());
                    std::printf(" \"vector_function_abi\": %s}", vector_functions(f, width, v).c_str());
                    separator = ",\n";
                }
    std::puts("\n]\n}");
}

}  // namespace tarn
