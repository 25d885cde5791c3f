// The functions on arrays as a user has them: libtarn loaded from its file, functions resolved by name.
#pragma once

#include "common/module.hpp"

namespace tarn {

class ArrayFunction {
public:
    const Family& family() const { return *family_; }
    std::string name() const { return array_name(family_->base, variant_); }

    // n elements, at any addresses; `second` where the family has a second result.
    void operator()(std::size_t n, const void* const* args, void* result, void* second = nullptr) const;

private:
    friend class ArrayLibrary;
    const Family* family_ = nullptr;
    Variant variant_{};
    void* address_ = nullptr;
};

class ArrayLibrary {
public:
    // The library of the build that this program belongs to, or the one that the environment's TARN_LIBRARY names.
    explicit ArrayLibrary(const std::string& path = built_path());
    static std::string built_path();

    std::optional<ArrayFunction> find(const Family& f, Variant v) const;
    void* symbol(const std::string& name) const;

private:
    void* handle_;
};

}  // namespace tarn
