// The classes of the room.
#include "library/files/files.hpp"

#include "library/files/browser/browser.hpp"

#include <array>

namespace wentra::files {

Face face() {
    static constexpr std::array<Face::Declaration, 1> classes{&registerUmaCollectionViewController};
    return {classes, {}};
}

} // namespace wentra::files
