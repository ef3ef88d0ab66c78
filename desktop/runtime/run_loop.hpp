// The main thread's run loop: queued work, due timers, and the platform's own run loop. A request
// to stop ends all of it between two pieces of work.
#pragma once

namespace desktop::run_loop {

/// Runs everything that can run now, in order, until nothing is left. Main thread.
void runUntilIdle();

/// Moves the virtual clock by that many seconds, running all that falls due in order, each at its
/// own moment. With the real clock it waits that long instead. Main thread.
void advance(double seconds);

/// Sleeps until something can run, `descriptor` (when not -1) becomes readable, the time is over,
/// or a stop is requested; then returns without running it. Main thread.
void sleep(int descriptor, double seconds);

} // namespace desktop::run_loop
