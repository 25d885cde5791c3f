// What the tools share at the command line: bad input is answered with one line and exit status 2.
#pragma once

#include <CLI/CLI.hpp>
#include <cstdio>
#include <stdexcept>
#include <string>

#include "common/module.hpp"

namespace tarn::cli {

struct Refused : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Parses and runs; the exit status of main.
template <class Body> int run(CLI::App& app, int argc, char** argv, Body body) {
    try {
        app.parse(argc, argv);
        return body();
    } catch (const CLI::Success& success) {
        return app.exit(success);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s: %s\n", app.get_name().c_str(), error.what());
        return 2;
    }
}

// The export of a name, with or without the library's prefix.
inline Function find_function(const Module& module, const std::string& name) {
    Export e;
    if (!parse_export(name, e)) throw Refused("no export is called '" + name + "'");
    const auto f = module.find(e);
    if (!f) throw Refused("the module has no '" + name + "'");
    return *f;
}

// A lane as people write it: a number, nan, inf, a hexadecimal float, or a bit pattern (0x7fc00000).
inline std::uint64_t parse_lane(Lane type, const std::string& text) {
    try {
        std::size_t used = 0;
        const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
        const bool whole_number = text.find_first_of(".pPeEnN") == std::string::npos;
        if (hexadecimal && text.find_first_of(".pP") == std::string::npos) {
            const std::uint64_t pattern = std::stoull(text, &used, 16);
            if (used == text.size() && (bytes(type) == 8 || pattern >> 32 == 0)) return pattern;
        } else if (!is_float(type)) {
            const std::uint64_t v = text.starts_with('-') ? static_cast<std::uint64_t>(std::stoll(text, &used))
                                                          : std::stoull(text, &used);
            if (used == text.size() && whole_number) return bytes(type) == 8 ? v : v & 0xffffffff;
        } else {
            // strtof and strtod round a number once and take one beyond the range as an infinity.
            char* end = nullptr;
            const std::uint64_t pattern = type == Lane::f32 ? pattern_of(type, std::strtof(text.c_str(), &end))
                                                            : pattern_of(type, std::strtod(text.c_str(), &end));
            if (!text.empty() && *end == '\0') return pattern;
        }
    } catch (const std::logic_error&) {
    }
    throw Refused("'" + text + "' is not a lane");
}

}  // namespace tarn::cli
