#include "ulp/plot.hpp"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <sstream>

namespace tarn::ulp {
namespace {

// The first argument as it is drawn: by value where that shows all of it, else in the order of its patterns, which
// is logarithmic to either side of zero.
class Axis {
public:
    Axis(Lane type, const Range& range) : type_(type), range_(range) {
        const double low = value(range.low), high = value(range.high);
        const double near = std::min(std::fabs(low), std::fabs(high)), far = std::max(std::fabs(low), std::fabs(high));
        by_value_ = !is_float(type) || (low < 0) != (high < 0) || near == 0 ? far <= 1e4 : far <= 1e3 * near;
    }

    double place(std::uint64_t pattern) const {
        if (by_value_) return value_of(type_, pattern);
        return static_cast<double>(order_of(type_, pattern) - range_.low);
    }
    double place_of_order(std::uint64_t order) const { return place(ordered(type_, order)); }

    // gnuplot's own marks by value; else zero and powers of ten, a dozen of them.
    std::string marks() const {
        std::ostringstream text;
        text.precision(17);
        text << "set xrange [" << place_of_order(range_.low) << ':' << place_of_order(range_.high) << "]\n";
        if (by_value_) return text.str() + "set xlabel 'x'\nset format x '%.10g'\n";
        text << "set xlabel 'x, logarithmic to either side of 0'\nset xtics (";
        std::string comma;
        std::vector<double> marked;
        const auto mark = [&](double v, const std::string& label) {
            const std::uint64_t order = order_of(type_, pattern_of(type_, v));
            if (!range_.has(order)) return;
            // The subnormal numbers leave no room beside the zero.
            for (const double other : marked)
                if (std::fabs(place_of_order(order) - other) < 0.03 * place_of_order(range_.high)) return;
            marked.push_back(place_of_order(order));
            text << comma << '\'' << label << "' " << place_of_order(order);
            comma = ", ";
        };
        const int least = type_ == Lane::f32 ? -37 : -307, most = type_ == Lane::f32 ? 38 : 308;
        const auto decades = [&](int step) {
            std::vector<int> in;
            for (int k = least / step * step; k <= most; k += step)
                for (const double v : {std::pow(10, k), -std::pow(10, k)})
                    if (range_.has(order_of(type_, pattern_of(type_, v)))) in.push_back(k);
            return in;
        };
        int step = 1;
        for (const int s : {2, 5, 10, 20, 50, 100})
            if (decades(step).size() > 16) step = s;
        mark(0, "0");
        for (const int k : decades(step))
            for (const char* sign : {"", "-"}) {
                const double v = std::pow(10, k);
                mark(*sign ? -v : v, sign + (k == 0 ? std::string("1") : "10^{" + std::to_string(k) + "}"));
            }
        return text.str() + ")\n";
    }

private:
    double value(std::uint64_t order) const { return value_of(type_, ordered(type_, order)); }

    Lane type_;
    Range range_;
    bool by_value_;
};

std::string quoted(const std::string& text) {
    std::string out = "'";
    for (const char c : text) out += c == '\'' ? std::string("''") : std::string(1, c);
    return out + "'";
}

}  // namespace

void expect_plot(const std::string& path) {
    if (!path.ends_with(".svg") && !path.ends_with(".png")) throw cli::Refused("a plot is a .svg or .png file");
    const bool present = std::filesystem::exists(path);
    if (!std::ofstream(path, std::ios::app)) throw cli::Refused("cannot write " + path);
    if (!present) std::filesystem::remove(path);
    if (std::system("gnuplot --version >/dev/null 2>&1") != 0) throw cli::Refused("a plot needs gnuplot, which cannot be started");
}

void plot(const std::string& path, const Sweep& sweep, const Log& log) {
    const Function& function = sweep.target.function;
    const Axis axis(sweep.target.shape().args[0], sweep.target.ranges[0]);
    // What gnuplot cannot write to its file would come out on the terminal.
    FILE* gnuplot = popen("gnuplot >/dev/null", "w");
    if (!gnuplot) throw cli::Refused("gnuplot cannot be started");
    const bool svg = path.ends_with(".svg");
    const double allowed = function.variant() == Variant::full ? function.family().allowed == 0 ? 0.5 : function.family().allowed
                           : function.variant() == Variant::half ? 8192 : left_open;
    std::fprintf(gnuplot, "set terminal %s size 1200,500 %s\nset output %s\nset title %s noenhanced\n",
                 svg ? "svg" : "pngcairo", svg ? "background 'white'" : "", quoted(path).c_str(), quoted(function.name()).c_str());
    std::fprintf(gnuplot, "set ylabel 'worst error in ulp'\nset grid\nset key outside top center horizontal\n%s", axis.marks().c_str());
    std::fprintf(gnuplot, "set yrange [0:%g]\n", 1.08 * std::max({allowed, std::isfinite(log.worst().ulp) ? log.worst().ulp : 0, 1e-3}));
    std::fputs("plot '-' with points pointtype 7 pointsize 0.4 title 'worst of a slice'", gnuplot);
    if (allowed != left_open)
        std::fprintf(gnuplot, ", %g with lines linewidth 2 linecolor 'red' title 'OpenCL allows %g'", allowed, allowed);
    std::fputs("\n", gnuplot);
    for (const auto& [block, b] : log.done)
        if (!b.at.empty() && std::isfinite(b.ulp)) std::fprintf(gnuplot, "%.17g %g\n", axis.place(b.at[0]), b.ulp);
    std::fputs("e\n", gnuplot);
    if (pclose(gnuplot) != 0) throw cli::Refused("gnuplot could not draw " + path);
}

}  // namespace tarn::ulp
