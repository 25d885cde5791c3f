// Where the arguments and results of an export travel, on System V and on Windows x64: for the catalogue, the pages and
// headers made from the table, and the tests that call by it. The module's own account of it is src/frame/abi.hpp.
#pragma once

#include <string>
#include <vector>

#include "families/families.hpp"

namespace tarn {

enum class Convention { system_v, windows };

struct Place {
    enum class Where {
        nowhere,  // there is no such argument or result
        vectors,  // xmm registers, in order
        integer,  // an integer register
        stack,    // above the return address
    };
    Where where = Where::nowhere;
    // The first xmm register; which integer register, in the convention's order, 0 for a result; which 8-byte slot
    // above the return address, the lowest being 1.
    int first = 0;
    int count = 0;              // how many registers or slots
    bool by_reference = false;  // a pointer to it travels, not it
    bool operator==(const Place&) const = default;
};

struct Placement {
    std::vector<Place> args;
    Place result;  // by reference: the hidden pointer, which is also returned in rax
    Place second;  // the pointer to a second result; nowhere if there is none or it is returned with the first
};

Placement placement(const Shape& shape, int width, Convention convention);

// 16-byte registers or blocks that a vector takes; width 3 is carried as 4.
int blocks(Lane type, int width);

// Whether a Windows compiler's __vectorcall places it alike: where nothing travels in a slot, and no single vector
// after a longer one. Widths 1 of integers and 2 of 32-bit lanes are then declared with a 16-byte vector, of which
// only those lanes count.
bool is_vectorcall(const Shape& shape, int width);

// For people: "xmm0", "xmm0-xmm3", "rdx, by reference", "slot 1, by reference"; and of an integer register that holds
// a number its name at that size, such as "edi". A result: "eax", "xmm0", "rcx, by reference; returned in rax".
std::string place_text(const Place& place, Convention convention);  // of a pointer: the register or slot
std::string argument_text(const Place& place, Lane type, Convention convention);
std::string result_text(const Place& place, Lane type, Convention convention);
// The register's name; `bytes` is 4 or 8.
std::string integer_register(int i, int bytes, Convention convention);

}  // namespace tarn
