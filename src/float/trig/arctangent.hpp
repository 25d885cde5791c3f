// arctan(t)/t on [0, 1], in radians and in half turns: even polynomials of degree 16 (native: 8), and
// a quarter and half of a turn in the same unit.
#pragma once

#include "frame/simd.hpp"

namespace tarn::singles::arctangent {

constexpr float one = 1.0f;

// 0 <= t <= 1; fit not recorded.
namespace radians {
struct Full {
    static constexpr float quarter = f32(0x3FC90FDB);    // 1.5707963705062866 = pi/2
    static constexpr float half_turn = f32(0x40490FDB);  // 3.1415927410125732 = pi

    static constexpr float b8 = f32(0x3B3AC537);  // 0.002849889686331153
    static constexpr float b7 = f32(0xBC83A25C);  // -0.016068629920482635
    static constexpr float b6 = f32(0x3D2EDD4E);  // 0.04269152134656906
    static constexpr float b5 = f32(0xBD99B01E);  // -0.07504294812679291
    static constexpr float b4 = f32(0x3DD9ED24);  // 0.10640934109687805
    static constexpr float b3 = f32(0xBE117200);  // -0.14203643798828125
    static constexpr float b2 = f32(0x3E4CB974);  // 0.1999261975288391
    static constexpr float b1 = f32(0xBEAAAA53);  // -0.3333307206630707

    template <class V> static TARN_INLINE V over_t(V t) {
        const V w = t * t, w2 = w * w;
        const V even = horner(w2, b8, b6, b4, b2, one);
        const V odd = horner(w2, b7, b5, b3, b1) * w;
        return even + odd;
    }
};
struct Native : Full {
    static constexpr float b4 = f32(0x3CCB7DDB);  // 0.024840286001563072
    static constexpr float b3 = f32(0xBDC0B66D);  // -0.09409794956445694
    static constexpr float b2 = f32(0x3E3F4C37);  // 0.18681417405605316
    static constexpr float b1 = f32(0xBEAA0D0A);  // -0.3321307301521301

    template <class V> static TARN_INLINE V over_t(V t) { return horner(t * t, b4, b3, b2, b1, one); }
};
}  // namespace radians

namespace half_turns {
struct Full {
    static constexpr float quarter = 0.5f;
    static constexpr float half_turn = 1.0f;

    static constexpr float g8 = f32(0x3A62DBF5);  // 0.0008653991972096264
    static constexpr float g7 = f32(0xBBA26EDA);  // -0.004957062192261219
    static constexpr float g6 = f32(0x3C5AB246);  // 0.013348167762160301
    static constexpr float g5 = f32(0xBCC21EBE);  // -0.023696299642324448
    static constexpr float g4 = f32(0x3D0A6574);  // 0.03378815948963165
    static constexpr float g3 = f32(0xBD391B64);  // -0.045192137360572815
    static constexpr float g2 = f32(0x3D8253BA);  // 0.06363625824451447
    static constexpr float g1 = f32(0xBDD94C33);  // -0.1061023697257042
    static constexpr float g0 = f32(0x3EA2F983);  // 0.31830987334251404 = 1/pi

    template <class V> static TARN_INLINE V over_t(V t) { return horner(t * t, g8, g7, g6, g5, g4, g3, g2, g1, g0); }
};
struct Native : Full {
    static constexpr float g4 = f32(0x3C018BFA);  // 0.007906908169388771
    static constexpr float g3 = f32(0xBCF55E8A);  // -0.029952306300401688
    static constexpr float g2 = f32(0x3D73915D);  // 0.05946480110287666
    static constexpr float g1 = f32(0xBDD883FC);  // -0.10572049021720886

    template <class V> static TARN_INLINE V over_t(V t) { return horner(t * t, g4, g3, g2, g1, g0); }
};
}  // namespace half_turns

}  // namespace tarn::singles::arctangent
