// UIContextMenuConfiguration: what a context menu shows.
#pragma once

#include "bindings/objc/block.hpp"
#include "bindings/uikit/menu.hpp"
#include "bindings/uikit/view_controller.hpp"

namespace ui {

struct ContextMenuConfiguration
    : objc::Kind<ContextMenuConfiguration, "UIContextMenuConfiguration"> {
    using Kind::Kind;
    /// Both are asked when the menu comes up. A nil preview provider: the view itself.
    using PreviewProvider = objc::Block<ViewController()>;
    using ActionProvider = objc::Block<Menu(ns::Array suggested)>;

    /// The identifier is the maker's own and is copied.
    static ContextMenuConfiguration with(objc::Object identifier, PreviewProvider preview,
                                         ActionProvider actions) {
        return sendClass<"configurationWithIdentifier:previewProvider:actionProvider:",
                         ContextMenuConfiguration>(identifier, preview, actions);
    }
};

} // namespace ui
