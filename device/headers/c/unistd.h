// System calls of the phone.
#pragma once

#include <sys/types.h>

#define F_OK 0

extern "C" {
int access(const char* path, int mode);
int close(int descriptor);
ssize_t read(int descriptor, void* bytes, size_t size);
}
