// The categories of the room of text editing.
#include "library/editing/editing.hpp"

#include <array>

namespace wentra::editing {

Face face() {
    static constexpr std::array<Table, 2> categories{&menuItemCategory, &speechCategories};
    return {{}, categories};
}

} // namespace wentra::editing
