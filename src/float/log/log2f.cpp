// log2 x = k + p(r) with x = 2^k (1 + r), 1 + r in [2/3, 4/3): p of degree 9 without constant term, so
// that powers of two are exact; native and half of degree 5. No table.
//
// Worst error of log2f: 2.612 ulp at 1.33369315; native and half 893.5.
#include "callout/callouts.hpp"
#include "float/log/two_thirds.hpp"
#include "frame/exports.hpp"

namespace tarn::singles {
namespace {

struct Log2f : Kernel<float(float)> {
    static constexpr auto callout = callout::log2f;

    // |r| <= 1/3; fit not recorded.
    static constexpr float p[9] = {
        f32(0x3FB8AA3B),  // 1.4426950216293335
        f32(0xBF38AA2B),  // -0.7213465571403503
        f32(0x3EF637C0),  // 0.4808940887451172
        f32(0xBEB8B969),  // -0.36078956723213196
        f32(0x3E93DD07),  // 0.28879567980766296
        f32(0xBE727824),  // -0.23678642511367798
        f32(0x3E4D660B),  // 0.20058457553386688
        f32(0xBE638E14),  // -0.22222167253494263
        f32(0x3E554012),  // 0.2082522213459015
    };

    template <class V> static TARN_INLINE auto fast(V x) {
        const auto [exponent, r] = split_at_two_thirds(x);
        return Flagged{degree_9(r, p) + to_f32(exponent >> 23), not_positive_normal(x)};
    }
};

struct Log2fNative : Kernel<float(float)> {
    static constexpr auto callout = callout::log2f;

    // |r| <= 1/3; fit not recorded.
    static constexpr float p5 = f32(0x3EAAE01B);  // 0.33374103903770447
    static constexpr float p4 = f32(0xBECB686C);  // -0.39728105068206787
    static constexpr float p3 = f32(0x3EF4FA41);  // 0.4784717857837677
    static constexpr float p2 = f32(0xBF38658A);  // -0.7202993631362915
    static constexpr float p1 = f32(0x3FB8AAED);  // 1.4427162408828735

    template <class V> static TARN_INLINE auto fast(V x) {
        const auto [exponent, r] = split_at_two_thirds(x);
        return Flagged{to_f32(exponent >> 23) + horner(r, p5, p4, p3, p2, p1) * r, not_positive_normal(x)};
    }
};

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(unary, log2f, full, tarn::singles::Log2f)
TARN_EXPORT(unary, log2f, native, tarn::singles::Log2fNative)
TARN_EXPORT_SAME(log2f, half, native)
