// Measured times, as docs/data/speed.tsv keeps them, and the tables that are made of them.
//
// A line has five fields. Kind: call, of the module's functions; array, of libtarn's on arrays in the first cache;
// memory, on arrays of megabytes. Row: a family or another form of it, perhaps with ", large x". Build: plain or v3.
// What: a width of calls (w1 ... w16), array, copy, or the library beside it. Last nanoseconds an element; few/call
// alone is a ratio, of the longest time of few elements to that of one call.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "families/families.hpp"

namespace tarn {

// A row of one kind and build. What was not timed is infinite.
struct TimedRow {
    std::string name, build;
    std::map<std::string, double> times;

    const Family& family() const;
    bool large() const;  // its arguments are
    double at(const std::string& what) const;
    double best() const;                               // of all widths, or of the loop over an array
    std::pair<std::string, double> best_peer() const;  // of the row's build: 128-bit and scalar ones, or 256-bit ones
    double ahead() const { return best_peer().second / best(); }
};

class Times {
public:
    // Throws, in a line, what is wrong with the file.
    static Times read(const std::string& file);
    std::string text() const;

    void add(const std::string& kind, const std::string& row, const std::string& build, const std::string& what,
             double ns);
    // In the order in which they came; of all groups and builds where none is named.
    std::vector<TimedRow> rows(const std::string& kind, const std::string& build = {},
                               const std::string& group = {}) const;
    std::vector<std::string> groups() const;
    const TimedRow* find(const std::string& kind, const std::string& row, const std::string& build) const;

private:
    std::map<std::string, std::vector<TimedRow>> kinds_;
};

inline constexpr const char* builds[] = {"plain", "v3"};

// Null where a row is of no family.
const Family* family_of(const std::string& row);
// A group as a part of a file's name.
std::string slug(const std::string& group);
// What calls of a width are called.
std::string timed(int width);
// "-" for what is infinite.
std::string decimals(double v, int digits);
// As Markdown has names and code.
std::string code(const std::string& text);
// Filled up with spaces, the text to the left or to the right.
std::string left(const std::string& text, std::size_t width);
std::string right(const std::string& text, std::size_t width);

class GeometricMean {
public:
    void add(double ratio);
    int count() const { return count_; }
    double value() const;

private:
    double logs_ = 0;
    int count_ = 0;
};

// For a terminal: every width of the calls, and arrays of a kind.
std::string calls_text(const std::vector<TimedRow>& rows);
std::string arrays_text(const std::vector<TimedRow>& rows);
// What a page shows, group by group; conditions is its first line.
std::string speed_page(const Times& times, const std::string& conditions);

}  // namespace tarn
