// The C library's functions that read or change what is known about files, redirected.
#include "desktop/deviceroot/redirect.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <sys/statvfs.h>
#include <sys/time.h>
#include <unistd.h>
#include <utime.h>

using desktop::DevicePath;

extern "C" {

int access(const char* path, int mode) noexcept {
    DEVICEROOT_REDIRECT(access, DevicePath(path), mode);
}
int eaccess(const char* path, int mode) noexcept {
    DEVICEROOT_REDIRECT(eaccess, DevicePath(path), mode);
}
int euidaccess(const char* path, int mode) noexcept {
    DEVICEROOT_REDIRECT(euidaccess, DevicePath(path), mode);
}
int faccessat(int folder, const char* path, int mode, int flags) noexcept {
    DEVICEROOT_REDIRECT(faccessat, folder, DevicePath(path), mode, flags);
}

int stat(const char* path, struct stat* result) noexcept {
    DEVICEROOT_REDIRECT(stat, DevicePath(path), result);
}
int stat64(const char* path, struct stat64* result) noexcept {
    DEVICEROOT_REDIRECT(stat64, DevicePath(path), result);
}
int lstat(const char* path, struct stat* result) noexcept {
    DEVICEROOT_REDIRECT(lstat, DevicePath(path), result);
}
int lstat64(const char* path, struct stat64* result) noexcept {
    DEVICEROOT_REDIRECT(lstat64, DevicePath(path), result);
}
int fstatat(int folder, const char* path, struct stat* result, int flags) noexcept {
    DEVICEROOT_REDIRECT(fstatat, folder, DevicePath(path), result, flags);
}
int fstatat64(int folder, const char* path, struct stat64* result, int flags) noexcept {
    DEVICEROOT_REDIRECT(fstatat64, folder, DevicePath(path), result, flags);
}
int statx(int folder, const char* path, int flags, unsigned mask, struct statx* result) noexcept {
    DEVICEROOT_REDIRECT(statx, folder, DevicePath(path), flags, mask, result);
}

// Programs built for older versions of the C library call these.
int __xstat(int version, const char* path, struct stat* result) noexcept;
int __xstat(int version, const char* path, struct stat* result) noexcept {
    DEVICEROOT_REDIRECT(__xstat, version, DevicePath(path), result);
}
int __xstat64(int version, const char* path, struct stat64* result) noexcept;
int __xstat64(int version, const char* path, struct stat64* result) noexcept {
    DEVICEROOT_REDIRECT(__xstat64, version, DevicePath(path), result);
}
int __lxstat(int version, const char* path, struct stat* result) noexcept;
int __lxstat(int version, const char* path, struct stat* result) noexcept {
    DEVICEROOT_REDIRECT(__lxstat, version, DevicePath(path), result);
}
int __lxstat64(int version, const char* path, struct stat64* result) noexcept;
int __lxstat64(int version, const char* path, struct stat64* result) noexcept {
    DEVICEROOT_REDIRECT(__lxstat64, version, DevicePath(path), result);
}
int __fxstatat(int version, int folder, const char* path, struct stat* result, int flags) noexcept;
int __fxstatat(int version, int folder, const char* path, struct stat* result, int flags) noexcept {
    DEVICEROOT_REDIRECT(__fxstatat, version, folder, DevicePath(path), result, flags);
}
int __fxstatat64(int version, int folder, const char* path, struct stat64* result,
                 int flags) noexcept;
int __fxstatat64(int version, int folder, const char* path, struct stat64* result,
                 int flags) noexcept {
    DEVICEROOT_REDIRECT(__fxstatat64, version, folder, DevicePath(path), result, flags);
}

int statfs(const char* path, struct statfs* result) noexcept {
    DEVICEROOT_REDIRECT(statfs, DevicePath(path), result);
}
int statfs64(const char* path, struct statfs64* result) noexcept {
    DEVICEROOT_REDIRECT(statfs64, DevicePath(path), result);
}
int statvfs(const char* path, struct statvfs* result) noexcept {
    DEVICEROOT_REDIRECT(statvfs, DevicePath(path), result);
}
int statvfs64(const char* path, struct statvfs64* result) noexcept {
    DEVICEROOT_REDIRECT(statvfs64, DevicePath(path), result);
}
long pathconf(const char* path, int name) noexcept {
    DEVICEROOT_REDIRECT(pathconf, DevicePath(path), name);
}

int chmod(const char* path, mode_t mode) noexcept {
    DEVICEROOT_REDIRECT(chmod, DevicePath(path), mode);
}
int fchmodat(int folder, const char* path, mode_t mode, int flags) noexcept {
    DEVICEROOT_REDIRECT(fchmodat, folder, DevicePath(path), mode, flags);
}
int chown(const char* path, uid_t owner, gid_t group) noexcept {
    DEVICEROOT_REDIRECT(chown, DevicePath(path), owner, group);
}
int lchown(const char* path, uid_t owner, gid_t group) noexcept {
    DEVICEROOT_REDIRECT(lchown, DevicePath(path), owner, group);
}
int fchownat(int folder, const char* path, uid_t owner, gid_t group, int flags) noexcept {
    DEVICEROOT_REDIRECT(fchownat, folder, DevicePath(path), owner, group, flags);
}

int utime(const char* path, const utimbuf* times) noexcept {
    DEVICEROOT_REDIRECT(utime, DevicePath(path), times);
}
int utimes(const char* path, const timeval* times) noexcept {
    DEVICEROOT_REDIRECT(utimes, DevicePath(path), times);
}
int lutimes(const char* path, const timeval* times) noexcept {
    DEVICEROOT_REDIRECT(lutimes, DevicePath(path), times);
}
int utimensat(int folder, const char* path, const timespec* times, int flags) noexcept {
    DEVICEROOT_REDIRECT(utimensat, folder, DevicePath(path), times, flags);
}

int truncate(const char* path, off_t length) noexcept {
    DEVICEROOT_REDIRECT(truncate, DevicePath(path), length);
}
int truncate64(const char* path, off64_t length) noexcept {
    DEVICEROOT_REDIRECT(truncate64, DevicePath(path), length);
}

} // extern "C"
