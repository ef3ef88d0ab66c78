// System calls of the phone.
#pragma once

#include <sys/types.h>

#define F_OK 0

extern "C" {
int access(const char* path, int mode);
int close(int descriptor);
char* getcwd(char* path, size_t size);
char* mkdtemp(char* pattern);
ssize_t pread(int descriptor, void* bytes, size_t size, off_t offset);
ssize_t write(int descriptor, const void* bytes, size_t size);
}
