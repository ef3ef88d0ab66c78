// The folder that plays the device's file system while the host runs.
#pragma once

#include <filesystem>
#include <optional>

namespace desktop::host {

/// Makes the given folder, or a fresh one that is removed at the end, the root of all device paths.
class DeviceFolder {
public:
    /// Throws std::filesystem::filesystem_error when the folder cannot be made, std::runtime_error
    /// when it cannot serve as a root.
    explicit DeviceFolder(const std::optional<std::filesystem::path>& given);
    DeviceFolder(const DeviceFolder&) = delete;
    DeviceFolder& operator=(const DeviceFolder&) = delete;
    ~DeviceFolder();

    /// Removes the folder if it is a fresh one. Any thread.
    void remove() const;

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
    bool temporary_;
};

} // namespace desktop::host
