// The clock of animations.
#pragma once

/// Seconds since the phone was started.
extern "C" double CACurrentMediaTime();
