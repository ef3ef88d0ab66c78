// Opening files on the phone.
#pragma once

#include <sys/types.h>

#define O_RDONLY 0x0000
#define O_NONBLOCK 0x0004
#define O_CLOEXEC 0x1000000

extern "C" int open(const char* path, int flags, ...);
