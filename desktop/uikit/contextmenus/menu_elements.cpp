// Making the elements, and running actions.
#include "desktop/uikit/contextmenus/menu_elements.hpp"

namespace desktop {
namespace {

template <class Kind>
Kind fresh(Class cls) {
    return objc::send<"new", Kind>(objc::object(cls)).template send<"autorelease", Kind>();
}

} // namespace

void MenuElement::set(ns::String title, ui::Image image) {
    title_ = title;
    image_ = image;
}

ui::Action Action::with(Class cls, ns::String title, ui::Image image, ns::String identifier,
                        ui::Action::Handler handler) {
    const auto action = fresh<ui::Action>(cls);
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

ui::Menu Menu::with(Class cls, ns::String title, ns::Array children) {
    const auto menu = fresh<ui::Menu>(cls);
    MenuElement::of(menu).set(title, nullptr);
    of(menu).children_ = children;
    return menu;
}

} // namespace desktop
