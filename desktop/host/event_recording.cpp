// Listening to the system log and to reports of swallowed exceptions.
#include "desktop/host/event_recording.hpp"

#include "bindings/foundation/notification_center.hpp"
#include "desktop/foundation/text.hpp"
#include "desktop/runtime/event_log.hpp"

#include <cstdio>

extern "C" {
/// Foundation prints each finished line of its log through this function.
extern void (*_NSLog_printf_handler)(id message);
}

namespace desktop::host {
namespace {

using namespace ns::literals;

/// The line without Foundation's "date time process[thread] " in front and the line break behind.
std::u16string_view messageIn(std::u16string_view line) {
    constexpr std::u16string_view endOfPrefix = u"] ";
    if (const auto end = line.find(endOfPrefix); end != std::u16string_view::npos) {
        line.remove_prefix(end + endOfPrefix.size());
    }
    if (line.ends_with(u'\n')) {
        line.remove_suffix(1);
    }
    return line;
}

void logged(id message) {
    const std::u16string line = objc::wrap<ns::String>(message).utf16();
    std::fputs(toUtf8(line).c_str(), stderr);
    const auto fields = ns::MutableDictionary::make();
    fields.set(ns::String::from(messageIn(line)), u"text"_ns);
    EventLog::shared().record("log", fields);
}

} // namespace

void recordEvents() {
    _NSLog_printf_handler = &logged;
    ns::NotificationCenter::defaultCenter().addObserverForName(
        u"WentraExceptionSwallowed"_ns, nullptr, nullptr,
        objc::Block<void(ns::Notification)>::from([](ns::Notification notification) {
            EventLog::shared().record("exception", notification.userInfo());
        }));
}

} // namespace desktop::host
