// The keys of entries.
#include "library/crashlogs/report_entry.hpp"

namespace wentra::crashlogs {
namespace {

using namespace ns::literals;

ns::String urlKey() { return u"fileURL"_ns; }
ns::String dateKey() { return u"creationDate"_ns; }
ns::String protectionKey() { return u"fileProtection"_ns; }

void put(ns::MutableDictionary entry, objc::Object value, ns::String key) {
    if (value) {
        entry.set(value, key);
    }
}

} // namespace

ReportEntry ReportEntry::of(objc::Object entry) {
    const auto values = entry.as<ns::Dictionary>();
    return {values.get(urlKey()).as<ns::Url>(), values.get(dateKey()).as<ns::Date>(),
            values.get(protectionKey())};
}

ns::Dictionary ReportEntry::dictionary() const {
    const auto entry = ns::MutableDictionary::make();
    put(entry, url, urlKey());
    put(entry, created, dateKey());
    put(entry, protection, protectionKey());
    return entry;
}

} // namespace wentra::crashlogs
