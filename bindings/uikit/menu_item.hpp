// UIMenuItem: an entry of the edit menu.
#pragma once

#include "bindings/foundation/string.hpp"

namespace ui {

/// A title and the action that is sent up the responder chain.
struct MenuItem : objc::Kind<MenuItem, "UIMenuItem"> {
    using Kind::Kind;

    static MenuItem with(ns::String title, SEL action) {
        return make<"initWithTitle:action:">(title, action);
    }
    [[nodiscard]] ns::String title() const { return send<"title", ns::String>(); }
    [[nodiscard]] SEL action() const { return send<"action", SEL>(); }
};

} // namespace ui
