// Reads folders by the system's own calls, which take all names.
#include "library/files/folder.hpp"

#include "library/files/operations/passing_name.hpp"

#include <fcntl.h>
#include <string_view>
#include <unistd.h>

namespace wentra::files {
namespace {

DIR* streamOf(int descriptor) {
    DIR* const stream = descriptor < 0 ? nullptr : fdopendir(descriptor);
    if (stream == nullptr && descriptor >= 0) {
        close(descriptor);
    }
    return stream;
}

bool isEntry(std::string_view name) { return name != "." && name != ".." && !isPassing(name); }

} // namespace

Folder::Folder(const std::string& path, bool follows)
    : descriptor_(
          open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC | (follows ? 0 : O_NOFOLLOW))),
      stream_(streamOf(descriptor_), &closedir) {}

const dirent* Folder::next() const {
    const dirent* entry = stream_ ? readdir(stream_.get()) : nullptr;
    while (entry != nullptr && !isEntry(entry->d_name)) {
        entry = readdir(stream_.get());
    }
    return entry;
}

bool Folder::ask(const char* name, struct stat& status) const {
    return stream_ && fstatat(descriptor_, name, &status, AT_SYMLINK_NOFOLLOW) == 0;
}

} // namespace wentra::files
