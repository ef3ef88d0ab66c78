// Searching texts whatever their accents, which GNUstep Base lacks.
#pragma once

namespace desktop::foundation {

/// Makes searches that are insensitive to accents find what has or lacks any, as the phone's do.
void installStringSearch();

} // namespace desktop::foundation
