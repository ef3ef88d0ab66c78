// The end of a process whose threads still work.
#pragma once

namespace desktop {

/// Writes out what standard streams hold and ends the process at once. Threads of the network, of
/// services and of queues go on to the last moment: neither statics nor libraries are torn down
/// under them, as `exit` would do.
[[noreturn]] void endProcess(int status);

} // namespace desktop
