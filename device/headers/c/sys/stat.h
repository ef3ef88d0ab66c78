// What the phone's kernel tells of a file.
#pragma once

#include <sys/types.h>
#include <time.h>

struct stat {
    dev_t st_dev;
    mode_t st_mode;
    nlink_t st_nlink;
    ino_t st_ino;
    uid_t st_uid;
    gid_t st_gid;
    dev_t st_rdev;
    struct timespec st_atimespec;
    struct timespec st_mtimespec;
    struct timespec st_ctimespec;
    struct timespec st_birthtimespec;
    off_t st_size;
    blkcnt_t st_blocks;
    blksize_t st_blksize;
    uint32_t st_flags;
    uint32_t st_gen;
    int32_t st_lspare;
    int64_t st_qspare[2];
};

#define S_IFMT 0170000
#define S_ISDIR(mode) (((mode) & S_IFMT) == 0040000)
#define S_ISREG(mode) (((mode) & S_IFMT) == 0100000)

extern "C" {
int stat(const char* path, struct stat* status);
int chmod(const char* path, mode_t mode);
int fstat(int descriptor, struct stat* status);
int lstat(const char* path, struct stat* status);
int fstatat(int folder, const char* path, struct stat* status, int flags);
int mkdir(const char* path, mode_t mode);
}
