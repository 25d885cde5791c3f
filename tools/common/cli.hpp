// What the tools share at the command line: bad input is answered with one line and exit status 2.
#pragma once

#include <CLI/CLI.hpp>
#include <cctype>
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
    const auto written = [](int status) {
        if (std::fflush(stdout) != 0 || std::ferror(stdout)) throw Refused("the output cannot be written");
        return status;
    };
    try {
        app.set_version_flag("--version", app.get_name() + " " TARN_VERSION);
        // A number with a minus is no option: a space before it says so.
        std::vector<std::string> args;
        for (int i = argc; --i > 0;) {
            const std::string arg = argv[i];
            const bool number = arg.size() > 1 && arg[0] == '-' && std::string(".0123456789iInN").find(arg[1]) != std::string::npos;
            args.push_back(number ? ' ' + arg : arg);
        }
        try {
            app.parse(args);
        } catch (const CLI::Success& success) {
            return written(app.exit(success));
        }
        return written(body());
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s: %s\n", app.get_name().c_str(), error.what());
        return 2;
    }
}

// The export of a name, with or without the library's prefix.
inline Function find_function(const Module& module, const std::string& name) {
    Export e;
    if (!parse_export(name, e)) {
        // The name of a family, in one of its forms or not, and what may follow it.
        for (const Variant v : {Variant::native, Variant::half, Variant::full}) {
            const std::string tail = suffix(v);
            if (!name.ends_with(tail)) continue;
            const std::string base = name.substr(0, name.size() - tail.size());
            const std::string stem = base.substr(0, base.find_last_not_of("0123456789") + 1);
            const Family* f = find_family(base) ? find_family(base) : find_family(stem);
            if (!f) break;
            if (!f->has(v)) throw Refused("'" + f->base + "' has no " + tail.substr(1) + " form");
            std::string names;
            for (const int width : widths) names += ' ' + f->base + std::to_string(width) + tail;
            throw Refused("'" + name + "' needs a width:" + names);
        }
        throw Refused("no export is called '" + name + "'");
    }
    const auto f = module.find(e);
    if (!f) throw Refused("the module has no '" + name + "'");
    return *f;
}

// A lane as people write it: a number, nan, inf, a hexadecimal float, or a bit pattern (0x7fc00000).
inline std::uint64_t parse_lane(Lane type, const std::string& argument) {
    const std::string text = argument.substr(std::min(argument.find_first_not_of(' '), argument.size()));
    try {
        std::size_t used = 0;
        const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
        const bool whole_number = text.find_first_of(".pPeEnN") == std::string::npos;
        if (hexadecimal && text.find_first_of(".pP") == std::string::npos) {
            const std::uint64_t pattern = std::stoull(text, &used, 16);
            const std::size_t digits = static_cast<std::size_t>(bytes(type)) * 2;
            if (used != text.size()) throw Refused("'" + text + "' is not a lane");
            // A floating pattern of another length is one of the other precision, or a slip.
            if (text.size() - 2 != digits && (is_float(type) || text.size() - 2 > digits))
                throw Refused("'" + text + "' is not a lane: a pattern has " + std::to_string(digits) + " hexadecimal digits here");
            return pattern;
        }
        if (!is_float(type)) {
            const std::uint64_t v = text.starts_with('-') ? static_cast<std::uint64_t>(std::stoll(text, &used))
                                                          : std::stoull(text, &used);
            const bool narrow = bytes(type) == 4, negative = text.starts_with('-');
            const bool fits = !narrow || (negative ? static_cast<std::int64_t>(v) >= INT32_MIN : v >> 32 == 0);
            if (used == text.size() && whole_number && fits) return narrow ? v & 0xffffffff : v;
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
