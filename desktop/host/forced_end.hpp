// The end of a host that does not come to its end by itself.
#pragma once

#include <functional>
#include <thread>

namespace desktop::host {

/// As long as it lives, a request to stop ends the process after a moment, whatever the main thread
/// is doing.
class ForcedEnd {
public:
    /// `leave` is called on a thread of its own before the process is ended; its result is the exit
    /// status. Signals must be watched already.
    explicit ForcedEnd(std::function<int()> leave);
    ForcedEnd(const ForcedEnd&) = delete;
    ForcedEnd& operator=(const ForcedEnd&) = delete;
    ~ForcedEnd();

private:
    void watch() const;

    std::function<int()> leave_;
    int over_;
    std::thread thread_; // last: it uses all of the above
};

} // namespace desktop::host
