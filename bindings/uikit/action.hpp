// UIAction: an entry of a menu that does something.
#pragma once

#include "bindings/objc/block.hpp"
#include "bindings/uikit/menu_element.hpp"

namespace ui {

struct Action : objc::Kind<Action, "UIAction", MenuElement> {
    using Kind::Kind;
    using Handler = objc::Block<void(Action)>;

    static Action with(ns::String title, Image image, Handler handler) {
        return sendClass<"actionWithTitle:image:identifier:handler:", Action>(
            title, image, ns::String(), handler);
    }
};

} // namespace ui
