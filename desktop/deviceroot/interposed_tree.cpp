// The C library's functions that change or walk the tree of files, redirected.
#include "desktop/deviceroot/redirect.hpp"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

using desktop::DevicePath;

namespace {

// Makes a device path of a real path in place, which can only be shorter.
char* mapBack(char* real) {
    if (real != nullptr) {
        const char* const device = desktop::devicePathOf(real);
        std::memmove(real, device, std::strlen(device) + 1);
    }
    return real;
}

// A link that leads into the device's tree is read as it was made.
template <typename Read>
ssize_t readMappedBack(char* buffer, std::size_t size, Read read) {
    char target[PATH_MAX];
    const ssize_t length = read(target, sizeof target - 1);
    if (length < 0) {
        return length;
    }
    target[length] = 0;
    const char* const device = desktop::devicePathOf(target);
    const std::size_t copied = std::min(size, std::strlen(device));
    std::copy_n(device, copied, buffer); // not terminated, as readlink has it
    return static_cast<ssize_t>(copied);
}

} // namespace

extern "C" {

int mkdir(const char* path, mode_t mode) noexcept {
    DEVICEROOT_REDIRECT(mkdir, DevicePath(path), mode);
}
int mkdirat(int folder, const char* path, mode_t mode) noexcept {
    DEVICEROOT_REDIRECT(mkdirat, folder, DevicePath(path), mode);
}
int mkfifo(const char* path, mode_t mode) noexcept {
    DEVICEROOT_REDIRECT(mkfifo, DevicePath(path), mode);
}
int mkfifoat(int folder, const char* path, mode_t mode) noexcept {
    DEVICEROOT_REDIRECT(mkfifoat, folder, DevicePath(path), mode);
}
int mknod(const char* path, mode_t mode, dev_t device) noexcept {
    DEVICEROOT_REDIRECT(mknod, DevicePath(path), mode, device);
}
int mknodat(int folder, const char* path, mode_t mode, dev_t device) noexcept {
    DEVICEROOT_REDIRECT(mknodat, folder, DevicePath(path), mode, device);
}

int rmdir(const char* path) noexcept { DEVICEROOT_REDIRECT(rmdir, DevicePath(path)); }
int unlink(const char* path) noexcept { DEVICEROOT_REDIRECT(unlink, DevicePath(path)); }
int unlinkat(int folder, const char* path, int flags) noexcept {
    DEVICEROOT_REDIRECT(unlinkat, folder, DevicePath(path), flags);
}
int remove(const char* path) noexcept { DEVICEROOT_REDIRECT(remove, DevicePath(path)); }

int rename(const char* from, const char* to) noexcept {
    DEVICEROOT_REDIRECT(rename, DevicePath(from), DevicePath(to));
}
int renameat(int fromFolder, const char* from, int toFolder, const char* to) noexcept {
    DEVICEROOT_REDIRECT(renameat, fromFolder, DevicePath(from), toFolder, DevicePath(to));
}
int renameat2(int fromFolder, const char* from, int toFolder, const char* to,
              unsigned flags) noexcept {
    DEVICEROOT_REDIRECT(renameat2, fromFolder, DevicePath(from), toFolder, DevicePath(to), flags);
}

int link(const char* from, const char* to) noexcept {
    DEVICEROOT_REDIRECT(link, DevicePath(from), DevicePath(to));
}
int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) noexcept {
    DEVICEROOT_REDIRECT(linkat, fromFolder, DevicePath(from), toFolder, DevicePath(to), flags);
}
// The system follows links by itself, so that they have to lead to the real place.
int symlink(const char* target, const char* path) noexcept {
    DEVICEROOT_REDIRECT(symlink, DevicePath(target), DevicePath(path));
}
int symlinkat(const char* target, int folder, const char* path) noexcept {
    DEVICEROOT_REDIRECT(symlinkat, DevicePath(target), folder, DevicePath(path));
}
ssize_t readlink(const char* path, char* buffer, size_t size) noexcept {
    return readMappedBack(buffer, size, [&](char* target, size_t room) {
        DEVICEROOT_REDIRECT(readlink, DevicePath(path), target, room);
    });
}
ssize_t __readlink_chk(const char* path, char* buffer, size_t size, size_t) noexcept;
ssize_t __readlink_chk(const char* path, char* buffer, size_t size, size_t) noexcept {
    return readlink(path, buffer, size);
}
ssize_t readlinkat(int folder, const char* path, char* buffer, size_t size) noexcept {
    return readMappedBack(buffer, size, [&](char* target, size_t room) {
        DEVICEROOT_REDIRECT(readlinkat, folder, DevicePath(path), target, room);
    });
}
ssize_t __readlinkat_chk(int folder, const char* path, char* buffer, size_t size, size_t) noexcept;
ssize_t __readlinkat_chk(int folder, const char* path, char* buffer, size_t size, size_t) noexcept {
    return readlinkat(folder, path, buffer, size);
}

char* realpath(const char* path, char* resolved) noexcept {
    const auto resolve = [&]() -> char* {
        DEVICEROOT_REDIRECT(realpath, DevicePath(path), resolved);
    };
    return mapBack(resolve());
}
char* __realpath_chk(const char* path, char* resolved, size_t) noexcept;
char* __realpath_chk(const char* path, char* resolved, size_t) noexcept {
    return realpath(path, resolved);
}
char* canonicalize_file_name(const char* path) noexcept { return realpath(path, nullptr); }

int chdir(const char* path) noexcept { DEVICEROOT_REDIRECT(chdir, DevicePath(path)); }
char* getcwd(char* buffer, size_t size) noexcept {
    return mapBack(DEVICEROOT_NEXT(getcwd)(buffer, size));
}
char* __getcwd_chk(char* buffer, size_t size, size_t) noexcept;
char* __getcwd_chk(char* buffer, size_t size, size_t) noexcept { return getcwd(buffer, size); }

} // extern "C"
