// Prices a bond portfolio on a yield curve (Nelson and Siegel's), in single precision.
//
// The yield for t years is  b0 + (b1 + b2) (1 - e^(-t/tau)) / (t/tau) - b2 e^(-t/tau), and a payment c at
// t is worth c e^(-yield(t) t) today: two exponentials and one e^x - 1 a payment. The same job is done with
// the module's 4-lane functions, resolved by name, and with the C library, and the two are compared.
//   bonds MODULE
#include <dlfcn.h>
#include <ocl_tarn_k1.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <random>
#include <vector>

namespace {

constexpr float b0 = 0.031f, b1 = -0.012f, b2 = 0.018f, tau = 2.4f;
constexpr int years = 32;  // payments of a bond, padded with zeros

struct Bond {
    alignas(16) float when[years];
    alignas(16) float payment[years];
};

std::vector<Bond> portfolio(std::size_t count) {
    std::mt19937 random(2026);
    std::uniform_real_distribution<float> first(0.05f, 1.0f), coupon(0.5f, 6.0f);
    std::uniform_int_distribution<int> term(1, years);
    std::vector<Bond> bonds(count);
    for (Bond& bond : bonds) {
        const float start = first(random), rate = coupon(random);
        const int payments = term(random);
        for (int i = 0; i < years; i++) {
            bond.when[i] = start + static_cast<float>(i);
            bond.payment[i] = i < payments ? rate : 0.0f;
        }
        bond.payment[payments - 1] += 100.0f;
    }
    return bonds;
}

using Vector = tarn_float4;
using Function = Vector (*)(Vector);

float with_module(const Bond& bond, Function exp, Function expm1) {
    Vector sum = {};
    for (int i = 0; i < years; i += 4) {
        const Vector t = *reinterpret_cast<const Vector*>(bond.when + i);
        const Vector c = *reinterpret_cast<const Vector*>(bond.payment + i);
        const Vector u = t * (1 / tau);
        const Vector yield = b0 - (b1 + b2) * expm1(-u) / u - b2 * exp(-u);
        sum += c * exp(-yield * t);
    }
    return (sum[0] + sum[1]) + (sum[2] + sum[3]);
}

float with_c_library(const Bond& bond) {
    float sum = 0;
    for (int i = 0; i < years; i++) {
        const float t = bond.when[i], u = t * (1 / tau);
        const float yield = b0 - (b1 + b2) * expm1f(-u) / u - b2 * expf(-u);
        sum += bond.payment[i] * expf(-yield * t);
    }
    return sum;
}

// The least of some rounds, in nanoseconds a payment.
template <class Price> double timed(const std::vector<Bond>& bonds, std::vector<float>& prices, Price price) {
    double least = INFINITY;
    for (int round = 0; round < 15; round++) {
        const auto start = std::chrono::steady_clock::now();
        for (std::size_t i = 0; i < bonds.size(); i++) prices[i] = price(bonds[i]);
        const std::chrono::duration<double, std::nano> spent = std::chrono::steady_clock::now() - start;
        least = std::min(least, spent.count() / static_cast<double>(bonds.size() * years));
    }
    return least;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) return std::fputs("usage: bonds MODULE\n", stderr), 2;
    void* module = dlopen(argv[1], RTLD_NOW);
    if (!module) return std::fprintf(stderr, "bonds: %s\n", dlerror()), 2;
    const auto exp = reinterpret_cast<Function>(dlsym(module, "__ocl_tarn_k1_expf4"));
    const auto expm1 = reinterpret_cast<Function>(dlsym(module, "__ocl_tarn_k1_expm1f4"));
    if (!exp || !expm1) return std::fputs("bonds: the module lacks expf or expm1f\n", stderr), 2;

    const auto bonds = portfolio(20000);
    std::vector<float> ours(bonds.size()), theirs(bonds.size());
    const double our_time = timed(bonds, ours, [&](const Bond& b) { return with_module(b, exp, expm1); });
    const double their_time = timed(bonds, theirs, [](const Bond& b) { return with_c_library(b); });

    double total = 0, apart = 0;
    for (std::size_t i = 0; i < bonds.size(); i++) {
        total += ours[i];
        apart = std::max(apart, std::fabs(double(ours[i]) - theirs[i]) / theirs[i]);
    }
    std::printf("A real job: %zu bonds, %d payments each, priced on a yield curve.\n\n", bonds.size(), years);
    for (std::size_t i = 0; i < 3; i++) std::printf("  bond %zu is worth %.4f\n", i, ours[i]);
    std::printf("  the portfolio is worth %.2f\n\n", total);
    std::printf("  %-34s %6.2f ns a payment\n  %-34s %6.2f ns a payment (%.1f times as long)\n", "this library, expf4 and expm1f4",
                our_time, "the C library, expf and expm1f", their_time, their_time / our_time);
    std::printf("  largest relative difference between the two: %.1e\n", apart);
    // A few rounding errors of single precision in each of the sums.
    if (!(apart < 2e-6)) return std::fputs("bonds: the prices differ\n", stderr), 1;
}
