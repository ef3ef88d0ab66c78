// Listening to the event log.
#include "desktop/viewer/event_feed.hpp"

#include "bindings/objc/pool.hpp"
#include "desktop/runtime/main_queue.hpp"

#include <algorithm>

namespace desktop::viewer {

EventFeed::EventFeed(host::Values& values, std::function<void(const host::Json&)> tell)
    : values_(values), tell_(std::move(tell)), self_(std::make_shared<EventFeed*>(this)) {
    for (const LoggedEvent& event : EventLog::shared().events()) {
        keep(event);
    }
    EventLog::shared().whenRecorded([weak = std::weak_ptr(self_)](const LoggedEvent& event) {
        MainQueue::shared().add([weak, event] {
            if (const auto self = weak.lock()) {
                (*self)->tell_((*self)->keep(event));
            }
        });
    });
}

EventFeed::~EventFeed() { EventLog::shared().whenRecorded(nullptr); }

const host::Json& EventFeed::keep(const LoggedEvent& event) {
    const objc::Pool pool;
    host::Json entry = host::toJson(values_, event);
    entry["number"] = ++last_;
    if (events_.size() == mostEvents) {
        events_.pop_front();
    }
    return events_.emplace_back(std::move(entry));
}

std::string EventFeed::fileOf(const std::string& number) const {
    for (const host::Json& event : events_) {
        if (std::to_string(event.at("number").get<std::uint64_t>()) == number) {
            const auto file = event.find("file");
            return file != event.end() && file->is_string() ? file->get<std::string>() : "";
        }
    }
    return {};
}

std::uint64_t EventFeed::numberOf(const std::string& file) const {
    const auto carries = [&file](const host::Json& event) {
        const auto found = event.find("file");
        return found != event.end() && *found == file;
    };
    const auto latest = std::find_if(events_.rbegin(), events_.rend(), carries);
    return latest == events_.rend() ? 0 : latest->at("number").get<std::uint64_t>();
}

} // namespace desktop::viewer
