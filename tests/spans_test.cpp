// The overloads on spans: each calls the function on arrays of its arguments' precision, and lengths that differ are
// refused before anything is computed.
#include <gtest/gtest.h>
#include <tarn.h>

#include <cstdint>
#include <cstring>
#include <span>
#include <stdexcept>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace {

constexpr std::size_t n = 37;

template <class Lane> std::vector<Lane> argument(double from, double step) {
    std::vector<Lane> v(n);
    for (std::size_t i = 0; i < n; i++) v[i] = static_cast<Lane>(from + step * static_cast<double>(i));
    return v;
}
template <class Lane> std::vector<Lane> result() { return std::vector<Lane>(n, static_cast<Lane>(77)); }

template <class Tuple> bool same_bits(const Tuple& a, const Tuple& b) {
    const auto equal = [](const auto& x, const auto& y) {
        return x.size() == y.size() && std::memcmp(x.data(), y.data(), x.size() * sizeof x[0]) == 0;
    };
    return [&]<std::size_t... i>(std::index_sequence<i...>) {
        return (equal(std::get<i>(a), std::get<i>(b)) && ...);
    }(std::make_index_sequence<std::tuple_size_v<Tuple>>());
}

// Arguments and results in the order of the call. `on_spans` takes vectors, which are spans by themselves.
template <class OnSpans, class OnArrays, class... Lane>
void check(const std::string& name, OnSpans on_spans, OnArrays on_arrays, std::vector<Lane>... operands) {
    const auto before = std::make_tuple(operands...);
    auto by_spans = before, by_arrays = before;
    std::apply(on_spans, by_spans);
    std::apply([&](auto&... v) { on_arrays(n, v.data()...); }, by_arrays);
    EXPECT_TRUE(same_bits(by_spans, by_arrays)) << name;
    EXPECT_FALSE(same_bits(by_spans, before)) << name << " computes nothing";

    const auto refused = [&](auto which, std::size_t length) {
        auto wrong = before;
        std::get<which>(wrong).resize(length);
        const auto as_it_was = wrong;
        try {
            std::apply(on_spans, wrong);
            FAIL() << name << " takes " << length << " elements as operand " << which << " beside " << n;
        } catch (const std::invalid_argument& e) {
            EXPECT_EQ(e.what(), "tarn::" + name + ": the lengths of its spans differ");
        }
        EXPECT_TRUE(same_bits(wrong, as_it_was)) << name << " computes before it refuses";
    };
    [&]<std::size_t... i>(std::index_sequence<i...>) {
        for (const std::size_t length : {std::size_t{0}, n - 1, n + 1})
            (refused(std::integral_constant<std::size_t, i>(), length), ...);
    }(std::index_sequence_for<Lane...>());
}

TEST(Spans, OfOneArgument) {
    const auto f = argument<float>(0.1, 0.3);
    const auto d = argument<double>(0.1, 0.3);
    check("exp", [](auto& x, auto& r) { tarn::exp(x, r); }, tarn_expf, f, result<float>());
    check("exp", [](auto& x, auto& r) { tarn::exp(x, r); }, tarn_exp, d, result<double>());
    check("exp_native", [](auto& x, auto& r) { tarn::exp_native(x, r); }, tarn_expf_native, f, result<float>());
    check("sin_half", [](auto& x, auto& r) { tarn::sin_half(x, r); }, tarn_sinf_half, f, result<float>());
    check("erf", [](auto& x, auto& r) { tarn::erf(x, r); }, tarn_erff, f, result<float>());
    check("erf", [](auto& x, auto& r) { tarn::erf(x, r); }, tarn_erf, d, result<double>());
    check("ilogb", [](auto& x, auto& r) { tarn::ilogb(x, r); }, tarn_ilogbf, f, result<std::int32_t>());
    check("ilogb", [](auto& x, auto& r) { tarn::ilogb(x, r); }, tarn_ilogb, d, result<std::int32_t>());
    check("cvtfptoi32rtesat", [](auto& x, auto& r) { tarn::cvtfptoi32rtesat(x, r); }, tarn_cvtfptoi32rtesatf,
          f, result<std::int32_t>());
    check("cvtfptoi32rtesat", [](auto& x, auto& r) { tarn::cvtfptoi32rtesat(x, r); }, tarn_cvtfptoi32rtesat,
          d, result<std::int32_t>());
}

TEST(Spans, OfSeveralArguments) {
    const auto f = argument<float>(0.1, 0.3), g = argument<float>(3, -0.1), h = argument<float>(-9, 0.7);
    const auto d = argument<double>(0.1, 0.3), e = argument<double>(3, -0.1), c = argument<double>(-9, 0.7);
    const auto k = argument<std::int32_t>(-18, 1);
    check("pow", [](auto& x, auto& y, auto& r) { tarn::pow(x, y, r); }, tarn_powf, f, g, result<float>());
    check("pow", [](auto& x, auto& y, auto& r) { tarn::pow(x, y, r); }, tarn_pow, d, e, result<double>());
    check("fma", [](auto& x, auto& y, auto& z, auto& r) { tarn::fma(x, y, z, r); }, tarn_fmaf,
          f, g, h, result<float>());
    check("fma", [](auto& x, auto& y, auto& z, auto& r) { tarn::fma(x, y, z, r); }, tarn_fma,
          d, e, c, result<double>());
    check("ldexp", [](auto& x, auto& y, auto& r) { tarn::ldexp(x, y, r); }, tarn_ldexpf, f, k, result<float>());
    check("ldexp", [](auto& x, auto& y, auto& r) { tarn::ldexp(x, y, r); }, tarn_ldexp, d, k, result<double>());
}

TEST(Spans, OfTwoResults) {
    const auto f = argument<float>(0.1, 0.3), g = argument<float>(3, -0.07);
    const auto d = argument<double>(0.1, 0.3), e = argument<double>(3, -0.07);
    const auto i = result<std::int32_t>();
    check("sincos", [](auto& x, auto& s, auto& c) { tarn::sincos(x, s, c); }, tarn_sincosf,
          f, result<float>(), result<float>());
    check("sincos", [](auto& x, auto& s, auto& c) { tarn::sincos(x, s, c); }, tarn_sincos,
          d, result<double>(), result<double>());
    check("frexp", [](auto& x, auto& r, auto& s) { tarn::frexp(x, r, s); }, tarn_frexpf, f, result<float>(), i);
    check("frexp", [](auto& x, auto& r, auto& s) { tarn::frexp(x, r, s); }, tarn_frexp, d, result<double>(), i);
    check("remquo", [](auto& x, auto& y, auto& r, auto& s) { tarn::remquo(x, y, r, s); }, tarn_remquof,
          f, g, result<float>(), i);
    check("remquo", [](auto& x, auto& y, auto& r, auto& s) { tarn::remquo(x, y, r, s); }, tarn_remquo,
          d, e, result<double>(), i);
}

// An argument's own memory takes the result, and empty spans are as good as others.
TEST(Spans, InPlaceAndEmpty) {
    auto x = argument<float>(0.1, 0.3), y = result<float>();
    tarn::log(std::span<const float>(x), std::span(y));
    tarn::log(std::span<const float>(x), std::span(x));
    EXPECT_EQ(std::memcmp(x.data(), y.data(), n * sizeof(float)), 0);
    EXPECT_NO_THROW(tarn::log(std::span<const float>(), std::span<float>()));
}

}  // namespace
