// A folder that is read.
#pragma once

#include <dirent.h>

#include <memory>
#include <string>
#include <sys/stat.h>

namespace wentra::files {

/// Walks the entries of a folder, without those that stand for it and for its parent, and without
/// what a change makes in it for itself.
class Folder {
public:
    /// Links are not followed at the path's end when `follows` is false.
    explicit Folder(const std::string& path, bool follows = true);

    /// Null when there are no more, and in what cannot be read. Valid until the next call.
    [[nodiscard]] const dirent* next() const;
    /// Asks for an entry by name, itself where it is a link; false when it cannot be asked.
    [[nodiscard]] bool ask(const char* name, struct stat& status) const;

private:
    int descriptor_;
    std::unique_ptr<DIR, int (*)(DIR*)> stream_;
};

} // namespace wentra::files
