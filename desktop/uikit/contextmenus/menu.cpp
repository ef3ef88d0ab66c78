// Making menus.
#include "desktop/uikit/contextmenus/menu.hpp"

#include "desktop/new_object.hpp"

namespace desktop {

ui::Menu Menu::with(Class cls, ns::String title, ns::ArrayOf<ui::MenuElement> children) {
    const auto menu = newObject<ui::Menu>(cls);
    MenuElement::of(menu).set(title, nullptr);
    of(menu).children_ = children;
    return menu;
}

} // namespace desktop
