#include "figures/profiles.hpp"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <limits>
#include <sstream>
#include <stdexcept>

namespace tarn {
namespace {

std::vector<std::string> columns_of(const std::string& line) {
    std::vector<std::string> columns(1);
    for (const char c : line) c == '\t' ? columns.emplace_back() : columns.back() += c, void();
    return columns;
}

[[noreturn]] void refuse(const std::string& path, const std::string& why) { throw std::runtime_error(path + ": " + why); }

// Where a profile's picture has an argument: by value, or by binades to either side of zero, which has a place of its own.
class Layout {
public:
    explicit Layout(const Family& f) : axis_(f.axis) {
        if (axis_.scale == Scale::linear) {
            beyond_ = (axis_.high - axis_.low) / 48;
            return;
        }
        const auto [low, high] = f.binades();
        low_ = low, high_ = high;
        gap_ = (high_ - low_) / 24;
        beyond_ = axis_.high != 0 ? gap_ : 0;
    }

    double place(double x) const {
        if (axis_.scale == Scale::linear) return std::isfinite(x) ? x : x < 0 ? axis_.low - beyond_ : axis_.high + beyond_;
        if (x == 0) return 0;
        const double far = std::isfinite(x) ? std::log2(std::fabs(x)) : high_ + beyond_;
        return std::copysign(far - low_ + gap_, x);
    }

    // Zero and powers of ten; gnuplot's own marks by value.
    std::string marks(double least, double most) const {
        if (axis_.scale == Scale::linear) return "";
        std::string text = "set xtics ('0' 0";
        // As many as have room; from the ends inwards, where powers of ten are told apart.
        std::vector<double> marked = {0};
        const double apart = 0.065 * (most - least);
        const double decades = (most - least) * std::log10(2);
        int step = 1;
        for (const int wider : {2, 3, 5, 10, 20, 50, 100})
            if (decades / step > 12) step = wider;
        for (int k = static_cast<int>(high_ * std::log10(2)) / step * step; k >= low_ * std::log10(2); k -= step)
            for (const double v : {std::pow(10, k), -std::pow(10, k)}) {
                const double at = place(v);
                if (at < least || at > most || std::any_of(marked.begin(), marked.end(), [&](double m) { return std::fabs(m - at) < apart; })) continue;
                marked.push_back(at);
                char mark[80];
                const char* sign = v < 0 ? "-" : "";
                if (std::abs(k) > 1) std::snprintf(mark, sizeof mark, ", '%s10^{%d}' %.6g", sign, k, at);
                else std::snprintf(mark, sizeof mark, ", '%s%g' %.6g", sign, std::fabs(v), at);
                text += mark;
            }
        return text + ")\n";
    }

    const char* label(double least, double most) const {
        return axis_.scale == Scale::linear ? "" : least < 0 && most > 0 ? ", logarithmic to either side of 0" : ", logarithmic";
    }

private:
    Axis axis_;
    double low_ = 0, high_ = 0, gap_ = 0, beyond_ = 0;
};

std::string label(const BinError& bin) {
    const Family& f = *bin.kernel.family;
    const int width = bin.kernel.width;
    const bool own = std::any_of(f.width_full.begin(), f.width_full.end(), [&](const auto& w) { return w.first == width; });
    std::string text = bin.kernel.variant != Variant::full ? suffix(bin.kernel.variant) + 1 : "full";
    if (bin.kernel.variant == Variant::full && own) text += ", width " + std::to_string(width);
    if (bin.kernel.variant == Variant::native && f.has(Variant::half) && f.half_worst.ulp == 0) text += " and half";
    if (f.shape.second == f.shape.result) text += bin.result == 1 ? ", sine" : ", cosine";
    return text;
}

// A line of the pictures' style for each kind of kernel, the same in all pictures.
int style(const BinError& bin, int own_width) {
    const bool second = bin.result == 2;
    switch (bin.kernel.variant) {
        case Variant::full: return own_width > 0 ? 2 + own_width : second ? 6 : 1;
        case Variant::native: return second ? 5 : 2;
        default: return 4;
    }
}

}  // namespace

ErrorProfile read_profile(const std::string& path) {
    std::ifstream in(path);
    if (!in) refuse(path, "cannot be read");
    ErrorProfile profile;
    std::string line;
    bool headed = false;
    while (std::getline(in, line)) {
        if (line.starts_with('#')) {
            profile.how = line.substr(line.find_first_not_of("# "));
            continue;
        }
        const auto columns = columns_of(line);
        if (columns.size() != 7) refuse(path, "not a profile: '" + line + "'");
        if (!headed) {
            headed = true;
            continue;
        }
        BinError bin{};
        if (!parse_export(columns[0], bin.kernel)) refuse(path, "no export is called '" + columns[0] + "'");
        bin.result = columns[1] == "2" ? 2 : 1;
        bin.from = std::strtod(columns[2].c_str(), nullptr), bin.to = std::strtod(columns[3].c_str(), nullptr);
        bin.ulp = std::strtod(columns[4].c_str(), nullptr);
        std::istringstream patterns(columns[5]);
        for (std::string pattern; patterns >> pattern;) bin.at.push_back(std::strtoull(pattern.c_str(), nullptr, 16));
        bin.wrong = !columns[6].empty();
        profile.bins.push_back(bin);
    }
    if (profile.bins.empty()) refuse(path, "a profile without a bin");
    return profile;
}

std::string profile_figure(const ErrorProfile& measured) {
    ErrorProfile profile = measured;
    // The full form of most widths first.
    std::stable_sort(profile.bins.begin(), profile.bins.end(), [](const BinError& a, const BinError& b) {
        const auto rank = [](const BinError& bin) { return bin.kernel.variant != Variant::full ? 2 : bin.kernel.width != 16; };
        return rank(a) < rank(b);
    });
    const Family& f = *profile.bins[0].kernel.family;
    const Layout axis(f);
    std::string names, styles, data, last;
    int count = 0, own_widths = 0;
    double least = std::numeric_limits<double>::infinity(), most = -least, largest = 0, end = 0;
    for (const BinError& bin : profile.bins) {
        const std::string name = label(bin);
        char text[64];
        if (name != last) {
            if (count++) data += "\n\n";
            const bool own = bin.kernel.variant == Variant::full && bin.kernel.width != 16;
            own_widths += own;
            names += " \"" + name + '"', last = name;
            styles += ' ' + std::to_string(style(bin, own ? own_widths : 0));
        } else if (bin.from != end) {
            // Between two bins with an error those without one have results as good as exact, where all are known.
            if (profile.how.starts_with("All inputs")) std::snprintf(text, sizeof text, "%.6g 0\n%.6g 0\n", axis.place(end), axis.place(bin.from));
            else std::snprintf(text, sizeof text, "\n");
            data += text;
        }
        end = bin.to;
        least = std::min(least, axis.place(bin.from)), most = std::max(most, axis.place(bin.to));
        if (bin.at.empty()) continue;
        largest = std::max(largest, bin.ulp);
        std::snprintf(text, sizeof text, "%.6g %.4g\n", (axis.place(bin.from) + axis.place(bin.to)) / 2, bin.ulp);
        data += text;
    }
    const double allowed = std::max(f.allowed, 0.0);
    const bool loglike = largest > 20 || allowed > 6 * f.full.ulp;
    const double above = std::max({largest, allowed, f.proved});
    const bool several = f.shape.args.size() > 1;
    char numbers[160];
    std::snprintf(numbers, sizeof numbers, "loglike = %d\ntop = %.4g\nallowed = %g\nproved = %.5g\n", loglike,
                  loglike ? 3 * above : 1.1 * above, allowed, f.proved);
    char ends[80];
    std::snprintf(ends, sizeof ends, "least = %.6g\nmost = %.6g\n", least, most);
    return "$data << EOD\n" + data + "EOD\ncount = " + std::to_string(count) + "\nnames = '" + names + "'\nstyles = '" + styles +
           "'\ntitle_of_plot = '" + f.base + ": " + f.formula + "'\nlabel_of_x = '" + (several ? "the first argument" : "x") +
           axis.label(least, most) + "'\n" + ends + axis.marks(least, most) + numbers;
}

}  // namespace tarn
