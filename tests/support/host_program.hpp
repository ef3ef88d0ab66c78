// Which host the tests drive.
#pragma once

#include <string>

namespace tests {

/// The host's program file: that of the build, or another that WENTRA_HOST names.
[[nodiscard]] const char* hostProgram();

/// The file of the library whose borders are tested: the one beside that host's own library.
[[nodiscard]] std::string bordersLibrary();

} // namespace tests
