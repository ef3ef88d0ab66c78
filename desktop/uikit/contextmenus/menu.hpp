// UIMenu: elements under a title.
#pragma once

#include "bindings/uikit/menu.hpp"

#include "desktop/class.hpp"
#include "desktop/uikit/contextmenus/menu_element.hpp"

#include <array>

namespace desktop {

class Menu : public PlatformClass<Menu, ui::Menu> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::classMethod<"menuWithTitle:children:", &Menu::with>(),
            objc::method<"children", &Menu::children>(),
        };
    }

private:
    static ui::Menu with(Class cls, ns::String title, ns::ArrayOf<ui::MenuElement> children);
    [[nodiscard]] ns::ArrayOf<ui::MenuElement> children() const { return children_; }

    objc::Copied<ns::ArrayOf<ui::MenuElement>> children_;
};

} // namespace desktop
