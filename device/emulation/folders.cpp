// Folders: `struct dirent` differs, so each open folder has one of the phone's.
#include "device/emulation/imports.hpp"
#include "device/emulation/phone_structures.hpp"

#include <map>
#include <mutex>

namespace emulation {
namespace {

/// The entries that were read last, by folder: valid until the next one or until it is closed.
class LastEntries {
public:
    PhoneEntry* set(DIR* folder, const PhoneEntry& entry) {
        const std::scoped_lock lock(mutex_);
        return &(entries_[folder] = entry);
    }
    void forget(DIR* folder) {
        const std::scoped_lock lock(mutex_);
        entries_.erase(folder);
    }

private:
    std::mutex mutex_;
    std::map<DIR*, PhoneEntry> entries_;
};

LastEntries& lastEntries() {
    static auto* entries = new LastEntries;
    return *entries;
}

PhoneEntry* nextEntry(DIR* folder) {
    const dirent* entry = readdir(folder);
    return entry != nullptr ? lastEntries().set(folder, phoneEntry(*entry)) : nullptr;
}

int closeFolder(DIR* folder) {
    lastEntries().forget(folder);
    return closedir(folder);
}

} // namespace

std::vector<Translation> folderTranslations() {
    return {
        translation("_closedir", &closeFolder),
        translation("_readdir", &nextEntry),
    };
}

} // namespace emulation
