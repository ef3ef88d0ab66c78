// Observers of notifications that are told by a selector.
#pragma once

namespace desktop::foundation {

/// From now on, a notification centre forgets such an observer when it dies. Once.
void installObservers();

} // namespace desktop::foundation
