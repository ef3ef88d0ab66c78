// UISwipeActionsConfiguration: the buttons of a swiped row.
#pragma once

#include "bindings/foundation/array.hpp"
#include "bindings/objc/kind.hpp"

namespace ui {

struct SwipeActionsConfiguration
    : objc::Kind<SwipeActionsConfiguration, "UISwipeActionsConfiguration"> {
    using Kind::Kind;

    /// Contextual actions, from the edge inwards.
    static SwipeActionsConfiguration with(ns::Array actions) {
        return sendClass<"configurationWithActions:", SwipeActionsConfiguration>(actions);
    }
};

} // namespace ui
