// The one source that knows where the build puts the host: a cache of compiled files that several
// folders share serves all others in each.
#include "tests/support/host_program.hpp"

#include <cstdlib>
#include <filesystem>

namespace tests {
namespace {

const char* chosenHost() { return std::getenv("WENTRA_HOST"); }

} // namespace

const char* hostProgram() { return chosenHost() == nullptr ? HOST_PATH : chosenHost(); }

std::string bordersLibrary() {
    return chosenHost() == nullptr
               ? BORDERS_PATH
               : std::filesystem::path(chosenHost()).parent_path() / "lib/Borders.so";
}

} // namespace tests
