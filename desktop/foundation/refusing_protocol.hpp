// Keeps Foundation's older loading, NSURLConnection and what only wants the bytes, on this machine
// too.
#pragma once

namespace desktop::foundation {

/// From now on, they cannot find hosts beyond this machine. Once.
void installRefusingProtocol();

} // namespace desktop::foundation
