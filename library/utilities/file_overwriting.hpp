// Writing over a file without making it shorter.
#pragma once

#include <string_view>

namespace wentra::utilities {

/// Writes the bytes from the file's start on and makes it when it is missing. What a longer file
/// had behind them stays. False when the file can be neither opened nor made; a disk that is full
/// leaves out the rest.
[[nodiscard]] bool overwriteFile(const char* path, std::string_view bytes);

} // namespace wentra::utilities
