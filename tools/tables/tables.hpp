// The generated tables: each with its rule, made from it in high precision.
#pragma once

#include <cmath>
#include <cstdint>
#include <functional>
#include <string>
#include <variant>
#include <vector>

#include "common/real.hpp"

namespace tarn::tables {

using Cell = std::variant<double, float, std::uint32_t, std::uint64_t>;
using Row = std::vector<Cell>;

struct Table {
    std::string name;  // of the array, and of src/tables/<name>.inc
    std::string rule;  // what a row holds, as the comment above it says
    std::function<std::vector<Row>()> rows;
};

// A file of generators declares one of these for its tables.
struct Register {
    explicit Register(std::vector<Table> tables);
};
const std::vector<Table>& all();

// `count` rows of one or more cells from the row's number.
inline std::function<std::vector<Row>()> each_row(int count, std::function<Row(int)> make) {
    return [=] {
        std::vector<Row> rows;
        for (int j = 0; j < count; j++) rows.push_back(make(j));
        return rows;
    };
}

// v rounded to a multiple of 2^exponent.
inline double on_grid(const Real& v, int exponent) {
    const double unit = std::ldexp(1.0, exponent);
    return floor(v / Real(unit) + Real(0.5)).nearest() * unit;
}

// 2^(j/n).
inline Real exp2_part(int j, int n) { return exp2(Real(j) / Real(n)); }

}  // namespace tarn::tables
