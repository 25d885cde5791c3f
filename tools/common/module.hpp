// The built module as a user has it: loaded from its file, functions resolved by name and called on
// arrays of lanes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "families/families.hpp"

namespace tarn {

// Lanes of one type in consecutive memory, seen as bit patterns or values.
class Lanes {
public:
    Lanes() = default;
    Lanes(Lane type, std::size_t count)
        : type_(type), size_(count), lines_((count * static_cast<std::size_t>(tarn::bytes(type)) + sizeof(Line) - 1) / sizeof(Line)) {}

    Lane type() const { return type_; }
    std::size_t size() const { return size_; }
    std::byte* data() { return reinterpret_cast<std::byte*>(lines_.data()); }
    const std::byte* data() const { return reinterpret_cast<const std::byte*>(lines_.data()); }

    std::uint64_t pattern(std::size_t i) const { return wide() ? load<std::uint64_t>(i) : load<std::uint32_t>(i); }
    void set(std::size_t i, std::uint64_t pattern) {
        if (wide()) std::memcpy(data() + i * 8, &pattern, 8);
        else std::memcpy(data() + i * 4, &pattern, 4);
    }

private:
    // Vectors of any size lie within a line of the cache.
    struct alignas(64) Line { std::byte bytes[64]; };

    bool wide() const { return tarn::bytes(type_) == 8; }
    template <class Word> Word load(std::size_t i) const {
        Word word;
        std::memcpy(&word, data() + i * sizeof word, sizeof word);
        return word;
    }

    Lane type_ = Lane::none;
    std::size_t size_ = 0;
    std::vector<Line> lines_;
};

// A pattern of a lane type as a number (exact for all but the largest 64-bit integers), and back.
double value_of(Lane type, std::uint64_t pattern);
std::uint64_t pattern_of(Lane type, double value);

// One export. Arrays hold any number of lanes; whole calls of `width` lanes are made until they are
// used up, a rest is filled with the last lane. Lane 3 of width 3 holds a NaN in every call.
class Function {
public:
    const Family& family() const { return *of_.family; }
    int width() const { return of_.width; }
    Variant variant() const { return of_.variant; }
    std::string name() const { return export_name(of_.family->base, of_.width, of_.variant); }

    // `second` where the family has a second result.
    void operator()(const std::vector<Lanes>& args, Lanes& result, Lanes* second = nullptr) const;

    // The address, for timing and for calls at the C level.
    void* address() const { return address_; }

    // Makes `calls` calls on packed vectors, for timing: nothing is checked or filled.
    using Batch = void (*)(void* address, const std::byte* const* args, std::byte* result, std::byte* second,
                           std::size_t calls);
    Batch batch() const { return batch_; }

private:
    friend class Module;
    Export of_{};
    void* address_ = nullptr;
    Batch batch_ = nullptr;
};

// The file that the variable of the environment names. Else a program of the build takes the build's, and an installed
// one what the loader finds by its name.
std::string library_path(const char* variable, const std::filesystem::path& built);

class Module {
public:
    // The module as library_path has it from TARN_MODULE, or the one named here.
    explicit Module(const std::string& path = built_path());
    static std::string built_path();

    std::optional<Function> find(const Export& e) const;
    std::optional<Function> find(const std::string& base, int width, Variant v = Variant::full) const;
    bool has(const Family& f) const { return find({&f, 4, Variant::full}).has_value(); }

private:
    void* handle_;
};

}  // namespace tarn
