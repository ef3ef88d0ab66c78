// Work handed to the main thread, from any thread.
#pragma once

#include <deque>
#include <functional>
#include <mutex>

namespace desktop {

/// A queue that the run loop empties; file descriptors and pollers may watch `descriptor`.
class MainQueue {
public:
    static MainQueue& shared();

    /// Any thread.
    void add(std::function<void()> work);
    /// Makes `descriptor` readable, so that a sleeping run loop looks again. Any thread.
    void wake();
    /// Runs the oldest piece of work; false when there is none. Main thread.
    bool runNext();
    /// Readable while something has happened since the last `quiet`.
    [[nodiscard]] int descriptor() const { return descriptor_; }
    /// Makes `descriptor` unreadable again.
    void quiet();

private:
    MainQueue();

    std::mutex mutex_;
    std::deque<std::function<void()>> work_;
    int descriptor_;
};

} // namespace desktop
