// Starting the host under test.
#pragma once

#include "tests/support/host_process.hpp"
#include "tests/support/host_program.hpp"

namespace tests {

/// The host with these options.
inline support::HostProcess hostWith(const std::vector<std::string>& options) {
    return {hostProgram(), options};
}

/// The host under automation, without any library, with these further options.
inline support::HostProcess automatedHost(std::vector<std::string> options = {}) {
    options.insert(options.begin(), {"--automation", "--no-library"});
    return {hostProgram(), options};
}

} // namespace tests
