// The C library's functions that start programs and load libraries, redirected.
#include "desktop/deviceroot/redirect.hpp"
#include "desktop/deviceroot/root.hpp"

#include <alloca.h>
#include <spawn.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <string_view>

using desktop::DevicePath;

namespace {

bool isSet(const char* entry, std::string_view variable) {
    return std::string_view(entry).starts_with(variable);
}

std::size_t count(char* const* environment) {
    std::size_t number = 0;
    while (environment != nullptr && environment[number] != nullptr) {
        ++number;
    }
    return number;
}

// Copies an environment into an array with room for two more entries and the end; programs often
// hand on an environment that was recorded before the root was set.
char** inherit(char* const* environment, char** copy) {
    char** end = copy;
    for (std::size_t index = 0; index < count(environment); ++index) {
        char* const entry = environment[index];
        if (!isSet(entry, "WENTRA_DEVICE_ROOT=") && !isSet(entry, "LD_PRELOAD=")) {
            *end++ = entry;
        }
    }
    *end++ = desktop::inheritance().root;
    *end++ = desktop::inheritance().preload;
    *end = nullptr;
    return copy;
}

// Without a root, children get what they are given.
#define CHILD_ENVIRONMENT(environment)                                                             \
    (desktop::rootFolder().empty()                                                                 \
         ? (environment)                                                                           \
         : inherit(environment,                                                                    \
                   static_cast<char**>(alloca((count(environment) + 3) * sizeof(char*)))))

int errorOf(int result) { return result == -1 ? errno : result; }

// A library of the device that programs name relative to the place it is installed at.
void* openInstalled(std::string_view name, int mode) {
    for (const char* const folder : {"/var/jb/usr/lib/", "/usr/lib/"}) {
        char path[PATH_MAX];
        const std::string_view root = desktop::rootFolder();
        const int length = std::snprintf(path, sizeof path, "%s%s%.*s", root.data(), folder,
                                         static_cast<int>(name.size()), name.data());
        const bool fits = length > 0 && static_cast<std::size_t>(length) < sizeof path;
        if (fits && DEVICEROOT_NEXT(access)(path, F_OK) == 0) {
            return DEVICEROOT_NEXT(dlopen)(path, mode);
        }
    }
    return nullptr;
}

} // namespace

extern "C" {

int execve(const char* path, char* const* arguments, char* const* environment) noexcept {
    DEVICEROOT_REDIRECT(execve, DevicePath(path), arguments, CHILD_ENVIRONMENT(environment));
}
int execv(const char* path, char* const* arguments) noexcept {
    DEVICEROOT_REDIRECT(execv, DevicePath(path), arguments);
}
int execvp(const char* path, char* const* arguments) noexcept {
    DEVICEROOT_REDIRECT(execvp, DevicePath(path), arguments);
}
int execvpe(const char* path, char* const* arguments, char* const* environment) noexcept {
    DEVICEROOT_REDIRECT(execvpe, DevicePath(path), arguments, CHILD_ENVIRONMENT(environment));
}

int posix_spawn(pid_t* process, const char* path, const posix_spawn_file_actions_t* actions,
                const posix_spawnattr_t* attributes, char* const* arguments,
                char* const* environment) {
    const auto spawn = [&]() -> int {
        DEVICEROOT_REDIRECT(posix_spawn, process, DevicePath(path), actions, attributes, arguments,
                            CHILD_ENVIRONMENT(environment));
    };
    return errorOf(spawn());
}
int posix_spawnp(pid_t* process, const char* path, const posix_spawn_file_actions_t* actions,
                 const posix_spawnattr_t* attributes, char* const* arguments,
                 char* const* environment) {
    const auto spawn = [&]() -> int {
        DEVICEROOT_REDIRECT(posix_spawnp, process, DevicePath(path), actions, attributes, arguments,
                            CHILD_ENVIRONMENT(environment));
    };
    return errorOf(spawn());
}

int posix_spawn_file_actions_addchdir_np(posix_spawn_file_actions_t* actions,
                                         const char* folder) noexcept {
    const auto add = [&]() -> int {
        DEVICEROOT_REDIRECT(posix_spawn_file_actions_addchdir_np, actions, DevicePath(folder));
    };
    return errorOf(add());
}

void* dlopen(const char* path, int mode) noexcept {
    constexpr std::string_view searched = "@rpath/";
    const std::string_view name(path == nullptr ? "" : path);
    if (name.starts_with(searched) && !desktop::rootFolder().empty()) {
        if (void* library = openInstalled(
                {name.data() + searched.size(), name.size() - searched.size()}, mode)) {
            return library;
        }
    }
    DEVICEROOT_REDIRECT(dlopen, DevicePath(path), mode);
}

} // extern "C"
