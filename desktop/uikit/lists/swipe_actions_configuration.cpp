// The actions in the order in which they were given.
#include "desktop/uikit/lists/swipe_actions_configuration.hpp"

#include "desktop/new_object.hpp"

namespace desktop {

std::vector<objc::MethodRow> SwipeActionsConfiguration::methods() {
    using Self = SwipeActionsConfiguration;
    return {
        objc::classMethod<"configurationWithActions:", &Self::with>(),
        objc::method<"actions", &Self::actions>(),
        objc::property<"performsFirstActionWithFullSwipe", &Self::performsFirst_>(),
    };
}

ui::SwipeActionsConfiguration
SwipeActionsConfiguration::with(Class cls, ns::ArrayOf<ui::ContextualAction> actions) {
    const auto configuration = newObject<ui::SwipeActionsConfiguration>(cls);
    of(configuration).actions_ = actions;
    return configuration;
}

} // namespace desktop
