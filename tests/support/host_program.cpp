// The one source that knows where the build puts the host: a cache of compiled files that several
// folders share serves all others in each.
#include "tests/support/host_program.hpp"

namespace tests {

const char* hostProgram() { return HOST_PATH; }

} // namespace tests
