// The classes of the room.
#include "library/files/files.hpp"

#include "library/files/viewers/file_content_view_controller.hpp"

#include <array>

namespace wentra::files {

Face face() {
    static constexpr std::array<Face::Declaration, 1> classes{&registerFileContentViewController};
    return {classes, {}};
}

} // namespace wentra::files
