// UIMenuElement: what stands in a menu.
#pragma once

#include "bindings/foundation/string.hpp"
#include "bindings/uikit/image.hpp"

namespace ui {

struct MenuElement : objc::Kind<MenuElement, "UIMenuElement"> {
    using Kind::Kind;

    [[nodiscard]] ns::String title() const { return send<"title", ns::String>(); }
    [[nodiscard]] Image image() const { return send<"image", Image>(); }
};

} // namespace ui
