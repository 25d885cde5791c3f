// Writes down a kernel's fast path as JSON, for proofs.
//   tarn-trace BASE WIDTH
//   tarn-trace --reciprocals     for each integer R the least and the largest 1/m, m a float from 2^-10 to 2^-9, for
//                                which this processor's estimate of 1/m rounds to R
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "frame/exports.hpp"

namespace {

void reciprocals() {
    float least[1025], largest[1025];
    for (int R = 0; R <= 1024; R++) least[R] = 1, largest[R] = 0;
    for (std::uint32_t i = 0; i < 1u << 23; i++) {
        const float m = tarn::f32(0x3A800000 | i);
        const int R = static_cast<int>(std::nearbyint(_mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(m)))));
        least[R] = std::min(least[R], m);
        largest[R] = std::max(largest[R], m);
    }
    for (int R = 0; R <= 1024; R++)
        if (largest[R] > 0) std::printf("%d %a %a\n", R, least[R], largest[R]);
}

}  // namespace

int main(int argc, char** argv) {
    using namespace tarn;
    if (argc == 2 && !std::strcmp(argv[1], "--reciprocals")) return reciprocals(), 0;
    if (argc != 3) return std::fputs("usage: tarn-trace BASE WIDTH, or --reciprocals\n", stderr), 2;
    for (const TracedKernel& kernel : traced_kernels) {
        if (std::strcmp(kernel.base, argv[1]) || kernel.width != std::atoi(argv[2])) continue;
        kernel.write_down();
        std::puts("{\"operations\": [");
        const char* separator = "";
        for (const TracedOperation& o : trace.operations) {
            std::printf("%s{\"name\": \"%s\", \"lane\": \"%s\", \"operands\": [", separator, o.name.c_str(),
                        o.lane.c_str());
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
    return std::fprintf(stderr, "tarn-trace: no kernel of %s at width %s can be written down\n", argv[1], argv[2]), 2;
}
