// libtarn: an element's bits depend on that element alone, and are the module's of a vector that holds it in every lane:
// of width 16 in arrays, of as many lanes in the vector functions of loops.
#include <gtest/gtest.h>

#include <algorithm>
#include <cfenv>
#include <fstream>
#include <map>
#include <numeric>
#include <regex>
#include <set>

#include "commands.hpp"
#include "samples.hpp"
#include "vectors/calls.hpp"

namespace tarn::test {
namespace {

// What a function makes of its elements. Results and arguments lie `offset` bytes beyond an aligned address, and what
// lies around the results is looked at afterwards.
struct Computed : Results {
    bool beyond = false;  // something was written that is not a result

    Computed(const ArrayFunction& f, const std::vector<Lanes>& args, std::size_t offset = 0) {
        const Shape& s = f.family().shape;
        const std::size_t n = args[0].size();
        std::vector<Room> rooms;
        for (const Lanes& arg : args) {
            rooms.emplace_back(arg.type(), n, offset);
            rooms.back().fill(arg);
        }
        Room r(s.result, n, offset), second_room(s.second, n, offset);
        const void* pointers[3] = {};
        for (std::size_t a = 0; a < args.size(); a++) pointers[a] = rooms[a].at();
        f(n, pointers, r.at(), second_room.at());
        first = r.lanes();
        second = second_room.lanes();
        beyond = r.touched() || second_room.touched();
        for (std::size_t a = 0; a < args.size(); a++)
            beyond |= rooms[a].touched() || std::memcmp(rooms[a].at(), args[a].data(), rooms[a].size());
    }

private:
    // Lanes in the middle of marked memory.
    class Room {
    public:
        Room(Lane type, std::size_t n, std::size_t offset)
            : type_(type), n_(n), at_(margin + offset), memory_(at_ + size() + margin, mark) {}
        void fill(const Lanes& from) { std::memcpy(at(), from.data(), size()); }
        std::byte* at() { return memory_.data() + at_; }
        std::size_t size() const { return n_ * static_cast<std::size_t>(bytes(type_)); }
        Lanes lanes() {
            Lanes l(type_, type_ == Lane::none ? 0 : n_);
            std::memcpy(l.data(), at(), l.size() * static_cast<std::size_t>(bytes(type_)));
            return l;
        }
        bool touched() const {
            for (std::size_t i = 0; i < memory_.size(); i++)
                if ((i < at_ || i >= at_ + size()) && memory_[i] != mark) return true;
            return false;
        }

    private:
        static constexpr std::byte mark{0xA5};
        static constexpr std::size_t margin = 64;
        Lane type_;
        std::size_t n_, at_;
        std::vector<std::byte> memory_;
    };
};

struct ArrayMember : Member {
    ArrayFunction function() const { return library().find(*family, variant).value(); }
};
std::vector<ArrayMember> array_members() {
    std::vector<ArrayMember> all;
    for (const Member& m : members()) all.push_back({m});
    return all;
}

// Elements picked from others, one index each.
template <class Index> std::vector<Lanes> picked(const std::vector<Lanes>& args, std::size_t n, Index index) {
    std::vector<Lanes> out;
    for (const Lanes& arg : args) {
        out.emplace_back(arg.type(), n);
        for (std::size_t i = 0; i < n; i++) out.back().set(i, arg.pattern(index(i)));
    }
    return out;
}

// What the module makes of each element in every lane of a width.
struct Expected : Results {
    std::size_t width;
    Expected(const Function& f, const std::vector<Lanes>& args) : width(static_cast<std::size_t>(f.width())) {
        f(picked(args, args[0].size() * width, [&](std::size_t i) { return i / width; }), first, &second);
    }
};

class ArrayElements : public testing::TestWithParam<ArrayMember> {};

TEST_P(ArrayElements, AreWidth16sOfEqualLanes) {
    const auto& m = GetParam();
    const ArrayFunction f = m.function();
    auto args = samples(*m.family, 4000, 5);
    const Computed here(f, args);
    EXPECT_FALSE(here.beyond);
    const Expected expected(m.at(16), args);
    for (std::size_t i = 0; i < args[0].size(); i++)
        ASSERT_EQ(here.difference(i, expected, i * widest), "") << f.name() << '(' << lanes_text(args, i) << ")";
}

// Shuffled, and cut in two at every place: an element is computed in every lane of the loop, in the last group, alone.
TEST_P(ArrayElements, KeepTheirBitsWhereverTheyStand) {
    const auto& m = GetParam();
    const ArrayFunction f = m.function();
    const auto all = samples(*m.family, 1000, 6);
    std::mt19937_64 random(7);
    std::vector<std::size_t> order(all[0].size());
    for (std::size_t i = 0; i < order.size(); i++) order[i] = i;
    std::shuffle(order.begin(), order.end(), random);
    const auto args = picked(all, order.size(), [&](std::size_t i) { return order[i]; });
    const Computed sorted(f, all), shuffled(f, args);
    for (std::size_t i = 0; i < order.size(); i++)
        ASSERT_EQ(shuffled.difference(i, sorted, order[i]), "") << f.name() << '(' << lanes_text(args, i) << ")";

    const std::size_t n = 71;
    for (std::size_t cut = 0; cut <= n; cut++)
        for (const bool behind : {false, true}) {
            const std::size_t from = behind ? cut : 0, count = behind ? n - cut : cut;
            const Computed piece(f, picked(args, count, [&](std::size_t i) { return from + i; }));
            ASSERT_FALSE(piece.beyond) << f.name() << ", n = " << count;
            for (std::size_t i = 0; i < count; i++)
                ASSERT_EQ(piece.difference(i, shuffled, from + i), "")
                    << f.name() << '(' << lanes_text(args, from + i) << "), n = " << count;
        }
}

// One ordinary element among poison, and poison among ordinary ones: at every place of the loop and behind it.
TEST_P(ArrayElements, AreNotTouchedByNeighbours) {
    const auto& m = GetParam();
    const Family& family = *m.family;
    const ArrayFunction f = m.function();
    std::mt19937_64 random(8);
    const auto row = [&](bool usual, std::uint64_t first) {
        std::vector<Lanes> args;
        for (const Lane type : family.shape.args) {
            args.emplace_back(type, 1);
            args.back().set(0, random_lane(family, args.size() - 1, true, random));
        }
        if (!usual) args[0].set(0, first);
        return args;
    };
    const auto ordinary = row(true, 0);
    const Computed alone(f, ordinary);
    std::vector<std::uint64_t> poisons;
    const Lane type = family.shape.args[0];
    const double nan = NAN, infinity = INFINITY;
    if (is_float(type))
        for (const double p : {nan, infinity, -0.0, 1e-44, 3e38, -3e4, 1.6e8}) poisons.push_back(pattern_of(type, p));
    else poisons = {0, 1, ~0ull >> (64 - 8 * bytes(type))};
    const std::size_t n = 43;
    for (const auto p : poisons) {
        const auto poison = row(false, p);
        const Computed poison_alone(f, poison);
        for (std::size_t at = 0; at < n; at++)
            for (const bool poisoned : {true, false}) {
                auto args = picked(poisoned ? poison : ordinary, n, [](std::size_t) { return std::size_t{0}; });
                for (std::size_t a = 0; a < args.size(); a++) args[a].set(at, (poisoned ? ordinary : poison)[a].pattern(0));
                const Computed here(f, args);
                for (std::size_t i = 0; i < n; i++)
                    ASSERT_EQ(here.difference(i, (i == at) == poisoned ? alone : poison_alone, 0), "")
                        << f.name() << '(' << lanes_text(args, i) << ") at " << i << " with another at " << at;
            }
    }
}

// Every lane of two steps special alone and ordinary alone, all pairs of a step, and any others: long paths are taken for
// groups and pairs of groups, and give back only what they were asked for. No two elements are alike.
TEST_P(ArrayElements, AreSpecialInAnyLanes) {
    const auto& m = GetParam();
    const Family& family = *m.family;
    const ArrayFunction f = m.function();
    const std::size_t n = 2 * 32 + 5, step = 16;
    std::mt19937_64 random(13);
    std::vector<Lanes> ordinary, special;
    for (std::size_t a = 0; a < family.shape.args.size(); a++) {
        const Lane type = family.shape.args[a];
        ordinary.emplace_back(type, n);
        special.emplace_back(type, n);
        const auto unusual = structured(family, a);
        for (std::size_t i = 0; i < n; i++) {
            ordinary[a].set(i, random_lane(family, a, true, random));
            const bool far = a == 0 && family.switches_above != 0 && i % 4 != 0;
            const double beyond = family.switches_above * std::exp2(0.9 * static_cast<double>(i));
            special[a].set(i, far ? pattern_of(type, i % 2 ? beyond : -beyond) : unusual[random() % unusual.size()]);
        }
    }
    const Computed of_ordinary(f, ordinary), of_special(f, special);
    std::vector<std::vector<bool>> patterns;
    for (std::size_t i = 0; i < n; i++)
        for (const bool alone : {true, false}) {
            patterns.emplace_back(n, !alone);
            patterns.back()[i] = alone;
        }
    for (std::size_t i = 0; i < step; i++)
        for (std::size_t j = 0; j < i; j++) {
            patterns.emplace_back(n, false);
            patterns.back()[i] = patterns.back()[j] = patterns.back()[step + i] = true;
        }
    for (int k = 0; k < 200; k++) {
        patterns.emplace_back(n);
        for (std::size_t i = 0; i < n; i++) patterns.back()[i] = random() % 200 < static_cast<std::size_t>(k);
    }
    for (const auto& is_special : patterns) {
        std::vector<Lanes> args = ordinary;
        for (std::size_t a = 0; a < args.size(); a++)
            for (std::size_t i = 0; i < n; i++)
                if (is_special[i]) args[a].set(i, special[a].pattern(i));
        const Computed here(f, args);
        for (std::size_t i = 0; i < n; i++)
            ASSERT_EQ(here.difference(i, is_special[i] ? of_special : of_ordinary, i), "")
                << f.name() << '(' << lanes_text(args, i) << ") at " << i;
    }
}

TEST_P(ArrayElements, MayLieAnywhere) {
    const auto& m = GetParam();
    const ArrayFunction f = m.function();
    const auto all = samples(*m.family, 400, 9);
    const std::size_t n = std::min<std::size_t>(all[0].size(), 1003);
    const auto args = picked(all, n, [&](std::size_t i) { return all[0].size() - n + i; });
    const Shape& s = m.family->shape;
    const Computed aligned(f, args);
    for (const std::size_t offset : {1, 2, 4, 8, 12, 20, 31}) {
        const Computed moved(f, args, offset);
        ASSERT_FALSE(moved.beyond);
        for (std::size_t i = 0; i < n; i++)
            ASSERT_EQ(moved.difference(i, aligned, i), "")
                << f.name() << '(' << lanes_text(args, i) << "), " << offset << " bytes on";
    }

    // In the place of an argument: long, and of every length that ends in another way, where the last group of lanes begins
    // among results that are written already.
    std::vector<std::size_t> lengths(48);
    std::iota(lengths.begin(), lengths.end(), 1);
    lengths.push_back(n);
    for (std::size_t place = 0; place < s.args.size(); place++)
        for (const bool second : {false, true}) {
            const Lane result = second ? s.second : s.result;
            if (result == Lane::none || bytes(result) != bytes(s.args[place])) continue;
            for (const std::size_t count : lengths) {
                const std::size_t from = n - count;
                auto in_place = picked(args, count, [&](std::size_t i) { return from + i; });
                Lanes other(second ? s.result : s.second, count);
                const void* pointers[3] = {};
                for (std::size_t a = 0; a < args.size(); a++) pointers[a] = in_place[a].data();
                if (second) f(count, pointers, other.data(), in_place[place].data());
                else f(count, pointers, in_place[place].data(), other.data());
                for (std::size_t i = 0; i < count; i++) {
                    const auto expected = (second ? aligned.second : aligned.first).pattern(from + i);
                    ASSERT_TRUE(same(result, in_place[place].pattern(i), expected))
                        << f.name() << '(' << lanes_text(args, from + i) << ") in place of argument " << place << ", n = " << count;
                }
            }
        }

    const void* const nowhere[3] = {};
    f(0, nowhere, nullptr, nullptr);
}

// An element alone raises what it raises in a whole step of the loop.
TEST_P(ArrayElements, RaiseTheirOwnFlags) {
    const auto& m = GetParam();
    const ArrayFunction f = m.function();
    constexpr int flags = FE_INVALID | FE_DIVBYZERO | FE_OVERFLOW | FE_UNDERFLOW;
    const auto all = samples(*m.family, 200, 10);
    for (std::size_t i = 0; i < all[0].size(); i += 1 + all[0].size() / 1500) {
        const auto raised = [&](std::size_t n) {
            const auto args = picked(all, n, [&](std::size_t) { return i; });
            const void* pointers[3] = {};
            for (std::size_t a = 0; a < args.size(); a++) pointers[a] = args[a].data();
            Lanes r(m.family->shape.result, n), second(m.family->shape.second, n);
            std::feclearexcept(FE_ALL_EXCEPT);
            f(n, pointers, r.data(), second.data());
            return std::fetestexcept(flags);
        };
        const int whole = raised(32);
        for (const std::size_t n : {1, 2, 3, 5, 7})
            ASSERT_EQ(raised(n), whole) << f.name() << '(' << lanes_text(all, i) << "), n = " << n;
    }
}

INSTANTIATE_TEST_SUITE_P(Families, ArrayElements, testing::ValuesIn(array_members()),
                         [](const auto& info) { return info.param.name(); });

// Vector functions of loops ------------------------------------------------------------------------

struct VectorName {
    const Family* family;
    char registers;  // b, c, d
    int lanes;
    std::string parameters, name;
};
inline void PrintTo(const VectorName& v, std::ostream* out) { *out << v.name; }

std::vector<std::string> exported() {
    std::vector<std::string> names;
    for (const auto& line : output("nm -D --defined-only \"" + ArrayLibrary::built_path() + '"'))
        if (line.find(" T ") != std::string::npos) names.push_back(line.substr(line.rfind(' ') + 1, line.find('@') - line.rfind(' ') - 1));
    return names;  // without their version
}

std::vector<VectorName> vector_names() {
    const std::regex form("_ZGV([bcd])N([0-9]+)(v[vl48]*)_(.*)");
    std::vector<VectorName> all;
    for (const auto& name : exported()) {
        std::smatch part;
        if (std::regex_match(name, part, form)) all.push_back({find_family(part[4]), part[1].str()[0], std::stoi(part[2]), part[3], name});
    }
    return all;
}

class VectorFunctions : public testing::TestWithParam<VectorName> {};

TEST_P(VectorFunctions, HaveTheBitsOfAsManyLanes) {
    const auto& [family, registers, lanes, parameters, name] = GetParam();
    if ((registers == 'c' && !__builtin_cpu_supports("avx")) || (registers == 'd' && !__builtin_cpu_supports("avx2")))
        GTEST_SKIP() << "this processor has no such registers";
    ASSERT_NE(family, nullptr);
    const bool single = family->shape.result == Lane::f32;
    ASSERT_EQ(lanes * bytes(family->shape.result), registers == 'b' ? 16 : 32);
    const auto& calls = registers == 'b' ? (single ? vectors::sse_f32 : vectors::sse_f64)
                      : registers == 'c' ? (single ? vectors::avx_f32 : vectors::avx_f64)
                                         : (single ? vectors::avx2_f32 : vectors::avx2_f64);
    const vectors::Calls::Run run = parameters == "v"     ? calls.unary
                                    : parameters == "vv"  ? calls.binary
                                    : parameters == "vvv" ? calls.scatter
                                                          : calls.pair;
    const auto all = samples(*family, 2000, 11);
    const std::size_t n = all[0].size() / 64 * 64;
    // Special elements among others, too.
    const auto args = picked(all, n, [&](std::size_t i) { return i * 37 % n; });
    Lanes first(family->shape.result, n), second(family->shape.result, n);
    const std::byte* in[2] = {args[0].data(), args.back().data()};
    run(library().symbol(name), in, first.data(), second.data(), n * static_cast<std::size_t>(bytes(family->shape.result)));
    const Expected expected(module().find({family, lanes, Variant::full}).value(), args);
    for (std::size_t i = 0; i < n; i++) {
        const std::size_t j = i * expected.width;
        ASSERT_TRUE(same(first.type(), first.pattern(i), expected.first.pattern(j)))
            << name << '(' << lanes_text(args, i) << ") gives " << hex(first.pattern(i)) << ", the module "
            << hex(expected.first.pattern(j));
        if (expected.second.size()) {
            ASSERT_TRUE(same(second.type(), second.pattern(i), expected.second.pattern(j)))
                << name << '(' << lanes_text(args, i) << ')';
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Names, VectorFunctions, testing::ValuesIn(vector_names()), [](const auto& info) { return info.param.name; });

// What C lacks, for the last elements of a loop: width 16's bits.
TEST(ScalarFunctions, HaveWidth16sBits) {
    int found = 0;
    for (const Family& f : families()) {
        void* address = library().symbol(f.base);
        if (!address || !is_float(f.shape.result)) continue;
        found++;
        const auto args = samples(f, 1000, 12);
        const Computed expected(library().find(f, Variant::full).value(), args);
        for (std::size_t i = 0; i < args[0].size(); i++) {
            const double x = value_of(args[0].type(), args[0].pattern(i)), y = value_of(args.back().type(), args.back().pattern(i));
            const bool two = args.size() == 2;
            const double r = f.shape.result == Lane::f64
                ? (two ? reinterpret_cast<double (*)(double, double)>(address)(x, y) : reinterpret_cast<double (*)(double)>(address)(x))
                : (two ? reinterpret_cast<float (*)(float, float)>(address)(static_cast<float>(x), static_cast<float>(y))
                       : reinterpret_cast<float (*)(float)>(address)(static_cast<float>(x)));
            ASSERT_TRUE(same(f.shape.result, pattern_of(f.shape.result, r), expected.first.pattern(i)))
                << f.base << '(' << lanes_text(args, i) << ')';
        }
    }
    EXPECT_EQ(found, 24);
}

// The library as a file ----------------------------------------------------------------------------

TEST(LibraryFile, ExportsExactlyItsNames) {
    std::set<std::string> stated;
    for (const ArrayMember& m : array_members()) stated.insert(array_name(m.family->base, m.variant));
    EXPECT_EQ(stated.size(), 344u);
    // Loops and scalars as the version script has them.
    std::ifstream map(std::string(TARN_SOURCE_DIR) + "/src/families/tarn.map");
    for (std::string line; std::getline(map, line);)
        if (line.starts_with("    ") && line.ends_with(";") && line.find('*') == std::string::npos) stated.insert(line.substr(4, line.size() - 5));
    EXPECT_GT(stated.size(), 344u);
    const auto names = exported();
    const std::set<std::string> present(names.begin(), names.end());
    for (const auto& name : present) EXPECT_TRUE(stated.count(name)) << name << " is exported and is none of its names";
    for (const auto& name : stated) EXPECT_TRUE(present.count(name)) << name << " is not exported";
    EXPECT_GT(vector_names().size(), 300u);
}

TEST(LibraryFile, NeedsNothing) {
    const std::string path = '"' + ArrayLibrary::built_path() + '"';
    EXPECT_TRUE(output("nm -D --undefined-only " + path).empty());
    bool soname = false;
    for (const auto& line : output("readelf -d " + path)) {
        for (const char* tag : {"(NEEDED)", "(INIT)", "(INIT_ARRAY)", "(FINI)", "(FINI_ARRAY)", "(REL", "(JMPREL)", "(TEXTREL)"})
            EXPECT_EQ(line.find(tag), std::string::npos) << line;
        soname |= line.find("[libtarn.so.1]") != std::string::npos;
    }
    EXPECT_TRUE(soname);
    for (const auto& line : output("readelf -SW " + path))
        for (const char* section : {" .data", " .bss", " .tdata", " .tbss", " .init", " .ctors"}) EXPECT_EQ(line.find(section), std::string::npos) << line;
}

// The plain library holds functions for AVX that programs for AVX call. Nothing else leads to them: neither are they
// called, nor has the linker put the code of one level in the place of another's.
TEST(LibraryFile, KeepsLevelsApart) {
    const std::string path = '"' + ArrayLibrary::built_path() + '"';
    for (const auto& line : output("readelf -nW " + path))
        if (line.find("x86-64-v3") != std::string::npos) GTEST_SKIP() << "is all of one level";
    struct Code {
        std::string name;
        bool avx = false, sse = false;
        std::set<std::string> leads_to;
    };
    // By address: local names of several translation units are alike.
    std::map<std::string, Code> functions;
    Code* inside = nullptr;
    const std::regex start("^0*([0-9a-f]+) <(.*)>:$"), vex("^\\s+[0-9a-f]+:\\s+v[a-z]"),
        jump("(?:call|j[a-z]+)\\s+([0-9a-f]+) <");
    for (const auto& line : output("objdump -d --no-show-raw-insn " + path)) {
        std::smatch found;
        if (std::regex_match(line, found, start)) {
            inside = &functions[found[1]];
            inside->name = found[2];
            // One that only jumps on has no instruction of AVX.
            inside->avx = inside->name.starts_with("_ZGVc") || inside->name.starts_with("_ZGVd");
        } else if (inside) {
            const bool is_vex = std::regex_search(line, vex);
            inside->avx |= is_vex, inside->sse |= !is_vex && line.find("%xmm") != std::string::npos;
            if (std::regex_search(line, found, jump)) inside->leads_to.insert(found[1]);
        }
    }
    // What has no vector instruction of its own is of the level of what it calls.
    for (bool more = true; more;) {
        more = false;
        for (auto& [address, code] : functions)
            for (const auto& to : code.leads_to)
                if (const auto target = functions.find(to); target != functions.end() && target->second.avx && !code.avx && !code.sse)
                    more = code.avx = true;
    }
    int plain = 0, wide = 0;
    for (const auto& [address, code] : functions) {
        (code.avx ? wide : plain)++;
        if (code.avx) {
            EXPECT_FALSE(code.name.starts_with("tarn_") || code.name.starts_with("_ZGVb") || code.name.starts_with("_ZN4tarn7callout")) << code.name;
            continue;
        }
        for (const auto& to : code.leads_to)
            if (const auto target = functions.find(to); target != functions.end()) {
                EXPECT_FALSE(target->second.avx) << code.name << " leads to " << target->second.name;
            }
    }
    EXPECT_GT(plain, 300);
    EXPECT_GT(wide, 200);
}

// Loops of AVX functions hold no instruction of AVX2: their registers are those of AVX, their integers of 16 bytes.
TEST(LibraryFile, HasAvxFunctionsWithoutAvx2) {
    const std::regex beyond("^\\s+[0-9a-f]+:\\s+(vp.*%ymm|v[a-z]*i128|vfn?m|vbroadcasts[sd]\\s+%xmm|[a-z]*x\\s.*%r.*%r.*%r)");
    bool inside = false;
    int instructions = 0;
    for (const auto& line : output("objdump -d --no-show-raw-insn \"" + ArrayLibrary::built_path() + '"')) {
        if (line.ends_with(">:")) inside = line.find("<_ZGVc") != std::string::npos;
        else if (inside) {
            instructions++;
            EXPECT_FALSE(std::regex_search(line, beyond)) << line;
        }
    }
    EXPECT_GT(instructions, 1000);
}

}  // namespace
}  // namespace tarn::test
