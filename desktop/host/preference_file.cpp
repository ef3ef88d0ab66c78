// Reading and writing files of preferences.
#include "desktop/host/preference_file.hpp"

#include "desktop/foundation/property_list.hpp"
#include "desktop/host/json.hpp"

#include <filesystem>
#include <system_error>

namespace desktop::host {
namespace {

namespace fs = std::filesystem;

ns::String asString(const fs::path& path) { return ns::String::fromUtf8(path.string()); }

} // namespace

/// Jailbreaks without access to the system volume keep everything below a folder of their own.
PreferenceFile PreferenceFile::ofLibrary() {
    const fs::path jailbreak = "/var/jb";
    const fs::path path = "/var/mobile/Library/Preferences/cn.zerk.hovtanprefs.plist";
    return PreferenceFile(is_directory(jailbreak) ? jailbreak / path.relative_path() : path);
}

ns::Dictionary PreferenceFile::read() const {
    const auto data = ns::Data::withContentsOfFile(asString(path_));
    return data ? ns::PropertyListSerialization::propertyList(data).value.as<ns::Dictionary>()
                : ns::Dictionary();
}

void PreferenceFile::write(ns::Dictionary entries, ns::PropertyListFormat format) const {
    if (!foundation::propertyListCopy(entries)) { // Foundation would write a description
        throw RequestError("preferences can hold only what a property list can");
    }
    const auto [data, refused] = ns::PropertyListSerialization::data(entries, format);
    std::error_code failure;
    fs::create_directories(path_.parent_path(), failure);
    if (refused || data.writeToFile(asString(path_), ns::DataWritingOptions::atomic)) {
        throw RequestError("cannot write " + path_.string());
    }
}

void PreferenceFile::remove() const {
    std::error_code failure; // the caller reads the file back and sees
    fs::remove(path_, failure);
}

} // namespace desktop::host
