// Refusing what the running library asks for.
#include "device/emulation/refusal.hpp"

#include <cstdio>
#include <cstdlib>

namespace emulation {

void refuse(const std::string& what) {
    std::fprintf(stderr, "Wentra.dylib: refused: %s\n", what.c_str());
    std::abort();
}

} // namespace emulation
