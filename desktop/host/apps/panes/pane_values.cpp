// Reading and writing the files of preferences by the rows' keys.
#include "desktop/host/apps/panes/pane_values.hpp"

#include "desktop/host/arguments.hpp"
#include "desktop/host/preference_file.hpp"

namespace desktop::host {
namespace {

using namespace ns::literals;

/// Preferences are named by a domain, or by a path without the extension.
PreferenceFile fileOf(const PaneRow& row) {
    const std::string domain = row.text(u"defaults"_ns).utf8();
    const bool isPath = domain.starts_with('/');
    return PreferenceFile((isPath ? "" : "/var/mobile/Library/Preferences/") + domain + ".plist");
}

/// A string or a number; nil for what is neither.
objc::Object valueOf(const PaneRow& row) {
    const auto entries = fileOf(row).read();
    const objc::Object stored = entries.get(row.text(u"key"_ns));
    const objc::Object value = stored ? stored : row.number(u"default"_ns);
    return value.as<ns::String>() || value.as<ns::Number>() ? value : objc::Object();
}

} // namespace

bool isOn(const PaneRow& row) { return valueOf(row).send<"boolValue", bool>(); }

ns::String shownText(const PaneRow& row) {
    const objc::Object value = valueOf(row);
    const auto number = value.as<ns::Number>();
    return number ? number.send<"stringValue", ns::String>() : value.as<ns::String>();
}

float shownNumber(const PaneRow& row) { return valueOf(row).send<"floatValue", float>(); }

bool store(const PaneRow& row, objc::Object value) {
    const ns::String key = row.text(u"key"_ns);
    if (!key || !row.text(u"defaults"_ns)) {
        return false;
    }
    const PreferenceFile file = fileOf(row);
    const auto entries = ns::MutableDictionary::make();
    if (const ns::Dictionary former = file.read(); former) {
        entries.addEntries(former);
    }
    entries.set(value, key);
    try {
        file.write(entries, ns::PropertyListFormat::binary);
        return true;
    } catch (const RequestError&) {
        return false;
    }
}

} // namespace desktop::host
