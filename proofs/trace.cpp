// Writes down a kernel's fast path as JSON, for proofs.
//   tarn-trace BASE WIDTH
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "frame/exports.hpp"

int main(int argc, char** argv) {
    using namespace tarn;
    if (argc != 3) return std::fputs("usage: tarn-trace BASE WIDTH\n", stderr), 2;
    for (const TracedKernel& kernel : traced_kernels) {
        if (std::strcmp(kernel.base, argv[1]) || kernel.width != std::atoi(argv[2])) continue;
        kernel.write_down();
        std::puts("{\"operations\": [");
        const char* separator = "";
        for (const TracedOperation& o : trace.operations) {
            std::printf("%s{\"name\": \"%s\", \"lane\": \"%s\", \"operands\": [", separator, o.name.c_str(), o.lane.c_str());
            for (std::size_t i = 0; i < o.operands.size(); i++) std::printf("%s%d", i ? ", " : "", o.operands[i]);
            std::printf("], \"text\": \"%s\"}", o.text.c_str());
            separator = ",\n";
        }
        std::puts("],\n\"tables\": [");
        separator = "";
        for (const TracedTable& t : trace.tables) {
            std::printf("%s{\"columns\": %zu, \"entries\": [", separator, t.columns);
            for (std::size_t i = 0; i < t.entries.size(); i++) std::printf("%s%s", i ? ", " : "", t.entries[i].c_str());
            std::printf("]}");
            separator = ",\n";
        }
        std::puts("]}");
        return 0;
    }
    return std::fprintf(stderr, "tarn-trace: no kernel of %s at width %s can be written down (of %zu)\n", argv[1], argv[2],
                        traced_kernels.size()), 2;
}
