// Messages sent after a delay, on the desktop's clock.
#pragma once

namespace desktop::foundation {

/// Lets performSelector:withObject:afterDelay: and its relatives of NSObject wait on the clock,
/// virtual or real. They are for the main thread.
void installDelayedPerform();

} // namespace desktop::foundation
