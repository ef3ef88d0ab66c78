// Work that must not overlap, although the run loop runs in the middle of it.
#pragma once

#include <deque>
#include <functional>
#include <utility>

namespace desktop::viewer {

/// Runs pieces of work one after the other: one that is added while another runs waits for its
/// end. What one of them throws is passed on; those behind it follow with the next. One thread.
class Turns {
public:
    void add(std::function<void()> work) {
        waiting_.push_back(std::move(work));
        if (isRunning_) {
            return;
        }
        const Running running(*this);
        while (!waiting_.empty()) {
            const std::function<void()> next = std::move(waiting_.front());
            waiting_.pop_front();
            next();
        }
    }

private:
    class Running {
    public:
        explicit Running(Turns& turns) : turns_(turns) { turns_.isRunning_ = true; }
        Running(const Running&) = delete;
        Running& operator=(const Running&) = delete;
        ~Running() { turns_.isRunning_ = false; }

    private:
        Turns& turns_;
    };

    std::deque<std::function<void()>> waiting_;
    bool isRunning_ = false;
};

} // namespace desktop::viewer
