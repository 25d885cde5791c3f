// Calls an export on lanes from standard input: for each argument all its patterns, 8 bytes each, then the next's.
// Writes the results' patterns so. Proofs hold what they read off a kernel to it.
//   tarn-call NAME
#include <cstdio>
#include <exception>

#include "common/module.hpp"

int main(int argc, char** argv) try {
    using namespace tarn;
    Export wanted;
    const auto function = argc == 2 && parse_export(argv[1], wanted) ? Module().find(wanted) : std::nullopt;
    if (!function || function->family().shape.second != Lane::none)
        return std::fputs("usage: tarn-call NAME, of an export with one result\n", stderr), 2;
    std::vector<std::uint64_t> words(1 << 16);
    std::size_t count = 0;
    while (const std::size_t more = std::fread(words.data() + count, 8, words.size() - count, stdin))
        if ((count += more) == words.size()) words.resize(2 * count);
    const auto& types = function->family().shape.args;
    const std::size_t lanes = count / types.size();
    std::vector<Lanes> args;
    for (std::size_t a = 0; a < types.size(); a++) {
        args.emplace_back(types[a], lanes);
        for (std::size_t i = 0; i < lanes; i++) args[a].set(i, words[a * lanes + i]);
    }
    Lanes result(function->family().shape.result, lanes);
    (*function)(args, result);
    for (std::size_t i = 0; i < lanes; i++) words[i] = result.pattern(i);
    return std::fwrite(words.data(), 8, lanes, stdout) == lanes ? 0 : 1;
} catch (const std::exception& e) {
    return std::fprintf(stderr, "tarn-call: %s\n", e.what()), 2;
}
