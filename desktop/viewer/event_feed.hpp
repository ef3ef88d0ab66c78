// What has happened on the phone, kept for pages that come later, and its files.
#pragma once

#include "desktop/host/commands.hpp"
#include "desktop/runtime/event_log.hpp"

#include <deque>
#include <functional>
#include <memory>
#include <string>

namespace desktop::viewer {

/// Numbers the events and keeps the latest. Main thread.
class EventFeed {
public:
    static constexpr std::size_t mostEvents = 1'000;

    /// Begins with what the log holds; from then on `tell` is called with each event. Events are
    /// JSON objects as in the automation protocol, with their number under "number".
    EventFeed(host::Values& values, std::function<void(const host::Json&)> tell);
    EventFeed(const EventFeed&) = delete;
    EventFeed& operator=(const EventFeed&) = delete;
    ~EventFeed();

    [[nodiscard]] const std::deque<host::Json>& events() const { return events_; }
    /// The file that the event with that number carries, by its path on the device; empty when it
    /// carries none or is not known.
    [[nodiscard]] std::string fileOf(const std::string& number) const;
    /// The number of the latest event that carries this file; 0 when none does.
    [[nodiscard]] std::uint64_t numberOf(const std::string& file) const;

private:
    const host::Json& keep(const LoggedEvent& event);

    host::Values& values_;
    std::function<void(const host::Json&)> tell_;
    std::uint64_t last_ = 0;
    std::deque<host::Json> events_;
    /// What is queued on the main thread must not outlive the feed.
    std::shared_ptr<EventFeed*> self_;
};

} // namespace desktop::viewer
