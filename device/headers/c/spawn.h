// Starting programs on the phone.
#pragma once

#include <sys/types.h>

typedef void* posix_spawn_file_actions_t;
typedef void* posix_spawnattr_t;

extern "C" {
int posix_spawn(pid_t* process, const char* path, const posix_spawn_file_actions_t* actions,
                const posix_spawnattr_t* attributes, char* const* arguments,
                char* const* environment);
int posix_spawn_file_actions_init(posix_spawn_file_actions_t* actions);
int posix_spawn_file_actions_destroy(posix_spawn_file_actions_t* actions);
int posix_spawn_file_actions_addchdir_np(posix_spawn_file_actions_t* actions, const char* folder);
}
