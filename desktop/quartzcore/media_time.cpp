// The time since the device was started: that of the process, which is all that runs on it.
#include "bindings/quartzcore/media_time.hpp"

#include "desktop/runtime/clock.hpp"

double CACurrentMediaTime() { return desktop::Clock::shared().now(); }
