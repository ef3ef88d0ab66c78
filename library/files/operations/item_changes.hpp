// Copying, moving, removing and making entries of the file system, so that nothing is ever lost.
#pragma once

#include <string>

namespace wentra::files {

/// 0, or the system's number of what went wrong.
using Failure = int;

// Links are entries by themselves, wherever they lead: they are copied as links, moved and removed,
// never followed. What has a path's name is replaced in one step, after what replaces it is whole,
// and only by those that say so; a change that fails leaves both ends as they were. Nothing is
// copied or moved into itself, or over a folder that it lies in. Any thread.

/// Whether there is an entry at the path, be it a link that leads nowhere.
[[nodiscard]] bool entryExists(const std::string& path);

/// Copies with dates and permissions; fails where there is an entry already.
[[nodiscard]] Failure copyItem(const std::string& source, const std::string& destination);

/// Copies over what is there; an entry over itself stays as it is.
[[nodiscard]] Failure replaceByCopy(const std::string& source, const std::string& destination);

/// Fails where there is an entry already. To another volume it is copied, then removed.
[[nodiscard]] Failure moveItem(const std::string& source, const std::string& destination);

/// Moves over what is there; an entry over itself stays as it is.
[[nodiscard]] Failure replaceByMove(const std::string& source, const std::string& destination);

/// Removes the entry with all that is in it.
[[nodiscard]] Failure removeItem(const std::string& path);

/// Makes an empty file; fails where there is an entry already.
[[nodiscard]] Failure makeFile(const std::string& path);

/// Makes a folder and those above it, as far as they are missing.
[[nodiscard]] Failure makeFolder(const std::string& path);

} // namespace wentra::files
