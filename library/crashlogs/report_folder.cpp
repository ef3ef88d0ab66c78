// Lists folders, asks for attributes, sorts.
#include "library/crashlogs/report_folder.hpp"

#include "bindings/foundation/file_manager.hpp"
#include "bindings/objc/pool.hpp"
#include "library/crashlogs/report_entry.hpp"
#include "library/preferences/preference_keys.hpp"
#include "library/preferences/preferences.hpp"

#include <functional>
#include <map>

namespace wentra::crashlogs {
namespace {

using namespace ns::literals;
using preferences::Preferences;

ns::String folderOf(Shown shown) {
    return shown == Shown::documents ? u"/var/mobile/Documents"_ns
                                     : u"/var/mobile/Library/Logs/CrashReporter"_ns;
}

/// The names of what is not hidden.
ns::Result<ns::ArrayOf<ns::String>> namesIn(ns::String folder) {
    const auto [all, error] = ns::FileManager::defaultManager().contentsOfDirectory(folder);
    if (error) {
        return {nullptr, error};
    }
    const auto names = ns::MutableArray::make();
    for (const ns::String name : all) {
        if (!name.utf16().starts_with(u'.')) {
            names.add(name);
        }
    }
    return {names.assume<ns::ArrayOf<ns::String>>(), nullptr};
}

/// By seconds since 1970, the newest first.
using Dated = std::multimap<double, objc::Strong<ns::Dictionary>, std::greater<>>;

class Listing {
public:
    explicit Listing(Shown shown)
        : shown_(shown), folder_(folderOf(shown)),
          withFolders_(Preferences::read().on(preferences::keys.browseFolders)) {}

    [[nodiscard]] ns::Array entries() const {
        Dated found;
        for (const ns::String name : namesIn(folder_).value) {
            const objc::Pool pool; // what an entry does not keep makes room for the next
            take(name, found);
        }
        const auto entries = ns::MutableArray::make();
        for (const auto& [date, entry] : found) {
            entries.add(entry);
        }
        return entries;
    }

private:
    void take(ns::String name, Dated& found) const {
        const bool isListedFile = isListed(name.utf8(), shown_);
        if (!isListedFile && !withFolders_) {
            return; // whatever it is
        }
        const ns::String path = folder_.appendingPathComponent(name);
        const auto attributes = ns::FileManager::defaultManager().attributesOfItem(path).value;
        const bool isFolder = ns::file_attributes::isDirectory(attributes);
        if (!(isFolder ? withFolders_ : isListedFile)) {
            return;
        }
        const auto created = attributes.get(ns::file_attributes::creationDate()).as<ns::Date>();
        const ReportEntry entry{ns::Url::fileUrlWithPath(path, isFolder), created,
                                attributes.get(ns::file_attributes::protection())};
        found.emplace(created ? created.timeIntervalSince1970() : 0, entry.dictionary());
    }

    Shown shown_;
    ns::String folder_;
    bool withFolders_;
};

} // namespace

Shown shownByPreference() {
    return Preferences::read().on(preferences::keys.viewLocalFiles) ? Shown::documents
                                                                    : Shown::reports;
}

ns::Array listedEntries() { return Listing(shownByPreference()).entries(); }

ns::Result<ns::Array> entriesIn(ns::String folder) {
    const auto [names, error] = namesIn(folder);
    if (error) {
        return {nullptr, error};
    }
    const auto entries = ns::MutableArray::make();
    for (const ns::String name : names) {
        const ns::String path = folder.appendingPathComponent(name);
        const auto attributes = ns::FileManager::defaultManager().attributesOfItem(path).value;
        const bool isFolder = ns::file_attributes::isDirectory(attributes);
        entries.add(ReportEntry{ns::Url::fileUrlWithPath(path, isFolder)}.dictionary());
    }
    return {entries, nullptr};
}

} // namespace wentra::crashlogs
