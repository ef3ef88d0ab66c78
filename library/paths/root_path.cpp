// Finds the jailbreak's path operations and stands in for those that are missing.
#include "library/paths/root_path.hpp"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <mutex>
#include <sys/stat.h>
#include <unistd.h>

namespace wentra::paths {
namespace {

constexpr std::size_t pathCapacity = 1024;

using TextOperation = const char*();
using PathOperation = char*(const char* path, char* buffer);

struct Operations {
    TextOperation* rootPrefix = nullptr;
    TextOperation* jbrootPrefix = nullptr;
    TextOperation* bootIdentifier = nullptr;
    PathOperation* jbrootPath = nullptr;
    PathOperation* rootfsPath = nullptr;
};

Operations operations;
std::once_flag operationsFlag;

// This folder, not /var/jb, is what the fallbacks ask about; other layouts leave it out on purpose.
bool hasMarkerFolder() { return access("/var/LIY", F_OK) == 0; }

bool beginsWith(const char* path, const char* prefix) {
    return std::strncmp(path, prefix, std::strlen(prefix)) == 0;
}

char* join(const char* prefix, const char* path, char* buffer) {
    if (buffer == nullptr) {
        buffer = static_cast<char*>(std::malloc(pathCapacity));
    }
    if (buffer != nullptr) {
        std::snprintf(buffer, pathCapacity, "%s%s", prefix, path);
    }
    return buffer;
}

const char* fallbackRootPrefix() { return ""; }

const char* fallbackJbrootPrefix() { return hasMarkerFolder() ? "/var/jb" : ""; }

const char* fallbackBootIdentifier() { return "00000000-0000-0000-0000-000000000000"; }

char* fallbackJbrootPath(const char* path, char* buffer) {
    if (path == nullptr) {
        return nullptr;
    }
    if (path[0] != '/') {
        return join("", path, buffer);
    }
    const char* prefix = libroot_dyn_get_jbroot_prefix();
    // User data is not moved on devices with the marker. Without a prefix there is nothing to ask.
    const bool moves = *prefix != '\0' && !(beginsWith(path, "/var/mobile") && hasMarkerFolder());
    return join(moves ? prefix : "", path, buffer);
}

char* fallbackRootfsPath(const char* path, char* buffer) {
    if (path == nullptr) {
        return nullptr;
    }
    if (path[0] != '/') {
        return join("", path, buffer);
    }
    const char* prefix = libroot_dyn_get_jbroot_prefix();
    if (beginsWith(path, prefix)) {
        return join("", path + std::strlen(prefix), buffer);
    }
    return join(libroot_dyn_get_root_prefix(), path, buffer);
}

template <typename Operation>
void fill(Operation*& slot, void* library, const char* symbol, Operation* fallback) {
    if (library != nullptr) {
        slot = reinterpret_cast<Operation*>(dlsym(library, symbol));
    }
    if (slot == nullptr) {
        slot = fallback;
    }
}

void fillOperations() {
    void* library = dlopen("@rpath/libroot.dylib", RTLD_NOW);
    fill(operations.rootPrefix, library, "libroot_get_root_prefix", fallbackRootPrefix);
    fill(operations.jbrootPrefix, library, "libroot_get_jbroot_prefix", fallbackJbrootPrefix);
    fill(operations.bootIdentifier, library, "libroot_get_boot_uuid", fallbackBootIdentifier);
    fill(operations.jbrootPath, library, "libroot_jbrootpath", fallbackJbrootPath);
    fill(operations.rootfsPath, library, "libroot_rootfspath", fallbackRootfsPath);
}

} // namespace

void libroot_load() { std::call_once(operationsFlag, fillOperations); }

const char* libroot_dyn_get_root_prefix() {
    libroot_load();
    return operations.rootPrefix();
}

const char* libroot_dyn_get_jbroot_prefix() {
    libroot_load();
    return operations.jbrootPrefix();
}

const char* libroot_dyn_get_boot_uuid() {
    libroot_load();
    return operations.bootIdentifier();
}

char* libroot_dyn_jbrootpath(const char* path, char* buffer) {
    libroot_load();
    return operations.jbrootPath(path, buffer);
}

char* libroot_dyn_rootfspath(const char* path, char* buffer) {
    libroot_load();
    return operations.rootfsPath(path, buffer);
}

bool isRootless() {
    struct stat status {};
    return stat("/var/jb", &status) == 0 && S_ISDIR(status.st_mode);
}

std::string rootlessPath(const std::string& path) { return "/var/jb" + path; }

std::string rootfulPath(const std::string& path) {
    std::array<char, pathCapacity> buffer{};
    const char* result = libroot_dyn_jbrootpath(path.c_str(), buffer.data());
    // NOLINTNEXTLINE(clang-analyzer-unix.Malloc): with a buffer given, nothing is allocated.
    return result == nullptr ? std::string() : std::string(result);
}

std::string twoFormPath(const std::string& path) {
    return isRootless() ? rootlessPath(path) : rootfulPath(path);
}

std::string preferencePath() { return twoFormPath(preferenceFile); }

std::string bundlePath(std::string_view name) {
    return twoFormPath(std::string(bundleFolder).append(name));
}

} // namespace wentra::paths
