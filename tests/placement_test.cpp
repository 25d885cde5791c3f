// Where arguments travel: the cases that the conventions name, in the words of the pages.
#include <gtest/gtest.h>

#include "families/placement.hpp"

namespace tarn::test {
namespace {

// "result < arguments > second"
std::string placed(const std::string& name, Convention convention) {
    Export e;
    if (!parse_export(name, e)) return "no such export";
    const Shape& shape = e.family->shape;
    const Placement p = placement(shape, e.width, convention);
    std::string text = result_text(p.result, shape.result, convention) + " <";
    for (std::size_t i = 0; i < p.args.size(); i++)
        text += (i ? "; " : " ") + argument_text(p.args[i], shape.args[i], convention);
    if (p.second.where != Place::Where::nowhere) text += " > " + argument_text(p.second, shape.second, convention);
    return text;
}

TEST(Placement, WindowsFollowsTheListedCases) {
    const struct { const char *names, *text; } cases[] = {
        {"expf1 expf2 expf3 expf4 exp1 exp2 ilogbf1 ilogbf2 nanf4 nan1 cvti64tofprte2", "xmm0 < xmm0"},
        {"expf8 exp3 exp4", "xmm0-xmm1 < xmm0-xmm1"},
        {"expf16 exp8 cvtfptoi64rtesat8", "xmm0-xmm3 < xmm0-xmm3"},
        {"exp16 nan16 cvti64tofprtp16", "rcx, by reference; returned in rax < rdx, by reference"},
        {"powf1 ldexpf1 pownf2 rootnf4_native pown1 pow2", "xmm0 < xmm0; xmm1"},
        {"powf8 pow4 pow3", "xmm0-xmm1 < xmm0-xmm1; xmm2-xmm3"},
        {"pown4 ldexp3", "xmm0-xmm1 < xmm0-xmm1; xmm2"},
        {"powf16 pownf16 ldexpf16 fmodf16 pow8 pown8", "xmm0-xmm3 < xmm0-xmm3; slot 1, by reference"},
        {"pow16", "rcx, by reference; returned in rax < rdx, by reference; r8, by reference"},
        {"fmaf4 fma2 mad1", "xmm0 < xmm0; xmm1; xmm2"},
        {"fmaf8 fma4 madf8", "xmm0-xmm1 < xmm0-xmm1; xmm2-xmm3; slot 1, by reference"},
        {"fmaf16 fma8", "xmm0-xmm3 < xmm0-xmm3; slot 1, by reference; slot 3, by reference"},
        {"fma16", "rcx, by reference; returned in rax < rdx, by reference; r8, by reference; r9, by reference"},
        {"sincosf4 frexpf1 modf2", "xmm0 < xmm0 > slot 1, by reference"},
        {"frexp4 fractf8", "xmm0-xmm1 < xmm0-xmm1 > slot 1, by reference"},
        {"remquof4", "xmm0 < xmm0; xmm1 > slot 1, by reference"},
        {"remquo4", "xmm0-xmm1 < xmm0-xmm1; xmm2-xmm3 > slot 1, by reference"},
        {"lgammar8", "xmm0-xmm3 < xmm0-xmm3 > slot 1, by reference"},
        {"remquof16 remquo8", "xmm0-xmm3 < xmm0-xmm3; slot 1, by reference > slot 2, by reference"},
        {"sincos16 frexp16", "rcx, by reference; returned in rax < rdx, by reference > r8, by reference"},
        {"remquo16", "rcx, by reference; returned in rax < rdx, by reference; r8, by reference > r9, by reference"},
        // Those that no list names.
        {"sincosregf1 sincosregf4 sincosreg2", "xmm0-xmm1 < xmm0"},
        {"sincosregf8 sincosreg3", "xmm0-xmm3 < xmm0-xmm1"},
        {"sincosregf16 sincosreg8 cvtfptoi64rtesatf16", "rcx, by reference; returned in rax < xmm0-xmm3"},
        {"cvti64tofprtef16 ilogb16 cvtfp64tofp32rte16", "xmm0-xmm3 < rcx, by reference"},
        {"pown16 rootn16 ldexp16", "rcx, by reference; returned in rax < rdx, by reference; xmm0-xmm3"},
    };
    for (const auto& [names, text] : cases) {
        std::string name;
        for (const char* c = names;; c++) {
            if (*c && *c != ' ') {
                name += *c;
                continue;
            }
            EXPECT_EQ(placed(name, Convention::windows), text) << name;
            name.clear();
            if (!*c) break;
        }
    }
}

TEST(Placement, SystemVFollowsItsDocument) {
    const std::pair<const char*, const char*> cases[] = {
        {"expf1", "xmm0 < xmm0"},
        {"exp2", "xmm0 < xmm0"},
        {"expf8", "rdi, by reference; returned in rax < slots 1 to 4"},
        {"fma16", "rdi, by reference; returned in rax < slots 1 to 16; slots 17 to 32; slots 33 to 48"},
        {"ldexpf1", "xmm0 < xmm0; edi"},
        {"ldexp3", "rdi, by reference; returned in rax < slots 1 to 4; xmm0"},
        {"ilogb1", "eax < xmm0"},
        {"cvtfptoi64rtesat1", "rax < xmm0"},
        {"cvtu64tofprte1", "xmm0 < rdi"},
        {"remquof4", "xmm0 < xmm0; xmm1 > rdi, by reference"},
        {"remquo16", "rdi, by reference; returned in rax < slots 1 to 16; slots 17 to 32 > rsi, by reference"},
        {"sincosregf1", "xmm0 < xmm0"},
        {"sincosreg1", "xmm0-xmm1 < xmm0"},
        {"sincosregf2", "xmm0-xmm1 < xmm0"},
        {"sincosregf4", "rdi, by reference; returned in rax < xmm0"},
    };
    for (const auto& [name, text] : cases) EXPECT_EQ(placed(name, Convention::system_v), text) << name;
}

}  // namespace
}  // namespace tarn::test
