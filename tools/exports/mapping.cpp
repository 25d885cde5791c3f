// The page for makers of OpenCL runtimes: which export serves which built-in, and by which of OpenCL's tables.
#include <cstdio>
#include <map>
#include <set>

#include "exports/allowances.hpp"
#include "exports/opencl.hpp"
#include "exports/outputs.hpp"
#include "exports/text.hpp"

namespace tarn {

Allowance allowance(const std::string& name) {
    static const auto table = [] {
        std::map<std::string, Allowance> t;
        for (const char* n :
             {"cbrt", "exp", "exp2", "exp10", "expm1", "log", "log2", "log10", "log1p", "rsqrt", "sqrt"})
            t[n].embedded = 4;
        for (const char* n : {"divide", "recip"}) t[n] = {3, Rule::ulps, 2.5};
        for (const char* n : {"acos", "asin", "atan"}) t[n].rule = Rule::ulps, t[n].limit = 4096;
        for (const char* n :
             {"acosh", "acospi", "asinh", "asinpi", "atan2", "atan2pi", "atanh", "atanpi", "cbrt", "cosh", "exp10",
              "expm1", "log10",  "log1p", "pow",    "pown",  "powr",    "rootn", "sinh",   "tan",  "tanh", "tanpi"})
            t[n].rule = Rule::ulps, t[n].limit = 8192;
        for (const char* n : {"sin", "cos", "sincos", "sincosreg", "sinpi", "cospi"})
            t[n] = {0, Rule::absolute, 0x1p-11, 0.2784};
        t["exp"] = {4, Rule::exponential, 0, 708.8};
        t["exp2"] = {4, Rule::exponential, 0, 410.1};
        t["log"] = {4, Rule::logarithm, 0, 1125};
        t["log2"] = {4, Rule::logarithm, 0, 68.76};
        return t;
    }();
    const auto found = table.find(name);
    return found == table.end() ? Allowance{} : found->second;
}

bool native_keeps_relaxed(const Family& f, const std::string& name) {
    if (!f.has(Variant::native)) return false;
    const Allowance a = allowance(name);
    if (a.rule == Rule::as_full) return f.native_worst.ulp <= f.allowed;
    if (a.rule == Rule::ulps) return f.native_worst.ulp <= a.limit;
    return a.native_part <= 1;
}

namespace {

std::string relaxed(const std::string& name) {
    const Allowance a = allowance(name);
    switch (a.rule) {
        case Rule::as_full: return "as full";
        case Rule::ulps: return ulps(a.limit);
        case Rule::absolute: return name.ends_with("pi") ? "2^-11 absolute on [-1, 1]" : "2^-11 absolute on [-pi, pi]";
        case Rule::exponential: return "3 + floor(\\|2x\\|)";
        case Rule::logarithm: return "2^-21 absolute on [0.5, 2], else 3";
    }
    return "";
}

std::string found(const Family& f, Variant v) {
    if (rounds_once(f)) return "rounded once";
    const double worst = f.worst(v, 16).ulp;
    if (worst == 0) return "not stated";
    std::string text = ulps(worst);
    if (v == Variant::full)
        for (const auto& [width, own] : f.width_full)
            if (own.ulp > worst) text += ", width " + std::to_string(width) + ": " + ulps(own.ulp);
    return text +
           (v == Variant::full && !f.exceeds_bound.empty() ? " (beyond " + widths_text(f.exceeds_bound) + ')' : "");
}

std::string symbol(const Family& f, Variant v) { return '`' + f.base + 'W' + suffix(v) + '`'; }

std::string mapping_table() {
    // The forms of both precisions that have one name in full.
    std::vector<std::string> order;
    std::map<std::string, std::vector<const Family*>> by_name;
    std::vector<const Family*> conversions;
    for (const Family& f : families()) {
        if (f.group == "Conversions") {
            conversions.push_back(&f);
            continue;
        }
        const std::string name = header_name(f, 1, Variant::full).substr(5);
        if (by_name[name].empty()) order.push_back(name);
        by_name[name].push_back(&f);
    }
    std::string text =
        "\n### Accuracy in full\n\n"
        "| OpenCL C | single: symbol | double: symbol | allowed | single: found | double: found | embedded |\n"
        "|---|---|---|---|---|---|---|\n";
    for (const auto& name : order) {
        const Family& single = *by_name[name][0];
        const Family& twice = *by_name[name][1];
        const std::string own = builtin(single, 1, Variant::full);
        std::string called = '`' + own + '`';
        if (own.empty()) called = name == "divide" ? "`x / y`" : name == "recip" ? "`1 / x`" : "none: `tarn_" + name + '`';
        const double embedded = allowance(name).embedded;
        const std::string bound = rounds_once(single) ? "0.5" : single.allowed > 0 ? ulps(single.allowed) : "open";
        text += "| " + called + " | " + symbol(single, Variant::full) + " | " + symbol(twice, Variant::full) + " | " +
                bound + " | " + found(single, Variant::full) + " | " + found(twice, Variant::full) + " | " +
                (embedded ? ulps(embedded) : "as full") + " |\n";
    }
    text +=
        "\n### `native_` and `half_`, and relaxed math\n\n"
        "| OpenCL C | native | found | half | found | relaxed math allows | native serves there |\n"
        "|---|---|---|---|---|---|---|\n";
    for (const auto& name : order) {
        const Family& f = *by_name[name][0];
        if (!f.has(Variant::native)) continue;
        const bool half = f.has(Variant::half);
        const Allowance a = allowance(name);
        std::string serves = native_keeps_relaxed(f, name) ? "yes" : "no";
        if (a.native_part != 0) serves += ", " + ulps(a.native_part) + " of it";
        if (!f.native_domain.empty() && serves.starts_with("yes")) serves += ", in its domain";
        text += "| `" + name + "` | " + symbol(f, Variant::native) +
                (builtin(f, 1, Variant::native).empty() ? "" : " (`native_" + name + "`)") + " | " +
                found(f, Variant::native) + " | " + (half ? symbol(f, Variant::half) + " (`half_" + name + "`)" : "") +
                " | " + (half ? found(f, Variant::half) : "") + " | " + relaxed(name) + " | " + serves + " |\n";
    }
    text +=
        "\n### Conversions\n\nOf every rounding mode and, to integers, with `_sat` and without.\n\n"
        "| OpenCL C | from | symbol |\n|---|---|---|\n";
    std::set<std::string> seen;
    for (const Family* f : conversions) {
        // One line for the modes.
        std::string base = f->base, name = builtin(*f, 16, Variant::full);
        name.replace(name.find("16"), 2, 1, 'W');
        name.replace(name.rfind("_rt"), 4, "_MODE");
        base.replace(base.find("rt"), 3, "MODE");
        if (seen.insert(base).second)
            text += "| `" + name + "` | `" + stem(f->shape.args[0]) + "W` | `" + base + "W` |\n";
    }
    return text + '\n';
}

}  // namespace

int mapping(const char* file) { return renewed(file, "built-ins", mapping_table()); }

}  // namespace tarn
