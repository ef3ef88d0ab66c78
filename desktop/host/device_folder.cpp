// Making and removing the device's root folder.
#include "desktop/host/device_folder.hpp"

#include "desktop/deviceroot/deviceroot.hpp"

#include <cstdlib>
#include <stdexcept>
#include <system_error>

namespace desktop::host {
namespace {

std::filesystem::path freshFolder() {
    std::string pattern = std::filesystem::temp_directory_path() / "wentra-device-XXXXXX";
    if (mkdtemp(pattern.data()) == nullptr) {
        throw std::filesystem::filesystem_error("cannot make a folder", pattern,
                                                std::error_code(errno, std::generic_category()));
    }
    return pattern;
}

std::filesystem::path existingFolder(const std::filesystem::path& folder) {
    std::filesystem::create_directories(folder);
    return std::filesystem::canonical(folder);
}

} // namespace

DeviceFolder::DeviceFolder(const std::optional<std::filesystem::path>& given)
    : path_(given ? existingFolder(*given) : freshFolder()), temporary_(!given) {
    if (!deviceroot_set(path_.c_str())) {
        throw std::runtime_error("cannot use as the device's root: " + path_.string());
    }
    // What every phone has; its other folders are made by whoever writes into them.
    std::filesystem::create_directories(path_ / "var/mobile/Library/Preferences");
    std::filesystem::create_directories(path_ / "Library");
}

DeviceFolder::~DeviceFolder() {
    deviceroot_set(nullptr);
    remove();
}

void DeviceFolder::remove() const {
    if (temporary_) {
        std::error_code ignored; // the system clears its temporary folders itself
        std::filesystem::remove_all(path_, ignored);
    }
}

} // namespace desktop::host
