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
    /// The view's interactions of whatever kind; a snapshot.
    [[nodiscard]] static ns::Array interactionsOf(View view) {
        return view.send<"interactions", ns::Array>().copied();
    }
    /// The view gives the interaction up.
    static void remove(objc::Object interaction, View view) {
        view.send<"removeInteraction:">(interaction);
    }
    [[nodiscard]] View view() const { return send<"view", View>(); }
    [[nodiscard]] objc::Object delegate() const { return send<"delegate", objc::Object>(); }
};

} // namespace ui
