// Reading the preference file as a dictionary, changing it, writing it back.
#include "library/startup/preference_writing.hpp"

#include "bindings/foundation/dictionary.hpp"
#include "bindings/foundation/file_manager.hpp"
#include "bindings/foundation/property_list.hpp"
#include "library/startup/root_path.hpp"

namespace wentra::startup {
namespace {

/// What the file holds, to be changed; empty without a file, nil when there is no dictionary in it.
ns::MutableDictionary entriesOf(ns::String path) {
    const auto entries = ns::MutableDictionary::make();
    if (ns::FileManager::standard().fileExists(path)) {
        const auto data = ns::Data::withContentsOfFile(path);
        const auto stored = data ? ns::PropertyList::from(data).as<ns::Dictionary>() : nullptr;
        if (!stored) {
            return nullptr;
        }
        entries.addEntries(stored);
    }
    return entries;
}

/// Replaces the file.
bool write(ns::Dictionary entries, ns::String path) {
    constexpr bool atomically = true;
    return ns::PropertyList::data(entries, ns::PropertyListFormat::xml)
        .writeToFile(path, atomically);
}

} // namespace

ns::MutableDictionary storedPreferences() {
    const auto entries = entriesOf(ns::String::fromUtf8(preferencePath()));
    return entries ? entries : ns::MutableDictionary::make();
}

bool storePreferences(ns::Dictionary entries) {
    const auto path = ns::String::fromUtf8(preferencePath());
    return entries && entriesOf(path) && write(entries, path);
}

bool storePreference(ns::String key, objc::Object value) {
    const auto path = ns::String::fromUtf8(preferencePath());
    const auto entries = entriesOf(path);
    if (!entries) {
        return false;
    }
    if (value) {
        entries.set(value, key);
    } else {
        entries.remove(key);
    }
    return write(entries, path);
}

} // namespace wentra::startup
