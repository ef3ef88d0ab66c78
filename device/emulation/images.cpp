// Other libraries: Linux numbers the ways to open them differently, but for the two below.
#include "device/emulation/imports.hpp"
#include "device/emulation/refusal.hpp"

#include <dlfcn.h>

namespace emulation {
namespace {

void* openLibrary(const char* path, int mode) {
    if (mode != RTLD_LAZY && mode != RTLD_NOW) {
        refuse("dlopen's mode " + std::to_string(mode));
    }
    return dlopen(path, mode);
}

/// The phone numbers the handles that stand for several libraries from -1 downwards.
void* symbol(void* library, const char* name) {
    constexpr long lowestOfPhone = -5;
    const auto handle = reinterpret_cast<long>(library);
    if (handle <= 0 && handle >= lowestOfPhone) {
        refuse("dlsym of the handle " + std::to_string(handle));
    }
    return dlsym(library, name);
}

} // namespace

std::vector<Translation> imageTranslations() {
    return {
        translation("_dlopen", &openLibrary),
        translation("_dlsym", &symbol),
    };
}

} // namespace emulation
