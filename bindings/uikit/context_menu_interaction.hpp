// UIContextMenuInteraction: lets a view have a context menu.
#pragma once

#include "bindings/uikit/view.hpp"

namespace ui {

struct ContextMenuInteraction : objc::Kind<ContextMenuInteraction, "UIContextMenuInteraction"> {
    using Kind::Kind;

    /// The delegate, which is not retained, is asked for the menu each time.
    static ContextMenuInteraction with(objc::Object delegate) {
        return make<"initWithDelegate:">(delegate);
    }
    [[nodiscard]] View view() const { return send<"view", View>(); }
};

} // namespace ui
