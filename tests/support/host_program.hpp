// Which host the tests drive.
#pragma once

namespace tests {

/// The host's program file: that of the build, or another that WENTRA_HOST names.
[[nodiscard]] const char* hostProgram();

} // namespace tests
