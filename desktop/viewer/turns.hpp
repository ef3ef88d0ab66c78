// Work that must not overlap, although the run loop runs in the middle of it.
#pragma once

#include <deque>
#include <functional>
#include <utility>

namespace desktop::viewer {

/// Runs pieces of work one after the other: one that is added while another runs waits for its
/// end. They must not throw. One thread.
class Turns {
public:
    void add(std::function<void()> work) {
        waiting_.push_back(std::move(work));
        if (std::exchange(isRunning_, true)) {
            return;
        }
        for (; !waiting_.empty(); waiting_.pop_front()) {
            waiting_.front()();
        }
        isRunning_ = false;
    }

private:
    std::deque<std::function<void()>> waiting_;
    bool isRunning_ = false;
};

} // namespace desktop::viewer
