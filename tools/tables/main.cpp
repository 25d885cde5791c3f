// Makes the library's tables from their rules.
//   tarn-tables DIR           writes DIR/<name>.inc for every table
//   tarn-tables --check DIR   compares them with what is there; exit status 1 where one differs
#include "tables/tables.hpp"

#include <CLI/CLI.hpp>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

namespace tarn::tables {
namespace {

std::vector<Table>& registered() {
    static std::vector<Table> tables;
    return tables;
}

std::string formatted(const char* format, auto value) {
    char text[64];
    std::snprintf(text, sizeof text, format, value);
    return text;
}

std::string literal(const Cell& cell) {
    if (const auto* d = std::get_if<double>(&cell)) return formatted("%a", *d);
    if (const auto* f = std::get_if<float>(&cell)) return formatted("%af", static_cast<double>(*f));
    if (const auto* w = std::get_if<std::uint32_t>(&cell)) return formatted("0x%08x", *w);
    return formatted("0x%016llx", static_cast<unsigned long long>(std::get<std::uint64_t>(cell)));
}

std::string file_text(const Table& table) {
    static const char* const types[] = {"double", "float", "std::uint32_t", "std::uint64_t"};
    std::ostringstream out;
    std::istringstream words(table.name + ", " + table.rule + " Made by tarn-tables.");
    std::string line = "//", word;
    while (words >> word) {
        if (line.size() + 1 + word.size() > 100) out << line << '\n', line = "//";
        line += ' ' + word;
    }
    out << line << '\n';

    const auto rows = table.rows();
    const std::size_t columns = rows.front().size();
    out << "alignas(64) inline constexpr " << types[rows.front().front().index()] << ' ' << table.name << '['
        << rows.size() << ']';
    if (columns > 1) out << '[' << columns << ']';
    out << " = {\n";
    line = "   ";
    for (const auto& row : rows) {
        std::string text = columns > 1 ? " {" : " ";
        for (std::size_t c = 0; c < columns; c++) text += (c ? ", " : "") + literal(row[c]);
        text += columns > 1 ? "}," : ",";
        if (line.size() + text.size() > 112 && line.size() > 3) out << line << '\n', line = "   ";
        line += text;
    }
    out << line << "\n};\n";
    return out.str();
}

}  // namespace

Register::Register(std::vector<Table> tables) {
    for (auto& table : tables) registered().push_back(std::move(table));
}
const std::vector<Table>& all() { return registered(); }

}  // namespace tarn::tables

int main(int argc, char** argv) {
    using namespace tarn::tables;
    CLI::App app{"Makes the library's tables from their rules, in high precision."};
    std::string directory;
    bool check = false;
    app.add_option("DIR", directory, "where the .inc files are")->required()->check(CLI::ExistingDirectory);
    app.add_flag("--check", check, "compare instead of writing");
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() == 0) return app.exit(error);
        std::cerr << "tarn-tables: " << error.what() << '\n';
        return 2;
    }

    int differing = 0;
    std::size_t known = 0;
    for (const Table& table : all()) {
        const auto path = std::filesystem::path(directory) / (table.name + ".inc");
        const std::string text = file_text(table);
        std::ifstream in(path);
        const std::string present{std::istreambuf_iterator<char>(in), {}};
        known++;
        if (present == text) continue;
        if (check) {
            std::cerr << path.string() << " differs from its rule\n";
            differing++;
            continue;
        }
        std::ofstream(path) << text;
        std::cout << "wrote " << path.string() << '\n';
    }
    if (check)
        for (const auto& entry : std::filesystem::directory_iterator(directory)) {
            bool has_rule = false;
            for (const Table& table : all()) has_rule |= entry.path().filename() == table.name + ".inc";
            if (!has_rule) std::cerr << entry.path().string() << " has no rule\n", differing++;
        }
    std::cout << known << " tables, " << differing << " differing\n";
    return differing ? 1 : 0;
}
