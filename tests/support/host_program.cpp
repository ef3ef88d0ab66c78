// The one source that knows where the build puts the host: a cache of compiled files that several
// folders share serves all others in each.
#include "tests/support/host_program.hpp"

#include <cstdlib>

namespace tests {

const char* hostProgram() {
    const char* const chosen = std::getenv("WENTRA_HOST");
    return chosen == nullptr ? HOST_PATH : chosen;
}

} // namespace tests
