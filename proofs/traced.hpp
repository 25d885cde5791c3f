// A stand-in for a vector that writes down what is done with it. A kernel is a template over its vector, so that its
// own text, run on this one, gives the operations a proof is about: in their order, with their constants and tables.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "frame/vectors.hpp"

namespace tarn {

// One operation: its name, the lane of its result ("f64", "i32", ...), and what it takes: earlier operations by
// number, or what a constant, a shift or a table has as text.
struct TracedOperation {
    std::string name, lane;
    std::vector<int> operands;
    std::string text;
};
struct TracedTable {
    const void* at;
    std::size_t columns;
    std::vector<std::string> entries;
};

struct Trace {
    std::vector<TracedOperation> operations;
    std::vector<TracedTable> tables;
};
inline Trace trace;

template <class Lane> constexpr const char* lane_name =
    std::is_same_v<Lane, float> ? "f32" : std::is_same_v<Lane, double> ? "f64" : sizeof(Lane) == 4
    ? (std::is_signed_v<Lane> ? "i32" : "u32") : (std::is_signed_v<Lane> ? "i64" : "u64");

template <class Lane> std::string pattern(Lane lane) {
    using Word = std::conditional_t<sizeof(Lane) == 4, std::uint32_t, std::uint64_t>;
    return std::to_string(__builtin_bit_cast(Word, lane));
}

// Of no vector's size, so that what follows from a type's size leads from one of these to another.
template <class Lane> class Traced {
public:
    int number;

    Traced() : Traced(Lane{}) {}
    // As many lanes as a vector of this size would have, all the same.
    template <class... Same> Traced(Lane lane, Same...) : number(record("constant", {}, pattern(lane))) {}
    // The same bits as other lanes.
    template <class Other> explicit Traced(Traced<Other> v) : number(v.number) {
        if (sizeof(Other) != sizeof(Lane)) number = record("words", {v.number});
        else if (!std::is_same_v<Other, Lane>) number = record("bits", {v.number});
    }

    static Traced of(const char* name, std::vector<int> operands, std::string text = {}) {
        Traced t(Unmade{});
        t.number = record(name, std::move(operands), std::move(text));
        return t;
    }

    Lane operator[](int) const;  // for the type of a lane

private:
    struct Unmade {};
    explicit Traced(Unmade) {}
    static int record(const char* name, std::vector<int> operands, std::string text = {}) {
        trace.operations.push_back({name, lane_name<Lane>, std::move(operands), std::move(text)});
        return int(trace.operations.size()) - 1;
    }
    char as_large_as_no_vector[20] = {};
};

template <class Lane> struct VectorOfBytes<Lane, sizeof(Traced<double>)> { using type = Traced<Lane>; };
template <class Lane> inline constexpr bool stands_for_vector<Traced<Lane>> = true;

// The language's operators, between two of these or one and a lane.
template <class Lane> using TracedMask = Traced<std::conditional_t<sizeof(Lane) == 4, std::int32_t, std::int64_t>>;
#define TARN_TRACED_OPERATOR(sign, name, Result)                                                                      \
    template <class L> Result<L> operator sign(Traced<L> a, Traced<L> b) {                                             \
        return Result<L>::of(name, {a.number, b.number});                                                              \
    }                                                                                                                  \
    template <class L> Result<L> operator sign(Traced<L> a, std::type_identity_t<L> b) { return a sign Traced<L>(b); } \
    template <class L> Result<L> operator sign(std::type_identity_t<L> a, Traced<L> b) { return Traced<L>(a) sign b; }
TARN_TRACED_OPERATOR(+, "add", Traced)
TARN_TRACED_OPERATOR(-, "subtract", Traced)
TARN_TRACED_OPERATOR(*, "multiply", Traced)
TARN_TRACED_OPERATOR(/, "divide", Traced)
TARN_TRACED_OPERATOR(&, "and", Traced)
TARN_TRACED_OPERATOR(|, "or", Traced)
TARN_TRACED_OPERATOR(^, "xor", Traced)
TARN_TRACED_OPERATOR(<, "less", TracedMask)
TARN_TRACED_OPERATOR(<=, "less_or_equal", TracedMask)
TARN_TRACED_OPERATOR(>, "greater", TracedMask)
TARN_TRACED_OPERATOR(>=, "greater_or_equal", TracedMask)
TARN_TRACED_OPERATOR(==, "equal", TracedMask)
TARN_TRACED_OPERATOR(!=, "unequal", TracedMask)
#undef TARN_TRACED_OPERATOR
template <class L> Traced<L> operator<<(Traced<L> v, int count) {
    return Traced<L>::of("shift_left", {v.number}, std::to_string(count));
}
template <class L> Traced<L> operator>>(Traced<L> v, int count) {
    return Traced<L>::of("shift_right", {v.number}, std::to_string(count));
}
template <class L> Traced<L> operator~(Traced<L> v) { return Traced<L>::of("not", {v.number}); }
template <class L> Traced<L> operator-(Traced<L> v) { return Traced<L>::of("negate", {v.number}); }

// What simd128.hpp has for vectors.
template <class M, class L> Traced<L> blended(Traced<M> mask, Traced<L> yes, Traced<L> no) {
    return Traced<L>::of("select", {mask.number, yes.number, no.number});
}
template <class L> Traced<L> smaller(Traced<L> x, Traced<L> y) {
    return Traced<L>::of("smaller", {x.number, y.number});
}
template <class L> Traced<L> larger(Traced<L> x, Traced<L> y) { return Traced<L>::of("larger", {x.number, y.number}); }
template <Rounding mode, class L> Traced<L> round(Traced<L> x) {
    return Traced<L>::of("round", {x.number}, std::to_string(static_cast<int>(mode)));
}
template <class L> Traced<L> sqrt(Traced<L> x) { return Traced<L>::of("sqrt", {x.number}); }
template <class L> Traced<L> opaque(Traced<L> x) { return x; }

inline Traced<double> widen_low(Traced<float> x) { return Traced<double>::of("convert", {x.number}); }
inline Traced<double> widen_high(Traced<float> x) { return widen_low(x); }
inline Traced<float> narrow(Traced<double> x) { return Traced<float>::of("convert", {x.number}); }
inline Traced<float> narrow(Traced<double> low, Traced<double>) { return narrow(low); }
inline Traced<double> to_f64(Traced<std::int32_t> v) { return Traced<double>::of("convert", {v.number}); }
inline Traced<double> to_f64_high(Traced<std::int32_t> v) { return to_f64(v); }
inline Traced<float> to_f32(Traced<std::int32_t> v) { return Traced<float>::of("convert", {v.number}); }
inline Traced<std::int64_t> to_i64(Traced<std::int32_t> v) { return Traced<std::int64_t>::of("convert", {v.number}); }
inline Traced<std::int32_t> high_words(Traced<std::int64_t> v) {
    return Traced<std::int32_t>::of("high_word", {v.number});
}
inline Traced<std::int32_t> low_words(Traced<std::int64_t> v) {
    return Traced<std::int32_t>::of("low_word", {v.number});
}
inline Traced<std::int32_t> upper_words(Traced<std::int64_t> v, Traced<std::int64_t>) { return high_words(v); }
inline Traced<std::int32_t> lower_words(Traced<std::int64_t> v, Traced<std::int64_t>) { return low_words(v); }
inline Traced<std::int64_t> widen_unsigned(Traced<std::int32_t> v) {
    return Traced<std::int64_t>::of("widen_unsigned", {v.number});
}
inline Traced<float> reciprocal_estimate(Traced<float> x) {
    return Traced<float>::of("reciprocal_estimate", {x.number});
}

// Tables come with their entries, row after row.
template <class Entry> int traced_table(const Entry* first, std::size_t entries, std::size_t columns) {
    for (std::size_t t = 0; t < trace.tables.size(); t++)
        if (trace.tables[t].at == first) return int(t);
    TracedTable table{first, columns, {}};
    for (std::size_t i = 0; i < entries; i++) table.entries.push_back(pattern(first[i]));
    trace.tables.push_back(std::move(table));
    return int(trace.tables.size()) - 1;
}
template <class Result, class Entry, class Index>
Traced<Result> traced_entry(const Entry* first, std::size_t entries, std::size_t columns, Traced<Index> row,
                            int column) {
    const int table = traced_table(first, entries, columns);
    return Traced<Result>::of("gather", {row.number}, std::to_string(table) + ' ' + std::to_string(column));
}
template <class Entry> struct Gathered { using Lane = std::make_signed_t<Entry>; };
template <> struct Gathered<double> { using Lane = double; };
template <> struct Gathered<float> { using Lane = float; };
template <class Entry, std::size_t rows, class Index> auto gather(const Entry (&table)[rows], Traced<Index> row) {
    return traced_entry<typename Gathered<Entry>::Lane>(table, rows, 1, row, 0);
}
template <class Entry, std::size_t rows>
auto gather_low(const Entry (&table)[rows], Traced<std::int32_t> row) { return gather(table, row); }
template <class Entry, std::size_t rows>
auto gather_high(const Entry (&table)[rows], Traced<std::int32_t> row) { return gather(table, row); }
template <int column = 0, class Entry, std::size_t rows, std::size_t columns>
Columns2<Traced<double>> gather_columns(const Entry (&table)[rows][columns], Traced<std::int64_t> row) {
    const auto at = [&](int c) { return traced_entry<double>(&table[0][0], rows * columns, columns, row, c); };
    const auto first = at(column);
    return {first, at(column + 1)};
}

}  // namespace tarn
