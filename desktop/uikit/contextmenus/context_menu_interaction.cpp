// Asking delegates for menus.
#include "desktop/uikit/contextmenus/context_menu_interaction.hpp"

#include "desktop/uikit/contextmenus/context_menu_configuration.hpp"
#include "desktop/uikit/contextmenus/context_menu_view.hpp"

namespace desktop {

std::vector<objc::MethodRow> ContextMenuInteraction::methods() {
    using Self = ContextMenuInteraction;
    return {
        objc::method<"initWithDelegate:", &Self::initWithDelegate>(),
        objc::method<"delegate", &Self::delegate>(),
        objc::method<"view", &Self::view>(),
        objc::method<"willMoveToView:", &Self::willMoveToView>(),
        objc::method<"didMoveToView:", &Self::didMoveToView>(),
        objc::method<"pressed:", &Self::pressed>(),
        objc::method<"gestureRecognizer:shouldBeRequiredToFailByGestureRecognizer:",
                     &Self::comesFirst>(),
    };
}

ui::ContextMenuInteraction ContextMenuInteraction::initWithDelegate(objc::Object delegate) {
    delegate_ = delegate;
    press_ = ui::GestureRecognizer::with<ui::LongPressGestureRecognizer>(
        self(), objc::selector<"pressed:">());
    press_.setDelegate(self());
    return self();
}

void ContextMenuInteraction::willMoveToView(ui::View) {
    view().removeGestureRecognizer(press_);
    view_ = ui::View();
}

void ContextMenuInteraction::didMoveToView(ui::View view) {
    view_ = view;
    static_cast<ui::View>(view_).addGestureRecognizer(press_);
}

/// A long press on the view itself is the menu's, and not one of what the view lies in.
bool ContextMenuInteraction::comesFirst(ui::GestureRecognizer, ui::GestureRecognizer other) const {
    return other.as<ui::LongPressGestureRecognizer>() && other.view() != view();
}

void ContextMenuInteraction::pressed(ui::GestureRecognizer press) {
    if (press.state() == ui::GestureState::began) {
        show(press.locationIn(view()));
    }
}

bool ContextMenuInteraction::show(CGPoint place) {
    const objc::Strong<ui::ContextMenuInteraction> kept = self();
    const objc::Strong<objc::Object> asked = delegate();
    const auto configuration = asked.send<"contextMenuInteraction:configurationForMenuAtLocation:",
                                          ui::ContextMenuConfiguration>(self(), place);
    const auto menu =
        configuration ? ContextMenuConfiguration::of(configuration).menu() : ui::Menu();
    if (!menu || menu.children().count() == 0 || !view().window()) {
        return false;
    }
    ContextMenuView::show(menu, ContextMenuConfiguration::of(configuration).preview(), view());
    return true;
}

} // namespace desktop
