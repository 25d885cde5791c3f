#include "families/placement.hpp"

namespace tarn {
namespace {

using enum Place::Where;

int stored_bytes(Lane type, int width) { return (width == 3 ? 4 : width) * bytes(type); }

// A vector of at most 16 bytes in one xmm register, a number of width 1 where C has it, and a longer vector by value
// on the stack, at multiples of 16 bytes above the return address.
Placement system_v(const Shape& shape, int width) {
    Placement p;
    int integers = 0, vectors_used = 0, slots = 0;
    const int results = shape.pair ? 2 : 1;
    if (const int size = results * stored_bytes(shape.result, width); size > 16)
        p.result = {integer, integers++, 1, true};
    else if (width == 1 && !is_float(shape.result)) p.result = {integer, 0, 1};
    // Both results of a pair share a register only where they share 8 bytes.
    else p.result = {vectors, 0, size > 8 && shape.pair ? 2 : 1};
    for (const Lane type : shape.args) {
        const int size = stored_bytes(type, width);
        if (size > 16) p.args.push_back({stack, 1 + slots, size / 8}), slots += size / 8;
        else if (width == 1 && !is_float(type)) p.args.push_back({integer, integers++, 1});
        else p.args.push_back({vectors, vectors_used++, 1});
    }
    if (shape.second != Lane::none && !shape.pair) p.second = {integer, integers, 1, true};
    return p;
}

// Four xmm registers carry arguments. What takes more than four, the vectors of 16 lanes of 64 bits, travels by a
// pointer in the next integer register; what no longer fits whole into what is left, by one in a stack slot. A pointer
// to such a vector has every other slot, the one to a second result the next. A result of more than four registers
// goes through a hidden pointer.
Placement windows(const Shape& shape, int width) {
    constexpr int registers = 4;
    Placement p;
    int integers = 0, vectors_used = 0, slots = 0;
    const int result_blocks = (shape.pair ? 2 : 1) * blocks(shape.result, width);
    p.result = result_blocks > registers ? Place{integer, integers++, 1, true} : Place{vectors, 0, result_blocks};
    for (const Lane type : shape.args) {
        const int count = blocks(type, width);
        if (count > registers) {
            p.args.push_back({integer, integers++, 1, true});
        } else if (count > registers - vectors_used) {
            slots += slots % 2;
            p.args.push_back({stack, ++slots, 1, true});
            vectors_used = registers;
        } else {
            p.args.push_back({vectors, vectors_used, count});
            vectors_used += count;
        }
    }
    if (shape.second == Lane::none || shape.pair) return p;
    const bool in_memory = blocks(shape.args[0], width) > registers;
    p.second = in_memory ? Place{integer, integers, 1, true} : Place{stack, slots + 1, 1, true};
    return p;
}

std::string vector_text(const Place& place) {
    const std::string first = "xmm" + std::to_string(place.first);
    return place.count == 1 ? first : first + "-xmm" + std::to_string(place.first + place.count - 1);
}

}  // namespace

int blocks(Lane type, int width) { return (stored_bytes(type, width) + 15) / 16; }

Placement placement(const Shape& shape, int width, Convention convention) {
    return convention == Convention::system_v ? system_v(shape, width) : windows(shape, width);
}

bool is_vectorcall(const Shape& shape, int width) {
    const Placement p = placement(shape, width, Convention::windows);
    for (std::size_t i = 0; i < p.args.size(); i++) {
        const Place& arg = p.args[i];
        // A single vector has the register of its place among the arguments.
        const bool elsewhere = arg.where == vectors && arg.count == 1 && arg.first != static_cast<int>(i);
        if (arg.where == stack || elsewhere) return false;
    }
    return p.second.where != stack;
}

std::string integer_register(int i, int bytes, Convention convention) {
    static const char* const names[][2][4] = {{{"edi", "esi", "edx", "ecx"}, {"rdi", "rsi", "rdx", "rcx"}},
                                              {{"ecx", "edx", "r8d", "r9d"}, {"rcx", "rdx", "r8", "r9"}}};
    return names[convention == Convention::windows][bytes == 8][i];
}

std::string place_text(const Place& place, Convention convention) {
    switch (place.where) {
        case nowhere: break;
        case vectors: return vector_text(place);
        case integer: return integer_register(place.first, 8, convention);
        case stack:
            if (place.count == 1) return "slot " + std::to_string(place.first);
            return "slots " + std::to_string(place.first) + " to " + std::to_string(place.first + place.count - 1);
    }
    return "";
}

std::string argument_text(const Place& place, Lane type, Convention convention) {
    if (place.by_reference) return place_text(place, convention) + ", by reference";
    if (place.where == integer) return integer_register(place.first, bytes(type), convention);
    return place_text(place, convention);
}

std::string result_text(const Place& place, Lane type, Convention convention) {
    if (place.where == integer && !place.by_reference) return bytes(type) == 8 ? "rax" : "eax";
    return argument_text(place, type, convention) + (place.by_reference ? "; returned in rax" : "");
}

}  // namespace tarn
