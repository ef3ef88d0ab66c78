// What a file's name says of it.
#pragma once

#include <string_view>

namespace wentra::crashlogs {

/// What the list shows: crash reports, or the files of the user's documents.
enum class Shown { reports, documents };

/// Whether files of that name (UTF-8) belong into the list, by the extension as it is written.
[[nodiscard]] bool isListed(std::string_view name, Shown shown);

} // namespace wentra::crashlogs
