// Opening files on the phone.
#pragma once

#include <sys/types.h>

#define O_RDONLY 0x0000
#define O_WRONLY 0x0001
#define O_NONBLOCK 0x0004
#define O_NOFOLLOW 0x0100
#define O_CREAT 0x0200
#define O_EXCL 0x0800
#define O_DIRECTORY 0x100000
#define O_CLOEXEC 0x1000000

#define AT_SYMLINK_NOFOLLOW 0x0020

extern "C" int open(const char* path, int flags, ...);
