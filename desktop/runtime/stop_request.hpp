// Asking the process to come to its end.
#pragma once

namespace desktop::stop_request {

/// From now on an interrupt, hang-up or termination signal makes the request. A child process calls
/// this anew.
void watchSignals();

/// Any thread.
void make();
[[nodiscard]] bool isMade();

/// The signal that has made the request, or 0.
[[nodiscard]] int signal();

/// Readable from the request on; -1 before signals are watched.
[[nodiscard]] int descriptor();

} // namespace desktop::stop_request
