// Running the application until the process is asked to stop.
#pragma once

namespace desktop::host {

/// From now on an interrupt, hang-up or termination signal asks the process to stop; a second one
/// ends it at once.
void watchForStop();

/// Asks the process to stop. Any thread.
void stop();

/// Any thread.
[[nodiscard]] bool isStopRequested();

/// The signal that asked the process to stop, or 0.
[[nodiscard]] int stopSignal();

/// Runs the main thread's work until nothing is left; what the application throws meanwhile is
/// printed and ends that piece of work only.
void runWhatIsDue();

/// Runs the application's work as it falls due until a stop is requested.
void runUntilStopped();

} // namespace desktop::host
