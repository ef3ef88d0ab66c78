// Giving up the processor on the phone.
#pragma once

extern "C" int sched_yield();
