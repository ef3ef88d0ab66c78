// Formatting, and removing and renaming files, on the phone.
#pragma once

#include <stdarg.h>
#include <stddef.h>

#define EOF (-1)

extern "C" {
int snprintf(char* buffer, size_t size, const char* format, ...)
    __attribute__((format(printf, 3, 4)));
int vsnprintf(char* buffer, size_t size, const char* format, va_list arguments)
    __attribute__((format(printf, 3, 0)));
int remove(const char* path);
int rename(const char* from, const char* to);
}
