// Describing and reporting exceptions at the border.
#include "bindings/objc/boundary.hpp"

#include "bindings/foundation/log.hpp"
#include "bindings/foundation/notification_center.hpp"
#include "bindings/objc/exception_in_flight.hpp"
#include "bindings/objc/pool.hpp"

namespace objc {
namespace {

std::string textOf(ns::String text) { return text ? text.utf8() : std::string(); }

} // namespace

ExceptionText describeCurrentException() {
    if (const Object thrown = exceptionInFlight(); thrown) {
        if (const auto exception = thrown.as<ns::Exception>(); exception) {
            return {textOf(exception.name()), textOf(exception.reason())};
        }
        return {object_getClassName(thrown.raw()), ""};
    }
    return describeCxxExceptionInFlight();
}

void reportSwallowed(const char* where) noexcept {
    try {
        const Pool pool;
        const ExceptionText text = describeCurrentException();
        logLine(std::string("swallowed at ") + where + ": " + text.name + ": " + text.reason);
        using namespace ns::literals;
        auto details = ns::MutableDictionary::make();
        details.set(ns::String::fromUtf8(where), u"where"_ns);
        details.set(ns::String::fromUtf8(text.name), u"name"_ns);
        details.set(ns::String::fromUtf8(text.reason), u"reason"_ns);
        ns::NotificationCenter::defaultCenter().post(u"WentraExceptionSwallowed"_ns, nullptr,
                                                     details);
    } catch (...) { // NOLINT(bugprone-empty-catch): there is nobody left to tell.
    }
}

void logLine(const std::string& text) noexcept {
    try {
        const Pool pool;
        ns::log("Wentra: " + text);
    } catch (...) { // NOLINT(bugprone-empty-catch): a log that cannot be written hurts nobody.
    }
}

} // namespace objc
