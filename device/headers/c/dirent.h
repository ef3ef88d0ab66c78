// Reading folders on the phone.
#pragma once

#include <sys/types.h>

struct dirent {
    ino_t d_ino;
    uint64_t d_seekoff;
    uint16_t d_reclen;
    uint16_t d_namlen;
    uint8_t d_type;
    char d_name[1024];
};

#define DT_UNKNOWN 0
#define DT_DIR 4
#define DT_REG 8

typedef struct _DIR DIR;

extern "C" {
DIR* fdopendir(int descriptor);
struct dirent* readdir(DIR* folder);
int closedir(DIR* folder);
}
