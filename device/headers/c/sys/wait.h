// Waiting for programs on the phone.
#pragma once

#include <sys/types.h>

extern "C" {
pid_t waitpid(pid_t process, int* status, int options);
}
