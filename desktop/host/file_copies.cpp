// Walks the files that were made.
#include "desktop/host/file_copies.hpp"

#include "desktop/runtime/stop_request.hpp"

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

void copyMissingFiles(const fs::path& from, const fs::path& to) {
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(from)) {
        if (stop_request::isMade()) {
            return;
        }
        if (entry.is_regular_file()) {
            copyFile(entry, to / fs::relative(entry, from));
        }
    }
}

} // namespace desktop::host
