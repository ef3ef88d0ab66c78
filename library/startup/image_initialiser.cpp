// The dynamic library's one initialiser: runs the start-up when the loader maps the library.
#include "library/startup/start_up.hpp"

namespace {

[[gnu::constructor]] void initialise() { wentra::startup::startUp(); }

} // namespace
