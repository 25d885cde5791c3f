// Writes inputs for every export and what the module gave for them: ordinary lanes, special ones among them, and every
// point at which a kernel changes its way. What a register or a block has beyond the lanes of a width is hostile.
//   write-cases FILE
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <stdexcept>
#include <utility>

#include "families/placement.hpp"
#include "raised.hpp"
#include "samples.hpp"
#include "windows/cases.h"

namespace tarn::test {
namespace {

struct Rows {
    std::vector<Lanes> args;
    std::size_t ordinary;  // the first of many
};

// Ordinary rows together, so that wide calls of them take the short way; special ones between others.
Rows rows_for(const Family& f, std::size_t width, std::mt19937_64& random) {
    constexpr std::size_t ordinary = 64, any = 64;
    const std::size_t arity = f.shape.args.size();
    std::vector<std::vector<std::uint64_t>> values;
    for (std::size_t a = 0; a < arity; a++) values.push_back(structured(f, a));
    for (auto& v : values) std::shuffle(v.begin(), v.end(), random);
    const std::size_t special = (std::max<std::size_t>(192, values[0].size()) + width - 1) / width * width;
    std::vector<std::vector<std::uint64_t>> rows(arity);
    for (std::size_t a = 0; a < arity; a++) {
        for (std::size_t i = 0; i < special; i++)
            rows[a].push_back(i < values[a].size() ? values[a][i] : values[a][random() % values[a].size()]);
        for (std::size_t i = 0; i < ordinary; i++) rows[a].push_back(random_lane(f, a, true, random));
        for (std::size_t i = 0; i < any; i++) rows[a].push_back(random_lane(f, a, i % 2 == 0, random));
        while (rows[a].size() % width != 0) rows[a].push_back(random_lane(f, a, true, random));
    }
    std::vector<Lanes> args;
    for (std::size_t a = 0; a < arity; a++) {
        args.emplace_back(f.shape.args[a], rows[a].size());
        for (std::size_t i = 0; i < rows[a].size(); i++) args[a].set(i, rows[a][i]);
    }
    return {std::move(args), special};
}

cases_place described(const Place& p) {
    const std::uint8_t where = p.where == Place::Where::vectors ? in_vectors
                             : p.where == Place::Where::integer ? in_integer
                             : p.where == Place::Where::stack   ? in_slot
                                                                : nowhere;
    return {where, static_cast<std::uint8_t>(p.first), p.by_reference, 0};
}

cases_vector described(const Place& p, Lane type, int width) {
    if (type == Lane::none) return {};
    const int lane = bytes(type);
    return {described(p), static_cast<std::uint16_t>(blocks(type, width)), static_cast<std::uint16_t>(width * lane),
            static_cast<std::uint16_t>((width == 3 ? 4 : width) * lane),
            static_cast<std::uint16_t>(is_float(type) ? lane : 0)};
}

class File {
public:
    explicit File(const char* path) : file_(std::fopen(path, "wb")) {
        if (!file_) throw std::runtime_error(std::string("cannot write ") + path);
    }
    ~File() { if (file_) std::fclose(file_); }
    void write(const void* data, std::size_t size) {
        if (std::fwrite(data, 1, size, file_) != size) throw std::runtime_error("cannot write all of it");
    }
    void close() {
        std::FILE* file = std::exchange(file_, nullptr);
        if (std::fclose(file) != 0) throw std::runtime_error("cannot write all of it");
    }

private:
    std::FILE* file_;
};

// One vector of a call, the rest of its blocks filled.
void write_vector(File& file, const Lanes& lanes, std::size_t first, int width, std::uint8_t fill) {
    std::vector<std::uint8_t> all(static_cast<std::size_t>(blocks(lanes.type(), width)) * 16, fill);
    const auto lane = static_cast<std::size_t>(bytes(lanes.type()));
    std::memcpy(all.data(), lanes.data() + first * lane, static_cast<std::size_t>(width) * lane);
    file.write(all.data(), all.size());
}

// What one call raises.
unsigned raised_by(const Function& f, const std::vector<Lanes>& args, std::size_t first) {
    std::vector<Lanes> lanes;
    for (const Lanes& arg : args) {
        lanes.emplace_back(arg.type(), static_cast<std::size_t>(f.width()));
        for (std::size_t i = 0; i < lanes.back().size(); i++) lanes.back().set(i, arg.pattern(first + i));
    }
    Lanes result, second;
    clear_raised();
    f(lanes, result, &second);
    return raised();
}

void write_export(File& file, const Function& f, std::mt19937_64& random) {
    const Shape& shape = f.family().shape;
    const auto width = static_cast<std::size_t>(f.width());
    const auto [args, ordinary] = rows_for(f.family(), width, random);
    Lanes result, second;
    f(args, result, &second);

    const Placement p = placement(shape, f.width(), Convention::windows);
    cases_export e = {};
    if (f.name().size() >= sizeof e.name) throw std::runtime_error(f.name() + " is longer than its room");
    std::strcpy(e.name, f.name().c_str());
    e.arguments = static_cast<std::uint32_t>(args.size());
    e.pair = shape.pair;
    e.calls = static_cast<std::uint32_t>(args[0].size() / width);
    e.raises_alike = f.family().base != "fma" && f.family().base != "fmaf";
    e.ordinary = static_cast<std::uint32_t>(ordinary / width);
    for (std::size_t a = 0; a < args.size(); a++) e.argument[a] = described(p.args[a], shape.args[a], f.width());
    e.result = described(p.result, shape.result, f.width());
    e.second = described(p.second, shape.second, f.width());
    file.write(&e, sizeof e);
    for (std::size_t first = 0; first < args[0].size(); first += width) {
        for (const Lanes& arg : args) write_vector(file, arg, first, f.width(), first / width % 2 ? 0xFF : 0x7F);
        write_vector(file, result, first, f.width(), 0);
        if (shape.second != Lane::none) write_vector(file, second, first, f.width(), 0);
        const std::uint32_t raised[4] = {raised_by(f, args, first)};
        file.write(raised, sizeof raised);
    }
}

void write_all(const char* path) {
    File file(path);
    const cases_header header = {cases_magic, static_cast<std::uint32_t>(members().size() * std::size(widths))};
    file.write(&header, sizeof header);
    std::mt19937_64 random(14);
    for (const Member& m : members())
        for (const int width : widths) write_export(file, m.at(width), random);
    file.close();
}

}  // namespace
}  // namespace tarn::test

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: write-cases FILE\n", stderr);
        return 2;
    }
    try {
        tarn::test::write_all(argv[1]);
    } catch (const std::exception& e) {
        std::fprintf(stderr, "write-cases: %s\n", e.what());
        return 2;
    }
}
