// The phone's error numbers, as far as they are asked about.
#pragma once

extern "C" int* __error();

#define errno (*__error())

#define EINTR 4
#define EBUSY 16
#define EEXIST 17
#define EXDEV 18
#define EINVAL 22
#define ERANGE 34
#define ENOTSUP 45
#define ETIMEDOUT 60
