// The library as the host loads it: a module that brings the phone's file.
#include "device/emulation/image.hpp"

#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <exception>

namespace {

/// What WENTRA_DYLIB names, or the file that lies beside this module under its name.
std::filesystem::path libraryFile() {
    if (const char* named = std::getenv("WENTRA_DYLIB"); named != nullptr) {
        return named;
    }
    Dl_info module{};
    dladdr(reinterpret_cast<const void*>(&libraryFile), &module);
    return std::filesystem::path(module.dli_fname).replace_extension(".dylib");
}

[[gnu::constructor]] void bringLibrary() {
    const std::filesystem::path file = libraryFile();
    try {
        emulation::bring(file);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s: refused: %s\n", file.c_str(), error.what());
        std::exit(EXIT_FAILURE);
    }
}

} // namespace
