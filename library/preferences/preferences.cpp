// Reads the preference file, and parses it when it says something new.
#include "library/preferences/preferences.hpp"

#include "library/common/latest.hpp"
#include "library/paths/root_path.hpp"
#include "library/preferences/property_list/file_reading.hpp"

namespace wentra::preferences {
namespace {

/// What is in the file; null when it cannot be read.
std::shared_ptr<const ParsedFile> contents(const OpenFile& file) {
    if (!file.isOpen()) {
        return nullptr;
    }
    // One for all threads, since they read the same file.
    std::shared_ptr<const ParsedFile> last = Latest<ParsedFile>::get();
    if (last && file.holds(last->bytes())) {
        return last;
    }
    std::optional<PaddedBytes> bytes = file.contents(ParsedFile::largest);
    if (!bytes) {
        return nullptr;
    }
    auto parsed = std::make_shared<const ParsedFile>(std::move(*bytes));
    Latest<ParsedFile>::set(parsed);
    return parsed;
}

} // namespace

Preferences Preferences::read() {
    // A file below that folder opens only where there is one: usually nobody has to be asked.
    static const auto* const rootless = new std::string(paths::rootlessPath(paths::preferenceFile));
    const OpenFile file(rootless->c_str());
    if (file.isOpen() || paths::isRootless()) {
        return Preferences(contents(file));
    }
    return readFile(paths::rootfulPath(paths::preferenceFile));
}

Preferences Preferences::readFile(const std::string& path) {
    return Preferences(contents(OpenFile(path.c_str())));
}

Preferences Preferences::parse(std::string_view bytes) {
    if (bytes.size() > ParsedFile::largest) {
        return Preferences(nullptr);
    }
    return Preferences(std::make_shared<const ParsedFile>(PaddedBytes(bytes)));
}

} // namespace wentra::preferences
