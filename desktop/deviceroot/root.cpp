// Keeps the root folder in static storage, shared with the environment.
#include "desktop/deviceroot/root.hpp"

#include "desktop/deviceroot/deviceroot.hpp"
#include "desktop/deviceroot/redirect.hpp"

#include <dlfcn.h>

#include <climits>
#include <cstdlib>
#include <cstring>

namespace desktop {
namespace {

constexpr std::string_view rootVariable = "WENTRA_DEVICE_ROOT=";
constexpr std::string_view preloadVariable = "LD_PRELOAD=";

// The environment refers to these, so that neither allocation nor freeing is needed.
char rootEntry[rootVariable.size() + PATH_MAX];
char preloadEntry[preloadVariable.size() + std::size_t{2} * PATH_MAX];
std::atomic<std::size_t> rootLength = 0;
std::atomic<bool> environmentWasRead = false;

std::string_view rootValue() {
    return {rootEntry + rootVariable.size(), rootLength.load(std::memory_order_acquire)};
}

// Appends to a terminated text in a buffer that is large enough.
void append(char* entry, std::string_view text) {
    const std::size_t length = std::strlen(entry);
    std::memcpy(entry + length, text.data(), text.size());
    entry[length + text.size()] = 0;
}

// Children may be started in another folder: the path has to be absolute. Where this process is
// emulated, theirs is another library, that of the machine.
std::string_view libraryPath(char (&canonical)[PATH_MAX]) {
    if (const char* const childrens = std::getenv("WENTRA_DEVICE_ROOT_LIBRARY");
        childrens != nullptr && std::strlen(childrens) < PATH_MAX) {
        return childrens;
    }
    Dl_info information;
    if (dladdr(&rootEntry, &information) == 0 || information.dli_fname == nullptr) {
        return {};
    }
    const char* const path = DEVICEROOT_NEXT(realpath)(information.dli_fname, canonical);
    return path == nullptr ? "" : path;
}

void preloadIntoChildren() {
    if (preloadEntry[0] != 0) {
        return;
    }
    char canonical[PATH_MAX];
    const std::string_view library = libraryPath(canonical);
    const char* const before = std::getenv("LD_PRELOAD");
    const std::string_view others = before ? before : "";
    append(preloadEntry, preloadVariable);
    if (others.find(library) == others.npos) {
        append(preloadEntry, library);
    }
    if (!others.empty() && others.size() < PATH_MAX) {
        append(preloadEntry, preloadEntry[preloadVariable.size()] != 0 ? ":" : "");
        append(preloadEntry, others);
    }
    putenv(preloadEntry);
}

std::string_view withoutSlashAtEnd(std::string_view folder) {
    while (folder.ends_with('/')) {
        folder.remove_suffix(1);
    }
    return folder;
}

bool setRoot(const char* folder) {
    char canonical[PATH_MAX];
    const char* const resolved = DEVICEROOT_NEXT(realpath)(folder, canonical);
    const std::string_view path = withoutSlashAtEnd(resolved ? resolved : folder);
    if (folder[0] != '/' || path.size() >= PATH_MAX) {
        return false;
    }
    rootLength.store(0, std::memory_order_release);
    rootEntry[0] = 0;
    append(rootEntry, rootVariable);
    append(rootEntry, path);
    rootLength.store(path.size(), std::memory_order_release);
    putenv(rootEntry);
    preloadIntoChildren();
    return true;
}

void readEnvironment() {
    if (environmentWasRead.exchange(true)) {
        return;
    }
    const char* const folder = std::getenv("WENTRA_DEVICE_ROOT");
    if (folder != nullptr && folder[0] != 0) {
        setRoot(folder);
    }
}

// Before the program's own code can start a thread or a child.
[[gnu::constructor]] void activate() { readEnvironment(); }

} // namespace

std::string_view rootFolder() {
    if (!environmentWasRead.load(std::memory_order_acquire)) {
        readEnvironment();
    }
    return rootValue();
}

Inheritance inheritance() { return {rootEntry, preloadEntry}; }

} // namespace desktop

bool deviceroot_set(const char* folder) {
    desktop::readEnvironment();
    if (folder != nullptr && folder[0] != 0) {
        return desktop::setRoot(folder);
    }
    desktop::rootLength.store(0, std::memory_order_release);
    desktop::rootEntry[desktop::rootVariable.size()] = 0;
    unsetenv("WENTRA_DEVICE_ROOT");
    return true;
}

const char* deviceroot_get() {
    const std::string_view folder = desktop::rootFolder();
    return folder.empty() ? "" : folder.data();
}
