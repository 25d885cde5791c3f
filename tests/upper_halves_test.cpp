// No function leaves anything in the upper halves of the vector registers: a caller's instructions for 16 bytes would
// have to keep it, and take many times as long. Matters to what is compiled for x86-64-v3.
#include <cpuid.h>
#include <gtest/gtest.h>
#include <immintrin.h>

#include <algorithm>

#include "samples.hpp"

namespace tarn::test {
namespace {

// The processor says which registers are in use, if it can.
bool tells_what_is_in_use() {
    unsigned a = 0, b = 0, c = 0, d = 0;
    return __builtin_cpu_supports("avx") && __get_cpuid_count(0xD, 1, &a, &b, &c, &d) && (a & 4);
}
[[gnu::target("xsave")]] bool upper_halves_in_use() { return _xgetbv(1) & 4; }
// In assembly: a compiler that knew of them would clear them itself.
void clear_upper_halves() { __asm__ volatile("vzeroupper" ::: "memory"); }
void use_upper_halves() { __asm__ volatile("vcmptrueps %%ymm7, %%ymm7, %%ymm7" ::: "xmm7"); }

class UpperHalves : public testing::TestWithParam<Member> {
protected:
    void SetUp() override {
        if (!tells_what_is_in_use()) GTEST_SKIP() << "this processor does not tell";
        use_upper_halves();
        ASSERT_TRUE(upper_halves_in_use());
        clear_upper_halves();
        ASSERT_FALSE(upper_halves_in_use());
    }
};

// Arguments from there on.
struct Place {
    const void* of[3] = {};
    Place(const std::vector<Lanes>& args, std::size_t first) {
        for (std::size_t a = 0; a < args.size(); a++)
            of[a] = args[a].data() + first * static_cast<std::size_t>(bytes(args[a].type()));
    }
};

TEST_P(UpperHalves, AreClearAfterACall) {
    const Member& m = GetParam();
    const auto args = samples(*m.family, 64, 3);
    Lanes result(m.family->shape.result, widest), second(m.family->shape.second, widest);
    for (const int width : widths) {
        const Function f = m.at(width);
        for (std::size_t first = 0; first + widest <= args[0].size(); first += widest) {
            const Place place(args, first);
            const auto* pointers = reinterpret_cast<const std::byte* const*>(place.of);
            clear_upper_halves();
            f.batch()(f.address(), pointers, result.data(), second.data(), 1);
            ASSERT_FALSE(upper_halves_in_use()) << f.name() << '(' << lanes_text(args, first) << ", ...)";
        }
    }
}

TEST_P(UpperHalves, AreClearAfterALoop) {
    const Member& m = GetParam();
    const ArrayFunction f = library().find(*m.family, m.variant).value();
    const auto args = samples(*m.family, 64, 3);
    const std::size_t all = args[0].size();
    Lanes result(m.family->shape.result, all), second(m.family->shape.second, all);
    for (const std::size_t n : {std::size_t{1}, std::size_t{3}, std::size_t{7}, std::size_t{16}, std::size_t{33}, all})
        for (std::size_t first = 0; first + n <= all; first += std::max<std::size_t>(n, 5)) {
            const Place place(args, first);
            clear_upper_halves();
            f(n, place.of, result.data(), second.data());
            ASSERT_FALSE(upper_halves_in_use()) << f.name() << " of " << n << " from " << lanes_text(args, first);
        }
}

INSTANTIATE_TEST_SUITE_P(Module, UpperHalves, testing::ValuesIn(members()),
                         [](const auto& info) { return member_name(info); });

}  // namespace
}  // namespace tarn::test
