// The classes of the room.
#include "library/files/files.hpp"

#include "library/files/browser/browser.hpp"
#include "library/files/viewers/file_content_view_controller.hpp"
#include "library/files/viewers/hex_cell.hpp"
#include "library/files/viewers/hex_editor_view_controller.hpp"
#include "library/files/viewers/image_content_view_controller.hpp"

#include <array>

namespace wentra::files {

Face face() {
    static constexpr std::array<Face::Declaration, 5> classes{
        &registerUmaCollectionViewController, &registerFileContentViewController,
        &registerImageContentViewController, &registerHexCell, &registerHexEditorViewController};
    return {classes, {}};
}

} // namespace wentra::files
