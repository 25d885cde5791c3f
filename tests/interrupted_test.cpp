// There is no state: threads that call the same functions at once, and a signal that interrupts one in the middle and
// calls others, leave every result as it is alone.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/time.h>

#include <atomic>
#include <thread>

#include "samples.hpp"

namespace tarn::test {
namespace {

// A call's arguments and what it gives when nothing else is going on.
struct Call {
    Function function;
    std::vector<Lanes> args;
    Results alone;

    Call(const Member& m, std::size_t count, std::uint64_t seed) : function(m.at(16)) {
        for (const Lanes& all : samples(*m.family, 4 * count, seed)) {
            args.emplace_back(all.type(), count);
            for (std::size_t i = 0; i < count; i++) args.back().set(i, all.pattern(i * 7919 % all.size()));
        }
        alone = Results(function, args);
    }
    bool differs() const {
        const Results now(function, args);
        for (std::size_t i = 0; i < now.first.size(); i++)
            if (!now.difference(i, alone, i).empty()) return true;
        return false;
    }
};

std::vector<Call> calls_of_all(std::size_t count) {
    std::vector<Call> calls;
    for (const Member& m : members()) calls.emplace_back(m, count, 31);
    return calls;
}

TEST(Threads, DoNotMeet) {
    const std::vector<Call> calls = calls_of_all(256);
    std::atomic<int> wrong = 0;
    std::vector<std::jthread> threads;
    for (std::size_t t = 0; t < 4; t++)
        threads.emplace_back([&, t] {
            // All at the same functions, now and then.
            for (std::size_t round = 0; round < 6; round++)
                for (std::size_t k = 0; k < calls.size(); k++) {
                    const Call& call = calls[(k + t * (round % 2) * 61) % calls.size()];
                    if (call.differs() && wrong++ == 0) ADD_FAILURE() << call.function.name();
                }
        });
    threads.clear();
    EXPECT_EQ(wrong, 0);
}

// What the handler calls lies in memory that is there before it: nothing is allocated in it.
struct Handled {
    alignas(64) static inline std::byte argument[64], expected[64], given[64];
    static inline Function const* function = nullptr;
    static inline std::atomic<long> calls = 0, wrong = 0;

    static void handle(int) {
        const std::byte* const args[] = {argument};
        for (auto& byte : given) byte = std::byte{0};
        function->batch()(function->address(), args, given, nullptr, 1);
        calls++;
        if (std::memcmp(given, expected, sizeof given) != 0) wrong++;
    }
};

// The long paths, x87 and the tables: a handler's call between any two instructions of them.
TEST(Signals, MayInterruptAnyCall) {
    struct sigaction action = {}, before = {};
    action.sa_handler = Handled::handle;
    ASSERT_EQ(sigaction(SIGALRM, &action, &before), 0);
    const std::vector<Call> calls = calls_of_all(64);
    for (const char* base : {"tgammaf", "sinf", "asinhf"}) {
        const std::optional<Function> function = module().find(base, 16);
        std::vector<Lanes> args = {Lanes(Lane::f32, 16)};
        for (std::size_t i = 0; i < 16; i++) {
            const auto x = static_cast<double>(i);
            args[0].set(i, pattern_of(Lane::f32, i % 3 == 0 ? 1e6 + x : 0.3 * x));
        }
        Lanes alone;
        (*function)(args, alone);
        std::memcpy(Handled::argument, args[0].data(), 64), std::memcpy(Handled::expected, alone.data(), 64);
        Handled::function = &*function, Handled::calls = 0, Handled::wrong = 0;
        const itimerval often = {{0, 50}, {0, 50}}, never = {};
        setitimer(ITIMER_REAL, &often, nullptr);
        std::string disturbed;
        for (int round = 0; (round < 3 || Handled::calls < 500) && round < 100000 && disturbed.empty(); round++)
            for (const Call& call : calls)
                if (call.differs()) disturbed = call.function.name();
        setitimer(ITIMER_REAL, &never, nullptr);
        EXPECT_EQ(disturbed, "") << "interrupted by " << base;
        EXPECT_EQ(Handled::wrong, 0) << base << " in a handler, of " << Handled::calls << " calls";
        EXPECT_GE(Handled::calls, 500);
    }
    sigaction(SIGALRM, &before, nullptr);
}

}  // namespace
}  // namespace tarn::test
