// What people read about the system's own errors.
#pragma once

namespace desktop::foundation {

/// Errors of the system's numbers say what went wrong, in the system's words, as on the phone.
void installErrorDescriptions();

} // namespace desktop::foundation
