// Asking the providers.
#include "desktop/uikit/contextmenus/context_menu_configuration.hpp"

#include "desktop/new_object.hpp"

namespace desktop {

ui::ContextMenuConfiguration
ContextMenuConfiguration::with(Class cls, objc::Object identifier,
                               ui::ContextMenuConfiguration::PreviewProvider preview,
                               ui::ContextMenuConfiguration::ActionProvider actions) {
    const auto made = newObject<ui::ContextMenuConfiguration>(cls);
    of(made).identifier_ = identifier;
    of(made).preview_ = preview;
    of(made).actions_ = actions;
    return made;
}

ui::Menu ContextMenuConfiguration::menu() const {
    return actions_ ? actions_(ns::MutableArray::make()) : ui::Menu();
}

ui::ViewController ContextMenuConfiguration::preview() const {
    return preview_ ? preview_() : ui::ViewController();
}

} // namespace desktop
