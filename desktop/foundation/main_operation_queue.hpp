// The main operation queue, which Foundation here would run on threads of its own.
#pragma once

namespace desktop::foundation {

/// Lets operations of the main queue run on the main thread in their turn. Blocks that observe
/// notifications on that queue run at once when the notification is posted on the main thread, as
/// on the phone; else in their turn there.
void installMainOperationQueue();

} // namespace desktop::foundation
