#include "exports/text.hpp"

#include <bit>
#include <cstdio>
#include <fstream>
#include <sstream>

namespace tarn {

const char* c_type(Lane t) {
    switch (t) {
        case Lane::f32: return "float";
        case Lane::f64: return "double";
        case Lane::i32: return "int32_t";
        case Lane::u32: return "uint32_t";
        case Lane::i64: return "int64_t";
        case Lane::u64: return "uint64_t";
        case Lane::none: break;
    }
    return "void";
}

const char* stem(Lane t) {
    switch (t) {
        case Lane::f32: return "float";
        case Lane::f64: return "double";
        case Lane::i32: return "int";
        case Lane::u32: return "uint";
        case Lane::i64: return "long";
        case Lane::u64: return "ulong";
        case Lane::none: break;
    }
    return "void";
}

std::string vector_type(Lane t, int width) {
    return width == 1 ? c_type(t) : "tarn_" + std::string(stem(t)) + std::to_string(width);
}

std::string result_type(const Shape& s, int width) {
    return s.pair ? "tarn_sincos_" + std::string(stem(s.result)) + std::to_string(width) : vector_type(s.result, width);
}

bool is_pure(const Family& f) {
    return (f.shape.second == Lane::none || f.shape.pair) && !f.base.starts_with("rint") &&
           !f.base.starts_with("nearbyint") && f.base != "fmaf" && f.base != "fma";
}

bool rounds_once(const Family& f) { return f.full.ulp == 0 && f.allowed == 0 && f.formula.find("twice") == std::string::npos; }

std::string proved_text(double bound) {
    char text[32];
    std::snprintf(text, sizeof text, "%.4f", bound);
    return text;
}

std::string ulps(double u) {
    char text[32];
    std::snprintf(text, sizeof text, "%.4g", u);
    return text;
}

std::string listed(const std::vector<std::string>& words) {
    std::string text;
    for (std::size_t i = 0; i < words.size(); i++) text += (i == 0 ? "" : i + 1 == words.size() ? " and " : ", ") + words[i];
    return text;
}

std::string listed(const std::vector<int>& numbers) {
    std::vector<std::string> words;
    for (const int n : numbers) words.push_back(std::to_string(n));
    return listed(words);
}

std::string widths_text(const std::vector<int>& numbers) {
    if (numbers.size() == std::size(widths)) return "at every width";
    return (numbers.size() == 1 ? "at width " : "at widths ") + listed(numbers);
}

namespace {

std::string forms(const std::vector<Variant>& variants) {
    std::vector<std::string> words;
    for (const Variant v : variants) words.push_back(v == Variant::full ? "full" : suffix(v) + 1);
    return listed(words);
}

std::string magnitude(double limit) {
    char text[32];
    std::snprintf(text, sizeof text, "%.0f", limit);
    return text;
}

}  // namespace

std::vector<std::string> exceptions(const Family& f, Of of) {
    std::vector<std::string> all;
    const bool calls = of == Of::calls;
    if (calls && !f.width_full.empty()) {
        std::vector<int> own;
        for (const auto& [width, worst] : f.width_full) own.push_back(width);
        all.push_back((own.size() > 1 ? "Widths " : "Width ") + listed(own) + (own.size() > 1 ? " have kernels" : " has a kernel") +
                      " of " + (own.size() > 1 ? "their" : "its") + " own (full).");
    }
    if (calls && f.switches_above != 0)
        all.push_back("One lane beyond |x| = " + magnitude(f.switches_above) + " sends the whole call down another path.");
    if (calls && f.shares_blocks) all.push_back("A special lane makes its 16-byte block more exact (full).");
    if (!f.estimates.empty())
        all.push_back("Last bits may differ between processor makers (" + forms(f.estimates) + ").");
    if (!f.native_domain.empty()) {
        static const char* const names[] = {"x", "y"};
        std::vector<std::string> parts;
        for (std::size_t a = 0; a < f.native_domain.size(); a++) {
            char text[64];
            std::snprintf(text, sizeof text, "%s from %g to %g", names[a], f.native_domain[a].low, f.native_domain[a].high);
            parts.push_back(text);
        }
        all.push_back("Native keeps its error for " + listed(parts) + ".");
    }
    if (!f.also.empty() && (calls || f.switches_above == 0)) all.push_back(f.also);
    return all;
}

std::string number(Lane type, std::uint64_t pattern) {
    char text[32];
    if (type == Lane::f32) std::snprintf(text, sizeof text, "%.9g", static_cast<double>(std::bit_cast<float>(static_cast<std::uint32_t>(pattern))));
    else if (type == Lane::f64) std::snprintf(text, sizeof text, "%.17g", std::bit_cast<double>(pattern));
    else std::snprintf(text, sizeof text, "%d", static_cast<std::int32_t>(pattern));
    return text;
}

std::string error_line(const Family& f, Of of) {
    if (f.full.ulp == 0) return rounds_once(f) ? "Exact, or rounded once." : "";
    // Of all inputs one is the worst; of others, one is the worst that was found.
    const bool settled = f.measured.starts_with("all") || f.measured.starts_with("every");
    std::string text = (settled ? "Worst error " : "Largest error found ") + ulps(f.full.ulp) + " ulp";
    if (of == Of::calls)
        for (const auto& [width, own] : f.width_full) text += ", width " + std::to_string(width) + " " + ulps(own.ulp);
    if (f.proved != 0) {
        text += ", proved at most " + proved_text(f.proved) + " on the fast path";
        if (of == Of::calls)
            for (const auto& [width, own] : f.width_proved) text += ", at width " + std::to_string(width) + ' ' + proved_text(own);
        if (!f.estimates.empty()) text += " with any processor's estimates";
    }
    if (f.allowed > 0) {
        text += " (OpenCL allows " + ulps(f.allowed);
        if (of == Of::elements && f.exceeds(16)) text += ", exceeded";
        if (of == Of::calls && !f.exceeds_bound.empty()) text += ", exceeded " + widths_text(f.exceeds_bound);
        text += ')';
    }
    if (f.native_worst.ulp != 0) text += f.half_worst.ulp != 0 ? "; native " : f.has(Variant::half) ? "; native and half " : "; native ";
    if (f.native_worst.ulp != 0) text += ulps(f.native_worst.ulp);
    if (f.half_worst.ulp != 0) text += ", half " + ulps(f.half_worst.ulp);
    if (!f.measured.empty()) text += (settled ? "; measured over " : "; by ") + f.measured;
    return text + '.';
}

std::string description(const Family& f, Of of) {
    std::string text = f.base + ": " + f.formula + ".";
    if (!f.domain.empty()) text += " Domain: " + f.domain + ".";
    if (!f.special.empty()) text += " Special values: " + f.special;
    const std::string error = error_line(f, of);
    if (!error.empty()) text += ' ' + error;
    for (const auto& sentence : exceptions(f, of)) text += ' ' + sentence;
    return text;
}

void print_version() {
    std::istringstream version(TARN_VERSION);
    for (const char* part : {"MAJOR", "MINOR", "PATCH"}) {
        std::string number;
        std::getline(version, number, '.');
        std::printf("#define TARN_VERSION_%s %s\n", part, number.c_str());
    }
}

void print_group(const Family& f, std::string& group) {
    if (f.group == group) return;
    group = f.group;
    std::string rule = "/* " + group + ' ';
    rule.resize(100, '-');
    std::printf("\n%s */\n", rule.c_str());
}

void print_comment(const std::string& text, std::size_t limit) {
    std::string line = "/*";
    std::size_t at = 0;
    while (at < text.size()) {
        std::size_t end = text.find(' ', at);
        if (end == std::string::npos) end = text.size();
        if (line.size() + 1 + (end - at) > limit) {
            std::puts(line.c_str());
            line = "  ";
        }
        line += ' ' + text.substr(at, end - at);
        at = end + 1;
    }
    std::puts((line + " */").c_str());
}

int renewed(const char* file, const std::string& what, const std::string& text) {
    std::ifstream in(file);
    if (!in) return std::fprintf(stderr, "tarn-exports: cannot read %s\n", file), 2;
    const std::string begin = "<!-- generated: " + what + " -->", end = "<!-- end -->";
    bool inside = false, seen = false;
    for (std::string line; std::getline(in, line);) {
        if (line == end) inside = false;
        if (!inside) std::puts(line.c_str());
        if (line == begin) {
            inside = seen = true;
            std::fputs(text.c_str(), stdout);
        }
    }
    if (!seen || inside) return std::fprintf(stderr, "tarn-exports: %s lacks its marks\n", file), 2;
    return 0;
}

void print_sincos_types() {
    std::puts("/* Sine and cosine together. */");
    for (const Lane t : {Lane::f32, Lane::f64})
        for (const int width : widths)
            std::printf("typedef struct tarn_sincos_%s%d { %s sine, cosine; } tarn_sincos_%s%d;\n", stem(t), width,
                        vector_type(t, width).c_str(), stem(t), width);
}

std::string name_of_both(const Family& f) {
    const std::string shorter = f.base.substr(0, f.base.size() - 1);
    return f.base.ends_with('f') && find_family(shorter) ? shorter : f.base;
}

std::vector<FormErrors> errors_of_forms(const Family& f) {
    const std::string allowed = f.allowed > 0 ? ulps(f.allowed) : f.allowed == 0 ? "0.5" : "open";
    const auto of_width = [&](int width) { return f.exceeds(width) ? '(' + allowed + ')' : allowed; };
    std::vector<FormErrors> forms = {{"full", of_width(16), &f.full, f.proved}};
    for (const auto& [width, worst] : f.width_full)
        forms.push_back({"full, width " + std::to_string(width), of_width(width), &worst, f.proved_at(width)});
    const bool shared = f.has(Variant::half) && f.half_worst.ulp == 0;
    forms.push_back({shared ? "native, half" : "native", "open", &f.native_worst, 0});
    forms.push_back({"half", "8192", &f.half_worst, 0});
    std::erase_if(forms, [](const FormErrors& form) { return form.worst->ulp == 0; });
    return forms;
}

}  // namespace tarn
