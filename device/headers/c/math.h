// The phone's floating-point functions.
#pragma once

typedef float float_t;
typedef double double_t;

#define HUGE_VAL __builtin_huge_val()
#define INFINITY __builtin_inff()
#define NAN __builtin_nanf("")

#define FP_NAN 1
#define FP_INFINITE 2
#define FP_ZERO 3
#define FP_NORMAL 4
#define FP_SUBNORMAL 5

extern "C" {
double acos(double x);
float acosf(float x);
double asin(double x);
float asinf(float x);
double atan(double x);
float atanf(float x);
double cbrt(double x);
float cbrtf(float x);
double ceil(double x);
float ceilf(float x);
double cos(double x);
float cosf(float x);
double exp(double x);
float expf(float x);
double exp2(double x);
float exp2f(float x);
double fabs(double x);
float fabsf(float x);
double floor(double x);
float floorf(float x);
double log(double x);
float logf(float x);
double log10(double x);
float log10f(float x);
double log2(double x);
float log2f(float x);
double nearbyint(double x);
float nearbyintf(float x);
double rint(double x);
float rintf(float x);
double round(double x);
float roundf(float x);
double sin(double x);
float sinf(float x);
double sqrt(double x);
float sqrtf(float x);
double tan(double x);
float tanf(float x);
double trunc(double x);
float truncf(float x);
double atan2(double x, double y);
float atan2f(float x, float y);
double copysign(double x, double y);
float copysignf(float x, float y);
double fdim(double x, double y);
float fdimf(float x, float y);
double fmax(double x, double y);
float fmaxf(float x, float y);
double fmin(double x, double y);
float fminf(float x, float y);
double fmod(double x, double y);
float fmodf(float x, float y);
double hypot(double x, double y);
float hypotf(float x, float y);
double nextafter(double x, double y);
float nextafterf(float x, float y);
double pow(double x, double y);
float powf(float x, float y);
double remainder(double x, double y);
float remainderf(float x, float y);
double fma(double x, double y, double z);
float fmaf(float x, float y, float z);
double ldexp(double x, int exponent);
float ldexpf(float x, int exponent);
double frexp(double x, int* exponent);
float frexpf(float x, int* exponent);
double modf(double x, double* whole);
float modff(float x, float* whole);
double scalbn(double x, int exponent);
float scalbnf(float x, int exponent);
long lrint(double x);
long lrintf(float x);
long lround(double x);
long lroundf(float x);
long long llrint(double x);
long long llrintf(float x);
long long llround(double x);
long long llroundf(float x);
}
