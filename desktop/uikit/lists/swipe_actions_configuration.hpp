// UISwipeActionsConfiguration: all that an application offers on a swiped row.
#pragma once

#include "bindings/foundation/array.hpp"
#include "bindings/uikit/contextual_action.hpp"
#include "bindings/uikit/swipe_actions_configuration.hpp"

#include "desktop/class.hpp"

#include <vector>

namespace desktop {

class SwipeActionsConfiguration
    : public PlatformClass<SwipeActionsConfiguration, ui::SwipeActionsConfiguration> {
public:
    static std::vector<objc::MethodRow> methods();

    /// From the edge inwards.
    [[nodiscard]] ns::ArrayOf<ui::ContextualAction> actions() const {
        return actions_.assume<ns::ArrayOf<ui::ContextualAction>>();
    }
    /// Whether a swipe all across the row stands for the first action.
    [[nodiscard]] bool performsFirst() const { return performsFirst_; }

private:
    static ui::SwipeActionsConfiguration with(Class cls, ns::ArrayOf<ui::ContextualAction> actions);

    objc::Copied<ns::ArrayOf<ui::ContextualAction>> actions_;
    bool performsFirst_ = true;
};

} // namespace desktop
