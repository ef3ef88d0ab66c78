// Reading and writing the preference file.
#include "desktop/host/preference_file.hpp"

#include "desktop/foundation/property_list.hpp"
#include "desktop/host/json.hpp"

#include <filesystem>
#include <system_error>

namespace desktop::host::preference_file {
namespace {

namespace fs = std::filesystem;

/// Jailbreaks without access to the system volume keep everything below a folder of their own.
fs::path file() {
    const fs::path jailbreak = "/var/jb";
    const fs::path path = "/var/mobile/Library/Preferences/cn.zerk.hovtanprefs.plist";
    return fs::is_directory(jailbreak) ? jailbreak / path.relative_path() : path;
}

ns::String asString(const fs::path& path) { return ns::String::fromUtf8(path.string()); }

} // namespace

ns::Dictionary read() {
    const auto data = ns::Data::withContentsOfFile(asString(file()));
    return data ? ns::PropertyListSerialization::propertyList(data).value.as<ns::Dictionary>()
                : ns::Dictionary();
}

void write(ns::Dictionary entries, ns::PropertyListFormat format) {
    if (!foundation::propertyListCopy(entries)) { // Foundation would write a description
        throw RequestError("preferences can hold only what a property list can");
    }
    const auto [data, refused] = ns::PropertyListSerialization::data(entries, format);
    std::error_code failure;
    fs::create_directories(file().parent_path(), failure);
    if (refused || data.writeToFile(asString(file()), ns::DataWritingOptions::atomic)) {
        throw RequestError("cannot write " + file().string());
    }
}

void remove() {
    std::error_code failure; // the caller reads the file back and sees
    fs::remove(file(), failure);
}

} // namespace desktop::host::preference_file
