// Brings paths into normal form in a bounded buffer, noticing on the way the device's folders.
#include "desktop/deviceroot/device_path.hpp"

#include "desktop/deviceroot/redirect.hpp"
#include "desktop/deviceroot/root.hpp"

#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <string_view>

namespace desktop {
namespace {

constexpr std::string_view deviceFolders[] = {"/var/mobile", "/var/jb", "/var/LIY", "/Library"};
constexpr std::string_view archivers[] = {"/usr/bin/ar", "/usr/bin/tar"};

bool isOneOf(std::string_view path, const auto& paths) {
    return std::find(std::begin(paths), std::end(paths), path) != std::end(paths);
}

// An absolute path in normal form, "" for the root, written into a given buffer.
class NormalPath {
public:
    NormalPath(char* start, std::size_t capacity) : start_(start), capacity_(capacity) {}

    void add(std::string_view path) {
        while (!path.empty() && !overflowed_) {
            const std::size_t end = std::min(path.find('/'), path.size());
            step({path.data(), end});
            path.remove_prefix(std::min(end + 1, path.size()));
        }
    }

    void keepSlashAtEnd() { append("/", {}); }

    std::string_view text() const { return {start_, length_}; }
    /// Whether the path was one of the device's folders at any step.
    bool enteredDevice() const { return enteredDevice_; }
    bool overflowed() const { return overflowed_; }

private:
    void step(std::string_view name) {
        if (name.empty() || name == ".") {
            return;
        }
        if (name == "..") {
            const std::size_t slash = text().rfind('/');
            shorten(slash == std::string_view::npos ? 0 : slash);
        } else {
            append("/", name);
        }
        if (text() == "/private/var") {
            shorten(0);
            append("/", "var");
        }
        enteredDevice_ = enteredDevice_ || isOneOf(text(), deviceFolders);
    }

    void shorten(std::size_t length) {
        length_ = length;
        start_[length_] = 0;
    }

    void append(std::string_view separator, std::string_view name) {
        // One byte stays for the terminator.
        if (separator.size() + name.size() >= capacity_ - length_) {
            overflowed_ = true;
            return;
        }
        for (const std::string_view part : {separator, name}) {
            std::copy(part.begin(), part.end(), start_ + length_);
            length_ += part.size();
        }
        start_[length_] = 0;
    }

    char* start_;
    std::size_t capacity_;
    std::size_t length_ = 0;
    bool enteredDevice_ = false;
    bool overflowed_ = false;
};

bool exists(const char* path) { return DEVICEROOT_NEXT(access)(path, F_OK) == 0; }

bool leadsIntoDevice(std::string_view path) {
    return std::any_of(std::begin(deviceFolders), std::end(deviceFolders), [&](auto folder) {
        return path.starts_with(folder) &&
               (path.size() == folder.size() || path[folder.size()] == '/');
    });
}

} // namespace

DevicePath::DevicePath(const char* path) : path_(path) {
    const std::string_view root = rootFolder();
    if (path == nullptr || path[0] != '/' || root.empty()) {
        return;
    }
    std::copy(root.begin(), root.end(), real_);
    real_[root.size()] = 0;
    NormalPath normal(real_ + root.size(), sizeof real_ - root.size());
    const std::string_view given(path);
    normal.add(given);
    if (normal.enteredDevice()) {
        if (given.ends_with('/') || given.ends_with("/.")) {
            normal.keepSlashAtEnd();
        }
        tooLong_ = normal.overflowed();
        path_ = real_;
    } else if (isOneOf(normal.text(), archivers) && !normal.overflowed() && exists(real_)) {
        path_ = real_;
    }
}

const char* devicePathOf(const char* real) {
    const std::string_view root = rootFolder();
    const std::string_view path(real);
    if (root.empty() || !path.starts_with(root)) {
        return real;
    }
    const char* const inside = real + root.size();
    return leadsIntoDevice(inside) ? inside : real;
}

} // namespace desktop
