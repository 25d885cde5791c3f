#include "common/arrays.hpp"

#include <dlfcn.h>

#include <stdexcept>

namespace tarn {

void ArrayFunction::operator()(std::size_t n, const void* const* args, void* result, void* second) const {
    using In = const void*;
    const bool two = family_->shape.second != Lane::none;
    switch (family_->shape.args.size()) {
        case 1:
            if (two) reinterpret_cast<void (*)(std::size_t, In, void*, void*)>(address_)(n, args[0], result, second);
            else reinterpret_cast<void (*)(std::size_t, In, void*)>(address_)(n, args[0], result);
            break;
        case 2:
            if (two) reinterpret_cast<void (*)(std::size_t, In, In, void*, void*)>(address_)(n, args[0], args[1], result, second);
            else reinterpret_cast<void (*)(std::size_t, In, In, void*)>(address_)(n, args[0], args[1], result);
            break;
        default: reinterpret_cast<void (*)(std::size_t, In, In, In, void*)>(address_)(n, args[0], args[1], args[2], result);
    }
}

ArrayLibrary::ArrayLibrary(const std::string& path) : handle_(dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL)) {
    if (!handle_) throw std::runtime_error(std::string("cannot load libtarn: ") + dlerror());
}

std::string ArrayLibrary::built_path() { return library_path("TARN_LIBRARY", TARN_LIBRARY_PATH); }

void* ArrayLibrary::symbol(const std::string& name) const { return dlsym(handle_, name.c_str()); }

std::optional<ArrayFunction> ArrayLibrary::find(const Family& f, Variant v) const {
    ArrayFunction found;
    found.family_ = &f;
    found.variant_ = v;
    found.address_ = symbol(found.name());
    return found.address_ ? std::optional(found) : std::nullopt;
}

}  // namespace tarn
