// Which host the tests drive.
#pragma once

namespace tests {

/// The host's program file.
[[nodiscard]] const char* hostProgram();

} // namespace tests
