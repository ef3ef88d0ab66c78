// Time on the phone.
#pragma once

#include <sys/types.h>

struct timespec {
    time_t tv_sec;
    long tv_nsec;
};

#define CLOCK_REALTIME 0
#define CLOCK_MONOTONIC 6

extern "C" {
int clock_gettime(int clock, struct timespec* time);
int nanosleep(const struct timespec* duration, struct timespec* remaining);
}
