// The tables of times, from the data that lie beside the page.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "exports/outputs.hpp"
#include "exports/text.hpp"
#include "figures/times.hpp"

namespace tarn {

int speed(const char* file) {
    const auto data = std::filesystem::path(file).parent_path() / "data";
    std::string conditions;
    std::ifstream in(data / "speed.txt");
    if (!std::getline(in, conditions))
        return std::fprintf(stderr, "tarn-exports: cannot read %s\n", (data / "speed.txt").c_str()), 2;
    try {
        return renewed(file, "times", speed_page(Times::read(data / "speed.tsv"), conditions));
    } catch (const std::runtime_error& error) {
        return std::fprintf(stderr, "tarn-exports: %s\n", error.what()), 2;
    }
}

}  // namespace tarn
