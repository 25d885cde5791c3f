// How exports, their types and what is known of them are written, for every text made from the table of families.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "families/families.hpp"

namespace tarn {

// C's names: of a lane's type, its stem in the names of vectors, a vector, a result.
const char* c_type(Lane t);
const char* stem(Lane t);
std::string vector_type(Lane t, int width);
std::string result_type(const Shape& s, int width);

// A pointer is written through; some read the rounding mode or the x87 control word: the others depend on their
// arguments alone.
bool is_pure(const Family& f);

// Where OpenCL allows no error; mad and madf round twice, and it says nothing of them.
bool rounds_once(const Family& f);

std::string ulps(double u);
// A proved bound, which is not rounded down.
std::string proved_text(double bound);
// "a", "a and b", "a, b and c".
std::string listed(const std::vector<std::string>& words);
std::string listed(const std::vector<int>& numbers);
std::string widths_text(const std::vector<int>& numbers);
// A form with a kernel of its own that has errors; what OpenCL allows it is in brackets where it exceeds that.
struct FormErrors {
    std::string form, allowed;
    const Worst* worst;
    double proved;
};
std::vector<FormErrors> errors_of_forms(const Family& f);
// An argument for people: a pattern as the number it is.
std::string number(Lane type, std::uint64_t pattern);

// What is said of a family: of the module's calls, at whose widths kernels may differ, or of the elements of arrays,
// which width 16's kernel computes one and all.
enum class Of { calls, elements };

// Where a result depends on more than its own lane, or surprises: a sentence each.
std::vector<std::string> exceptions(const Family& f, Of of = Of::calls);
std::string error_line(const Family& f, Of of = Of::calls);
// Formula, domain, special values, error and exceptions.
std::string description(const Family& f, Of of = Of::calls);

// A page with the text between its marks of that name renewed, on standard output. The exit status.
int renewed(const char* file, const std::string& what, const std::string& text);

// The version as macros, the same in every header.
void print_version();
// What heads a family's group, where that is another than the last one's.
void print_group(const Family& f, std::string& group);
// As a C comment, in lines of at most `limit` characters.
void print_comment(const std::string& text, std::size_t limit = 108);

// The types of what the functions give that return sine and cosine.
void print_sincos_types();

// A function's name without its precision: expf and exp are exp.
std::string name_of_both(const Family& f);

}  // namespace tarn
