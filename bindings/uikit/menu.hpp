// UIMenu: actions under a title.
#pragma once

#include "bindings/foundation/array.hpp"
#include "bindings/uikit/menu_element.hpp"

namespace ui {

struct Menu : objc::Kind<Menu, "UIMenu", MenuElement> {
    using Kind::Kind;

    static Menu with(ns::String title, ns::Array children) {
        return sendClass<"menuWithTitle:children:", Menu>(title, children);
    }
    [[nodiscard]] ns::ArrayOf<MenuElement> children() const {
        return send<"children", ns::ArrayOf<MenuElement>>();
    }
};

} // namespace ui
