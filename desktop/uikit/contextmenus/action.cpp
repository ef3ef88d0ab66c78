// Making actions, and running them.
#include "desktop/uikit/contextmenus/action.hpp"

#include "desktop/new_object.hpp"

namespace desktop {

ui::Action Action::with(Class cls, ns::String title, ui::Image image, ns::String identifier,
                        ui::Action::Handler handler) {
    const auto action = newObject<ui::Action>(cls);
    MenuElement::of(action).set(title, image);
    of(action).identifier_ = identifier;
    of(action).handler_ = handler;
    return action;
}

void Action::perform() {
    const objc::Strong<ui::Action> kept = self();
    if (handler_) {
        handler_(kept);
    }
}

} // namespace desktop
