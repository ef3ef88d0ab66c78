// Keeping the log of happenings.
#include "desktop/runtime/event_log.hpp"

#include <utility>

namespace desktop {

EventLog& EventLog::shared() {
    static auto* log = new EventLog; // background threads may use it until the process ends
    return *log;
}

void EventLog::record(std::string kind, ns::Dictionary fields) {
    LoggedEvent event{std::move(kind), objc::Copied<ns::Dictionary>(fields)};
    const std::scoped_lock lock(mutex_);
    events_.push_back(std::move(event));
    if (events_.size() > mostEvents) {
        events_.pop_front();
    }
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
