// Describing and reporting exceptions at the border.
#include "bindings/objc/boundary.hpp"

#include "bindings/foundation/log.hpp"
#include "bindings/foundation/notification_center.hpp"
#include "bindings/objc/exception_in_flight.hpp"
#include "bindings/objc/pool.hpp"

namespace objc {
namespace {

std::string textOf(ns::String text) { return text ? text.utf8() : std::string(); }

/// Tells log and notification centre of the exception being handled.
void report(const std::string& where) {
    using namespace ns::literals;
    const ExceptionText text = describeCurrentException();
    logLine("swallowed at " + where + ": " + text.name + ": " + text.reason);
    auto details = ns::MutableDictionary::make();
    details.set(ns::String::fromUtf8(where), u"where"_ns);
    details.set(ns::String::fromUtf8(text.name), u"name"_ns);
    details.set(ns::String::fromUtf8(text.reason), u"reason"_ns);
    ns::NotificationCenter::defaultCenter().post(u"WentraExceptionSwallowed"_ns, nullptr, details);
}

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
        report(where);
    } catch (...) { // NOLINT(bugprone-empty-catch): there is nobody left to tell.
    }
}

void reportSwallowed(SEL method, const char* className) noexcept {
    try {
        const Pool pool;
        report((className != nullptr ? std::string(className) + " " : "") + sel_getName(method));
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
