// The state of a character conversion, whose size templates of the C++ library want to know.
#pragma once

typedef union {
    char __mbstate8[128];
    long long _mbstateL;
} mbstate_t;
