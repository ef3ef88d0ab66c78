// The library's one initialiser.
#include "tests/host/borders/library.hpp"

namespace {

[[gnu::constructor]] void initialise() {
    tests::registerVisitor();
    tests::registerCarrier();
    tests::registerClerk();
}

} // namespace
