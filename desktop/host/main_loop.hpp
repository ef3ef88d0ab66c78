// Running the application until the process is asked to stop.
#pragma once

namespace desktop::host {

/// Runs the main thread's work until nothing is left; what the application throws meanwhile is
/// printed and ends that piece of work only.
void runWhatIsDue();

/// Runs the application's work as it falls due until a stop is requested.
void runUntilStopped();

} // namespace desktop::host
