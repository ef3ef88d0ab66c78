// Tells the commands' actions from others.
#include "library/editing/menu_commands.hpp"

#include <algorithm>

namespace wentra::editing {

bool isMenuCommand(SEL action) {
    return std::ranges::any_of(menuCommands, [action](const MenuCommand& command) {
        return sel_isEqual(command.action(), action);
    });
}

} // namespace wentra::editing
