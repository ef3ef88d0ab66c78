// Keeping the log of events.
#include "desktop/runtime/event_log.hpp"

#include <utility>

namespace desktop {

EventLog& EventLog::shared() {
    static auto* log = new EventLog; // background threads may use it until the process ends
    return *log;
}

void EventLog::record(std::string kind, ns::Dictionary fields) {
    const LoggedEvent event{std::move(kind), objc::Copied<ns::Dictionary>(fields)};
    std::function<void(const LoggedEvent&)> watcher;
    {
        const std::scoped_lock lock(mutex_);
        watcher = watcher_;
        events_.push_back(event);
        if (events_.size() > mostEvents) {
            events_.pop_front();
        }
    }
    if (watcher) { // not under the lock: it may record something itself
        watcher(event);
    }
}

void EventLog::whenRecorded(std::function<void(const LoggedEvent&)> watcher) {
    const std::scoped_lock lock(mutex_);
    watcher_ = std::move(watcher);
}

std::deque<LoggedEvent> EventLog::events() const {
    const std::scoped_lock lock(mutex_);
    return events_;
}

std::deque<LoggedEvent> EventLog::take() {
    const std::scoped_lock lock(mutex_);
    return std::exchange(events_, {});
}

} // namespace desktop
