// Memory, numbers and the end of a process on the phone.
#pragma once

#include <stddef.h>

typedef struct {
    int quot;
    int rem;
} div_t;
typedef struct {
    long quot;
    long rem;
} ldiv_t;
typedef struct {
    long long quot;
    long long rem;
} lldiv_t;

extern "C" {
void* malloc(size_t size);
void* calloc(size_t count, size_t size);
void* realloc(void* memory, size_t size);
void free(void* memory);
int posix_memalign(void** memory, size_t alignment, size_t size);
[[noreturn]] void abort();

char* realpath(const char* path, char* resolved);

char* getenv(const char* name);
unsigned arc4random_uniform(unsigned bound);

int abs(int number);
long labs(long number);
long long llabs(long long number);
div_t div(int number, int divisor);
ldiv_t ldiv(long number, long divisor);
lldiv_t lldiv(long long number, long long divisor);

double strtod(const char* text, char** end);
float strtof(const char* text, char** end);
long strtol(const char* text, char** end, int base);
long long strtoll(const char* text, char** end, int base);
unsigned long strtoul(const char* text, char** end, int base);
unsigned long long strtoull(const char* text, char** end, int base);
}
