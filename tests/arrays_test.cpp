// The functions on arrays: an element's bits depend on that element alone, and are width 16's of a vector that holds it
// in every lane.
#include <gtest/gtest.h>

#include <set>

#include "commands.hpp"
#include "common/arrays.hpp"
#include "samples.hpp"

namespace tarn::test {
namespace {

const ArrayLibrary& library() {
    static const ArrayLibrary l;
    return l;
}

// What a function makes of its elements. Results and arguments lie `offset` bytes beyond an aligned address, and what
// lies around the results is looked at afterwards.
struct Computed {
    Lanes first, second;
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
        for (std::size_t a = 0; a < args.size(); a++) beyond |= rooms[a].touched() || std::memcmp(rooms[a].at(), args[a].data(), rooms[a].size());
    }

    // The first difference in an element, as words; empty where there is none.
    std::string difference(std::size_t i, const Computed& other, std::size_t j) const { return difference(i, other.first, other.second, j); }
    std::string difference(std::size_t i, const Lanes& other, const Lanes& other_second, std::size_t j) const {
        if (!same(first.type(), first.pattern(i), other.pattern(j))) return hex(first.pattern(i)) + " and " + hex(other.pattern(j));
        if (second.size() && !same(second.type(), second.pattern(i), other_second.pattern(j)))
            return "second " + hex(second.pattern(i)) + " and " + hex(other_second.pattern(j));
        return "";
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

class ArrayElements : public testing::TestWithParam<ArrayMember> {};

// Width 16 with one element in every lane, for each; the elements in the order of their kinds, so that vectors of the
// loop are mixed as well as not.
TEST_P(ArrayElements, AreWidth16sOfEqualLanes) {
    const auto& m = GetParam();
    const ArrayFunction f = m.function();
    auto args = samples(*m.family, 4000, 5);
    const Computed here(f, args);
    EXPECT_FALSE(here.beyond);
    const std::size_t n = args[0].size();
    std::vector<Lanes> spread;
    for (const Lanes& arg : args) {
        spread.emplace_back(arg.type(), n * widest);
        for (std::size_t i = 0; i < n * widest; i++) spread.back().set(i, arg.pattern(i / widest));
    }
    Lanes first, second;
    m.at(16)(spread, first, &second);
    for (std::size_t i = 0; i < n; i++)
        ASSERT_EQ(here.difference(i, first, second, i * widest), "") << f.name() << '(' << lanes_text(args, i) << ")";
}

INSTANTIATE_TEST_SUITE_P(Families, ArrayElements, testing::ValuesIn(array_members()), [](const auto& info) { return info.param.name(); });

}  // namespace
}  // namespace tarn::test
