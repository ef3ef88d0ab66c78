// Copies what the build has made, with the times.
#include "desktop/host/device_files.hpp"

#include "desktop/host/apps/file_tree.hpp"
#include "desktop/host/file_copies.hpp"

namespace desktop::host {

void addDeviceFiles(const std::filesystem::path& root) {
    if (!exists(root / "var/mobile/Library/Logs/CrashReporter")) { // what a person deletes stays so
        makeFileTree(root); // before the folders get other files
        copyMissingFiles(WENTRA_DEVICE_FILES, root);
    }
}

} // namespace desktop::host
