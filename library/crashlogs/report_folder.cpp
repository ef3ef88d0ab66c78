// Lists folders, asks what is known of the files, sorts.
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

ns::Url folderOf(Shown shown) {
    return ns::Url::fileUrlWithPath(shown == Shown::documents
                                        ? u"/var/mobile/Documents"_ns
                                        : u"/var/mobile/Library/Logs/CrashReporter"_ns,
                                    true);
}

ns::Result<ns::ArrayOf<ns::Url>> visibleIn(ns::Url folder, ns::ArrayOf<ns::String> keys) {
    return ns::FileManager::defaultManager().contentsOfDirectory(
        folder, keys, ns::DirectoryEnumerationOptions::skipsHiddenFiles);
}

/// What an entry tells of its file.
ns::ArrayOf<ns::String> entryKeys() {
    const auto keys = ns::MutableArray::make();
    keys.add(ns::url_resources::creationDate());
    keys.add(ns::url_resources::fileProtection());
    return keys.assume<ns::ArrayOf<ns::String>>();
}

/// By seconds since 1970, the newest first.
using Dated = std::multimap<double, objc::Strong<ns::Dictionary>, std::greater<>>;

class Listing {
public:
    explicit Listing(Shown shown)
        : shown_(shown), withFolders_(Preferences::read().on(preferences::keys.browseFolders)) {}

    [[nodiscard]] ns::Array entries() const {
        Dated found;
        for (const ns::Url url : visibleIn(folderOf(shown_), keys_).value) {
            const objc::Pool pool; // what an entry does not keep makes room for the next
            if (isTaken(url)) {
                take(url, found);
            }
        }
        const auto entries = ns::MutableArray::make();
        for (const auto& [date, entry] : found) {
            entries.add(entry);
        }
        return entries;
    }

private:
    [[nodiscard]] bool isTaken(ns::Url url) const {
        return url.hasDirectoryPath() ? withFolders_ : isListed(url.path().utf8(), shown_);
    }
    void take(ns::Url url, Dated& found) const {
        const auto known = url.resourceValues(keys_).value;
        const auto created = known.get(ns::url_resources::creationDate()).as<ns::Date>();
        const ReportEntry entry{url, created, known.get(ns::url_resources::fileProtection())};
        found.emplace(created ? created.timeIntervalSince1970() : 0, entry.dictionary());
    }

    Shown shown_;
    bool withFolders_;
    ns::ArrayOf<ns::String> keys_ = entryKeys();
};

} // namespace

Shown shownByPreference() {
    return Preferences::read().on(preferences::keys.viewLocalFiles) ? Shown::documents
                                                                    : Shown::reports;
}

ns::Array listedEntries() { return Listing(shownByPreference()).entries(); }

ns::Result<ns::Array> entriesIn(ns::Url folder) {
    const auto [urls, error] = visibleIn(folder, nullptr);
    if (error) {
        return {nullptr, error};
    }
    const auto entries = ns::MutableArray::make();
    for (const ns::Url url : urls) {
        entries.add(ReportEntry{url}.dictionary());
    }
    return {entries, nullptr};
}

} // namespace wentra::crashlogs
