// Prices a million call options and their derivatives in an OpenCL kernel, once with the module's functions and once
// with the runtime's own; then again through the C interface, which has to give the module's kernel bit for bit.
//   options KERNEL.cl INCLUDE_DIR [PICTURE.png]
// The program is linked to the module, which is how kernels find it.
#define CL_HPP_ENABLE_EXCEPTIONS
#define CL_HPP_TARGET_OPENCL_VERSION 120
#define CL_HPP_MINIMUM_OPENCL_VERSION 120
#include <CL/opencl.hpp>
#include <ocl_tarn_k1.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

constexpr std::size_t strikes = 1000, expiries = 1000, contracts = strikes * expiries, lanes = 4, group = 50,
                      chunks = 20;
constexpr double spot = 100, rate = 0.03;
constexpr const char* names[] = {"price", "delta", "gamma", "vega", "theta", "rho"};
constexpr std::size_t figures = std::size(names);

// Strikes from half to twice the spot, a week to three years, and a volatility that smiles.
struct Book {
    std::vector<double> strike, years, volatility;
    Book() : strike(contracts), years(contracts), volatility(contracts) {
        for (std::size_t i = 0; i < contracts; i++) {
            const double s = static_cast<double>(i % strikes) / (strikes - 1),
                         e = static_cast<double>(i / strikes) / (expiries - 1);
            strike[i] = 50 + 150 * s;
            years[i] = 0.02 + 2.98 * e;
            volatility[i] = 0.18 + 0.25 * (s - 0.33) * (s - 0.33) / (0.3 + years[i]);
        }
    }
};

// What the kernel does, in the same order, one contract at a time.
void price(const Book& book, std::size_t i, double* results) {
    const double strike = book.strike[i], t = book.years[i], volatility = book.volatility[i];
    const auto normal_below = [](double d) { return 0.5 * __ocl_tarn_k1_erfc1(d * -0.70710678118654752); };
    const double root = __ocl_tarn_k1_sqrt1(t), spread = volatility * root;
    const double d1 = (__ocl_tarn_k1_log1(spot / strike) + (rate + 0.5 * volatility * volatility) * t) / spread,
                 d2 = d1 - spread;
    const double below1 = normal_below(d1), below2 = normal_below(d2);
    const double density = __ocl_tarn_k1_exp1(-0.5 * d1 * d1) * 0.39894228040143268;
    const double owed = strike * __ocl_tarn_k1_exp1(-rate * t);
    const double all[figures] = {spot * below1 - owed * below2,
                                 below1,
                                 density / (spot * spread),
                                 spot * density * root,
                                 -spot * density * volatility / (2.0 * root) - rate * owed * below2,
                                 t * owed * below2};
    for (std::size_t f = 0; f < figures; f++) results[f * contracts + i] = all[f];
}

using Clock = std::chrono::steady_clock;
double seconds_since(Clock::time_point start) { return std::chrono::duration<double>(Clock::now() - start).count(); }

std::string text_of(const char* path) {
    std::ifstream in(path);
    if (!in) throw std::runtime_error(std::string("cannot read ") + path);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

cl::Device processor() {
    std::vector<cl::Platform> platforms;
    try {
        cl::Platform::get(&platforms);
    } catch (const cl::Error&) {  // none
    }
    for (const auto& platform : platforms) {
        std::vector<cl::Device> devices;
        try {
            platform.getDevices(CL_DEVICE_TYPE_CPU, &devices);
        } catch (const cl::Error&) {
            continue;
        }
        for (const auto& device : devices)
            if (device.getInfo<CL_DEVICE_EXTENSIONS>().find("cl_khr_fp64") != std::string::npos) return device;
    }
    throw std::runtime_error("no OpenCL runtime here has a processor with double precision (Debian: pocl-opencl-icd)");
}

struct Run {
    std::vector<double> results;
    double build_seconds, seconds;
};

class Desk {
public:
    Desk(const cl::Device& device, Book& book)
        : context_(device),
          queue_(context_, device),
          strike_(input(book.strike)),
          years_(input(book.years)),
          volatility_(input(book.volatility)),
          results_(context_, CL_MEM_WRITE_ONLY, figures * contracts * sizeof(double)) {}

    // The whole book three times after a first one, the quickest counting.
    Run price(const std::string& source, const std::string& options, const char* whose) {
        Run run{std::vector<double>(figures * contracts), 0, 1e9};
        const auto start = Clock::now();
        cl::Program program(context_, source);
        try {
            program.build(options.c_str());
        } catch (const cl::BuildError& e) {
            throw std::runtime_error("the kernel does not build:\n" + e.getBuildLog()[0].second);
        }
        cl::Kernel kernel(program, "price");
        kernel.setArg(0, spot), kernel.setArg(1, rate), kernel.setArg(2, cl_ulong{contracts});
        kernel.setArg(3, strike_), kernel.setArg(4, years_), kernel.setArg(5, volatility_), kernel.setArg(6, results_);
        once(kernel);
        run.build_seconds = seconds_since(start);
        for (int round = 0; round < 3; round++) {
            const auto begin = Clock::now();
            once(kernel, whose);
            run.seconds = std::min(run.seconds, seconds_since(begin));
        }
        if (isatty(STDERR_FILENO)) std::fprintf(stderr, "\r%40s\r", "");
        queue_.enqueueReadBuffer(results_, CL_TRUE, 0, run.results.size() * sizeof(double), run.results.data());
        return run;
    }

private:
    cl::Buffer input(std::vector<double>& values) {
        return {context_, CL_MEM_READ_ONLY | CL_MEM_COPY_HOST_PTR, values.size() * sizeof(double), values.data()};
    }

    void once(cl::Kernel& kernel, const char* shown = nullptr) {
        constexpr std::size_t items = contracts / lanes / chunks;
        static_assert(items * lanes * chunks == contracts && items % group == 0);
        for (std::size_t c = 0; c < chunks; c++) {
            queue_.enqueueNDRangeKernel(kernel, cl::NDRange(c * items), cl::NDRange(items), cl::NDRange(group));
            queue_.finish();
            if (shown && isatty(STDERR_FILENO)) std::fprintf(stderr, "\r%s: %3zu %%", shown, (c + 1) * 100 / chunks);
        }
    }

    cl::Context context_;
    cl::CommandQueue queue_;
    cl::Buffer strike_, years_, volatility_, results_;
};

// Gamma over strikes and expiries.
void draw(const std::string& file, const Book& book, const std::vector<double>& results) {
    FILE* gnuplot = popen("gnuplot", "w");
    if (!gnuplot) throw std::runtime_error("gnuplot does not start");
    std::string quoted;
    for (const char c : file) quoted += c == '\'' ? std::string("''") : std::string(1, c);
    std::fprintf(
        gnuplot,
        "set terminal pngcairo size 900,700\nset output '%s'\nset title 'Gamma of a million call options, spot %g'\n"
        "set xlabel 'strike'\nset ylabel 'years to expiry'\nset logscale cb\nset cbrange [1e-5:*]\nset cblabel 'gamma'\n"
        "set format cb '10^{%%T}'\n"
        "set xrange [50:200]\nset yrange [0.02:3]\nplot '-' using 1:2:3 with image notitle\n",
        quoted.c_str(), spot);
    constexpr std::size_t step = 4;
    for (std::size_t e = 0; e < expiries; e += step)
        for (std::size_t s = 0; s < strikes; s += step) {
            const std::size_t i = e * strikes + s;
            std::fprintf(gnuplot, "%g %g %g\n", book.strike[i], book.years[i],
                         std::max(results[2 * contracts + i], 1e-5));
        }
    std::fputs("e\n", gnuplot);
    if (pclose(gnuplot) != 0) throw std::runtime_error("gnuplot draws no picture");
    std::printf("Gamma over strikes and expiries is in %s.\n", file.c_str());
}

}  // namespace

int main(int argc, char** argv) try {
    if (argc != 3 && argc != 4)
        return std::fprintf(stderr, "usage: %s KERNEL.cl INCLUDE_DIR [PICTURE.png]\n", argv[0]), 2;
    const std::string source = text_of(argv[1]);
    const cl::Device device = processor();
    std::printf("%zu call options on %s (%s)\n", contracts, device.getInfo<CL_DEVICE_NAME>().c_str(),
                device.getInfo<CL_DEVICE_VERSION>().c_str());
    Book book;
    Desk desk(device, book);
    // Only what the kernel uses, which builds faster than the whole header.
    std::string options = std::string("-I ") + argv[2] + " -D WITH_MODULE -D TARN_ONLY";
    for (const char* used : {"exp", "log", "sqrt", "erfc"}) options += std::string(" -D TARN_USE_") + used;
    const Run ours = desk.price(source, options, "module"), theirs = desk.price(source, "", "runtime");

    std::vector<double> again(figures * contracts);
    for (std::size_t i = 0; i < contracts; i++) price(book, i, again.data());
    std::size_t differing = 0;
    for (std::size_t i = 0; i < again.size(); i++)
        differing += std::memcmp(&again[i], &ours.results[i], sizeof(double)) != 0;

    const std::size_t shown = contracts / 2 + 333;
    std::printf("\nstrike %g, %.2f years, volatility %.4f:", book.strike[shown], book.years[shown],
                book.volatility[shown]);
    for (std::size_t f = 0; f < figures; f++) std::printf(" %s %.6g", names[f], ours.results[f * contracts + shown]);
    double apart = 0;
    for (std::size_t i = 0; i < contracts; i++) apart = std::max(apart, std::fabs(ours.results[i] - theirs.results[i]));
    std::printf("\n\n%-28s %10s %14s\n", "built-in functions of", "first run", "a million");
    std::printf("%-28s %8.2f s %11.1f ms\n", "the module", ours.build_seconds, ours.seconds * 1e3);
    std::printf("%-28s %8.2f s %11.1f ms\n", "the runtime", theirs.build_seconds, theirs.seconds * 1e3);
    std::printf("\nTheir prices are at most %.2g apart. Through the C interface, one contract at a time: ", apart);
    if (differing) return std::printf("%zu of %zu results DIFFER\n", differing, again.size()), 1;
    std::printf("all %zu results the same bit for bit.\n", again.size());
    if (argc == 4) draw(argv[3], book, ours.results);
    return 0;
} catch (const std::exception& e) {
    return std::fprintf(stderr, "%s: %s\n", argv[0], e.what()), 2;
}
