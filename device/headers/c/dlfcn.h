// The phone's dynamic loader.
#pragma once

#define RTLD_NOW 0x2

extern "C" {
void* dlopen(const char* path, int mode);
void* dlsym(void* library, const char* symbol);
}
