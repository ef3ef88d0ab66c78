// Fills the event log from what the platform says of itself: log lines and swallowed exceptions.
#pragma once

namespace desktop::host {

/// From now on each line of the system log, which still goes to standard error, and each exception
/// that a hook had to swallow is an event. Once.
void recordEvents();

} // namespace desktop::host
