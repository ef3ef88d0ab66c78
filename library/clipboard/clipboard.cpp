// The classes of the room.
#include "library/clipboard/clipboard.hpp"

#include "library/clipboard/clipboard_table_view_controller.hpp"
#include "library/clipboard/popover_content_view_controller.hpp"
#include "library/clipboard/text_view_controller.hpp"

#include <array>

namespace wentra::clipboard {

Face face() {
    static constexpr std::array<Face::Declaration, 3> classes{&registerClipboardTableViewController,
                                                              &registerPopoverContentViewController,
                                                              &registerTextViewController};
    return {classes, {}};
}

} // namespace wentra::clipboard
