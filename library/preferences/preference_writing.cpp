// Reading the preference file as a dictionary, changing it, writing it back.
#include "library/preferences/preference_writing.hpp"

#include "bindings/foundation/dictionary.hpp"
#include "bindings/foundation/file_manager.hpp"
#include "bindings/foundation/property_list_serialization.hpp"
#include "library/paths/root_path.hpp"
#include "library/preferences/parsed_file.hpp"
#include "library/preferences/property_list/file_reading.hpp"

#include <utility>

namespace wentra::preferences {
namespace {

/// The bytes of a file that is read as preferences; nil of any other. Foundation would follow any
/// nesting, load a file of any size and wait for a pipe.
ns::Data soundBytes(const std::string& path) {
    std::optional<PaddedBytes> bytes = OpenFile(path.c_str()).contents(ParsedFile::largest);
    if (!bytes) {
        return nullptr;
    }
    const ParsedFile file(std::move(*bytes));
    return file.isSound() ? ns::Data::from(file.bytes()) : nullptr;
}

/// What the file holds, to be changed; empty without a file, nil when there is no dictionary in it.
ns::MutableDictionary entriesOf(ns::String path) {
    const auto entries = ns::MutableDictionary::make();
    if (ns::FileManager::defaultManager().fileExists(path)) {
        const ns::Data data = soundBytes(path.utf8());
        const auto stored =
            data ? ns::PropertyListSerialization::propertyList(data).value.as<ns::Dictionary>()
                 : nullptr;
        if (!stored) {
            return nullptr;
        }
        entries.addEntries(stored);
    }
    return entries;
}

/// Replaces the file.
bool write(ns::Dictionary entries, ns::String path) {
    const auto list = ns::PropertyListSerialization::data(entries, ns::PropertyListFormat::xml);
    return list && !list.value.writeToFile(path, ns::DataWritingOptions::atomic);
}

} // namespace

ns::MutableDictionary storedPreferences() {
    const auto entries = entriesOf(ns::String::fromUtf8(paths::preferencePath()));
    return entries ? entries : ns::MutableDictionary::make();
}

bool storePreferences(ns::Dictionary entries) {
    const auto path = ns::String::fromUtf8(paths::preferencePath());
    return entries && entriesOf(path) && write(entries, path);
}

bool storePreference(const Key& key, objc::Object value) {
    return storePreference(ns::String::fromUtf8(key.name()), value);
}

bool changePreference(ns::String name, objc::Object value) {
    return ns::FileManager::defaultManager().fileExists(
               ns::String::fromUtf8(paths::preferencePath())) &&
           storePreference(name, value);
}

bool storePreference(ns::String name, objc::Object value) {
    const auto path = ns::String::fromUtf8(paths::preferencePath());
    const auto entries = entriesOf(path);
    if (!entries) {
        return false;
    }
    if (value) {
        entries.set(value, name);
    } else {
        entries.remove(name);
    }
    return write(entries, path);
}

} // namespace wentra::preferences
