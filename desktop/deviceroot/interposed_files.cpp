// The C library's functions that open files, redirected.
#include "desktop/deviceroot/redirect.hpp"

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

using desktop::DevicePath;

namespace {

bool createsFile(int flags) { return (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE; }

// Translates a template, and hands the name that was made of it back to the caller.
template <typename Make>
auto makeTemporary(char* pattern, Make make) {
    using Result = decltype(make(pattern));
    const DevicePath path(pattern);
    if (path.isTooLong()) {
        return desktop::failure<Result>(ENAMETOOLONG);
    }
    if (path.get() == pattern) {
        return make(pattern);
    }
    char real[PATH_MAX];
    std::strcpy(real, path.get());
    const Result result = make(real);
    const char* const name = std::strrchr(real, '/');
    char* const place = std::strrchr(pattern, '/');
    std::copy(name, name + std::min(std::strlen(name), std::strlen(place)), place);
    return result;
}

} // namespace

// The mode is an argument only of the calls that may create a file.
#define READ_MODE(flags)                                                                           \
    mode_t mode = 0;                                                                               \
    if (createsFile(flags)) {                                                                      \
        va_list arguments;                                                                         \
        va_start(arguments, flags);                                                                \
        mode = va_arg(arguments, mode_t);                                                          \
        va_end(arguments);                                                                         \
    }

extern "C" {

int open(const char* path, int flags, ...) {
    READ_MODE(flags)
    DEVICEROOT_REDIRECT(open, DevicePath(path), flags, mode);
}
int open64(const char* path, int flags, ...) {
    READ_MODE(flags)
    DEVICEROOT_REDIRECT(open64, DevicePath(path), flags, mode);
}
int openat(int folder, const char* path, int flags, ...) {
    READ_MODE(flags)
    DEVICEROOT_REDIRECT(openat, folder, DevicePath(path), flags, mode);
}
int openat64(int folder, const char* path, int flags, ...) {
    READ_MODE(flags)
    DEVICEROOT_REDIRECT(openat64, folder, DevicePath(path), flags, mode);
}
int __open_2(const char* path, int flags);
int __open_2(const char* path, int flags) {
    DEVICEROOT_REDIRECT(__open_2, DevicePath(path), flags);
}
int __open64_2(const char* path, int flags);
int __open64_2(const char* path, int flags) {
    DEVICEROOT_REDIRECT(__open64_2, DevicePath(path), flags);
}
int __openat_2(int folder, const char* path, int flags);
int __openat_2(int folder, const char* path, int flags) {
    DEVICEROOT_REDIRECT(__openat_2, folder, DevicePath(path), flags);
}
int __openat64_2(int folder, const char* path, int flags);
int __openat64_2(int folder, const char* path, int flags) {
    DEVICEROOT_REDIRECT(__openat64_2, folder, DevicePath(path), flags);
}
int creat(const char* path, mode_t mode) { DEVICEROOT_REDIRECT(creat, DevicePath(path), mode); }
int creat64(const char* path, mode_t mode) { DEVICEROOT_REDIRECT(creat64, DevicePath(path), mode); }

FILE* fopen(const char* path, const char* mode) {
    DEVICEROOT_REDIRECT(fopen, DevicePath(path), mode);
}
FILE* fopen64(const char* path, const char* mode) {
    DEVICEROOT_REDIRECT(fopen64, DevicePath(path), mode);
}
FILE* freopen(const char* path, const char* mode, FILE* stream) {
    DEVICEROOT_REDIRECT(freopen, DevicePath(path), mode, stream);
}
FILE* freopen64(const char* path, const char* mode, FILE* stream) {
    DEVICEROOT_REDIRECT(freopen64, DevicePath(path), mode, stream);
}

DIR* opendir(const char* path) { DEVICEROOT_REDIRECT(opendir, DevicePath(path)); }
int scandir(const char* path, dirent*** names, int (*filter)(const dirent*),
            int (*compare)(const dirent**, const dirent**)) {
    DEVICEROOT_REDIRECT(scandir, DevicePath(path), names, filter, compare);
}
int scandir64(const char* path, dirent64*** names, int (*filter)(const dirent64*),
              int (*compare)(const dirent64**, const dirent64**)) {
    DEVICEROOT_REDIRECT(scandir64, DevicePath(path), names, filter, compare);
}

int mkstemp(char* pattern) { return makeTemporary(pattern, DEVICEROOT_NEXT(mkstemp)); }
int mkstemp64(char* pattern) { return makeTemporary(pattern, DEVICEROOT_NEXT(mkstemp64)); }
int mkostemp(char* pattern, int flags) {
    return makeTemporary(pattern,
                         [&](char* real) { return DEVICEROOT_NEXT(mkostemp)(real, flags); });
}
int mkostemp64(char* pattern, int flags) {
    return makeTemporary(pattern,
                         [&](char* real) { return DEVICEROOT_NEXT(mkostemp64)(real, flags); });
}
int mkstemps(char* pattern, int length) {
    return makeTemporary(pattern,
                         [&](char* real) { return DEVICEROOT_NEXT(mkstemps)(real, length); });
}
int mkstemps64(char* pattern, int length) {
    return makeTemporary(pattern,
                         [&](char* real) { return DEVICEROOT_NEXT(mkstemps64)(real, length); });
}
char* mkdtemp(char* pattern) noexcept {
    char* const made = makeTemporary(pattern, DEVICEROOT_NEXT(mkdtemp));
    return made == nullptr ? nullptr : pattern;
}

} // extern "C"
