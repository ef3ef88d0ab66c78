// Translates between the device's paths and the places where their files really are.
#pragma once

#include <climits>
#include <cstddef>

namespace desktop {

/// Where a path leads: under the root folder for a device path, unchanged for any other one.
///
/// Paths are brought into normal form by their text alone: doubled slashes and "." go, ".." takes
/// back a step, and "/private/var" is "/var". A path that enters the device's tree stays under the
/// root folder, however many ".." follow. Relative paths are never changed, nor are "/usr/bin/ar"
/// and "/usr/bin/tar" unless they exist under the root folder. Nothing is allocated; `path`, which
/// may be null, must outlive this.
class DevicePath {
public:
    explicit DevicePath(const char* path);
    DevicePath(const DevicePath&) = delete;
    DevicePath& operator=(const DevicePath&) = delete;

    /// Whether the real path would exceed the system's limit.
    bool isTooLong() const { return tooLong_; }
    /// The real path.
    const char* get() const { return path_; }

private:
    const char* path_;
    bool tooLong_ = false;
    char real_[PATH_MAX];
};

/// The device path of a real path in the device's tree: a part of `real`; else `real` itself.
const char* devicePathOf(const char* real);

} // namespace desktop
