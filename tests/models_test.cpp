// The module against scalar models of its kernels' written steps, bit for bit: a wrong order of operations or a lane
// that takes a neighbour's row would often stay within the errors allowed.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "models/exponentials.hpp"
#include "models/logarithms.hpp"
#include "models/sines.hpp"
#include "samples.hpp"

namespace tarn::test {
namespace {

using models::Evaluate;
using models::evaluate;

struct Model {
    std::string base;
    Variant variant;
    Evaluate steps;
    std::vector<int> at{std::begin(widths), std::end(widths)};

    const Family& family() const { return *find_family(base); }
    std::string name() const {
        return base + suffix(variant) + (at.size() == 1 ? "_width_" + std::to_string(at[0]) : "");
    }
};
void PrintTo(const Model& m, std::ostream* out) { *out << m.name(); }

std::vector<Model> all_models() {
    using enum Variant;
    using models::FullSine, models::NativeSine;
    return {
        {"pownf", full, evaluate<models::pownf>},
        {"pownf", native, evaluate<models::pownf_native>},
        {"rootnf", full, evaluate<models::rootnf>},
        {"rootnf", native, evaluate<models::rootnf_native>},
        {"powrf", full, evaluate<models::powrf>},
        {"powrf", native, evaluate<models::powrf_native>},
        {"powrf", half, evaluate<models::powrf_native>},
        {"expf", full, evaluate<models::expf>},
        {"expf", native, evaluate<models::expf_native>},
        {"expf", half, evaluate<models::expf_native>},
        {"exp2f", full, evaluate<models::exp2f>, {2, 3, 8, 16}},
        {"exp2f", full, evaluate<models::exp2f_width_4>, {4}},
        {"exp2f", full, evaluate<models::exp2f_width_1>, {1}},
        {"exp2f", native, evaluate<models::exp2f_native>},
        {"exp2f", half, evaluate<models::exp2f_native>},
        {"exp10f", full, evaluate<models::exp10f>},
        {"exp10f", native, evaluate<models::exp10f_native>},
        {"exp10f", half, evaluate<models::exp10f_native>},
        {"expm1f", full, evaluate<models::expm1f>},
        {"expm1f", native, evaluate<models::expm1f_native>},
        {"logf", full, evaluate<models::logf>},
        {"logf", native, evaluate<models::logf_native>},
        {"logf", half, evaluate<models::logf_half>},
        {"log2f", full, evaluate<models::log2f>},
        {"log2f", native, evaluate<models::log2f_native>},
        {"log2f", half, evaluate<models::log2f_native>},
        {"log10f", full, evaluate<models::log10f>},
        {"log10f", native, evaluate<models::log10f_native>},
        {"log10f", half, evaluate<models::log10f_native>},
        {"cbrtf", full, evaluate<models::cbrtf>},
        {"cbrtf", native, evaluate<models::cbrtf_native>},
        {"rcbrtf", full, evaluate<models::rcbrtf>},
        {"rcbrtf", native, evaluate<models::rcbrtf_native>},
        {"sinf", full, evaluate<models::sinf<FullSine>>},
        {"sinf", native, evaluate<models::sinf<NativeSine>>},
        {"sinf", half, evaluate<models::sinf<NativeSine>>},
        {"cosf", full, evaluate<models::cosf<FullSine>>},
        {"cosf", native, evaluate<models::cosf<NativeSine>>},
        {"cosf", half, evaluate<models::cosf<NativeSine>>},
        {"sincosf", full, evaluate<models::sincosf<FullSine>>},
        {"sincosf", native, evaluate<models::sincosf<NativeSine>>},
        {"sincosregf", full, evaluate<models::sincosf<FullSine>>},
        {"sincosregf", native, evaluate<models::sincosf<NativeSine>>},
        {"sinhf", full, evaluate<models::sinhf>},
        {"coshf", full, evaluate<models::coshf>},
        {"tanhf", full, evaluate<models::tanhf>},
        {"tanhf", native, evaluate<models::tanhf>},
        {"tanf", full, evaluate<models::tanf>},
        {"sinpif", full, evaluate<models::sinpif>},
        {"cospif", full, evaluate<models::cospif>},
        {"erff", full, evaluate<models::erff>},
        {"erfcf", full, evaluate<models::erfcf>},
        {"exp", full, evaluate<models::exp>, {1, 3, 4, 8, 16}},
        {"exp", full, evaluate<models::exp_width_2>, {2}},
        {"exp", native, evaluate<models::exp_native_form>},
        {"exp2", full, evaluate<models::exp2>},
        {"exp10", full, evaluate<models::exp10>},
        {"sinh", full, evaluate<models::sinh>},
        {"erf", full, evaluate<models::erf>},
        {"sin", full, evaluate<models::sin>},
        {"cos", full, evaluate<models::cos>},
        {"tan", full, evaluate<models::tan>},
        {"sinpi", full, evaluate<models::sinpi>},
    };
}

using Row = std::vector<std::uint64_t>;

double uniform(double low, double high, std::mt19937_64& random) {
    const double u = static_cast<double>(random() >> 11) * 0x1p-53;
    return low * (1 - u) + high * u;
}

// Each of the 32 binades up to the end of the usual interval as often as any other.
std::uint64_t in_every_binade(const Family& f, std::mt19937_64& random) {
    const auto [low, high] = f.usual[0];
    const int top = std::ilogb(std::max(std::fabs(low), std::fabs(high)));
    const double v = std::ldexp(uniform(1, 2, random), top - static_cast<int>(random() % 32));
    return pattern_of(f.shape.args[0], low < 0 && (random() & 1) ? -v : v);
}

// A power with a result in range: an exponent of any size, or a base of any size, and the other to match.
Row in_range_power(const Family& f, bool exponent_first, std::mt19937_64& random) {
    const bool root = f.base == "rootnf";
    const double log_of_result = uniform(-87, 87, random);
    const std::uint64_t any_base = 0x00800000 + random() % 0x7F000000;
    if (!exponent_first) {
        const double exponent = log_of_result / std::log(value_of(Lane::f32, any_base));
        return {any_base, pattern_of(f.shape.args[1], std::clamp(root ? 1 / exponent : exponent, -0x1p30, 0x1p30))};
    }
    const int least = f.shape.args[1] == Lane::i32 ? 0 : -12;
    double exponent = std::ldexp(uniform(1, 2, random), least + static_cast<int>(random() % 30));
    if (random() & 1) exponent = -exponent;
    if (root) return {any_base, pattern_of(Lane::i32, exponent)};
    return {pattern_of(Lane::f32, std::exp(log_of_result / exponent)), pattern_of(f.shape.args[1], exponent)};
}

// The structured inputs, then `count` more: half of them usual ones, the rest dense in the binades and of any pattern,
// for powers of any size.
std::vector<Row> inputs(const Family& f, std::size_t count) {
    std::mt19937_64 random(6);
    const std::size_t arity = f.shape.args.size();
    std::vector<Row> rows;
    for (const auto x : structured(f, 0)) {
        if (arity == 1) rows.push_back({x});
        else
            for (const auto y : structured(f, 1)) rows.push_back({x, y});
    }
    for (std::size_t i = 0; i < count; i++) {
        const std::size_t kind = i % 4;
        if (arity == 1) rows.push_back({kind == 2 ? in_every_binade(f, random) : random_lane(f, 0, kind < 2, random)});
        else if (kind < 2) rows.push_back({random_lane(f, 0, true, random), random_lane(f, 1, true, random)});
        else rows.push_back(in_range_power(f, kind == 2, random));
    }
    return rows;
}

class Models : public testing::TestWithParam<Model> {};

TEST_P(Models, FastLanesAreTheStepsToTheBit) {
    const Model& model = GetParam();
    const Family& family = model.family();
    constexpr std::size_t count = 1 << 18;
    std::vector<Row> fast;
    std::vector<models::Outcome> expected;
    for (Row& row : inputs(family, count))
        if (const auto outcome = model.steps(row.data())) fast.push_back(std::move(row)), expected.push_back(*outcome);
    ASSERT_GT(fast.size(), count * 3 / 4) << "of " << count << " lanes are fast";

    std::vector<Lanes> args;
    for (std::size_t a = 0; a < family.shape.args.size(); a++) {
        args.emplace_back(family.shape.args[a], fast.size());
        for (std::size_t i = 0; i < fast.size(); i++) args[a].set(i, fast[i][a]);
    }
    for (const int width : model.at) {
        const Function f = module().find({&family, width, model.variant}).value();
        Lanes first, second;
        f(args, first, &second);
        for (std::size_t i = 0; i < fast.size(); i++) {
            const bool same_second = second.size() == 0 || second.pattern(i) == expected[i].second;
            ASSERT_TRUE(first.pattern(i) == expected[i].first && same_second)
                << f.name() << '(' << lanes_text(args, i) << ") is " << hex(first.pattern(i)) << ", the model's "
                << hex(expected[i].first)
                << (same_second ? "" : "; second " + hex(second.pattern(i)) + " and " + hex(expected[i].second));
        }
    }
    RecordProperty("lanes", static_cast<int>(fast.size() * model.at.size()));
}

INSTANTIATE_TEST_SUITE_P(Module, Models, testing::ValuesIn(all_models()),
                         [](const auto& info) { return info.param.name(); });

}  // namespace
}  // namespace tarn::test
