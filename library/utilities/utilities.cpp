// The classes of the room.
#include "library/utilities/utilities.hpp"

#include "library/utilities/umaca_table_view_controller.hpp"

#include <array>

namespace wentra::utilities {

Face face() {
    static constexpr std::array<Face::Declaration, 1> classes{&registerUmacaTableViewController};
    return {classes, {}};
}

} // namespace wentra::utilities
