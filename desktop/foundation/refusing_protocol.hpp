// Keeps Foundation's older loading, NSURLConnection, on this machine too.
#pragma once

namespace desktop::foundation {

/// From now on, NSURLConnection cannot find hosts beyond this machine. Once.
void installRefusingProtocol();

} // namespace desktop::foundation
