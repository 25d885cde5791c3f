// Tables of the hyperbolic functions.
#include <bit>
#include <map>

#include "tables/fit.hpp"
#include "tables/tables.hpp"

namespace tarn::tables {
namespace {

Real tanh_of(const Real& x) { return Real::apply(mpfr_tanh, x); }

// Where part k of the line begins: sixteen to an octave from 1/32 on.
double part_begin(int k) { return std::bit_cast<float>(0x3CF80000u + (static_cast<std::uint32_t>(k) << 19)); }

Row tanh_row(int k) {
    // Four rows are kept as they were first fitted; the rule comes within 1e-10 of them.
    static const std::map<int, std::vector<std::uint64_t>> kept = {
        {0, {0, 0x3ff00000022c70eb, 0xbed00e878cffa194, 0xbfd551766d0607a9}},
        {1, {0xbe53d60ce3e4c297, 0x3ff000024177cf5c, 0xbf1758bc94a51a25, 0xbfd53eae67e0d4f0}},
        {64, {0xbf8391acba863403, 0x3ff134d4aa477fe2, 0xbfcb7218609feafb, 0xbfb970a16cb88329}},
        {132, {0x3fefffeafe70fcfc, 0x3ec879175e3549f5, 0xbe930e36677d1813, 0x3e43d4005b42d48f}}};
    Row row;
    if (const auto found = kept.find(k); found != kept.end()) {
        for (const auto pattern : found->second) row.push_back(std::bit_cast<double>(pattern));
        return row;
    }
    if (k == 133) return {1.0, 0.0, 0.0, 0.0};
    const double widening = 1e-7;
    for (const Real& c : minimax(tanh_of, tanh_of, part_begin(k) * (1 - widening), part_begin(k + 1) * (1 + widening),
                                 {0, 1, 2, 3}))
        row.push_back(c.nearest());
    return row;
}

const Register hyperbolic_tables({
    {"tanhf_cubics",
     "row k of 134: c0 to c3 of the cubic nearest to tanh, relatively, on the part of the line that begins at the "
     "float 0x3cf80000 + (k << 19), a little widened; row 0 is for what lies below 1/32, row 133 (1, 0, 0, 0) for "
     "10 and above.",
     each_row(134, tanh_row)},
});

}  // namespace
}  // namespace tarn::tables
