// The short buzz that answers an action.
#pragma once

namespace wentra {

/// Plays the tap once.
void hapticTap();

/// Plays the tap twice, 0.1 s apart. Main thread.
void doubleHapticTap();

} // namespace wentra
