// What happened outside the views: opened URLs, sounds, log lines, swallowed exceptions.
#pragma once

#include "bindings/foundation/dictionary.hpp"

#include <deque>
#include <functional>
#include <mutex>
#include <string>

namespace desktop {

/// One event: what kind of thing ("openURL"), and what is known of it under string keys.
struct LoggedEvent {
    std::string kind;
    objc::Strong<ns::Dictionary> fields;
};

/// The process's log of events, for whoever watches it from outside. Any thread.
class EventLog {
public:
    static EventLog& shared();

    /// Appends an event; `fields`, of values that do not change, is copied. Beyond `mostEvents`,
    /// the oldest are forgotten: perhaps nobody is watching.
    void record(std::string kind, ns::Dictionary fields);
    /// From now on `watcher` is called with each event that is recorded, on the recording thread;
    /// null: nobody watches.
    void whenRecorded(std::function<void(const LoggedEvent&)> watcher);
    /// In order.
    [[nodiscard]] std::deque<LoggedEvent> events() const;
    /// The events, in order; the log is empty then.
    std::deque<LoggedEvent> take();

    static constexpr std::size_t mostEvents = 10'000;

private:
    mutable std::mutex mutex_;
    std::deque<LoggedEvent> events_;
    std::function<void(const LoggedEvent&)> watcher_;
};

} // namespace desktop
