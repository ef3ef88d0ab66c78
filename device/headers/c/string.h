// Bytes and C strings on the phone.
#pragma once

#include <stddef.h>

extern "C" {
void* memchr(const void* bytes, int byte, size_t size);
int memcmp(const void* one, const void* other, size_t size);
void* memcpy(void* to, const void* from, size_t size);
void* memmove(void* to, const void* from, size_t size);
void* memset(void* bytes, int byte, size_t size);
char* strchr(const char* text, int character);
int strcmp(const char* one, const char* other);
size_t strlen(const char* text);
int strncmp(const char* one, const char* other, size_t limit);
char* strpbrk(const char* text, const char* characters);
char* strrchr(const char* text, int character);
char* strstr(const char* text, const char* part);
}
