// Tables of the exponentials.
#include "tables/tables.hpp"

#include <bit>
#include <map>

namespace tarn::tables {
namespace {

std::uint32_t pattern(float x) { return std::bit_cast<std::uint32_t>(x); }

// A double and what it leaves, relative to it.
Row relative_pair(const Real& v) {
    const double hi = v.nearest();
    return {hi, ((v - Real(hi)) / Real(hi)).nearest()};
}

// Seven rows stand one unit below the rule.
float quadratic_row(int j) {
    static const std::map<int, std::uint32_t> below = {{12, 0x3E8C1100}, {20, 0x3E98BE56}, {29, 0x3EA861BC},
                                                       {30, 0x3EAA3720}, {52, 0x3ED8030E}, {58, 0x3EE683DB},
                                                       {60, 0x3EEB900C}};
    if (const auto row = below.find(j); row != below.end()) return std::bit_cast<float>(row->second);
    return (exp2_part(j, 64) * Real::ln2() * Real::ln2() / Real(2)).nearest_float();
}

Row expm1_pair(int j) {
    const Real v = exp2_part(j, 64);
    const std::uint32_t head = pattern(v.float_toward_zero()) & 0x007FE000;
    const Real tail = v - (Real(1) + Real(head) / Real(0x1p23));
    return {head, pattern(tail.nearest_float())};
}

const Register exp_tables({
    {"exp2_pairs", "row j of 64: hi = 2^(j/64) rounded to nearest, lo = (2^(j/64) - hi)/hi.",
     each_row(64, [](int j) { return relative_pair(exp2_part(j, 64)); })},
    {"exp2_256ths", "row j of 256: 2^(j/256) rounded to nearest.",
     each_row(256, [](int j) { return Row{exp2_part(j, 256).nearest()}; })},
    {"exp2f_quadratic",
     "row j of 64: 2^(j/64) (ln 2)^2 / 2 rounded to nearest, the leading coefficient of 2^(j/64 + r); rows 12, 20, "
     "29, 30, 52, 58 and 60 are one unit lower, part of the fit.",
     each_row(64, [](int j) { return Row{quadratic_row(j)}; })},
    {"exp2f_512ths", "row j of 512: 2^(j/512) rounded to nearest.",
     each_row(512, [](int j) { return Row{exp2_part(j, 512).nearest_float()}; })},
    {"expm1f_pairs",
     "row j of 64: the fraction field of 2^(j/64) cut to ten bits, and the pattern of what the cut leaves.",
     each_row(64, expm1_pair)},
    {"expm1f_native_heads", "row j of 32: the fraction field of 2^(j/32) rounded to nearest.",
     each_row(32, [](int j) { return Row{pattern(exp2_part(j, 32).nearest_float()) & 0x007FFFFF}; })},
});

}  // namespace
}  // namespace tarn::tables
