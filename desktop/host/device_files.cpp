// Copies what the build has made, with the times.
#include "desktop/host/device_files.hpp"

#include "desktop/host/apps/file_tree.hpp"

namespace desktop::host {
namespace {

namespace fs = std::filesystem;

void copyFile(const fs::path& from, const fs::path& to) {
    fs::create_directories(to.parent_path());
    if (fs::copy_file(from, to, fs::copy_options::skip_existing)) {
        fs::last_write_time(to, fs::last_write_time(from));
    }
}

} // namespace

void addDeviceFiles(const fs::path& root) {
    const fs::path made = WENTRA_DEVICE_FILES;
    if (fs::exists(root / "var/mobile/Library/Logs/CrashReporter")) {
        return; // what a person has deleted stays deleted
    }
    makeFileTree(root); // before the folders get other files
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(made)) {
        if (entry.is_regular_file()) {
            copyFile(entry, root / fs::relative(entry, made));
        }
    }
}

} // namespace desktop::host
